#pragma once
// The real roots of one irreducible factor of the characteristic polynomial, each with a tight
// ball around it so that roots of different factors can be put in ascending order.
// Internal to src/exakt; callers use eigen.h.

#include "exakt/eigen.h"
#include "exakt/eigen_flint.h"

#include <vector>

namespace tabulon {

struct WurzelMitBall {
    ReellerEigenwert wert; // art, value and naeherung filled in; multiplicities left to the caller
    flintwrap::Ball ball;
};
using ReelleWurzeln = std::vector<WurzelMitBall>;

// koeffizienten: irreducible over Q, primitive, positive leading coefficient, degree >= 1.
// The real roots in ascending order; none for a factor without real roots.
ReelleWurzeln reelleWurzeln(const std::vector<mpz_class>& koeffizienten);

// Roots of distinct irreducible factors are distinct, and the balls are narrow enough to tell
// them apart, so ordering by the centres is the true order.
void sortiereAufsteigend(std::vector<WurzelMitBall>& wurzeln);

// The decimal, truncated towards zero, of every point of the ball x with `stellen` places after
// the point, or an empty text when the points of x differ within those places.
std::string sichereDezimalen(const arb_t x, int stellen);

// s and d with n = s²·d and d square-free, for n > 0.
std::pair<mpz_class, mpz_class> quadratfrei(const mpz_class& n);

} // namespace tabulon
