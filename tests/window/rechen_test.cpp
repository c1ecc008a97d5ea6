// The computation commands.

#include "fenstertest.h"

namespace tabulon {
namespace {

// One row per refusal: the command, the stored matrix under "M" (none when empty), the name
// typed, the note, and whether the name field turns green.
struct Ablehnung {
    void (ViewController::*befehl)();
    std::vector<std::vector<std::string>> matrix;
    std::string notiz;
    bool gruen;
};

TEST_F(FensterTest, RefusedComputationsBeepAndChangeNothing) {
    const std::vector<Ablehnung> faelle = {
        {&ViewController::transponiere,
         {},
         "Bitte Namen der zu transponierenden Matrix im Feld 'Name' angeben.",
         false},
        {&ViewController::invertiere,
         {},
         "Bitte Namen der zu invertierenden Matrix im Feld 'Name' angeben.",
         false},
        {&ViewController::invertiere, {{"1", "2"}}, "Die Matrix M ist nicht quadratisch.", false},
        {&ViewController::invertiere,
         {{"0"}},
         "Die singuläre Matrix M ist nicht invertierbar.",
         false},
        {&ViewController::invertiere,
         {{"1", "2"}, {"2", "4"}},
         "Die singuläre Matrix M ist nicht invertierbar.",
         false},
        {&ViewController::gausse,
         {},
         "Bitte Namen der umzuformenden Matrix im Feld 'Name' angeben.",
         false},
        {&ViewController::gausse,
         {{"1", "2", "3", "4", "5"}},
         "Zeilen- und Spaltenzahl sollten mindestens 2 betragen.",
         false},
        {&ViewController::gausse,
         {{"1"}, {"2"}, {"3"}},
         "Zeilen- und Spaltenzahl sollten mindestens 2 betragen.",
         false},
        {&ViewController::genErzSystemVomKern,
         {},
         "Bitte Namen der Matrix im Feld 'Name' angeben.",
         true},
        {&ViewController::orthonormiere,
         {},
         "Bitte Namen einer Matrix im Feld 'Name' angeben.",
         false},
        {&ViewController::orthonormiere,
         {{"0", ""}, {"0.0", "abc"}},
         "Alle Spalten von M sind Nullvektoren: es gibt kein ONB, die Eingabematrix bleibt "
         "unverändert.",
         false},
        {&ViewController::gram,
         {},
         "Bitte Namen einer in der Liste existierenden Matrix im Feld 'Name' angeben.",
         true},
    };
    for (std::size_t f = 0; f < faelle.size(); ++f) {
        SCOPED_TRACE(f);
        listenZustandZuruecksetzen();
        tableauZustandZuruecksetzen();
        plattform.ereignisse.clear();
        if (!faelle[f].matrix.empty()) {
            speichere("M", faelle[f].matrix);
        }
        tippe({{"t"}});
        vc.eingabeFb = "m";
        vc.eingabeFbGruen = false;
        (vc.*faelle[f].befehl)();
        EXPECT_EQ(vc.notizF, faelle[f].notiz);
        EXPECT_EQ(plattform.ereignisse, std::vector<std::string>{"piep"});
        EXPECT_EQ(vc.eingabeFbGruen, faelle[f].gruen);
        EXPECT_EQ(seiten(), 0);
        EXPECT_EQ(sichtbar(), "t|||||||;|||||||;|||||||;|||||||;|||||||;|||||||;|||||||;|||||||");
    }
}

TEST_F(FensterTest, ResultsGoIntoTheTableauAndTheProtocol) {
    speichere("A", {{"1", "2", "3"}, {"4", "5", "6"}});
    speichere("B", {{"4", "7"}, {"2", "6"}});
    speichere("O", {{"3", "0"}, {"4", "0"}});
    tippe({{"x", "x", "x"}});
    vc.liesStringMatrix();
    vc.eingabeFb = "a";
    vc.transponiere();
    EXPECT_EQ(sichtbar(), "1|4;2|5;3|6");
    EXPECT_EQ(vc.zelle(0, 2).text, ""); // the text result blanks hidden cells
    EXPECT_EQ(vc.ausgabeF, "A' = \n\n1     4     \n2     5     \n3     6     \n");
    EXPECT_EQ(vc.notizF, "Die transponierte Matrix wurde ins Feld der Eingabematrix geschrieben.");

    vc.eingabeFb = "B";
    vc.invertiere();
    EXPECT_EQ(sichtbar(), "0.6|-0.7;-0.2|0.4");
    EXPECT_EQ(vc.ausgabeF, "B^-1 = \n\n0.6     -0.7     \n-0.2     0.4     \n");
    EXPECT_EQ(vc.notizF, "Die invertierte Matrix wurde ins Feld der Eingabematrix geschrieben.");

    vc.eingabeFb = "A";
    vc.gausse();
    EXPECT_EQ(sichtbar(), "1.0|0.0|-1.0;0.0|1.0|2.0");
    EXPECT_EQ(vc.ausgabeF.rfind("Die Anwendung des Gauss-Algorithmus auf A ergibt:\n\n1.0     ", 0),
              0u);

    vc.genErzSystemVomKern();
    EXPECT_EQ(sichtbar(), "-1.0;2.0;-1.0");
    // The numeric embedding writes the cells before the hidden part is blanked.
    EXPECT_EQ(vc.zelle(0, 1).text, "0.0");
    EXPECT_EQ(tableauZustand().strEinAusMatrix(0, 1), "");
    EXPECT_EQ(vc.ausgabeF, "Der Kern der linearen Abbildung mit der Matrix A hat als "
                           "Erzeugendensystem die Spalten :\n\n-1.000000 \t\n2.000000 \t\n"
                           "-1.000000 \t\n");
    EXPECT_EQ(vc.notizF, "Das ES des Kerns wurde ins Feld der Eingabematrix geschrieben.");

    // A dependent column is dropped.
    vc.eingabeFb = "O";
    vc.orthonormiere();
    EXPECT_EQ(sichtbar(), "0.6;0.8");
    EXPECT_EQ(vc.ausgabeF, "Orthonormieren des Erzeugendensystems aus den Spalten von O ergibt "
                           "die Spaltenvektoren:\n0.6     \n0.8     \n");
    EXPECT_EQ(vc.notizF, "Das ONB wurde spaltenweise als Eingabematrix notiert.");
    EXPECT_EQ(seiten(), 5);
    EXPECT_EQ(plattform.piepse(), 0);

    // A trivial kernel is reported in the note only.
    vc.eingabeFb = "B";
    vc.genErzSystemVomKern();
    EXPECT_EQ(vc.notizF, "Das ES des Kerns ist die leere Teilmenge im 2-dimensionalen "
                         "Punktraum,\n da der Kern von B nur den Nullvektor enthält.");
    EXPECT_EQ(sichtbar(), "0.6;0.8");
    EXPECT_EQ(seiten(), 5);
    EXPECT_EQ(plattform.piepse(), 0);
}

TEST_F(FensterTest, GramDeterminantLeavesTheTableau) {
    speichere("R", {{"3", "4"}});
    speichere("Q", {{"2", "0"}, {"0", "3"}});
    tippe({{"t"}});
    vc.eingabeFb = "R";
    vc.eingabeFbGruen = true;
    vc.notizF = "alt";
    vc.gram();
    EXPECT_EQ(vc.ausgabeF, "Die Gramsche Determinante der Matrix R beträgt 0.0   .\n"
                           "Ihre Frobenius-Norm beträgt 5.0   .\n");
    EXPECT_FALSE(vc.eingabeFbGruen);
    EXPECT_EQ(vc.notizF, "");
    vc.eingabeFb = "Q";
    vc.gram();
    EXPECT_EQ(vc.ausgabeF, "Die Gramsche Determinante der Matrix Q beträgt 36.0   .\n"
                           "Ihre Frobenius-Norm beträgt 3.60555127546399   .\n"
                           "det(Q) = 6.0   .\n");
    EXPECT_EQ(vc.zelle(0, 0).text, "t");
    EXPECT_FALSE(vc.zelle(7, 7).versteckt);
}

TEST_F(FensterTest, RoundingTheTableau) {
    vc.fensterAktion("rundenB");
    EXPECT_EQ(plattform.piepse(), 1);

    vc.zelle(1, 2).text = "3.14159";
    vc.zelle(0, 0).text = "x";
    vc.spalteF = "4";
    listenZustand().dezimalen = 2;
    vc.rundenB();
    EXPECT_EQ(sichtbar(), "x|0.00|0.00;0.00|0.00|3.14");
    EXPECT_EQ(vc.spalteF, "");
    EXPECT_EQ(vc.notizF,
              "Die Komponenten der Eingabematrix wurden auf 2 Nachkommastellen gerundet.");

    vc.tableauLoeschen();
    vc.zelle(0, 0).text = "2.25";
    listenZustand().dezimalen = 1;
    vc.rundenB();
    EXPECT_EQ(sichtbar(), "2.2");
    EXPECT_EQ(vc.notizF,
              "Die Komponenten der Eingabematrix wurden auf 1 Nachkommastelle gerundet.");
    EXPECT_EQ(plattform.piepse(), 1);
    EXPECT_EQ(seiten(), 0);
}

} // namespace
} // namespace tabulon
