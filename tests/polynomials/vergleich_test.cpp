// The table expansion and the early-ending root finder against the plain procedures of
// referenz/charpoly_laplace.h: every coefficient, the degree and every eigenvalue must agree to
// the bit, so -0.0 against 0.0 counts as a difference.
//
// Two NaNs count as equal whatever their sign and payload. When two NaNs meet in a sum or a
// product, x86 passes on the first operand's, and for a commutative operation the compiler picks
// the order: the plain expansion itself gives the default NaN (sign set) of an inf - inf where a
// parsed "nan" (sign clear) would come through, depending on the optimisation level. No NaN's
// sign is ever shown (its text is "nan"), and no computation of the system branches on it.

#include "numeric/matrix.h"
#include "polynomials/charpoly.h"
#include "polynomials/polynom.h"
#include "referenz/charpoly_laplace.h"
#include "textmatrix/zahltext.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

namespace tabulon {
namespace {

bool bitgleich(double x, double y) {
    return std::bit_cast<std::uint64_t>(x) == std::bit_cast<std::uint64_t>(y) ||
           (std::isnan(x) && std::isnan(y));
}

template <typename Feld> bool bitgleich(const Feld& a, const Feld& b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(),
                                              [](double x, double y) { return bitgleich(x, y); });
}

bool bitgleich(const Polynom& a, const Polynom& b) {
    return a.grad() == b.grad() && bitgleich(a.koeff(), b.koeff());
}

std::string text(const std::vector<double>& w) {
    std::string t;
    for (const double x : w) {
        t += zahlTextVoll(x) + " ";
    }
    return t;
}

// A small deterministic generator, so that a failure names a matrix that can be made again.
class Zufall {
public:
    explicit Zufall(std::uint64_t saat) : zustand_(saat) {}
    std::uint64_t naechste() {
        zustand_ = zustand_ * 6364136223846793005u + 1442695040888963407u;
        return zustand_ >> 33;
    }
    double ganz(int von, int bis) {
        return static_cast<double>(von + static_cast<int>(naechste() % (bis - von + 1)));
    }

private:
    std::uint64_t zustand_;
};

enum class Art { ganz, dezimal, winzig, riesig, singulaer, duenn, unendlich };

Matrix zufallsMatrix(std::int64_t n, Art art, Zufall& z) {
    Matrix a(n, n);
    for (double& x : a.grid) {
        switch (art) {
        case Art::ganz:
        case Art::singulaer:
            x = z.ganz(-9, 8);
            break;
        case Art::dezimal:
            x = z.ganz(-999, 999) / 100.0 + z.ganz(0, 6) / 7.0;
            break;
        case Art::winzig:
            // Products of such entries fall below the zero test and decide degrees.
            x = z.ganz(-5, 5) * (z.naechste() % 2 == 0 ? 1e-9 : 1e-17);
            break;
        case Art::riesig:
            x = z.ganz(-9, 9) * 1e150 + z.ganz(-3, 3);
            break;
        case Art::duenn:
            x = z.naechste() % 3 == 0 ? z.ganz(-4, 4) : 0.0;
            break;
        case Art::unendlich: {
            // Products overflow, inf - inf gives NaN coefficients and NaN root bounds.
            const double sonder[] = {std::numeric_limits<double>::infinity(),
                                     -std::numeric_limits<double>::infinity(),
                                     std::numeric_limits<double>::quiet_NaN(), 1e308, -1e300};
            x = z.naechste() % 4 == 0 ? sonder[z.naechste() % 5] : z.ganz(-9, 9);
            break;
        }
        }
    }
    if (art == Art::singulaer && n > 1) {
        const auto von = static_cast<std::int64_t>(z.naechste() % static_cast<std::uint64_t>(n));
        const std::int64_t nach = (von + 1 + static_cast<std::int64_t>(z.naechste() % 2)) % n;
        for (std::int64_t j = 0; j < n; ++j) {
            a(nach, j) = a(von, j);
        }
    }
    return a;
}

TEST(Vergleich, TabelleUndNullstellenBitgleichMitDerEinfachenEntwicklung) {
    const Art arten[] = {Art::ganz,      Art::dezimal, Art::winzig,   Art::riesig,
                         Art::singulaer, Art::duenn,   Art::unendlich};
    Zufall z(20261123);
    for (std::int64_t n = 1; n <= 8; ++n) {
        // The plain expansion of an 8 x 8 matrix visits 8! leaves: few of those.
        const int proArt = n <= 5 ? 25 : (n == 6 ? 6 : (n == 7 ? 2 : 1));
        for (const Art art : arten) {
            for (int fall = 0; fall < proArt; ++fall) {
                const Matrix a = zufallsMatrix(n, art, z);
                const Polynom erwartet = referenz::charPolynom(a);
                const auto [p, ew] = eigenWerte(a);
                const std::string wo = "n " + ganzText(n) + " Art " +
                                       ganzText(static_cast<int>(art)) + " Fall " + ganzText(fall);
                ASSERT_TRUE(bitgleich(p, erwartet))
                    << wo << ": " << p.string() << " statt " << erwartet.string();
                const std::vector<double> wurzeln = referenz::nullstellen(erwartet);
                ASSERT_TRUE(bitgleich(ew, wurzeln))
                    << wo << ": " << text(ew) << "statt " << text(wurzeln);
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
    // Larger than the tableau the table moves to the heap. Without x the determinant of
    // diag(2, ..., 2) is 2^n; with x on the diagonal the degree would pass 8 and the product
    // gives the zero polynomial.
    for (const char* diagonale : {"2.0", "x2.0"}) {
        SMatrix gross(10, 10);
        for (std::int64_t i = 0; i < 10; ++i) {
            for (std::int64_t j = 0; j < 10; ++j) {
                gross(i, j) = i == j ? diagonale : "0.0";
            }
        }
        const Polynom p = sMatrix2Polynom(gross);
        EXPECT_EQ(p.grad(), diagonale[0] == 'x' ? -1 : 0);
        EXPECT_EQ(p.koeff(0), diagonale[0] == 'x' ? 0.0 : 1024.0);
    }
    EXPECT_EQ(sMatrix2Polynom(SMatrix(3, 2)).grad(), -1);
}

// Bisection on its own, where the early stop matters: roots too large for the interval to shrink
// below 1e-15, reversed, infinite and NaN ends, a root hit by the first midpoint.
TEST(Vergleich, BisektionEndetWieDieTausendSchritte) {
    Polynom::Koeffizienten k{};
    const double inf = std::numeric_limits<double>::infinity();
    struct Fall {
        std::vector<double> koeff;
        double von;
        double bis;
    };
    const Fall faelle[] = {
        {{-1e6, 1}, 0, 2e6},
        {{-1e6, 1}, 2e6, 0},
        {{-0.5, 1}, 0, 1},
        {{-1e-17, 1}, -1, 1},
        {{-3e15, 0, 1}, 0, 1e8},
        {{1, -1e300}, -1e308, 1.7e308},
        {{-2, 0, 1}, -inf, inf},
        {{-2, 0, 1}, 0, std::numeric_limits<double>::quiet_NaN()},
        {{5, -4, 0, 0, 0, 0, 0, 0, 1e-16}, -1e3, 1e3},
    };
    for (const Fall& fall : faelle) {
        k.fill(0.0);
        std::copy(fall.koeff.begin(), fall.koeff.end(), k.begin());
        const Polynom p(k);
        const double schnell = findeNullst(p, fall.von, fall.bis);
        const double einfach = referenz::bisektion(p, fall.von, fall.bis);
        EXPECT_TRUE(bitgleich(schnell, einfach))
            << p.string() << " von " << fall.von << ": " << schnell << " statt " << einfach;
    }
}

// The root finder on polynomials that no 8 x 8 matrix makes: many pieces at a level, multiple
// roots, coefficients of very different size.
TEST(Vergleich, NullstellenZufaelligerPolynome) {
    Zufall z(4711);
    for (int fall = 0; fall < 400; ++fall) {
        Polynom p(Polynom::Koeffizienten{1.0});
        const std::uint64_t grad = 3 + z.naechste() % 6;
        for (std::uint64_t i = 0; i < grad; ++i) {
            // Roots from a small set repeat; the scale spreads the coefficients.
            Polynom::Koeffizienten linear{};
            linear[0] = -z.ganz(-6, 6) * (fall % 3 == 0 ? 1e3 : (fall % 3 == 1 ? 0.37 : 1.0));
            linear[1] = 1.0;
            p = referenz::produkt(p, Polynom(linear));
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
