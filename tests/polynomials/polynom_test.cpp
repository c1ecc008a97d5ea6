#include "polynomials/charpoly.h"
#include "polynomials/polynom.h"

#include <algorithm>
#include <cmath>
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

TEST(Polynom, GradFolgtDerNullkorrekturUndWinzigeKoeffizientenBleiben) {
    EXPECT_EQ(poly({0, 0, 1e-16}).grad(), -1);
    EXPECT_EQ(poly({0, 0, 1e-15}).grad(), 2);
    EXPECT_EQ(poly({0, 0, 0, 0, 0, 0, 0, 0, -2}).grad(), 8);
    // Above the degree the coefficient still counts in the value and the sum, not the product.
    const Polynom rest = poly({2, 0, 0, 0, 0, 0, 0, 0, 1e-16});
    EXPECT_EQ(rest.grad(), 0);
    EXPECT_EQ(rest.wert(100.0), 2.0 + 1e-16 * 1e16);
    EXPECT_EQ((rest + poly({1, 1})).koeff(8), 1e-16);
    EXPECT_EQ(rest * poly({1, 1}), poly({2, 2}));
}

TEST(Polynom, AbleitungGrenzeNormierungSummeProdukt) {
    EXPECT_EQ(poly({0, -2, 0, 1}).abl(), poly({-2, 0, 3}));
    EXPECT_EQ(poly({1, 2, 3, 4, 5, 6, 7, 8, 9}).abl(), poly({2, 6, 12, 20, 30, 42, 56, 72}));
    EXPECT_EQ(poly({1, 1, 1}).wert(2), 7.0);
    EXPECT_EQ(poly({-6, 11, -6, 2}).nullstGrenze(), 12.5);
    EXPECT_EQ(poly({100, -100, 3}).nullstGrenze(), 1.0);
    EXPECT_EQ(poly({2, 4, -2}).normiert(), poly({-1, -2, 1}));
    EXPECT_EQ(poly({-1, 1}) * poly({1, 1}), poly({-1, 0, 1}));
    EXPECT_EQ(poly({0, 0, 0, 0, 0, 1}) * poly({0, 0, 0, 0, 0, 1}), poly({}));
    EXPECT_EQ(poly({0, 0, 0, 0, 1}) * poly({0, 0, 0, 0, 2}), poly({0, 0, 0, 0, 0, 0, 0, 0, 2}));
    EXPECT_EQ(poly({3, 1}) * poly({}), poly({}));
}

TEST(Polynom, TextAufsteigendMitVorzeichenUndOhneEinsen) {
    const std::pair<Polynom, const char*> faelle[] = {
        {poly({-1, 0, 1}), "-1.0 + x^2"},
        {poly({2, -1, 0, 0.5}), "2.0 - x + 0.5x^3"},
        {poly({}), "0.0"},
        {poly({0, 1.00000001}), "0.0 + x"},
        {poly({-0.0, 4e-8, -2.5, 0, 0, 0, 0, 0, -1}), "0.0 - 2.5x^2 - x^8"},
        {poly({1.23456789, 0, 0, 0, 0, 0, 0, -12345678}), "1.2345679 - 12345678.0x^7"},
    };
    for (const auto& [p, text] : faelle) {
        EXPECT_EQ(p.string(), text);
    }
}

// The product of (x - w) over the given roots.
Polynom ausWurzeln(const std::vector<double>& wurzeln) {
    Polynom p = poly({1});
    for (const double w : wurzeln) {
        p = p * poly({-w, 1});
    }
    return p;
}

struct NullstFall {
    const char* name;
    Polynom p;
    std::vector<double> erwartet; // ascending, each multiple root once
    double toleranz;              // 0: the roots must come out exactly
};

TEST(Nullstellen, AufsteigendUndJedeMehrfacheWurzelEinmal) {
    const NullstFall faelle[] = {
        {"konstant", poly({3}), {}, 0},
        {"linear", poly({-4, 2}), {2}, 0},
        {"ohneReelle", poly({1, 0, 1}), {}, 0},
        {"doppelt", poly({1, -2, 1}), {1}, 0},
        {"zwei", poly({-1, 0, 1}), {-1, 1}, 0},
        {"drei", poly({-6, 11, -6, 1}), {1, 2, 3}, 1e-14},
        // The double root is a root of the derivative: found only as a cut point.
        {"doppeltUndEinfach", poly({2, -3, 0, 1}), {-2, 1}, 1e-14},
        {"dreifachBeiNull", poly({0, 0, 0, 1}), {0}, 0},
        {"einzigeBeiNull", poly({0, 1, 0, 1}), {0}, 0},
        {"zweiDoppelte", ausWurzeln({1, 1, 3, 3}), {1, 3}, 1e-7},
        {"viertGradOhneReelle", poly({2, 0, 3, 0, 1}), {}, 0},
        {"nullUndAndere", ausWurzeln({0, -2, 1, 5}), {-2, 0, 1, 5}, 1e-12},
        {"achtReelle", ausWurzeln({1, 2, 3, 4, 5, 6, 7, 8}), {1, 2, 3, 4, 5, 6, 7, 8}, 1e-9},
    };
    for (const NullstFall& fall : faelle) {
        const std::vector<double> r = nullstMenge(fall.p);
        ASSERT_EQ(r.size(), fall.erwartet.size()) << fall.name;
        for (std::size_t i = 0; i < r.size(); ++i) {
            EXPECT_NEAR(r[i], fall.erwartet[i], fall.toleranz) << fall.name << " #" << i;
        }
    }
}

TEST(Bisektion, VergleichtMitDemWertAmLinkenEndeUndEndetNachTausendSchritten) {
    // The first midpoint hits the root exactly; a search that compared with the value at the
    // moving left end would then see products of 0 and run off to the right end.
    EXPECT_NEAR(findeNullst(poly({-0.5, 1}), 0, 1), 0.5, 1e-15);
    // A root near 1e6 cannot be bracketed to 1e-15; the step limit ends the search.
    EXPECT_NEAR(findeNullst(poly({-1e6, 1}), 0, 2e6), 1e6, 1e-9);
    // A root just beside 0 comes back as exactly 0.
    EXPECT_EQ(findeNullst(poly({-1e-17, 1}), -1, 1), 0.0);
}

// A matrix of the given rows, its entries row by row.
Matrix zeilen(std::int64_t n, std::vector<double> grid) {
    Matrix m(n, static_cast<std::int64_t>(grid.size()) / n);
    m.grid = std::move(grid);
    return m;
}

TEST(CharPoly, TextmatrixDreiMalDreiUndNichtQuadratisch) {
    const SMatrix s = m2EwSmatrix(zeilen(2, {-3.5, 2, 1.0 / 3, 1e-7}));
    EXPECT_EQ(s.grid, (std::vector<std::string>{"x-3.5", "2.0", "0.333333333333333", "x1e-07"}));
    EXPECT_EQ(elString2Polynom("x-3.5"), poly({-3.5, -1}));
    EXPECT_EQ(elString2Polynom("unsinn"), poly({}));
    // Every x is removed wherever it stands, once or more often.
    EXPECT_EQ(elString2Polynom("x"), poly({0, -1}));
    EXPECT_EQ(elString2Polynom("2.5x"), poly({2.5, -1}));
    EXPECT_EQ(elString2Polynom("x1xe2x"), poly({100, -1}));
    EXPECT_EQ(elString2Polynom("xx-0.0"), poly({-0.0, -1}));

    // The sign of each term of the expansion matters from 3 x 3 on; the leading coefficient is -1.
    const auto [p, ew] = eigenWerte(zeilen(3, {1, 2, 3, 4, 5, 6, 7, 8, 10}));
    EXPECT_EQ(p, poly({-3, 12, 16, -1}));
    ASSERT_EQ(ew.size(), 3u);
    for (const double x : ew) {
        EXPECT_NEAR(p.wert(x), 0.0, 1e-11);
    }

    const auto [keins, ewK] = eigenWerte(zeilen(2, {1, 2, 3, 4, 5, 6}));
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
        // Integer entries keep every coefficient exact, so the constant term is det(A); the
        // eight roots are distinct, ascending, add up to the trace and leave p near zero.
        const auto [p, ew] = eigenWerte(a);
        EXPECT_EQ(p.koeff(8), 1.0);
        EXPECT_EQ(p.koeff(7), -spur);
        EXPECT_EQ(p.koeff(0), a.det()) << "fall " << fall;
        ASSERT_EQ(ew.size(), 8u) << "fall " << fall;
        double summe = 0;
        for (std::size_t i = 0; i < 8; ++i) {
            summe += ew[i];
            EXPECT_LT(std::fabs(p.wert(ew[i])), 1e-13 * std::fabs(p.koeff(0)) + 1e-3)
                << "fall " << fall << " #" << i;
            EXPECT_TRUE(i == 0 || ew[i] - ew[i - 1] > 1e-6) << "fall " << fall << " #" << i;
        }
        EXPECT_NEAR(summe, spur, 1e-9) << "fall " << fall;
    }
}

} // namespace
} // namespace tabulon
