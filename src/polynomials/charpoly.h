#pragma once
// The characteristic polynomial p(x) = det(A - x E), computed as a polynomial rather than by
// sampling. A - x E is written as a text matrix whose diagonal entries carry the letter x
// ("x-3.5" stands for -3.5 - x), and its determinant is expanded along the first row with the
// polynomial sum and product. The entries pass through their 15-digit standard text, so the
// polynomial is that of the matrix rounded to 15 significant digits. Every minor the expansion
// meets is the lowest rows on some set of columns, so sMatrix2Polynom forms each one once, in a
// table over the column sets, with the same sums and products as the plain recursion: the same
// bits for about a thousand products instead of 8!.

#include "numeric/matrix.h"
#include "polynomials/polynom.h"
#include "textmatrix/smatrix.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace tabulon {

// The text matrix of A - x E: off the diagonal the standard text of a_ij, on it "x" followed by
// the standard text of a_kk.
SMatrix m2EwSmatrix(const Matrix& a);

// One entry of such a matrix as a polynomial: c, or c - x when the text holds an "x".
Polynom elString2Polynom(const std::string& quelle);

// The minor without row 0 and column spaltenNr of a square text matrix of size at least 2.
SMatrix adiunkteS(const SMatrix& quelle, std::int64_t spaltenNr);

// The determinant of a square text matrix from m2EwSmatrix, as a polynomial.
Polynom sMatrix2Polynom(const SMatrix& s);

// (p, the real roots of p) for a square matrix; (zero polynomial, none) otherwise.
std::pair<Polynom, std::vector<double>> eigenWerte(const Matrix& a);

} // namespace tabulon
