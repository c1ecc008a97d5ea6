// The primitives of the window model and the protocol paging.

#include "fenstertest.h"

namespace tabulon {
namespace {

// The size buttons stop at 8 and at 1; a hidden cell keeps its text but stays out of the in/out
// matrix until it shows again. Clearing blanks the cells and the note, not the in/out matrix.
TEST_F(FensterTest, SizeButtonsHiddenCellsAndClearing) {
    tippe({{" 1", "2"}});
    vc.zelle(7, 7).text = "x";
    vc.rplusB();
    vc.cplusB();
    EXPECT_EQ(tableauZustand().rowmax, 7);
    EXPECT_EQ(tableauZustand().columnmax, 7);

    vc.liesStringMatrix();
    vc.rminusB();
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
    EXPECT_EQ(sichtbar(), " 1");

    vc.notizF = "alt";
    vc.tableauLoeschB();
    EXPECT_EQ(vc.notizF, "");
    EXPECT_EQ(vc.zelle(0, 0).text, "");
    EXPECT_EQ(tableauZustand().strEinAusMatrix(0, 0), " 1");
    vc.liesStringMatrix();
    EXPECT_TRUE(tableauZustand().strEinAusMatrix.istLeer());
}

// The name field is read upper-cased, blanks kept, and shows what was read; the slider is held to
// 1 ... 10 even when set from outside its range.
TEST_F(FensterTest, NameFieldAndSliderRange) {
    vc.eingabeFb = " äb";
    EXPECT_EQ(vc.liesName(), " ÄB");
    EXPECT_EQ(vc.eingabeFb, " ÄB");
    for (const auto& [regler, erwartet] : std::vector<std::pair<int, int>>{{0, 1}, {11, 10}}) {
        vc.dezimalRegler = regler;
        EXPECT_TRUE(vc.fensterAktion("dezimalSlider"));
        EXPECT_EQ(listenZustand().dezimalen, erwartet);
        EXPECT_EQ(vc.dezimalenF, ganzText(erwartet));
    }
}

// One row per step: the action, the page typed (if any), then the page shown, the number of
// pages and whether it beeps.
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
    EXPECT_EQ(plattform.ereignisse, std::vector<std::string>(3, "piep"));

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
        EXPECT_EQ(plattform.ereignisse.size(), s.piep ? 1u : 0u);
        EXPECT_EQ(protokollZustand().aktSeitenNr, s.aktSeite);
        EXPECT_EQ(protokollZustand().maxSeitenNr, s.maxSeite);
        EXPECT_EQ(vc.seitenF, ganzText(s.aktSeite));
        EXPECT_EQ(vc.notizF, "");
    }
    // "eins" was deleted; the former pages 2 and 3 are now 1 and 2, and a new page goes last.
    EXPECT_EQ(vc.ausgabeF, "zwei");
    vc.protoDown();
    vc.ausgabe("vier");
    EXPECT_EQ(protokollZustand().protokoll, (std::vector<std::string>{"", "zwei", "drei", "vier"}));
    EXPECT_EQ(vc.seitenF, "3");
}

} // namespace
} // namespace tabulon
