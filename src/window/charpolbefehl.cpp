// The characteristic polynomial with the determinant and the real eigenvalues of a square
// matrix of the list. Only the message area changes; the list and the tableau stay as they are.

#include "numeric/matrix.h"
#include "polynomials/charpoly.h"
#include "textmatrix/liste.h"
#include "textmatrix/zahltext.h"
#include "window/viewcontroller.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace tabulon {

namespace {

// "[1.0, 3.0]" with the full-precision texts.
std::string eigenwertListe(std::vector<double> werte) {
    // A matrix with inf or nan entries gives nan roots; they go last, so that the sort keeps a
    // strict ordering and the finite values stay ascending.
    std::sort(werte.begin(), werte.end(), [](double a, double b) {
        if (std::isnan(a) || std::isnan(b)) {
            return !std::isnan(a) && std::isnan(b);
        }
        return a < b;
    });
    std::string t = "[";
    for (std::size_t i = 0; i < werte.size(); ++i) {
        if (i > 0) {
            t += ", ";
        }
        t += zahlTextVoll(werte[i]);
    }
    return t + "]";
}

} // namespace

void ViewController::charPol() {
    std::string nachricht;
    const std::string name = liesName();
    const auto& liste = listenZustand().sMatrixListe;
    const auto gefunden = liste.find(name);
    if (gefunden == liste.end()) {
        nachricht = "Angabe des Namens einer existierenden Matrix fehlt.";
        plattform.piep();
        ausgabe(nachricht);
        return;
    }
    const Matrix a = matrix(gefunden->second);
    if (!a.istQuadratisch()) {
        nachricht = "Die Matrix " + name + " ist nicht quadratisch.";
        plattform.piep();
        ausgabe(nachricht);
        return;
    }
    const double d = a.det();
    const auto [p, ew] = eigenWerte(a);
    nachricht = "Das charakteristische Polynom von " + name + " lautet\n" + p.string() + "\n\n";
    nachricht += "det(" + name + ") = " + zahlText(d) + "\n\n";
    if (ew.empty()) {
        nachricht += "Es wurden keine reellen Eigenwerte von " + name + " gefunden.\n\n";
    } else {
        nachricht += name + " hat die reellen Eigenwerte " + eigenwertListe(ew) + "\n\n";
    }
    ausgabe(nachricht);
}

} // namespace tabulon
