// The tableau editing commands: random and unit matrix, border, insert, remove, the four size
// buttons, restart and quit. None of them writes a protocol page; they report in the note line.

#include "numeric/matrix.h"
#include "textmatrix/liste.h"
#include "textmatrix/zahltext.h"
#include "window/tableau.h"
#include "window/viewcontroller.h"

#include <algorithm>
#include <cstdint>

namespace tabulon {

namespace {

bool passendeGroesse(int n) {
    return n >= 1 && n <= 8;
}

} // namespace

void ViewController::genZufallsM() {
    int z = intWert(zeileF);
    int s = intWert(spalteF);
    // One size out of 1 ... 8 (an empty field included) gives the full 8 x 8.
    if (!passendeGroesse(z) || !passendeGroesse(s)) {
        z = 8;
        s = 8;
    }
    SMatrix m(z, s);
    for (int i = 0; i < z; ++i) {
        for (int j = 0; j < s; ++j) {
            // 0 ... 17 shifted down by 9: whole numbers from -9 to 8.
            const auto zufall = static_cast<std::int64_t>(plattform.zufallUnter(18));
            m(i, j) = ganzText(zufall - 9);
        }
    }
    schreibInsTableau(m);
    zeileF.clear();
    spalteF.clear();
    notiz("Eine (" + ganzText(z) + "," + ganzText(s) + ")-Zufallsmatrix wurde erzeugt.");
}

void ViewController::genEinheitsM() {
    int n = intWert(zeileF);
    if (!passendeGroesse(n)) {
        n = 8;
    }
    SMatrix m(n, n);
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j) {
            m(i, j) = i == j ? "1.0" : "0.0";
        }
    }
    schreibInsTableau(m);
    zeileF.clear();
    notiz("Die (" + ganzText(n) + "," + ganzText(n) + ")-Einheitsmatrix wurde eingetragen.");
}

void ViewController::raendern() {
    liesStringMatrix();
    SMatrix m = sichtbarerBlock();
    m.killLeerzeilen();
    m.killLeerspalten();
    if (std::max(m.rows, m.columns) >= 8) {
        return;
    }
    SMatrix b = Matrix(m.rows + 1, m.columns + 1).smatrix();
    b(0, 0) = "1.0";
    for (std::int64_t i = 0; i < m.rows; ++i) {
        for (std::int64_t j = 0; j < m.columns; ++j) {
            b(i + 1, j + 1) = m(i, j);
        }
    }
    schreibInsTableau(b);
}

void ViewController::einfuegen() {
    liesStringMatrix();
    // Blanks count as empty here as everywhere in the tableau.
    if (istLeerzeichen(tableauZustand().strEinAusMatrix(0, 0))) {
        plattform.piep();
        spalteF.clear();
        zeileF.clear();
        return;
    }
    std::string text;
    // A trimmed matrix that is already 8 wide (or high) comes back from the insertion unchanged;
    // it is still written back and the field cleared, and only the note says why nothing moved.
    if (const auto s = strengeGanzzahl(spalteF)) {
        const SMatrix t = tableauZustand().strEinAusMatrix.getrimmt();
        if (*s >= 0 && *s <= tableauZustand().columnmax && *s <= t.columns) {
            schreibInsTableau(t.spalteEinfuegen(*s));
            spalteF.clear();
            text = t.columns >= 8 ? "Die Matrix hat schon 8 Spalten.\n"
                                  : "Spalte " + ganzText(*s) + " wurde eingefügt\n";
        }
    }
    if (const auto z = strengeGanzzahl(zeileF)) {
        liesStringMatrix();
        const SMatrix t = tableauZustand().strEinAusMatrix.getrimmt();
        if (*z >= 0 && *z <= tableauZustand().rowmax && *z <= t.rows) {
            schreibInsTableau(t.zeileEinfuegen(*z));
            zeileF.clear();
            text += t.rows >= 8 ? "Die Matrix hat schon 8 Zeilen.\n"
                                : "Zeile " + ganzText(*z) + " wurde eingefügt\n";
        }
    }
    notiz(text);
}

void ViewController::entfernen() {
    std::string text;
    if (const auto s = strengeGanzzahl(spalteF)) {
        liesStringMatrix();
        const auto [r, ok] = tableauZustand().strEinAusMatrix.getrimmt().spalteLoeschen(*s);
        if (!ok) {
            text = "Fehlende oder unpassende Eingabe der Spaltennummer\n";
        } else {
            clearEingabematix();
            einbettenInEinAusMatrix(r);
            schreibStringMatrix();
            spalteF.clear();
            text = "Spalte " + ganzText(*s) + " wurde entfernt.\n";
            fensterPutz();
        }
    }
    if (const auto z = strengeGanzzahl(zeileF)) {
        liesStringMatrix();
        const auto [r, ok] = tableauZustand().strEinAusMatrix.getrimmt().zeileLoeschen(*z);
        if (!ok) {
            text += "Fehlende oder unpassende Eingabe der Zeilennummer";
        } else {
            clearEingabematix();
            einbettenInEinAusMatrix(r);
            schreibStringMatrix();
            zeileF.clear();
            text += "Zeile " + ganzText(*z) + " wurde entfernt.";
            fensterPutz();
        }
    }
    notiz(text);
}

void ViewController::rplusB() {
    rowplus();
    fensterPutz();
}

void ViewController::rminusB() {
    rowminus();
    fensterPutz();
}

void ViewController::cplusB() {
    columnplus();
    fensterPutz();
}

void ViewController::cminusB() {
    columninus();
    fensterPutz();
}

void ViewController::neustart() {
    const std::string antwort =
        auswahl("Wirklich alles (auch die gesamte Matrixliste) endgültig löschen?", "Ja",
                "Nein, lieber nicht");
    if (antwort != "Ja") {
        return;
    }
    listeLoeschen(false);
    tableauLoeschen();
    notizloeschen();
    ausgabeF.clear();
}

void ViewController::quitB() {
    const std::string antwort = auswahl("Wirklich das Programm verlassen? Alle nicht gespeicherten "
                                        "Matrizen der Liste sind dann nicht mehr verfügbar.",
                                        "Ja, Beenden", "Nein, noch nicht");
    if (antwort == "Ja, Beenden") {
        plattform.beenden(0);
    }
}

} // namespace tabulon
