#include "matrixbau.h"

#include "numeric/matrix.h"
#include "textmatrix/liste.h"

#include <gtest/gtest.h>

namespace tabulon {
namespace {

using test::mat;

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
    EXPECT_EQ(m.subMatrix(0, 2), mat({{4, 5}, {7, 8}}));
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
    listenZustandZuruecksetzen();
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

    const Matrix m = mat({{2, -1, 0.5}, {1.0 / 3.0, 1e-7, 100000}});
    EXPECT_EQ(m.smatrix().grid, (std::vector<std::string>{"2.0", "-1.0", "0.5", "0.333333333333333",
                                                          "1e-07", "100000.0"}));
    EXPECT_EQ(m.gerundet()(1, 1), "0.000000");
    listenZustand().dezimalen = 2;
    EXPECT_EQ(mat({{1, 2}, {-0.0004, 3}}).string(), "1.00 \t2.00 \t\n0.00 \t3.00 \t\n");
    EXPECT_EQ(m.gerundet()(0, 2), "0.50");
    listenZustandZuruecksetzen();
}

} // namespace
} // namespace tabulon
