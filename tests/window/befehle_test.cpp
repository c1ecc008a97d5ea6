// The commands where a fault would not show in a transcript: every refusal of the computation
// commands in one table, the free-name button with every letter taken, and how random numbers
// become entries.

#include "app/zustand.h"
#include "fenstertest.h"

namespace tabulon {
namespace {

using VC = ViewController;

// One row per refusal: the command, the matrix stored under "M" as "a|b;c|d" (none when empty),
// whether the name field turns green, and the note.
struct Ablehnung {
    void (VC::*befehl)();
    std::string matrix;
    bool gruen;
    std::string notiz;
};

TEST_F(FensterTest, RefusedComputationsBeepAndChangeNothing) {
    const std::vector<Ablehnung> faelle = {
        {&VC::transponiere, "", false,
         "Bitte Namen der zu transponierenden Matrix im Feld 'Name' angeben."},
        {&VC::invertiere, "", false,
         "Bitte Namen der zu invertierenden Matrix im Feld 'Name' angeben."},
        {&VC::invertiere, "1|2", false, "Die Matrix M ist nicht quadratisch."},
        {&VC::invertiere, "0", false, "Die singuläre Matrix M ist nicht invertierbar."},
        {&VC::gausse, "", false, "Bitte Namen der umzuformenden Matrix im Feld 'Name' angeben."},
        {&VC::gausse, "1|2|3|4|5", false, "Zeilen- und Spaltenzahl sollten mindestens 2 betragen."},
        {&VC::gausse, "1;2;3", false, "Zeilen- und Spaltenzahl sollten mindestens 2 betragen."},
        {&VC::genErzSystemVomKern, "", true, "Bitte Namen der Matrix im Feld 'Name' angeben."},
        {&VC::orthonormiere, "", false, "Bitte Namen einer Matrix im Feld 'Name' angeben."},
        {&VC::orthonormiere, "0|;0.0|abc", false,
         "Alle Spalten von M sind Nullvektoren: es gibt kein ONB, die Eingabematrix bleibt "
         "unverändert."},
        {&VC::gram, "", true,
         "Bitte Namen einer in der Liste existierenden Matrix im Feld 'Name' angeben."},
    };
    for (std::size_t f = 0; f < faelle.size(); ++f) {
        SCOPED_TRACE(f);
        allesZuruecksetzen();
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
        speichere(n, "1");
    }
    tippe({{"7"}});
    vc.eingabeFb = "k";
    vc.fensterAktion("freierMatrixNameB");
    EXPECT_EQ(vc.eingabeFb, "K");
    EXPECT_EQ(vc.notizF, "Der Name 'K' ist als Matrixname nicht mehr verfügbar.");
    EXPECT_EQ(plattform.ereignisse, std::vector<std::string>{"piep"});
    EXPECT_EQ(listenZustand().sMatrixListe.at("K").string(), "1     \n");
}

// One draw below 18 per entry, row by row, becomes an entry from -9 to 8.
TEST_F(FensterTest, RandomNumbersBecomeEntriesFromMinusNineToEight) {
    plattform.zufall = {0, 17, 18, 5};
    vc.zeileF = "1";
    vc.spalteF = "3";
    vc.fensterAktion("genZufallsMatrixB");
    EXPECT_EQ(sichtbar(), "-9|8|-9");
    EXPECT_EQ(plattform.zufall.size(), 1u);
}

} // namespace
} // namespace tabulon
