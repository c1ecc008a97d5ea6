#include "matrixbau.h"

#include "numeric/matrix.h"

#include <gtest/gtest.h>

namespace tabulon {
namespace {

using test::erwarteFast;
using test::mat;

struct Fall {
    const char* name;
    Matrix quelle;
    Matrix reduziert;
    Matrix kern; // columns generate the kernel
};

class GaussUndKern : public ::testing::TestWithParam<Fall> {};

TEST_P(GaussUndKern, ReducesAndFindsTheKernel) {
    const Fall& f = GetParam();
    erwarteFast(gaussUmformung(f.quelle), f.reduziert);
    const Matrix kern = matrix2KernES(f.quelle);
    erwarteFast(kern, f.kern);
    // Wherever every row takes part in the elimination, the columns really lie in the kernel.
    if (kern.columns > 0 && f.quelle.rows <= f.quelle.columns) {
        erwarteFast(f.quelle * kern, Matrix(f.quelle.rows, kern.columns));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Tabelle, GaussUndKern,
    ::testing::Values(
        Fall{"PivotFromBelow", mat({{0, 1}, {2, 4}}), mat({{1, 0}, {0, 1}}), Matrix(2, 0)},
        Fall{"SecondPivotSkipped", mat({{1, 2}, {2, 4}}), mat({{1, 2}, {0, 0}}), mat({{2}, {-1}})},
        Fall{"Wide", mat({{1, 2, 3}, {4, 5, 6}}), mat({{1, 0, -1}, {0, 1, 2}}),
             mat({{-1}, {2}, {-1}})},
        Fall{"ZeroMiddleColumn", mat({{1, 0, 0}, {0, 0, 1}}), mat({{1, 0, 0}, {0, 0, 1}}),
             mat({{0}, {1}, {0}})},
        Fall{"ZeroMatrix", Matrix(2, 3), Matrix(2, 3), mat({{1, 0, 0}, {0, 1, 0}, {0, 0, 1}})},
        Fall{"FreeAndZeroColumn", mat({{0, 1, 2}, {0, 2, 4}}), mat({{0, 0, 0}, {0, 1, 2}}),
             mat({{0, 1}, {2, 0}, {-1, 0}})},
        // A single row is divided by its first entry that is not zero.
        Fall{"OneRow", mat({{0, 2, 4}}), mat({{0, 1, 2}}), mat({{0, 1}, {2, 0}, {-1, 0}})},
        Fall{"OneEntry", mat({{5}}), mat({{1}}), Matrix(1, 0)},
        Fall{"OneZeroEntry", mat({{0}}), mat({{0}}), mat({{1}})},
        // A single column reduces to e0 unless it is zero.
        Fall{"OneColumn", mat({{0}, {-3}, {2}}), mat({{1}, {0}, {0}}), Matrix(1, 0)},
        Fall{"OneZeroColumn", mat({{0}, {1e-16}}), mat({{0}, {1e-16}}), mat({{1}})},
        // Rows below the square block take no part in the elimination.
        Fall{"Tall", mat({{0, 1}, {2, 4}, {7, 8}}), mat({{1, 0}, {0, 1}, {7, 8}}), Matrix(2, 0)}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(Gauss, TallMatricesNeverLeaveTheGrid) {
    // More non-zero rows survive than the kernel construction has room for; it must still give
    // a matrix with one row per column of the source.
    for (const Matrix& q : {mat({{1, 0}, {0, 0}, {1, 0}}), mat({{1, 2}, {2, 4}, {3, 6}}),
                            mat({{1, 0}, {0, 1}, {5, 5}, {1, 1}})}) {
        EXPECT_EQ(gaussUmformung(q)(2, 0), q(2, 0));
        const Matrix k = matrix2KernES(q);
        EXPECT_EQ(k.rows, q.columns);
        EXPECT_EQ(k.grid.size(), static_cast<std::size_t>(k.rows * k.columns));
    }
}

TEST(Gauss, EqualPivotCandidatesKeepTheUpperRow) {
    // Had the rows been exchanged, -1 would have become the pivot and left -1 in entry (0, 2).
    EXPECT_EQ(gaussUmformung(mat({{1, 0, 0}, {-1, 0, 1}})), mat({{1, 0, 0}, {0, 0, 1}}));
    EXPECT_EQ(gaussUmformung(mat({{-3, 1}, {3, 2}}))(0, 0), 1.0);
}

} // namespace
} // namespace tabulon
