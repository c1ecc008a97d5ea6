#include "matrixbau.h"

#include "numeric/matrix.h"

#include <gtest/gtest.h>

namespace tabulon {
namespace {

using test::mat;

TEST(Determinante, LaplaceExpansion) {
    EXPECT_EQ(mat({{0}}).det(), 0.0);
    EXPECT_EQ(mat({{-7.5}}).det(), -7.5);
    EXPECT_EQ(mat({{1, 2}, {3, 4}}).det(), -2.0);
    EXPECT_EQ(mat({{0, 0, 0}, {1, 2, 3}, {4, 5, 7}}).det(), 0.0);
    EXPECT_EQ(mat({{2, 0, 1}, {1, 3, 2}, {1, 1, 2}}).det(), 6.0);
    // Permutation matrices: two exchanges give +1, one gives -1, so the signs must alternate.
    EXPECT_EQ(mat({{0, 1, 0, 0}, {1, 0, 0, 0}, {0, 0, 0, 1}, {0, 0, 1, 0}}).det(), 1.0);
    EXPECT_EQ(mat({{0, 1, 0}, {1, 0, 0}, {0, 0, 1}}).det(), -1.0);
}

// The expansion written out with adiunkte() copies: det() must agree with it to the last bit.
double laplace(const Matrix& m) {
    if (m.rows == 1) {
        return m(0, 0);
    }
    double summe = 0.0;
    for (std::int64_t j = 0; j < m.rows; ++j) {
        summe += (m(0, j) * laplace(adiunkte(m, j))) * vorz(j);
    }
    return summe;
}

TEST(Determinante, AgreesBitForBitWithTheExpansionByMinors) {
    for (std::int64_t n = 2; n <= 7; ++n) {
        Matrix m(n, n);
        for (std::size_t k = 0; k < m.grid.size(); ++k) {
            m.grid[k] = static_cast<double>((k * 37 + 11) % 23) / 7.0 - 1.3;
        }
        EXPECT_EQ(m.det(), laplace(m)) << "order " << n;
        // A wide matrix expands over its left square block.
        EXPECT_EQ(m.plusNullzeile(n).transponiert().det(), laplace(m.transponiert()))
            << "order " << n;
    }
}

TEST(Determinante, InverseByCofactorsOfRegularMatricesOnly) {
    EXPECT_FALSE(mat({{1e-8, 0}, {0, 1e-8}}).istRegulaer());
    EXPECT_TRUE(mat({{1e-7, 0}, {0, 1e-7}}).istRegulaer());
    EXPECT_FALSE(mat({{1, 2, 3}, {4, 5, 6}}).istRegulaer());

    // Exact values: the cofactor formula divides each signed minor by the determinant.
    EXPECT_EQ(mat({{1, 2}, {3, 4}}).invers(), mat({{-2, 1}, {1.5, -0.5}}));
    EXPECT_EQ(mat({{2, 0}, {0, 4}}).invers(), mat({{0.5, 0}, {0, 0.25}}));
    EXPECT_EQ(mat({{4}}).invers(), mat({{0.25}}));
    EXPECT_EQ(mat({{1, 2, 3}, {4, 5, 6}}).invers(), Matrix(1, 1));
    EXPECT_EQ(mat({{1e-8, 0}, {0, 1e-8}}).invers(), Matrix(1, 1));
    EXPECT_EQ(mat({{0}}).invers(), Matrix(1, 1));
}

} // namespace
} // namespace tabulon
