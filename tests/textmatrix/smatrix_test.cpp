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
    leer(1, 1) = "  ";
    leer(2, 3) = "        ";
    const SMatrix vorher = leer;
    leer.killLeerzeilen();
    leer.killLeerspalten();
    EXPECT_EQ(leer, vorher);
    for (const char* voll : {"         ", "\t", " 0", "\xc2\xa0"}) {
        leer(0, 0) = voll;
        EXPECT_FALSE(leer.istLeer()) << '"' << voll << '"';
    }
}

TEST(SMatrix, UmbauenOhneNeunteZeileOderSpalteUndOhneLetzteZuLoeschen) {
    const SMatrix m = aus(2, 3, {"1", "2", "3", "4", "5", "6"});
    EXPECT_EQ(m.transponiert(), aus(3, 2, {"1", "4", "2", "5", "3", "6"}));
    EXPECT_EQ(m.spalteEinfuegen(3), aus(2, 4, {"1", "2", "3", "", "4", "5", "6", ""}));
    EXPECT_EQ(m.spalteEinfuegen(0), aus(2, 4, {"", "1", "2", "3", "", "4", "5", "6"}));
    EXPECT_EQ(m.zeileEinfuegen(1), aus(3, 3, {"1", "2", "3", "", "", "", "4", "5", "6"}));
    EXPECT_EQ(m.spalteLoeschen(1), std::make_pair(aus(2, 2, {"1", "3", "4", "6"}), true));
    EXPECT_EQ(m.zeileLoeschen(0), std::make_pair(aus(1, 3, {"4", "5", "6"}), true));
    for (const SMatrix& gleich : {m.spalteEinfuegen(4), m.zeileEinfuegen(3), m.spalteEinfuegen(-1),
                                  m.spalteLoeschen(3).first, m.zeileLoeschen(-1).first}) {
        EXPECT_EQ(gleich, m);
    }
    EXPECT_EQ(SMatrix(2, 8).spalteEinfuegen(8), SMatrix(2, 8));
    EXPECT_EQ(SMatrix(8, 2).zeileEinfuegen(0), SMatrix(8, 2));
    EXPECT_EQ(SMatrix(7, 7).zeileEinfuegen(7).rows, 8);
    EXPECT_FALSE(m.spalteLoeschen(3).second);
    EXPECT_FALSE(aus(1, 3, {"4", "5", "6"}).zeileLoeschen(0).second);
    EXPECT_FALSE(SMatrix(3, 1).spalteLoeschen(0).second);
    EXPECT_EQ(aus(2, 2, {"1", "2", "3", "4"}).string(), "1     2     \n3     4     \n");
}

TEST(SMatrix, GetrimmtUndGerundet) {
    SMatrix m(8, 8);
    m(0, 0) = "1";
    m(2, 1) = "x";
    m(6, 0) = "   ";
    EXPECT_EQ(m.getrimmt(), aus(3, 2, {"1", "", "", "", "", "x"}));
    m(0, 0) = "";
    m(0, 4) = "y";
    EXPECT_EQ(std::make_pair(m.getrimmt().rows, m.getrimmt().columns), std::make_pair(3L, 5L));
    EXPECT_EQ(aus(2, 2, {"  ", "", "", ""}).getrimmt(), aus(1, 1, {"  "}));

    listenZustandZuruecksetzen();
    listenZustand().dezimalen = 2;
    const SMatrix z = aus(2, 3, {"3.14159", "-0.0001", "x", "", "1,5", " 2"});
    EXPECT_EQ(z.gerundet(), aus(2, 3, {"3.14", "0.00", "x", "0.00", "1,5", "2.00"}));
    listenZustandZuruecksetzen();
}

} // namespace
} // namespace tabulon
