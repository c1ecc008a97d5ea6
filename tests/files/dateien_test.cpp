// What the transcripts of tests/transkripte/dateien cannot see: the files on disk, their exact
// bytes, the failures of a folder and every way a list file can be damaged.
#include "app/zustand.h"
#include "files/dokumente.h"
#include "files/listendatei.h"
#include "files/tex.h"
#include "textmatrix/liste.h"
#include "window/tableau.h"
#include "window/viewcontroller.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace tabulon {
namespace {

// Answers every question with its first button, records beeps, keeps files in the test's folder.
class DateiPlattform : public Plattform {
public:
    std::optional<std::filesystem::path> ordner;
    int piepse = 0;

    void piep() override { ++piepse; }
    int frage(const std::string&, const std::string&, const std::string&) override {
        return ersterKnopf;
    }
    std::uint32_t zufallUnter(std::uint32_t) override { return 0; }
    void beenden(int) override {}
    std::optional<std::filesystem::path> dokumentenOrdner() override { return ordner; }
};

class DateiTest : public ::testing::Test {
protected:
    DateiTest() {
        allesZuruecksetzen();
        std::string muster = (std::filesystem::temp_directory_path() / "tabulon-XXXXXX").string();
        ordner = mkdtemp(muster.data());
        plattform.ordner = ordner;
    }
    ~DateiTest() override {
        std::error_code fehler;
        std::filesystem::remove_all(ordner, fehler);
    }

    // A matrix of the given rows, its entries row by row.
    static void liste(const std::string& name, std::int64_t zeilen, std::vector<std::string> e) {
        SMatrix m(zeilen, static_cast<std::int64_t>(e.size()) / zeilen);
        m.grid = std::move(e);
        listenZustand().sMatrixListe[name] = m;
        listenZustand().smNamen.erase(name);
    }
    static void beispielListe() {
        liste("A", 2, {"1", "2", "3", "4"});
        liste("C", 1, {"-0.5", "1e3", "0.0"});
    }

    std::string inhalt(const std::string& datei) const {
        std::ifstream ein(ordner / datei, std::ios::binary);
        return {std::istreambuf_iterator<char>(ein), std::istreambuf_iterator<char>()};
    }
    void lege(const std::string& datei, const std::string& text) const {
        std::ofstream(ordner / datei, std::ios::binary) << text;
    }
    std::ptrdiff_t dateien() const {
        return std::distance(std::filesystem::directory_iterator(ordner), {});
    }

    std::filesystem::path ordner;
    DateiPlattform plattform;
    ViewController vc{plattform};
};

TEST_F(DateiTest, SpeichernErsetztDieDateiGanzOderLaesstSieStehen) {
    // A folder in the way of the target: the rename fails, nothing else is touched.
    std::filesystem::create_directory(ordner / "Matrix_Z.txt");
    lege("Matrix_Z.txt/drin", "alt");
    const auto [ok, meldung] = schreiben(ordner, "Z", "neu");
    EXPECT_FALSE(ok);
    EXPECT_EQ(meldung.rfind("Failed writing to URL: file://", 0), 0u) << meldung;
    EXPECT_EQ(inhalt("Matrix_Z.txt/drin"), "alt");
    std::filesystem::remove_all(ordner / "Matrix_Z.txt");

    beispielListe();
    vc.speichern();
    EXPECT_EQ(inhalt("Matrix_MatDats.txt"), "A%2%2%1%2%3%4%C%1%3%-0.5%1e3%0.0%end%");
    // The shorter text replaces the file whole, and no temporary file is left behind.
    allesZuruecksetzen();
    vc.speichern();
    EXPECT_EQ(inhalt("Matrix_MatDats.txt"), "end%");
    EXPECT_EQ(dateien(), 1);

    // A missing folder is created; one that cannot be, because a file stands in its place, is a
    // failed write, for the list, both TeX exports and the protocol alike, and on loading no
    // file is found.
    plattform.ordner = ordner / "neu" / "gibt es";
    vc.speichern();
    EXPECT_EQ(vc.notizF, "Die Matrizen der Liste wurden im Dokument-Ordner gespeichert.");
    EXPECT_EQ(inhalt("neu/gibt es/Matrix_MatDats.txt"), "end%");
    lege("Datei", "kein Ordner");
    plattform.ordner = ordner / "Datei" / "Dokumente";
    vc.speichern();
    EXPECT_EQ(vc.notizF, "Failed writing to URL: file://" + ordner.string() +
                             "/Datei/Dokumente/Matrix_MatDats.txt, Error: Not a directory");
    EXPECT_EQ(plattform.piepse, 0);
    beispielListe();
    vc.eingabeFb = "A";
    vc.texAusgabeEinzel();
    EXPECT_EQ(vc.notizF, "Da hat irgendetwas nicht funktioniert.");
    vc.texAusgabeAlle();
    EXPECT_EQ(vc.notizF, "Da hat beim Speichern irgendetwas nicht funktioniert.");
    vc.notiz("");
    vc.protoSpeichern();
    EXPECT_EQ(vc.notizF, "");
    EXPECT_EQ(plattform.piepse, 3);
    vc.laden();
    EXPECT_EQ(vc.notizF, keineDateiMeldung);
    EXPECT_EQ(plattform.piepse, 4);
    EXPECT_EQ(inhalt("Datei"), "kein Ordner");
}

TEST_F(DateiTest, SpeichernBehaeltRechteUndRaeumtReste) {
    // The mode of the file being replaced survives; a new file gets the umask's.
    const mode_t maske = ::umask(077);
    vc.speichern();
    ::umask(maske);
    const auto rechte = [this] {
        struct stat info {};
        ::stat((ordner / "Matrix_MatDats.txt").c_str(), &info);
        return info.st_mode & 07777;
    };
    EXPECT_EQ(rechte(), 0600u);
    ::chmod((ordner / "Matrix_MatDats.txt").c_str(), 0640);
    beispielListe();
    vc.speichern();
    EXPECT_EQ(rechte(), 0640u);

    // Leftovers of killed saves to this name go, those of this process too; a save of a running
    // process (pid 1 always runs), other names and files of other naming stay.
    const std::string eigene = ".Matrix_MatDats.txt." + std::to_string(::getpid()) + "-7.tmp";
    const std::vector<std::string> reste{".Matrix_MatDats.txt.4194305-0.tmp", eigene};
    const std::vector<std::string> bleiben{
        ".Matrix_MatDats.txt.1-0.tmp", ".Matrix_A.txt.4194305-0.tmp", ".Matrix_MatDats.txt.x-0.tmp",
        "Matrix_MatDats.txt.4194305-0.tmp"};
    for (const auto& datei : reste) {
        lege(datei, "halb");
    }
    for (const auto& datei : bleiben) {
        lege(datei, "halb");
    }
    vc.speichern();
    for (const auto& datei : reste) {
        EXPECT_FALSE(std::filesystem::exists(ordner / datei)) << datei;
    }
    for (const auto& datei : bleiben) {
        EXPECT_TRUE(std::filesystem::exists(ordner / datei)) << datei;
    }
    EXPECT_EQ(inhalt("Matrix_MatDats.txt"), "A%2%2%1%2%3%4%C%1%3%-0.5%1e3%0.0%end%");
}

TEST_F(DateiTest, GrosseDateienKostenNurIhreGrenze) {
    // A sparse file of 4 GiB costs no disk; only the limit and one byte of it are read.
    { std::ofstream(ordner / "Matrix_MatDats.txt"); }
    std::filesystem::resize_file(ordner / "Matrix_MatDats.txt", std::uintmax_t{4} << 30);
    const auto [ok, text] = lesen(ordner, "Matrix_MatDats", groessteListendatei);
    EXPECT_TRUE(ok);
    EXPECT_EQ(text.size(), groessteListendatei + 1);
    liste("B", 1, {"5"});
    vc.laden();
    EXPECT_EQ(vc.notizF, "Die Datei 'Matrix_MatDats.txt' wurde nicht geladen: Sie ist zu groß für "
                         "eine Matrixliste. Die Liste ist unverändert.");
    EXPECT_EQ(plattform.piepse, 1);

    // What the writer accepts, the reader loads back: a list just at the limit saves and loads;
    // one byte more is refused before anything is written.
    allesZuruecksetzen();
    const std::string rahmen = "A%1%1%%end%";
    liste("A", 1, {std::string(groessteListendatei - rahmen.size(), '7')});
    EXPECT_EQ(codierteLaenge(), groessteListendatei);
    vc.speichern();
    EXPECT_EQ(vc.notizF, "Die Matrizen der Liste wurden im Dokument-Ordner gespeichert.");
    const ListenZustand gespeichert = listenZustand();
    allesZuruecksetzen();
    vc.laden();
    EXPECT_EQ(listenZustand().sMatrixListe, gespeichert.sMatrixListe);
    listenZustand().sMatrixListe["A"].grid[0] += "7";
    vc.speichern();
    EXPECT_EQ(vc.notizF,
              "Die Liste ist zu groß: ihre Datei wäre länger als 1048576 Bytes, und eine "
              "längere Datei wird nicht geladen. Die Datei 'Matrix_MatDats.txt' wurde "
              "nicht verändert.");
    EXPECT_EQ(plattform.piepse, 2);
    EXPECT_EQ(std::filesystem::file_size(ordner / "Matrix_MatDats.txt"), groessteListendatei);
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
        EXPECT_FALSE(lesen(innen, name, 100).first);
    }
    EXPECT_EQ(dateien(), 1);
    EXPECT_TRUE(std::filesystem::is_empty(innen));
    EXPECT_TRUE(sichererDateiname("a.b") && sichererDateiname("ä"));
}

TEST_F(DateiTest, LesenVerweigertFehlendeOrdnerUndRohre) {
    const std::pair<bool, std::string> keine{false, keineDateiMeldung};
    EXPECT_EQ(lesen(ordner, "Matrix_MatDats", 100), keine);
    std::filesystem::create_directory(ordner / "Matrix_D.txt");
    EXPECT_EQ(lesen(ordner, "Matrix_D", 100), keine);
    // A named pipe must neither block nor be read.
    ASSERT_EQ(mkfifo((ordner / "Matrix_P.txt").c_str(), 0600), 0);
    EXPECT_EQ(lesen(ordner, "Matrix_P", 100), keine);
}

TEST_F(DateiTest, TexUndProtokollDateien) {
    listenZustand().dezimalen = 2;
    beispielListe();
    EXPECT_EQ(tex("A", 2), "\\begin {displaymath}\n"
                           "A = \\left(\\begin {array} {cc}\n"
                           "1.00  & 2.00\\\\\n"
                           "3.00  & 4.00\\\\\n"
                           "\\end {array} \\right) \n"
                           "\\end {displaymath}\n");
    vc.eingabeFb = "a";
    vc.texAusgabeEinzel();
    vc.texAusgabeAlle();
    EXPECT_EQ(inhalt("Matrix_A.txt"), tex("A", 2));
    EXPECT_EQ(inhalt("Matrix_Alle.txt"), "A:\n" + tex("A", 2) + "\n\nC:\n" + tex("C", 2) + "\n\n");
    vc.ausgabe("eins");
    vc.protoSpeichern();
    EXPECT_EQ(inhalt("Matrix_proto.txt"), "\n\neins");
}

TEST_F(DateiTest, LiestAuchUngewoehnlicheAberHarmloseDateien) {
    // A byte-order mark, blanks everywhere, a hand-edited name, an empty entry, an entry that reads
    // "end", leading zeros in a count, a later record of the same name, and text after "end".
    liste("D", 1, {"9"});
    liste("B", 1, {"8"});
    const auto [meldung, ok] = codestringDecodieren(
        "\xEF\xBB\xBF a b %1%2%1 2%x%D%01%2%%end%D%1%1%-0. 5%end%alles danach%egal");
    EXPECT_TRUE(ok) << meldung;
    const auto& l = listenZustand();
    ASSERT_EQ(l.sMatrixListe.size(), 3u);
    EXPECT_EQ(l.sMatrixListe.at("ab").grid, (std::vector<std::string>{"12", "x"}));
    EXPECT_EQ(l.sMatrixListe.at("D").grid, std::vector<std::string>{"-0.5"});
    EXPECT_EQ(l.sMatrixListe.at("B").grid, std::vector<std::string>{"8"});
    EXPECT_EQ(l.smNamen.size(), 24u); // "ab" was never a free name
}

TEST_F(DateiTest, SpeichernVerweigertWasNichtZurueckkaeme) {
    liste("A", 1, {"1"});
    liste("M", 9, {"1", "2", "3", "4", "5", "6", "7", "8", "9"}); // more rows than a file may hold
    EXPECT_EQ(speicherHindernis(), "Die Liste lässt sich nicht so speichern, dass sie unverändert "
                                   "wieder geladen werden kann. Die Datei 'Matrix_MatDats.txt' "
                                   "wurde nicht verändert.");
    liste("M", 1, {"1%"});
    EXPECT_EQ(speicherHindernis(), "Die Matrix M kann nicht gespeichert werden: ein Eintrag "
                                   "enthält das Zeichen '%', das in der Datei die Felder trennt. "
                                   "Die Datei 'Matrix_MatDats.txt' wurde nicht verändert.");
    // Fields split at the byte "%" alone: an accent right after it stays in its entry; blanks
    // are simply dropped on reading.
    liste("M", 1, {"\xcc\x81 1 2"});
    EXPECT_EQ(speicherHindernis(), std::nullopt);
    const std::string text = alleMatrizenCodieren();
    allesZuruecksetzen();
    EXPECT_TRUE(codestringDecodieren(text).second);
    EXPECT_EQ(listenZustand().sMatrixListe.at("M").grid[0], "\xcc\x81"
                                                            "12");
}

struct Kaputt {
    std::string datei;
    std::string grund;
};

class KaputteDatei : public DateiTest, public ::testing::WithParamInterface<Kaputt> {};

// Refused whole with a note and a beep; the list, its output and the protocol stay as they were.
TEST_P(KaputteDatei, WirdGanzAbgelehnt) {
    beispielListe();
    liste("B", 1, {"5"});
    const ListenZustand vorher = listenZustand();
    lege("Matrix_MatDats.txt", GetParam().datei);
    vc.ausgabeF = "alt";
    vc.laden();
    EXPECT_EQ(vc.notizF, "Die Datei 'Matrix_MatDats.txt' wurde nicht geladen: " + GetParam().grund +
                             " Die Liste ist unverändert.");
    EXPECT_EQ(plattform.piepse, 1);
    EXPECT_EQ(listenZustand().sMatrixListe, vorher.sMatrixListe);
    EXPECT_EQ(listenZustand().smNamen, vorher.smNamen);
    EXPECT_EQ(vc.ausgabeF, "alt");
    EXPECT_EQ(protokollZustand().maxSeitenNr, 0);
}

const std::string ohneEnd = "Das abschließende Feld 'end' fehlt.";
const std::string name = "Sie enthält einen leeren oder unzulässigen Matrixnamen.";
const std::string zeilen = "Die Zeilenzahl der Matrix A ist keine ganze Zahl von 1 bis 8.";

INSTANTIATE_TEST_SUITE_P(
    Listendatei, KaputteDatei,
    ::testing::Values(
        Kaputt{"end", ohneEnd},
        Kaputt{"A%2%2%1%2%3%end%", ohneEnd}, // "end" taken as the last entry
        Kaputt{"A%0%1%end%", zeilen}, Kaputt{"A%9%1%1%2%3%4%5%6%7%8%9%end%", zeilen},
        Kaputt{"A%1%99999999999999999999%5%end%",
               "Die Spaltenzahl der Matrix A ist keine ganze Zahl von 1 bis 8."},
        Kaputt{"E%1%1%5%A%2%2%1%2%3%", "Der Matrix A fehlen Einträge."},
        Kaputt{"E%1%1%5%A%2%", "Die Matrix A ist unvollständig."}, Kaputt{"%1%1%5%end%", name},
        Kaputt{"?%1%1%5%end%", name}, Kaputt{"Fehler%1%1%5%end%", name},
        Kaputt{std::string(groessteListendatei - 3, ' ') + "end%xyzw",
               "Sie ist zu groß für eine Matrixliste."},
        // Just under the limit: refused at its first field, without a text per field.
        Kaputt{std::string(groessteListendatei, '%'), name},
        // The damage comes after a good record: the good one must not be entered either.
        Kaputt{"E%1%1%5%../x%1%1%5%end%", name}));

} // namespace
} // namespace tabulon
