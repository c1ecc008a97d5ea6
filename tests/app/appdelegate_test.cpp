// The menu reaches the window only through mainVC: every one of the 23 actions must call its own
// operation, and none may do anything before the window has registered.

#include "app/appdelegate.h"
#include "terms/parser.h"
#include "textmatrix/liste.h"
#include "window/tableau.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <unistd.h>

namespace tabulon {
namespace {

// Answers every question with its second button and records what happened.
struct Aufzeichnung : Plattform {
    std::filesystem::path ordner;
    int pieps = 0;
    std::vector<std::string> fragen;

    void piep() override { ++pieps; }
    int frage(const std::string& nachricht, const std::string&, const std::string&) override {
        fragen.push_back(nachricht);
        return zweiterKnopf;
    }
    std::uint32_t zufallUnter(std::uint32_t) override { return 0; }
    void beenden(int) override {}
    std::optional<std::filesystem::path> dokumentenOrdner() override { return ordner; }
};

// What one action leaves: the note line and the one question asked (unless null), and `auch`.
struct Fall {
    const char* aktion;
    const char* notiz;
    const char* frage = nullptr;
    std::function<void(const ViewController&, const Aufzeichnung&)> auch = {};
};

const char* const listeLeeren = "Wirklich die gesamte Matrixliste endgültig löschen?";

class AppDelegateTest : public ::testing::Test {
protected:
    void SetUp() override {
        listenZustandZuruecksetzen();
        tableauZustandZuruecksetzen();
        protokollZustandZuruecksetzen();
        termZustandZuruecksetzen();
        plattform.pieps = 0;
        plattform.fragen.clear();
        // One folder per process: ctest runs the tests of this file side by side.
        plattform.ordner = std::filesystem::path(::testing::TempDir()) /
                           ("tabulon_app_test_" + std::to_string(::getpid()));
        std::filesystem::remove_all(plattform.ordner);
        std::filesystem::create_directories(plattform.ordner);
    }
    void TearDown() override { std::filesystem::remove_all(plattform.ordner); }
    Aufzeichnung plattform;
};

TEST_F(AppDelegateTest, EveryMenuActionReachesItsOwnOperation) {
    // The state every action starts from: A is listed, the name field names the unknown B, the
    // term and count fields are empty, a cell and the note line hold text.
    const std::vector<Fall> faelle = {
        {"TableauLöschen", "", nullptr,
         [](const ViewController& vc, auto&) { EXPECT_EQ(vc.zelle(0, 0).text, ""); }},
        {"nMalAuswerten", nullptr, nullptr,
         [](const ViewController& vc, auto&) {
             EXPECT_EQ(vc.notizF.rfind("Was ist n ??", 0), 0u) << vc.notizF;
         }},
        {"termAuswerten", "Die Formel konnte nicht ausgewertet werden."},
        {"MatrixlisteLoeschen", "alt", listeLeeren},
        {"Invertiere", "Bitte Namen der zu invertierenden Matrix im Feld 'Name' angeben."},
        {"Transponiere", "Bitte Namen der zu transponierenden Matrix im Feld 'Name' angeben."},
        {"Orthonormiere", "Bitte Namen einer Matrix im Feld 'Name' angeben."},
        {"Gausse", "Bitte Namen der umzuformenden Matrix im Feld 'Name' angeben."},
        // Deleting clears the name field; the menu does not refresh the list field.
        {"loescheName", nullptr, nullptr,
         [](const ViewController& vc, auto&) {
             EXPECT_EQ(vc.eingabeFb, "");
             EXPECT_EQ(vc.mListeF, "vorher");
         }},
        {"charPolUndEwe", "alt", nullptr,
         [](const ViewController& vc, auto&) {
             EXPECT_EQ(vc.ausgabeF, "Angabe des Namens einer existierenden Matrix fehlt.");
         }},
        {"gramsche", "Bitte Namen einer in der Liste existierenden Matrix im Feld 'Name' angeben."},
        {"speichereEinzelmatrix", "Da hat irgendetwas nicht funktioniert."},
        {"texAusgabeAlleMatrizen",
         "Die Datei 'Matrix_Alle'  wurde im  Dokument-Ordner gespeichert."},
        {"loescheGanzeListe", "Die Matrixliste ist ", listeLeeren},
        {"genZufallsmatrix", "Eine (8,8)-Zufallsmatrix wurde erzeugt."},
        {"genErzSysVomKern", "Bitte Namen der Matrix im Feld 'Name' angeben."},
        {"genEinheitsmatrix", "Die (8,8)-Einheitsmatrix wurde eingetragen."},
        {"zeigeGanzeListe", "", nullptr,
         [](const ViewController& vc, auto&) {
             EXPECT_NE(vc.ausgabeF.find("A(2,2)"), std::string::npos) << vc.ausgabeF;
         }},
        {"druckeMatrixN", "Keine Matrix mit Namen > B < befindet sich in der Liste."},
        {"neustartM", "alt", "Wirklich alles (auch die gesamte Matrixliste) endgültig löschen?"},
        {"ladenM", "alt",
         "Dieser Befehl überschreibt alle Matrizen der Liste, deren Namen bei den zu ladenden "
         "Matrizen ebenfalls vorkommen. Trotzdem laden?"},
        {"speichernM", "alt",
         "Dieser Befehl überschreibt eine eventuell existierende frühere Datei mit Matrizen. "
         "Trotzdem speichern?"},
        {"protoSpeichern",
         "Das Protokoll wurde im Doku-Ordner als 'Matrix_proto.txt' gespeichert."},
    };

    ASSERT_EQ(faelle.size(), AppDelegate::menueNamen().size());
    for (std::size_t i = 0; i < faelle.size(); ++i) {
        const Fall& fall = faelle[i];
        SCOPED_TRACE(fall.aktion);
        EXPECT_EQ(AppDelegate::menueNamen()[i], fall.aktion);
        SetUp();

        ViewController vc(plattform);
        AppDelegate delegate;
        vc.viewDidLoad([&](ViewController& v) { delegate.mainVC = &v; });
        ASSERT_EQ(delegate.mainVC, &vc);

        SMatrix a(2, 2);
        a.grid = {"1", "2", "3", "4"};
        ASSERT_TRUE(a.einlistenAls("A").second);
        vc.eingabeFb = "B";
        vc.zelle(0, 0).text = "7";
        vc.notizF = "alt";
        vc.mListeF = "vorher";

        ASSERT_TRUE(delegate.menueAktion(fall.aktion));
        if (fall.notiz) {
            EXPECT_EQ(vc.notizF, fall.notiz);
        }
        if (fall.frage) {
            EXPECT_EQ(plattform.fragen, std::vector<std::string>{fall.frage});
        } else {
            EXPECT_TRUE(plattform.fragen.empty());
        }
        if (fall.auch) {
            fall.auch(vc, plattform);
        }
    }
}

TEST_F(AppDelegateTest, NothingHappensBeforeTheWindowRegisters) {
    ViewController vc(plattform);
    vc.zelle(0, 0).text = "7";
    vc.notizF = "alt";
    AppDelegate delegate;
    for (const auto name : AppDelegate::menueNamen()) {
        EXPECT_TRUE(delegate.menueAktion(name)) << name;
    }
    EXPECT_EQ(vc.zelle(0, 0).text, "7");
    EXPECT_EQ(vc.notizF, "alt");
    EXPECT_EQ(plattform.pieps, 0);
    EXPECT_TRUE(plattform.fragen.empty());
}

} // namespace
} // namespace tabulon
