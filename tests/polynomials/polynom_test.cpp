#include "polynomials/charpoly.h"
#include "polynomials/polynom.h"

#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <initializer_list>
#include <utility>
#include <vector>

namespace tabulon {
namespace {

// The polynomial with the given coefficients, constant term first.
Polynom poly(std::initializer_list<double> k) {
    Polynom::Koeffizienten a{};
    std::copy(k.begin(), k.end(), a.begin());
    return Polynom(a);
}

TEST(Polynom, GradNullkorrekturArithmetikUndText) {
    EXPECT_EQ(poly({0, 0, 1e-16}).grad(), -1);
    EXPECT_EQ(poly({0, 0, 1e-15}).grad(), 2);
    // Above the degree the coefficient still counts in the value and the sum, not the product.
    const Polynom rest = poly({2, 0, 0, 0, 0, 0, 0, 0, 1e-16});
    EXPECT_EQ(rest.grad(), 0);
    EXPECT_EQ(rest.wert(100.0), 2.0 + 1e-16 * 1e16);
    EXPECT_EQ((rest + poly({1, 1})).koeff(8), 1e-16);
    EXPECT_EQ(rest * poly({1, 1}), poly({2, 2}));
    EXPECT_EQ(poly({0, 0, 0, 0, 1}) * poly({0, 0, 0, 0, 2}), poly({0, 0, 0, 0, 0, 0, 0, 0, 2}));
    EXPECT_EQ(poly({0, 0, 0, 0, 0, 1}) * poly({0, 0, 0, 0, 0, 1}), poly({}));
    EXPECT_EQ(poly({3, 1}) * poly({}), poly({}));
    EXPECT_EQ(poly({2, 4, -2}).normiert(), poly({-1, -2, 1}));

    // Ascending powers, coefficients rounded to seven decimals, no coefficient 1 written.
    const std::pair<Polynom, const char*> faelle[] = {
        {poly({}), "0.0"},
        {poly({0, 1.00000001}), "0.0 + x"},
        {poly({-0.0, 4e-8, -2.5, 0, 0, 0, 0, 0, -1}), "0.0 - 2.5x^2 - x^8"},
        {poly({1.23456789, 0, 0, 0, 0, 0, 0, -12345678}), "1.2345679 - 12345678.0x^7"},
    };
    for (const auto& [p, text] : faelle) {
        EXPECT_EQ(p.string(), text);
    }
}

TEST(Nullstellen, AufsteigendUndJedeMehrfacheWurzelEinmal) {
    const struct {
        Polynom p;
        std::vector<double> erwartet; // ascending, each multiple root once
        double toleranz;              // 0: the roots must come out exactly
    } faelle[] = {
        {poly({3}), {}, 0},
        // The double root is a root of the derivative: found only as a cut point.
        {poly({2, -3, 0, 1}), {-2, 1}, 1e-14},
        // (x - 1) (x - 2) ... (x - 8)
        {poly({40320, -109584, 118124, -67284, 22449, -4536, 546, -36, 1}),
         {1, 2, 3, 4, 5, 6, 7, 8},
         1e-9},
    };
    for (const auto& fall : faelle) {
        const std::vector<double> r = nullstMenge(fall.p);
        ASSERT_EQ(r.size(), fall.erwartet.size()) << fall.p.string();
        for (std::size_t i = 0; i < r.size(); ++i) {
            EXPECT_NEAR(r[i], fall.erwartet[i], fall.toleranz) << fall.p.string() << " #" << i;
        }
    }
}

// A matrix of the given rows, its entries row by row.
Matrix zeilen(std::int64_t n, std::vector<double> grid) {
    Matrix m(n, static_cast<std::int64_t>(grid.size()) / n);
    m.grid = std::move(grid);
    return m;
}

// The plain expansion shares the text matrix, the entry parser and the signs, so these are
// pinned here by fixed values.
TEST(CharPoly, TextmatrixEintraegeUndVorzeichen) {
    const SMatrix s = m2EwSmatrix(zeilen(2, {-3.5, 2, 1.0 / 3, 1e-7}));
    EXPECT_EQ(s.grid, (std::vector<std::string>{"x-3.5", "2.0", "0.333333333333333", "x1e-07"}));
    EXPECT_EQ(elString2Polynom("x-3.5"), poly({-3.5, -1}));
    EXPECT_EQ(elString2Polynom("unsinn"), poly({}));
    // Every x is removed wherever it stands, once or more often.
    EXPECT_EQ(elString2Polynom("x"), poly({0, -1}));
    EXPECT_EQ(elString2Polynom("x1xe2x"), poly({100, -1}));
    EXPECT_EQ(elString2Polynom("xx-0.0"), poly({-0.0, -1}));

    // The sign of each term of the expansion matters from 3 x 3 on; the leading coefficient is -1.
    const auto [p, ew] = eigenWerte(zeilen(3, {1, 2, 3, 4, 5, 6, 7, 8, 10}));
    EXPECT_EQ(p, poly({-3, 12, 16, -1}));
    EXPECT_EQ(ew.size(), 3u);
    const auto [keins, ewK] = eigenWerte(zeilen(2, {1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(keins.grad(), -1);
    EXPECT_TRUE(ewK.empty());
}

} // namespace
} // namespace tabulon
