#include "app/zustand.h"
#include "textmatrix/liste.h"
#include "textmatrix/smatrix.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <set>
#include <string>
#include <utility>

namespace tabulon {
namespace {

SMatrix aus(std::int64_t zeilen, std::int64_t spalten, std::initializer_list<const char*> werte) {
    SMatrix m(zeilen, spalten);
    std::copy(werte.begin(), werte.end(), m.grid.begin());
    return m;
}

// Empty rows and columns go, an empty matrix keeps its size, and the trimmed block reaches from
// (0, 0) to the last row and column that hold an entry.
TEST(SMatrix, LeereZeilenUndSpaltenGetrimmterBlock) {
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

    m = SMatrix(8, 8);
    m(0, 0) = "1";
    m(2, 1) = "x";
    m(6, 0) = "   ";
    EXPECT_EQ(m.getrimmt(), aus(3, 2, {"1", "", "", "", "", "x"}));
    m(0, 4) = "y";
    EXPECT_EQ(m.getrimmt().columns, 5);
    EXPECT_EQ(aus(2, 2, {"  ", "", "", ""}).getrimmt(), aus(1, 1, {"  "}));
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
}

// The messages of einlistenAls are pinned by the list transcripts; here: what the list holds.
// Empty rows go before the gaps are filled: the middle row disappears, the gap in the last row
// becomes "0.0", nine blanks are no gap.
TEST(Liste, EinlistenFuelltLueckenNachDenLeerzeilen) {
    allesZuruecksetzen();
    const SMatrix m = aus(3, 3, {"1", "2", "         ", "", "", " ", "3", "   ", "9"});
    ASSERT_TRUE(m.einlistenAls("B").second);
    EXPECT_EQ(listenZustand().sMatrixListe.at("B"),
              aus(2, 3, {"1", "2", "         ", "3", "0.0", "9"}));
    for (const char* name : {"B", "?", "a", "AB", ""}) {
        EXPECT_FALSE(SMatrix::freierMatrixname(name)) << name;
    }
    allesZuruecksetzen();
}

// The first free name in the order A ... Z; texts that are no letter name never count, wherever
// they sort among the letters, and without a free letter the answer is "?".
TEST(Liste, FreierNameNurAusDenBuchstaben) {
    const std::pair<std::set<std::string>, std::string> faelle[] = {
        {{"AB", "B", "?", "a", "0"}, "B"},
        {{"ZZ", "\u00C4", "\xC3", "Z\u0301"}, "?"},
        {{"[", "a"}, "?"},
        {{}, "?"},
        {{"Z", "ZA", "A\u0301"}, "Z"}};
    for (const auto& [frei, erwartet] : faelle) {
        listenZustand().smNamen = frei;
        EXPECT_EQ(naechsterFreierName(), erwartet);
    }
    allesZuruecksetzen();
}

// One column up to ten names, two up to twenty, then three; no line break after the last name of
// a row that is not full.
TEST(Liste, AktuelleListeInEinerZweiUndDreiSpalten) {
    const std::pair<int, const char*> faelle[] = {
        {10, "A\nB\nC\nD\nE\nF\nG\nH\nI\nJ\n"},
        {11, "A , B\nC , D\nE , F\nG , H\nI , J\nK"},
        {20, "A , B\nC , D\nE , F\nG , H\nI , J\nK , L\nM , N\nO , P\nQ , R\nS , T\n"},
        {21, "ABC\nDEF\nGHI\nJKL\nMNO\nPQR\nSTU\n"},
        {26, "ABC\nDEF\nGHI\nJKL\nMNO\nPQR\nSTU\nVWX\nYZ"}};
    for (const auto& [anzahl, text] : faelle) {
        allesZuruecksetzen();
        for (int i = 0; i < anzahl; ++i) {
            aus(1, 1, {"1"}).einlistenAls(std::string(1, static_cast<char>('A' + i)));
        }
        EXPECT_EQ(aktuelleListe(), text) << anzahl << " names";
    }
    allesZuruecksetzen();
}

} // namespace
} // namespace tabulon
