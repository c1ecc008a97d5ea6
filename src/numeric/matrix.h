#pragma once
// Matrix, the numeric matrix, and everything computed on it: indexing, the elementary row
// operations, structure (transpose, minors, zero rows and columns), the operators with their
// markers for incompatible sizes (the 1 x 1 matrix (666.0) for a bad product, the 1 x 2 matrix
// (1, 0) for a bad row index), the conversions to and from text matrices, determinant and
// inverse (determinante.cpp), elimination and kernel (gauss.cpp). Floating-point results follow
// fixed operation orders so that they agree to the last bit; keep the loops in their order.

#include "textmatrix/smatrix.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace tabulon {

struct Vektor;

// The shared zero test: |x| < 1e-15.
bool istNull(double x);

struct Matrix {
    std::int64_t rows = 0;
    std::int64_t columns = 0;
    std::vector<double> grid; // row-major

    Matrix() = default;
    Matrix(std::int64_t rows, std::int64_t columns); // zeros

    bool indexIsValid(std::int64_t row, std::int64_t column) const;
    double& operator()(std::int64_t row, std::int64_t column); // asserts "Index out of range"
    double operator()(std::int64_t row, std::int64_t column) const;

    bool istQuadratisch() const { return rows == columns; }
    void loeschen();
    Matrix transponiert() const;
    Matrix gegenMatrix() const;
    Matrix subMatrix(std::int64_t r, std::int64_t c) const;
    Matrix plusNullzeile(std::int64_t rowNr) const;
    Matrix killNullzeilen() const;
    std::pair<Matrix, std::vector<std::int64_t>> killNullspalten() const;
    std::string
    string(int dezimalen) const; // entries as round(x, dezimalen) + " \t", rows ended by lf

    void zeileMalZahl(std::int64_t z, double d);
    void zeilenTausch(std::int64_t i, std::int64_t j);
    void elZeilenTransf(double x, std::int64_t quellz, std::int64_t zielz);

    SMatrix smatrix() const;               // standard texts
    SMatrix gerundet(int dezimalen) const; // round(x, dezimalen)

    double det() const;
    bool istRegulaer() const;
    Matrix invers() const;

    std::vector<Vektor> vektorFeld() const; // the columns, column 0 first

    bool operator==(const Matrix&) const = default;
};

// SMatrix.matrix(): entries that convert are written into a zero matrix, the rest stay 0.
Matrix matrix(const SMatrix& s);
// SMatrix.fNorm(): the Frobenius norm of matrix(s).
double fNorm(const SMatrix& s);

Matrix operator*(const Matrix& a, const Matrix& b);
Matrix operator*(double x, const Matrix& a);
Matrix operator+(const Matrix& a, const Matrix& b);
SMatrix operator*(const SMatrix& a, const SMatrix& b);
SMatrix operator+(const SMatrix& a, const SMatrix& b);
SMatrix operator-(const SMatrix& a, const SMatrix& b);

// invers() together with det(), from one table of minors: both exactly as the two methods give
// them.
std::pair<Matrix, double> inversUndDet(const Matrix& m);

Matrix adiunkte(const Matrix& quelle, std::int64_t spaltenNr);
double vorz(std::int64_t n);

Matrix gaussUmformung(Matrix quelle);
Matrix matrix2KernES(const Matrix& q);

} // namespace tabulon
