#include "exakt/befehle.h"
#include "exakt/befehlhilfen.h"
#include "exakt/gaussjordan.h"

namespace tabulon {

ExaktAntwort exaktInverse(const std::string& name, const SMatrix& m) {
    BLesung l = liesBMatrix(name, m);
    if (!l.ok)
        return abgelehnt(l.notiz);
    const BMatrix& a = l.matrix;
    if (a.rows != a.columns) {
        std::size_t rang = gaussJordan(a, a.columns).rang();
        return abgelehnt("Die Matrix " + name + " ist nicht quadratisch (" + groesse(a) +
                         ", Rang " + zahl(rang) + ") und hat daher keine Inverse.");
    }
    const std::size_t n = a.rows;
    BMatrix erweitert = a.nebeneinander(BMatrix::einheit(n));
    Umformung u = gaussJordan(erweitert, n);
    if (u.rang() < n)
        return abgelehnt("Die Matrix " + name + " ist nicht invertierbar: ihr Rang ist " +
                         zahl(u.rang()) + ", kleiner als " + zahl(n) + ".");
    BMatrix inverse = u.reduziert.rechtsTeil(n);

    ExaktAntwort antwort;
    antwort.ok = true;
    Seite& s = antwort.seite;
    s.zeile("Inverse von " + name + ": [" + name + " | E] wird zu [E | " + name + "⁻¹] umgeformt.")
        .leer();
    schritteZeigen(s, erweitert, u, n);
    s.leer().zeile("Links steht E, rechts also " + name + "⁻¹:").matrix(inverse);
    s.zeile("Probe: " + name + "·" + name +
            "⁻¹ = " + (a * inverse == BMatrix::einheit(n) ? "E" : "nicht E (Rechenfehler)"));
    antwort.tableau = tableauText(inverse);
    antwort.notiz =
        "Die exakte Inverse von " + name + " wurde ins Feld der Eingabematrix geschrieben.";
    return antwort;
}

namespace {

// A factor of the determinant's product, in brackets when negative: "(-7)".
Zeile& faktor(Zeile& z, const Bruch& b) {
    if (b < 0)
        return z << "(" << b << ")";
    return z << b;
}

} // namespace

// Elimination to an upper triangle without scaling: adding a multiple of one row to another
// leaves the determinant as it is, each exchange of two rows changes its sign, and the
// determinant of the triangle is the product of its diagonal. Scaling rows is left out on
// purpose, so that no factor has to be carried along.
ExaktAntwort exaktDeterminante(const std::string& name, const SMatrix& m) {
    BLesung l = liesBMatrix(name, m);
    if (!l.ok)
        return abgelehnt(l.notiz);
    BMatrix a = l.matrix;
    if (a.rows != a.columns)
        return abgelehnt("Die Matrix " + name + " ist nicht quadratisch (" + groesse(a) +
                         "); nur eine quadratische Matrix hat eine Determinante.");
    const std::size_t n = a.rows;

    ExaktAntwort antwort;
    antwort.ok = true;
    Seite& s = antwort.seite;
    s.zeile("Determinante von " + name + " durch Umformen in eine obere Dreiecksmatrix:");
    s.zeile("Zi ← Zi − c·Zk ändert die Determinante nicht, ein Zeilentausch Zi ↔ Zk ändert "
            "ihr Vorzeichen.");
    s.leer().zeile("Ausgangsmatrix:").matrix(a);
    std::size_t tausche = 0;
    Bruch det = 0;
    bool null = false;
    for (std::size_t k = 0; k < n && !null; ++k) {
        std::size_t p = k;
        while (p < n && a(p, k) == 0)
            ++p;
        s.leer();
        if (p == n) {
            s.zeile("Spalte " + zahl(k + 1) + ": ab Zeile " + zahl(k + 1) +
                    " nur Nullen. Die Dreiecksmatrix hätte eine 0 auf der Diagonalen, also ist "
                    "det(" +
                    name + ") = 0.");
            null = true;
            break;
        }
        std::vector<Zeilenoperation> ops;
        if (p != k)
            ops.push_back({Zeilenoperation::Art::tausch, k, p, Bruch(0)});
        for (const auto& op : ops)
            anwenden(op, a);
        for (std::size_t r = k + 1; r < n; ++r)
            if (a(r, k) != 0) {
                Zeilenoperation op{Zeilenoperation::Art::addieren, r, k, Bruch(-a(r, k) / a(k, k))};
                anwenden(op, a);
                ops.push_back(op);
            }
        if (ops.empty()) {
            s.zeile("Spalte " + zahl(k + 1) + ": unter der Diagonalen stehen schon Nullen.");
            continue;
        }
        s.zeile("Spalte " + zahl(k + 1) + ":");
        for (const auto& op : ops) {
            Zeile z("   ");
            z << op.text();
            if (op.art == Zeilenoperation::Art::tausch) {
                ++tausche;
                z << "   (Vorzeichenwechsel)";
            }
            s.zeile(z);
        }
        s.matrix(a);
    }
    s.leer();
    if (!null) {
        det = tausche % 2 == 0 ? 1 : -1;
        Zeile z;
        z << "det(" << name << ") = ";
        if (tausche % 2 == 1)
            z << "−(";
        for (std::size_t k = 0; k < n; ++k) {
            if (k > 0)
                z << " · ";
            faktor(z, a(k, k));
            det *= a(k, k);
        }
        if (tausche % 2 == 1)
            z << ")";
        if (tausche > 0)
            s.zeile(zahl(tausche) + (tausche == 1 ? " Zeilentausch" : " Zeilentausche") +
                    ", das Vorzeichen wechselt " + zahl(tausche) + "-mal.");
        s.zeile(z << " = " << det);
    } else {
        s.zeile(Zeile("det(") << name << ") = " << Bruch(0));
    }
    antwort.notiz = "det(" + name + ") = " + bruchText(det);
    return antwort;
}

} // namespace tabulon
