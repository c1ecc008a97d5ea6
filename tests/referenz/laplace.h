#pragma once
// The cofactor expansion written out plainly: a copied minor for every term, 8! products for an
// 8 x 8 determinant. det() and invers() must agree with it bit for bit.

#include "numeric/matrix.h"

namespace tabulon::referenz {

inline double laplaceDet(const Matrix& m) {
    if (m.rows == 1) {
        return m(0, 0);
    }
    double summe = 0.0;
    for (std::int64_t j = 0; j < m.rows; ++j) {
        summe += (m(0, j) * laplaceDet(adiunkte(m, j))) * vorz(j);
    }
    return summe;
}

// The inverse of a regular matrix, as the transposed cofactor matrix over the determinant.
inline Matrix kofaktorInverse(const Matrix& m) {
    const double d = laplaceDet(m);
    Matrix c(m.rows, m.rows);
    for (std::int64_t i = 0; i < m.rows; ++i) {
        for (std::int64_t j = 0; j < m.rows; ++j) {
            const double minor = m.rows == 1 ? 1.0 : laplaceDet(m.subMatrix(i, j));
            c(i, j) = ((1.0 - 2.0 * static_cast<double>((i + j) % 2)) * minor) / d;
        }
    }
    return c.transponiert();
}

} // namespace tabulon::referenz
