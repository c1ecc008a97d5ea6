#include "polynomials/charpoly.h"

#include "textmatrix/zahltext.h"

#include <algorithm>

namespace tabulon {

SMatrix m2EwSmatrix(const Matrix& a) {
    SMatrix s(a.rows, a.columns);
    for (std::int64_t i = 0; i < a.rows; ++i) {
        for (std::int64_t j = 0; j < a.columns; ++j) {
            s(i, j) = zahlText(a(i, j));
        }
    }
    for (std::int64_t k = 0; k < std::min(a.rows, a.columns); ++k) {
        s(k, k) = "x" + s(k, k);
    }
    return s;
}

Polynom elString2Polynom(const std::string& quelle) {
    std::string rest;
    rest.reserve(quelle.size());
    bool mitX = false;
    for (const char c : quelle) {
        if (c == 'x') {
            mitX = true;
        } else {
            rest.push_back(c);
        }
    }
    // The texts of m2EwSmatrix always convert; anything else counts as 0, as everywhere in a
    // computation.
    Polynom::Koeffizienten k{};
    k[0] = text2Zahl(rest).value_or(0.0);
    if (mitX) {
        k[1] = -1.0;
    }
    return Polynom(k);
}

SMatrix adiunkteS(const SMatrix& quelle, std::int64_t spaltenNr) {
    const std::int64_t n = quelle.rows;
    SMatrix m(n - 1, n - 1);
    for (std::int64_t i = 1; i < n; ++i) {
        for (std::int64_t j = 0; j < n; ++j) {
            if (j < spaltenNr) {
                m(i - 1, j) = quelle(i, j);
            } else if (j > spaltenNr) {
                m(i - 1, j - 1) = quelle(i, j);
            }
        }
    }
    return m;
}

Polynom sMatrix2Polynom(const SMatrix& s) {
    if (s.rows < 1) {
        return Polynom();
    }
    if (s.rows == 1) {
        return elString2Polynom(s(0, 0));
    }
    Polynom d;
    for (std::int64_t k = 0; k < s.rows; ++k) {
        const SMatrix m = adiunkteS(s, k);
        const Polynom e = elString2Polynom(s(0, k));
        Polynom::Koeffizienten vorzeichen{};
        vorzeichen[0] = vorz(k);
        const Polynom sk(vorzeichen);
        d = d + (sk * e) * sMatrix2Polynom(m);
    }
    return d;
}

std::pair<Polynom, std::vector<double>> eigenWerte(const Matrix& a) {
    if (!a.istQuadratisch()) {
        return {Polynom(), {}};
    }
    const Polynom p = sMatrix2Polynom(m2EwSmatrix(a));
    return {p, nullstMenge(p)};
}

} // namespace tabulon
