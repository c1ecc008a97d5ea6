// The commands where a fault would not show in a transcript: every refusal of the computation
// commands in one table, the free-name button with every letter taken, and how random numbers
// become entries.

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
        EXPECT_EQ(protokollZustand().maxSeitenNr, 0);
        EXPECT_EQ(sichtbar(), "t|||||||;|||||||;|||||||;|||||||;|||||||;|||||||;|||||||;|||||||");
    }
}

TEST_F(FensterTest, FreeNameButtonWithEveryLetterTaken) {
    for (const auto& n : alphabetGross()) {
        speichere(n, {{"1"}});
    }
    tippe({{"7"}});
    vc.eingabeFb = "k";
    vc.fensterAktion("freierMatrixNameB");
    EXPECT_EQ(vc.eingabeFb, "K");
    EXPECT_EQ(vc.notizF, "Der Name 'K' ist als Matrixname nicht mehr verfügbar.");
    EXPECT_EQ(plattform.ereignisse, std::vector<std::string>{"piep"});
    EXPECT_EQ(listenZustand().sMatrixListe.at("K").string(), "1     \n");
}

TEST_F(FensterTest, RandomNumbersBecomeEntriesFromMinusNineToEight) {
    plattform.zufall = {0, 17, 9, 8, 18};
    vc.zeileF = "2";
    vc.spalteF = "2";
    vc.fensterAktion("genZufallsMatrixB");
    EXPECT_EQ(sichtbar(), "-9|8;0|-1");
    EXPECT_EQ(plattform.zufall.size(), 1u); // one draw per entry, row by row
    vc.zeileF = "3";
    vc.spalteF = "2147483647"; // one size out of range: 8 x 8
    vc.genZufallsM();
    EXPECT_EQ(vc.notizF, "Eine (8,8)-Zufallsmatrix wurde erzeugt.");
}

} // namespace
} // namespace tabulon
