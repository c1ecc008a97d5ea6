// The primitives of the window model: moving texts between the 64 cells and the in/out matrix,
// messages and protocol pages, the note line, the name field, slider, checkbox and the question.

#include "window/viewcontroller.h"

#include "terms/zeichen.h"
#include "textmatrix/liste.h"
#include "textmatrix/zahltext.h"
#include "window/aktionen.h"
#include "window/tableau.h"

#include <algorithm>
#include <cstddef>

namespace tabulon {

void ViewController::viewDidLoad(const std::function<void(ViewController&)>& beimDelegateAnmelden) {
    infoUndHilfeBGelb = true;
    infoUndHilfeBTitel = "Info und Hilfe";
    if (beimDelegateAnmelden) {
        beimDelegateAnmelden(*this);
    }
}

bool ViewController::fensterAktion(std::string_view name) {
    const Fensteraktion* gefunden = fensteraktion(name);
    if (gefunden == nullptr) {
        return false;
    }
    (this->*(gefunden->aktion))();
    return true;
}

void ViewController::liesStringMatrix() {
    auto& ein = tableauZustand().strEinAusMatrix;
    for (int i = 0; i < 8; ++i) {
        for (int j = 0; j < 8; ++j) {
            ein(i, j) = zelle(i, j).text;
        }
    }
}

void ViewController::schreibStringMatrix() {
    const auto& aus = tableauZustand().strEinAusMatrix;
    for (int i = 0; i < 8; ++i) {
        for (int j = 0; j < 8; ++j) {
            zelle(i, j).text = aus(i, j);
        }
    }
}

void ViewController::fensterPutz() {
    const auto& zustand = tableauZustand().fensterZustand;
    for (int i = 0; i < 8; ++i) {
        for (int j = 0; j < 8; ++j) {
            zelle(i, j).versteckt = zustand[static_cast<std::size_t>(i * 10 + j)];
        }
    }
}

void ViewController::tableauLoeschen() {
    notizloeschen();
    auto& t = tableauZustand();
    const SMatrix beiseite = t.strEinAusMatrix;
    t.strEinAusMatrix = t.leerMatrix;
    schreibStringMatrix();
    t.strEinAusMatrix = beiseite;
}

SMatrix ViewController::sichtbarerBlock() const {
    const auto& t = tableauZustand();
    SMatrix m(t.rowmax + 1, t.columnmax + 1);
    for (int i = 0; i <= t.rowmax; ++i) {
        for (int j = 0; j <= t.columnmax; ++j) {
            m(i, j) = t.strEinAusMatrix(i, j);
        }
    }
    return m;
}

namespace {

// Both forms of schreibInsTableau: the embedding chosen by the matrix type, then the cells, the
// hidden flags and the cleaned window, in this order. The numeric embedding leaves the hidden
// part of the in/out matrix as it was until the refresh after writing the cells, so hidden cells
// may keep older texts; that order is the kernel command's and is kept on purpose.
template <typename M> void insTableau(ViewController& vc, const M& r) {
    einbettenInEinAusMatrix(r);
    vc.schreibStringMatrix();
    refreshMatrixView();
    vc.fensterPutz();
}

} // namespace

void ViewController::schreibInsTableau(const SMatrix& r) {
    insTableau(*this, r);
}

void ViewController::schreibInsTableau(const Matrix& r) {
    insTableau(*this, r);
}

void ViewController::ausgabe(const std::string& t) {
    protokolliere(t);
    const auto& p = protokollZustand();
    ausgabeF = p.protokoll[static_cast<std::size_t>(p.maxSeitenNr)];
}

void ViewController::protokolliere(const std::string& t) {
    auto& p = protokollZustand();
    p.maxSeitenNr += 1;
    p.protokoll.push_back(t);
    p.aktSeitenNr = static_cast<int>(p.protokoll.size()) - 1;
    seiteAnzeigen();
}

void ViewController::seiteAnzeigen() {
    seitenF = ganzText(protokollZustand().aktSeitenNr);
}

void ViewController::protoAusgabe() {
    const auto& p = protokollZustand();
    ausgabeF = p.protokoll[static_cast<std::size_t>(p.aktSeitenNr)];
    seiteAnzeigen();
}

void ViewController::notiz(const std::string& t) {
    notizF = t;
}

void ViewController::notizloeschen() {
    notiz("");
}

// The same upper-casing as the term tokenizer's, so a name reads alike in both places.
std::string ViewController::liesName() {
    eingabeFb = grossGeschrieben(eingabeFb);
    return eingabeFb;
}

const SMatrix* ViewController::gelisteteMatrix(const std::string& name) {
    const auto& liste = listenZustand().sMatrixListe;
    const auto gefunden = liste.find(name);
    if (gefunden == liste.end()) {
        plattform.piep();
        notiz(nameFehltNotiz);
        return nullptr;
    }
    return &gefunden->second;
}

void ViewController::aktualisiereMListe() {
    mListeF = aktuelleListe();
}

void ViewController::sollEingeben() {
    eingabeFbGruen = true;
}

void ViewController::hatEingegeben() {
    eingabeFbGruen = false;
}

void ViewController::dezimalSlider() {
    // A real slider cannot leave its range; a driver that sets it from outside can, so the value
    // is held to 1 ... 10 the same way.
    dezimalRegler = std::clamp(dezimalRegler, 1, 10);
    listenZustand().dezimalen = dezimalRegler;
    dezimalenF = ganzText(dezimalRegler);
}

void ViewController::ueberschreibChecker() {
    listenZustand().ueberschreiben = ueberschreibF;
    ueberschreibLabel = ueberschreibF ? "Ein" : "Aus";
}

std::string ViewController::auswahl(const std::string& nachricht, const std::string& option1,
                                    const std::string& option2) {
    const int antwort = plattform.frage(nachricht, option1, option2);
    if (antwort == Plattform::ersterKnopf) {
        return option1;
    }
    if (antwort == Plattform::zweiterKnopf) {
        return option2;
    }
    return "Fehler";
}

} // namespace tabulon
