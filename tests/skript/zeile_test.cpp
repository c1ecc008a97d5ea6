// Taking script lines apart and reading the command line; the transcripts show the escapes.

#include "skript/aufruf.h"
#include "skript/skriptzeile.h"

#include <gtest/gtest.h>

namespace tabulon::skript {
namespace {

Befehl befehl(Befehlsart art, std::string name, std::string text = {}, int zeile = 0,
              int spalte = 0, bool an = false) {
    return Befehl{art, std::move(name), std::move(text), zeile, spalte, an};
}

TEST(Zeile, ReadsEveryCommandForm) {
    const std::pair<std::string, Befehl> faelle[] = {
        {R"(  feld	zaehlF   "  3 " )", befehl(Befehlsart::feld, "zaehlF", "  3 ")},
        {"zelle 7 3 \"# -2.5e3\"\r", befehl(Befehlsart::zelle, "", "# -2.5e3", 7, 3)},
    };
    for (const auto& [zeile, erwartet] : faelle) {
        const Zeilenergebnis z = zerlegeZeile(zeile);
        EXPECT_EQ(z.fehler, "") << zeile;
        ASSERT_TRUE(z.befehl.has_value()) << zeile;
        EXPECT_EQ(*z.befehl, erwartet) << zeile;
    }
    for (const char* leer : {"", "   ", "\t", "\r", "# zeige tableau", "   #", "#\"offen"}) {
        EXPECT_TRUE(zerlegeZeile(leer).istLeer()) << leer;
    }
}

TEST(Zeile, RefusesMalformedLines) {
    const char* faelle[] = {
        "feld eingabeFb",
        "feld eingabeFb a",
        R"(feld eingabeFb "a" "b")",
        R"(feld eingabeFb "a)",
        R"(feld eingabeFb "a\x41")",
        R"(feld eingabeFb "a"b)",
        R"(feld eingabeFb ab"c")",
        R"(zelle 8 0 "1")",
        R"(zelle 0 -1 "1")",
        R"(zelle 0 0 1)",
        "regler 0",
        "regler 99999999999999999999",
        "haken An",
        "antwort Ja",
        "knopf",
        R"(menue "loescheName")",
        "zeige tableau einaus",
        R"("zeige" tableau)",
    };
    for (const char* zeile : faelle) {
        const Zeilenergebnis z = zerlegeZeile(zeile);
        EXPECT_FALSE(z.befehl.has_value()) << zeile;
        EXPECT_NE(z.fehler, "") << zeile;
    }
    EXPECT_EQ(zerlegeZeile("tanze\x01").fehler, R"(unbekannter Befehl "tanze\x01")");
}

TEST(Aufruf, ReadsOptionsInAnyOrder) {
    using V = std::vector<std::string>;
    auto ok = [](const V& v) {
        auto e = zerlegeAufruf(v);
        EXPECT_EQ(e.fehler, "");
        return e.aufruf;
    };
    const Aufruf leer = ok({});
    EXPECT_FALSE(leer.dokumente || leer.saat || leer.skript || leer.hilfe);

    const Aufruf voll = ok({"--zufall", "4294967295", "s.skript", "--dokumente", "/tmp/d"});
    EXPECT_EQ(voll.saat, 4294967295u);
    EXPECT_EQ(voll.skript, "s.skript");
    EXPECT_EQ(voll.dokumente, "/tmp/d");

    EXPECT_EQ(ok({"--zufall", "0"}).saat, 0u);
    EXPECT_FALSE(ok({"-"}).skript.has_value());
    EXPECT_EQ(ok({"--", "-x.skript"}).skript, "-x.skript");
    EXPECT_TRUE(ok({"-h"}).hilfe);

    for (const V& falsch :
         {V{"--zufall"}, V{"--zufall", "-1"}, V{"--zufall", "4294967296"}, V{"--zufall", "1x"},
          V{"--dokumente"}, V{"--dokumente", ""}, V{"--laut"}, V{"a.skript", "b.skript"}}) {
        EXPECT_NE(zerlegeAufruf(falsch).fehler, "") << falsch.front();
    }
}

} // namespace
} // namespace tabulon::skript
