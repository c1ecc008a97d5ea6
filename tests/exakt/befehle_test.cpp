// The learners' examples of the exact commands: each page must say what a teacher would check
// on paper, and the tableau and the note must match it.

#include <string>

#include <gtest/gtest.h>

#include "app/zustand.h"
#include "exakt/befehle.h"
#include "zufallsmatrix.h"

using namespace tabulon;
using exakttest::texte;

namespace {

bool enthaelt(const std::string& text, const std::string& teil) {
    return text.find(teil) != std::string::npos;
}

} // namespace

TEST(ExaktBefehle, GleichungssystemMitEindeutigerLoesung) {
    ExaktAntwort a = exaktLGS("A", texte({{"1", "2", "4"}, {"3", "-1", "-2"}}));
    ASSERT_TRUE(a.ok);
    std::string t = a.seite.text();
    EXPECT_TRUE(enthaelt(t, "   x1 + 2·x2 = 4\n   3·x1 − x2 = -2\n")) << t;
    EXPECT_TRUE(enthaelt(t, "   Z2 ← Z2 − 3·Z1\n   1   2 |   4\n   0  -7 | -14\n")) << t;
    EXPECT_TRUE(enthaelt(t, "   Z2 ← -1/7·Z2\n   Z1 ← Z1 − 2·Z2\n")) << t;
    EXPECT_TRUE(enthaelt(t, "Eindeutige Lösung: x1 = 0, x2 = 2\n")) << t;
    ASSERT_TRUE(a.tableau);
    EXPECT_EQ(a.tableau->grid, (std::vector<std::string>{"0.0", "2.0"}));
}

TEST(ExaktBefehle, GleichungssystemOhneUndMitFreienLoesungen) {
    ExaktAntwort keine = exaktLGS("C", texte({{"1", "1", "1"}, {"2", "2", "3"}, {"0", "0", "0"}}));
    ASSERT_TRUE(keine.ok); // an answer, not a refusal: no beep
    EXPECT_TRUE(enthaelt(keine.seite.text(), "Zeile 2 lautet 0 = 1, aber 1 ≠ 0.\n"
                                             "Das Gleichungssystem hat keine Lösung.\n"));
    EXPECT_FALSE(keine.tableau);
    EXPECT_EQ(keine.notiz, "Das Gleichungssystem C hat keine Lösung (Zeile 2 lautet 0 = 1).");

    ExaktAntwort frei = exaktLGS("D", texte({{"1", "1", "1", "3"}, {"0", "1", "2", "1"}}));
    ASSERT_TRUE(frei.ok);
    std::string t = frei.seite.text();
    EXPECT_TRUE(enthaelt(t, "Spalte 3: jede Zeile hat schon ein Pivot; die Spalte gehört zu "
                            "einer freien Variablen.\n"))
        << t;
    EXPECT_TRUE(enthaelt(t, "   x3 = t (frei wählbar)\n   x1 = 2 + t\n   x2 = 1 − 2·t\n")) << t;
    EXPECT_TRUE(enthaelt(t, "Lösungsmenge: x = (2, 1, 0) + t·(1, -2, 1)\n")) << t;
    ASSERT_TRUE(frei.tableau);
    EXPECT_EQ(frei.tableau->grid,
              (std::vector<std::string>{"2.0", "1.0", "1.0", "-2.0", "0.0", "1.0"}));

    ExaktAntwort zwei = exaktLGS("H", texte({{"0", "1", "0", "1", "5"}}));
    std::string z = zwei.seite.text();
    EXPECT_TRUE(enthaelt(z, "   x1 = t1 (frei wählbar)\n   x3 = t2 (frei wählbar)\n"
                            "   x4 = t3 (frei wählbar)\n   x2 = 5 − t3\n"))
        << z;
    EXPECT_EQ(zwei.tableau->columns, 4);
    EXPECT_FALSE(exaktLGS("S", texte({{"1"}, {"2"}})).ok);
}

TEST(ExaktBefehle, KernAuchWennPivotsNichtAufDerDiagonalenStehen) {
    ExaktAntwort a = exaktKern("K", texte({{"1", "0", "2", "0"}, {"0", "0", "0", "1"}}));
    ASSERT_TRUE(a.ok);
    std::string t = a.seite.text();
    EXPECT_TRUE(enthaelt(t, "Pivotspalten: 1, 4\nRang 2 + Defekt 2 = 4 Spalten\n")) << t;
    EXPECT_TRUE(enthaelt(t, "   s1 = (1, 0)\n   s4 = (0, 1)\n")) << t;
    EXPECT_TRUE(enthaelt(t, "   v1 = (0, 1, 0, 0)\n   K·v1 = (0, 0)\n"
                            "   v2 = (-2, 0, 1, 0)\n   K·v2 = (0, 0)\n"))
        << t;
    ASSERT_TRUE(a.tableau);
    EXPECT_EQ(a.tableau->grid,
              (std::vector<std::string>{"0.0", "-2.0", "1.0", "0.0", "0.0", "1.0", "0.0", "0.0"}));

    ExaktAntwort null = exaktKern("R", texte({{"1", "2"}, {"3", "4"}}));
    ASSERT_TRUE(null.ok);
    EXPECT_FALSE(null.tableau);
    EXPECT_EQ(null.notiz, "Der Kern von R enthält nur den Nullvektor; das Tableau bleibt "
                          "unverändert.");
}

TEST(ExaktBefehle, InverseMitDritteln) {
    ExaktAntwort a = exaktInverse("B", texte({{"1", "2"}, {"4", "5"}}));
    ASSERT_TRUE(a.ok);
    std::string t = a.seite.text();
    EXPECT_TRUE(enthaelt(t, "   1  2 | 1  0\n   4  5 | 0  1\n")) << t;
    EXPECT_TRUE(enthaelt(t, "   1  0 | -5/3   2/3\n   0  1 |  4/3  -1/3\n")) << t;
    EXPECT_TRUE(enthaelt(t, "Probe: B·B⁻¹ = E\n")) << t;
    ASSERT_TRUE(a.tableau);
    EXPECT_EQ(a.tableau->grid,
              (std::vector<std::string>{"-1.66666666666667", "0.666666666666667",
                                        "1.33333333333333", "-0.333333333333333"}));

    ExaktAntwort singulaer = exaktInverse("S", texte({{"1", "2"}, {"2", "4"}}));
    EXPECT_FALSE(singulaer.ok);
    EXPECT_EQ(singulaer.notiz,
              "Die Matrix S ist nicht invertierbar: ihr Rang ist 1, kleiner als 2.");
    ExaktAntwort rechteck = exaktInverse("R", texte({{"1", "2", "3"}, {"2", "4", "6"}}));
    EXPECT_FALSE(rechteck.ok);
    EXPECT_EQ(rechteck.notiz, "Die Matrix R ist nicht quadratisch (2 × 3, Rang 1) und hat daher "
                              "keine Inverse.");
}

TEST(ExaktBefehle, DeterminanteMitTauschUndBruechen) {
    ExaktAntwort a =
        exaktDeterminante("G", texte({{"0", "2", "1"}, {"1", "1", "1"}, {"2", "0.5", "1/3"}}));
    ASSERT_TRUE(a.ok);
    EXPECT_EQ(a.notiz, "det(G) = 11/6");
    std::string t = a.seite.text();
    EXPECT_TRUE(enthaelt(t, "   Z1 ↔ Z2   (Vorzeichenwechsel)\n   Z3 ← Z3 − 2·Z1\n")) << t;
    EXPECT_TRUE(enthaelt(t, "det(G) = −(1 · 2 · (-11/12)) = 11/6\n")) << t;
    EXPECT_FALSE(a.tableau);

    ExaktAntwort null =
        exaktDeterminante("N", texte({{"1", "2", "3"}, {"2", "4", "6"}, {"1", "0", "1"}}));
    EXPECT_EQ(null.notiz, "det(N) = 0");
    EXPECT_FALSE(exaktDeterminante("R", texte({{"1", "2"}})).ok);
}

TEST(ExaktBefehle, GaussZeigtRangPivotsUndReduzierteForm) {
    ExaktAntwort a = exaktGauss("M", texte({{"0", "2", "4"}, {"3", "", "3"}}));
    ASSERT_TRUE(a.ok);
    std::string t = a.seite.text();
    EXPECT_TRUE(enthaelt(t, "Spalte 1: Pivot 3 in Zeile 2 (erster Eintrag ≠ 0 ab Zeile 1):\n"
                            "   Z1 ↔ Z2\n   Z1 ← 1/3·Z1\n"))
        << t;
    EXPECT_TRUE(enthaelt(t, "Rang: 2\nPivotspalten: 1, 2\n")) << t;
    ASSERT_TRUE(a.tableau);
    EXPECT_EQ(a.tableau->grid,
              (std::vector<std::string>{"1.0", "0.0", "1.0", "0.0", "1.0", "2.0"}));
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

TEST(ExaktBefehle, TexDerLetztenSeite) {
    allesZuruecksetzen();
    EXPECT_EQ(exaktTex("A"), "");
    ExaktAntwort a = exaktLGS("A", texte({{"1", "2", "4"}, {"3", "-1", "-2"}}));
    merkeSeite("A", a.seite);
    std::string tex = exaktTex("A");
    EXPECT_TRUE(enthaelt(tex, "\\left(\\begin{array}{cc|c}\n1 & 2 & 4 \\\\\n3 & -1 & -2 \\\\\n"))
        << tex;
    EXPECT_TRUE(enthaelt(tex, "Z2 \\ensuremath{\\leftarrow} \\ensuremath{-\\frac{1}{7}}"
                              "\\ensuremath{\\cdot}Z2"))
        << tex;
    allesZuruecksetzen();
    EXPECT_EQ(exaktTex("A"), "");
}
