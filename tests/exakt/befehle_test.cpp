// The exact commands in cases the transcripts do not reach: several free variables and a wrong
// entry refused alike by every command.

#include <string>

#include <gtest/gtest.h>

#include "app/zustand.h"
#include "exakt/befehle.h"
#include "zufallsmatrix.h"

using namespace tabulon;
using exakttest::texte;

TEST(ExaktBefehle, FreieVariablenUndRandfaelle) {
    ExaktAntwort frei = exaktLGS("D", texte({{"1", "1", "1", "3"}, {"0", "1", "2", "1"}}));
    ASSERT_TRUE(frei.ok);
    std::string t = frei.seite.text();
    EXPECT_NE(t.find("   x3 = t (frei wählbar)\n   x1 = 2 + t\n   x2 = 1 − 2·t\n"), t.npos) << t;
    EXPECT_NE(t.find("Lösungsmenge: x = (2, 1, 0) + t·(1, -2, 1)\n"), t.npos) << t;
    ASSERT_TRUE(frei.tableau);
    EXPECT_EQ(frei.tableau->grid,
              (std::vector<std::string>{"2.0", "1.0", "1.0", "-2.0", "0.0", "1.0"}));

    ExaktAntwort zwei = exaktLGS("H", texte({{"0", "1", "0", "1", "5"}}));
    std::string z = zwei.seite.text();
    EXPECT_NE(z.find("   x1 = t1 (frei wählbar)\n   x3 = t2 (frei wählbar)\n"
                     "   x4 = t3 (frei wählbar)\n   x2 = 5 − t3\n"),
              z.npos)
        << z;
    ASSERT_TRUE(zwei.tableau);
    EXPECT_EQ(zwei.tableau->columns, 4);
    EXPECT_FALSE(exaktLGS("S", texte({{"1"}, {"2"}})).ok);
}

TEST(ExaktBefehle, FalscherEintragLehntJedenBefehlAb) {
    SMatrix m = texte({{"1,5", "1"}, {"3", "-1"}});
    for (auto befehl :
         {exaktGauss, exaktLGS, exaktKern, exaktInverse, exaktDeterminante, exaktEigen}) {
        ExaktAntwort a = befehl("F", m);
        EXPECT_FALSE(a.ok);
        EXPECT_TRUE(a.seite.istLeer());
        EXPECT_FALSE(a.tableau);
        EXPECT_EQ(a.notiz, "Der Eintrag \"1,5\" in Zeile 1, Spalte 1 von F ist keine Zahl und "
                           "kein Bruch. Dezimalzahlen werden mit Punkt geschrieben: \"1.5\" statt "
                           "\"1,5\".");
    }
}
