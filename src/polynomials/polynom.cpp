#include "polynomials/polynom.h"

#include "numeric/matrix.h"
#include "textmatrix/zahltext.h"

#include <cmath>

namespace tabulon {

double korr(double x) {
    return std::fabs(x) < 1e-15 ? 0.0 : x;
}

Polynom::Polynom(const Koeffizienten& koeff) {
    for (std::size_t i = 0; i < koeff_.size(); ++i) {
        koeff_[i] = koeff[i];
        if (korr(koeff_[i]) != 0.0) {
            grad_ = static_cast<std::int64_t>(i);
        }
    }
}

Polynom Polynom::abl() const {
    Koeffizienten k{};
    for (std::size_t i = 0; i + 1 < k.size(); ++i) {
        k[i] = static_cast<double>(i + 1) * koeff_[i + 1];
    }
    return Polynom(k);
}

double Polynom::wert(double x) const {
    double v = koeff_[maxGrad];
    for (std::int64_t i = maxGrad - 1; i >= 0; --i) {
        v = x * v + koeff_[static_cast<std::size_t>(i)];
    }
    return v;
}

Polynom Polynom::normiert() const {
    if (grad_ == -1) {
        return *this;
    }
    const double leit = koeff(grad_);
    Koeffizienten k{};
    for (std::size_t i = 0; i < k.size(); ++i) {
        k[i] = koeff_[i] / leit;
    }
    return Polynom(k);
}

double Polynom::nullstGrenze() const {
    if (grad_ <= 2) {
        return 1.0;
    }
    double s = 0.0;
    for (std::int64_t i = 0; i < grad_; ++i) {
        s += std::fabs(koeff(i));
    }
    return 1.0 + s / std::fabs(koeff(grad_));
}

std::string Polynom::string() const {
    std::string t = zahlText(xrunden(koeff_[0]));
    for (std::int64_t i = 1; i <= maxGrad; ++i) {
        t += polySummand(xrunden(koeff(i)), i);
    }
    return t;
}

Polynom operator+(const Polynom& a, const Polynom& b) {
    Polynom::Koeffizienten k{};
    for (std::size_t i = 0; i < k.size(); ++i) {
        k[i] = a.koeff()[i] + b.koeff()[i];
    }
    return Polynom(k);
}

Polynom operator*(const Polynom& a, const Polynom& b) {
    // The degrees are those the constructor decided from the coefficients, which no one changes
    // afterwards.
    if (a.grad() + b.grad() > maxGrad || a.grad() < 0 || b.grad() < 0) {
        return Polynom();
    }
    Polynom::Koeffizienten k{};
    for (std::int64_t i = 0; i <= a.grad(); ++i) {
        for (std::int64_t j = 0; j <= b.grad(); ++j) {
            auto& ziel = k[static_cast<std::size_t>(i + j)];
            ziel = a.koeff(i) * b.koeff(j) + ziel;
        }
    }
    return Polynom(k);
}

std::string xhochiString(std::int64_t i) {
    if (i == 0 || i < 0 || i > maxGrad) {
        return "";
    }
    if (i == 1) {
        return "x";
    }
    return "x^" + std::string(1, static_cast<char>('0' + i));
}

std::string absOhneEins(double z) {
    if (istNull(std::fabs(z) - 1.0)) {
        return "";
    }
    return zahlText(std::fabs(z));
}

std::string polySummand(double t, std::int64_t i) {
    const double d = xrunden(t);
    if (d > 0) {
        return " + " + absOhneEins(d) + xhochiString(i);
    }
    if (d < 0) {
        return " - " + absOhneEins(d) + xhochiString(i);
    }
    return "";
}

} // namespace tabulon
