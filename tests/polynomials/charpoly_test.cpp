#include "polynomials/charpoly.h"
#include "polynomials/polynomhilfe.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <vector>

namespace tabulon {
namespace {

Matrix zeilen(std::initializer_list<std::initializer_list<double>> z) {
    Matrix m(static_cast<std::int64_t>(z.size()), static_cast<std::int64_t>(z.begin()->size()));
    m.grid.clear();
    for (const auto& zeile : z) {
        m.grid.insert(m.grid.end(), zeile.begin(), zeile.end());
    }
    return m;
}

TEST(CharPoly, TextmatrixDreiMalDreiUndNichtQuadratisch) {
    const SMatrix s = m2EwSmatrix(zeilen({{-3.5, 2}, {1.0 / 3, 1e-7}}));
    EXPECT_EQ(s.grid, (std::vector<std::string>{"x-3.5", "2.0", "0.333333333333333", "x1e-07"}));
    EXPECT_EQ(elString2Polynom("x-3.5"), poly({-3.5, -1}));
    EXPECT_EQ(elString2Polynom("unsinn"), poly({}));

    // The sign of each term of the expansion matters from 3 x 3 on; the leading coefficient is -1.
    const auto [p, ew] = eigenWerte(zeilen({{1, 2, 3}, {4, 5, 6}, {7, 8, 10}}));
    EXPECT_EQ(p, poly({-3, 12, 16, -1}));
    ASSERT_EQ(ew.size(), 3u);
    for (const double x : ew) {
        EXPECT_NEAR(p.wert(x), 0.0, 1e-11);
    }

    const auto [keins, ewK] = eigenWerte(zeilen({{1, 2, 3}, {4, 5, 6}}));
    EXPECT_EQ(keins.grad(), -1);
    EXPECT_TRUE(ewK.empty());
}

TEST(CharPoly, SymmetrischeAchtMalAchtMatrizenHabenAchtReelleEigenwerte) {
    std::uint32_t zustand = 12345;
    auto ziffer = [&] {
        zustand = zustand * 1103515245u + 12345u;
        return static_cast<double>(static_cast<int>((zustand >> 16) % 19) - 9);
    };
    for (int fall = 0; fall < 6; ++fall) {
        Matrix a(8, 8);
        double spur = 0;
        for (int i = 0; i < 8; ++i) {
            for (int j = i; j < 8; ++j) {
                a(i, j) = a(j, i) = ziffer();
            }
            spur += a(i, i);
        }
        // Integer entries keep every coefficient exact, so the constant term is det(A).
        const auto [p, ew] = eigenWerte(a);
        EXPECT_EQ(p.koeff(8), 1.0);
        EXPECT_EQ(p.koeff(7), -spur);
        EXPECT_EQ(p.koeff(0), a.det()) << "fall " << fall;
        // All eight roots, distinct, adding up to the trace; at each, |p| is within rounding
        // noise of the sum of the magnitudes of p's terms there.
        ASSERT_EQ(ew.size(), 8u) << "fall " << fall;
        double summe = 0;
        for (std::size_t i = 0; i < 8; ++i) {
            summe += ew[i];
            double betraege = 0;
            for (int k = 0; k <= 8; ++k) {
                betraege += std::fabs(p.koeff(k)) * std::pow(std::fabs(ew[i]), k);
            }
            EXPECT_LT(std::fabs(p.wert(ew[i])), 1e-13 * betraege) << "fall " << fall << " #" << i;
            if (i > 0) {
                EXPECT_GT(ew[i] - ew[i - 1], 1e-6) << "fall " << fall << " #" << i;
            }
        }
        EXPECT_NEAR(summe, spur, 1e-9) << "fall " << fall;
    }
}

} // namespace
} // namespace tabulon
