// The computation commands: transpose, invert, Gauss, kernel, orthonormalise, Gram determinant
// on a matrix of the list, and rounding the tableau. Results go into the tableau, never into the
// list.

#include "numeric/matrix.h"
#include "numeric/vektor.h"
#include "textmatrix/liste.h"
#include "textmatrix/zahltext.h"
#include "window/tableau.h"
#include "window/viewcontroller.h"

#include <algorithm>
#include <optional>

namespace tabulon {

namespace {

std::optional<SMatrix> gespeicherteMatrix(const std::string& name) {
    const auto& liste = listenZustand().sMatrixListe;
    const auto gefunden = liste.find(name);
    if (gefunden == liste.end()) {
        return std::nullopt;
    }
    return gefunden->second;
}

} // namespace

void ViewController::transponiere() {
    const std::string name = liesName();
    const auto m = gespeicherteMatrix(name);
    if (!m) {
        plattform.piep();
        notiz("Bitte Namen der zu transponierenden Matrix im Feld 'Name' angeben.");
        return;
    }
    const SMatrix t = m->transponiert();
    schreibInsTableau(t);
    notiz("Die transponierte Matrix wurde ins Feld der Eingabematrix geschrieben.");
    ausgabe(name + "' = \n\n" + t.string());
}

void ViewController::invertiere() {
    const std::string name = liesName();
    const auto m = gespeicherteMatrix(name);
    if (!m) {
        plattform.piep();
        notiz("Bitte Namen der zu invertierenden Matrix im Feld 'Name' angeben.");
        return;
    }
    const Matrix a = matrix(*m);
    if (!a.istQuadratisch()) {
        plattform.piep();
        notiz("Die Matrix " + name + " ist nicht quadratisch.");
        return;
    }
    if (istNull(a.det())) {
        plattform.piep();
        notiz("Die singuläre Matrix " + name + " ist nicht invertierbar.");
        return;
    }
    const SMatrix r = a.invers().smatrix();
    schreibInsTableau(r);
    ausgabe(name + "^-1 = \n\n" + r.string());
    notiz("Die invertierte Matrix wurde ins Feld der Eingabematrix geschrieben.");
}

void ViewController::gausse() {
    const std::string name = liesName();
    const auto m = gespeicherteMatrix(name);
    if (!m) {
        plattform.piep();
        notiz("Bitte Namen der umzuformenden Matrix im Feld 'Name' angeben.");
        return;
    }
    if (std::min(m->rows, m->columns) < 2) {
        plattform.piep();
        notiz("Zeilen- und Spaltenzahl sollten mindestens 2 betragen.");
        return;
    }
    const SMatrix r = gaussUmformung(matrix(*m)).smatrix();
    schreibInsTableau(r);
    ausgabe("Die Anwendung des Gauss-Algorithmus auf " + name + " ergibt:\n\n" + r.string());
    notiz("Die transformierte Matrix wurde ins Feld der Eingabematrix geschrieben.");
}

void ViewController::genErzSystemVomKern() {
    const std::string name = liesName();
    const std::string text = "Der Kern der linearen Abbildung mit der Matrix " + name +
                             " hat als Erzeugendensystem die Spalten :\n\n";
    const auto m = gespeicherteMatrix(name);
    if (!m) {
        plattform.piep();
        notiz("Bitte Namen der Matrix im Feld 'Name' angeben.");
        sollEingeben();
        return;
    }
    // A single row or column is handed to the elimination like any other matrix; its result
    // is shown as it comes.
    const Matrix k = matrix2KernES(matrix(*m));
    if (k.columns == 0) {
        notiz("Das ES des Kerns ist die leere Teilmenge im " + ganzText(k.rows) +
              "-dimensionalen Punktraum,\n da der Kern von " + name +
              " nur den Nullvektor enthält.");
        return;
    }
    schreibInsTableau(k);
    notiz("Das ES des Kerns wurde ins Feld der Eingabematrix geschrieben.");
    ausgabe(text + k.string(listenZustand().dezimalen));
}

void ViewController::orthonormiere() {
    const std::string name = liesName();
    const auto m = gespeicherteMatrix(name);
    if (!m) {
        plattform.piep();
        notiz(nameFehltNotiz);
        return;
    }
    const auto o = matrix2ONB(*m);
    if (!o) {
        // Only zero columns: Gram-Schmidt keeps no vector, so there is nothing to write.
        plattform.piep();
        notiz("Alle Spalten von " + name +
              " sind Nullvektoren: es gibt kein ONB, die Eingabematrix bleibt unverändert.");
        return;
    }
    schreibInsTableau(*o);
    ausgabe("Orthonormieren des Erzeugendensystems aus den Spalten von " + name +
            " ergibt die Spaltenvektoren:\n" + o->string());
    notiz("Das ONB wurde spaltenweise als Eingabematrix notiert.");
}

void ViewController::gram() {
    const std::string name = liesName();
    const auto m = gespeicherteMatrix(name);
    if (!m) {
        plattform.piep();
        notiz("Bitte Namen einer in der Liste existierenden Matrix im Feld 'Name' angeben.");
        sollEingeben();
        return;
    }
    std::string text = "Die Gramsche Determinante der Matrix " + name + " beträgt " +
                       zahlText(gramscheDeterminante(*m)) + "   .\n";
    text += "Ihre Frobenius-Norm beträgt " + zahlText(fNorm(*m)) + "   .\n";
    if (m->istQuadratisch()) {
        text += "det(" + name + ") = " + zahlText(matrix(*m).det()) + "   .\n";
    }
    hatEingegeben();
    ausgabe(text);
    notiz("");
}

void ViewController::rundenB() {
    liesStringMatrix();
    const int dezimalen = listenZustand().dezimalen;
    const std::string endung = dezimalen > 1 ? "n" : "";
    const SMatrix t = tableauZustand().strEinAusMatrix.getrimmt();
    const bool gefuellt = t.rows * t.columns > 1 || !t(0, 0).empty();
    if (!gefuellt) {
        plattform.piep();
        return;
    }
    schreibInsTableau(t.gerundet(dezimalen));
    spalteF.clear();
    notiz("Die Komponenten der Eingabematrix wurden auf " + ganzText(dezimalen) +
          " Nachkommastelle" + endung + " gerundet.");
}

} // namespace tabulon
