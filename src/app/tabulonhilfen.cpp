#include "app/tabulonhilfen.h"

#include "app/hilfetexte.h"
#include "exakt/hilfe.h"
#include "uebung/hilfe.h"

namespace tabulon {

const std::array<TabulonHilfen::Thema, TabulonHilfen::anzahlThemen>& TabulonHilfen::themen() {
    static const std::array<Thema, anzahlThemen> liste{{
        {"allgInfoB", "Allgemeine Information", &TabulonHilfen::allgInfoB},
        {"anweisungH", "Term-Auswertung", &TabulonHilfen::anweisungH},
        {"nMalAusfuehrungH", "n-malige Auswertung", &TabulonHilfen::nMalAusfuehrungH},
        {"einauslistenH", "Liste <-> Tableau", &TabulonHilfen::einauslistenH},
        {"loescheH", "Löschen", &TabulonHilfen::loescheH},
        {"druckeH", "Zeige Matrix / Liste", &TabulonHilfen::druckeH},
        {"freierMAtrixNameH", "Matrixnamen zuweisen", &TabulonHilfen::freierMAtrixNameH},
        {"elemZeilenUmfH", "Gauss-Verfahren", &TabulonHilfen::elemZeilenUmfH},
        {"transponiereH", "Transponieren", &TabulonHilfen::transponiereH},
        {"basisZuKernH", "Basis zum Kern", &TabulonHilfen::basisZuKernH},
        {"invertiereH", "Invertieren", &TabulonHilfen::invertiereH},
        {"orthonormiereH", "Orthonormieren", &TabulonHilfen::orthonormiereH},
        {"charPolynomEigenwerteH", "Char. Polynom, Eigenwerte",
         &TabulonHilfen::charPolynomEigenwerteH},
        {"gramscheDetH", "Gramsche Determinante", &TabulonHilfen::gramscheDetH},
        {"matrixRaendern", "Rändern", &TabulonHilfen::matrixRaendern},
        {"zufallsMatrix", "Zufallsmatrix", &TabulonHilfen::zufallsMatrix},
        {"Runden", "Runden", &TabulonHilfen::Runden},
        {"protoAktionenH", "Protokoll-Aktionen", &TabulonHilfen::protoAktionenH},
        {"EzH", "Einheitsmatrix E(z)", &TabulonHilfen::EzH},
        {"texSpeichernH", "TEX-Format", &TabulonHilfen::texSpeichernH},
        {"protoSpeichernH", "Protokoll speichern", &TabulonHilfen::protoSpeichernH},
        {"matrixGroesseAendern", "Zeilen/Spalten ändern", &TabulonHilfen::matrixGroesseAendern},
        {"ladeH", "Laden", &TabulonHilfen::ladeH},
        {"speicherH", "Speichern", &TabulonHilfen::speicherH},
        {"exaktGaussH", "Exakt: Gauß-Jordan", &TabulonHilfen::exaktGaussH},
        {"exaktLGSH", "Exakt: Gleichungssystem", &TabulonHilfen::exaktLGSH},
        {"exaktKernH", "Exakt: Kern und Bild", &TabulonHilfen::exaktKernH},
        {"exaktInverseH", "Exakt: Inverse", &TabulonHilfen::exaktInverseH},
        {"exaktDeterminanteH", "Exakt: Determinante", &TabulonHilfen::exaktDeterminanteH},
        {"exaktEigenH", "Exakt: Eigenwerte", &TabulonHilfen::exaktEigenH},
        {"exaktTexAusgabeH", "Exakt: TeX-Ausgabe", &TabulonHilfen::exaktTexAusgabeH},
        {"uebungH", "Zeilenumformungen üben", &TabulonHilfen::uebungH},
    }};
    return liste;
}

void TabulonHilfen::viewDidLoad() {
    fensterAusgabe(allgInfoH);
}

// The title is set on every appearance, not once at load, because the platform may reset it when
// the window is shown again.
void TabulonHilfen::viewDidAppear() {
    titel = "Tabulon Info und Erläuterungen";
}

// The leading line break keeps the title off the field's top edge.
void TabulonHilfen::fensterAusgabe(std::string_view t) {
    hifeF = "\n";
    hifeF += t;
}

void TabulonHilfen::fensterZuB() {
    offen = false;
}

bool TabulonHilfen::hilfeAktion(std::string_view name) {
    for (const auto& thema : themen()) {
        if (thema.aktion == name) {
            (this->*(thema.ausfuehren))();
            return true;
        }
    }
    return false;
}

void TabulonHilfen::allgInfoB() {
    fensterAusgabe(allgInfoH);
}
void TabulonHilfen::anweisungH() {
    fensterAusgabe(anweisungsH);
}
void TabulonHilfen::nMalAusfuehrungH() {
    fensterAusgabe(nMalAusfuehrungHT);
}
void TabulonHilfen::einauslistenH() {
    fensterAusgabe(einauslistenHT);
}

// Deleting one matrix and emptying the whole list share one topic.
void TabulonHilfen::loescheH() {
    std::string beide(loescheHT);
    beide += loescheListeHT;
    fensterAusgabe(beide);
}

void TabulonHilfen::druckeH() {
    fensterAusgabe(druckeHT);
}
void TabulonHilfen::freierMAtrixNameH() {
    fensterAusgabe(freierMAtrixNameHT);
}
void TabulonHilfen::elemZeilenUmfH() {
    fensterAusgabe(elemZeilenUmfHT);
}
void TabulonHilfen::transponiereH() {
    fensterAusgabe(transponiereHT);
}
void TabulonHilfen::basisZuKernH() {
    fensterAusgabe(basisZuKernHT);
}
void TabulonHilfen::invertiereH() {
    fensterAusgabe(invertiereHT);
}
void TabulonHilfen::orthonormiereH() {
    fensterAusgabe(orthonormiereHT);
}
void TabulonHilfen::charPolynomEigenwerteH() {
    fensterAusgabe(charPolynomEigenwerteHT);
}
void TabulonHilfen::gramscheDetH() {
    fensterAusgabe(gramscheDetHT);
}
void TabulonHilfen::matrixRaendern() {
    fensterAusgabe(matrixRaendernHT);
}
void TabulonHilfen::zufallsMatrix() {
    fensterAusgabe(zufallsMatrixHT);
}
void TabulonHilfen::Runden() {
    fensterAusgabe(RundenHT);
}
void TabulonHilfen::protoAktionenH() {
    fensterAusgabe(protoAktionenHT);
}
void TabulonHilfen::EzH() {
    fensterAusgabe(EzHT);
}
void TabulonHilfen::texSpeichernH() {
    fensterAusgabe(texSpeichernHT);
}
void TabulonHilfen::protoSpeichernH() {
    fensterAusgabe(protoSpeichernHT);
}
void TabulonHilfen::matrixGroesseAendern() {
    fensterAusgabe(matrixGroesseAendernHT);
}
void TabulonHilfen::ladeH() {
    fensterAusgabe(ladeHT);
}
void TabulonHilfen::speicherH() {
    fensterAusgabe(speichereHT);
}

void TabulonHilfen::exaktGaussH() {
    fensterAusgabe(exaktGaussHT);
}
void TabulonHilfen::exaktLGSH() {
    fensterAusgabe(exaktLGSHT);
}
void TabulonHilfen::exaktKernH() {
    fensterAusgabe(exaktKernHT);
}
void TabulonHilfen::exaktInverseH() {
    fensterAusgabe(exaktInverseHT);
}
void TabulonHilfen::exaktDeterminanteH() {
    fensterAusgabe(exaktDeterminanteHT);
}
void TabulonHilfen::exaktEigenH() {
    fensterAusgabe(exaktEigenHT);
}
void TabulonHilfen::exaktTexAusgabeH() {
    fensterAusgabe(exaktTexAusgabeHT);
}

void TabulonHilfen::uebungH() {
    fensterAusgabe(uebungHT);
}

} // namespace tabulon
