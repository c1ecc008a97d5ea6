// The practice of row operations: opens it on the matrix named in 'Name'. The practice works on
// its own exact copy; only its button insTableauB reaches back, into this window's tableau.

#include "exakt/befehle.h"
#include "exakt/bruch.h"
#include "textmatrix/liste.h"
#include "uebung/uebungscontroller.h"
#include "window/viewcontroller.h"

namespace tabulon {

void ViewController::exaktUeben() {
    const std::string name = liesName();
    const SMatrix* m = gelisteteMatrix(name);
    if (m == nullptr) {
        return;
    }
    const BLesung l = liesBMatrix(name, *m);
    if (!l.ok) {
        plattform.piep();
        notiz(l.notiz);
        return;
    }
    uebung = std::make_shared<UebungsController>(
        plattform, Uebung(name, l.matrix), [this](const SMatrix& s) { schreibInsTableau(s); });
    notiz("Die Übung mit " + name + " ist geöffnet.");
    plattform.uebungGeoeffnet(*uebung);
}

} // namespace tabulon
