// The table expansion and the early-ending root finder against the plain procedures of
// referenz/charpoly_laplace.h: every coefficient, the degree and every eigenvalue must agree to
// the bit.

#include "numeric/matrix.h"
#include "polynomials/charpoly.h"
#include "polynomials/polynom.h"
#include "referenz/charpoly_laplace.h"
#include "referenz/zufall.h"

#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace tabulon {
namespace {

using referenz::bitgleich;

bool bitgleich(const Polynom& a, const Polynom& b) {
    return a.grad() == b.grad() && bitgleich(a.koeff(), b.koeff());
}

TEST(Vergleich, TabelleUndNullstellenBitgleichMitDerEinfachenEntwicklung) {
    referenz::Zufall z{20261123};
    for (std::int64_t n = 1; n <= 8; ++n) {
        // The plain expansion of an 8 x 8 matrix visits 8! leaves: few of those.
        const int proArt = n <= 5 ? 25 : (n == 6 ? 6 : (n == 7 ? 2 : 1));
        for (const referenz::Art art : referenz::alleArten) {
            for (int fall = 0; fall < proArt; ++fall) {
                const Matrix a = referenz::zufallsMatrix(n, art, z);
                const Polynom erwartet = referenz::charPolynom(a);
                const auto [p, ew] = eigenWerte(a);
                ASSERT_TRUE(bitgleich(p, erwartet))
                    << a.smatrix().string() << p.string() << " statt " << erwartet.string();
                if (art == referenz::Art::ganz) { // exact: p(0) is the determinant
                    EXPECT_EQ(p.koeff(0), a.det());
                }
                const std::vector<double> wurzeln = referenz::nullstellen(erwartet);
                ASSERT_TRUE(bitgleich(ew, wurzeln))
                    << p.string() << ": " << ::testing::PrintToString(ew) << " statt "
                    << ::testing::PrintToString(wurzeln);
            }
        }
    }
}

// A text matrix wider than tall is expanded on its left square block, as the plain recursion does.
TEST(Vergleich, BreiteTextmatrixUndLeereFaelle) {
    SMatrix s(3, 4);
    s.grid = {"x1.5", "2", "-3", "99", "4", "x-5", "6.25", "99", "7", "8", "x9", "99"};
    EXPECT_TRUE(bitgleich(sMatrix2Polynom(s), referenz::laplacePolynom(s)));
    EXPECT_EQ(sMatrix2Polynom(SMatrix()).grad(), -1);
    EXPECT_EQ(sMatrix2Polynom(SMatrix(3, 2)).grad(), -1);
    // Larger than the tableau the table moves to the heap. Without x the determinant of
    // diag(2, ..., 2) is 2^10; with x on the diagonal the degree would pass 8 and the product
    // gives the zero polynomial.
    for (const char* diagonale : {"2.0", "x2.0"}) {
        SMatrix gross(10, 10);
        for (std::int64_t k = 0; k < 100; ++k) {
            gross.grid[static_cast<std::size_t>(k)] = k % 11 == 0 ? diagonale : "0.0";
        }
        const Polynom p = sMatrix2Polynom(gross);
        EXPECT_EQ(p.grad(), diagonale[0] == 'x' ? -1 : 0);
        EXPECT_EQ(p.koeff(0), diagonale[0] == 'x' ? 0.0 : 1024.0);
    }
}

// Bisection on its own, where the early stop matters.
TEST(Vergleich, BisektionEndetWieDieTausendSchritte) {
    const double inf = std::numeric_limits<double>::infinity();
    const struct {
        std::vector<double> koeff;
        double von;
        double bis;
    } faelle[] = {
        // Too large for the interval to shrink below 1e-15: the step limit ends the search.
        {{-1e6, 1}, 0, 2e6},
        {{-1e6, 1}, 2e6, 0},
        {{-3e15, 0, 1}, 0, 1e8},
        // The first midpoint hits the root; a search that compared with the value at the moving
        // left end would then see products of 0 and run off to the right end.
        {{-0.5, 1}, 0, 1},
        {{-1e-17, 1}, -1, 1}, // a root just beside 0 comes back as exactly 0
        {{1, -1e300}, -1e308, 1.7e308},
        {{-2, 0, 1}, -inf, inf},
        {{-2, 0, 1}, 0, std::numeric_limits<double>::quiet_NaN()},
        {{5, -4, 0, 0, 0, 0, 0, 0, 1e-16}, -1e3, 1e3},
    };
    for (const auto& fall : faelle) {
        Polynom::Koeffizienten k{};
        std::copy(fall.koeff.begin(), fall.koeff.end(), k.begin());
        const Polynom p(k);
        const double schnell = findeNullst(p, fall.von, fall.bis);
        const double einfach = referenz::bisektion(p, fall.von, fall.bis);
        EXPECT_TRUE(bitgleich(schnell, einfach))
            << p.string() << " von " << fall.von << ": " << schnell << " statt " << einfach;
    }
}

// The root finder on polynomials that no 8 x 8 matrix makes: many pieces at a level, multiple
// roots (from a small set), coefficients of very different size.
TEST(Vergleich, NullstellenZufaelligerPolynome) {
    referenz::Zufall z{4711};
    for (int fall = 0; fall < 400; ++fall) {
        Polynom p(Polynom::Koeffizienten{1.0});
        const std::uint64_t grad = 3 + z.naechste() % 6;
        for (std::uint64_t i = 0; i < grad; ++i) {
            const double skala = fall % 3 == 0 ? 1e3 : (fall % 3 == 1 ? 0.37 : 1.0);
            p = referenz::produkt(p, Polynom(Polynom::Koeffizienten{-z.ganz(-6, 6) * skala, 1.0}));
        }
        if (fall % 5 == 0) {
            Polynom::Koeffizienten schief = p.koeff();
            schief[0] += z.ganz(-9, 9) * 1e-3;
            p = Polynom(schief);
        }
        EXPECT_TRUE(bitgleich(nullstMenge(p), referenz::nullstellen(p)))
            << "Fall " << fall << ": " << p.string();
    }
}

} // namespace
} // namespace tabulon
