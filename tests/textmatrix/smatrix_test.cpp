#include "textmatrix/liste.h"
#include "textmatrix/smatrix.h"

#include <gtest/gtest.h>
#include <initializer_list>

namespace tabulon {
namespace {

SMatrix aus(std::int64_t zeilen, std::int64_t spalten, std::initializer_list<const char*> werte) {
    SMatrix m(zeilen, spalten);
    std::copy(werte.begin(), werte.end(), m.grid.begin());
    return m;
}

TEST(SMatrix, LeereZeilenUndSpaltenVerschwindenLeereMatrixBleibt) {
    SMatrix m(8, 8);
    m(0, 0) = "a";
    m(1, 2) = " 5";
    m(5, 5) = "b";
    m(7, 7) = "        ";
    m.killLeerzeilen();
    m.killLeerspalten();
    EXPECT_EQ(m, aus(3, 3, {"a", "", "", "", " 5", "", "", "", "b"}));

    SMatrix leer(3, 4);
    leer(2, 3) = "        ";
    leer.killLeerzeilen();
    leer.killLeerspalten();
    EXPECT_EQ(leer.rows * leer.columns, 12);
    for (const char* voll : {"         ", "\t", "\xc2\xa0"}) {
        leer(0, 0) = voll;
        EXPECT_FALSE(leer.istLeer()) << '"' << voll << '"';
    }
}

TEST(SMatrix, UmbauenOhneNeunteZeileOderSpalteUndOhneLetzteZuLoeschen) {
    const SMatrix m = aus(2, 3, {"1", "2", "3", "4", "5", "6"});
    EXPECT_EQ(m.transponiert(), aus(3, 2, {"1", "4", "2", "5", "3", "6"}));
    EXPECT_EQ(m.spalteEinfuegen(0), aus(2, 4, {"", "1", "2", "3", "", "4", "5", "6"}));
    EXPECT_EQ(m.zeileEinfuegen(1), aus(3, 3, {"1", "2", "3", "", "", "", "4", "5", "6"}));
    EXPECT_EQ(m.spalteLoeschen(1), std::make_pair(aus(2, 2, {"1", "3", "4", "6"}), true));
    // No ninth column or row, no insertion beyond the end.
    for (const auto& [ist, soll] : {std::pair{m.spalteEinfuegen(4), m},
                                    {m.zeileEinfuegen(3), m},
                                    {m.spalteEinfuegen(-1), m},
                                    {SMatrix(2, 8).spalteEinfuegen(8), SMatrix(2, 8)},
                                    {SMatrix(8, 2).zeileEinfuegen(0), SMatrix(8, 2)}}) {
        EXPECT_EQ(ist, soll);
    }
    EXPECT_FALSE(m.spalteLoeschen(3).second);
    EXPECT_FALSE(aus(1, 3, {"4", "5", "6"}).zeileLoeschen(0).second);
    EXPECT_FALSE(SMatrix(3, 1).spalteLoeschen(0).second);
    EXPECT_EQ(aus(2, 2, {"1", "2", "3", "4"}).string(), "1     2     \n3     4     \n");
}

TEST(SMatrix, GetrimmtIstDerBlockBisZumLetztenEintrag) {
    SMatrix m(8, 8);
    m(0, 0) = "1";
    m(2, 1) = "x";
    m(6, 0) = "   ";
    EXPECT_EQ(m.getrimmt(), aus(3, 2, {"1", "", "", "", "", "x"}));
    m(0, 4) = "y";
    EXPECT_EQ(m.getrimmt().columns, 5);
    EXPECT_EQ(aus(2, 2, {"  ", "", "", ""}).getrimmt(), aus(1, 1, {"  "}));
}

// The messages of einlistenAls are pinned by the list transcripts; here: what the list holds.
TEST(Liste, EinlistenAuslistenUndFreieNamen) {
    listenZustandZuruecksetzen();
    listenZustand().ueberschreiben = true;
    EXPECT_FALSE(SMatrix(3, 3).einlistenAls("A").second);
    EXPECT_TRUE(listenZustand().sMatrixListe.empty());
    listenZustand().ueberschreiben = false;
    // Empty rows go before the gaps are filled: the middle row disappears, the gap in the last
    // row becomes "0.0", nine blanks are no gap.
    const SMatrix m = aus(3, 3, {"1", "2", "         ", "", "", " ", "3", "   ", "9"});
    ASSERT_TRUE(m.einlistenAls("B").second);
    const SMatrix gespeichert = aus(2, 3, {"1", "2", "         ", "3", "0.0", "9"});
    EXPECT_EQ(listenZustand().sMatrixListe.at("B"), gespeichert);
    EXPECT_EQ(naechsterFreierName(), "A");
    EXPECT_EQ(auslisten("B"), std::make_pair(std::string("ok"), true));
    EXPECT_TRUE(SMatrix::freierMatrixname("B") && listenZustand().smNamen.count("B") == 1);
    for (const char* name : {"?", "a", "AB", ""}) {
        EXPECT_FALSE(SMatrix::freierMatrixname(name)) << name;
    }
    listenZustandZuruecksetzen();
}

TEST(Liste, AktuelleListeInEinerZweiUndDreiSpalten) {
    listenZustandZuruecksetzen();
    for (const char* name : {"Z", "A", "C"}) {
        ASSERT_TRUE(aus(1, 1, {"1"}).einlistenAls(name).second);
    }
    EXPECT_EQ(aktuelleListe(), "A\nC\nZ\n");
    const struct {
        int anzahl;
        const char* text;
    } faelle[] = {
        {10, "A\nB\nC\nD\nE\nF\nG\nH\nI\nJ\n"},
        {11, "A , B\nC , D\nE , F\nG , H\nI , J\nK"},
        {20, "A , B\nC , D\nE , F\nG , H\nI , J\nK , L\nM , N\nO , P\nQ , R\nS , T\n"},
        {21, "ABC\nDEF\nGHI\nJKL\nMNO\nPQR\nSTU\n"},
        {26, "ABC\nDEF\nGHI\nJKL\nMNO\nPQR\nSTU\nVWX\nYZ"},
    };
    for (const auto& fall : faelle) {
        listenZustandZuruecksetzen();
        for (int i = 0; i < fall.anzahl; ++i) {
            aus(1, 1, {"1"}).einlistenAls(std::string(1, static_cast<char>('A' + i)));
        }
        EXPECT_EQ(aktuelleListe(), fall.text) << fall.anzahl << " names";
    }
    // With every letter in use the search for a free name ends on "?", under which nothing goes.
    EXPECT_EQ(naechsterFreierName(), "?");
    EXPECT_FALSE(aus(1, 1, {"1"}).einlistenAls("?").second);
    listenZustandZuruecksetzen();
}

} // namespace
} // namespace tabulon
