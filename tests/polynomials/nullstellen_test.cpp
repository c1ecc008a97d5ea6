#include "polynomials/polynom.h"
#include "polynomials/polynomhilfe.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

namespace tabulon {
namespace {

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
    std::vector<double> erwartet;
    double toleranz; // 0: the roots must come out exactly
};

class Nullstellen : public ::testing::TestWithParam<NullstFall> {};

TEST_P(Nullstellen, AufsteigendUndJedeMehrfacheWurzelEinmal) {
    const NullstFall& fall = GetParam();
    const std::vector<double> r = nullstMenge(fall.p);
    ASSERT_EQ(r.size(), fall.erwartet.size()) << fall.name;
    for (std::size_t i = 0; i < r.size(); ++i) {
        if (fall.toleranz == 0) {
            EXPECT_EQ(r[i], fall.erwartet[i]) << fall.name << " #" << i;
        } else {
            EXPECT_NEAR(r[i], fall.erwartet[i], fall.toleranz) << fall.name << " #" << i;
        }
        if (i > 0) {
            EXPECT_LT(r[i - 1], r[i]) << fall.name;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Faelle, Nullstellen,
    ::testing::Values(
        NullstFall{"konstant", poly({3}), {}, 0}, NullstFall{"linear", poly({-4, 2}), {2}, 0},
        NullstFall{"ohneReelle", poly({1, 0, 1}), {}, 0},
        NullstFall{"doppelt", poly({1, -2, 1}), {1}, 0},
        NullstFall{"zwei", poly({-1, 0, 1}), {-1, 1}, 0},
        NullstFall{"drei", poly({-6, 11, -6, 1}), {1, 2, 3}, 1e-14},
        // The double root is a root of the derivative: found only as a cut point.
        NullstFall{"doppeltUndEinfach", poly({2, -3, 0, 1}), {-2, 1}, 1e-14},
        NullstFall{"dreifachBeiNull", poly({0, 0, 0, 1}), {0}, 0},
        NullstFall{"einzigeBeiNull", poly({0, 1, 0, 1}), {0}, 0},
        NullstFall{"zweiDoppelte", ausWurzeln({1, 1, 3, 3}), {1, 3}, 1e-7},
        NullstFall{"viertGradOhneReelle", poly({2, 0, 3, 0, 1}), {}, 0},
        NullstFall{"nullUndAndere", ausWurzeln({0, -2, 1, 5}), {-2, 0, 1, 5}, 1e-12},
        NullstFall{
            "achtReelle", ausWurzeln({1, 2, 3, 4, 5, 6, 7, 8}), {1, 2, 3, 4, 5, 6, 7, 8}, 1e-9}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(Bisektion, VergleichtMitDemWertAmLinkenEndeUndEndetNachTausendSchritten) {
    // The first midpoint hits the root exactly; a search that compared with the value at the
    // moving left end would then see products of 0 and run off to the right end.
    EXPECT_NEAR(findeNullst(poly({-0.5, 1}), 0, 1), 0.5, 1e-15);
    // A root near 1e6 cannot be bracketed to 1e-15; the step limit ends the search.
    EXPECT_NEAR(findeNullst(poly({-1e6, 1}), 0, 2e6), 1e6, 1e-9);
    // A root just beside 0 comes back as exactly 0.
    EXPECT_EQ(findeNullst(poly({-1e-17, 1}), -1, 1), 0.0);
}

} // namespace
} // namespace tabulon
