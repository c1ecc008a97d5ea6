#include "dateitest.h"

namespace tabulon {
namespace {

const std::string speicherFrage = "Dieser Befehl überschreibt eine eventuell existierende frühere "
                                  "Datei mit Matrizen. Trotzdem speichern?";
const std::string ladeFrage = "Dieser Befehl überschreibt alle Matrizen der Liste, deren Namen "
                              "bei den zu ladenden Matrizen ebenfalls vorkommen. Trotzdem laden?";
const std::string geladen = "Die im Dokumente-Ordner gespeicherten Matrizen wurden geladen. ";

using DateibefehleTest = DateiTest;

TEST_F(DateibefehleTest, SpeichernFragtUndSchreibtNurNachJa) {
    beispielListe();
    vc.speichern(); // answered "Nein, lieber nicht"
    EXPECT_EQ(plattform.fragen, std::vector<std::string>{speicherFrage});
    EXPECT_TRUE(dateien().empty());
    EXPECT_EQ(vc.notizF, "");

    plattform.antworten = {Plattform::ersterKnopf};
    vc.speichern();
    EXPECT_EQ(inhalt("Matrix_MatDats.txt"), "A%2%2%1%2%3%4%C%1%3%-0.5%1e3%0.0%end%");
    EXPECT_EQ(vc.notizF, "Die Matrizen der Liste wurden im Dokument-Ordner gespeichert.");
    EXPECT_EQ(plattform.piepse, 0);

    // A write failure shows the writer's message, without a beep.
    plattform.ordner = ordner / "fehlt";
    plattform.antworten = {Plattform::ersterKnopf};
    vc.speichern();
    EXPECT_EQ(vc.notizF.rfind("Failed writing to URL: file://", 0), 0u) << vc.notizF;
    EXPECT_EQ(plattform.piepse, 0);
}

TEST_F(DateibefehleTest, SpeichernVerweigertProzentUndBehaeltDieAlteDatei) {
    lege("Matrix_MatDats.txt", "A%1%1%1%end%");
    liste("B", {{"50%"}});
    plattform.antworten = {Plattform::ersterKnopf};
    vc.speichern();
    EXPECT_EQ(inhalt("Matrix_MatDats.txt"), "A%1%1%1%end%");
    EXPECT_EQ(vc.notizF.rfind("Die Matrix B kann nicht gespeichert werden", 0), 0u);
    EXPECT_EQ(plattform.piepse, 1);
    EXPECT_EQ(dateien(), std::vector<std::string>{"Matrix_MatDats.txt"});
}

TEST_F(DateibefehleTest, LadenNachFrischemStartUndNachJa) {
    lege("Matrix_MatDats.txt", "A%2%2%1%2%3%4%C%1%3%-0.5%1e3%0.0%end%");
    vc.ausgabeF = "alt";
    vc.laden(); // an empty list loads without a question
    EXPECT_TRUE(plattform.fragen.empty());
    EXPECT_EQ(listenZustand().sMatrixListe.size(), 2u);
    EXPECT_EQ(listenZustand().smNamen.count("A") + listenZustand().smNamen.count("C"), 0u);
    EXPECT_EQ(vc.ausgabeF, "\n Namen in der Liste definierter Matrizen:\n\n A(2,2)  C(1,3)   \n\n");
    EXPECT_EQ(vc.notizF, geladen);
    EXPECT_EQ(vc.mListeF, "A\nC\n");

    listenZustandZuruecksetzen();
    liste("A", {{"9"}});
    liste("B", {{"8"}});
    vc.laden(); // "Nein, lieber nicht": nothing changes
    EXPECT_EQ(plattform.fragen, std::vector<std::string>{ladeFrage});
    EXPECT_EQ(listenZustand().sMatrixListe.at("A").grid, std::vector<std::string>{"9"});
    EXPECT_EQ(listenZustand().sMatrixListe.size(), 2u);

    plattform.antworten = {Plattform::ersterKnopf};
    vc.laden();
    EXPECT_EQ(listenZustand().sMatrixListe.at("A").rows, 2);
    EXPECT_EQ(listenZustand().sMatrixListe.at("B").grid, std::vector<std::string>{"8"});
    EXPECT_EQ(listenZustand().sMatrixListe.count("C"), 1u);
    EXPECT_EQ(vc.mListeF, "A\nB\nC\n");
    EXPECT_EQ(plattform.piepse, 0);
}

TEST_F(DateibefehleTest, LadenVerweigertFehlendeUndKaputteDateien) {
    liste("B", {{"8"}});
    const ListenZustand vorher = listenZustand();
    vc.ausgabeF = "alt";
    plattform.antworten = {Plattform::ersterKnopf, Plattform::ersterKnopf};
    vc.laden();
    EXPECT_EQ(vc.notizF, "Keine Datei mit gespeicherten Matrizen im Dokumenten-Ordner gefunden.");
    EXPECT_EQ(plattform.piepse, 1);

    lege("Matrix_MatDats.txt", "A%1%1%1%B%3%1%2%end%");
    vc.laden();
    EXPECT_EQ(vc.notizF, "Die Datei 'Matrix_MatDats.txt' wurde nicht geladen: Der Matrix B fehlen "
                         "Einträge. Die Liste ist unverändert.");
    EXPECT_EQ(plattform.piepse, 2);
    EXPECT_EQ(listenZustand().sMatrixListe, vorher.sMatrixListe);
    EXPECT_EQ(listenZustand().smNamen, vorher.smNamen);
    EXPECT_EQ(vc.ausgabeF, "alt");
    EXPECT_EQ(protokollZustand().maxSeitenNr, 0);
}

TEST_F(DateibefehleTest, TexBefehle) {
    vc.texAusgabeAlle();
    EXPECT_EQ(vc.notizF, "Die Liste aller Matrizen scheint leer zu sein.");
    EXPECT_EQ(plattform.piepse, 1);

    beispielListe();
    vc.eingabeFb = "a";
    vc.texAusgabeEinzel();
    EXPECT_EQ(vc.notizF, "Die Datei Matrix_A wurde im  Dokument-Ordner gespeichert.");
    EXPECT_EQ(inhalt("Matrix_A.txt"),
              vc.listeAllerMatrizen().substr(3, inhalt("Matrix_A.txt").size()));

    for (const std::string name : {"B", "", "../A", "A/"}) {
        vc.eingabeFb = name;
        vc.texAusgabeEinzel();
        EXPECT_EQ(vc.notizF, "Da hat irgendetwas nicht funktioniert.");
    }
    EXPECT_EQ(plattform.piepse, 5);

    vc.texAusgabeAlle();
    EXPECT_EQ(vc.notizF, "Die Datei 'Matrix_Alle'  wurde im  Dokument-Ordner gespeichert.");
    EXPECT_EQ(inhalt("Matrix_Alle.txt"), vc.listeAllerMatrizen());
    EXPECT_EQ(dateien(), (std::vector<std::string>{"Matrix_A.txt", "Matrix_Alle.txt"}));

    plattform.ordner = ordner / "fehlt";
    vc.texAusgabeAlle();
    EXPECT_EQ(vc.notizF, "Da hat beim Speichern irgendetwas nicht funktioniert.");
    vc.eingabeFb = "C";
    vc.texAusgabeEinzel();
    EXPECT_EQ(vc.notizF, "Da hat irgendetwas nicht funktioniert.");
    EXPECT_EQ(plattform.piepse, 7);
}

TEST_F(DateibefehleTest, ProtokollSpeichern) {
    vc.protoSpeichern();
    EXPECT_EQ(inhalt("Matrix_proto.txt"), "\n");
    EXPECT_EQ(vc.notizF, "Das Protokoll wurde im Doku-Ordner als 'Matrix_proto.txt' gespeichert.");
    vc.ausgabe("eins");
    vc.ausgabe("zwei\n");
    vc.protoSpeichern();
    EXPECT_EQ(inhalt("Matrix_proto.txt"), "\n\neins\nzwei\n");

    plattform.ordner = ordner / "fehlt";
    vc.notiz("bleibt");
    vc.protoSpeichern();
    EXPECT_EQ(vc.notizF, "bleibt");
    EXPECT_EQ(plattform.piepse, 1);
}

} // namespace
} // namespace tabulon
