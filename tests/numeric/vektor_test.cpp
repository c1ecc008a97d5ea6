#include "matrixbau.h"

#include "numeric/vektor.h"

#include <gtest/gtest.h>

namespace tabulon {
namespace {

Vektor vek(std::initializer_list<double> werte) {
    Vektor v(static_cast<std::int64_t>(werte.size()));
    v.grid.assign(werte);
    return v;
}

SMatrix texte(std::int64_t rows, std::int64_t columns, std::vector<std::string> grid) {
    SMatrix s(rows, columns);
    s.grid = std::move(grid);
    return s;
}

TEST(Vektor, ArithmeticWithMismatchedDimensions) {
    EXPECT_EQ(vek({1, 2}) + vek({1, 2, 3}), Vektor(2));
    EXPECT_EQ(vek({1, 2}) * vek({1, 2, 3}), 0.0);
    EXPECT_EQ(Vektor(3).normiert(), Vektor(3));
}

TEST(Vektor, SchmidtDropsDependentVectors) {
    const auto onb = schmidt({vek({3, 4}), vek({6, 8}), vek({0, 1})});
    ASSERT_EQ(onb.size(), 2u);
    test::erwarteFast(vFeld2Matrix(onb), test::mat({{0.6, -0.8}, {0.8, 0.6}}), 1e-15);

    EXPECT_TRUE(schmidt({}).empty());
    EXPECT_TRUE(schmidt({Vektor(2)}).empty());
    EXPECT_TRUE(schmidt({vek({1e-16, 0})}).empty());
    EXPECT_EQ(schmidt({vek({1e-15, 0})}), std::vector<Vektor>{vek({1, 0})});
}

TEST(Vektor, ColumnSystemsOfTextMatrices) {
    // The empty middle column and the empty last row are dropped before the columns are taken.
    const SMatrix m = texte(3, 4, {"3", "", "6", "0", "4", " ", "8", "1", "", "", "", ""});
    const std::optional<SMatrix> onb = matrix2ONB(m);
    ASSERT_TRUE(onb.has_value());
    EXPECT_EQ(onb->grid, (std::vector<std::string>{"0.6", "-0.8", "0.8", "0.6"}));
    EXPECT_FALSE(matrix2ONB(texte(2, 2, {"0", "0.0", "x", ""})).has_value());
    EXPECT_FALSE(matrix2ONB(SMatrix(2, 2)).has_value());

    EXPECT_EQ(gramscheDeterminante(texte(2, 2, {"1", "1", "0", "1"})), 1.0);
    EXPECT_EQ(gramscheDeterminante(texte(2, 2, {"2", "2", "5", "5"})), 0.0);
    EXPECT_EQ(gramscheDeterminante(texte(2, 1, {"3", "4"})), 25.0);
    EXPECT_EQ(gramscheDeterminante(SMatrix(1, 1)), 0.0);
}

} // namespace
} // namespace tabulon
