// Determinant and inverse by cofactor expansion, without elimination. The fixed order of products
// and sums makes the results reproducible to the last bit.
//
// The expansion along the first row meets the same minors again and again: a minor of it is
// always the lowest k rows restricted to some set of k columns, so it is fixed by that set alone.
// Each such determinant is computed once, bottom up, into a table indexed by the column set, with
// exactly the arithmetic of the plain recursion (entry times minor determinant, then times the
// sign; terms added for ascending column, starting from 0.0; a single entry taken as it is). A
// set's smaller minors have smaller indices, so one ascending pass over the indices finds them
// ready. An 8 x 8 determinant then costs about a thousand products instead of 8!.
//
// The cofactors of the inverse leave out one row i. Their minors of k rows use the same rows as
// the whole matrix's as long as row i lies above them (k <= n - 1 - i), so only the larger ones
// are computed again for each i: some 5 500 products for an 8 x 8 inverse instead of 64 * 7!.

#include "numeric/matrix.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <vector>

namespace tabulon {

namespace {

// A table holds 2^rows entries; beyond this size the expansion would not end in any useful time
// anyway, and no matrix of the system comes near it (the tableau has eight rows).
constexpr std::int64_t tabellenGrenze = 20;

// Room for the determinants of all column sets of an n x n matrix: on the stack for the
// tableau's sizes, on the heap beyond.
class Tabelle {
public:
    explicit Tabelle(std::int64_t n) {
        const std::size_t groesse = std::size_t{1} << static_cast<unsigned>(n);
        if (groesse > klein.size()) {
            gross.resize(groesse);
            daten = gross.data();
        }
    }
    Tabelle(const Tabelle&) = delete;
    Tabelle& operator=(const Tabelle&) = delete;

    double* operator*() { return daten; }

private:
    std::array<double, 256> klein;
    std::vector<double> gross;
    double* daten = klein.data();
};

// The column sets of up to eight columns, grouped by size and ascending within a group, each
// with its expansion terms in order: the column and the set without it. A group's sets that lie
// within the first w columns are exactly its first C(w, k) sets, so every width up to eight
// walks the same lists. Built once; the loops below then do nothing but the arithmetic.
struct Mengenplan {
    static constexpr int breite = 8;
    std::array<std::uint8_t, 256> mengen{};
    std::array<std::uint8_t, 1024> spalte{};
    std::array<std::uint8_t, 1024> ohne{};
    std::array<int, breite + 1> mengenAnfang{};
    std::array<int, breite + 1> termAnfang{};
    std::array<std::array<int, breite + 1>, breite + 1> binom{};

    Mengenplan() {
        int m = 0;
        int t = 0;
        for (int k = 1; k <= breite; ++k) {
            mengenAnfang[static_cast<std::size_t>(k)] = m;
            termAnfang[static_cast<std::size_t>(k)] = t;
            for (unsigned menge = 1; menge < 256; ++menge) {
                if (std::popcount(menge) != k) {
                    continue;
                }
                mengen[static_cast<std::size_t>(m++)] = static_cast<std::uint8_t>(menge);
                for (unsigned rest = menge; rest != 0; rest &= rest - 1) {
                    const int c = std::countr_zero(rest);
                    spalte[static_cast<std::size_t>(t)] = static_cast<std::uint8_t>(c);
                    ohne[static_cast<std::size_t>(t)] =
                        static_cast<std::uint8_t>(menge & ~(1U << static_cast<unsigned>(c)));
                    ++t;
                }
            }
        }
        for (int w = 0; w <= breite; ++w) {
            binom[static_cast<std::size_t>(w)][0] = 1;
            for (int k = 1; k <= w; ++k) {
                binom[static_cast<std::size_t>(w)][static_cast<std::size_t>(k)] =
                    binom[static_cast<std::size_t>(w - 1)][static_cast<std::size_t>(k - 1)] +
                    (k <= w - 1
                         ? binom[static_cast<std::size_t>(w - 1)][static_cast<std::size_t>(k)]
                         : 0);
            }
        }
    }
};

const Mengenplan& mengenplan() {
    static const Mengenplan plan;
    return plan;
}

// The minors of k rows on the sets of the first `breite` <= 8 columns, expanded along `reihe`;
// `kleiner` holds the minors of k - 1 rows. Terms alternate in sign from the first column of a
// set on (vorz), which the loop writes as two terms per step.
void schichtFuellen(double* ziel, const double* kleiner, const double* reihe, int k, int breite) {
    const Mengenplan& plan = mengenplan();
    const auto gk = static_cast<std::size_t>(k);
    const int anzahl = plan.binom[static_cast<std::size_t>(breite)][gk];
    const std::uint8_t* menge = plan.mengen.data() + plan.mengenAnfang[gk];
    const std::uint8_t* spalte = plan.spalte.data() + plan.termAnfang[gk];
    const std::uint8_t* ohne = plan.ohne.data() + plan.termAnfang[gk];
    if (k == 1) {
        for (int i = 0; i < anzahl; ++i) {
            ziel[menge[i]] = reihe[spalte[i]];
        }
        return;
    }
    for (int i = 0; i < anzahl; ++i, spalte += k, ohne += k) {
        double summe = 0.0;
        int t = 0;
        for (; t + 1 < k; t += 2) {
            summe += (reihe[spalte[t]] * kleiner[ohne[t]]) * 1.0;
            summe += (reihe[spalte[t + 1]] * kleiner[ohne[t + 1]]) * -1.0;
        }
        if (t < k) {
            summe += (reihe[spalte[t]] * kleiner[ohne[t]]) * 1.0;
        }
        ziel[menge[i]] = summe;
    }
}

// Fills `ziel` with the minors of ab ... bis rows on the column sets of the first `breite`
// columns: the minor of k rows on the set S is expanded along reihen[k], and its minors of k - 1
// rows are read from `ziel` when they are in range and from `darunter` otherwise.
void minorenFuellen(double* ziel, const double* darunter,
                    const std::array<const double*, 33>& reihen, std::int64_t breite, int ab,
                    int bis) {
    if (breite <= Mengenplan::breite) {
        for (int k = ab; k <= bis; ++k) {
            schichtFuellen(ziel, k - 1 >= ab ? ziel : darunter, reihen[static_cast<std::size_t>(k)],
                           k, static_cast<int>(breite));
        }
        return;
    }
    // Wider blocks walk all sets in ascending order, which also meets the smaller ones first.
    const std::uint32_t alle = (std::uint32_t{1} << static_cast<unsigned>(breite)) - 1;
    for (std::uint32_t spalten = 1; spalten <= alle; ++spalten) {
        const int k = std::popcount(spalten);
        if (k < ab || k > bis) {
            continue;
        }
        const double* reihe = reihen[static_cast<std::size_t>(k)];
        if (k == 1) {
            ziel[spalten] = reihe[std::countr_zero(spalten)];
            continue;
        }
        const double* kleiner = k - 1 >= ab ? ziel : darunter;
        double summe = 0.0;
        std::int64_t j = 0;
        for (std::uint32_t rest = spalten; rest != 0; rest &= rest - 1, ++j) {
            const int spalte = std::countr_zero(rest);
            const std::uint32_t ohne = spalten & ~(std::uint32_t{1} << spalte);
            summe += (reihe[spalte] * kleiner[ohne]) * vorz(j);
        }
        ziel[spalten] = summe;
    }
}

// The row each minor size expands along when row `weg` is left out (-1: none): minors of k rows
// are the lowest k remaining rows and expand along the first of them.
std::array<const double*, 33> entwicklungsReihen(const Matrix& m, std::int64_t weg) {
    std::array<const double*, 33> reihen{};
    std::int64_t zeile = m.rows;
    for (std::int64_t k = 1; k <= m.rows - (weg >= 0 ? 1 : 0); ++k) {
        zeile -= zeile - 1 == weg ? 2 : 1;
        reihen[static_cast<std::size_t>(k)] = m.grid.data() + zeile * m.columns;
    }
    return reihen;
}

std::uint32_t ersteSpalten(std::int64_t n) {
    return (std::uint32_t{1} << static_cast<unsigned>(n)) - 1;
}

} // namespace

Matrix adiunkte(const Matrix& quelle, std::int64_t spaltenNr) {
    const std::int64_t n = quelle.rows;
    Matrix a(n - 1, n - 1);
    for (std::int64_t i = 1; i < n; ++i) {
        for (std::int64_t j = 0; j < n; ++j) {
            if (j < spaltenNr) {
                a(i - 1, j) = quelle(i, j);
            } else if (j > spaltenNr) {
                a(i - 1, j - 1) = quelle(i, j);
            }
        }
    }
    return a;
}

double vorz(std::int64_t n) {
    return n % 2 == 1 ? -1.0 : 1.0;
}

double Matrix::det() const {
    // None of these cases is ever asked for: the empty product 1.0 keeps the inverse of a 1 x 1
    // matrix consistent, a matrix taller than wide has no square block to expand (0.0 instead of
    // a read outside the grid), and a matrix too large for the table gets NaN instead of an
    // expansion that would never end.
    if (rows <= 0) {
        return 1.0;
    }
    if (columns < rows) {
        return 0.0;
    }
    if (rows > tabellenGrenze) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    // Only the first `rows` columns take part, as in an expansion by adiunkte().
    Tabelle tabelle(rows);
    const int n = static_cast<int>(rows);
    minorenFuellen(*tabelle, *tabelle, entwicklungsReihen(*this, -1), rows, 1, n);
    return (*tabelle)[ersteSpalten(rows)];
}

bool Matrix::istRegulaer() const {
    return istQuadratisch() && !istNull(det());
}

std::pair<Matrix, double> inversUndDet(const Matrix& m) {
    // The regularity test of istRegulaer(): the table of the whole matrix's minors ends in its
    // determinant, and the cofactors below reuse its smaller minors.
    if (!m.istQuadratisch() || m.rows > tabellenGrenze) {
        return {Matrix(1, 1), m.det()};
    }
    if (m.rows == 0) {
        // The determinant of no rows is the empty product 1.0, so the empty matrix is its own
        // inverse.
        return {Matrix(), 1.0};
    }
    const std::int64_t n = m.rows;
    const int ganzeGroesse = static_cast<int>(n);
    Tabelle ganz(n);
    minorenFuellen(*ganz, *ganz, entwicklungsReihen(m, -1), n, 1, ganzeGroesse);
    const double d = (*ganz)[ersteSpalten(n)];
    if (istNull(d)) {
        return {Matrix(1, 1), d};
    }
    Matrix c(n, n);
    if (n == 1) {
        // The cofactor of the single entry is the determinant of no rows, the empty product.
        c(0, 0) = (1.0 * 1.0) / d;
        return {c, d};
    }
    // Cofactor (i, j) is the determinant of subMatrix(i, j): the rows other than i on the
    // columns other than j, expanded along its first row like any determinant. Leaving out row 0
    // keeps the lowest n - 1 rows, whose minors the whole matrix's table already holds; leaving
    // out row i changes only the minors of more than n - 1 - i rows.
    Tabelle ohne(n);
    for (std::int64_t i = 0; i < n; ++i) {
        const int neuAb = ganzeGroesse - static_cast<int>(i);
        const double* minoren = *ganz;
        if (neuAb <= ganzeGroesse - 1) {
            minorenFuellen(*ohne, *ganz, entwicklungsReihen(m, i), n, neuAb, ganzeGroesse - 1);
            minoren = *ohne;
        }
        for (std::int64_t j = 0; j < n; ++j) {
            const double zeichen = 1.0 - 2.0 * static_cast<double>((i + j) % 2);
            const std::uint32_t spalten = ersteSpalten(n) & ~(std::uint32_t{1} << j);
            // Written transposed right away: the inverse is the transposed cofactor matrix.
            c(j, i) = (zeichen * minoren[spalten]) / d;
        }
    }
    return {c, d};
}

Matrix Matrix::invers() const {
    return inversUndDet(*this).first;
}

} // namespace tabulon
