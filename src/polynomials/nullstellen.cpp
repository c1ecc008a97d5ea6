// Real roots. Degrees 1 and 2 in closed form; from degree 3 on, the roots of the derivative cut
// the interval [-G, G] (G the root bound) into pieces on which p is monotonic. A piece whose ends
// differ in sign holds exactly one root, found by bisection; a cut point where p is zero is a
// multiple root and is taken as it is. The order of the cut points makes the result ascending.

#include "numeric/matrix.h"
#include "polynomials/polynom.h"

#include <bit>
#include <cmath>
#include <cstdint>

namespace tabulon {

namespace {

bool gleicheBits(double x, double y) {
    return std::bit_cast<std::uint64_t>(x) == std::bit_cast<std::uint64_t>(y);
}

std::vector<double> quadratischeNullst(const Polynom& p) {
    const double q = p.koeff(0) / p.koeff(2);
    const double r = p.koeff(1) / p.koeff(2);
    const double diskr = r * r / 4 - q;
    if (istNull(diskr)) {
        return {korr(-r / 2)};
    }
    if (diskr < 0) {
        return {};
    }
    return {korr(-r / 2 - std::sqrt(diskr)), korr(-r / 2 + std::sqrt(diskr))};
}

} // namespace

// The search runs until the interval is narrower than 1e-15 or 1000 halvings are done, and it
// may end earlier: a halving depends on nothing but the two ends (the value at `von` is fixed),
// so once one leaves both ends as they were, every later one does the same up to the 1000th,
// and the result, read from the ends alone, is already known. Near roots beyond about 8 in
// magnitude the interval cannot shrink below 1e-15, and without that stop the search would spin
// to its 1000 steps.
double findeNullst(const Polynom& fu, double von, double bis) {
    // The sign is always compared with the value at the left end von, never at the moving a.
    const double vonWert = fu.wert(von);
    double a = von;
    double b = bis;
    for (int schritte = 0; std::fabs(b - a) > 1e-15 && schritte < 1000; ++schritte) {
        const double m = (a + b) / 2;
        const bool links = fu.wert(m) * vonWert < 0;
        const double neuA = links ? a : m;
        const double neuB = links ? m : b;
        if (gleicheBits(neuA, a) && gleicheBits(neuB, b)) {
            break;
        }
        a = neuA;
        b = neuB;
    }
    return korr((a + b) / 2);
}

std::vector<double> nullstMenge(const Polynom& p) {
    if (p.grad() <= 0) {
        return {};
    }
    if (p.grad() == 1) {
        return {korr(-p.koeff(0) / p.koeff(1))};
    }
    if (p.grad() == 2) {
        return quadratischeNullst(p);
    }
    std::vector<double> schnitte{-p.nullstGrenze()};
    for (const double x : nullstMenge(p.abl())) {
        schnitte.push_back(x);
    }
    schnitte.push_back(p.nullstGrenze());

    std::vector<double> wurzeln;
    for (std::size_t i = 0; i + 1 < schnitte.size(); ++i) {
        const double a = korr(schnitte[i]);
        const double b = korr(schnitte[i + 1]);
        if (p.wert(a) * p.wert(b) < 0) {
            wurzeln.push_back(findeNullst(p, a, b));
        }
        // Only the right end is tested: the left one was the right end of the piece before,
        // and -G cannot be a root.
        if (korr(p.wert(b)) == 0.0) {
            wurzeln.push_back(b);
        }
    }
    return wurzeln;
}

} // namespace tabulon
