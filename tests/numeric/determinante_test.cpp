#include "matrixbau.h"

#include "numeric/matrix.h"

#include <bit>
#include <gtest/gtest.h>

namespace tabulon {
namespace {

using test::mat;

// The expansion written out plainly, with a copied minor for every term, and the cofactor
// inverse built on it: det() and invers() share minors and must still agree to the last bit.
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

Matrix kofaktorInverse(const Matrix& m) {
    const double d = laplace(m);
    Matrix c(m.rows, m.rows);
    for (std::int64_t i = 0; i < m.rows; ++i) {
        for (std::int64_t j = 0; j < m.rows; ++j) {
            const double minor = m.rows == 1 ? 1.0 : laplace(m.subMatrix(i, j));
            c(i, j) = ((1.0 - 2.0 * static_cast<double>((i + j) % 2)) * minor) / d;
        }
    }
    return c.transponiert();
}

void erwarteBitgleich(const Matrix& ist, const Matrix& soll, std::int64_t n) {
    ASSERT_EQ(ist.rows, soll.rows) << "order " << n;
    for (std::size_t k = 0; k < ist.grid.size(); ++k) {
        EXPECT_EQ(std::bit_cast<std::uint64_t>(ist.grid[k]),
                  std::bit_cast<std::uint64_t>(soll.grid[k]))
            << "order " << n << ", entry " << k;
    }
}

TEST(Determinante, AgreesBitForBitWithThePlainExpansion) {
    std::uint64_t zustand = 12345;
    const auto zufall = [&zustand] {
        zustand = zustand * 6364136223846793005ULL + 1442695040888963407ULL;
        return static_cast<double>(static_cast<std::int64_t>(zustand >> 33) % 2001 - 1000) / 7.0;
    };
    for (std::int64_t n = 1; n <= 8; ++n) {
        for (int runde = 0; runde < 3; ++runde) {
            Matrix m(n, n);
            for (double& x : m.grid) {
                x = zufall();
            }
            EXPECT_EQ(std::bit_cast<std::uint64_t>(m.det()),
                      std::bit_cast<std::uint64_t>(laplace(m)))
                << "order " << n;
            erwarteBitgleich(m.invers(), kofaktorInverse(m), n);
            // A wide matrix expands over its left square block.
            const Matrix breit = m.transponiert().plusNullzeile(n).transponiert();
            EXPECT_EQ(breit.det(), laplace(m)) << "order " << n;
        }
    }
}

TEST(Determinante, ExactValuesAndRegularity) {
    EXPECT_EQ(mat({{0}}).det(), 0.0);
    EXPECT_EQ(mat({{1, 2}, {3, 4}}).det(), -2.0);
    // Permutations: the signs must alternate along the row.
    EXPECT_EQ(mat({{0, 1, 0}, {1, 0, 0}, {0, 0, 1}}).det(), -1.0);
    EXPECT_EQ(mat({{0, 0, 1}, {1, 0, 0}, {0, 1, 0}}).det(), 1.0);

    EXPECT_FALSE(mat({{1e-8, 0}, {0, 1e-8}}).istRegulaer());
    EXPECT_TRUE(mat({{1e-7, 0}, {0, 1e-7}}).istRegulaer());
    EXPECT_EQ(mat({{1, 2}, {3, 4}}).invers(), mat({{-2, 1}, {1.5, -0.5}}));
    EXPECT_EQ(mat({{4}}).invers(), mat({{0.25}}));
    for (const Matrix& keine :
         {mat({{1, 2, 3}, {4, 5, 6}}), mat({{1e-8, 0}, {0, 1e-8}}), mat({{0}})}) {
        EXPECT_EQ(keine.invers(), Matrix(1, 1));
    }
}

} // namespace
} // namespace tabulon
