// Determinant and inverse by cofactor expansion, without elimination. The fixed order of products
// and sums makes the results reproducible to the last bit; entwicklung.h forms each minor of the
// expansion once, in the order of the plain recursion.

#include "numeric/entwicklung.h"
#include "numeric/matrix.h"

#include <array>
#include <cstdint>
#include <limits>
#include <vector>

namespace tabulon {

namespace {

// A table holds 2^rows entries; beyond this size the expansion would not end in any useful time
// anyway, and no matrix of the system comes near it (the tableau has eight rows).
constexpr std::int64_t tabellenGrenze = 20;

// Fills `tabelle` with the minors of the square block of the first m.rows columns, on the rows
// other than `weg` (-1: all rows). A term is written as the recursion writes it: entry times
// minor, then times the sign. When row `weg` is left out, the lowest m.rows - 1 - weg rows are
// the same as in the whole matrix, and so are their minors: `tabelle` must then hold the whole
// matrix's table, and only the larger minors are formed again.
void tabelleFuellen(std::vector<double>& tabelle, const Matrix& m, std::int64_t weg) {
    std::array<const double*, tabellenGrenze> reihen{};
    std::int64_t zeilen = 0;
    for (std::int64_t zeile = m.rows - 1; zeile >= 0; --zeile) {
        if (zeile != weg) {
            reihen[static_cast<std::size_t>(zeilen++)] = m.grid.data() + zeile * m.columns;
        }
    }
    const auto eintrag = [&](std::int64_t k, int spalte) {
        return reihen[static_cast<std::size_t>(k)][spalte];
    };
    const auto glied = [&](std::int64_t k, int spalte, std::int64_t j, double minor) {
        return (eintrag(k, spalte) * minor) * vorz(j);
    };
    const std::int64_t gleich = weg < 0 ? 0 : m.rows - 1 - weg;
    minorenFuellen(tabelle, zeilen, m.rows, eintrag, glied, gleich + 1);
}

std::uint32_t alleSpalten(std::int64_t n) {
    return (std::uint32_t{1} << n) - 1;
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
    std::vector<double> tabelle;
    tabelleFuellen(tabelle, *this, -1);
    return tabelle[alleSpalten(rows)];
}

bool Matrix::istRegulaer() const {
    return istQuadratisch() && !istNull(det());
}

std::pair<Matrix, double> inversUndDet(const Matrix& m) {
    // The regularity test of istRegulaer() on the determinant of the whole matrix.
    if (!m.istQuadratisch() || m.rows > tabellenGrenze) {
        return {Matrix(1, 1), m.det()};
    }
    if (m.rows == 0) {
        // The determinant of no rows is the empty product 1.0, so the empty matrix is its own
        // inverse.
        return {Matrix(), 1.0};
    }
    const std::int64_t n = m.rows;
    std::vector<double> ganz;
    tabelleFuellen(ganz, m, -1);
    const double d = ganz[alleSpalten(n)];
    if (istNull(d)) {
        return {Matrix(1, 1), d};
    }
    Matrix c(n, n);
    if (n == 1) {
        // The cofactor of the single entry is the determinant of no rows, the empty product.
        c(0, 0) = (1.0 * 1.0) / d;
        return {c, d};
    }
    // Cofactor (i, j) is the determinant of subMatrix(i, j): the rows other than i on the
    // columns other than j, expanded along its first row like any determinant.
    std::vector<double> ohneZeile;
    for (std::int64_t i = 0; i < n; ++i) {
        ohneZeile.assign(ganz.begin(), ganz.end());
        tabelleFuellen(ohneZeile, m, i);
        for (std::int64_t j = 0; j < n; ++j) {
            const double zeichen = 1.0 - 2.0 * static_cast<double>((i + j) % 2);
            const std::uint32_t spalten = alleSpalten(n) & ~(std::uint32_t{1} << j);
            // Written transposed right away: the inverse is the transposed cofactor matrix.
            c(j, i) = (zeichen * ohneZeile[spalten]) / d;
        }
    }
    return {c, d};
}

Matrix Matrix::invers() const {
    return inversUndDet(*this).first;
}

} // namespace tabulon
