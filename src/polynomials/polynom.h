#pragma once
// Polynom, the polynomial with real coefficients and degree at most 8, and its real roots.
//
// The characteristic polynomial of a matrix (charpoly.h) is built from these polynomials by
// sums and products; its real roots are the eigenvalues the user sees. The coefficients are kept
// exactly as computed; only the degree is decided with the zero test korr, so a coefficient of
// 1e-16 above the degree stays in the array (and still takes part in wert and in sums).
// The root finder separates the roots of p with the roots of its derivative, found by the same
// function one degree lower, and bisects every piece whose ends differ in sign. Its results
// depend on every operation order below, so keep the loops and groupings as they are.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace tabulon {

inline constexpr std::int64_t maxGrad = 8;

// 0.0 for |x| < 1e-15, otherwise x unchanged.
double korr(double x);

class Polynom {
public:
    // Index = power of x.
    using Koeffizienten = std::array<double, maxGrad + 1>;

    Polynom() = default; // the zero polynomial, degree -1
    explicit Polynom(const Koeffizienten& koeff);

    const Koeffizienten& koeff() const { return koeff_; }
    double koeff(std::int64_t i) const { return koeff_[static_cast<std::size_t>(i)]; }
    // The highest power whose coefficient survives korr; -1 for the zero polynomial.
    std::int64_t grad() const { return grad_; }

    Polynom abl() const;
    // Horner over all nine coefficients, whatever the degree.
    double wert(double x) const;
    // Every coefficient divided by the leading one.
    Polynom normiert() const;
    // Exceeds the absolute value of every real root (1.0 up to degree 2).
    double nullstGrenze() const;
    // Ascending powers, coefficients rounded to seven decimals: "2.0 - x + 0.5x^3".
    std::string string() const;

    bool operator==(const Polynom&) const = default;

private:
    Koeffizienten koeff_{};
    std::int64_t grad_ = -1;
};

Polynom operator+(const Polynom& a, const Polynom& b);
// The zero polynomial when the degrees add up to more than maxGrad.
Polynom operator*(const Polynom& a, const Polynom& b);

// Pieces of Polynom::string().
std::string xhochiString(std::int64_t i);          // "", "x", "x^2" ... "x^8"; "" for any other i
std::string absOhneEins(double z);                 // the text of |z|, or "" when |z| is 1
std::string polySummand(double t, std::int64_t i); // " + 3.0x^2", " - x", or ""

// One root of fu between von and bis by bisection; fu must change sign between them.
double findeNullst(const Polynom& fu, double von, double bis);
// The real roots of p in ascending order, a multiple root once.
std::vector<double> nullstMenge(const Polynom& p);

} // namespace tabulon
