#include "numeric/matrix.h"

#include "textmatrix/liste.h"
#include "textmatrix/zahltext.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstddef>

namespace tabulon {

namespace {

std::size_t stelle(const Matrix& m, std::int64_t row, std::int64_t column) {
    return static_cast<std::size_t>(row * m.columns + column);
}

// The marker a row operation leaves when a row index lies beyond the last row.
Matrix zeilenMarke() {
    Matrix m(1, 2);
    m(0, 0) = 1.0;
    return m;
}

bool istNullzeile(const Matrix& m, std::int64_t i) {
    for (std::int64_t j = 0; j < m.columns; ++j) {
        if (!istNull(m(i, j))) {
            return false;
        }
    }
    return true;
}

bool istNullspalte(const Matrix& m, std::int64_t j) {
    for (std::int64_t i = 0; i < m.rows; ++i) {
        if (!istNull(m(i, j))) {
            return false;
        }
    }
    return true;
}

// The kernel construction only ever sees the tableau's eight columns, so the list of removed
// columns is kept to those indices.
constexpr std::int64_t tableauSpalten = 8;

} // namespace

bool istNull(double x) {
    return std::fabs(x) < 1e-15;
}

// A negative size would come only from a construction that does not fit its matrix; it is
// taken as no rows or no columns, so that every loop over the matrix stays inside the grid.
Matrix::Matrix(std::int64_t rows, std::int64_t columns)
    : rows(std::max<std::int64_t>(rows, 0)), columns(std::max<std::int64_t>(columns, 0)),
      grid(static_cast<std::size_t>(this->rows * this->columns), 0.0) {}

bool Matrix::indexIsValid(std::int64_t row, std::int64_t column) const {
    return row >= 0 && row < rows && column >= 0 && column < columns;
}

double& Matrix::operator()(std::int64_t row, std::int64_t column) {
    assert(indexIsValid(row, column) && "Index out of range");
    return grid[stelle(*this, row, column)];
}

double Matrix::operator()(std::int64_t row, std::int64_t column) const {
    assert(indexIsValid(row, column) && "Index out of range");
    return grid[stelle(*this, row, column)];
}

void Matrix::loeschen() {
    for (double& x : grid) {
        x = 0.0;
    }
}

Matrix Matrix::transponiert() const {
    Matrix t(columns, rows);
    for (std::int64_t i = 0; i < rows; ++i) {
        for (std::int64_t j = 0; j < columns; ++j) {
            t(j, i) = (*this)(i, j);
        }
    }
    return t;
}

Matrix Matrix::gegenMatrix() const {
    Matrix g = *this;
    for (double& x : g.grid) {
        x = -x;
    }
    return g;
}

Matrix Matrix::subMatrix(std::int64_t r, std::int64_t c) const {
    const std::int64_t n = std::max<std::int64_t>(rows - 1, 0);
    Matrix s(n, n);
    for (std::int64_t i = 0; i < n; ++i) {
        for (std::int64_t j = 0; j < n; ++j) {
            const std::int64_t qi = i < r ? i : i + 1;
            const std::int64_t qj = j < c ? j : j + 1;
            if (indexIsValid(qi, qj)) {
                s(i, j) = (*this)(qi, qj);
            }
        }
    }
    return s;
}

Matrix Matrix::plusNullzeile(std::int64_t rowNr) const {
    if (rowNr < 0 || rowNr > rows) {
        return *this;
    }
    Matrix p(rows + 1, columns);
    for (std::int64_t i = 0; i < rows; ++i) {
        const std::int64_t ziel = i < rowNr ? i : i + 1;
        for (std::int64_t j = 0; j < columns; ++j) {
            p(ziel, j) = (*this)(i, j);
        }
    }
    return p;
}

Matrix Matrix::killNullzeilen() const {
    std::vector<std::int64_t> bleiben;
    for (std::int64_t i = 0; i < rows; ++i) {
        if (!istNullzeile(*this, i)) {
            bleiben.push_back(i);
        }
    }
    if (static_cast<std::int64_t>(bleiben.size()) == rows) {
        return *this;
    }
    Matrix k(static_cast<std::int64_t>(bleiben.size()), columns);
    for (std::size_t neu = 0; neu < bleiben.size(); ++neu) {
        for (std::int64_t j = 0; j < columns; ++j) {
            k(static_cast<std::int64_t>(neu), j) = (*this)(bleiben[neu], j);
        }
    }
    return k;
}

std::pair<Matrix, std::vector<std::int64_t>> Matrix::killNullspalten() const {
    std::vector<std::int64_t> bleiben;
    std::vector<std::int64_t> weg;
    for (std::int64_t j = 0; j < columns; ++j) {
        if (!istNullspalte(*this, j)) {
            bleiben.push_back(j);
        } else if (j < tableauSpalten) {
            weg.push_back(j);
        }
    }
    if (static_cast<std::int64_t>(bleiben.size()) == columns) {
        return {*this, {}};
    }
    Matrix k(rows, static_cast<std::int64_t>(bleiben.size()));
    for (std::int64_t i = 0; i < rows; ++i) {
        for (std::size_t neu = 0; neu < bleiben.size(); ++neu) {
            k(i, static_cast<std::int64_t>(neu)) = (*this)(i, bleiben[neu]);
        }
    }
    return {k, weg};
}

std::string Matrix::string(int dezimalen) const {
    std::string text;
    for (std::int64_t i = 0; i < rows; ++i) {
        for (std::int64_t j = 0; j < columns; ++j) {
            text += round((*this)(i, j), dezimalen);
            text += " \t";
        }
        text += lf;
    }
    return text;
}

void Matrix::zeileMalZahl(std::int64_t z, double d) {
    if (z > rows - 1) {
        *this = zeilenMarke();
        return;
    }
    for (std::int64_t j = 0; j < columns; ++j) {
        (*this)(z, j) = d * (*this)(z, j);
    }
}

void Matrix::zeilenTausch(std::int64_t i, std::int64_t j) {
    if (i > rows - 1 || j > rows - 1) {
        *this = zeilenMarke();
        return;
    }
    for (std::int64_t k = 0; k < columns; ++k) {
        std::swap((*this)(i, k), (*this)(j, k));
    }
}

void Matrix::elZeilenTransf(double x, std::int64_t quellz, std::int64_t zielz) {
    if (quellz >= rows || zielz >= rows || quellz == zielz) {
        return;
    }
    for (std::int64_t k = 0; k < columns; ++k) {
        (*this)(zielz, k) = (*this)(zielz, k) + x * (*this)(quellz, k);
    }
}

SMatrix Matrix::smatrix() const {
    SMatrix s(rows, columns);
    for (std::size_t k = 0; k < grid.size(); ++k) {
        s.grid[k] = zahlText(grid[k]);
    }
    return s;
}

SMatrix Matrix::gerundet(int dezimalen) const {
    SMatrix s(rows, columns);
    for (std::size_t k = 0; k < grid.size(); ++k) {
        s.grid[k] = round(grid[k], dezimalen);
    }
    return s;
}

Matrix matrix(const SMatrix& s) {
    Matrix m(s.rows, s.columns);
    for (std::size_t k = 0; k < m.grid.size() && k < s.grid.size(); ++k) {
        if (const auto zahl = text2Zahl(s.grid[k])) {
            m.grid[k] = *zahl;
        }
    }
    return m;
}

double fNorm(const SMatrix& s) {
    double summe = 0.0;
    for (const double x : matrix(s).grid) {
        summe += x * x;
    }
    return std::sqrt(summe);
}

Matrix operator*(const Matrix& a, const Matrix& b) {
    if (a.columns != b.rows) {
        Matrix marke(1, 1);
        marke(0, 0) = 666.0;
        return marke;
    }
    Matrix p(a.rows, b.columns);
    for (std::int64_t i = 0; i < a.rows; ++i) {
        for (std::int64_t j = 0; j < b.columns; ++j) {
            double summe = 0.0;
            for (std::int64_t k = 0; k < a.columns; ++k) {
                summe += a(i, k) * b(k, j);
            }
            p(i, j) = summe;
        }
    }
    return p;
}

Matrix operator*(double x, const Matrix& a) {
    Matrix p = a;
    for (double& e : p.grid) {
        e = x * e;
    }
    return p;
}

Matrix operator+(const Matrix& a, const Matrix& b) {
    // Mismatched shapes give the zero matrix of the first operand's rows and the second
    // operand's columns; callers compare the sizes before and report the mismatch themselves.
    Matrix s(a.rows, b.columns);
    if (a.rows == b.rows && a.columns == b.columns) {
        for (std::size_t k = 0; k < s.grid.size(); ++k) {
            s.grid[k] = a.grid[k] + b.grid[k];
        }
    }
    return s;
}

SMatrix operator*(const SMatrix& a, const SMatrix& b) {
    return (matrix(a) * matrix(b)).smatrix();
}

SMatrix operator+(const SMatrix& a, const SMatrix& b) {
    return (matrix(a) + matrix(b)).smatrix();
}

SMatrix operator-(const SMatrix& a, const SMatrix& b) {
    return (matrix(a) + (-1.0) * matrix(b)).smatrix();
}

} // namespace tabulon
