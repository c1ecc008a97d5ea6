// Determinant and inverse by cofactor expansion, without elimination. The fixed order of products
// and sums makes the results reproducible to the last bit.
//
// The expansion along the first row meets the same minors again and again: a minor of it is
// always the lowest k rows restricted to some set of k columns, so it is fixed by that set alone.
// Each such determinant is computed once and kept in a table indexed by the column set, with
// exactly the arithmetic of the plain recursion (entry times minor determinant, then times the
// sign; terms added for ascending column). An 8 x 8 determinant then costs about a thousand
// products instead of 8!, and an inverse some eight thousand instead of 64 * 7!, which matters
// for a term such as A^-1*B evaluated a hundred thousand times.

#include "numeric/matrix.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <vector>

namespace tabulon {

namespace {

// The table holds 2^rows entries; beyond this size the expansion would not end in any useful
// time anyway, and no matrix of the system comes near it (the tableau has eight rows).
constexpr std::int64_t tabellenGrenze = 20;

class Entwicklung {
public:
    // The expansion of `m` over its first `breite` columns; the table is sized once and serves
    // every choice of left-out row.
    Entwicklung(const Matrix& m, std::int64_t breite)
        : eintraege(m.grid.data()), spaltenzahl(m.columns), zeilenzahl(m.rows),
          groesse(std::size_t{1} << static_cast<unsigned>(breite)) {
        // The tableau's sizes fit the table kept on the stack; larger ones take the heap.
        if (groesse > klein) {
            grossWert.resize(groesse);
            grossBekannt.resize(groesse);
            wert = grossWert.data();
            bekannt = grossBekannt.data();
        }
        ohneZeile(-1);
    }

    // Starts over for the rows other than `weg` (-1: all rows).
    void ohneZeile(std::int64_t weg) {
        // Minors of k rows expand along the k-th last row that remains.
        std::int64_t zeile = zeilenzahl;
        for (std::int64_t k = 1; k <= zeilenzahl - (weg >= 0 ? 1 : 0); ++k) {
            zeile -= zeile - 1 == weg ? 2 : 1;
            reihen[static_cast<std::size_t>(k)] = eintraege + zeile * spaltenzahl;
        }
        std::fill(bekannt, bekannt + groesse, char{0});
    }

    // The determinant of the lowest `anzahl` remaining rows on the columns of the set `spalten`.
    double det(std::uint32_t spalten, std::int64_t anzahl) {
        const double* reihe = reihen[static_cast<std::size_t>(anzahl)];
        if (anzahl == 1) {
            return reihe[std::countr_zero(spalten)];
        }
        if (bekannt[spalten] != 0) {
            return wert[spalten];
        }
        double summe = 0.0;
        std::int64_t j = 0;
        for (std::uint32_t rest = spalten; rest != 0; rest &= rest - 1, ++j) {
            const int spalte = std::countr_zero(rest);
            const std::uint32_t ohne = spalten & ~(std::uint32_t{1} << spalte);
            summe += (reihe[spalte] * det(ohne, anzahl - 1)) * vorz(j);
        }
        bekannt[spalten] = 1;
        wert[spalten] = summe;
        return summe;
    }

private:
    const double* eintraege;
    std::int64_t spaltenzahl;
    std::int64_t zeilenzahl;
    std::array<const double*, 33> reihen{};
    static constexpr std::size_t klein = 256;
    std::size_t groesse;
    std::array<double, klein> kleinWert;
    std::array<char, klein> kleinBekannt;
    std::vector<double> grossWert;
    std::vector<char> grossBekannt;
    double* wert = kleinWert.data();
    char* bekannt = kleinBekannt.data();
};

std::uint32_t ersteSpalten(std::int64_t n) {
    return (std::uint32_t{1} << static_cast<unsigned>(n)) - 1;
}

} // namespace

Matrix adiunkte(const Matrix& quelle, std::int64_t spaltenNr) {
    const std::int64_t n = quelle.rows;
    Matrix a(n - 1, n - 1);
    for (std::int64_t i = 1; i < n; ++i) {
        for (std::int64_t j = 0; j < n; ++j) {
            if (j < spaltenNr) {
                a(i - 1, j) = quelle(i, j);
            } else if (j > spaltenNr) {
                a(i - 1, j - 1) = quelle(i, j);
            }
        }
    }
    return a;
}

double vorz(std::int64_t n) {
    return n % 2 == 1 ? -1.0 : 1.0;
}

double Matrix::det() const {
    // None of these cases is ever asked for: the empty product 1.0 keeps the inverse of a 1 x 1
    // matrix consistent, a matrix taller than wide has no square block to expand (0.0 instead of
    // a read outside the grid), and a matrix too large for the table gets NaN instead of an
    // expansion that would never end.
    if (rows <= 0) {
        return 1.0;
    }
    if (columns < rows) {
        return 0.0;
    }
    if (rows > tabellenGrenze) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    // Only the first `rows` columns take part, as in an expansion by adiunkte().
    return Entwicklung(*this, rows).det(ersteSpalten(rows), rows);
}

bool Matrix::istRegulaer() const {
    return istQuadratisch() && !istNull(det());
}

Matrix Matrix::invers() const {
    // The regularity test of istRegulaer(), with the determinant kept for the division.
    const double d = istQuadratisch() && rows <= tabellenGrenze ? det() : 0.0;
    if (istNull(d)) {
        return Matrix(1, 1);
    }
    const std::int64_t n = rows;
    Matrix c(n, n);
    if (n == 1) {
        // The cofactor of the single entry is the determinant of no rows, the empty product.
        c(0, 0) = (1.0 * 1.0) / d;
        return c;
    }
    // Cofactor (i, j) is the determinant of subMatrix(i, j): the rows other than i on the
    // columns other than j, expanded along its first row like any determinant.
    Entwicklung entwicklung(*this, n);
    for (std::int64_t i = 0; i < n; ++i) {
        entwicklung.ohneZeile(i);
        for (std::int64_t j = 0; j < n; ++j) {
            const double zeichen = 1.0 - 2.0 * static_cast<double>((i + j) % 2);
            const std::uint32_t spalten = ersteSpalten(n) & ~(std::uint32_t{1} << j);
            c(i, j) = (zeichen * entwicklung.det(spalten, n - 1)) / d;
        }
    }
    return c.transponiert();
}

} // namespace tabulon
