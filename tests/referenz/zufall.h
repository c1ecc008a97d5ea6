#pragma once
// Random matrices of every kind the tableau can hold, made again from the same seed, and the
// bitwise equality the fast algorithms are held to against the plain ones.

#include "numeric/matrix.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

namespace tabulon::referenz {

// Equal to the last bit, so -0.0 and 0.0 differ. Any two NaNs count as equal: where two NaNs
// meet in a commutative operation the compiler picks which one passes on, and no NaN's sign is
// ever shown (its text is "nan") or branched on.
inline bool bitgleich(double x, double y) {
    return std::bit_cast<std::uint64_t>(x) == std::bit_cast<std::uint64_t>(y) ||
           (std::isnan(x) && std::isnan(y));
}

template <typename Feld> bool bitgleich(const Feld& a, const Feld& b) {
    return std::ranges::equal(a, b, [](double x, double y) { return bitgleich(x, y); });
}

struct Zufall {
    std::uint64_t zustand;
    std::uint64_t naechste() {
        zustand = zustand * 6364136223846793005u + 1442695040888963407u;
        return zustand >> 33;
    }
    double ganz(int von, int bis) {
        return static_cast<double>(von + static_cast<int>(naechste() % (bis - von + 1)));
    }
};

enum class Art { ganz, dezimal, winzig, riesig, singulaer, duenn, unendlich };
inline constexpr Art alleArten[] = {Art::ganz,      Art::dezimal, Art::winzig,   Art::riesig,
                                    Art::singulaer, Art::duenn,   Art::unendlich};

inline Matrix zufallsMatrix(std::int64_t n, Art art, Zufall& z) {
    constexpr double inf = std::numeric_limits<double>::infinity();
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
        case Art::winzig: {
            // Products fall below the zero test, or underflow, and decide degrees and regularity.
            const double skala[] = {1e-9, 1e-17, 1e-300};
            x = z.ganz(-5, 5) * skala[z.naechste() % 3];
            break;
        }
        case Art::riesig:
            x = z.ganz(-9, 9) * 1e150 + z.ganz(-3, 3);
            break;
        case Art::duenn: // signed zeros arise
            x = z.naechste() % 3 == 0 ? z.ganz(-4, 4) : (z.naechste() % 2 == 0 ? 0.0 : -0.0);
            break;
        case Art::unendlich: {
            // Products overflow, inf - inf gives NaN coefficients and NaN root bounds.
            const double sonder[] = {inf, -inf, std::numeric_limits<double>::quiet_NaN(), 1e308,
                                     -1e300};
            x = z.naechste() % 4 == 0 ? sonder[z.naechste() % 5] : z.ganz(-9, 9);
            break;
        }
        }
    }
    if (art == Art::singulaer && n > 1) {
        const auto von = static_cast<std::int64_t>(z.naechste() % static_cast<std::uint64_t>(n));
        const std::int64_t nach = (von + 1 + static_cast<std::int64_t>(z.naechste() % 2)) % n;
        std::copy_n(a.grid.begin() + von * n, n, a.grid.begin() + nach * n);
    }
    return a;
}

} // namespace tabulon::referenz
