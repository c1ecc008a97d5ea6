// Real roots. Degrees 1 and 2 in closed form; from degree 3 on, the roots of the derivative cut
// the interval [-G, G] (G the root bound) into pieces on which p is monotonic. A piece whose ends
// differ in sign holds exactly one root, found by bisection; a cut point where p is zero is a
// multiple root and is taken as it is. The order of the cut points makes the result ascending.
//
// The eigenvalue command runs this on every characteristic polynomial, so the work is arranged
// for speed without changing a bit of any result: the bisections of one level are independent
// and run side by side, so that the processor overlaps their evaluations, and a bisection stops
// as soon as a halving leaves its interval as it was, because every later one would then do the
// same (the state is all there is). Near roots beyond about 8 in magnitude the interval cannot
// shrink below 1e-15, and without that stop the search would spin to its 1000 steps.

#include "numeric/matrix.h"
#include "polynomials/polynom.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

namespace tabulon {

namespace {

// Polynom::wert at several points at once: Horner's scheme, the same operations in the same
// order for every point. The points are independent, so their chains overlap; a fixed number of
// them lets the compiler keep them in vector registers.
//
// Horner over all nine coefficients carries +0.0 through the top coefficients that are +0.0:
// for a finite x, x * +0.0 is a zero and a zero plus +0.0 is +0.0. So when every coefficient
// above S is +0.0, the scheme may start at S with +0.0 in hand, for finite points, and deliver
// the same bits with fewer steps; S = maxGrad is the full scheme.
class Auswertung {
public:
    explicit Auswertung(const Polynom& p) : k_(p.koeff()) {
        oben_ = maxGrad;
        while (oben_ > 0 &&
               std::bit_cast<std::uint64_t>(k_[static_cast<std::size_t>(oben_)]) == 0) {
            --oben_;
        }
    }

    // The highest coefficient that is not +0.0 (0 when there is none).
    std::int64_t oben() const { return oben_; }

    template <std::size_t N, std::int64_t S = maxGrad>
    void werte(const double* x, double* v) const {
        std::array<double, N> w;
        w.fill(S == maxGrad ? k_[maxGrad] : 0.0);
#pragma GCC unroll 8
        for (std::int64_t i = std::min(S, maxGrad - 1); i >= 0; --i) {
            const double k = k_[static_cast<std::size_t>(i)];
            for (std::size_t l = 0; l < N; ++l) {
                w[l] = x[l] * w[l] + k;
            }
        }
        std::copy(w.begin(), w.end(), v);
    }

private:
    Polynom::Koeffizienten k_;
    std::int64_t oben_;
};

bool gleicheBits(double x, double y) {
    return std::bit_cast<std::uint64_t>(x) == std::bit_cast<std::uint64_t>(y);
}

// A level has at most eight pieces that change sign for a characteristic polynomial; more are
// bisected in further batches.
constexpr std::size_t spuren = 8;

// N bisections in lock step: lane l searches from von[l] to bis[l], exactly as findeNullst does
// on its own, and writes its root to wurzel[l].
template <std::size_t N, std::int64_t S>
void bisektionen(const Auswertung& fu, const double* von, const double* bis, double* wurzel) {
    std::array<double, N> a;
    std::array<double, N> b;
    std::array<double, N> m;
    std::array<double, N> v;
    std::array<double, N> vonWert;
    std::array<int, N> schritte{};
    std::array<bool, N> laeuft;
    std::copy(von, von + N, a.begin());
    std::copy(bis, bis + N, b.begin());
    // The sign is always compared with the value at the left end von, never at the moving a.
    fu.werte<N, S>(a.data(), vonWert.data());
    bool irgendeine = false;
    for (std::size_t l = 0; l < N; ++l) {
        laeuft[l] = std::fabs(b[l] - a[l]) > 1e-15;
        irgendeine = irgendeine || laeuft[l];
    }
    while (irgendeine) {
        for (std::size_t l = 0; l < N; ++l) {
            m[l] = (a[l] + b[l]) / 2;
        }
        fu.werte<N, S>(m.data(), v.data());
        irgendeine = false;
        for (std::size_t l = 0; l < N; ++l) {
            const bool links = v[l] * vonWert[l] < 0;
            const double neuA = links ? a[l] : m[l];
            const double neuB = links ? m[l] : b[l];
            // Once a halving leaves the interval as it was, so will every later one.
            const bool bewegt = !gleicheBits(neuA, a[l]) || !gleicheBits(neuB, b[l]);
            if (laeuft[l]) {
                a[l] = neuA;
                b[l] = neuB;
                ++schritte[l];
                laeuft[l] = bewegt && std::fabs(neuB - neuA) > 1e-15 && schritte[l] < 1000;
            }
            irgendeine = irgendeine || laeuft[l];
        }
    }
    for (std::size_t l = 0; l < N; ++l) {
        wurzel[l] = korr((a[l] + b[l]) / 2);
    }
}

template <std::int64_t S>
void bisektionenAb(const Auswertung& fu, const double* von, const double* bis, double* wurzel,
                   std::size_t anzahl) {
    switch (anzahl) {
    case 1:
        return bisektionen<1, S>(fu, von, bis, wurzel);
    case 2:
        return bisektionen<2, S>(fu, von, bis, wurzel);
    case 3:
        return bisektionen<3, S>(fu, von, bis, wurzel);
    case 4:
        return bisektionen<4, S>(fu, von, bis, wurzel);
    default: {
        // Lanes beyond `anzahl` search nothing, from 0 to 0.
        std::array<double, spuren> vonAlle{};
        std::array<double, spuren> bisAlle{};
        std::array<double, spuren> wurzelAlle{};
        std::copy(von, von + anzahl, vonAlle.begin());
        std::copy(bis, bis + anzahl, bisAlle.begin());
        bisektionen<spuren, S>(fu, vonAlle.data(), bisAlle.data(), wurzelAlle.data());
        std::copy(wurzelAlle.begin(), wurzelAlle.begin() + static_cast<std::ptrdiff_t>(anzahl),
                  wurzel);
    }
    }
}

// Up to `spuren` bisections side by side. Every midpoint lies between the ends of its search,
// so when no end exceeds half the largest double, no midpoint overflows and all are finite: the
// short Horner scheme is then exact.
void bisektionen(const Auswertung& fu, const double* von, const double* bis, double* wurzel,
                 std::size_t anzahl) {
    constexpr double grenze = std::numeric_limits<double>::max() / 2;
    bool endlich = true;
    for (std::size_t l = 0; l < anzahl; ++l) {
        endlich = endlich && std::fabs(von[l]) <= grenze && std::fabs(bis[l]) <= grenze;
    }
    switch (endlich ? std::max<std::int64_t>(fu.oben(), 3) : maxGrad) {
    case 3:
        return bisektionenAb<3>(fu, von, bis, wurzel, anzahl);
    case 4:
        return bisektionenAb<4>(fu, von, bis, wurzel, anzahl);
    case 5:
        return bisektionenAb<5>(fu, von, bis, wurzel, anzahl);
    case 6:
        return bisektionenAb<6>(fu, von, bis, wurzel, anzahl);
    case 7:
        return bisektionenAb<7>(fu, von, bis, wurzel, anzahl);
    default:
        return bisektionenAb<maxGrad>(fu, von, bis, wurzel, anzahl);
    }
}

// A level of degree g yields at most twice as many roots as its derivative has, plus two (every
// piece may give a bisection root and its right end): 2, 6, 14, ... 254 for degree 8.
constexpr std::size_t maxWurzeln = std::size_t{1} << maxGrad;

struct Wurzeln {
    std::array<double, maxWurzeln> w;
    std::size_t anzahl = 0;
    void dazu(double x) { w[anzahl++] = x; }
};

void quadratischeNullst(const Polynom& p, Wurzeln& ergebnis) {
    const double q = p.koeff(0) / p.koeff(2);
    const double r = p.koeff(1) / p.koeff(2);
    const double diskr = r * r / 4 - q;
    if (istNull(diskr)) {
        ergebnis.dazu(korr(-r / 2));
    } else if (!(diskr < 0)) {
        ergebnis.dazu(korr(-r / 2 - std::sqrt(diskr)));
        ergebnis.dazu(korr(-r / 2 + std::sqrt(diskr)));
    }
}

void nullstellen(const Polynom& p, Wurzeln& ergebnis);

void getrennteNullst(const Polynom& p, Wurzeln& ergebnis) {
    Wurzeln schnitte;
    schnitte.dazu(-p.nullstGrenze());
    nullstellen(p.abl(), schnitte);
    schnitte.dazu(p.nullstGrenze());

    // The values at the cut points, each taken once: a cut point is the right end of one piece
    // and the left end of the next.
    const Auswertung fu(p);
    std::array<double, maxWurzeln> punkt;
    std::array<double, maxWurzeln> wert;
    for (std::size_t i = 0; i < schnitte.anzahl; ++i) {
        punkt[i] = korr(schnitte.w[i]);
    }
    for (std::size_t i = 0; i < schnitte.anzahl; ++i) {
        fu.werte<1>(&punkt[i], &wert[i]);
    }

    // The pieces that change sign, bisected side by side, a batch of lanes at a time.
    std::array<std::size_t, maxWurzeln> stueck;
    std::size_t gesucht = 0;
    for (std::size_t i = 0; i + 1 < schnitte.anzahl; ++i) {
        if (wert[i] * wert[i + 1] < 0) {
            stueck[gesucht++] = i;
        }
    }
    std::array<double, maxWurzeln> gefunden;
    for (std::size_t s = 0; s < gesucht; s += spuren) {
        const std::size_t anzahl = std::min(spuren, gesucht - s);
        std::array<double, spuren> von;
        std::array<double, spuren> bis;
        for (std::size_t l = 0; l < anzahl; ++l) {
            von[l] = punkt[stueck[s + l]];
            bis[l] = punkt[stueck[s + l] + 1];
        }
        bisektionen(fu, von.data(), bis.data(), gefunden.data() + s, anzahl);
    }

    std::size_t naechstes = 0;
    for (std::size_t i = 0; i + 1 < schnitte.anzahl; ++i) {
        if (naechstes < gesucht && stueck[naechstes] == i) {
            ergebnis.dazu(gefunden[naechstes++]);
        }
        // Only the right end is tested: the left one was the right end of the piece before,
        // and -G cannot be a root.
        if (korr(wert[i + 1]) == 0.0) {
            ergebnis.dazu(punkt[i + 1]);
        }
    }
}

void nullstellen(const Polynom& p, Wurzeln& ergebnis) {
    switch (p.grad()) {
    case -1:
    case 0:
        return;
    case 1:
        ergebnis.dazu(korr(-p.koeff(0) / p.koeff(1)));
        return;
    case 2:
        quadratischeNullst(p, ergebnis);
        return;
    default:
        getrennteNullst(p, ergebnis);
    }
}

} // namespace

double findeNullst(const Polynom& fu, double von, double bis) {
    double wurzel = 0.0;
    bisektionen(Auswertung(fu), &von, &bis, &wurzel, 1);
    return wurzel;
}

std::vector<double> nullstMenge(const Polynom& p) {
    Wurzeln w;
    nullstellen(p, w);
    return {w.w.begin(), w.w.begin() + static_cast<std::ptrdiff_t>(w.anzahl)};
}

} // namespace tabulon
