#pragma once
// Small builders and comparisons shared by the numeric tests.

#include "numeric/matrix.h"

#include <gtest/gtest.h>
#include <initializer_list>

namespace tabulon::test {

inline Matrix mat(std::initializer_list<std::initializer_list<double>> zeilen) {
    Matrix m(static_cast<std::int64_t>(zeilen.size()),
             static_cast<std::int64_t>(zeilen.begin()->size()));
    m.grid.clear();
    for (const auto& zeile : zeilen) {
        m.grid.insert(m.grid.end(), zeile);
    }
    return m;
}

// For results whose last bits depend on rounding.
inline void erwarteFast(const Matrix& ist, const Matrix& soll, double toleranz = 1e-12) {
    ASSERT_EQ(ist.rows, soll.rows);
    ASSERT_EQ(ist.columns, soll.columns);
    for (std::size_t k = 0; k < ist.grid.size(); ++k) {
        EXPECT_NEAR(ist.grid[k], soll.grid[k], toleranz) << "entry " << k;
    }
}

} // namespace tabulon::test
