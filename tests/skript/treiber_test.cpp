// The driver's random source and its run over whole scripts: which names it
// knows and where a script stops.

#include "app/appdelegate.h"
#include "app/zustand.h"
#include "skript/skriptplattform.h"
#include "skript/treiber.h"
#include "skript/zufall.h"
#include "terms/parser.h"
#include "textmatrix/liste.h"
#include "window/aktionen.h"
#include "window/tableau.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tabulon::skript {
namespace {

// The draws for one seed are pinned by the transcripts; here the bounds that force redraws.
TEST(Zufall, StaysBelowTheBound) {
    Zufall z(7);
    const std::uint32_t grenze = 0x80000001u; // almost half of all outputs are drawn again
    for (int i = 0; i < 1000; ++i) {
        EXPECT_LT(z.unter(grenze), grenze);
        EXPECT_EQ(z.unter(1), 0u);
        EXPECT_EQ(z.unter(0), 0u);
    }
}

// Runs the script without a documents folder; returns (exit status, output, error output).
std::tuple<int, std::string, std::string> lauf(const std::string& skript) {
    allesZuruecksetzen();
    std::ostringstream aus;
    std::ostringstream fehler;
    SkriptPlattform p(aus, 1, {}, [](int) {});
    Treiber t(p);
    std::istringstream ein(skript);
    const int status = t.lauf(ein, fehler, "test.skript");
    return {status, aus.str(), fehler.str()};
}

TEST(Treiber, StopsAtTheFirstUnknownNameAndNamesTheLine) {
    const std::pair<std::string, std::string> faelle[] = {
        {"\xEF\xBB\xBFzeige eingabeFb\nregler 11\n",
         "Zeile 2: erwartet: regler N mit einer ganzen Zahl N von 1 bis 10"},
        {"zeige eingabeFb\n\n# x\nfeld mListeF \"A\"\n",
         "Zeile 4: unbekanntes Eingabefeld \"mListeF\""},
        {"zeige eingabeFb\nknopf dezimalSlider\n", "Zeile 2: unbekannter Knopf \"dezimalSlider\""},
        {"zeige eingabeFb\nmenue einlistB\n", "Zeile 2: unbekannte Menüaktion \"einlistB\""},
        {"zeige eingabeFb\nzeige nichts\n", "Zeile 2: unbekannte Anzeige \"nichts\""},
    };
    for (const auto& [skript, meldung] : faelle) {
        const auto [status, aus, fehler] = lauf(skript + "zeige notizF\n");
        EXPECT_EQ(status, 2);
        EXPECT_EQ(aus, "eingabeFb \"\"\n"); // what ran before the bad line stays printed
        EXPECT_EQ(fehler, "tabulon-skript: test.skript, " + meldung + "\n");
    }
}

// Every button and menu entry of the script language reaches the window; with no answers queued,
// quitting and every other question end as "no". Slider and checkbox are no buttons.
TEST(Treiber, KnowsEveryButtonAndMenuAction) {
    std::string skript;
    for (const Fensteraktion& aktion : fensteraktionen()) {
        if (aktion.knopf) {
            skript += "knopf " + std::string(aktion.name) + "\n";
        }
    }
    for (const Menueaktion& aktion : menueaktionen()) {
        skript += "menue " + std::string(aktion.name) + "\n";
    }
    const auto [status, aus, fehler] = lauf(skript);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(fehler, "");
    EXPECT_EQ(("\n" + aus).find("\nende "), std::string::npos);
    for (const char* keinKnopf : {"dezimalSlider", "ueberschreibChecker"}) {
        EXPECT_EQ(std::get<0>(lauf(std::string("knopf ") + keinKnopf + "\n")), 2) << keinKnopf;
    }
}

} // namespace
} // namespace tabulon::skript
