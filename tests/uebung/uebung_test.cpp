// The practice: hints retrace exaktGauss, the echelon checks, row equivalence, and comparing in
// the window model (the step-by-step buttons are covered by the transcripts).

#include "app/zustand.h"
#include "uebung/uebungscontroller.h"
#include "uebung/zeilenparser.h"

#include <gtest/gtest.h>

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
    void piep() override { ++pieps; }
    int frage(const std::string&, const std::string&, const std::string&) override { return 0; }
    std::uint32_t zufallUnter(std::uint32_t) override { return 0; }
    void beenden(int) override {}
    std::optional<std::filesystem::path> dokumentenOrdner() override { return {}; }
};

class UebungsFensterTest : public ::testing::Test {
protected:
    UebungsFensterTest() { allesZuruecksetzen(); }
    ProtokollPlattform plattform;
    std::vector<SMatrix> tableau;
    UebungsController vc{plattform, Uebung("A", bm({{"2", "4"}, {"1", "3"}})),
                         [this](const SMatrix& s) { tableau.push_back(s); }};
};

TEST_F(UebungsFensterTest, CompareAndTableauLeaveTheListAlone) {
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

    EXPECT_EQ(liste, vorher);
}

} // namespace
} // namespace tabulon
