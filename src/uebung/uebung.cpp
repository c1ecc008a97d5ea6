#include "uebung/uebung.h"

#include <utility>

#include "exakt/befehlhilfen.h"
#include "textmatrix/zahltext.h"

namespace tabulon {

Uebung::Uebung(std::string name, BMatrix start) : name(std::move(name)), start(std::move(start)) {}

void Uebung::umformen(const Zeilenoperation& op) {
    BMatrix m = aktuell();
    anwenden(op, m);
    schritte.push_back(op);
    verlauf.push_back(std::move(m));
}

bool Uebung::rueckgaengig() {
    if (schritte.empty())
        return false;
    schritte.pop_back();
    verlauf.pop_back();
    return true;
}

Tipp naechsterSchritt(const BMatrix& m) {
    // The elimination run afresh from m takes no operation on the columns already done, so its
    // first operation is the one due next.
    const Umformung u = gaussJordan(m, m.columns);
    for (const Spaltenschritt& s : u.schritte) {
        if (s.operationen.empty())
            continue;
        Tipp t;
        t.operation = s.operationen.front();
        const std::string spalte = "Spalte " + zahl(s.spalte + 1);
        const std::string zeile = "Zeile " + zahl(s.zeile + 1);
        switch (t.operation.art) {
        case Zeilenoperation::Art::tausch:
            t.grund = spalte + " braucht ein Pivot in " + zeile +
                      ": dort steht 0, der erste Eintrag ≠ 0 darunter steht in Zeile " +
                      zahl(s.gefunden + 1) + ".";
            break;
        case Zeilenoperation::Art::skalieren:
            t.grund = spalte + ": das Pivot in " + zeile + " ist " + bruchText(s.pivot) +
                      " und soll 1 werden.";
            break;
        case Zeilenoperation::Art::addieren: {
            const std::size_t r = t.operation.ziel;
            t.grund = spalte + ": " + (r < s.zeile ? "über" : "unter") + " dem Pivot in " + zeile +
                      " steht in Zeile " + zahl(r + 1) + " noch " + bruchText(m(r, s.spalte)) +
                      "; dieser Eintrag soll 0 werden.";
            break;
        }
        }
        return t;
    }
    Tipp t;
    t.fertig = true;
    t.grund = "Die Matrix ist schon in reduzierter Zeilenstufenform; es ist nichts mehr zu tun.";
    return t;
}

Stufenform pruefe(const BMatrix& m) {
    Stufenform s;
    s.rang = gaussJordan(m, m.columns).rang();
    s.zeilenstufenform = true;
    s.reduziert = true;
    std::size_t naechsteSpalte = 0; // a leading entry must lie at or right of this column
    bool nullzeileGesehen = false;
    for (std::size_t r = 0; r < m.rows; ++r) {
        std::size_t c = 0;
        while (c < m.columns && m(r, c) == 0)
            ++c;
        if (c == m.columns) {
            nullzeileGesehen = true;
            continue;
        }
        if (nullzeileGesehen || c < naechsteSpalte) {
            s.zeilenstufenform = false;
            s.reduziert = false;
            return s;
        }
        naechsteSpalte = c + 1;
        if (m(r, c) != 1)
            s.reduziert = false;
        for (std::size_t andere = 0; andere < m.rows; ++andere)
            if (andere != r && m(andere, c) != 0)
                s.reduziert = false;
    }
    return s;
}

std::string pruefText(const Stufenform& s) {
    std::string t = s.reduziert ? "Die Matrix ist in reduzierter Zeilenstufenform."
                    : s.zeilenstufenform
                        ? "Die Matrix ist in Zeilenstufenform, aber noch nicht in reduzierter "
                          "Zeilenstufenform."
                        : "Die Matrix ist noch nicht in Zeilenstufenform.";
    return t + " Rang: " + zahl(s.rang) + ".";
}

Vergleich vergleiche(const BMatrix& a, const BMatrix& b) {
    Vergleich v;
    if (a.rows != b.rows || a.columns != b.columns)
        return v;
    const BMatrix r = gaussJordan(a, a.columns).reduziert;
    v.aequivalent = gaussJordan(b, b.columns).reduziert == r;
    v.reduzierteForm = b == r;
    return v;
}

Seite uebungsSeite(const Uebung& u) {
    Seite s;
    s.zeile("Zeilenumformungen an " + u.name + " (" + groesse(u.start) + ")").leer();
    s.zeile("Startmatrix:").matrix(u.start);
    for (std::size_t i = 0; i < u.schritte.size(); ++i) {
        s.leer().zeile(Zeile("Schritt " + zahl(i + 1) + ": ") << u.schritte[i].text());
        s.matrix(u.verlauf[i]);
    }
    const Stufenform f = pruefe(u.aktuell());
    s.leer().zeile("Nach " + zahl(u.schritte.size()) +
                   (u.schritte.size() == 1 ? " Schritt: " : " Schritten: ") + pruefText(f));
    return s;
}

std::string matrixText(const BMatrix& m) {
    Seite s;
    s.matrix(m);
    return s.text();
}

} // namespace tabulon
