// The commands of the menu "Exakt": Gauss-Jordan, linear system, kernel and image, inverse,
// determinant and eigenvalues in exact fractions, and the TeX export of the last exact page. The
// arithmetic and the pages are src/exakt/; here the name is read and looked up, and the answer
// goes into the protocol, the tableau and the note line as the classic computation commands do.

#include "exakt/befehle.h"
#include "files/dokumente.h"
#include "textmatrix/liste.h"
#include "window/viewcontroller.h"

namespace tabulon {

namespace {

using ExaktBefehl = ExaktAntwort (*)(const std::string&, const SMatrix&);

// A refusal (bad entry, not square, singular) changes nothing but the note: the page is neither
// shown nor kept, so a later TeX export still writes the last page that was answered.
void exaktAusfuehren(ViewController& vc, ExaktBefehl befehl) {
    const std::string name = vc.liesName();
    const SMatrix* m = vc.gelisteteMatrix(name);
    if (m == nullptr) {
        return;
    }
    const ExaktAntwort antwort = befehl(name, *m);
    if (!antwort.ok) {
        vc.plattform.piep();
        vc.notiz(antwort.notiz);
        return;
    }
    if (antwort.tableau) {
        vc.schreibInsTableau(*antwort.tableau);
    }
    vc.ausgabe(antwort.seite.text());
    merkeSeite(name, antwort.seite);
    vc.notiz(antwort.notiz);
}

} // namespace

void ViewController::exaktGauss() {
    exaktAusfuehren(*this, &tabulon::exaktGauss);
}

void ViewController::exaktLGS() {
    exaktAusfuehren(*this, &tabulon::exaktLGS);
}

void ViewController::exaktKern() {
    exaktAusfuehren(*this, &tabulon::exaktKern);
}

void ViewController::exaktInverse() {
    exaktAusfuehren(*this, &tabulon::exaktInverse);
}

void ViewController::exaktDeterminante() {
    exaktAusfuehren(*this, &tabulon::exaktDeterminante);
}

void ViewController::exaktEigen() {
    exaktAusfuehren(*this, &tabulon::exaktEigen);
}

// Like the classic TeX export: the success note names the file, every failure (no exact page for
// the name yet, or the write failing) beeps. A name without a page says what to do first.
void ViewController::exaktTexAusgabe() {
    const std::string name = liesName();
    const std::string text = exaktTex(name);
    if (text.empty()) {
        plattform.piep();
        notiz(exaktTexKeineSeiteNotiz(name));
        return;
    }
    if (schreiben(plattform.dokumentenOrdner(), exaktTexDateiname(name), text).first) {
        notiz(exaktTexErfolgNotiz(name));
    } else {
        plattform.piep();
        notiz(exaktTexFehlerNotiz);
    }
}

} // namespace tabulon
