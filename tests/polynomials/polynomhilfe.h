#pragma once

#include "polynomials/polynom.h"

#include <algorithm>
#include <initializer_list>

namespace tabulon {

// The polynomial with the given coefficients, constant term first.
inline Polynom poly(std::initializer_list<double> k) {
    Polynom::Koeffizienten a{};
    std::copy(k.begin(), k.end(), a.begin());
    return Polynom(a);
}

} // namespace tabulon
