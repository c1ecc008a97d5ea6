#include "app/hilfetexte.h"
#include "app/tabulonhilfen.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace tabulon {
namespace {

struct HilfeZeile {
    std::string_view aktion;
    const std::string_view* text;
    std::string_view titel;
};

// loescheListeHT has no action of its own; it is checked with loescheH below.
const HilfeZeile hilfeTabelle[] = {
    {"allgInfoB", &allgInfoH, "Allgemeine Information zum Programm Tabulon V 1.026"},
    {"anweisungH", &anweisungsH, "Hilfethema: Anweisung zur Auswertung eines Matrixterms "},
    {"nMalAusfuehrungH", &nMalAusfuehrungHT, "Hilfethema: n-malige Auswertung eines Matrixterms "},
    {"einauslistenH", &einauslistenHT, "Hilfethema: Matrixbewegungen zwischen Liste und Tableau "},
    {"loescheH", &loescheHT, "Hilfethema: Löschen einer Matrix aus der Liste"},
    {"druckeH", &druckeHT, "Hilfethema: Ausgabe einer Matrix oder aller MatrixNamen aus der Liste"},
    {"freierMAtrixNameH", &freierMAtrixNameHT,
     "Hilfethema: Zuweisung eines verfügbaren Matrixnamens"},
    {"elemZeilenUmfH", &elemZeilenUmfHT,
     "Hilfethema: Elementare Zeilenumformungen (Gauss-Verfahren)"},
    {"transponiereH", &transponiereHT, "Hilfethema: Transponieren einer Matrix"},
    {"basisZuKernH", &basisZuKernHT, "Hilfethema: Eine Basis zum Kern einer linearen Abbildung "},
    {"invertiereH", &invertiereHT, "Hilfethema: Invertieren einer Matrix "},
    {"orthonormiereH", &orthonormiereHT, "Hilfethema: Orthonormieren eines Erzeugendensystems "},
    {"charPolynomEigenwerteH", &charPolynomEigenwerteHT,
     "Hilfethema:  Charakteristisches Polynom und reelle Eigenwerte einer Matrix"},
    {"gramscheDetH", &gramscheDetHT, "Hilfethema:  Gramsche Determinante"},
    {"matrixRaendern", &matrixRaendernHT, "Hilfethema:  Rändern einer Matrix"},
    {"zufallsMatrix", &zufallsMatrixHT, "Hilfethema:  Erzeugen einer Zufallsmatrix"},
    {"Runden", &RundenHT, "Hilfethema:  Runden der Komponenten einer Matrix"},
    {"protoAktionenH", &protoAktionenHT, "Hilfethema:  Protokoll - Aktionen"},
    {"EzH", &EzHT, "Hilfethema:  Erzeugen einer Einheitsmatrix gewünschter Größe"},
    {"texSpeichernH", &texSpeichernHT,
     "Hilfethema:  Schreiben im TEX-Format als Textdatei in den Dokumente-Ordner"},
    {"protoSpeichernH", &protoSpeichernHT,
     "Hilfethema:  Speichern des Protokolls im Dokumente-Ordner"},
    {"matrixGroesseAendern", &matrixGroesseAendernHT,
     "Hilfethema:  Anhängen/Entfernen einer zusätzlichen/der letzten "
     "Matrixzeile/Matrixspalte"},
    {"ladeH", &ladeHT,
     "Hilfethema:  Laden der früher durch 'Speichern' gesicherten Matrizen von der Festplatte"},
    {"speicherH", &speichereHT,
     "Hilfethema:  Speichern aller aktell in der Liste befindlichen Matrizen"},
};

// Every text opens with its exact title and an empty line; each topic button shows its own text
// behind one line break, and the window opens on the general information.
TEST(Hilfetexte, TitelUndThemenknoepfe) {
    for (const auto& zeile : hilfeTabelle) {
        SCOPED_TRACE(std::string(zeile.aktion));
        const std::string kopf = std::string(zeile.titel) + "\n\n";
        EXPECT_EQ(zeile.text->substr(0, kopf.size()), kopf);

        TabulonHilfen hilfen;
        ASSERT_TRUE(hilfen.hilfeAktion(zeile.aktion));
        std::string erwartet = "\n" + std::string(*zeile.text);
        if (zeile.aktion == "loescheH") {
            erwartet += loescheListeHT;
        }
        EXPECT_EQ(hilfen.hifeF, erwartet);
    }
    TabulonHilfen hilfen;
    hilfen.viewDidLoad();
    EXPECT_EQ(hilfen.hifeF, "\n" + std::string(allgInfoH));
    hilfen.viewDidAppear();
    EXPECT_EQ(hilfen.titel, "Tabulon Info und Erläuterungen");
}

TEST(Hilfetexte, WoertlichVorgegebeneTexte) {
    EXPECT_EQ(einauslistenHT,
              "Hilfethema: Matrixbewegungen zwischen Liste und Tableau \n\n Kopieranweisung: ->\n "
              "Die Matrix aus der Liste, deren Name im Feld <Name> eingetragen ist, wird in das "
              "Eingabe-Tableau kopiert.\n\n Einlistanweisung: <-\n Die im Eingabe-Tableau "
              "gezeigte Matrix wird unter dem Namen <Name> in die Matrixliste eingetragen.  ");
    EXPECT_EQ(loescheListeHT,
              "Hilfethema: Löschen der gesamten Matrixliste\n\n Diese Anweisung löscht "
              "unwiderruflich alle in der Liste über ihre Namen gespeicherten Matrizen.\n\n "
              "Lediglich die Tableau-Matrix bleibt erhalten. Die Einstellungen der beim Drucken "
              "angezeigten Nachkommastellen und die Wahl der Option 'Überschreiben' werden nicht "
              "verändert, ansonsten ist der Zustand des Programms wie nach einem Neustart. ");
    EXPECT_EQ(matrixRaendernHT,
              "Hilfethema:  Rändern einer Matrix\n\n Im Gegensatz zu den meisten anderen "
              "Anweisungen betrifft dieser Befehl nicht eine zu benennende Matrix, sondern die "
              "aktuelle Matrix im Eingabe-Tablau. \n\n Beim Rändern wird oben und links jeweils "
              "eine Zeile und Spalte hinzugefügt, wobei alle neuen Komponenten Nullen sind; nur "
              "das Element an der Position (0,0) ist eine 1 . ");
    EXPECT_EQ(speichereHT,
              "Hilfethema:  Speichern aller aktell in der Liste befindlichen Matrizen\n\n Die "
              "Matrizen bleiben in der Liste und können im Programm weiter bearbeitet werden. "
              "\n\n Warnung: Durch das Speichern wird eine eventuell früher gespeicherte Datei "
              "mit einer Liste von Matrizen dauerhaft überschrieben.");
}

} // namespace
} // namespace tabulon
