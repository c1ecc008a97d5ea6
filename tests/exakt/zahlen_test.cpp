#include <cmath>
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "exakt/bruch.h"
#include "exakt/seite.h"
#include "zufallsmatrix.h"

using namespace tabulon;

struct Lesefall {
    const char* text;
    const char* wert; // the reduced fraction; nullptr: refused
};

class Lesen : public ::testing::TestWithParam<Lesefall> {};

TEST_P(Lesen, LiestExaktOderLehntAb) {
    const auto& f = GetParam();
    auto b = liesBruch(f.text);
    if (f.wert == nullptr) {
        EXPECT_FALSE(b.has_value()) << bruchText(*b);
    } else {
        ASSERT_TRUE(b.has_value());
        EXPECT_EQ(bruchText(*b), f.wert);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Eintraege, Lesen,
    ::testing::Values(Lesefall{"", "0"}, Lesefall{"   ", "0"}, Lesefall{"7", "7"},
                      Lesefall{"-0", "0"}, Lesefall{"+3", "3"}, Lesefall{"0.1", "1/10"},
                      Lesefall{"-.5", "-1/2"}, Lesefall{"2.", "2"}, Lesefall{"1e-3", "1/1000"},
                      Lesefall{"1.5E2", "150"}, Lesefall{"2.50e+1", "25"}, Lesefall{"1/2", "1/2"},
                      Lesefall{"-3/4", "-3/4"}, Lesefall{"6/-4", "-3/2"}, Lesefall{"1.5/2", "3/4"},
                      Lesefall{"0.2/0.3", "2/3"}, Lesefall{"1e2/3e1", "10/3"},
                      Lesefall{"  12", "12"}, Lesefall{"1,5", nullptr}, Lesefall{"abc", nullptr},
                      Lesefall{"inf", nullptr}, Lesefall{"nan", nullptr}, Lesefall{"1/0", nullptr},
                      Lesefall{"1/0.0", nullptr}, Lesefall{"1/", nullptr}, Lesefall{"/2", nullptr},
                      Lesefall{"1/2/3", nullptr}, Lesefall{"5 ", nullptr}, Lesefall{"1e", nullptr},
                      Lesefall{"e5", nullptr}, Lesefall{".", nullptr}, Lesefall{"-", nullptr},
                      Lesefall{"0x10", nullptr}, Lesefall{"1e99999999999", nullptr},
                      Lesefall{"2 3", nullptr}));

TEST(Zahlen, NaechsterDoubleRundetWieDieDivision) {
    // Small numerators and denominators: IEEE division is correctly rounded, so it is the
    // reference; large ones: strtod of the exact decimal text.
    exakttest::Zufall z{17};
    for (int i = 0; i < 2000; ++i) {
        long p = z.ganz(-1000000, 1000000), q = z.ganz(1, 999999);
        Bruch b(p, q);
        b.canonicalize();
        EXPECT_EQ(naechsterDouble(b), static_cast<double>(p) / static_cast<double>(q))
            << p << "/" << q;
    }
    for (const char* text : {"0.1", "123456789012345678901234567890.5", "1e-300", "-2.5e300",
                             "0.30000000000000004", "9007199254740993", "1e-20"}) {
        EXPECT_EQ(naechsterDouble(*liesBruch(text)), std::strtod(text, nullptr)) << text;
    }
    EXPECT_EQ(naechsterDouble(Bruch(0)), 0.0);
}

TEST(Zahlen, MatrixLesenNenntDenFalschenEintrag) {
    SMatrix s(2, 2);
    s(0, 0) = "1";
    s(1, 1) = "2/4";
    BLesung gut = liesBMatrix("A", s);
    ASSERT_TRUE(gut.ok);
    EXPECT_EQ(gut.matrix(1, 1), Bruch(1, 2));
    EXPECT_EQ(gut.matrix(0, 1), 0);

    s(1, 0) = "1,5";
    BLesung komma = liesBMatrix("A", s);
    EXPECT_FALSE(komma.ok);
    EXPECT_EQ(komma.notiz, "Der Eintrag \"1,5\" in Zeile 2, Spalte 1 von A ist keine Zahl und kein "
                           "Bruch. Dezimalzahlen werden mit Punkt geschrieben: \"1.5\" statt "
                           "\"1,5\".");
    s(1, 0) = "abc";
    EXPECT_EQ(liesBMatrix("B", s).notiz,
              "Der Eintrag \"abc\" in Zeile 2, Spalte 1 von B ist keine Zahl und kein Bruch.");
    EXPECT_FALSE(liesBMatrix("C", SMatrix()).ok);
}

TEST(Seite, TexEinerZeileUndEinerMatrixOhneBalken) {
    Seite s;
    s.zeile(Zeile("x = ") << Bruch(-2, 4) << ", v = " << BVektor{1, Bruch(1, 2)});
    EXPECT_EQ(s.text(), "x = -1/2, v = (1, 1/2)\n");
    EXPECT_NE(s.tex().find("x = \\ensuremath{-\\frac{1}{2}}, v = (\\ensuremath{1}, "
                           "\\ensuremath{\\frac{1}{2}})"),
              std::string::npos)
        << s.tex();
    Seite ohne;
    ohne.matrix(BMatrix::einheit(2));
    EXPECT_NE(ohne.tex().find("{cc}"), std::string::npos);
}

TEST(Seite, TexSetztSymboleUndSonderzeichen) {
    EXPECT_EQ(texText("Z2 ← Z2 − 3·Z1"),
              "Z2 \\ensuremath{\\leftarrow} Z2 \\ensuremath{-} 3\\ensuremath{\\cdot}Z1");
    EXPECT_EQ(texText("Z1 ↔ Z2, A⁻¹"),
              "Z1 \\ensuremath{\\leftrightarrow} Z2, A\\ensuremath{^{-1}}");
    EXPECT_EQ(texText("1/2 + 1/2·√5 ≈ x^2"),
              "1/2 + 1/2\\ensuremath{\\cdot}\\ensuremath{\\sqrt{5}} \\ensuremath{\\approx} "
              "x\\ensuremath{^{2}}");
    EXPECT_EQ(texText("Gauß-Jordan, 1-mal, x^2 - 2, -√2 (-1)"),
              "Gauß-Jordan, 1-mal, x\\ensuremath{^{2}} \\ensuremath{-} 2, "
              "\\ensuremath{-}\\ensuremath{\\sqrt{2}} (\\ensuremath{-}1)");
    EXPECT_EQ(texText("50% & $a_b {c} #1 ~ \\"),
              "50\\% \\& \\$a\\_b \\{c\\} \\#1 \\textasciitilde{} \\textbackslash{}");
    std::string dok = texDokument(Seite().zeile("Größe λ"));
    EXPECT_EQ(dok.rfind("\\documentclass{article}\n", 0), 0u);
    EXPECT_NE(dok.find("\\usepackage{amsmath}"), std::string::npos);
    EXPECT_NE(dok.find("Größe \\ensuremath{\\lambda}\n"), std::string::npos);
    EXPECT_TRUE(dok.ends_with("\\end{document}\n"));
}
