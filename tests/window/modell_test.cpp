// The primitives of the window model and the protocol paging.

#include "fenstertest.h"

namespace tabulon {
namespace {

TEST_F(FensterTest, SizeButtonsStopAtTheEdgesAndHiddenTextsComeBack) {
    tippe({{"1", "2"}, {"3", "4"}});
    vc.zelle(7, 7).text = "x";
    vc.rplusB();
    vc.cplusB();
    EXPECT_EQ(tableauZustand().rowmax, 7);
    EXPECT_EQ(tableauZustand().columnmax, 7);

    vc.liesStringMatrix();
    vc.rminusB();
    // Row 7 is hidden and gone from the in/out matrix, but the cell keeps its text.
    EXPECT_TRUE(vc.zelle(7, 7).versteckt);
    EXPECT_EQ(tableauZustand().strEinAusMatrix(7, 7), "");
    EXPECT_EQ(vc.zelle(7, 7).text, "x");
    vc.rplusB();
    EXPECT_FALSE(vc.zelle(7, 7).versteckt);
    vc.liesStringMatrix();
    EXPECT_EQ(tableauZustand().strEinAusMatrix(7, 7), "x");

    for (int i = 0; i < 10; ++i) {
        vc.rminusB();
        vc.cminusB();
    }
    EXPECT_EQ(sichtbar(), "1");
}

TEST_F(FensterTest, ClearingTheTableauBlanksOnlyTheCells) {
    tippe({{" 1", "abc"}});
    vc.notizF = "alt";
    vc.liesStringMatrix();
    EXPECT_EQ(tableauZustand().strEinAusMatrix(0, 0), " 1");
    vc.tableauLoeschB();
    EXPECT_EQ(vc.notizF, "");
    EXPECT_EQ(vc.zelle(0, 1).text, "");
    EXPECT_EQ(tableauZustand().strEinAusMatrix(0, 1), "abc");
    vc.liesStringMatrix();
    EXPECT_TRUE(tableauZustand().strEinAusMatrix.istLeer());
}

TEST_F(FensterTest, NameFieldSliderCheckboxAndQuestion) {
    const std::vector<std::pair<std::string, std::string>> namen = {
        {"b", "B"}, {"", ""}, {" a", " A"}, {"äöüß", "ÄÖÜSS"}, {"x1", "X1"}};
    for (const auto& [getippt, gelesen] : namen) {
        vc.eingabeFb = getippt;
        EXPECT_EQ(vc.liesName(), gelesen);
        EXPECT_EQ(vc.eingabeFb, gelesen);
    }

    for (const auto& [regler, erwartet] :
         std::vector<std::pair<int, int>>{{2, 2}, {0, 1}, {11, 10}}) {
        vc.dezimalRegler = regler;
        EXPECT_TRUE(vc.fensterAktion("dezimalSlider"));
        EXPECT_EQ(listenZustand().dezimalen, erwartet);
        EXPECT_EQ(vc.dezimalenF, ganzText(erwartet));
    }

    vc.ueberschreibF = true;
    vc.fensterAktion("ueberschreibChecker");
    EXPECT_TRUE(listenZustand().ueberschreiben);
    EXPECT_EQ(vc.ueberschreibLabel, "Ein");
    vc.ueberschreibF = false;
    vc.fensterAktion("ueberschreibChecker");
    EXPECT_EQ(vc.ueberschreibLabel, "Aus");

    plattform.antworten = {Plattform::ersterKnopf, Plattform::zweiterKnopf, 0};
    EXPECT_EQ(vc.auswahl("?", "Ja", "Nein"), "Ja");
    EXPECT_EQ(vc.auswahl("?", "Ja", "Nein"), "Nein");
    EXPECT_EQ(vc.auswahl("?", "Ja", "Nein"), "Fehler");

    ViewController* angemeldet = nullptr;
    vc.viewDidLoad([&](ViewController& v) { angemeldet = &v; });
    EXPECT_EQ(angemeldet, &vc);
    EXPECT_EQ(vc.infoUndHilfeBTitel, "Info und Hilfe");
}

// One row per step: the action, then the page shown, the number of pages, a beep or not.
struct Blaettern {
    std::string aktion;
    std::string seitenF;
    int aktSeite;
    int maxSeite;
    bool piep;
};

TEST_F(FensterTest, PagingThroughTheProtocol) {
    for (const auto& a : {"protoUp", "protoDown", "protoDelSeite"}) {
        vc.fensterAktion(a);
    }
    EXPECT_EQ(plattform.piepse(), 3);
    plattform.ereignisse.clear();

    vc.ausgabe("eins");
    vc.ausgabe("zwei");
    vc.ausgabe("drei");
    EXPECT_EQ(vc.seitenF, "3");
    EXPECT_EQ(vc.ausgabeF, "drei");

    const std::vector<Blaettern> schritte = {
        {"protoUp", "", 3, 3, true},       {"protoDown", "", 2, 3, false},
        {"protoDown", "", 1, 3, false},    {"protoDelSeite", "", 0, 2, false},
        {"neueSeite", "5", 0, 2, true},    {"neueSeite", "-1", 0, 2, true},
        {"neueSeite", " 2x", 2, 2, false}, {"neueSeite", "abc", 0, 2, false},
        {"protoDelSeite", "", 0, 2, true}, {"protoUp", "", 1, 2, false},
    };
    for (const auto& s : schritte) {
        SCOPED_TRACE(s.aktion + " " + s.seitenF);
        plattform.ereignisse.clear();
        vc.notizF = "alt";
        if (!s.seitenF.empty()) {
            vc.seitenF = s.seitenF;
        }
        vc.fensterAktion(s.aktion);
        EXPECT_EQ(plattform.piepse(), s.piep ? 1 : 0);
        EXPECT_EQ(protokollZustand().aktSeitenNr, s.aktSeite);
        EXPECT_EQ(protokollZustand().maxSeitenNr, s.maxSeite);
        EXPECT_EQ(vc.seitenF, ganzText(s.aktSeite));
        EXPECT_EQ(vc.notizF, "");
    }
    // "eins" was deleted; the former pages 2 and 3 are now 1 and 2.
    EXPECT_EQ(vc.ausgabeF, "zwei");
    vc.protoDown();
    vc.ausgabe("vier");
    EXPECT_EQ(protokollZustand().protokoll, (std::vector<std::string>{"", "zwei", "drei", "vier"}));
    EXPECT_EQ(vc.seitenF, "3");
}

} // namespace
} // namespace tabulon
