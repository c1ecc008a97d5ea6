#include "textmatrix/liste.h"
#include "textmatrix/smatrix.h"
#include "textmatrix/smatrix_drucken.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <string>

namespace tabulon {
namespace {

SMatrix aus(std::int64_t zeilen, std::int64_t spalten, std::initializer_list<const char*> werte) {
    SMatrix m(zeilen, spalten);
    std::size_t k = 0;
    for (const char* w : werte) {
        m.grid[k++] = w;
    }
    return m;
}

TEST(SMatrix, LeereEintraegeSindHoechstensAchtLeerzeichen) {
    for (const char* leer : {"", " ", "    ", "        "}) {
        EXPECT_TRUE(istLeerzeichen(leer)) << '"' << leer << '"';
    }
    for (const char* voll : {"         ", "\t", " 0", "0", "\xc2\xa0"}) {
        EXPECT_FALSE(istLeerzeichen(voll)) << '"' << voll << '"';
    }
    EXPECT_TRUE(aus(1, 3, {"", " ", "        "}).istLeer());
    EXPECT_FALSE(aus(1, 3, {"", " ", "         "}).istLeer());
    EXPECT_FALSE(aus(1, 3, {"", "\t", ""}).istLeer());
}

TEST(SMatrix, LeereZeilenUndSpaltenVerschwinden) {
    SMatrix tableau(8, 8);
    tableau(0, 0) = "1";
    tableau(0, 2) = "3";
    tableau(1, 1) = " 5";
    tableau.killLeerzeilen();
    tableau.killLeerspalten();
    EXPECT_EQ(tableau, aus(2, 3, {"1", "", "3", "", " 5", ""}));

    SMatrix ecken(8, 8);
    ecken(0, 0) = "a";
    ecken(5, 5) = "b";
    ecken(7, 7) = "        ";
    ecken.killLeerzeilen();
    ecken.killLeerspalten();
    EXPECT_EQ(ecken, aus(2, 2, {"a", "", "", "b"}));

    SMatrix leer(3, 4);
    leer(1, 1) = "  ";
    const SMatrix vorher = leer;
    leer.killLeerzeilen();
    leer.killLeerspalten();
    EXPECT_EQ(leer, vorher);
}

TEST(SMatrix, TransponiertUndText) {
    const SMatrix m = aus(2, 3, {"1", "2", "3", "4", "5", "6"});
    EXPECT_EQ(m.transponiert(), aus(3, 2, {"1", "4", "2", "5", "3", "6"}));
    EXPECT_EQ(m.transponiert().transponiert(), m);
    EXPECT_EQ(aus(2, 2, {"1", "2", "3", "4"}).string(), "1     2     \n3     4     \n");
}

TEST(SMatrix, EinfuegenNurInnerhalbVonAchtZeilenUndSpalten) {
    const SMatrix m = aus(2, 2, {"1", "2", "3", "4"});
    EXPECT_EQ(m.spalteEinfuegen(2), aus(2, 3, {"1", "2", "", "3", "4", ""}));
    EXPECT_EQ(m.spalteEinfuegen(0), aus(2, 3, {"", "1", "2", "", "3", "4"}));
    EXPECT_EQ(m.zeileEinfuegen(1), aus(3, 2, {"1", "2", "", "", "3", "4"}));
    EXPECT_EQ(m.spalteEinfuegen(3), m);
    EXPECT_EQ(m.zeileEinfuegen(3), m);
    EXPECT_EQ(m.spalteEinfuegen(-1), m);

    const SMatrix breit(1, 8);
    EXPECT_EQ(breit.spalteEinfuegen(8), breit);
    EXPECT_EQ(breit.zeileEinfuegen(1).rows, 2);
    const SMatrix hoch(8, 1);
    EXPECT_EQ(hoch.zeileEinfuegen(0), hoch);
    EXPECT_EQ(SMatrix(7, 7).zeileEinfuegen(7).rows, 8);
}

TEST(SMatrix, LoeschenBehaeltDieLetzteZeileUndSpalte) {
    const SMatrix m = aus(2, 3, {"1", "2", "3", "4", "5", "6"});
    EXPECT_EQ(m.spalteLoeschen(1), std::make_pair(aus(2, 2, {"1", "3", "4", "6"}), true));
    EXPECT_EQ(m.zeileLoeschen(0), std::make_pair(aus(1, 3, {"4", "5", "6"}), true));
    for (std::int64_t falsch : {-1, 3}) {
        EXPECT_EQ(m.spalteLoeschen(falsch), std::make_pair(m, false));
    }
    for (std::int64_t falsch : {-1, 2}) {
        EXPECT_EQ(m.zeileLoeschen(falsch), std::make_pair(m, false));
    }
    const SMatrix zeile = aus(1, 3, {"1", "2", "3"});
    EXPECT_EQ(zeile.zeileLoeschen(0), std::make_pair(zeile, false));
    EXPECT_EQ(zeile.transponiert().spalteLoeschen(0), std::make_pair(zeile.transponiert(), false));
}

TEST(SMatrix, GetrimmtIstDerBlockAllerNichtLeerenEintraege) {
    SMatrix m(8, 8);
    m(0, 0) = "1";
    m(2, 1) = "x";
    m(6, 0) = "   ";
    EXPECT_EQ(m.getrimmt(), aus(3, 2, {"1", "", "", "", "", "x"}));

    SMatrix nurUnten(8, 8);
    nurUnten(4, 0) = "7";
    nurUnten(0, 3) = "8";
    EXPECT_EQ(nurUnten.getrimmt().rows, 5);
    EXPECT_EQ(nurUnten.getrimmt().columns, 4);

    SMatrix leer(8, 8);
    leer(0, 0) = "  ";
    EXPECT_EQ(leer.getrimmt(), aus(1, 1, {"  "}));
    EXPECT_EQ(SMatrix().getrimmt(), SMatrix(1, 1));
}

TEST(SMatrix, GerundetNutztDezimalenUndLaesstTexteStehen) {
    listenZustandZuruecksetzen();
    listenZustand().dezimalen = 2;
    const SMatrix m = aus(2, 3, {"3.14159", "-0.0001", "x", "", "1,5", " 2"});
    EXPECT_EQ(m.gerundet(), aus(2, 3, {"3.14", "0.00", "x", "0.00", "1,5", "2.00"}));
    listenZustandZuruecksetzen();
    EXPECT_EQ(aus(1, 2, {"1e-8", "-2"}).gerundet(), aus(1, 2, {"0.000000", "-2.000000"}));
}

} // namespace
} // namespace tabulon
