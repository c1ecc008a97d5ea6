#pragma once
// The characteristic polynomial and its real roots written out plainly: a copied text minor and
// freshly parsed entries for every term, the polynomial sum and product with all their steps,
// Horner over all nine coefficients, and a bisection that always runs until the interval is
// narrow or 1000 halvings are done. The table expansion and the early-ending root finder must
// agree with it bit for bit.

#include "numeric/matrix.h"
#include "polynomials/charpoly.h"
#include "polynomials/polynom.h"
#include "textmatrix/smatrix.h"

#include <cmath>
#include <cstdint>
#include <vector>

namespace tabulon::referenz {

inline Polynom summe(const Polynom& a, const Polynom& b) {
    Polynom::Koeffizienten k{};
    for (std::int64_t i = 0; i <= maxGrad; ++i) {
        k[static_cast<std::size_t>(i)] = a.koeff(i) + b.koeff(i);
    }
    return Polynom(k);
}

inline Polynom produkt(const Polynom& a0, const Polynom& b0) {
    const Polynom a(a0.koeff());
    const Polynom b(b0.koeff());
    Polynom::Koeffizienten k{};
    if (a.grad() + b.grad() > maxGrad || a.grad() < 0 || b.grad() < 0) {
        return Polynom(Polynom::Koeffizienten{});
    }
    for (std::int64_t i = 0; i <= a.grad(); ++i) {
        for (std::int64_t j = 0; j <= b.grad(); ++j) {
            const auto ij = static_cast<std::size_t>(i + j);
            k[ij] = a.koeff(i) * b.koeff(j) + k[ij];
        }
    }
    return Polynom(k);
}

inline Polynom laplacePolynom(const SMatrix& s) {
    const std::int64_t n = s.rows;
    if (n == 1) {
        return elString2Polynom(s(0, 0));
    }
    Polynom d(Polynom::Koeffizienten{});
    for (std::int64_t k = 0; k < n; ++k) {
        const SMatrix m = adiunkteS(s, k);
        const Polynom e = elString2Polynom(s(0, k));
        const Polynom v(Polynom::Koeffizienten{vorz(k)});
        d = summe(d, produkt(produkt(v, e), laplacePolynom(m)));
    }
    return d;
}

inline double wert(const Polynom& p, double x) {
    double v = p.koeff(8);
    for (std::int64_t i = 7; i >= 0; --i) {
        v = x * v + p.koeff(i);
    }
    return v;
}

inline Polynom ableitung(const Polynom& p) {
    Polynom::Koeffizienten k{};
    for (std::int64_t i = 0; i <= 7; ++i) {
        k[static_cast<std::size_t>(i)] = static_cast<double>(i + 1) * p.koeff(i + 1);
    }
    return Polynom(k);
}

inline double grenze(const Polynom& p) {
    const std::int64_t n = p.grad();
    if (n <= 2) {
        return 1.0;
    }
    double s = 0.0;
    for (std::int64_t i = 0; i < n; ++i) {
        s = s + std::fabs(p.koeff(i));
    }
    return 1.0 + s / std::fabs(p.koeff(n));
}

inline double bisektion(const Polynom& fu, double von, double bis) {
    double a = von;
    double b = bis;
    int schritte = 0;
    while (std::fabs(b - a) > 1e-15 && schritte < 1000) {
        const double m = (a + b) / 2;
        schritte = schritte + 1;
        if (wert(fu, m) * wert(fu, von) < 0) {
            b = m;
        } else {
            a = m;
        }
    }
    return korr((a + b) / 2);
}

inline std::vector<double> nullstellen(const Polynom& p) {
    const std::int64_t g = p.grad();
    if (g <= 0) {
        return {};
    }
    if (g == 1) {
        return {korr(-p.koeff(0) / p.koeff(1))};
    }
    if (g == 2) {
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
    const std::vector<double> r = nullstellen(ableitung(p));
    const double gr = grenze(p);
    std::vector<double> x{-gr};
    x.insert(x.end(), r.begin(), r.end());
    x.push_back(gr);
    std::vector<double> ergebnis;
    for (std::size_t i = 0; i + 1 < x.size(); ++i) {
        const double a = korr(x[i]);
        const double b = korr(x[i + 1]);
        if (wert(p, a) * wert(p, b) < 0) {
            ergebnis.push_back(bisektion(p, a, b));
        }
        if (korr(wert(p, b)) == 0.0) {
            ergebnis.push_back(b);
        }
    }
    return ergebnis;
}

inline Polynom charPolynom(const Matrix& a) {
    return laplacePolynom(m2EwSmatrix(a));
}

} // namespace tabulon::referenz
