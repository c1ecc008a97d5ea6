// The tableau editing commands.

#include "fenstertest.h"

namespace tabulon {
namespace {

TEST_F(FensterTest, RandomAndUnitMatrixSizes) {
    // One row per case: zeileF, spalteF, the size shown.
    const std::vector<std::tuple<std::string, std::string, int, int>> faelle = {{"3", "", 8, 8},
                                                                                {"2", "3", 2, 3},
                                                                                {" 1x", "+8", 1, 8},
                                                                                {"9", "2", 8, 8},
                                                                                {"-1", "1", 8, 8}};
    for (const auto& [z, s, zeilen, spalten] : faelle) {
        vc.zeileF = z;
        vc.spalteF = s;
        vc.fensterAktion("genZufallsMatrixB");
        EXPECT_EQ(tableauZustand().rowmax, zeilen - 1);
        EXPECT_EQ(tableauZustand().columnmax, spalten - 1);
        EXPECT_EQ(vc.notizF, "Eine (" + ganzText(zeilen) + "," + ganzText(spalten) +
                                 ")-Zufallsmatrix wurde erzeugt.");
        EXPECT_EQ(vc.zeileF + vc.spalteF, "");
    }
    plattform.zufall = {0, 17, 9, 8};
    vc.zeileF = "2";
    vc.spalteF = "2";
    vc.genZufallsM();
    EXPECT_EQ(sichtbar(), "-9|8;0|-1");

    vc.spalteF = "5";
    for (const auto& [z, n] :
         std::vector<std::pair<std::string, int>>{{"0", 8}, {"9", 8}, {"2", 2}}) {
        vc.zeileF = z;
        vc.genEinheitsM();
        EXPECT_EQ(tableauZustand().rowmax, n - 1);
        EXPECT_EQ(vc.notizF, "Die (" + ganzText(n) + "," + ganzText(n) +
                                 ")-Einheitsmatrix wurde eingetragen.");
    }
    EXPECT_EQ(sichtbar(), "1.0|0.0;0.0|1.0");
    EXPECT_EQ(vc.spalteF, "5");
    EXPECT_EQ(seiten(), 0);
}

TEST_F(FensterTest, Bordering) {
    tippe({{"1", "2", "3"}, {"4", "", "6"}});
    vc.fensterAktion("tableauRaendern");
    EXPECT_EQ(sichtbar(), "1.0|0.0|0.0|0.0;0.0|1|2|3;0.0|4||6");

    // A text in a hidden cell is not part of the block and is cleared by the write.
    vc.tableauLoeschen();
    tippe({{"1", "", "", "", "", "", "", "8"}});
    vc.raendern();
    EXPECT_EQ(sichtbar(), "1.0|0.0;0.0|1");
    EXPECT_EQ(vc.zelle(0, 7).text, "");
    EXPECT_TRUE(vc.zelle(0, 7).versteckt);

    // A row of eight entries: nothing happens, not even a note.
    for (int i = 0; i < 7; ++i) {
        vc.cplusB();
    }
    vc.tableauLoeschen();
    tippe({{"1", "2", "3", "4", "5", "6", "7", "8"}});
    vc.notizF = "alt";
    vc.raendern();
    EXPECT_EQ(sichtbar(), "1|2|3|4|5|6|7|8;|||||||");
    EXPECT_EQ(vc.notizF, "alt");
}

TEST_F(FensterTest, InsertingRowsAndColumns) {
    vc.spalteF = "0";
    vc.zeileF = "0";
    vc.fensterAktion("einfuegen"); // top-left entry empty
    EXPECT_EQ(plattform.piepse(), 1);
    EXPECT_EQ(vc.spalteF + vc.zeileF, "");

    // One row per case: spalteF, zeileF, the tableau and the note afterwards, the fields left.
    const std::vector<std::tuple<std::string, std::string, std::string, std::string, std::string>>
        faelle = {
            {"0", "", "|1|2;|3|4", "Spalte 0 wurde eingefügt\n", ""},
            {"2", "", "1|2|;3|4|", "Spalte 2 wurde eingefügt\n", ""},
            {"1", "1", "1||2;||;3||4", "Spalte 1 wurde eingefügt\nZeile 1 wurde eingefügt\n", ""},
            // The column makes the block two rows high, so row 2 is out of range afterwards.
            {"1", "2", "1||2;3||4", "Spalte 1 wurde eingefügt\n", "2"},
            {"3", "x", "1|2|;3|4|;||", "", "3x"},
            {"-1", "1.0", "1|2|;3|4|;||", "", "-11.0"},
        };
    for (const auto& [s, z, tableau, notiz, felder] : faelle) {
        SCOPED_TRACE(s + "/" + z);
        tableauZustandZuruecksetzen();
        for (auto& zelle : vc.zellen) {
            zelle = Zelle{};
        }
        tippe({{"1", "2"}, {"3", "4"}});
        for (int i = 0; i < 5; ++i) { // a 3 x 3 block holding the typed 2 x 2
            vc.cminusB();
            vc.rminusB();
        }
        vc.spalteF = s;
        vc.zeileF = z;
        vc.notizF = "alt";
        vc.einfuegen();
        EXPECT_EQ(sichtbar(), tableau);
        EXPECT_EQ(vc.notizF, notiz);
        EXPECT_EQ(vc.spalteF + vc.zeileF, felder);
    }
    EXPECT_EQ(plattform.piepse(), 1);

    // Eight columns leave no room: nothing changes but the note.
    for (auto& zelle : vc.zellen) {
        zelle = Zelle{};
    }
    tippe({{"1", "2", "3", "4", "5", "6", "7", "8"}});
    for (int i = 0; i < 7; ++i) {
        vc.cplusB();
        vc.rplusB();
    }
    vc.spalteF = "0";
    vc.zeileF = "0";
    vc.einfuegen();
    EXPECT_EQ(vc.notizF, "Die Matrix hat schon 8 Spalten.\nZeile 0 wurde eingefügt\n");
    EXPECT_EQ(vc.spalteF, "0");
    EXPECT_EQ(sichtbar(), "|||||||;1|2|3|4|5|6|7|8");
}

TEST_F(FensterTest, RemovingRowsAndColumns) {
    // One row per case: spalteF, zeileF, the tableau and the note afterwards, the fields left.
    const std::vector<std::tuple<std::string, std::string, std::string, std::string, std::string>>
        faelle = {
            {"1", "", "1|3;4|6", "Spalte 1 wurde entfernt.\n", ""},
            {"", "0", "4|5|6", "Zeile 0 wurde entfernt.", ""},
            {"2", "1", "1|2", "Spalte 2 wurde entfernt.\nZeile 1 wurde entfernt.", ""},
            {"0", "b", "2|3;5|6", "Spalte 0 wurde entfernt.\n", "b"},
            {"3", "2", "1|2|3;4|5|6",
             "Fehlende oder unpassende Eingabe der Spaltennummer\nFehlende oder unpassende "
             "Eingabe der Zeilennummer",
             "32"},
            {"1 ", "", "1|2|3;4|5|6", "", "1 "},
        };
    for (const auto& [s, z, tableau, notiz, felder] : faelle) {
        SCOPED_TRACE(s + "/" + z);
        tableauZustandZuruecksetzen();
        for (auto& zelle : vc.zellen) {
            zelle = Zelle{};
        }
        speichere("A", {{"1", "2", "3"}, {"4", "5", "6"}});
        vc.eingabeFb = "A";
        vc.name2SMatrixB();
        vc.spalteF = s;
        vc.zeileF = z;
        vc.fensterAktion("entfernen");
        EXPECT_EQ(sichtbar(), tableau);
        EXPECT_EQ(vc.notizF, notiz);
        EXPECT_EQ(vc.spalteF + vc.zeileF, felder);
    }
    EXPECT_EQ(plattform.piepse(), 0);
}

TEST_F(FensterTest, RestartAndQuitAskFirst) {
    speichere("A", {{"1"}});
    tippe({{"5"}});
    vc.ausgabe("seite");
    vc.mListeF = "A\n";
    vc.eingabeFb = "A";
    plattform.antworten = {Plattform::zweiterKnopf, Plattform::ersterKnopf, Plattform::zweiterKnopf,
                           3, Plattform::ersterKnopf};
    vc.neustart();
    EXPECT_TRUE(istMatrixName("A"));
    EXPECT_EQ(vc.ausgabeF, "seite");
    vc.neustart();
    EXPECT_FALSE(istMatrixName("A"));
    EXPECT_EQ(vc.zelle(0, 0).text, "");
    EXPECT_EQ(vc.ausgabeF + vc.notizF + vc.eingabeFb, "");
    EXPECT_EQ(vc.mListeF, "A\n");
    EXPECT_EQ(vc.seitenF, "1");
    EXPECT_EQ(seiten(), 1);

    vc.fensterAktion("quitB");
    vc.quitB();
    EXPECT_EQ(plattform.ereignisse.back().rfind("frage Wirklich das Programm", 0), 0u);
    vc.quitB();
    EXPECT_EQ(plattform.ereignisse.back(), "ende 0");
    EXPECT_EQ(plattform.ereignisse.size(), 6u);
}

} // namespace
} // namespace tabulon
