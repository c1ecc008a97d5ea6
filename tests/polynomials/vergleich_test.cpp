// The table expansion and the early-ending root finder against the plain procedures of
// referenz/charpoly_laplace.h: every coefficient, the degree and every eigenvalue must agree to
// the bit, so -0.0 against 0.0 and the payload of a NaN count as differences.

#include "numeric/matrix.h"
#include "polynomials/charpoly.h"
#include "polynomials/polynom.h"
#include "referenz/charpoly_laplace.h"
#include "textmatrix/zahltext.h"

#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

namespace tabulon {
namespace {

bool bitgleich(const Polynom& a, const Polynom& b) {
    return a.grad() == b.grad() &&
           std::memcmp(a.koeff().data(), b.koeff().data(), sizeof(Polynom::Koeffizienten)) == 0;
}

bool bitgleich(const std::vector<double>& a, const std::vector<double>& b) {
    return a.size() == b.size() &&
           (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(double)) == 0);
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

enum class Art { ganz, dezimal, winzig, riesig, singulaer, duenn };

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
    const Art arten[] = {Art::ganz,   Art::dezimal,   Art::winzig,
                         Art::riesig, Art::singulaer, Art::duenn};
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

} // namespace
} // namespace tabulon
