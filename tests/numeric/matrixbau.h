#pragma once
// Small builders and comparisons shared by the numeric tests.

#include "numeric/matrix.h"
#include "textmatrix/zahltext.h"

#include <cmath>
#include <gtest/gtest.h>
#include <initializer_list>

namespace tabulon::test {

inline Matrix mat(std::initializer_list<std::initializer_list<double>> zeilen) {
    const auto rows = static_cast<std::int64_t>(zeilen.size());
    const auto columns = rows == 0 ? 0 : static_cast<std::int64_t>(zeilen.begin()->size());
    Matrix m(rows, columns);
    std::size_t k = 0;
    for (const auto& zeile : zeilen) {
        for (const double x : zeile) {
            m.grid[k++] = x;
        }
    }
    return m;
}

// Same size and every entry within `toleranz`; for results whose last bits depend on rounding.
inline ::testing::AssertionResult fastGleich(const Matrix& ist, const Matrix& soll,
                                             double toleranz = 1e-12) {
    if (ist.rows != soll.rows || ist.columns != soll.columns) {
        return ::testing::AssertionFailure() << "size " << ist.rows << "x" << ist.columns
                                             << ", expected " << soll.rows << "x" << soll.columns;
    }
    for (std::size_t k = 0; k < ist.grid.size(); ++k) {
        if (!(std::fabs(ist.grid[k] - soll.grid[k]) <= toleranz)) {
            return ::testing::AssertionFailure()
                   << "entry " << k << " is " << zahlTextVoll(ist.grid[k]) << ", expected "
                   << zahlTextVoll(soll.grid[k]);
        }
    }
    return ::testing::AssertionSuccess();
}

} // namespace tabulon::test
