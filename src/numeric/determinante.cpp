// Determinant and inverse by cofactor expansion, without elimination. Matrices are at most 8 x 8,
// so the factorial cost stays small, and the fixed order of products and sums makes the results
// reproducible to the last bit.

#include "numeric/matrix.h"

#include <vector>

namespace tabulon {

namespace {

// The Laplace expansion along the first remaining row without building minors: a minor of the
// expansion is always the rows below `zeile` restricted to the columns `spalten` (ascending),
// so passing those indices gives the same products and sums, in the same order, as expanding
// adiunkte() copies would. `frei` is scratch room for the column lists of the deeper levels.
double entwickle(const Matrix& m, std::int64_t zeile, const std::int64_t* spalten,
                 std::int64_t anzahl, std::int64_t* frei) {
    if (anzahl - 1 > 0) {
        std::int64_t* rest = frei;
        double summe = 0.0;
        for (std::int64_t j = 0; j < anzahl; ++j) {
            std::int64_t k = 0;
            for (std::int64_t s = 0; s < anzahl; ++s) {
                if (s != j) {
                    rest[k++] = spalten[s];
                }
            }
            summe += (m(zeile, spalten[j]) *
                      entwickle(m, zeile + 1, rest, anzahl - 1, frei + (anzahl - 1))) *
                     vorz(j);
        }
        return summe;
    }
    return m(zeile, spalten[0]);
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
    // Neither case is ever asked for: the empty product 1.0 keeps the expansion (and the
    // inverse of a 1 x 1 matrix) consistent, and a matrix taller than wide has no square block
    // to expand, so it gets 0.0 instead of a read outside the grid.
    if (rows <= 0) {
        return 1.0;
    }
    if (columns < rows) {
        return 0.0;
    }
    // Only the first `rows` columns take part, as in an expansion by adiunkte().
    std::vector<std::int64_t> spalten(static_cast<std::size_t>(rows));
    for (std::int64_t j = 0; j < rows; ++j) {
        spalten[static_cast<std::size_t>(j)] = j;
    }
    std::vector<std::int64_t> frei(static_cast<std::size_t>(rows * rows));
    return entwickle(*this, 0, spalten.data(), rows, frei.data());
}

bool Matrix::istRegulaer() const {
    return istQuadratisch() && !istNull(det());
}

Matrix Matrix::invers() const {
    if (!istRegulaer()) {
        return Matrix(1, 1);
    }
    const std::int64_t n = rows;
    const double d = det();
    Matrix c(n, n);
    if (n == 1) {
        // The cofactor of the single entry is the empty product 1.0.
        c(0, 0) = 1.0 / d;
        return c;
    }
    for (std::int64_t i = 0; i < n; ++i) {
        for (std::int64_t j = 0; j < n; ++j) {
            const double zeichen = 1.0 - 2.0 * static_cast<double>((i + j) % 2);
            c(i, j) = (zeichen * subMatrix(i, j).det()) / d;
        }
    }
    return c.transponiert();
}

} // namespace tabulon
