#include "numeric/vektor.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstddef>

namespace tabulon {

namespace {

// The columns of a text matrix as vectors, after its empty rows and columns are gone.
std::vector<Vektor> bereinigteSpalten(SMatrix m) {
    m.killLeerzeilen();
    m.killLeerspalten();
    return matrix(m).vektorFeld();
}

} // namespace

Vektor::Vektor(std::int64_t dim)
    : dim(std::max<std::int64_t>(dim, 0)), grid(static_cast<std::size_t>(this->dim), 0.0) {}

double& Vektor::operator[](std::int64_t i) {
    assert(indexIsValid(i) && "Index out of range");
    return grid[static_cast<std::size_t>(i)];
}

double Vektor::operator[](std::int64_t i) const {
    assert(indexIsValid(i) && "Index out of range");
    return grid[static_cast<std::size_t>(i)];
}

double Vektor::norm() const {
    double summe = 0.0;
    for (const double x : grid) {
        summe += x * x;
    }
    return std::sqrt(summe);
}

Vektor Vektor::normiert() const {
    const double n = norm();
    if (n == 0.0) {
        return *this;
    }
    return (1.0 / n) * *this;
}

Vektor& Vektor::operator+=(const Vektor& b) {
    *this = *this + b;
    return *this;
}

Vektor operator*(double x, const Vektor& v) {
    Vektor p = v;
    for (double& e : p.grid) {
        e = x * e;
    }
    return p;
}

Vektor operator+(const Vektor& a, const Vektor& b) {
    Vektor s(a.dim);
    if (a.dim == b.dim) {
        for (std::size_t i = 0; i < s.grid.size(); ++i) {
            s.grid[i] = a.grid[i] + b.grid[i];
        }
    }
    return s;
}

double operator*(const Vektor& a, const Vektor& b) {
    if (a.dim != b.dim) {
        return 0.0;
    }
    double summe = 0.0;
    for (std::size_t i = 0; i < a.grid.size(); ++i) {
        summe += a.grid[i] * b.grid[i];
    }
    return summe;
}

std::vector<Vektor> Matrix::vektorFeld() const {
    std::vector<Vektor> feld;
    for (std::int64_t j = 0; j < columns; ++j) {
        Vektor v(rows);
        for (std::int64_t i = 0; i < rows; ++i) {
            v[i] = (*this)(i, j);
        }
        feld.push_back(v);
    }
    return feld;
}

std::vector<Vektor> schmidt(const std::vector<Vektor>& vsystem) {
    std::vector<Vektor> onb;
    for (const Vektor& v : vsystem) {
        Vektor w = v;
        // Classical Gram-Schmidt: each coefficient is taken against the given vector v, not
        // against the partly reduced w.
        for (const Vektor& e : onb) {
            const double c = e * v;
            w += (-1.0) * (c * e);
        }
        if (!istNull(w.norm())) {
            onb.push_back(w.normiert());
        }
    }
    return onb;
}

Matrix vFeld2Matrix(const std::vector<Vektor>& vfeld) {
    if (vfeld.empty()) {
        return Matrix();
    }
    const auto n = static_cast<std::int64_t>(vfeld.size());
    const std::int64_t d = vfeld[0].dim;
    Matrix m(d, n);
    for (std::int64_t j = 0; j < n; ++j) {
        const Vektor& v = vfeld[static_cast<std::size_t>(j)];
        for (std::int64_t i = 0; i < d && i < v.dim; ++i) {
            m(i, j) = v[i];
        }
    }
    return m;
}

std::optional<SMatrix> matrix2ONB(const SMatrix& m) {
    const std::vector<Vektor> onb = schmidt(bereinigteSpalten(m));
    if (onb.empty()) {
        return std::nullopt;
    }
    return vFeld2Matrix(onb).smatrix();
}

double gramscheDeterminante(const SMatrix& m) {
    const std::vector<Vektor> spalten = bereinigteSpalten(m);
    const auto k = static_cast<std::int64_t>(spalten.size());
    if (k == 0) {
        return 0.0;
    }
    Matrix g(k, k);
    for (std::int64_t i = 0; i < k; ++i) {
        for (std::int64_t j = 0; j < k; ++j) {
            g(i, j) = spalten[static_cast<std::size_t>(i)] * spalten[static_cast<std::size_t>(j)];
        }
    }
    return g.det();
}

} // namespace tabulon
