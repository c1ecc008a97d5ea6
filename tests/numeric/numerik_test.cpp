#include "numeric/matrix.h"
#include "numeric/vektor.h"
#include "referenz/laplace.h"
#include "referenz/zufall.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>

namespace tabulon {

void PrintTo(const Matrix& m, std::ostream* os) {
    *os << m.rows << " x " << m.columns << "\n" << m.smatrix().string();
}

namespace {

Matrix mat(std::initializer_list<std::initializer_list<double>> zeilen) {
    Matrix m(std::ssize(zeilen), std::ssize(*zeilen.begin()));
    m.grid.clear();
    for (const auto& zeile : zeilen) {
        m.grid.insert(m.grid.end(), zeile);
    }
    return m;
}

TEST(Matrix, ZeroRowsAndColumnsUseTheSharedZeroTest) {
    const Matrix m = mat({{1e-16, -1e-16, 0.0}, {1e-15, 0.0, 2.0}, {0.0, 0.0, 0.0}});
    EXPECT_EQ(m.killNullzeilen(), mat({{1e-15, 0.0, 2.0}}));
    const auto [ohne, weg] = mat({{1.0, 0.0, 3.0}, {4.0, 1e-16, 6.0}}).killNullspalten();
    EXPECT_EQ(ohne, mat({{1.0, 3.0}, {4.0, 6.0}}));
    EXPECT_EQ(weg, std::vector<std::int64_t>{1});
    // Without rows every column is a zero column; only the tableau's columns 0 to 7 are listed.
    const auto [leer, alle] = Matrix(0, 10).killNullspalten();
    EXPECT_EQ(leer.columns, 0);
    EXPECT_EQ(alle, (std::vector<std::int64_t>{0, 1, 2, 3, 4, 5, 6, 7}));
}

// Row operations and operators leave markers for indices and sizes that do not fit.
TEST(Matrix, MarkersRegularityAndMatricesWithoutInverse) {
    const Matrix a = mat({{1, 2}, {3, 4}});
    Matrix z = a;
    z.elZeilenTransf(5.0, 1, 1); // source and target the same: nothing happens
    z.elZeilenTransf(5.0, 2, 1); // beyond the last row: nothing happens
    EXPECT_EQ(z, a);
    z.zeileMalZahl(2, 2.0);
    EXPECT_EQ(z, mat({{1, 0}}));
    Matrix tausch = a;
    tausch.zeilenTausch(0, 2);
    EXPECT_EQ(tausch, mat({{1, 0}}));
    EXPECT_EQ(mat({{1, 2, 3}, {4, 5, 6}}) * mat({{1, 2, 3}, {4, 5, 6}}), mat({{666.0}}));
    EXPECT_EQ(a + mat({{1, 2, 3}, {4, 5, 6}}), Matrix(2, 3));
    EXPECT_EQ(mat({{1, 2, 3}}) + a, Matrix(1, 2));
    const SMatrix s = a.smatrix();
    EXPECT_EQ((s - s).grid, std::vector<std::string>(4, "0.0"));
    EXPECT_EQ((s + s * s).grid, (std::vector<std::string>{"8.0", "12.0", "18.0", "26.0"}));

    EXPECT_FALSE(mat({{1e-8, 0}, {0, 1e-8}}).istRegulaer());
    EXPECT_TRUE(mat({{1e-7, 0}, {0, 1e-7}}).istRegulaer());
    EXPECT_EQ(mat({{1, 2, 3}, {4, 5, 6}}).invers(), Matrix(1, 1));
}

// The tables of minors against the plain expansion, up to the tableau's 8 x 8; the expansion of
// an 8 x 8 matrix visits 8! leaves, so few of those.
TEST(Determinante, AgreesBitForBitWithThePlainExpansion) {
    referenz::Zufall z{12345};
    for (std::int64_t n = 1; n <= 8; ++n) {
        for (const referenz::Art art : referenz::alleArten) {
            for (int fall = 0; fall < (n <= 5 ? 20 : 9 - n); ++fall) {
                const Matrix m = referenz::zufallsMatrix(n, art, z);
                const double d = referenz::laplaceDet(m);
                EXPECT_TRUE(referenz::bitgleich(m.det(), d)) << n << " " << m.smatrix().string();
                const Matrix inv = istNull(d) ? Matrix(1, 1) : referenz::kofaktorInverse(m);
                EXPECT_TRUE(referenz::bitgleich(m.invers().grid, inv.grid))
                    << n << " " << m.smatrix().string();
            }
        }
    }
}

struct Fall {
    const char* name;
    Matrix quelle;
    Matrix reduziert;
    Matrix kern; // columns generate the kernel
};

class GaussUndKern : public ::testing::TestWithParam<Fall> {};

TEST_P(GaussUndKern, ReducesAndFindsTheKernel) {
    const Fall& f = GetParam();
    EXPECT_EQ(gaussUmformung(f.quelle), f.reduziert);
    const Matrix kern = matrix2KernES(f.quelle);
    EXPECT_EQ(kern, f.kern);
    // Wherever every row takes part in the elimination, the columns really lie in the kernel.
    if (kern.columns > 0 && f.quelle.rows <= f.quelle.columns) {
        EXPECT_EQ(f.quelle * kern, Matrix(f.quelle.rows, kern.columns));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Tabelle, GaussUndKern,
    ::testing::Values(
        Fall{"PivotFromBelow", mat({{0, 1}, {2, 4}}), mat({{1, 0}, {0, 1}}), Matrix(2, 0)},
        Fall{"SecondPivotSkipped", mat({{1, 2}, {2, 4}}), mat({{1, 2}, {0, 0}}), mat({{2}, {-1}})},
        // Of equal pivot candidates the upper row wins; -1 as pivot would leave -1 in (0, 2).
        Fall{"EqualPivots", mat({{1, 0, 0}, {-1, 0, 1}}), mat({{1, 0, 0}, {0, 0, 1}}),
             mat({{0}, {1}, {0}})},
        Fall{"ZeroMatrix", Matrix(2, 3), Matrix(2, 3), mat({{1, 0, 0}, {0, 1, 0}, {0, 0, 1}})},
        Fall{"FreeAndZeroColumn", mat({{0, 1, 2}, {0, 2, 4}}), mat({{0, 0, 0}, {0, 1, 2}}),
             mat({{0, 1}, {2, 0}, {-1, 0}})},
        // A single row is divided by its first entry that is not zero.
        Fall{"OneRow", mat({{0, 2, 4}}), mat({{0, 1, 2}}), mat({{0, 1}, {2, 0}, {-1, 0}})},
        // A single column reduces to e0 unless it is zero.
        Fall{"OneColumn", mat({{0}, {-3}, {2}}), mat({{1}, {0}, {0}}), Matrix(1, 0)}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(Gauss, TallMatricesNeverLeaveTheGrid) {
    // Rows below the square block take no part in the elimination, so more non-zero rows
    // survive than the kernel construction has room for; it must stay inside its matrices.
    for (const Matrix& q : {mat({{1, 0}, {0, 0}, {1, 0}}), mat({{1, 2}, {2, 4}, {3, 6}}),
                            mat({{1, 0}, {0, 1}, {5, 5}, {1, 1}})}) {
        EXPECT_EQ(gaussUmformung(q)(2, 0), q(2, 0));
        const Matrix k = matrix2KernES(q);
        EXPECT_EQ(k.rows, q.columns);
        EXPECT_EQ(k.grid.size(), static_cast<std::size_t>(k.rows * k.columns));
    }
}

Vektor vek(std::initializer_list<double> werte) {
    Vektor v(static_cast<std::int64_t>(werte.size()));
    v.grid.assign(werte);
    return v;
}

TEST(Vektor, SchmidtDropsDependentVectors) {
    EXPECT_EQ(vek({1, 2}) + vek({1, 2, 3}), Vektor(2));
    EXPECT_EQ(vek({1, 2}) * vek({1, 2, 3}), 0.0);
    EXPECT_EQ(Vektor(3).normiert(), Vektor(3));

    const auto onb = schmidt({vek({3, 4}), vek({6, 8}), vek({0, 1})});
    ASSERT_EQ(onb.size(), 2u);
    EXPECT_EQ(vFeld2Matrix(onb).smatrix().grid,
              (std::vector<std::string>{"0.6", "-0.8", "0.8", "0.6"}));
    EXPECT_TRUE(schmidt({vek({1e-16, 0})}).empty());
    EXPECT_EQ(schmidt({vek({1e-15, 0})}), std::vector<Vektor>{vek({1, 0})});
}

} // namespace
} // namespace tabulon
