#include "exakt/gaussjordan.h"

#include <utility>

#include "textmatrix/zahltext.h"

namespace tabulon {

namespace {

std::string zeilenName(std::size_t r) {
    return "Z" + ganzText(static_cast<std::int64_t>(r) + 1);
}

} // namespace

Zeile Zeilenoperation::text() const {
    Zeile z;
    switch (art) {
    case Art::tausch:
        z << zeilenName(ziel) << " ↔ " << zeilenName(quelle);
        break;
    case Art::skalieren:
        z << zeilenName(ziel) << " ← " << faktor << "·" << zeilenName(ziel);
        break;
    case Art::addieren: {
        z << zeilenName(ziel) << " ← " << zeilenName(ziel) << (faktor < 0 ? " − " : " + ");
        Bruch betrag = abs(faktor);
        if (betrag != 1)
            z << betrag << "·";
        z << zeilenName(quelle);
        break;
    }
    }
    return z;
}

void anwenden(const Zeilenoperation& op, BMatrix& m) {
    for (std::size_t c = 0; c < m.columns; ++c) {
        switch (op.art) {
        case Zeilenoperation::Art::tausch:
            std::swap(m(op.ziel, c), m(op.quelle, c));
            break;
        case Zeilenoperation::Art::skalieren:
            m(op.ziel, c) *= op.faktor;
            break;
        case Zeilenoperation::Art::addieren:
            m(op.ziel, c) += op.faktor * m(op.quelle, c);
            break;
        }
    }
}

std::vector<Zeilenoperation> Umformung::alleOperationen() const {
    std::vector<Zeilenoperation> alle;
    for (const auto& s : schritte)
        alle.insert(alle.end(), s.operationen.begin(), s.operationen.end());
    return alle;
}

Umformung gaussJordan(const BMatrix& a, std::size_t spalten) {
    Umformung u;
    u.reduziert = a;
    BMatrix& m = u.reduziert;
    if (spalten > m.columns)
        spalten = m.columns;
    std::size_t zeile = 0;
    for (std::size_t c = 0; c < spalten && zeile < m.rows; ++c) {
        Spaltenschritt s;
        s.spalte = c;
        s.zeile = zeile;
        std::size_t p = zeile;
        while (p < m.rows && m(p, c) == 0)
            ++p;
        if (p < m.rows) {
            s.hatPivot = true;
            s.pivot = m(p, c);
            s.gefunden = p;
            auto tue = [&](Zeilenoperation op) {
                anwenden(op, m);
                s.operationen.push_back(std::move(op));
            };
            if (p != zeile)
                tue({Zeilenoperation::Art::tausch, zeile, p, Bruch(0)});
            if (s.pivot != 1)
                tue({Zeilenoperation::Art::skalieren, zeile, zeile, Bruch(1 / s.pivot)});
            for (std::size_t r = 0; r < m.rows; ++r)
                if (r != zeile && m(r, c) != 0)
                    tue({Zeilenoperation::Art::addieren, r, zeile, Bruch(-m(r, c))});
            u.pivotspalten.push_back(c);
            ++zeile;
        }
        s.danach = m;
        u.schritte.push_back(std::move(s));
    }
    return u;
}

void schritteZeigen(Seite& seite, const BMatrix& start, const Umformung& u, std::size_t balken) {
    seite.zeile("Ausgangsmatrix:").matrix(start, balken);
    for (const auto& s : u.schritte) {
        seite.leer();
        Zeile kopf;
        kopf << "Spalte " << ganzText(static_cast<std::int64_t>(s.spalte) + 1) << ": ";
        if (!s.hatPivot) {
            kopf << "ab Zeile " << ganzText(static_cast<std::int64_t>(s.zeile) + 1)
                 << " nur Nullen, kein Pivot; die Spalte gehört zu einer freien Variablen.";
            seite.zeile(kopf);
            continue;
        }
        kopf << "Pivot " << s.pivot << " in Zeile "
             << ganzText(static_cast<std::int64_t>(s.gefunden) + 1);
        // A pivot from further down says why it was chosen before the exchange brings it up.
        if (s.gefunden != s.zeile)
            kopf << " (erster Eintrag ≠ 0 ab Zeile "
                 << ganzText(static_cast<std::int64_t>(s.zeile) + 1) << ")";
        if (s.operationen.empty()) {
            seite.zeile(kopf << "; die Spalte ist schon fertig.");
            continue;
        }
        seite.zeile(kopf << ":");
        for (const auto& op : s.operationen)
            seite.zeile(Zeile("   ") << op.text());
        seite.matrix(s.danach, balken);
    }
    // Once every row holds a pivot the elimination stops; the columns left over belong to free
    // variables, which the page says rather than leaving them unmentioned.
    const std::size_t ende = start.columns - balken;
    const std::size_t naechste = u.schritte.empty() ? 0 : u.schritte.back().spalte + 1;
    if (naechste < ende) {
        std::string von = ganzText(static_cast<std::int64_t>(naechste) + 1);
        std::string bis = ganzText(static_cast<std::int64_t>(ende));
        seite.leer().zeile(
            (naechste + 1 == ende ? "Spalte " + von : "Spalten " + von + " bis " + bis) +
            ": jede Zeile hat schon ein Pivot; " +
            (naechste + 1 == ende ? "die Spalte gehört zu einer freien Variablen."
                                  : "die Spalten gehören zu freien Variablen."));
    }
}

std::vector<BVektor> kernbasis(const Umformung& u, std::size_t spalten) {
    const BMatrix& r = u.reduziert;
    std::vector<bool> istPivot(spalten, false);
    for (auto p : u.pivotspalten)
        istPivot[p] = true;
    std::vector<BVektor> basis;
    for (std::size_t f = 0; f < spalten; ++f) {
        if (istPivot[f])
            continue;
        BVektor v(spalten);
        v[f] = 1;
        for (std::size_t i = 0; i < u.pivotspalten.size(); ++i)
            v[u.pivotspalten[i]] = -r(i, f);
        basis.push_back(std::move(v));
    }
    return basis;
}

std::string spaltenListe(const std::vector<std::size_t>& spalten) {
    if (spalten.empty())
        return "keine";
    std::string s;
    for (std::size_t i = 0; i < spalten.size(); ++i)
        s += (i > 0 ? ", " : "") + ganzText(static_cast<std::int64_t>(spalten[i]) + 1);
    return s;
}

Zeile linearText(const BVektor& koeffizienten, const std::vector<std::string>& namen,
                 const Bruch& konstante, bool konstanteVorne) {
    Zeile z;
    bool erster = true;
    auto term = [&](const Bruch& k, const std::string* name) {
        if (k == 0)
            return;
        Bruch betrag = abs(k);
        if (erster)
            z << (k < 0 ? "−" : "");
        else
            z << (k < 0 ? " − " : " + ");
        erster = false;
        if (name == nullptr)
            z << betrag;
        else if (betrag == 1)
            z << *name;
        else
            z << betrag << "·" << *name;
    };
    if (konstanteVorne)
        term(konstante, nullptr);
    for (std::size_t i = 0; i < koeffizienten.size(); ++i)
        term(koeffizienten[i], &namen[i]);
    if (!konstanteVorne)
        term(konstante, nullptr);
    if (erster)
        z << Bruch(0);
    return z;
}

} // namespace tabulon
