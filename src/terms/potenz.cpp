#include "terms/parser.h"

#include <bit>
#include <vector>

namespace tabulon {

namespace {

// Matrix::det() expands along the first row, recursively, and recomputes every minor: an 8 x 8
// inverse costs some 600 000 minor matrices, far too slow for a term evaluated thousands of
// times. A minor met during that expansion is fixed by the set of columns left (its rows are
// always the last ones), so each minor's determinant is computed once here and reused. The
// arithmetic per minor is the same as in Matrix::det() (the same products, the same grouping, the
// terms added in the same order), so the results agree to the last bit.
class Entwicklung {
public:
    // The expansion of `m` without row `ohneZeile` (-1: all rows).
    Entwicklung(const Matrix& m, std::int64_t ohneZeile)
        : eintraege(m.grid.data()), spaltenzahl(m.columns) {
        for (std::int64_t i = 0; i < m.rows; ++i) {
            if (i != ohneZeile) {
                zeilen.push_back(i);
            }
        }
        const std::size_t groesse = std::size_t{1} << static_cast<unsigned>(m.columns);
        wert.assign(groesse, 0.0);
        bekannt.assign(groesse, 0);
    }

    // The determinant of the minor on the columns in `spalten` (`anzahl` of them) and the last
    // `anzahl` rows.
    double det(unsigned spalten, std::size_t anzahl) {
        const double* zeile = eintraege + zeilen[zeilen.size() - anzahl] * spaltenzahl;
        if (anzahl == 1) {
            return zeile[std::countr_zero(spalten)];
        }
        if (bekannt[spalten] != 0) {
            return wert[spalten];
        }
        double summe = 0.0;
        std::int64_t j = 0;
        for (unsigned rest = spalten; rest != 0; rest &= rest - 1, ++j) {
            const int spalte = std::countr_zero(rest);
            const unsigned ohne = spalten & ~(1u << static_cast<unsigned>(spalte));
            // The sign as vorz(j) gives it.
            const double vorzeichen = j % 2 == 1 ? -1.0 : 1.0;
            summe += (zeile[spalte] * det(ohne, anzahl - 1)) * vorzeichen;
        }
        bekannt[spalten] = 1;
        wert[spalten] = summe;
        return summe;
    }

private:
    const double* eintraege;
    std::int64_t spaltenzahl;
    std::vector<std::int64_t> zeilen;
    std::vector<double> wert;
    std::vector<char> bekannt;
};

// Sizes for which the table of column sets stays small. Matrices come from the 8 x 8 tableau;
// anything outside (a 1 x 1 matrix, whose inverse needs no minor) goes to Matrix itself.
bool tabellierbar(const Matrix& m) {
    return m.rows >= 2 && m.rows <= 12 && m.istQuadratisch();
}

unsigned alleSpalten(const Matrix& m) {
    return (1u << static_cast<unsigned>(m.columns)) - 1;
}

double determinante(const Matrix& m) {
    if (!tabellierbar(m)) {
        return m.det();
    }
    return Entwicklung(m, -1).det(alleSpalten(m), static_cast<std::size_t>(m.rows));
}

// Matrix::invers() for a square matrix whose determinant d is already known.
Matrix inverse(const Matrix& m, double d) {
    if (!tabellierbar(m)) {
        return m.invers();
    }
    if (istNull(d)) {
        return Matrix(1, 1);
    }
    const std::int64_t n = m.rows;
    Matrix kofaktoren(n, n);
    for (std::int64_t i = 0; i < n; ++i) {
        Entwicklung ohneZeile(m, i);
        for (std::int64_t j = 0; j < n; ++j) {
            const double vorzeichen = 1.0 - 2.0 * static_cast<double>((i + j) % 2);
            const unsigned spalten = alleSpalten(m) & ~(1u << static_cast<unsigned>(j));
            kofaktoren(i, j) =
                (vorzeichen * ohneZeile.det(spalten, static_cast<std::size_t>(n - 1))) / d;
        }
    }
    return kofaktoren.transponiert();
}

} // namespace

std::pair<Matrix, bool> hoch(const Matrix& mat, int n) {
    Matrix ergebnis(1, 1);
    bool ok = mat.istQuadratisch();
    if (ok && n > 0) {
        ergebnis = mat;
        for (int i = 1; i < n; ++i) {
            ergebnis = mat * ergebnis;
        }
    }
    if (!ok) {
        termZustand().fehlerListe += quadratFehler;
    }
    if (ok && n == -1) {
        // Exactly 0.0, not the zero test: a tiny determinant passes here, and the inverse then
        // comes back as the 1 x 1 zero matrix with success.
        const double d = determinante(mat);
        ok = d != 0.0;
        if (!ok) {
            termZustand().fehlerListe += regulaerFehler;
        } else {
            ergebnis = inverse(mat, d);
        }
    }
    return {ergebnis, ok};
}

} // namespace tabulon
