#include "numeric/matrix.h"
#include "numeric/vektor.h"
#include "referenz/laplace.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <initializer_list>

namespace tabulon {
namespace {

Matrix mat(std::initializer_list<std::initializer_list<double>> zeilen) {
    Matrix m(std::ssize(zeilen), std::ssize(*zeilen.begin()));
    m.grid.clear();
    for (const auto& zeile : zeilen) {
        m.grid.insert(m.grid.end(), zeile);
    }
    return m;
}

// For results whose last bits depend on rounding.
void erwarteFast(const Matrix& ist, const Matrix& soll, double toleranz = 1e-12) {
    ASSERT_EQ(std::make_pair(ist.rows, ist.columns), std::make_pair(soll.rows, soll.columns));
    for (std::size_t k = 0; k < ist.grid.size(); ++k) {
        EXPECT_NEAR(ist.grid[k], soll.grid[k], toleranz) << "entry " << k;
    }
}

TEST(Matrix, ZeroRowsAndColumnsUseTheSharedZeroTest) {
    const Matrix m = mat({{1e-16, -1e-16, 0.0}, {1e-15, 0.0, 2.0}, {0.0, 0.0, 0.0}});
    EXPECT_EQ(m.killNullzeilen(), mat({{1e-15, 0.0, 2.0}}));
    EXPECT_EQ(mat({{0.0, 0.0}}).killNullzeilen().rows, 0);

    const auto [ohne, weg] = mat({{1.0, 0.0, 3.0}, {4.0, 1e-16, 6.0}}).killNullspalten();
    EXPECT_EQ(ohne, mat({{1.0, 3.0}, {4.0, 6.0}}));
    EXPECT_EQ(weg, std::vector<std::int64_t>{1});

    // Without rows every column is a zero column; only the tableau's columns 0 to 7 are listed.
    const auto [leer, alle] = Matrix(0, 10).killNullspalten();
    EXPECT_EQ(leer.columns, 0);
    EXPECT_EQ(alle, (std::vector<std::int64_t>{0, 1, 2, 3, 4, 5, 6, 7}));
}

TEST(Matrix, StructureAndRowOperations) {
    const Matrix m = mat({{1, 2, 3}, {4, 5, 6}, {7, 8, 9}});
    EXPECT_EQ(m.subMatrix(1, 1), mat({{1, 3}, {7, 9}}));
    EXPECT_EQ(adiunkte(m, 1), mat({{4, 6}, {7, 9}}));
    EXPECT_EQ(mat({{1, 2}}).plusNullzeile(0), mat({{0, 0}, {1, 2}}));
    EXPECT_EQ(mat({{1, 2}}).plusNullzeile(1), mat({{1, 2}, {0, 0}}));

    Matrix z = mat({{1, 2}, {3, 4}, {5, 6}});
    z.zeilenTausch(0, 2);
    z.zeileMalZahl(1, 2.0);
    z.elZeilenTransf(-1.0, 2, 0);
    z.elZeilenTransf(5.0, 1, 1); // source and target the same: nothing happens
    z.elZeilenTransf(5.0, 3, 1); // beyond the last row: nothing happens
    EXPECT_EQ(z, mat({{4, 4}, {6, 8}, {1, 2}}));
    Matrix tausch = z;
    tausch.zeilenTausch(0, 3);
    EXPECT_EQ(tausch, mat({{1, 0}}));
    z.zeileMalZahl(3, 2.0);
    EXPECT_EQ(z, mat({{1, 0}}));
}

TEST(Matrix, OperatorsTheirMarkersAndTexts) {
    const Matrix a = mat({{1, 2}, {3, 4}});
    EXPECT_EQ(a * mat({{5}, {6}}), mat({{17}, {39}}));
    EXPECT_EQ(mat({{1, 2, 3}, {4, 5, 6}}) * mat({{1, 2, 3}, {4, 5, 6}}), mat({{666.0}}));
    EXPECT_EQ(a + mat({{1, 2, 3}, {4, 5, 6}}), Matrix(2, 3));
    EXPECT_EQ(mat({{1, 2, 3}}) + a, Matrix(1, 2));

    const SMatrix s = a.smatrix();
    EXPECT_EQ((s - s).grid, std::vector<std::string>(4, "0.0"));
    EXPECT_EQ((s + s * s).grid, (std::vector<std::string>{"8.0", "12.0", "18.0", "26.0"}));

    SMatrix t(2, 3);
    t.grid = {"3.0", "1,5", "", "abc", "-.4e1", "1/2"};
    EXPECT_EQ(matrix(t), mat({{3, 0, 0}, {0, -4, 0}}));
    EXPECT_EQ(fNorm(t), 5.0);

    // The kernel and Gauss pages of the computation transcript show string() and gerundet().
    EXPECT_EQ(mat({{2, 1e-7}}).smatrix().grid, (std::vector<std::string>{"2.0", "1e-07"}));
}

// Equal to the last bit: signed zeros told apart, any two NaNs alike (a NaN's sign is never shown).
bool gleicheBits(double a, double b) {
    return (std::isnan(a) && std::isnan(b)) ||
           std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

bool gleicheBits(const Matrix& a, const Matrix& b) {
    return a.rows == b.rows && a.columns == b.columns &&
           std::equal(a.grid.begin(), a.grid.end(), b.grid.begin(),
                      [](double x, double y) { return gleicheBits(x, y); });
}

// The tables of minors against the plain expansion on matrices of every kind the tableau can
// hold: integers, decimals, tiny and huge entries, zeros (signed zeros arise), repeated rows.
TEST(Determinante, AgreesBitForBitWithThePlainExpansion) {
    std::uint64_t zustand = 12345;
    const auto bits = [&zustand] {
        zustand = zustand * 6364136223846793005ULL + 1442695040888963407ULL;
        return zustand >> 11;
    };
    const auto eintrag = [&bits](int art) {
        const double ganz = static_cast<double>(static_cast<std::int64_t>(bits() % 18) - 9);
        switch (art) {
        case 0:
            return ganz;
        case 1:
            return static_cast<double>(static_cast<std::int64_t>(bits() % 2001) - 1000) / 7.0;
        case 2:
            return ganz * 1e-9;
        case 3:
            return ganz * 1e150;
        case 4:
            return bits() % 3 == 0 ? ganz : 0.0;
        default:
            return bits() % 2 == 0 ? -0.0 : ganz * 1e-300;
        }
    };
    for (std::int64_t n = 1; n <= 8; ++n) {
        const int runden = n <= 6 ? 60 : 6;
        for (int runde = 0; runde < runden; ++runde) {
            const int art = runde % 6;
            Matrix m(n, n);
            for (double& x : m.grid) {
                x = eintrag(art);
            }
            if (n > 2 && runde % 4 == 3) {
                for (std::int64_t j = 0; j < n; ++j) {
                    m(n - 1, j) = m(1, j);
                }
            }
            const double d = referenz::laplaceDet(m);
            EXPECT_TRUE(gleicheBits(m.det(), d)) << "order " << n << ", round " << runde;
            const Matrix erwartet = istNull(d) ? Matrix(1, 1) : referenz::kofaktorInverse(m);
            EXPECT_TRUE(gleicheBits(m.invers(), erwartet)) << "order " << n << ", round " << runde;
        }
    }
}

TEST(Determinante, ExactValuesAndRegularity) {
    EXPECT_EQ(mat({{1, 2}, {3, 4}}).det(), -2.0);
    // Permutations: the signs must alternate along the row.
    EXPECT_EQ(mat({{0, 1, 0}, {1, 0, 0}, {0, 0, 1}}).det(), -1.0);

    EXPECT_FALSE(mat({{1e-8, 0}, {0, 1e-8}}).istRegulaer());
    EXPECT_TRUE(mat({{1e-7, 0}, {0, 1e-7}}).istRegulaer());
    EXPECT_EQ(mat({{1, 2}, {3, 4}}).invers(), mat({{-2, 1}, {1.5, -0.5}}));
    EXPECT_EQ(mat({{4}}).invers(), mat({{0.25}}));
    for (const Matrix& keine :
         {mat({{1, 2, 3}, {4, 5, 6}}), mat({{1e-8, 0}, {0, 1e-8}}), mat({{0}})}) {
        EXPECT_EQ(keine.invers(), Matrix(1, 1));
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
        // Of equal pivot candidates the upper row wins; -1 as pivot would leave -1 in (0, 2).
        Fall{"EqualPivots", mat({{1, 0, 0}, {-1, 0, 1}}), mat({{1, 0, 0}, {0, 0, 1}}),
             mat({{0}, {1}, {0}})},
        Fall{"ZeroMatrix", Matrix(2, 3), Matrix(2, 3), mat({{1, 0, 0}, {0, 1, 0}, {0, 0, 1}})},
        Fall{"FreeAndZeroColumn", mat({{0, 1, 2}, {0, 2, 4}}), mat({{0, 0, 0}, {0, 1, 2}}),
             mat({{0, 1}, {2, 0}, {-1, 0}})},
        // A single row is divided by its first entry that is not zero.
        Fall{"OneRow", mat({{0, 2, 4}}), mat({{0, 1, 2}}), mat({{0, 1}, {2, 0}, {-1, 0}})},
        Fall{"OneEntry", mat({{5}}), mat({{1}}), Matrix(1, 0)},
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
    erwarteFast(vFeld2Matrix(onb), mat({{0.6, -0.8}, {0.8, 0.6}}), 1e-15);

    EXPECT_TRUE(schmidt({}).empty());
    EXPECT_TRUE(schmidt({Vektor(2)}).empty());
    EXPECT_TRUE(schmidt({vek({1e-16, 0})}).empty());
    EXPECT_EQ(schmidt({vek({1e-15, 0})}), std::vector<Vektor>{vek({1, 0})});
}

// The values of both column commands are pinned by the computation transcript.
TEST(Vektor, ColumnSystemsWithoutIndependentColumns) {
    SMatrix m(2, 2);
    m.grid = {"0", "0.0", "x", ""};
    EXPECT_FALSE(matrix2ONB(m).has_value());
    EXPECT_EQ(gramscheDeterminante(m), 0.0);
    m.grid = {"1", "1", "0", "1"}; // the columns (1, 0) and (1, 1)
    EXPECT_EQ(gramscheDeterminante(m), 1.0);
}

} // namespace
} // namespace tabulon
