// The list commands.

#include "fenstertest.h"

namespace tabulon {
namespace {

TEST_F(FensterTest, StoringTakesTheVisibleBlockWithoutEmptyRowsAndColumns) {
    vc.zelle(2, 3).text = "5";
    vc.eingabeFb = "a";
    vc.fensterAktion("einlistB");
    EXPECT_EQ(vc.eingabeFb, "A");
    EXPECT_EQ(listenZustand().sMatrixListe.at("A").string(), "5     \n");
    EXPECT_EQ(vc.ausgabeF, "A wurde eingelistet als: \n\n5     \n");
    EXPECT_EQ(vc.notizF, "Die Tableau-Matrix wurde unter dem Namen A in die Liste eingetragen.");
    EXPECT_EQ(vc.mListeF, "A\n");

    // A hidden column is not part of the stored block; an empty entry inside it becomes 0.0.
    vc.tableauLoeschen();
    tippe({{"1", "2", "9"}, {"", "4", ""}});
    for (int i = 0; i < 6; ++i) {
        vc.cminusB();
    }
    vc.eingabeFb = "B";
    vc.einlistB();
    EXPECT_EQ(listenZustand().sMatrixListe.at("B").string(), "1     2     \n0.0     4     \n");
    EXPECT_EQ(plattform.piepse(), 0);

    // Refusals: a name in use, an empty tableau, a name that is no single capital.
    const std::vector<std::pair<std::string, std::string>> abgelehnt = {
        {"B", "Der Name 'B' ist als Matrixname nicht mehr verfügbar."},
        {"AB", "?"},
        {"", "?"},
    };
    for (const auto& [name, notiz] : abgelehnt) {
        vc.eingabeFb = name;
        vc.eingabeFbGruen = true;
        vc.einlistB();
        EXPECT_EQ(vc.notizF, notiz);
        EXPECT_FALSE(vc.eingabeFbGruen);
    }
    EXPECT_EQ(plattform.piepse(), 1);
    vc.tableauLoeschen();
    vc.eingabeFb = "C";
    vc.einlistB();
    EXPECT_EQ(vc.notizF, "Es ist keine Matrix vorhanden - nur Leere");
    EXPECT_EQ(plattform.piepse(), 2);
    EXPECT_EQ(seiten(), 2);
}

TEST_F(FensterTest, FreeNameButtonAndDeleting) {
    for (const char* n : {"A", "B", "C"}) {
        speichere(n, {{"1"}});
    }
    tippe({{"7"}});
    vc.fensterAktion("auslistB"); // empty name field
    EXPECT_EQ(vc.notizF, "Welche Matrix aus der Liste löschen?");
    vc.eingabeFb = "b";
    vc.auslistB();
    EXPECT_EQ(vc.eingabeFb, "");
    EXPECT_EQ(vc.notizF, "ok");
    EXPECT_EQ(vc.ausgabeF, "Die Matrix B wurde aus der Liste entfernt.");
    EXPECT_EQ(vc.mListeF, "A\nC\n");
    vc.eingabeFb = "Q";
    vc.auslistenName();
    EXPECT_EQ(vc.notizF, "Es gibt in der Liste keine Matrix namens 'Q'  .");
    EXPECT_EQ(seiten(), 1);

    vc.eingabeFb = "z";
    vc.fensterAktion("freierMatrixNameB");
    EXPECT_EQ(vc.eingabeFb, "B");
    EXPECT_EQ(listenZustand().sMatrixListe.at("B").string(), "7     \n");

    // With every letter taken the field stays as typed and the store decides.
    for (const auto& n : alphabetGross()) {
        speichere(n, {{"1"}});
    }
    vc.eingabeFb = "k";
    vc.freierMatrixNameB();
    EXPECT_EQ(vc.eingabeFb, "K");
    EXPECT_EQ(vc.notizF, "Der Name 'K' ist als Matrixname nicht mehr verfügbar.");
}

TEST_F(FensterTest, CopyShowAndPrint) {
    speichere("C", {{"3.14159", "x"}});
    speichere("A", {{"1", "2", "3"}, {"4", "5", "6"}});
    vc.zelle(5, 5).text = "alt";
    vc.eingabeFb = "a";
    vc.fensterAktion("name2SMatrixB");
    EXPECT_EQ(sichtbar(), "1|2|3;4|5|6");
    EXPECT_EQ(vc.zelle(5, 5).text, "");
    EXPECT_EQ(vc.notizF, "Die Matrix A wurde im Eingabefeld eingetragen.");
    vc.eingabeFb = "q";
    vc.name2SMatrixB();
    EXPECT_EQ(vc.notizF, "Q = ??");

    vc.zeigeListe();
    EXPECT_EQ(vc.ausgabeF, "\n Namen in der Liste definierter Matrizen:\n\n A(2,3)  C(1,2)   \n\n");

    vc.eingabeFb = "C";
    for (const auto& [dezimalen, text, endung] :
         std::vector<std::tuple<int, std::string, std::string>>{{1, "3.1", ""}, {2, "3.14", "n"}}) {
        listenZustand().dezimalen = dezimalen;
        vc.druckeMatrix();
        EXPECT_EQ(vc.ausgabeF, "C\n" + text + "     x     \n");
        EXPECT_EQ(vc.notizF, "Ausgabe der Matrix C, Komponenten gerundet auf " +
                                 ganzText(dezimalen) + " Nachkommastelle" + endung);
    }
    EXPECT_EQ(plattform.piepse(), 0);
    vc.eingabeFb = "D";
    vc.druckeMatrix();
    EXPECT_EQ(vc.notizF, "Keine Matrix mit Namen > D < befindet sich in der Liste.");
    EXPECT_EQ(plattform.piepse(), 1);
}

TEST_F(FensterTest, EmptyingTheList) {
    vc.zeigeListe();
    EXPECT_EQ(vc.notizF, "Die Matrixliste ist leer.");
    vc.loescheGanzeListe(true);
    EXPECT_EQ(vc.notizF, "Die Matrixliste ist bereits leer.");
    EXPECT_EQ(plattform.piepse(), 2);

    speichere("A", {{"1"}});
    vc.mListeF = "A\n";
    vc.eingabeFb = "A";
    plattform.antworten = {Plattform::zweiterKnopf, 7, Plattform::ersterKnopf};
    vc.loescheGanzeListe(true);
    EXPECT_EQ(vc.notizF, "Die Matrixliste ist ");
    vc.listeLoeschen(true); // an unexpected answer counts as no
    EXPECT_EQ(vc.notizF, "Die Matrixliste ist ");
    EXPECT_TRUE(istMatrixName("A"));
    vc.loescheGanzeListe(true);
    EXPECT_EQ(vc.notizF, "Die Matrixliste ist jetzt leer.");
    EXPECT_EQ(vc.mListeF, "");
    EXPECT_EQ(vc.eingabeFb, "");
    EXPECT_EQ(listenZustand().smNamen.size(), 26u);

    // Without the question the list is emptied whatever it holds, and the field is not updated.
    speichere("B", {{"1"}});
    vc.mListeF = "B\n";
    vc.listeLoeschen(false);
    EXPECT_TRUE(listenZustand().sMatrixListe.empty());
    EXPECT_EQ(vc.mListeF, "B\n");
    EXPECT_EQ(vc.notizF, "Die Matrixliste ist jetzt leer.");
    EXPECT_EQ(plattform.ereignisse.size(), 5u); // two beeps and three questions
}

} // namespace
} // namespace tabulon
