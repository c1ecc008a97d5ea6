// The menu "Exakt" in the window model: what reaches the tableau, the protocol and the note, that
// a refusal leaves everything else as it was, and the TeX export of the last exact page.

#include "fenstertest.h"

#include "app/appdelegate.h"
#include "app/tabulonhilfen.h"
#include "exakt/befehle.h"
#include "exakt/hilfe.h"
#include "window/aktionen.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>

namespace tabulon {
namespace {

class ExaktFensterTest : public FensterTest {
protected:
    std::size_t seiten() const { return protokollZustand().protokoll.size(); }
    std::size_t piepse() const {
        return static_cast<std::size_t>(
            std::count(plattform.ereignisse.begin(), plattform.ereignisse.end(), "piep"));
    }
};

TEST_F(ExaktFensterTest, AnAnswerGoesIntoTableauProtocolAndNoteAndIsKeptForTex) {
    speichere("A", "1|2;4|5");
    vc.eingabeFb = "a"; // read as the classic commands read it: upper case
    vc.exaktInverse();
    EXPECT_EQ(vc.eingabeFb, "A");
    EXPECT_TRUE(plattform.ereignisse.empty());
    EXPECT_EQ(sichtbar(),
              "-1.66666666666667|0.666666666666667;1.33333333333333|-0.333333333333333");
    EXPECT_NE(vc.ausgabeF.find("-5/3"), std::string::npos);
    EXPECT_EQ(vc.ausgabeF, protokollZustand().protokoll.back());
    EXPECT_EQ(vc.notizF, "Die exakte Inverse von A wurde ins Feld der Eingabematrix geschrieben.");
    EXPECT_NE(exaktTex("A").find("\\frac{5}{3}"), std::string::npos);

    // The determinant writes no matrix: the tableau keeps the inverse, the page is the new one.
    const std::size_t vorher = seiten();
    vc.exaktDeterminante();
    EXPECT_EQ(seiten(), vorher + 1);
    EXPECT_EQ(sichtbar(),
              "-1.66666666666667|0.666666666666667;1.33333333333333|-0.333333333333333");
    EXPECT_EQ(vc.notizF, "det(A) = -3");
    EXPECT_NE(exaktTex("A").find("det"), std::string::npos);
    EXPECT_EQ(exaktTex("A").find("\\frac{5}{3}"), std::string::npos);
}

TEST_F(ExaktFensterTest, ARefusalBeepsAndChangesNothingButTheNote) {
    speichere("K", "1,5|2;3|4");
    speichere("S", "1|2;2|4");
    speichere("A", "1|0;0|1");
    vc.eingabeFb = "A";
    vc.exaktGauss();
    const std::string tableau = sichtbar();
    const std::string seite = vc.ausgabeF;
    const std::string tex = exaktTex("A");
    const std::size_t vorher = seiten();
    const auto listeVorher = listenZustand().sMatrixListe;

    using Befehl = void (ViewController::*)();
    const std::vector<std::pair<std::string, Befehl>> faelle = {
        {"K", &ViewController::exaktGauss},        {"K", &ViewController::exaktLGS},
        {"K", &ViewController::exaktKern},         {"K", &ViewController::exaktInverse},
        {"K", &ViewController::exaktDeterminante}, {"K", &ViewController::exaktEigen},
        {"S", &ViewController::exaktInverse},      {"X", &ViewController::exaktGauss},
        {"", &ViewController::exaktEigen},         {"S", &ViewController::exaktTexAusgabe},
    };
    for (const auto& [name, befehl] : faelle) {
        vc.eingabeFb = name;
        vc.notizF.clear();
        (vc.*befehl)();
        EXPECT_FALSE(vc.notizF.empty()) << name;
        EXPECT_EQ(sichtbar(), tableau) << name << " " << vc.notizF;
        EXPECT_EQ(vc.ausgabeF, seite) << name;
        EXPECT_EQ(seiten(), vorher) << name;
    }
    EXPECT_EQ(piepse(), faelle.size());
    EXPECT_EQ(listenZustand().sMatrixListe, listeVorher);
    EXPECT_EQ(exaktTex("A"), tex);
    EXPECT_EQ(exaktTex("K"), "");
    EXPECT_EQ(exaktTex("S"), "");

    vc.eingabeFb = "X";
    vc.exaktKern();
    EXPECT_EQ(vc.notizF, "Bitte Namen einer Matrix im Feld 'Name' angeben.");
    vc.eingabeFb = "S";
    vc.exaktInverse();
    EXPECT_EQ(vc.notizF, "Die Matrix S ist nicht invertierbar: ihr Rang ist 1, kleiner als 2.");
}

// A system without solution is an answer, not a refusal: a page and a note, no beep, and the
// tableau keeps what it had.
TEST_F(ExaktFensterTest, ASystemWithoutSolutionAnswersWithoutBeepOrMatrix) {
    speichere("N", "1|1|1;1|1|2");
    tippe({{"7"}});
    vc.eingabeFb = "N";
    vc.exaktLGS();
    EXPECT_TRUE(plattform.ereignisse.empty());
    EXPECT_EQ(vc.zelle(0, 0).text, "7");
    EXPECT_EQ(vc.notizF, "Das Gleichungssystem N hat keine Lösung (Zeile 2 lautet 0 = 1).");
    EXPECT_NE(exaktTex("N"), "");
}

class ExaktTexTest : public ExaktFensterTest {
protected:
    class OrdnerPlattform : public TestPlattform {
    public:
        std::optional<std::filesystem::path> ordner;
        std::optional<std::filesystem::path> dokumentenOrdner() override { return ordner; }
    };

    ExaktTexTest() {
        std::string muster = (std::filesystem::temp_directory_path() / "tabulon-XXXXXX").string();
        ordner = mkdtemp(muster.data());
        op.ordner = ordner;
    }
    ~ExaktTexTest() override {
        std::error_code fehler;
        std::filesystem::remove_all(ordner, fehler);
    }

    std::filesystem::path ordner;
    OrdnerPlattform op;
    ViewController ovc{op};
};

// Refusal, success note and file are pinned by the transcript exakt/tex; here the failed write.
TEST_F(ExaktTexTest, AFailedWriteBeepsWithTheClassicNote) {
    speichere("A", "1|2;3|-1");
    ovc.eingabeFb = "A";
    ovc.exaktKern();
    std::filesystem::create_directory(ordner / "Matrix_A_exakt.txt");
    ovc.exaktTexAusgabe();
    EXPECT_EQ(op.ereignisse, std::vector<std::string>{"piep"});
    EXPECT_EQ(ovc.notizF, "Da hat irgendetwas nicht funktioniert.");
}

// The menu keeps its 23 classic actions first and in order, the practice last; each exact action
// and help topic reaches its command and its text.
TEST_F(ExaktFensterTest, MenuActionsAndHelpTopicsReachTheExactCommands) {
    std::vector<std::string_view> namen;
    for (const Menueaktion& aktion : menueaktionen()) {
        namen.push_back(aktion.name);
    }
    EXPECT_EQ(namen[0], "TableauLöschen");
    EXPECT_EQ(namen[22], "protoSpeichern");
    const std::vector<std::string_view> exakt(namen.begin() + 23, namen.end());
    EXPECT_EQ(exakt, (std::vector<std::string_view>{
                         "exaktGauss", "exaktLGS", "exaktKern", "exaktInverse", "exaktDeterminante",
                         "exaktEigen", "exaktTexAusgabe", "exaktUeben"}));
    AppDelegate delegate;
    vc.viewDidLoad([&](ViewController& v) { delegate.mainVC = &v; });
    speichere("A", "2|0;0|3");
    vc.eingabeFb = "A";
    ASSERT_TRUE(delegate.menueAktion("exaktEigen"));
    EXPECT_EQ(sichtbar(), "1.0|0.0;0.0|1.0");
    ASSERT_TRUE(delegate.menueAktion("exaktGauss"));
    EXPECT_NE(vc.ausgabeF.find("Gauß-Jordan"), std::string::npos);

    const auto& themen = TabulonHilfen::themen();
    EXPECT_EQ(themen[23].aktion, "speicherH");
    const std::vector<std::pair<std::string_view, std::string_view>> hilfen = {
        {"exaktGaussH", exaktGaussHT},
        {"exaktLGSH", exaktLGSHT},
        {"exaktKernH", exaktKernHT},
        {"exaktInverseH", exaktInverseHT},
        {"exaktDeterminanteH", exaktDeterminanteHT},
        {"exaktEigenH", exaktEigenHT},
        {"exaktTexAusgabeH", exaktTexAusgabeHT},
    };
    for (std::size_t k = 0; k < hilfen.size(); ++k) {
        EXPECT_EQ(themen[24 + k].aktion, hilfen[k].first);
        TabulonHilfen h;
        ASSERT_TRUE(h.hilfeAktion(hilfen[k].first));
        EXPECT_EQ(h.hifeF, "\n" + std::string(hilfen[k].second));
    }
}

} // namespace
} // namespace tabulon
