#include "terms/parser.h"

#include <gtest/gtest.h>

namespace tabulon {
namespace {

// The verdict of the checks that parsen runs before evaluation.
enum class Urteil { korrekt, syntaxfehler, klammerfehler };

Urteil urteil(const char* term) {
    const Zeichenfeld feld = string2ZeichenFeld(term);
    if (!formelKorrekt(feld)) {
        return Urteil::syntaxfehler;
    }
    return klammernAusgewogen(gereinigt(feld)) ? Urteil::korrekt : Urteil::klammerfehler;
}

struct Fall {
    const char* term;
    Urteil erwartet;
};

class Syntax : public ::testing::TestWithParam<Fall> {};

TEST_P(Syntax, PrueftNachfolgerRaenderUndKlammern) {
    EXPECT_EQ(urteil(GetParam().term), GetParam().erwartet) << GetParam().term;
}

INSTANTIATE_TEST_SUITE_P(
    Angenommen, Syntax,
    ::testing::Values(Fall{"A+B", Urteil::korrekt}, Fall{"A*B", Urteil::korrekt},
                      Fall{"(A-B)^3*B", Urteil::korrekt}, Fall{"A^-1*B", Urteil::korrekt},
                      Fall{"r*A-B", Urteil::korrekt}, Fall{"A", Urteil::korrekt},
                      Fall{"r", Urteil::korrekt}, Fall{"((A+B)*C)", Urteil::korrekt},
                      Fall{"(A+B)*(C+D)", Urteil::korrekt}, Fall{"A*r*B", Urteil::korrekt},
                      Fall{"(r*A)^2", Urteil::korrekt}, Fall{"r*r*A", Urteil::korrekt},
                      Fall{"A^1^2", Urteil::korrekt}, Fall{"A^-1^2", Urteil::korrekt},
                      Fall{"A-1", Urteil::korrekt}, Fall{"A^-B", Urteil::korrekt},
                      Fall{"A^-(B)", Urteil::korrekt}, Fall{"A^9", Urteil::korrekt},
                      Fall{"A-r*B", Urteil::korrekt}, Fall{"(A^-1)*B", Urteil::korrekt}));

INSTANTIATE_TEST_SUITE_P(
    Abgelehnt, Syntax,
    ::testing::Values(Fall{"", Urteil::syntaxfehler}, Fall{"A+", Urteil::syntaxfehler},
                      Fall{"A*", Urteil::syntaxfehler}, Fall{"A^", Urteil::syntaxfehler},
                      Fall{"A-", Urteil::syntaxfehler}, Fall{"*A", Urteil::syntaxfehler},
                      Fall{"+A", Urteil::syntaxfehler}, Fall{")A", Urteil::syntaxfehler},
                      Fall{"-A", Urteil::syntaxfehler}, Fall{"(-A+B)", Urteil::syntaxfehler},
                      Fall{"AB", Urteil::syntaxfehler}, Fall{"A(B)", Urteil::syntaxfehler},
                      Fall{"(A)(B)", Urteil::syntaxfehler}, Fall{"(A)B", Urteil::syntaxfehler},
                      Fall{"(A*(B+C))", Urteil::syntaxfehler}, Fall{"((A))", Urteil::syntaxfehler},
                      Fall{"A^12", Urteil::syntaxfehler}, Fall{"A^0", Urteil::syntaxfehler},
                      Fall{"A^-2", Urteil::syntaxfehler}, Fall{"A^2^3", Urteil::syntaxfehler},
                      Fall{"rA", Urteil::syntaxfehler}, Fall{"A*r", Urteil::syntaxfehler},
                      Fall{"r+A", Urteil::syntaxfehler}, Fall{"2*A", Urteil::syntaxfehler},
                      Fall{"A*2", Urteil::syntaxfehler}, Fall{"2.5*A", Urteil::syntaxfehler},
                      Fall{"A+ß", Urteil::syntaxfehler}, Fall{"Ä", Urteil::syntaxfehler},
                      Fall{"A\t+B", Urteil::syntaxfehler}, Fall{"a\u0301", Urteil::syntaxfehler},
                      Fall{"1", Urteil::syntaxfehler}, Fall{"()", Urteil::syntaxfehler}));

INSTANTIATE_TEST_SUITE_P(Unausgewogen, Syntax,
                         ::testing::Values(Fall{"(A+B", Urteil::klammerfehler},
                                           Fall{"(A", Urteil::klammerfehler},
                                           Fall{"(", Urteil::klammerfehler},
                                           Fall{"((A+B)*C", Urteil::klammerfehler}));

// Tokens outside the alphabet have no successors, and a close before its open fails.
TEST(Syntax, TabellenRandUndKlammerfolge) {
    EXPECT_TRUE(erlaubteNachfolger("0").empty());
    EXPECT_TRUE(erlaubteNachfolger("SS").empty());
    EXPECT_FALSE(klammernAusgewogen({")", "A", "("}));
}

} // namespace
} // namespace tabulon
