#include "exakt/befehle.h"
#include "exakt/befehlhilfen.h"
#include "exakt/eigen.h"
#include "exakt/gaussjordan.h"

namespace tabulon {

namespace {

// The eigenspace of a rational eigenvalue: the kernel of A − λ·E, computed by the same
// elimination the kernel command uses, so its basis is right for every matrix.
std::vector<BVektor> eigenraum(const BMatrix& a, const Bruch& lambda) {
    BMatrix d = a - lambda * BMatrix::einheit(a.rows);
    return kernbasis(gaussJordan(d, d.columns), d.columns);
}

} // namespace

ExaktAntwort exaktEigen(const std::string& name, const SMatrix& m) {
    BLesung l = liesBMatrix(name, m);
    if (!l.ok)
        return abgelehnt(l.notiz);
    const BMatrix& a = l.matrix;
    if (a.rows != a.columns)
        return abgelehnt("Die Matrix " + name + " ist nicht quadratisch (" + groesse(a) +
                         "); nur eine quadratische Matrix hat Eigenwerte.");
    const std::size_t n = a.rows;
    EigenAnalyse e = eigenAnalyse(n, a.eintraege);

    ExaktAntwort antwort;
    antwort.ok = true;
    Seite& s = antwort.seite;
    s.zeile("Eigenwerte und Eigenvektoren von " + name + " (" + groesse(a) + ")").leer();
    s.zeile("Charakteristisches Polynom: det(" + name + " − x·E) = " + polynomText(e.charpoly));
    s.zeile("Zerlegt über den rationalen Zahlen: " + faktorisierungText(e));

    std::vector<BVektor> vektoren;
    bool diagonalisierbar = e.nichtReell == 0;
    int summeAlgebraisch = 0;
    for (std::size_t k = 0; k < e.reelle.size(); ++k) {
        const ReellerEigenwert& w = e.reelle[k];
        const std::string lk = "λ" + zahl(k + 1);
        s.leer();
        std::vector<BVektor> basis;
        int geometrisch = w.geometrisch;
        if (w.art == ReellerEigenwert::Art::rational) {
            basis = eigenraum(a, w.wert);
            geometrisch = static_cast<int>(basis.size());
        }
        summeAlgebraisch += w.algebraisch;
        if (geometrisch != w.algebraisch)
            diagonalisierbar = false;
        if (w.art == ReellerEigenwert::Art::rational)
            s.zeile(Zeile(lk + " = ") << w.wert);
        else if (w.text().starts_with("≈"))
            s.zeile(lk + " " + w.text()); // a certified decimal: "λ1 ≈ 1.3247179572"
        else
            s.zeile(lk + " = " + w.text());
        s.zeile("   algebraische Vielfachheit " + zahl(static_cast<std::size_t>(w.algebraisch)) +
                ", geometrische Vielfachheit " + zahl(static_cast<std::size_t>(geometrisch)));
        if (w.art != ReellerEigenwert::Art::rational) {
            s.zeile("   (nicht rational: die Eigenvektoren haben irrationale Einträge und "
                    "werden nicht exakt angegeben)");
            continue;
        }
        s.zeile("   Basis des Eigenraums, des Kerns von " + name + " − " + lk + "·E:");
        for (const auto& v : basis) {
            std::string vk = "v" + zahl(vektoren.size() + 1);
            s.zeile(Zeile("   ") << vk << " = " << v);
            s.zeile(Zeile("   ") << name << "·" << vk << " = " << (a * v) << " = " << w.wert << "·"
                                 << vk);
            vektoren.push_back(v);
        }
    }
    if (e.reelle.empty()) {
        s.leer().zeile(name + " hat keinen reellen Eigenwert.");
    }
    if (e.nichtReell > 0)
        s.leer().zeile(zahl(static_cast<std::size_t>(e.nichtReell)) +
                       (e.nichtReell == 1 ? " Eigenwert ist" : " Eigenwerte sind") +
                       " nicht reell (komplex, mit Vielfachheit gezählt).");
    diagonalisierbar = diagonalisierbar && summeAlgebraisch == static_cast<int>(n);
    s.leer();
    if (diagonalisierbar)
        s.zeile(name + " ist über den reellen Zahlen diagonalisierbar: die geometrischen "
                       "Vielfachheiten stimmen mit den algebraischen überein.");
    else if (e.nichtReell > 0)
        s.zeile(name + " ist über den reellen Zahlen nicht diagonalisierbar: nicht alle "
                       "Eigenwerte sind reell.");
    else
        s.zeile(name + " ist über den reellen Zahlen nicht diagonalisierbar: eine geometrische "
                       "Vielfachheit ist kleiner als die algebraische.");

    if (vektoren.empty()) {
        antwort.notiz = name + " hat keinen rationalen Eigenwert; das Tableau bleibt unverändert.";
    } else {
        antwort.tableau = tableauText(BMatrix::ausSpalten(n, vektoren));
        antwort.notiz = "Die Eigenvektoren zu den rationalen Eigenwerten von " + name +
                        " wurden spaltenweise ins Feld der Eingabematrix geschrieben.";
    }
    return antwort;
}

} // namespace tabulon
