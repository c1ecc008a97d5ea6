#include "terms/parser.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

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

// The successor table row by row, written out from the grammar; the checks look the rows up by
// token number, so a slip in the numbering shows here as a wrong set.
TEST(Syntax, NachfolgerJeZeile) {
    std::set<std::string> namen;
    for (char c = 'A'; c <= 'Z'; ++c) {
        namen.insert(std::string(1, c));
    }
    auto mitNamen = [&namen](std::set<std::string> weitere) {
        weitere.insert(namen.begin(), namen.end());
        return weitere;
    };
    const std::set<std::string> anfang = mitNamen({"r", "("});
    const std::set<std::string> nachOperand{"+", "m", "*", "^", ")"};
    const std::set<std::string> nachZiffer{"+", "m", "*", ")"};
    const std::vector<std::pair<std::string, std::set<std::string>>> zeilen{
        {"+", anfang},
        {"*", anfang},
        {"(", anfang},
        {"^", {"m", "1", "2", "3", "4", "5", "6", "7", "8", "9"}},
        {"1", nachOperand},
        {"A", nachOperand},
        {"Q", nachOperand},
        {"Z", nachOperand},
        {")", {"+", "m", "*", "^"}},
        {"r", {"*"}},
        {"m", mitNamen({"1", "r", "("})},
        {"2", nachZiffer},
        {"9", nachZiffer},
        {"0", {}},
        {"SS", {}},
        {"R\u0308", {}},
        {"", {}},
        {"a", {}},
        {"M", nachOperand},
    };
    for (const auto& [v, erwartet] : zeilen) {
        EXPECT_EQ(erlaubteNachfolger(v), erwartet) << v;
        // darfFolgen answers the same for every token of the alphabet and for strangers.
        std::vector<std::string> kandidaten(termAlphabet().begin(), termAlphabet().end());
        kandidaten.insert(kandidaten.end(), {"0", "", "SS", "-", "M1", "\t"});
        for (const auto& w : kandidaten) {
            EXPECT_EQ(darfFolgen(v, w), erwartet.contains(w)) << v << " " << w;
        }
    }
    EXPECT_EQ(mNamen(), anfang);
    EXPECT_EQ(nieRechts(), (std::set<std::string>{"(", "*", "m", "^", "r", "+"}));
    EXPECT_FALSE(klammernAusgewogen({")", "A", "("}));
}

} // namespace
} // namespace tabulon
