// The list commands: store the tableau matrix, delete, copy into the tableau, show the names,
// print one matrix, empty the list.

#include "textmatrix/liste.h"
#include "textmatrix/zahltext.h"
#include "window/tableau.h"
#include "window/viewcontroller.h"

#include <tuple>

namespace tabulon {

namespace {

const std::string loeschFrage = "Wirklich die gesamte Matrixliste endgültig löschen?";

void listeLeeren() {
    auto& liste = listenZustand();
    liste.sMatrixListe.clear();
    liste.smNamen = alphabetGross();
}

} // namespace

void ViewController::einlisten() {
    const std::string name = liesName();
    hatEingegeben();
    notizloeschen();
    std::string meldung = "?";
    if (alphabetGross().contains(name)) {
        liesStringMatrix();
        SMatrix m = sichtbarerBlock();
        m.killLeerzeilen();
        m.killLeerspalten();
        bool ok = false;
        std::tie(meldung, ok) = m.einlistenAls(name);
        if (!ok) {
            plattform.piep();
        } else {
            ausgabe(name + " wurde eingelistet als: \n\n" +
                    listenZustand().sMatrixListe.at(name).string());
        }
    }
    notiz(meldung);
}

void ViewController::einlistB() {
    einlisten();
    aktualisiereMListe();
}

void ViewController::freierMatrixNameB() {
    const std::string frei = naechsterFreierName();
    if (frei != "?") {
        eingabeFb = frei;
    }
    einlisten();
    aktualisiereMListe();
}

void ViewController::auslistenName() {
    notizloeschen();
    const std::string name = liesName();
    std::string meldung;
    if (name.empty()) {
        meldung = "Welche Matrix aus der Liste löschen?";
    } else {
        eingabeFb.clear();
        bool ok = false;
        std::tie(meldung, ok) = auslisten(name);
        if (ok) {
            ausgabe("Die Matrix " + name + " wurde aus der Liste entfernt.");
        }
    }
    notiz(meldung);
}

void ViewController::auslistB() {
    auslistenName();
    aktualisiereMListe();
}

void ViewController::name2SMatrixB() {
    notizloeschen();
    const std::string name = liesName();
    const auto& liste = listenZustand().sMatrixListe;
    const auto gefunden = liste.find(name);
    if (gefunden == liste.end()) {
        notiz(name + " = ??");
        return;
    }
    const SMatrix m = gefunden->second;
    tableauLoeschen();
    einbettenInEinAusMatrix(m);
    schreibStringMatrix();
    refreshMatrixView();
    fensterPutz();
    notiz("Die Matrix " + name + " wurde im Eingabefeld eingetragen.");
    hatEingegeben();
}

void ViewController::zeigeListe() {
    const auto& liste = listenZustand().sMatrixListe;
    std::string s;
    for (const auto& x : grossBuchstaben()) {
        const auto gefunden = liste.find(x);
        if (gefunden != liste.end()) {
            s += x + "(" + ganzText(gefunden->second.rows) + "," +
                 ganzText(gefunden->second.columns) + ")  ";
        }
    }
    if (s.empty()) {
        notiz("Die Matrixliste ist leer.");
        plattform.piep();
        return;
    }
    notizloeschen();
    ausgabe("\n Namen in der Liste definierter Matrizen:\n\n " + s + " \n\n");
}

void ViewController::druckeMatrix() {
    const std::string name = liesName();
    const auto& liste = listenZustand().sMatrixListe;
    const auto gefunden = liste.find(name);
    if (gefunden == liste.end()) {
        plattform.piep();
        notiz("Keine Matrix mit Namen > " + name + " < befindet sich in der Liste.");
        return;
    }
    const int dezimalen = listenZustand().dezimalen;
    const std::string endung = dezimalen > 1 ? "n" : "";
    const SMatrix g = gefunden->second.gerundet(dezimalen);
    ausgabe(name + "\n" + g.string());
    notiz("Ausgabe der Matrix " + name + ", Komponenten gerundet auf " + ganzText(dezimalen) +
          " Nachkommastelle" + endung);
}

void ViewController::loescheGanzeListe(bool warnung) {
    std::string meldung = "Die Matrixliste ist ";
    if (!listenZustand().sMatrixListe.empty() && warnung) {
        if (auswahl(loeschFrage, "Ja", "Nein, lieber nicht") == "Ja") {
            listeLeeren();
            eingabeFb.clear();
            meldung += "jetzt leer.";
            aktualisiereMListe();
        }
    } else {
        meldung += "bereits leer.";
        plattform.piep();
    }
    notiz(meldung);
}

void ViewController::listeLoeschen(bool warnung) {
    std::string antwort;
    if (warnung) {
        antwort = auswahl(loeschFrage, "Ja", "Nein, lieber nicht");
    }
    if (antwort == "Ja" || !warnung) {
        listeLeeren();
        eingabeFb.clear();
        notiz("Die Matrixliste ist jetzt leer.");
    }
}

} // namespace tabulon
