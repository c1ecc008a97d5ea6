// The commands' questions and notes are followed step by step in the transcripts of
// tests/transkripte/dateien; here is what a transcript cannot see: the files on disk and the
// failures of a folder.
#include "dateitest.h"
#include "files/dokumente.h"
#include "files/tex.h"

namespace tabulon {
namespace {

using DateibefehleTest = DateiTest;

TEST_F(DateibefehleTest, SpeichernSchreibtDieDateiOderMeldetDenFehler) {
    beispielListe();
    plattform.antworten = {Plattform::ersterKnopf, Plattform::ersterKnopf};
    vc.speichern();
    EXPECT_EQ(inhalt("Matrix_MatDats.txt"), "A%2%2%1%2%3%4%C%1%3%-0.5%1e3%0.0%end%");
    EXPECT_EQ(dateien(), std::vector<std::string>{"Matrix_MatDats.txt"});

    plattform.ordner = ordner / "fehlt";
    vc.speichern();
    EXPECT_EQ(vc.notizF, "Failed writing to URL: " + dateiUrl(ordner) +
                             "/fehlt/Matrix_MatDats.txt, Error: No such file or directory");
    EXPECT_EQ(plattform.piepse, 0);
}

TEST_F(DateibefehleTest, KaputteDateiLaesstListeAusgabeUndProtokollStehen) {
    liste("B", {{"8"}});
    const ListenZustand vorher = listenZustand();
    lege("Matrix_MatDats.txt", "A%1%1%1%B%3%1%2%end%");
    vc.ausgabeF = "alt";
    plattform.antworten = {Plattform::ersterKnopf};
    vc.laden();
    EXPECT_EQ(vc.notizF, "Die Datei 'Matrix_MatDats.txt' wurde nicht geladen: Der Matrix B fehlen "
                         "Einträge. Die Liste ist unverändert.");
    EXPECT_EQ(plattform.piepse, 1);
    EXPECT_EQ(listenZustand().sMatrixListe, vorher.sMatrixListe);
    EXPECT_EQ(listenZustand().smNamen, vorher.smNamen);
    EXPECT_EQ(vc.ausgabeF, "alt");
    EXPECT_EQ(protokollZustand().maxSeitenNr, 0);
}

TEST_F(DateibefehleTest, TexDateienUndIhreFehlschlaege) {
    beispielListe();
    vc.eingabeFb = "a";
    vc.texAusgabeEinzel();
    vc.texAusgabeAlle();
    EXPECT_EQ(inhalt("Matrix_A.txt"), tex("A"));
    EXPECT_EQ(inhalt("Matrix_Alle.txt"), vc.listeAllerMatrizen());
    // A name that points elsewhere names no listed matrix and writes nothing.
    vc.eingabeFb = "../A";
    vc.texAusgabeEinzel();
    EXPECT_EQ(dateien(), (std::vector<std::string>{"Matrix_A.txt", "Matrix_Alle.txt"}));
    EXPECT_EQ(plattform.piepse, 1);

    plattform.ordner = ordner / "fehlt";
    vc.texAusgabeAlle();
    EXPECT_EQ(vc.notizF, "Da hat beim Speichern irgendetwas nicht funktioniert.");
    vc.eingabeFb = "C";
    vc.texAusgabeEinzel();
    EXPECT_EQ(vc.notizF, "Da hat irgendetwas nicht funktioniert.");
    EXPECT_EQ(plattform.piepse, 3);
}

TEST_F(DateibefehleTest, ProtokollDatei) {
    vc.protoSpeichern();
    EXPECT_EQ(inhalt("Matrix_proto.txt"), "\n");
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
