// Determinant and inverse by cofactor expansion, without elimination. Matrices are at most 8 x 8,
// so the factorial cost stays small, and the fixed order of products and sums makes the results
// reproducible to the last bit.

#include "numeric/matrix.h"

namespace tabulon {

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
    if (rows - 1 > 0) {
        double summe = 0.0;
        for (std::int64_t j = 0; j < rows; ++j) {
            summe += ((*this)(0, j) * adiunkte(*this, j).det()) * vorz(j);
        }
        return summe;
    }
    return (*this)(0, 0);
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
