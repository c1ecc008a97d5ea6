#pragma once
// Vektor, the numeric vector, and the column-system functions built on it: Gram-Schmidt,
// the columns as a matrix, orthonormalisation and the Gram determinant of a text matrix.

#include "numeric/matrix.h"
#include "textmatrix/smatrix.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace tabulon {

struct Vektor {
    std::int64_t dim = 0;
    std::vector<double> grid;

    Vektor() = default;
    explicit Vektor(std::int64_t dim); // the zero vector

    bool indexIsValid(std::int64_t ind) const { return ind >= 0 && ind < dim; }
    double& operator[](std::int64_t i);
    double operator[](std::int64_t i) const;

    double norm() const;
    Vektor normiert() const;
    Vektor& operator+=(const Vektor& b);

    bool operator==(const Vektor&) const = default;
};

Vektor operator*(double x, const Vektor& v);
Vektor operator+(const Vektor& a, const Vektor& b);
double operator*(const Vektor& a, const Vektor& b);

std::vector<Vektor> schmidt(const std::vector<Vektor>& vsystem);
Matrix vFeld2Matrix(const std::vector<Vektor>& vfeld); // at least one vector
// The orthonormalised columns; nothing when every column is zero (no vector to return).
std::optional<SMatrix> matrix2ONB(const SMatrix& m);
double gramscheDeterminante(const SMatrix& m);

} // namespace tabulon
