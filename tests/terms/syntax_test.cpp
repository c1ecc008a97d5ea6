#include "terms/parser.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tabulon {
namespace {

// The verdict of the checks that parsen runs before evaluation. Which pairs may follow each other
// is pinned row by row below; here the rules around them: the first and the last token, a single
// token, the empty term, tokens outside the alphabet, and the bracket balance.
TEST(Syntax, AnfangEndeEinzelneTokenUndKlammern) {
    enum Urteil { korrekt, syntaxfehler, klammerfehler };
    const std::vector<std::pair<const char*, Urteil>> faelle{
        {"A", korrekt},          {"r", korrekt},          {"(A-B)^3*B", korrekt},
        {"A^-1*B", korrekt},     {"A*r*B", korrekt},      {"r*r*A", korrekt},
        {"A^1^2", korrekt},      {"((A+B)*C)", korrekt},  {"A-1", korrekt},
        {"", syntaxfehler},      {"A+", syntaxfehler},    {"A^", syntaxfehler},
        {"A*r", syntaxfehler},   {"-A", syntaxfehler},    {"*A", syntaxfehler},
        {")A", syntaxfehler},    {"2*A", syntaxfehler},   {"1", syntaxfehler},
        {"AB", syntaxfehler},    {"A^12", syntaxfehler},  {"A^0", syntaxfehler},
        {"A^-2", syntaxfehler},  {"((A))", syntaxfehler}, {"()", syntaxfehler},
        {"A+ß", syntaxfehler},   {"Ä", syntaxfehler},     {"a\u0301", syntaxfehler},
        {"(A+B", klammerfehler}, {"(", klammerfehler},
    };
    for (const auto& [term, erwartet] : faelle) {
        const Zeichenfeld feld = string2ZeichenFeld(term);
        const Urteil ist = !formelKorrekt(feld)                  ? syntaxfehler
                           : klammernAusgewogen(gereinigt(feld)) ? korrekt
                                                                 : klammerfehler;
        EXPECT_EQ(ist, erwartet) << term;
    }
    EXPECT_FALSE(klammernAusgewogen({")", "A", "("}));
}

// The successor table row by row, written out from the grammar; the checks look the rows up by
// token number, so a slip in the numbering shows here as a wrong set.
TEST(Syntax, NachfolgerJeZeile) {
    const auto menge = [](std::string_view zeichen) {
        std::set<std::string> m;
        for (const char c : zeichen) {
            m.insert(std::string(1, c));
        }
        return m;
    };
    const std::string anfang = "ABCDEFGHIJKLMNOPQRSTUVWXYZr(";
    const std::pair<std::string, std::string> zeilen[] = {
        {"+", anfang},  {"*", anfang},  {"(", anfang},       {"^", "m123456789"},
        {"1", "+m*^)"}, {"A", "+m*^)"}, {"M", "+m*^)"},      {"Z", "+m*^)"},
        {")", "+m*^"},  {"r", "*"},     {"m", anfang + "1"}, {"2", "+m*)"},
        {"9", "+m*)"},  {"0", ""},      {"SS", ""},          {"", ""},
        {"a", ""}};
    for (const auto& [v, erwartet] : zeilen) {
        EXPECT_EQ(erlaubteNachfolger(v), menge(erwartet)) << v;
    }
    EXPECT_EQ(mNamen(), menge(anfang));
    EXPECT_EQ(nieRechts(), menge("(*m^r+"));
}

// The tokens joined by "|".
std::string tokens(std::string_view text) {
    std::string verbunden;
    for (const auto& token : string2ZeichenFeld(text)) {
        verbunden += (verbunden.empty() ? "" : "|") + token;
    }
    return verbunden;
}

TEST(Tokenizer, EinTokenJeZeichen) {
    const std::pair<std::string_view, const char*> faelle[] = {
        {"", ""},
        {"   ", ""},
        {"A - b", "A|m|B"},
        {"r*aR", "r|*|A|R"},
        {"m", "M"},
        {"2.5*A", "2|.|5|*|A"},
        {"A\t+B", "A|\t|+|B"},
        {"ı+ſ", "I|+|S"},
        // Full case mapping: one character stays one token, whatever its upper-case length.
        {"ßäöüÿ\u00B5ĳœžĺạαβςω\u03AC\u0390жёя\u0463\u04C2\uFB01",
         "SS|Ä|Ö|Ü|Ÿ|\u039C|Ĳ|Œ|Ž|Ĺ|Ạ|Α|Β|Σ|Ω|\u0386|\u0399\u0308\u0301|Ж|Ё|Я|\u0462|\u04C1|FI"},
        // A letter with a combining mark is one character, and r with a mark is no scalar.
        {"a\u0301+B", "A\u0301|+|B"},
        {"r\u0308", "R\u0308"},
        {"\r\n", "\r\n"},
        {"A \u0301", "A| \u0301"},
        // Malformed UTF-8: each stray byte is a token of its own, nothing is lost.
        {"A\xC3", "A|\xC3"},
        {"\xFF"
         "b",
         "\xFF|B"},
        {"\xC0\xAF", "\xC0|\xAF"},
    };
    for (const auto& [text, erwartet] : faelle) {
        EXPECT_EQ(tokens(text), erwartet) << text;
    }
}

// Plain ASCII takes a shorter way than the general splitting; a character outside ASCII at the
// end sends the same text the general way, and both must agree on every byte and on "\r\n".
TEST(Tokenizer, AsciiWieAllgemein) {
    std::vector<std::string> texte{"a\r\nb", "\r", "\n\r", "\r\r\n", "A-r*R^-1", " x y "};
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

TEST(Tokenizer, OhneAbbildungUndGereinigt) {
    EXPECT_EQ(string2ZeichenFeldL("a b-r%ß\u00e9"),
              (Zeichenfeld{"a", "b", "-", "r", "%", "ß", "\u00e9"}));
    EXPECT_EQ(string2ZeichenFeldL("e\u0301%"), (Zeichenfeld{"e\u0301", "%"}));
    EXPECT_EQ(gereinigt({"A", "'", "0", "+", "SS", "B"}), (Zeichenfeld{"A", "+", "B"}));
}

} // namespace
} // namespace tabulon
