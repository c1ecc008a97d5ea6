#include "terms/parser.h"
#include "textmatrix/liste.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <initializer_list>

namespace tabulon {
namespace {

using Zeilen = std::initializer_list<std::initializer_list<const char*>>;

SMatrix sm(Zeilen zeilen) {
    SMatrix m(static_cast<std::int64_t>(zeilen.size()),
              static_cast<std::int64_t>(zeilen.begin()->size()));
    std::int64_t i = 0;
    for (const auto& zeile : zeilen) {
        std::int64_t j = 0;
        for (const char* eintrag : zeile) {
            m(i, j++) = eintrag;
        }
        ++i;
    }
    return m;
}

void lege(const std::string& name, const SMatrix& m) {
    listenZustand().sMatrixListe[name] = m;
    listenZustand().smNamen.erase(name);
}

Matrix wert(const std::string& name) {
    return matrix(listenZustand().sMatrixListe.at(name));
}

// Bitwise equality, so that -0.0 and 0.0 or a different rounding are told apart.
void erwarteBitgleich(const Matrix& ist, const Matrix& soll) {
    ASSERT_EQ(ist.rows, soll.rows);
    ASSERT_EQ(ist.columns, soll.columns);
    for (std::size_t k = 0; k < ist.grid.size(); ++k) {
        EXPECT_EQ(std::bit_cast<std::uint64_t>(ist.grid[k]),
                  std::bit_cast<std::uint64_t>(soll.grid[k]))
            << "entry " << k << ": " << ist.grid[k] << " vs " << soll.grid[k];
    }
}

class Auswertung : public ::testing::Test {
protected:
    void SetUp() override {
        listenZustandZuruecksetzen();
        termZustandZuruecksetzen();
    }
    void TearDown() override {
        listenZustandZuruecksetzen();
        termZustandZuruecksetzen();
    }
    static const std::set<std::string>& temp() { return termZustand().tempNamen; }
};

TEST_F(Auswertung, DifferenzWirdZurSummeDerNegation) {
    lege("A", sm({{"1", "2"}, {"3", "4"}}));
    lege("B", sm({{"0", "1"}, {"1", "0"}}));
    lege("C", sm({{"2", "0"}, {"0", "5"}}));
    EXPECT_EQ(parsen("A-B*C"), (NamenErgebnis{"F", true}));
    EXPECT_EQ(temp(), (std::set<std::string>{"D", "E", "F"}));
    erwarteBitgleich(wert("D"), wert("B") * wert("C"));
    erwarteBitgleich(wert("E"), wert("D").gegenMatrix());
    erwarteBitgleich(wert("F"), wert("A") + wert("E"));
    EXPECT_FALSE(listenZustand().smNamen.contains("F"));
    EXPECT_TRUE(listenZustand().smNamen.contains("G"));
}

// Chains associate to the right: each step's temporary shows which operands it joined.
TEST_F(Auswertung, KettenWerdenVonRechtsAufgeloest) {
    lege("A", sm({{"10"}}));
    lege("B", sm({{"1"}}));
    lege("C", sm({{"2"}}));
    auto [name, ok] = parsen("A-B-C");
    ASSERT_TRUE(ok);
    EXPECT_EQ(name, "G");
    EXPECT_EQ(wert("D")(0, 0), -2.0); // -C
    EXPECT_EQ(wert("E")(0, 0), -1.0); // -B
    EXPECT_EQ(wert("F")(0, 0), -3.0); // (-B) + (-C)
    EXPECT_EQ(wert("G")(0, 0), 7.0);

    // (A*B)*C would overflow to infinity.
    termZustandZuruecksetzen();
    listenZustandZuruecksetzen();
    lege("A", sm({{"1e308"}}));
    lege("B", sm({{"10"}}));
    lege("C", sm({{"0.1"}}));
    std::tie(name, ok) = parsen("A*B*C");
    ASSERT_TRUE(ok);
    EXPECT_EQ(wert("D")(0, 0), 1.0); // B * C first
    EXPECT_EQ(wert(name)(0, 0), 1e308);
}

TEST_F(Auswertung, PotenzenVorProduktenUndKerneVonRechts) {
    lege("A", sm({{"2"}}));
    lege("B", sm({{"3"}}));
    lege("C", sm({{"5"}}));
    lege("D", sm({{"7"}}));
    EXPECT_EQ(parsen("A^2*B^3"), (NamenErgebnis{"G", true}));
    EXPECT_EQ(wert("E")(0, 0), 27.0); // B^3 first
    EXPECT_EQ(wert("F")(0, 0), 4.0);
    EXPECT_EQ(wert("G")(0, 0), 108.0);

    termZustandZuruecksetzen();
    for (const char* n : {"E", "F", "G"}) {
        listenZustand().sMatrixListe.erase(n);
        listenZustand().smNamen.insert(n);
    }
    EXPECT_EQ(parsen("(A+B)*(C+D)"), (NamenErgebnis{"G", true}));
    EXPECT_EQ(wert("E")(0, 0), 12.0); // C + D first
    EXPECT_EQ(wert("G")(0, 0), 60.0);
}

TEST_F(Auswertung, SkalarUndEinzelneNamen) {
    lege("A", sm({{"1", "2"}, {"3", "4"}}));
    lege("B", sm({{"0", "1"}, {"1", "1"}}));
    termZustand().r = 2;
    EXPECT_EQ(parsen("r*A"), (NamenErgebnis{"C", true}));
    erwarteBitgleich(wert("C"), 2.0 * wert("A"));
    termZustandZuruecksetzen();
    termZustand().r = 0.5;
    EXPECT_TRUE(parsen("A*r*B").second);
    erwarteBitgleich(wert("D"), 0.5 * wert("B"));
    erwarteBitgleich(wert("E"), wert("A") * wert("D"));
    EXPECT_TRUE(parsen("r*r*A").second);
    erwarteBitgleich(wert("G"), 0.5 * wert("F"));

    termZustandZuruecksetzen();
    EXPECT_EQ(parsen("a"), (NamenErgebnis{"A", true}));
    EXPECT_EQ(parsen("(A)"), (NamenErgebnis{"A", true}));
    EXPECT_TRUE(temp().empty());
    EXPECT_EQ(parsen("A^1"), (NamenErgebnis{"H", true})); // a copy, as a temporary
    erwarteBitgleich(wert("H"), wert("A"));
}

struct Fehlerfall {
    const char* term;
    const char* meldungen;
};

class Fehlschlag : public Auswertung, public ::testing::WithParamInterface<Fehlerfall> {};

// Every failure gives ("Fehler", false) and exactly the listed messages.
TEST_P(Fehlschlag, LiefertFehlerUndMeldungen) {
    lege("A", sm({{"1", "2"}, {"3", "4"}}));
    lege("B", sm({{"1", "2", "3"}, {"4", "5", "6"}}));
    lege("S", sm({{"1", "2"}, {"2", "4"}}));
    lege("E", sm({{"3"}}));
    EXPECT_EQ(parsen(GetParam().term), (NamenErgebnis{"Fehler", false}));
    EXPECT_EQ(termZustand().fehlerListe, GetParam().meldungen);
}

const std::string syntax = syntaxFehler;
const std::string produkt = produktFehler;
const std::string zweiProdukte = produktFehler + produktFehler;

INSTANTIATE_TEST_SUITE_P(Ursachen, Fehlschlag,
                         ::testing::Values(Fehlerfall{"A+", syntax.c_str()},
                                           Fehlerfall{"AB", syntax.c_str()}, Fehlerfall{"(A+B", ""},
                                           Fehlerfall{"X", ""}, Fehlerfall{"A-1", ""},
                                           Fehlerfall{"r", ""}, Fehlerfall{"(X)+A", ""},
                                           Fehlerfall{"X+A+A", ""}, Fehlerfall{"X-A-A", ""},
                                           Fehlerfall{"A^-B", ""}, Fehlerfall{"A^1^2", ""},
                                           Fehlerfall{"A^-1^2", ""}, Fehlerfall{"A+B", ""},
                                           Fehlerfall{"E*B*B", produkt.c_str()},
                                           Fehlerfall{"(B*B)+(B*B)", zweiProdukte.c_str()},
                                           Fehlerfall{"B^2", quadratFehler.c_str()},
                                           Fehlerfall{"B^-1", quadratFehler.c_str()},
                                           Fehlerfall{"S^-1", regulaerFehler.c_str()},
                                           Fehlerfall{"A*(S^-1)", regulaerFehler.c_str()}));

TEST_F(Auswertung, SyntaxfehlerErsetztDenPuffer) {
    termZustand().fehlerListe = "alt";
    EXPECT_FALSE(parsen("A*").second);
    EXPECT_EQ(termZustand().fehlerListe, syntaxFehler);
    EXPECT_TRUE(temp().empty());
}

TEST_F(Auswertung, JederSchrittBrauchtEinenFreienBuchstaben) {
    for (char c = 'A'; c <= 'Y'; ++c) {
        lege(std::string(1, c), sm({{"1"}}));
    }
    EXPECT_EQ(parsen("A+B"), (NamenErgebnis{"Z", true}));
    tempNamenEntfernen();
    EXPECT_TRUE(listenZustand().smNamen.contains("Z"));
    EXPECT_EQ(parsen("A+B+C"), (NamenErgebnis{"Fehler", false}));
    EXPECT_EQ(temp(), std::set<std::string>{"Z"}); // the first step's value stays until removed
    EXPECT_EQ(einbuchten(sm({{"1"}})), (NamenErgebnis{"?", false}));
    EXPECT_FALSE(listenZustand().sMatrixListe.contains("?"));
    EXPECT_EQ(parsen("Y"), (NamenErgebnis{"Y", true}));
    tempNamenEntfernen("Z");
    EXPECT_TRUE(listenZustand().sMatrixListe.contains("Z"));
    EXPECT_TRUE(temp().empty());
}

// Whatever is typed, an evaluation followed by the clean-up leaves the list as it was. The terms
// mostly follow the successor table, so that many of them get far into the evaluation.
TEST_F(Auswertung, ZufaelligeTermeHinterlassenDieListeUnveraendert) {
    lege("A", sm({{"1", "2"}, {"3", "4"}}));
    lege("B", sm({{"0", "1"}, {"1", "0"}, {"2", "2"}}));
    lege("S", sm({{"1", "2"}, {"2", "4"}}));
    const auto vorher = listenZustand();
    const std::vector<std::string> teile{"A", "B", "S", "X", "+", "-", "*", "^",
                                         "1", "2", "r", "(", ")", " ", "ß"};
    std::uint64_t zustand = 99;
    const auto zufall = [&zustand](std::uint64_t grenze) {
        zustand = zustand * 6364136223846793005ULL + 1442695040888963407ULL;
        return (zustand >> 33) % grenze;
    };
    int gelungen = 0;
    for (int versuch = 0; versuch < 2000; ++versuch) {
        std::string term;
        std::set<std::string> erlaubt = mNamen();
        const auto laenge = 1 + zufall(12);
        for (std::uint64_t k = 0; k < laenge; ++k) {
            std::vector<std::string> auswahl;
            for (const auto& t : teile) {
                const auto token = string2ZeichenFeld(t);
                if (zufall(8) == 0 || (!token.empty() && erlaubt.contains(token.front()))) {
                    auswahl.push_back(t);
                }
            }
            if (auswahl.empty()) {
                break;
            }
            const std::string& teil = auswahl[zufall(auswahl.size())];
            term += teil;
            const auto token = string2ZeichenFeld(teil);
            if (!token.empty()) {
                erlaubt = erlaubteNachfolger(token.front());
            }
        }
        const auto [name, ok] = parsen(term);
        EXPECT_EQ(ok, name != "Fehler") << term;
        gelungen += ok ? 1 : 0;
        tempNamenEntfernen();
        termZustand().fehlerListe.clear();
        ASSERT_EQ(listenZustand().sMatrixListe, vorher.sMatrixListe) << term;
        ASSERT_EQ(listenZustand().smNamen, vorher.smNamen) << term;
    }
    EXPECT_GT(gelungen, 80);
}

TEST_F(Auswertung, KlammerkerneInnenUndRechts) {
    const Zeichenfeld feld{"(", "A", "+", "(", "B", ")", ")", "*", "(", "C", ")"};
    EXPECT_EQ(klammerkernEnden(feld), (std::pair<std::int64_t, std::int64_t>{8, 10}));
    EXPECT_EQ(klammerkernEnden({"A", "+", "B"}), (std::pair<std::int64_t, std::int64_t>{0, 0}));
    lege("C", sm({{"1"}}));
    EXPECT_EQ(entkerne(feld), (Zeichenfeld{"(", "A", "+", "(", "B", ")", ")", "*", "C"}));
    EXPECT_EQ(entkerne({"(", "X", ")", "+", "C"}), (Zeichenfeld{"Fehler", "+", "C"}));
}

TEST_F(Auswertung, StufenMitOkFalschTunNichts) {
    lege("A", sm({{"1"}}));
    const Zeichenfeld term{"A", "+", "A"};
    EXPECT_EQ(plusAuswerten(term, false), (StufenErgebnis{term, false}));
    EXPECT_EQ(termAuswerten({"A"}, false), (NamenErgebnis{"Fehler", false}));
    EXPECT_TRUE(temp().empty());
}

} // namespace
} // namespace tabulon
