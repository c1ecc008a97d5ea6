// The help window: each topic button shows its own text behind one line break, every text opens
// with its exact title and an empty line, and the texts given word for word are shown whole. The
// general information and the two delete texts are pinned by a transcript.

#include "app/tabulonhilfen.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>

namespace tabulon {
namespace {

const std::pair<std::string_view, std::string_view> themen[] = {
    {"allgInfoB", "Allgemeine Information zum Programm Tabulon V 1.026"},
    {"anweisungH", "Hilfethema: Anweisung zur Auswertung eines Matrixterms "},
    {"nMalAusfuehrungH", "Hilfethema: n-malige Auswertung eines Matrixterms "},
    {"einauslistenH", "Hilfethema: Matrixbewegungen zwischen Liste und Tableau "},
    {"loescheH", "Hilfethema: Löschen einer Matrix aus der Liste"},
    {"druckeH", "Hilfethema: Ausgabe einer Matrix oder aller MatrixNamen aus der Liste"},
    {"freierMAtrixNameH", "Hilfethema: Zuweisung eines verfügbaren Matrixnamens"},
    {"elemZeilenUmfH", "Hilfethema: Elementare Zeilenumformungen (Gauss-Verfahren)"},
    {"transponiereH", "Hilfethema: Transponieren einer Matrix"},
    {"basisZuKernH", "Hilfethema: Eine Basis zum Kern einer linearen Abbildung "},
    {"invertiereH", "Hilfethema: Invertieren einer Matrix "},
    {"orthonormiereH", "Hilfethema: Orthonormieren eines Erzeugendensystems "},
    {"charPolynomEigenwerteH",
     "Hilfethema:  Charakteristisches Polynom und reelle Eigenwerte einer Matrix"},
    {"gramscheDetH", "Hilfethema:  Gramsche Determinante"},
    {"matrixRaendern", "Hilfethema:  Rändern einer Matrix"},
    {"zufallsMatrix", "Hilfethema:  Erzeugen einer Zufallsmatrix"},
    {"Runden", "Hilfethema:  Runden der Komponenten einer Matrix"},
    {"protoAktionenH", "Hilfethema:  Protokoll - Aktionen"},
    {"EzH", "Hilfethema:  Erzeugen einer Einheitsmatrix gewünschter Größe"},
    {"texSpeichernH", "Hilfethema:  Schreiben im TEX-Format als Textdatei in den Dokumente-Ordner"},
    {"protoSpeichernH", "Hilfethema:  Speichern des Protokolls im Dokumente-Ordner"},
    {"matrixGroesseAendern", "Hilfethema:  Anhängen/Entfernen einer zusätzlichen/der letzten "
                             "Matrixzeile/Matrixspalte"},
    {"ladeH",
     "Hilfethema:  Laden der früher durch 'Speichern' gesicherten Matrizen von der Festplatte"},
    {"speicherH", "Hilfethema:  Speichern aller aktell in der Liste befindlichen Matrizen"},
};

std::string zeigt(std::string_view thema) {
    TabulonHilfen hilfen;
    EXPECT_TRUE(hilfen.hilfeAktion(thema)) << thema;
    return hilfen.hifeF;
}

TEST(Hilfetexte, TitelUndThemenknoepfe) {
    for (const auto& [thema, titel] : themen) {
        const std::string kopf = "\n" + std::string(titel) + "\n\n";
        EXPECT_EQ(zeigt(thema).substr(0, kopf.size()), kopf) << thema;
    }
    TabulonHilfen hilfen;
    hilfen.viewDidLoad();
    EXPECT_EQ(hilfen.hifeF, zeigt("allgInfoB"));
    hilfen.viewDidAppear();
    EXPECT_EQ(hilfen.titel, "Tabulon Info und Erläuterungen");
}

TEST(Hilfetexte, WoertlichVorgegebeneTexte) {
    EXPECT_EQ(
        zeigt("einauslistenH"),
        "\nHilfethema: Matrixbewegungen zwischen Liste und Tableau \n\n Kopieranweisung: ->\n "
        "Die Matrix aus der Liste, deren Name im Feld <Name> eingetragen ist, wird in das "
        "Eingabe-Tableau kopiert.\n\n Einlistanweisung: <-\n Die im Eingabe-Tableau "
        "gezeigte Matrix wird unter dem Namen <Name> in die Matrixliste eingetragen.  ");
    EXPECT_EQ(zeigt("matrixRaendern"),
              "\nHilfethema:  Rändern einer Matrix\n\n Im Gegensatz zu den meisten anderen "
              "Anweisungen betrifft dieser Befehl nicht eine zu benennende Matrix, sondern die "
              "aktuelle Matrix im Eingabe-Tablau. \n\n Beim Rändern wird oben und links jeweils "
              "eine Zeile und Spalte hinzugefügt, wobei alle neuen Komponenten Nullen sind; nur "
              "das Element an der Position (0,0) ist eine 1 . ");
    EXPECT_EQ(zeigt("speicherH"),
              "\nHilfethema:  Speichern aller aktell in der Liste befindlichen Matrizen\n\n Die "
              "Matrizen bleiben in der Liste und können im Programm weiter bearbeitet werden. "
              "\n\n Warnung: Durch das Speichern wird eine eventuell früher gespeicherte Datei "
              "mit einer Liste von Matrizen dauerhaft überschrieben.");
}

} // namespace
} // namespace tabulon
