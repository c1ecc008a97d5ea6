#include "terms/parser.h"
#include "textmatrix/liste.h"
#include "window/tableau.h"
#include "window/viewcontroller.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace tabulon {
namespace {

class StummePlattform : public Plattform {
public:
    int piepse = 0;
    void piep() override { ++piepse; }
    int frage(const std::string&, const std::string&, const std::string&) override {
        return zweiterKnopf;
    }
    std::uint32_t zufallUnter(std::uint32_t) override { return 0; }
    void beenden(int) override {}
    std::optional<std::filesystem::path> dokumentenOrdner() override { return std::nullopt; }
};

struct Lauf {
    const char* ziel;
    const char* term;
    const char* n;
    std::vector<std::string> zielWert;
};

class Nfach : public ::testing::TestWithParam<Lauf> {
protected:
    void SetUp() override {
        listenZustandZuruecksetzen();
        termZustandZuruecksetzen();
        tableauZustandZuruecksetzen();
        protokollZustandZuruecksetzen();
    }
    void TearDown() override { SetUp(); }
};

// The result of every run reaches the target, whether it is a temporary (handed over), the
// target itself, or another matrix of the list (which must keep its entry). Afterwards the list
// holds exactly the operands and the target, and the free names are the rest.
TEST_P(Nfach, ZielErhaeltErgebnisOperandenBleiben) {
    auto& liste = listenZustand();
    SMatrix a(2, 2);
    a.grid = {"1", "2", "3", "4"};
    SMatrix b(2, 2);
    b.grid = {"0", "1", "1", "0"};
    liste.sMatrixListe = {{"A", a}, {"B", b}};
    liste.smNamen = alphabetGross();
    liste.smNamen.erase("A");
    liste.smNamen.erase("B");

    StummePlattform plattform;
    ViewController vc(plattform);
    vc.eingabeFb = GetParam().ziel;
    vc.eingabeF = GetParam().term;
    vc.zaehlF = GetParam().n;
    vc.parsNfachStart();

    const std::string ziel = GetParam().ziel;
    EXPECT_EQ(plattform.piepse, 0) << vc.notizF;
    EXPECT_EQ(liste.sMatrixListe.at(ziel).grid, GetParam().zielWert);
    if (ziel != "A") {
        EXPECT_EQ(liste.sMatrixListe.at("A"), a);
    }
    if (ziel != "B") {
        EXPECT_EQ(liste.sMatrixListe.at("B"), b);
    }
    std::set<std::string> belegt{"A", "B", ziel};
    EXPECT_EQ(liste.sMatrixListe.size(), belegt.size());
    for (const auto& name : alphabetGross()) {
        EXPECT_EQ(liste.smNamen.contains(name), !belegt.contains(name)) << name;
    }
    EXPECT_TRUE(termZustand().tempNamen.empty());
}

INSTANTIATE_TEST_SUITE_P(Ergebnisse, Nfach,
                         ::testing::Values(Lauf{"C", "A", "2", {"1", "2", "3", "4"}},
                                           Lauf{"C", "(B)", "1", {"0", "1", "1", "0"}},
                                           Lauf{"B", "B", "3", {"0", "1", "1", "0"}},
                                           Lauf{"C", "A+B", "1", {"1.0", "3.0", "4.0", "4.0"}},
                                           Lauf{"A", "A*B", "2", {"1.0", "2.0", "3.0", "4.0"}},
                                           Lauf{"B", "A*B", "2", {"10.0", "7.0", "22.0", "15.0"}}));

} // namespace
} // namespace tabulon
