// The typed row operations: every accepted spelling reads as the operation meant, and every
// refusal says why, with the position of a syntax error.

#include "uebung/zeilenparser.h"

#include <gtest/gtest.h>

#include <random>

namespace tabulon {
namespace {

using Art = Zeilenoperation::Art;

struct Gelesen {
    const char* text;
    Zeilenoperation erwartet; // rows from 0
};

class Angenommen : public ::testing::TestWithParam<Gelesen> {};

TEST_P(Angenommen, ReadsTheOperationMeant) {
    const auto& [text, erwartet] = GetParam();
    const UmformungLesung l = liesUmformung(text, 8);
    ASSERT_TRUE(l.ok) << text << ": " << l.fehler;
    EXPECT_EQ(l.operation, erwartet) << text;
}

INSTANTIATE_TEST_SUITE_P(
    Schreibweisen, Angenommen,
    ::testing::Values(Gelesen{"Z2 - 3 Z1", {Art::addieren, 1, 0, Bruch(-3)}},
                      Gelesen{"z2-3z1", {Art::addieren, 1, 0, Bruch(-3)}},
                      Gelesen{"Z2 - 3*Z1", {Art::addieren, 1, 0, Bruch(-3)}},

                      Gelesen{"Z2 + Z3 * 0.5", {Art::addieren, 1, 2, Bruch(1, 2)}},
                      Gelesen{"Z2 + Z3 : 4", {Art::addieren, 1, 2, Bruch(1, 4)}},
                      Gelesen{"II - 3 I", {Art::addieren, 1, 0, Bruch(-3)}},
                      Gelesen{"viii+vii", {Art::addieren, 7, 6, Bruch(1)}},
                      Gelesen{"IV - 1e-3 VI", {Art::addieren, 3, 5, Bruch(-1, 1000)}},

                      Gelesen{"Z2 = -3 Z1 + Z2", {Art::addieren, 1, 0, Bruch(-3)}},
                      Gelesen{"Z2 ← Z2 − 3·Z1", {Art::addieren, 1, 0, Bruch(-3)}},
                      Gelesen{"Z1 <-> Z2", {Art::tausch, 0, 1, Bruch(0)}},
                      Gelesen{"Z1↔Z2", {Art::tausch, 0, 1, Bruch(0)}},
                      Gelesen{"III <-> i", {Art::tausch, 2, 0, Bruch(0)}},
                      Gelesen{"2 Z3", {Art::skalieren, 2, 2, Bruch(2)}},

                      Gelesen{"Z3 * 2", {Art::skalieren, 2, 2, Bruch(2)}},
                      Gelesen{"Z3 : 2", {Art::skalieren, 2, 2, Bruch(1, 2)}},
                      Gelesen{"1/2 Z3", {Art::skalieren, 2, 2, Bruch(1, 2)}},
                      Gelesen{"1.5/2 Z3", {Art::skalieren, 2, 2, Bruch(3, 4)}},
                      Gelesen{"-Z1", {Art::skalieren, 0, 0, Bruch(-1)}},
                      Gelesen{"Z3 : -2", {Art::skalieren, 2, 2, Bruch(-1, 2)}},
                      Gelesen{"Z3 * 1/-2", {Art::skalieren, 2, 2, Bruch(-1, 2)}},

                      Gelesen{"Z2 - -3 Z1", {Art::addieren, 1, 0, Bruch(3)}},
                      Gelesen{"Z3 = 2 Z3", {Art::skalieren, 2, 2, Bruch(2)}},
                      Gelesen{"Z2 ← -1/7·Z2", {Art::skalieren, 1, 1, Bruch(-1, 7)}}));

struct Abgelehnt {
    const char* text;
    std::size_t zeilen;
    std::string meldung;
};

class Abgelehnte : public ::testing::TestWithParam<Abgelehnt> {};

TEST_P(Abgelehnte, SaysWhy) {
    const auto& [text, zeilen, meldung] = GetParam();
    const UmformungLesung l = liesUmformung(text, zeilen);
    EXPECT_FALSE(l.ok) << text;
    EXPECT_EQ(l.fehler, meldung) << text;
}

constexpr const char* zeileErwartet =
    "erwartet wird eine Zeile (Z1 … Z8 oder I … VIII), aber die Eingabe endet hier.";
constexpr const char* selbstAddiert =
    "Ein Vielfaches der Zeile Z2 zu ihr selbst zu addieren ist keine Zeilenumformung dieser "
    "Art; zum Multiplizieren bitte „Z2 * Zahl“ schreiben.";
constexpr const char* mitNull = "Eine Zeile mit 0 zu multiplizieren ist keine Äquivalenzumformung.";

INSTANTIATE_TEST_SUITE_P(
    Fehler, Abgelehnte,
    ::testing::Values(
        Abgelehnt{"", 3,
                  "Bitte eine Zeilenumformung eingeben, zum Beispiel „Z2 - 3 Z1“, „Z1 <-> Z2“ "
                  "oder „1/2 Z3“."},
        Abgelehnt{"Z2 - x Z1", 3, "Stelle 6: das Zeichen „x“ gehört zu keiner Zeilenumformung."},
        Abgelehnt{"Z2 − ä", 3, "Stelle 6: das Zeichen „ä“ gehört zu keiner Zeilenumformung."},
        Abgelehnt{"Z2 - 3", 3, std::string("Stelle 7: ") + zeileErwartet},
        Abgelehnt{"Z2 -", 3, std::string("Stelle 5: ") + zeileErwartet},
        Abgelehnt{"Z2 Z1", 3,
                  "Stelle 4: erwartet wird „+“, „-“ oder das Ende der Eingabe, nicht „Z1“."},
        Abgelehnt{"Z - Z1", 3, "Stelle 1: nach „Z“ fehlt die Nummer der Zeile (Z1 … Z8)."},
        Abgelehnt{"IIII + I", 4,
                  "Stelle 1: „IIII“ ist keine Zeilennummer (I, II, III, IV, V, VI, VII, VIII)."},
        Abgelehnt{"Z1 + 1.2.3 Z2", 3, "Stelle 6: „1.2.3“ ist keine Zahl."},
        Abgelehnt{"Z1 <-> ", 3, std::string("Stelle 8: ") + zeileErwartet},
        Abgelehnt{"Z3 : 0", 3, "Stelle 6: durch 0 kann man nicht teilen."},
        Abgelehnt{"Z3 : - Z1", 3, "Stelle 6: erwartet wird eine Zahl, nicht „-“."},
        Abgelehnt{"Z2 - - Z1", 3,
                  "Stelle 6: erwartet wird eine Zeile (Z1 … Z8 oder I … VIII), nicht „-“."},
        Abgelehnt{"Z4 - 2 Z1", 3, "Stelle 1: die Zeile 4 gibt es nicht; die Matrix hat 3 Zeilen."},
        Abgelehnt{"Z1 <-> V", 1,
                  "Stelle 8: die Zeile 5 gibt es nicht; die Matrix hat nur eine Zeile."},
        Abgelehnt{"Z1 + Z123", 8, "Stelle 6: die Zeile 99 gibt es nicht; die Matrix hat 8 Zeilen."},
        Abgelehnt{"Z0 <-> Z1", 2, "Stelle 1: die Zeile 0 gibt es nicht; die Matrix hat 2 Zeilen."},
        Abgelehnt{"0 Z2", 3, mitNull}, Abgelehnt{"Z2 * 0.0", 3, mitNull},
        Abgelehnt{"Z2 = Z2 + 0 Z1", 3, "Das 0-Fache einer Zeile zu addieren ändert nichts."},
        Abgelehnt{"1 Z2", 3, "Die Zeile Z2 mit 1 zu multiplizieren ändert nichts."},
        Abgelehnt{"Z2 + 3 Z2", 3, selbstAddiert}, Abgelehnt{"II - II", 3, selbstAddiert},
        Abgelehnt{"Z2 <-> Z2", 3, "Die Zeile Z2 mit sich selbst zu tauschen ändert nichts."},
        Abgelehnt{"3 Z2 - Z1", 3,
                  "Die Zeile Z2, die ersetzt wird, muss den Faktor 1 haben; Multiplizieren und "
                  "Addieren sind zwei Schritte."},
        Abgelehnt{"Z1 = Z2 + Z3", 3,
                  "Die Zeile Z1, die ersetzt wird, muss rechts selbst vorkommen."},
        Abgelehnt{"Z1 = 2 Z3", 3,
                  "Eine Zeile durch das Vielfache einer anderen zu ersetzen ist keine "
                  "Äquivalenzumformung; Z1 muss rechts selbst vorkommen."},
        Abgelehnt{"Z1 + Z2 + Z3", 3,
                  "Eine elementare Zeilenumformung addiert das Vielfache genau einer anderen "
                  "Zeile; bitte in einzelne Schritte zerlegen."}));

// Any text, however broken (cut UTF-8, long digit runs, stray signs), gives an operation on rows
// that exist or a message, never a crash.
TEST(Zeilenparser, AnyTextGivesAnOperationOrAReason) {
    const std::vector<std::string> stuecke = {
        "Z", "z", "1", "9", "0", "I",    "V",    "v",   "i",      " ",
        "-", "+", "*", ":", "=", "/",    ".",    "e",   "<->",    "<",
        ">", "↔", "←", "−", "·", "\xE2", "\x86", "1/0", "1e9999", "99999999999999999999"};
    std::mt19937 zufall(18);
    for (int runde = 0; runde < 20000; ++runde) {
        std::string text;
        const int laenge = static_cast<int>(zufall() % 9);
        for (int i = 0; i < laenge; ++i)
            text += stuecke[zufall() % stuecke.size()];
        const std::size_t zeilen = 1 + zufall() % 8;
        const UmformungLesung l = liesUmformung(text, zeilen);
        if (l.ok) {
            EXPECT_LT(l.operation.ziel, zeilen) << text;
            EXPECT_LT(l.operation.quelle, zeilen) << text;
            EXPECT_TRUE(l.fehler.empty()) << text;
        } else {
            EXPECT_FALSE(l.fehler.empty()) << text;
        }
    }
}

} // namespace
} // namespace tabulon
