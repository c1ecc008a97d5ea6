#include "terms/parser.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tabulon {
namespace {

struct Zerlegung {
    const char* text;
    Zeichenfeld tokens;
};

class Tokenizer : public ::testing::TestWithParam<Zerlegung> {};

TEST_P(Tokenizer, GibtEinTokenJeZeichen) {
    EXPECT_EQ(string2ZeichenFeld(GetParam().text), GetParam().tokens) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    Terme, Tokenizer,
    ::testing::Values(
        Zerlegung{"", {}}, Zerlegung{"   ", {}}, Zerlegung{"A - b", {"A", "m", "B"}},
        Zerlegung{"a^-1", {"A", "^", "m", "1"}}, Zerlegung{"r*a", {"r", "*", "A"}},
        Zerlegung{"R*A", {"R", "*", "A"}}, Zerlegung{"m", {"M"}},
        Zerlegung{"2.5*A", {"2", ".", "5", "*", "A"}}, Zerlegung{"A\t+B", {"A", "\t", "+", "B"}},
        // Full case mapping: one character stays one token, whatever its upper-case length.
        Zerlegung{"ß", {"SS"}}, Zerlegung{"äöü", {"Ä", "Ö", "Ü"}}, Zerlegung{"ÿ", {"Ÿ"}},
        Zerlegung{"ı+ſ", {"I", "+", "S"}}, Zerlegung{"\uFB01", {"FI"}},
        Zerlegung{"ĳœž", {"Ĳ", "Œ", "Ž"}}, Zerlegung{"ĺạ", {"Ĺ", "Ạ"}},
        Zerlegung{"\u00B5", {"\u039C"}}, Zerlegung{"αβςω", {"Α", "Β", "Σ", "Ω"}},
        Zerlegung{"\u03AC\u0390", {"\u0386", "\u0399\u0308\u0301"}},
        Zerlegung{"жёя", {"Ж", "Ё", "Я"}}, Zerlegung{"\u0463\u04C2", {"\u0462", "\u04C1"}},
        // A letter with a combining mark is one character, and r with a mark is no scalar.
        Zerlegung{"a\u0301+B", {"A\u0301", "+", "B"}}, Zerlegung{"r\u0308", {"R\u0308"}},
        Zerlegung{"\r\n", {"\r\n"}}, Zerlegung{"A \u0301", {"A", " \u0301"}},
        // Malformed UTF-8: each stray byte is a token of its own, nothing is lost.
        Zerlegung{"A\xC3", {"A", "\xC3"}},
        Zerlegung{"\xFF"
                  "b",
                  {"\xFF", "B"}},
        Zerlegung{"\xC0\xAF", {"\xC0", "\xAF"}}));

// Plain ASCII takes a shorter way than the general splitting; a character outside ASCII at the
// end sends the same text the general way, and both must agree on every byte and on "\r\n".
TEST(Tokenizer, AsciiWieAllgemein) {
    std::vector<std::string> texte{"a\r\nb",   "\r",    "\n\r",    "\r\r\n",
                                   "A-r*R^-1", " x y ", "(a+b)*C", "\x7F\x01~"};
    for (int c = 1; c < 0x80; ++c) {
        texte.push_back(std::string("a") + static_cast<char>(c) + "z");
    }
    for (const auto& text : texte) {
        Zeichenfeld allgemein = string2ZeichenFeld(text + "\u00E9");
        ASSERT_FALSE(allgemein.empty());
        EXPECT_EQ(allgemein.back(), "\u00C9");
        allgemein.pop_back();
        EXPECT_EQ(string2ZeichenFeld(text), allgemein) << text;
    }
}

TEST(Tokenizer, OhneAbbildungBleibtDerTextWieGetippt) {
    EXPECT_EQ(string2ZeichenFeldL("a b-r%ß\u00e9"),
              (Zeichenfeld{"a", "b", "-", "r", "%", "ß", "\u00e9"}));
    EXPECT_EQ(string2ZeichenFeldL("e\u0301%"), (Zeichenfeld{"e\u0301", "%"}));
    EXPECT_TRUE(string2ZeichenFeldL("  ").empty());
}

TEST(Tokenizer, GereinigtBehaeltNurDasAlphabet) {
    EXPECT_EQ(gereinigt({"A", "'", "0", "+", "B"}), (Zeichenfeld{"A", "+", "B"}));
    EXPECT_EQ(termAlphabet().size(), 42u);
    EXPECT_EQ(mNamen().size(), 28u);
}

TEST(Tokenizer, PosVonZeichenFindetDasLetzte) {
    const Zeichenfeld feld{"A", "+", "B", "+", "C"};
    EXPECT_EQ(posVonZeichen(feld, "+"), 3);
    EXPECT_EQ(posVonZeichen(feld, "*"), -1);
    EXPECT_EQ(posVonZeichen({}, "+"), -1);
}

} // namespace
} // namespace tabulon
