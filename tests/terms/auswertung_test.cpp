#include "app/zustand.h"
#include "terms/parser.h"
#include "textmatrix/liste.h"
#include "window/fenstertest.h"
#include "window/tableau.h"
#include "window/viewcontroller.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace tabulon {
namespace {

SMatrix sm(std::int64_t zeilen, std::int64_t spalten, std::vector<std::string> eintraege) {
    SMatrix m(zeilen, spalten);
    m.grid = std::move(eintraege);
    return m;
}

void lege(const std::string& name, const SMatrix& m) {
    listenZustand().sMatrixListe[name] = m;
    listenZustand().smNamen.erase(name);
}

class Auswertung : public ::testing::Test {
protected:
    void SetUp() override { neu(); }
    void TearDown() override { neu(); }
    static void neu() { allesZuruecksetzen(); }
};

// The temporaries as "name=first entry" in the order of their names.
std::string temporaere() {
    std::string text;
    for (const auto& name : termZustand().tempNamen) {
        text += name + "=" + listenZustand().sMatrixListe.at(name).grid.at(0) + " ";
    }
    return text;
}

// Bracket cores innermost and rightmost first, then powers, products, minus signs and sums, each
// stage from the right: "A-B-C" is A + ((-B) + (-C)), "A-B*C" is A + (-(B*C)). A failure gives
// "Fehler" and appends its messages to what the buffer held, except the syntax message, which
// replaces it; in "A*Q*Q" Q*Q fails first, so the message stands only once. Either way the
// clean-up leaves the list exactly as it was.
TEST_F(Auswertung, VorrangTemporaereUndFehler) {
    const std::string faelle[][4] = {
        // term, result, temporaries, messages
        {"(A)", "A", "", "alt"},
        {"A-B-C", "G", "D=-5.0 E=-3.0 F=-8.0 G=-6.0 ", "alt"},
        {"A-B*C", "F", "D=15.0 E=-15.0 F=-13.0 ", "alt"},
        {"A*B*C", "E", "D=15.0 E=30.0 ", "alt"},
        {"A^2*B^3", "F", "D=27.0 E=4.0 F=108.0 ", "alt"},
        {"(A+B)*(C+A)", "F", "D=7.0 E=5.0 F=35.0 ", "alt"},
        {"(A^-1+B)^2", "F", "D=0.5 E=3.5 F=12.25 ", "alt"},
        {"A*r*B", "E", "D=1.5 E=3.0 ", "alt"},
        {"r*r*C", "E", "D=2.5 E=1.25 ", "alt"},
        {"A+", "Fehler", "", syntaxFehler},
        {"(A+B", "Fehler", "", "alt"},
        {"X", "Fehler", "", "alt"},
        {"A-1", "Fehler", "", "alt"},
        {"X+A+A", "Fehler", "D=4.0 ", "alt"},
        {"X-A-A", "Fehler", "D=-2.0 E=-2.0 F=-4.0 ", "alt"},
        {"A^-B", "Fehler", "", "alt"},
        {"A^1^2", "Fehler", "", "alt"},
        {"A+Q", "Fehler", "", "alt"},
        {"A*Q*Q", "Fehler", "", "alt" + produktFehler},
        {"Q^-1", "Fehler", "", "alt" + quadratFehler},
        {"A*(N^-1)", "Fehler", "", "alt" + regulaerFehler},
    };
    for (const auto& [term, ergebnis, werte, meldungen] : faelle) {
        // 1 x 1 values show by their temporaries which operands each step joined; Q is not
        // square, N is singular. The temporaries start at D.
        neu();
        for (const auto& [name, wert] : {std::pair{"A", "2"}, {"B", "3"}, {"C", "5"}, {"N", "0"}}) {
            lege(name, sm(1, 1, {wert}));
        }
        lege("Q", sm(2, 3, {"1", "2", "3", "4", "5", "6"}));
        const ListenZustand vorher = listenZustand();
        termZustand().r = 0.5;
        termZustand().fehlerListe = "alt";
        EXPECT_EQ(parsen(term), (NamenErgebnis{ergebnis, ergebnis != "Fehler"})) << term;
        EXPECT_EQ(temporaere(), werte) << term;
        EXPECT_EQ(termZustand().fehlerListe, meldungen) << term;
        tempNamenEntfernen();
        EXPECT_TRUE(termZustand().tempNamen.empty()) << term;
        EXPECT_EQ(listenZustand().sMatrixListe, vorher.sMatrixListe) << term;
        EXPECT_EQ(listenZustand().smNamen, vorher.smNamen) << term;
    }
}

// Bracket cores the plain way: take the last "(" and the first ")" after it, evaluate the core,
// put its name in its place, scan again.
NamenErgebnis kernweiseReferenz(std::string_view kette) {
    const Zeichenfeld feld = string2ZeichenFeld(kette);
    Zeichenfeld t = gereinigt(feld);
    if (!formelKorrekt(feld)) {
        termZustand().fehlerListe = syntaxFehler;
        return {fehlerName, false};
    }
    if (!klammernAusgewogen(t)) {
        return {fehlerName, false};
    }
    for (auto links = posVonZeichen(t, "("); links >= 0; links = posVonZeichen(t, "(")) {
        auto rechts = links;
        while (t[static_cast<std::size_t>(rechts)] != ")") {
            ++rechts;
        }
        Zeichenfeld kern(t.begin() + links + 1, t.begin() + rechts);
        t[static_cast<std::size_t>(links)] = termAuswerten(std::move(kern), true).first;
        t.erase(t.begin() + links + 1, t.begin() + rechts + 1);
    }
    return termAuswerten(std::move(t), true);
}

// Random bracketed terms: the one-pass bracket removal evaluates the same cores in the same order
// as the plain one, so both leave the same temporaries under the same names, the same messages
// and the same result. 2 x 2 values make the order of every step visible in the entries.
TEST_F(Auswertung, KlammernInEinemDurchgangWieKernweise) {
    std::mt19937 zufall(15);
    const auto wahl = [&zufall](int n) {
        return static_cast<int>(zufall() % static_cast<unsigned>(n));
    };
    std::function<std::string(int)> term = [&](int tiefe) {
        std::string t;
        const int faktoren = 1 + wahl(3);
        for (int k = 0; k < faktoren; ++k) {
            if (k > 0) {
                t += "+-*"[wahl(3)];
            }
            t += tiefe > 0 && wahl(2) == 0 ? "(" + term(tiefe - 1) + ")"
                                           : std::string(1, "ABCQ"[wahl(4)]);
            if (wahl(4) == 0) {
                t += wahl(2) == 0 ? "^2" : "^-1";
            }
        }
        return t;
    };
    for (int fall = 0; fall < 300; ++fall) {
        std::string t = term(4);
        // No ")" may follow a ")": close with a power instead.
        for (auto p = t.find("))"); p != std::string::npos; p = t.find("))")) {
            t.insert(p + 1, "^1");
        }
        const auto lauf = [&t](auto auswerten) {
            neu();
            lege("A", sm(2, 2, {"1", "2", "3", "4"}));
            lege("B", sm(2, 2, {"0", "1", "1", "1"}));
            lege("C", sm(2, 2, {"2", "0", "1", "0.5"}));
            lege("Q", sm(2, 3, {"1", "2", "3", "4", "5", "6"}));
            const NamenErgebnis ergebnis = auswerten(t);
            return std::tuple{ergebnis, listenZustand().sMatrixListe, termZustand().tempNamen,
                              termZustand().fehlerListe};
        };
        EXPECT_EQ(lauf(parsen), lauf(kernweiseReferenz)) << t;
    }
}

// hoch multiplies from the left, and refuses the inverse only for a determinant of exactly 0.0.
TEST_F(Auswertung, HochFaktorenVonLinksUndExakterNulltest) {
    // With these entries a * (a * a) and (a * a) * a differ in the last bit.
    Matrix a(2, 2);
    a.grid = {0.1, 0.7, 0.3, 0.9};
    ASSERT_NE(a * (a * a), (a * a) * a);
    EXPECT_EQ(hoch(a, 3), std::make_pair(a * (a * a), true));
    // A determinant of 1e-16 passes, and invers() then gives the 1 x 1 zero matrix.
    a.grid = {1e-8, 0, 0, 1e-8};
    EXPECT_EQ(hoch(a, -1), std::make_pair(Matrix(1, 1), true));
    EXPECT_EQ(termZustand().fehlerListe, "");
}

TEST_F(Auswertung, JederSchrittBrauchtEinenFreienBuchstaben) {
    for (char c = 'A'; c <= 'Y'; ++c) {
        lege(std::string(1, c), sm(1, 1, {"1"}));
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

// The operands' numbers are remembered between evaluations; every change of an entry's texts
// or of its size must be read anew.
TEST_F(Auswertung, GeaenderteOperandenWerdenNeuGelesen) {
    for (const SMatrix& a : {sm(1, 1, {"1"}), sm(1, 1, {"1"}), sm(1, 1, {"2"}),
                             sm(1, 2, {"1", "2"}), sm(2, 1, {"1", "2"}), sm(2, 1, {"1", "3"})}) {
        lege("A", a);
        const auto [name, ok] = parsen("A+A");
        ASSERT_TRUE(ok);
        EXPECT_EQ(listenZustand().sMatrixListe.at(name), (matrix(a) + matrix(a)).smatrix())
            << a.rows << "x" << a.columns << " " << a.grid.back();
        tempNamenEntfernen();
    }
}

// Temporaries are written into the storage of temporaries removed before, which may have been
// larger or held longer texts: every entry must come out exactly as a fresh conversion writes it,
// with nothing left of the old texts, whatever sizes follow each other.
TEST_F(Auswertung, WiederverwendeteTexteWieFrisch) {
    Operandenspeicher speicher;
    const auto wert = [](std::int64_t zeilen, std::int64_t spalten, double x) {
        Matrix m(zeilen, spalten);
        for (std::size_t k = 0; k < m.grid.size(); ++k) {
            m.grid[k] = x * static_cast<double>(k + 1);
        }
        return m;
    };
    for (const Matrix& m : {wert(3, 3, 1.0 / 7.0), wert(1, 2, 1.0), wert(3, 3, -2.0),
                            wert(2, 1, 1e-300), wert(0, 0, 1.0), wert(2, 2, 0.1)}) {
        const SMatrix texte = speicher.texteVon(m);
        EXPECT_EQ(texte, m.smatrix()) << m.rows << "x" << m.columns << " " << m.grid.size();
        speicher.zuruecklegen(texte);
    }

    // Through the list: the temporaries of A^-1*B go back to the store when they are removed,
    // and a later term with other sizes gets the right texts and leaves the list as it was.
    lege("A", sm(3, 3, {"3", "1", "0", "1", "7", "2", "0", "2", "9"}));
    lege("B", sm(3, 1, {"1", "2", "3"}));
    lege("C", sm(1, 1, {"0.5"}));
    const auto vorher = listenZustand().sMatrixListe;
    // Every intermediate value is read back from its texts, the inverse too.
    const SMatrix produkt =
        (matrix(hoch(matrix(vorher.at("A")), -1).first.smatrix()) * matrix(vorher.at("B")))
            .smatrix();
    for (const auto& [term, erwartet] :
         {std::pair{"A^-1*B", produkt}, {"C+C-C", sm(1, 1, {"0.5"})}, {"A^-1*B", produkt}}) {
        const auto [name, ok] = parsen(term);
        ASSERT_TRUE(ok) << term;
        EXPECT_EQ(listenZustand().sMatrixListe.at(name), erwartet) << term;
        tempNamenEntfernen();
        EXPECT_EQ(listenZustand().sMatrixListe, vorher) << term;
    }
}

// The result of every n-fold run reaches the target, whether it is a temporary handed over to an
// old entry (B) or another matrix of the list (A), which must keep its entry. Afterwards the list
// holds exactly the operands and the target, and the free names are the rest.
TEST_F(Auswertung, NfachZielErhaeltErgebnisOperandenBleiben) {
    const SMatrix a = sm(2, 2, {"1", "2", "3", "4"});
    const SMatrix b = sm(2, 2, {"0", "1", "1", "0"});
    for (const auto& [ziel, term, n, wert] :
         {std::tuple{"C", "A", "2", sm(2, 2, {"1", "2", "3", "4"})},
          {"B", "A*B", "2", sm(2, 2, {"10.0", "7.0", "22.0", "15.0"})}}) {
        neu();
        lege("A", a);
        lege("B", b);
        TestPlattform plattform;
        ViewController vc(plattform);
        vc.eingabeFb = ziel;
        vc.eingabeF = term;
        vc.zaehlF = n;
        vc.parsNfachStart();

        const auto& liste = listenZustand();
        EXPECT_TRUE(plattform.ereignisse.empty()) << vc.notizF;
        EXPECT_EQ(liste.sMatrixListe.at(ziel), wert) << ziel;
        EXPECT_EQ(liste.sMatrixListe.at("A"), a) << ziel;
        EXPECT_EQ(liste.sMatrixListe.at("B"), std::string(ziel) == "B" ? wert : b) << ziel;
        const std::set<std::string> belegt{"A", "B", ziel};
        EXPECT_EQ(liste.sMatrixListe.size(), belegt.size()) << ziel;
        for (const auto& name : alphabetGross()) {
            EXPECT_EQ(liste.smNamen.contains(name), !belegt.contains(name)) << ziel << name;
        }
        EXPECT_TRUE(termZustand().tempNamen.empty());
    }
}

// A long n-fold run reports after every run but the last; asked to stop, it stops after the
// current run, the target keeps the last completed run's value, and the note and the protocol
// name the runs done. A failing term stopped the same way says so after its failure note.
TEST_F(Auswertung, NfachLaufAnhalten) {
    const auto lauf = [](const char* term, const char* n, std::int64_t anhalten) {
        neu();
        lege("A", sm(1, 1, {"0"}));
        lege("B", sm(1, 1, {"1"}));
        lege("C", sm(1, 2, {"1", "2"}));
        auto plattform = std::make_unique<TestPlattform>();
        plattform->anhaltenNach = anhalten;
        ViewController vc(*plattform);
        vc.eingabeFb = "A";
        vc.eingabeF = term;
        vc.zaehlF = n;
        vc.parsNfachStart();
        EXPECT_TRUE(termZustand().tempNamen.empty());
        EXPECT_EQ(listenZustand().sMatrixListe.size(), 3u);
        EXPECT_EQ(plattform->fortschrittEnden, 1);
        return std::pair{std::move(plattform), vc.notizF};
    };

    auto [ganz, ganzNotiz] = lauf("A+B", "4", 0);
    EXPECT_EQ(ganz->fortschritte, (std::vector<std::int64_t>{1, 2, 3}));
    EXPECT_EQ(ganzNotiz, "Das Ergebnis der Berechnung von A wird im Eingabe-Tableau angezeigt");
    EXPECT_EQ(listenZustand().sMatrixListe.at("A"), sm(1, 1, {"4.0"}));

    auto [halt, haltNotiz] = lauf("A+B", "1e18", 3);
    EXPECT_EQ(halt->fortschritte, (std::vector<std::int64_t>{1, 2, 3}));
    EXPECT_TRUE(halt->ereignisse.empty());
    EXPECT_EQ(haltNotiz, "Nach 3 von 1000000000000000000 Läufen abgebrochen. Das Ergebnis der "
                         "Berechnung von A wird im Eingabe-Tableau angezeigt");
    EXPECT_EQ(listenZustand().sMatrixListe.at("A"), sm(1, 1, {"3.0"}));
    EXPECT_EQ(protokollZustand().protokoll.back().rfind("Die 3-malige Auswertung des Terms A+B "
                                                        "ergibt: A = \n\n",
                                                        0),
              0u);

    auto [fehler, fehlerNotiz] = lauf("C*A", "5", 2);
    EXPECT_EQ(fehlerNotiz, produktFehler + produktFehler +
                               "Die Formel konnte nicht ausgewertet werden. Nach 2 von 5 Läufen "
                               "abgebrochen.");
    EXPECT_EQ(fehler->ereignisse, std::vector<std::string>{"piep"});
    EXPECT_EQ(listenZustand().sMatrixListe.at("A"), sm(1, 1, {"0"}));
}

} // namespace
} // namespace tabulon
