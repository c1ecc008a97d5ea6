// The practice: hints retrace exaktGauss, the echelon checks, row equivalence, and the window
// model's buttons (refusals beep and change nothing, undo, the list stays as it was).

#include "app/zustand.h"
#include "uebung/uebungscontroller.h"
#include "uebung/zeilenparser.h"

#include <gtest/gtest.h>

#include <fstream>

#include "exakt/zufallsmatrix.h"
#include "textmatrix/liste.h"

namespace tabulon {
namespace {

BMatrix bm(std::initializer_list<std::vector<std::string>> zeilen) {
    return liesBMatrix("A", exakttest::texte(zeilen)).matrix;
}

// Following only the hints from any start reaches the reduced form of exaktGauss's elimination
// in exactly its number of operations, each hint being the operation it records next.
TEST(Uebung, HintsAloneRetraceTheElimination) {
    exakttest::Zufall z{20261124};
    int geprueft = 0;
    for (int runde = 0; runde < 300; ++runde) {
        const auto zeilen = z.ganz(1, 8);
        const auto spalten = z.ganz(1, 8);
        const auto art = static_cast<exakttest::Art>(z.ganz(0, 2));
        const BMatrix a =
            liesBMatrix("A", exakttest::zufallsMatrix(z, zeilen, spalten, art, z.ganz(0, 1) == 1))
                .matrix;
        const Umformung u = gaussJordan(a, a.columns);
        const auto erwartet = u.alleOperationen();

        Uebung uebung("A", a);
        for (std::size_t i = 0; i <= erwartet.size(); ++i) {
            const Tipp t = naechsterSchritt(uebung.aktuell());
            if (i == erwartet.size()) {
                EXPECT_TRUE(t.fertig);
                break;
            }
            ASSERT_FALSE(t.fertig) << "step " << i;
            ASSERT_EQ(t.operation, erwartet[i]) << "step " << i;
            // The hint goes through the field as text, as the learner would use it.
            const UmformungLesung l = liesUmformung(t.operation.text().text(), a.rows);
            ASSERT_TRUE(l.ok) << l.fehler;
            uebung.umformen(l.operation);
        }
        EXPECT_EQ(uebung.aktuell(), u.reduziert);
        EXPECT_EQ(uebung.schritte.size(), erwartet.size());
        const Stufenform f = pruefe(uebung.aktuell());
        EXPECT_TRUE(f.reduziert && f.zeilenstufenform);
        EXPECT_EQ(f.rang, u.rang());
        ++geprueft;
    }
    EXPECT_EQ(geprueft, 300);
}

TEST(Uebung, HintReasons) {
    EXPECT_EQ(naechsterSchritt(bm({{"0", "1"}, {"2", "3"}})).grund,
              "Spalte 1 braucht ein Pivot in Zeile 1: dort steht 0, der erste Eintrag ≠ 0 "
              "darunter steht in Zeile 2.");
    EXPECT_EQ(naechsterSchritt(bm({{"3", "1"}, {"2", "3"}})).grund,
              "Spalte 1: das Pivot in Zeile 1 ist 3 und soll 1 werden.");
    EXPECT_EQ(naechsterSchritt(bm({{"1", "1"}, {"0", "1"}})).grund,
              "Spalte 2: über dem Pivot in Zeile 2 steht in Zeile 1 noch 1; dieser Eintrag soll "
              "0 werden.");
    EXPECT_EQ(naechsterSchritt(bm({{"1", "1"}, {"-1/2", "1"}})).grund,
              "Spalte 1: unter dem Pivot in Zeile 1 steht in Zeile 2 noch -1/2; dieser Eintrag "
              "soll 0 werden.");
    EXPECT_TRUE(naechsterSchritt(bm({{"0", "1", "5"}, {"0", "0", "0"}})).fertig);
    EXPECT_TRUE(naechsterSchritt(bm({{"0"}})).fertig);
}

TEST(Uebung, EchelonFormsAndRank) {
    struct Fall {
        BMatrix m;
        bool stufe, reduziert;
        std::size_t rang;
    };
    for (const auto& [m, stufe, reduziert, rang] : {
             Fall{bm({{"1", "0"}, {"0", "1"}}), true, true, 2},
             Fall{bm({{"2", "1"}, {"0", "1"}}), true, false, 2},
             Fall{bm({{"1", "1"}, {"0", "1"}}), true, false, 2},
             Fall{bm({{"0", "1"}, {"1", "0"}}), false, false, 2},
             Fall{bm({{"0", "0"}, {"0", "1"}}), false, false, 1},
             Fall{bm({{"1", "2", "0"}, {"0", "0", "1"}, {"0", "0", "0"}}), true, true, 2},
             Fall{bm({{"1", "2", "3"}, {"0", "0", "1"}, {"0", "0", "1"}}), false, false, 2},
             Fall{bm({{"0", "0"}, {"0", "0"}}), true, true, 0},
         }) {
        const Stufenform f = pruefe(m);
        EXPECT_EQ(f.zeilenstufenform, stufe) << matrixText(m);
        EXPECT_EQ(f.reduziert, reduziert) << matrixText(m);
        EXPECT_EQ(f.rang, rang) << matrixText(m);
    }
    EXPECT_EQ(pruefText({true, false, 2}),
              "Die Matrix ist in Zeilenstufenform, aber noch nicht in reduzierter "
              "Zeilenstufenform. Rang: 2.");
}

TEST(Uebung, RowEquivalence) {
    const BMatrix a = bm({{"1", "2"}, {"2", "4"}});
    EXPECT_EQ(vergleiche(a, bm({{"1", "2"}, {"0", "0"}})).aequivalent, true);
    EXPECT_EQ(vergleiche(a, bm({{"1", "2"}, {"0", "0"}})).reduzierteForm, true);
    const Vergleich skaliert = vergleiche(a, bm({{"0", "0"}, {"3", "6"}}));
    EXPECT_TRUE(skaliert.aequivalent && !skaliert.reduzierteForm);
    EXPECT_FALSE(vergleiche(a, bm({{"1", "0"}, {"0", "0"}})).aequivalent);
    EXPECT_FALSE(vergleiche(a, bm({{"1", "2", "0"}, {"0", "0", "0"}})).aequivalent);
}

class ProtokollPlattform : public Plattform {
public:
    int pieps = 0;
    std::optional<std::filesystem::path> ordner;
    void piep() override { ++pieps; }
    int frage(const std::string&, const std::string&, const std::string&) override { return 0; }
    std::uint32_t zufallUnter(std::uint32_t) override { return 0; }
    void beenden(int) override {}
    std::optional<std::filesystem::path> dokumentenOrdner() override { return ordner; }
};

class UebungsFensterTest : public ::testing::Test {
protected:
    UebungsFensterTest() { allesZuruecksetzen(); }
    ProtokollPlattform plattform;
    std::vector<SMatrix> tableau;
    UebungsController vc{plattform, Uebung("A", bm({{"2", "4"}, {"1", "3"}})),
                         [this](const SMatrix& s) { tableau.push_back(s); }};
};

TEST_F(UebungsFensterTest, StepsRefusalsAndUndo) {
    const BMatrix start = vc.uebung.start;
    vc.umformungF = "Z2 - 1/2 Z1";
    vc.umformenB();
    EXPECT_EQ(vc.notizF, "Schritt 1: Z2 ← Z2 − 1/2·Z1.");
    EXPECT_EQ(vc.umformungF, "");
    EXPECT_EQ(vc.uebung.aktuell(), bm({{"2", "4"}, {"0", "1"}}));

    // A refusal beeps and leaves matrix, steps and the typed text as they were.
    for (const char* falsch : {"Z3 - Z1", "0 Z1", "Z1 + 2 Z1", "Z1 +"}) {
        vc.umformungF = falsch;
        vc.umformenB();
        EXPECT_EQ(vc.umformungF, falsch);
    }
    EXPECT_EQ(plattform.pieps, 4);
    EXPECT_EQ(vc.uebung.schritte.size(), 1u);

    vc.rueckgaengigB();
    EXPECT_EQ(vc.notizF, "Schritt 1 (Z2 ← Z2 − 1/2·Z1) ist rückgängig gemacht.");
    EXPECT_EQ(vc.uebung.aktuell(), start);
    vc.rueckgaengigB();
    EXPECT_EQ(plattform.pieps, 5);
    EXPECT_EQ(vc.uebung.aktuell(), start);

    // Hints to the end; then the field empties and the message says it is done.
    for (int i = 0; i < 10 && vc.notizF.find("jetzt in reduzierter") == std::string::npos; ++i) {
        vc.tippB();
        vc.umformenB();
    }
    EXPECT_EQ(vc.uebung.aktuell(), bm({{"1", "0"}, {"0", "1"}}));
    EXPECT_EQ(vc.schrittTexte(),
              (std::vector<std::string>{"1. Z1 ← 1/2·Z1", "2. Z2 ← Z2 − Z1", "3. Z1 ← Z1 − 2·Z2"}));
    vc.umformungF = "Z1 <-> Z2";
    vc.tippB();
    EXPECT_EQ(vc.umformungF, "");
    vc.pruefenB();
    EXPECT_EQ(vc.notizF, "Die Matrix ist in reduzierter Zeilenstufenform. Rang: 2.");
    EXPECT_EQ(plattform.pieps, 5);
}

TEST_F(UebungsFensterTest, CompareTableauAndTexLeaveTheListAlone) {
    auto& liste = listenZustand().sMatrixListe;
    liste["B"] = exakttest::texte({{"1", "0"}, {"0", "1"}});
    liste["C"] = exakttest::texte({{"1", "2"}, {"0", "0"}});
    liste["D"] = exakttest::texte({{"1,5", "2"}, {"0", "0"}});
    liste["E"] = exakttest::texte({{"1", "3"}, {"2", "4"}});
    const auto vorher = liste;

    const std::pair<const char*, const char*> faelle[] = {
        {"b", "B ist zeilenäquivalent zu A und ist seine reduzierte Zeilenstufenform."},
        {"E", "E ist zeilenäquivalent zu A, aber nicht seine reduzierte Zeilenstufenform."},
        {"C", "C ist nicht zeilenäquivalent zu A."},
    };
    for (const auto& [name, meldung] : faelle) {
        vc.vergleichF = name;
        vc.vergleichenB();
        EXPECT_EQ(vc.notizF, meldung);
    }
    EXPECT_EQ(plattform.pieps, 0);
    for (const char* name : {"", "X", "D"}) {
        vc.vergleichF = name;
        vc.vergleichenB();
    }
    EXPECT_EQ(plattform.pieps, 3);

    vc.umformungF = "Z1 : 2";
    vc.umformenB();
    vc.insTableauB();
    ASSERT_EQ(tableau.size(), 1u);
    EXPECT_EQ(tableau[0].grid, (std::vector<std::string>{"1.0", "2.0", "1.0", "3.0"}));

    const auto ordner = std::filesystem::temp_directory_path() / "tabulon_uebung_test";
    std::filesystem::create_directories(ordner);
    plattform.ordner = ordner;
    vc.texB();
    EXPECT_EQ(vc.notizF, "Die Datei Matrix_A_uebung wurde im  Dokument-Ordner gespeichert.");
    std::ifstream datei(ordner / "Matrix_A_uebung.txt");
    const std::string tex((std::istreambuf_iterator<char>(datei)), {});
    EXPECT_NE(tex.find("Schritt 1: "), std::string::npos);
    EXPECT_NE(tex.find("\\frac{1}{2}"), std::string::npos);
    std::filesystem::remove_all(ordner);

    EXPECT_EQ(liste, vorher);
}

} // namespace
} // namespace tabulon
