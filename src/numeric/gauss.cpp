// Gauss-Jordan elimination with the pivot positions fixed on the diagonal, and the kernel read
// off the reduced matrix.

#include "numeric/matrix.h"

#include <algorithm>
#include <cmath>

namespace tabulon {

namespace {

// A single row: divided by its first entry that is not zero, so that it starts with 1.0 like
// every pivot row of the square case. A zero row stays as it is.
Matrix einzeiligReduziert(Matrix m) {
    for (std::int64_t j = 0; j < m.columns; ++j) {
        if (!istNull(m(0, j))) {
            m.zeileMalZahl(0, 1.0 / m(0, j));
            break;
        }
    }
    return m;
}

// A single column with at least two rows: any entry that is not zero can serve as pivot and
// clears the others, so the reduced form is the unit vector e0. A column that is zero by the
// zero test stays as it is.
Matrix einspaltigReduziert(Matrix m) {
    const bool nullspalte =
        std::all_of(m.grid.begin(), m.grid.end(), [](double x) { return istNull(x); });
    if (nullspalte) {
        return m;
    }
    m.loeschen();
    m(0, 0) = 1.0;
    return m;
}

} // namespace

Matrix gaussUmformung(Matrix quelle) {
    Matrix& m = quelle;
    if (m.rows == 0 || m.columns == 0) {
        return m;
    }
    if (m.rows == 1) {
        return einzeiligReduziert(m);
    }
    if (m.columns == 1) {
        return einspaltigReduziert(m);
    }

    const std::int64_t n = std::min(m.rows, m.columns);
    const std::int64_t last = n - 1;
    for (std::int64_t k = 0; k < last; ++k) {
        // One bubble pass from the bottom up brings the largest |m(., k)| of rows k ... last to
        // row k; the strict comparison keeps the upper row of two equal candidates.
        for (std::int64_t s = k; s < last; ++s) {
            const std::int64_t a = last - s + k;
            const std::int64_t b = a - 1;
            if (std::fabs(m(b, k)) < std::fabs(m(a, k))) {
                m.zeilenTausch(a, b);
            }
        }
        if (istNull(m(k, k))) {
            continue; // the pivot stays on the diagonal: column k is left unreduced
        }
        m.zeileMalZahl(k, 1.0 / m(k, k));
        for (std::int64_t i = 0; i <= last; ++i) {
            if (i != k) {
                m.elZeilenTransf(-m(i, k), k, i);
            }
        }
    }
    if (!istNull(m(last, last))) {
        m.zeileMalZahl(last, 1.0 / m(last, last));
        for (std::int64_t i = 0; i < last; ++i) {
            m.elZeilenTransf(-m(i, last), last, i);
        }
    }
    return m;
}

Matrix matrix2KernES(const Matrix& q) {
    const Matrix g = gaussUmformung(q).killNullzeilen();
    const std::int64_t r = g.rows;
    const auto [h, weg] = g.killNullspalten();
    const std::int64_t c = h.columns;

    // The construction reads h as a unit block of size r followed by the free columns. A matrix
    // with more rows than columns can keep more non-zero rows than that (its lower rows take no
    // part in the elimination); every assignment that would fall outside E is then left out.
    Matrix e(c, q.columns - r);
    for (std::int64_t i = 0; i < r; ++i) {
        for (std::int64_t j = 0; j < c - r; ++j) {
            if (e.indexIsValid(i, j) && h.indexIsValid(i, r + j)) {
                e(i, j) = h(i, r + j);
            }
            if (e.indexIsValid(r + j, j)) {
                e(r + j, j) = -1.0;
            }
        }
    }
    if (weg.empty()) {
        return e;
    }
    for (const std::int64_t p : weg) {
        e = e.plusNullzeile(p);
    }
    for (std::size_t k = 0; k < weg.size(); ++k) {
        const std::int64_t spalte = c - r + static_cast<std::int64_t>(k);
        if (e.indexIsValid(weg[k], spalte)) {
            e(weg[k], spalte) = 1.0;
        }
    }
    return e;
}

} // namespace tabulon
