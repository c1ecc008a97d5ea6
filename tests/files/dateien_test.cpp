// What the transcripts of tests/transkripte/dateien cannot see: the files on disk, their exact
// bytes, and the failures of a folder.
#include "dateitest.h"
#include "files/dokumente.h"
#include "files/tex.h"

#include <sys/stat.h>

namespace tabulon {
namespace {

TEST_F(DateiTest, FehlschlagNenntUrlUndFehlerUndLaesstAlteDateiStehen) {
    EXPECT_EQ(dateiUrl(ordner / "gibt es nicht"),
              "file://" + ordner.string() + "/gibt%20es%20nicht");

    // A folder in the way of the target: the rename fails, nothing else is touched.
    std::filesystem::create_directory(ordner / "Matrix_Z.txt");
    lege("Matrix_Z.txt/drin", "alt");
    const auto [ok, meldung] = schreiben(ordner, "Z", "neu");
    EXPECT_FALSE(ok);
    EXPECT_EQ(meldung.rfind("Failed writing to URL: file://", 0), 0u) << meldung;
    EXPECT_EQ(inhalt("Matrix_Z.txt/drin"), "alt");
    EXPECT_EQ(dateien(), std::vector<std::string>{"Matrix_Z.txt"});
}

TEST_F(DateiTest, NamenDieDenOrdnerVerlassenKoennten) {
    std::filesystem::create_directory(ordner / "innen");
    const auto innen = ordner / "innen";
    for (const std::string name : {"", "../X", "a\\b", "..", "x\ny"}) {
        SCOPED_TRACE(name);
        EXPECT_FALSE(sichererDateiname(name));
        const auto [ok, meldung] = schreiben(innen, name, "böse");
        EXPECT_FALSE(ok);
        EXPECT_NE(meldung.find(", Error: Invalid argument"), std::string::npos) << meldung;
        EXPECT_FALSE(lesen(innen, name).first);
    }
    EXPECT_EQ(dateien(), std::vector<std::string>{"innen"});
    EXPECT_TRUE(std::filesystem::is_empty(innen));
    EXPECT_TRUE(sichererDateiname("a.b") && sichererDateiname("ä"));
}

TEST_F(DateiTest, LesenVerweigertFehlendeOrdnerUndRohre) {
    const std::pair<bool, std::string> keine{false, keineDateiMeldung};
    EXPECT_EQ(lesen(ordner, "Matrix_MatDats"), keine);
    std::filesystem::create_directory(ordner / "Matrix_D.txt");
    EXPECT_EQ(lesen(ordner, "Matrix_D"), keine);
    // A named pipe must neither block nor be read.
    ASSERT_EQ(mkfifo((ordner / "Matrix_P.txt").c_str(), 0600), 0);
    EXPECT_EQ(lesen(ordner, "Matrix_P"), keine);
}

TEST_F(DateiTest, BloeckeAufsByte) {
    listenZustand().dezimalen = 2;
    liste("A", 2, {"1", "2", "3", "4"});
    EXPECT_EQ(tex("A"), "\\begin {displaymath}\n"
                        "A = \\left(\\begin {array} {cc}\n"
                        "1.00  & 2.00\\\\\n"
                        "3.00  & 4.00\\\\\n"
                        "\\end {array} \\right) \n"
                        "\\end {displaymath}\n");
    liste("S", 1, {"1/2", "0.5", "x y"});
    EXPECT_NE(tex("S").find("\n1/2  & 0.50 & x y\\\\\n"), std::string::npos);
    liste("V", 3, {"1", "-2", "3"});
    EXPECT_NE(tex("V").find("{c}\n1.00 \\\\\n-2.00 \\\\\n3.00 \\\\\n\\end"), std::string::npos);
    listenZustand().dezimalen = 0;
    liste("E", 1, {"7"});
    EXPECT_NE(tex("E").find("E = \\left(\\begin {array} {c}\n7 \\\\\n"), std::string::npos);
    EXPECT_EQ(tex("B"), "");
}

TEST_F(DateiTest, SpeichernSchreibtDieDateiOderMeldetDenFehler) {
    plattform.antwort = Plattform::ersterKnopf;
    beispielListe();
    vc.speichern();
    EXPECT_EQ(inhalt("Matrix_MatDats.txt"), "A%2%2%1%2%3%4%C%1%3%-0.5%1e3%0.0%end%");
    // The shorter text replaces the file whole, and no temporary file is left behind.
    listenZustandZuruecksetzen();
    vc.speichern();
    EXPECT_EQ(inhalt("Matrix_MatDats.txt"), "end%");
    EXPECT_EQ(dateien(), std::vector<std::string>{"Matrix_MatDats.txt"});

    plattform.ordner = ordner / "fehlt";
    vc.speichern();
    EXPECT_EQ(vc.notizF, "Failed writing to URL: " + dateiUrl(ordner) +
                             "/fehlt/Matrix_MatDats.txt, Error: No such file or directory");
    EXPECT_EQ(plattform.piepse, 0);
}

TEST_F(DateiTest, KaputteDateiLaesstListeAusgabeUndProtokollStehen) {
    liste("B", 1, {"8"});
    const ListenZustand vorher = listenZustand();
    lege("Matrix_MatDats.txt", "A%1%1%1%B%3%1%2%end%");
    vc.ausgabeF = "alt";
    plattform.antwort = Plattform::ersterKnopf;
    vc.laden();
    EXPECT_EQ(vc.notizF, "Die Datei 'Matrix_MatDats.txt' wurde nicht geladen: Der Matrix B fehlen "
                         "Einträge. Die Liste ist unverändert.");
    EXPECT_EQ(plattform.piepse, 1);
    EXPECT_EQ(listenZustand().sMatrixListe, vorher.sMatrixListe);
    EXPECT_EQ(listenZustand().smNamen, vorher.smNamen);
    EXPECT_EQ(vc.ausgabeF, "alt");
    EXPECT_EQ(protokollZustand().maxSeitenNr, 0);
}

TEST_F(DateiTest, TexDateienUndIhreFehlschlaege) {
    beispielListe();
    vc.eingabeFb = "a";
    vc.texAusgabeEinzel();
    vc.texAusgabeAlle();
    EXPECT_EQ(inhalt("Matrix_A.txt"), tex("A"));
    EXPECT_EQ(inhalt("Matrix_Alle.txt"), "A:\n" + tex("A") + "\n\nC:\n" + tex("C") + "\n\n");

    plattform.ordner = ordner / "fehlt";
    vc.texAusgabeAlle();
    EXPECT_EQ(vc.notizF, "Da hat beim Speichern irgendetwas nicht funktioniert.");
    vc.eingabeFb = "C";
    vc.texAusgabeEinzel();
    EXPECT_EQ(vc.notizF, "Da hat irgendetwas nicht funktioniert.");
    EXPECT_EQ(plattform.piepse, 2);
}

TEST_F(DateiTest, ProtokollDatei) {
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
