#include "terms/parser.h"
#include "textmatrix/liste.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace tabulon {
namespace {

void lege(const std::string& name, std::int64_t zeilen, std::int64_t spalten,
          const std::vector<std::string>& eintraege) {
    SMatrix m(zeilen, spalten);
    m.grid = eintraege;
    listenZustand().sMatrixListe[name] = m;
    listenZustand().smNamen.erase(name);
}

class Auswertung : public ::testing::Test {
protected:
    void SetUp() override {
        listenZustandZuruecksetzen();
        termZustandZuruecksetzen();
    }
    void TearDown() override { SetUp(); }
    // 1 x 1 values show by their temporaries which operands each step joined; Q is not square,
    // N is singular. The temporaries start at D.
    static void legeVorrat() {
        lege("A", 1, 1, {"2"});
        lege("B", 1, 1, {"3"});
        lege("C", 1, 1, {"5"});
        lege("N", 1, 1, {"0"});
        lege("Q", 2, 3, {"1", "2", "3", "4", "5", "6"});
    }
    // After the clean-up the list must be exactly as before the evaluation.
    static void erwarteAufgeraeumt(const ListenZustand& vorher) {
        tempNamenEntfernen();
        EXPECT_TRUE(termZustand().tempNamen.empty());
        EXPECT_EQ(listenZustand().sMatrixListe, vorher.sMatrixListe);
        EXPECT_EQ(listenZustand().smNamen, vorher.smNamen);
    }
};

struct Erfolg {
    const char* term;
    double r;
    const char* ergebnis;
    std::vector<std::string> temporaere; // the values stored under D, E, F, ... in that order
};

class Gelingt : public Auswertung, public ::testing::WithParamInterface<Erfolg> {};

TEST_P(Gelingt, VorrangRechtsassoziativUndTemporaere) {
    legeVorrat();
    const ListenZustand vorher = listenZustand();
    termZustand().r = GetParam().r;
    EXPECT_EQ(parsen(GetParam().term), (NamenErgebnis{GetParam().ergebnis, true}));
    std::set<std::string> namen;
    for (std::size_t k = 0; k < GetParam().temporaere.size(); ++k) {
        const std::string name(1, static_cast<char>('D' + k));
        namen.insert(name);
        EXPECT_EQ(listenZustand().sMatrixListe.at(name).grid,
                  std::vector<std::string>{GetParam().temporaere[k]})
            << name;
    }
    EXPECT_EQ(termZustand().tempNamen, namen);
    EXPECT_EQ(termZustand().fehlerListe, "");
    erwarteAufgeraeumt(vorher);
}

INSTANTIATE_TEST_SUITE_P(
    Terme, Gelingt,
    ::testing::Values(Erfolg{"A", 0, "A", {}}, Erfolg{"(A)", 0, "A", {}}, Erfolg{"a ", 0, "A", {}},
                      // A-B-C is A + ((-B) + (-C)); A-B*C is A + (-(B*C)).
                      Erfolg{"A-B-C", 0, "G", {"-5.0", "-3.0", "-8.0", "-6.0"}},
                      Erfolg{"A-B*C", 0, "F", {"15.0", "-15.0", "-13.0"}},
                      Erfolg{"A*B*C", 0, "E", {"15.0", "30.0"}},
                      Erfolg{"A^2*B^3", 0, "F", {"27.0", "4.0", "108.0"}},
                      Erfolg{"(A+B)*(C+A)", 0, "F", {"7.0", "5.0", "35.0"}},
                      Erfolg{"(A^-1+B)^2", 0, "F", {"0.5", "3.5", "12.25"}},
                      Erfolg{"A^1", 0, "D", {"2.0"}}, Erfolg{"r*A", 0.5, "D", {"1.0"}},
                      Erfolg{"A*r*B", 0.5, "E", {"1.5", "3.0"}},
                      Erfolg{"r*r*C", 3, "E", {"15.0", "45.0"}}));

struct Fehlerfall {
    const char* term;
    std::string meldungen;
};

class Misslingt : public Auswertung, public ::testing::WithParamInterface<Fehlerfall> {};

// Every failure gives ("Fehler", false); messages are appended to what the buffer held, except
// the syntax message, which replaces it.
TEST_P(Misslingt, LiefertFehlerUndMeldungen) {
    legeVorrat();
    const ListenZustand vorher = listenZustand();
    termZustand().fehlerListe = "alt";
    EXPECT_EQ(parsen(GetParam().term), (NamenErgebnis{"Fehler", false}));
    EXPECT_EQ(termZustand().fehlerListe, GetParam().meldungen);
    erwarteAufgeraeumt(vorher);
}

INSTANTIATE_TEST_SUITE_P(
    Ursachen, Misslingt,
    ::testing::Values(
        Fehlerfall{"A+", syntaxFehler}, Fehlerfall{"AB", syntaxFehler},
        Fehlerfall{"A+ß", syntaxFehler}, Fehlerfall{"(A+B", "alt"}, Fehlerfall{"X", "alt"},
        Fehlerfall{"A-1", "alt"}, Fehlerfall{"r", "alt"}, Fehlerfall{"(X)+A", "alt"},
        Fehlerfall{"X+A+A", "alt"}, Fehlerfall{"X-A-A", "alt"}, Fehlerfall{"A^-B", "alt"},
        Fehlerfall{"A^1^2", "alt"}, Fehlerfall{"A^-1^2", "alt"}, Fehlerfall{"A+Q", "alt"},
        // Q*Q fails first; A would fit the 1 x 1 stand-in, yet the message stands only once.
        Fehlerfall{"A*Q*Q", "alt" + produktFehler},
        Fehlerfall{"(Q*Q)+(Q*Q)", "alt" + produktFehler + produktFehler},
        Fehlerfall{"Q^2", "alt" + quadratFehler}, Fehlerfall{"Q^-1", "alt" + quadratFehler},
        Fehlerfall{"N^-1", "alt" + regulaerFehler},
        Fehlerfall{"A*(N^-1)", "alt" + regulaerFehler}));

TEST_F(Auswertung, JederSchrittBrauchtEinenFreienBuchstaben) {
    for (char c = 'A'; c <= 'Y'; ++c) {
        lege(std::string(1, c), 1, 1, {"1"});
    }
    EXPECT_EQ(parsen("A+B"), (NamenErgebnis{"Z", true}));
    tempNamenEntfernen();
    EXPECT_TRUE(listenZustand().smNamen.contains("Z"));
    EXPECT_EQ(parsen("A+B+C"), (NamenErgebnis{"Fehler", false}));
    EXPECT_EQ(termZustand().tempNamen, std::set<std::string>{"Z"}); // stays until removed
    EXPECT_EQ(einbuchten(SMatrix(1, 1)), (NamenErgebnis{"?", false}));
    EXPECT_FALSE(listenZustand().sMatrixListe.contains("?"));
    // The n-fold target keeps its entry even when a temporary had taken its letter.
    tempNamenEntfernen("Z");
    EXPECT_TRUE(listenZustand().sMatrixListe.contains("Z"));
    EXPECT_FALSE(listenZustand().smNamen.contains("Z"));
    EXPECT_TRUE(termZustand().tempNamen.empty());
}

// The operands' numbers are remembered between evaluations; every change of an entry's texts,
// of one entry, of the size, or by a reset, must be read anew.
TEST_F(Auswertung, GeaenderteOperandenWerdenNeuGelesen) {
    struct Stand {
        std::int64_t zeilen;
        std::int64_t spalten;
        std::vector<std::string> a;
        std::vector<std::string> summe;
    };
    const std::vector<Stand> staende{
        {1, 1, {"1"}, {"2.0"}},
        {1, 1, {"1"}, {"2.0"}},
        {1, 1, {"2"}, {"4.0"}},
        {1, 1, {"2.0"}, {"4.0"}},
        {1, 1, {"x"}, {"0.0"}},
        {1, 2, {"1", "2"}, {"2.0", "4.0"}},
        {2, 1, {"1", "2"}, {"2.0", "4.0"}},
        {2, 1, {"1", "3"}, {"2.0", "6.0"}},
    };
    for (const auto& stand : staende) {
        lege("A", stand.zeilen, stand.spalten, stand.a);
        const auto [name, ok] = parsen("A+A");
        ASSERT_TRUE(ok);
        EXPECT_EQ(listenZustand().sMatrixListe.at(name).grid, stand.summe) << stand.a[0];
        tempNamenEntfernen();
    }
    termZustandZuruecksetzen();
    lege("A", 1, 1, {"5"});
    EXPECT_EQ(listenZustand().sMatrixListe.at(parsen("A+A").first).grid,
              std::vector<std::string>{"10.0"});
    tempNamenEntfernen();
}

// Temporaries are written into the storage of removed ones; whatever size that storage had, the
// texts must be exactly the standard texts of the value and nothing of the old matrix may stay.
TEST_F(Auswertung, WiederverwendeteTexteSindDieStandardtexte) {
    auto zahlen = [](std::int64_t zeilen, std::int64_t spalten, double start) {
        Matrix m(zeilen, spalten);
        const std::vector<double> werte{
            -0.0, 0.1, 1.0 / 3.0, 1e-7, -2.5, 1e300, 2e-310, 123456789012345678.0, 7.0};
        for (std::size_t k = 0; k < m.grid.size(); ++k) {
            m.grid[k] = werte[(k + static_cast<std::size_t>(start)) % werte.size()] * (start + 1);
        }
        return m;
    };
    const std::vector<Matrix> folge{zahlen(3, 3, 0), zahlen(1, 2, 1), zahlen(2, 4, 2),
                                    zahlen(8, 8, 3), Matrix(0, 0),    zahlen(2, 1, 5)};
    for (const auto& m : folge) {
        const auto [name, ok] = einbuchten(texteVon(m));
        ASSERT_TRUE(ok);
        EXPECT_EQ(listenZustand().sMatrixListe.at(name), m.smatrix()) << m.rows << "x" << m.columns;
        tempNamenEntfernen();
    }
    EXPECT_FALSE(termZustand().textVorrat.empty());
}

// Temporaries take the first free letter in the order A ... Z; texts that are no letter name
// never count, wherever they sort among the letters.
TEST_F(Auswertung, FreierNameNurAusDenBuchstaben) {
    const std::vector<std::pair<std::set<std::string>, std::string>> faelle{
        {{"AB", "B", "?", "a", "0"}, "B"},
        {{"ZZ", "\u00C4", "\xC3", "Z\u0301"}, "?"},
        {{"[", "a"}, "?"},
        {{}, "?"},
        {{"Z", "ZA", "A\u0301"}, "Z"},
        {{"A", "B"}, "A"},
    };
    for (const auto& [frei, erwartet] : faelle) {
        listenZustand().smNamen = frei;
        EXPECT_EQ(naechsterFreierName(), erwartet);
        const auto [name, ok] = einbuchten(SMatrix(1, 1));
        EXPECT_EQ(name, erwartet);
        EXPECT_EQ(ok, erwartet != "?");
        EXPECT_EQ(listenZustand().sMatrixListe.contains(erwartet), erwartet != "?");
        tempNamenEntfernen();
        listenZustand().sMatrixListe.clear();
    }
}

} // namespace
} // namespace tabulon
