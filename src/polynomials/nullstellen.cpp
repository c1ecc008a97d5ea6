// Real roots. Degrees 1 and 2 in closed form; from degree 3 on, the roots of the derivative cut
// the interval [-G, G] (G the root bound) into pieces on which p is monotonic. A piece whose ends
// differ in sign holds exactly one root, found by bisection; a cut point where p is zero is a
// multiple root and is taken as it is. The order of the cut points makes the result ascending.

#include "numeric/matrix.h"
#include "polynomials/polynom.h"

#include <cmath>

namespace tabulon {

double findeNullst(const Polynom& fu, double von, double bis) {
    double a = von;
    double b = bis;
    int schritte = 0;
    // The sign is always compared with the value at the left end von, never at the moving a.
    const double vonWert = fu.wert(von);
    while (std::fabs(b - a) > 1e-15 && schritte < 1000) {
        const double m = (a + b) / 2;
        ++schritte;
        // Near roots beyond about 8 the spacing of doubles exceeds 1e-15, so the interval
        // stops shrinking and only the step limit ends the search.
        if (fu.wert(m) * vonWert < 0) {
            b = m;
        } else {
            a = m;
        }
    }
    return korr((a + b) / 2);
}

namespace {

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

std::vector<double> getrennteNullst(const Polynom& p) {
    const std::vector<double> ablNullst = nullstMenge(p.abl());
    const double grenze = p.nullstGrenze();
    std::vector<double> schnitte;
    schnitte.reserve(ablNullst.size() + 2);
    schnitte.push_back(-grenze);
    schnitte.insert(schnitte.end(), ablNullst.begin(), ablNullst.end());
    schnitte.push_back(grenze);

    std::vector<double> ergebnis;
    for (std::size_t i = 0; i + 1 < schnitte.size(); ++i) {
        const double a = korr(schnitte[i]);
        const double b = korr(schnitte[i + 1]);
        if (p.wert(a) * p.wert(b) < 0) {
            ergebnis.push_back(findeNullst(p, a, b));
        }
        // Only the right end is tested: the left one was the right end of the piece before,
        // and -G cannot be a root.
        if (korr(p.wert(b)) == 0.0) {
            ergebnis.push_back(b);
        }
    }
    return ergebnis;
}

} // namespace

std::vector<double> nullstMenge(const Polynom& p) {
    switch (p.grad()) {
    case -1:
    case 0:
        return {};
    case 1:
        return {korr(-p.koeff(0) / p.koeff(1))};
    case 2:
        return quadratischeNullst(p);
    default:
        return getrennteNullst(p);
    }
}

} // namespace tabulon
