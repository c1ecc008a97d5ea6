#include "exakt/befehle.h"

#include "exakt/befehlhilfen.h"
#include "exakt/gaussjordan.h"
#include "textmatrix/zahltext.h"

namespace tabulon {

std::string zahl(std::size_t n) {
    return ganzText(static_cast<std::int64_t>(n));
}

std::string groesse(const BMatrix& m) {
    return zahl(m.rows) + " × " + zahl(m.columns);
}

ExaktAntwort abgelehnt(std::string notiz) {
    ExaktAntwort a;
    a.notiz = std::move(notiz);
    return a;
}

ExaktAntwort exaktGauss(const std::string& name, const SMatrix& m) {
    BLesung l = liesBMatrix(name, m);
    if (!l.ok)
        return abgelehnt(l.notiz);
    const BMatrix& a = l.matrix;
    Umformung u = gaussJordan(a, a.columns);

    ExaktAntwort antwort;
    Seite& s = antwort.seite;
    s.zeile("Gauß-Jordan-Verfahren für " + name + " (" + groesse(a) + ")").leer();
    schritteZeigen(s, a, u, 0);
    s.leer().zeile("Reduzierte Zeilenstufenform von " + name + ":").matrix(u.reduziert);
    s.zeile("Rang: " + zahl(u.rang()));
    s.zeile("Pivotspalten: " + spaltenListe(u.pivotspalten));
    antwort.ok = true;
    antwort.tableau = tableauText(u.reduziert);
    antwort.notiz = "Die reduzierte Zeilenstufenform von " + name +
                    " wurde ins Feld der Eingabematrix geschrieben.";
    return antwort;
}

std::vector<std::string> variablen(std::size_t n) {
    std::vector<std::string> namen;
    for (std::size_t i = 0; i < n; ++i)
        namen.push_back("x" + zahl(i + 1));
    return namen;
}

ExaktAntwort exaktLGS(const std::string& name, const SMatrix& m) {
    BLesung l = liesBMatrix(name, m);
    if (!l.ok)
        return abgelehnt(l.notiz);
    const BMatrix& a = l.matrix;
    if (a.columns < 2)
        return abgelehnt("Die Matrix " + name +
                         " hat nur eine Spalte; die erweiterte Koeffizientenmatrix eines "
                         "Gleichungssystems braucht Koeffizienten und eine rechte Seite.");
    const std::size_t n = a.columns - 1;
    const auto x = variablen(n);

    ExaktAntwort antwort;
    antwort.ok = true;
    Seite& s = antwort.seite;
    s.zeile("Lineares Gleichungssystem mit der erweiterten Koeffizientenmatrix " + name + " (" +
            zahl(a.rows) + " Gleichungen, " + zahl(n) + " Unbekannte):");
    for (std::size_t r = 0; r < a.rows; ++r) {
        BVektor k(n);
        for (std::size_t c = 0; c < n; ++c)
            k[c] = a(r, c);
        s.zeile(Zeile("   ") << linearText(k, x) << " = " << a(r, n));
    }
    s.leer();
    Umformung u = gaussJordan(a, n);
    schritteZeigen(s, a, u, 1);
    s.leer().zeile("Reduzierte Zeilenstufenform:").matrix(u.reduziert, 1);
    s.zeile("Rang der Koeffizientenmatrix: " + zahl(u.rang()));

    // The first row below the pivots whose right-hand side is not 0 reads 0 = c.
    for (std::size_t r = u.rang(); r < a.rows; ++r) {
        const Bruch& c = u.reduziert(r, n);
        if (c != 0) {
            s.leer().zeile(Zeile("Zeile ")
                           << zahl(r + 1) << " lautet 0 = " << c << ", aber " << c << " ≠ 0.");
            s.zeile("Das Gleichungssystem hat keine Lösung.");
            antwort.notiz = "Das Gleichungssystem " + name + " hat keine Lösung (Zeile " +
                            zahl(r + 1) + " lautet 0 = " + bruchText(c) + ").";
            return antwort;
        }
    }

    BVektor speziell(n);
    for (std::size_t i = 0; i < u.rang(); ++i)
        speziell[u.pivotspalten[i]] = u.reduziert(i, n);
    std::vector<BVektor> homogen = kernbasis(u, n);
    s.leer();
    if (homogen.empty()) {
        Zeile z("Eindeutige Lösung: ");
        for (std::size_t i = 0; i < n; ++i)
            z << (i > 0 ? ", " : "") << x[i] << " = " << speziell[i];
        s.zeile(z);
        antwort.notiz = "Die Lösung von " + name + " wurde ins Feld der Eingabematrix geschrieben.";
    } else {
        // One parameter is t; several are t1, t2, ... in the order of the free columns.
        std::vector<std::string> parameter;
        for (std::size_t k = 0; k < homogen.size(); ++k)
            parameter.push_back(homogen.size() == 1 ? "t" : "t" + zahl(k + 1));
        s.zeile("Unendlich viele Lösungen mit " + zahl(homogen.size()) +
                (homogen.size() == 1 ? " freien Parameter:" : " freien Parametern:"));
        std::vector<bool> frei(n, true);
        for (auto p : u.pivotspalten)
            frei[p] = false;
        for (std::size_t k = 0, j = 0; j < n; ++j)
            if (frei[j])
                s.zeile("   " + x[j] + " = " + parameter[k++] + " (frei wählbar)");
        for (std::size_t j = 0; j < n; ++j) {
            if (frei[j])
                continue;
            BVektor koeffizienten;
            for (const auto& v : homogen)
                koeffizienten.push_back(v[j]);
            s.zeile(Zeile("   ") << x[j] << " = "
                                 << linearText(koeffizienten, parameter, speziell[j], true));
        }
        Zeile loesung("Lösungsmenge: x = ");
        loesung << speziell;
        for (std::size_t k = 0; k < homogen.size(); ++k)
            loesung << " + " << parameter[k] << "·" << homogen[k];
        s.zeile(loesung);
        antwort.notiz = "Eine spezielle Lösung und eine Basis der homogenen Lösungen von " + name +
                        " wurden ins Feld der Eingabematrix geschrieben.";
    }
    std::vector<BVektor> spalten{speziell};
    spalten.insert(spalten.end(), homogen.begin(), homogen.end());
    antwort.tableau = tableauText(BMatrix::ausSpalten(n, spalten));
    return antwort;
}

ExaktAntwort exaktKern(const std::string& name, const SMatrix& m) {
    BLesung l = liesBMatrix(name, m);
    if (!l.ok)
        return abgelehnt(l.notiz);
    const BMatrix& a = l.matrix;
    Umformung u = gaussJordan(a, a.columns);
    std::vector<BVektor> basis = kernbasis(u, a.columns);

    ExaktAntwort antwort;
    antwort.ok = true;
    Seite& s = antwort.seite;
    s.zeile("Kern und Bild von " + name + " (" + groesse(a) + ")").leer();
    schritteZeigen(s, a, u, 0);
    s.leer().zeile("Reduzierte Zeilenstufenform:").matrix(u.reduziert);
    s.zeile("Pivotspalten: " + spaltenListe(u.pivotspalten));
    s.zeile("Rang " + zahl(u.rang()) + " + Defekt " + zahl(basis.size()) + " = " + zahl(a.columns) +
            " Spalten");
    s.leer().zeile("Basis des Bildes (die Pivotspalten von " + name + "):");
    for (auto p : u.pivotspalten)
        s.zeile(Zeile("   s") << zahl(p + 1) << " = " << a.spalte(p));
    if (u.pivotspalten.empty())
        s.zeile("   keine: das Bild enthält nur den Nullvektor.");

    s.leer();
    if (basis.empty()) {
        s.zeile("Der Kern von " + name + " enthält nur den Nullvektor.");
        antwort.notiz =
            "Der Kern von " + name + " enthält nur den Nullvektor; das Tableau bleibt unverändert.";
        return antwort;
    }
    s.zeile("Basis des Kerns (je eine freie Variable 1, die anderen 0, die übrigen aus den "
            "Zeilen der reduzierten Form):");
    for (std::size_t k = 0; k < basis.size(); ++k) {
        std::string v = "v" + zahl(k + 1);
        s.zeile(Zeile("   ") << v << " = " << basis[k]);
        s.zeile(Zeile("   ") << name << "·" << v << " = " << (a * basis[k]));
    }
    antwort.tableau = tableauText(BMatrix::ausSpalten(a.columns, basis));
    antwort.notiz = "Die Basis des Kerns von " + name +
                    " wurde spaltenweise ins Feld der Eingabematrix geschrieben.";
    return antwort;
}

ExaktZustand& exaktZustand() {
    static ExaktZustand zustand;
    return zustand;
}

void merkeSeite(const std::string& name, const Seite& seite) {
    exaktZustand().letzteSeiten[name] = seite;
}

std::string exaktTex(const std::string& name) {
    const auto& seiten = exaktZustand().letzteSeiten;
    auto it = seiten.find(name);
    return it == seiten.end() ? "" : texDokument(it->second);
}

std::string exaktTexDateiname(const std::string& name) {
    return name + "_exakt";
}

std::string exaktTexErfolgNotiz(const std::string& name) {
    return "Die Datei Matrix_" + exaktTexDateiname(name) +
           " wurde im  Dokument-Ordner gespeichert.";
}

std::string exaktTexKeineSeiteNotiz(const std::string& name) {
    return "Für " + name +
           " gibt es noch keine exakte Seite; bitte zuerst einen Befehl des "
           "Menüs 'Exakt' anwenden.";
}

} // namespace tabulon
