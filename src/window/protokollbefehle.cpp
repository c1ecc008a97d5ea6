// Paging through the protocol: next and previous page, deleting the page shown, and going to the
// page typed into seitenF. Every page action clears the note line first.

#include "textmatrix/zahltext.h"
#include "window/tableau.h"
#include "window/viewcontroller.h"

#include <cstddef>

namespace tabulon {

int ViewController::seitenWunsch() const {
    return intWert(seitenF);
}

void ViewController::protoUp() {
    notizloeschen();
    auto& p = protokollZustand();
    if (p.aktSeitenNr < p.maxSeitenNr) {
        ++p.aktSeitenNr;
        protoAusgabe();
    } else {
        plattform.piep();
    }
}

void ViewController::protoDown() {
    notizloeschen();
    auto& p = protokollZustand();
    if (p.aktSeitenNr > 0) {
        --p.aktSeitenNr;
        protoAusgabe();
    } else {
        plattform.piep();
    }
}

void ViewController::protoDelSeite() {
    notizloeschen();
    auto& p = protokollZustand();
    if (p.aktSeitenNr > 0) {
        p.protokoll.erase(p.protokoll.begin() + static_cast<std::ptrdiff_t>(p.aktSeitenNr));
        --p.maxSeitenNr;
        --p.aktSeitenNr;
        seiteAnzeigen();
        protoAusgabe();
    } else {
        plattform.piep();
    }
}

void ViewController::neueSeite() {
    notizloeschen();
    const int w = seitenWunsch();
    auto& p = protokollZustand();
    if (w >= 0 && w <= p.maxSeitenNr) {
        p.aktSeitenNr = w;
        protoAusgabe();
    } else {
        plattform.piep();
        seiteAnzeigen();
    }
}

} // namespace tabulon
