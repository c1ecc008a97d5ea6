#include "polynomials/charpoly.h"

#include "textmatrix/zahltext.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <memory>
#include <string_view>

namespace tabulon {

SMatrix m2EwSmatrix(const Matrix& a) {
    SMatrix s(a.rows, a.columns);
    for (std::int64_t i = 0; i < a.rows; ++i) {
        for (std::int64_t j = 0; j < a.columns; ++j) {
            s(i, j) = zahlText(a(i, j));
        }
    }
    for (std::int64_t k = 0; k < std::min(a.rows, a.columns); ++k) {
        s(k, k) = "x" + s(k, k);
    }
    return s;
}

Polynom elString2Polynom(const std::string& quelle) {
    // Every "x" is removed. m2EwSmatrix puts it in front, so the rest is then read in place.
    std::string_view rest = quelle;
    bool mitX = false;
    if (!rest.empty() && rest.front() == 'x') {
        mitX = true;
        rest.remove_prefix(1);
    }
    std::string ohneX;
    if (rest.find('x') != std::string_view::npos) {
        mitX = true;
        for (const char c : rest) {
            if (c != 'x') {
                ohneX.push_back(c);
            }
        }
        rest = ohneX;
    }
    // The texts of m2EwSmatrix always convert; anything else counts as 0, as everywhere in a
    // computation.
    Polynom::Koeffizienten k{};
    k[0] = text2Zahl(rest).value_or(0.0);
    if (mitX) {
        k[1] = -1.0;
    }
    return Polynom(k);
}

SMatrix adiunkteS(const SMatrix& quelle, std::int64_t spaltenNr) {
    const std::int64_t n = quelle.rows;
    SMatrix m(n - 1, n - 1);
    for (std::int64_t i = 1; i < n; ++i) {
        for (std::int64_t j = 0; j < n; ++j) {
            if (j < spaltenNr) {
                m(i - 1, j) = quelle(i, j);
            } else if (j > spaltenNr) {
                m(i - 1, j - 1) = quelle(i, j);
            }
        }
    }
    return m;
}

namespace {

using Koeffizienten = Polynom::Koeffizienten;

// Beyond this size the table (2^n polynomials) would outgrow any sensible memory; no text matrix
// of the system comes near it (the tableau has eight rows).
constexpr std::int64_t tabellenGrenze = 16;
constexpr std::int64_t kleineTabelle = 8;

// A polynomial of the table. Unlike Polynom it is left uninitialised, so the table costs nothing
// before it is filled.
struct Eintrag {
    Koeffizienten k;
    std::int64_t grad;
};

// An entry of the matrix times the sign of its term, (s * e) of the expansion: degree at most 1.
struct Faktor {
    double k0;
    double k1;
    std::int64_t grad;
};

// The highest power that survives korr, as Polynom's constructor decides it, when every
// coefficient above `oben` is known to be zero.
std::int64_t gradVon(const Koeffizienten& k, std::int64_t oben = maxGrad) {
    for (std::int64_t i = oben; i >= 0; --i) {
        if (!(std::fabs(k[static_cast<std::size_t>(i)]) < 1e-15)) {
            return i;
        }
    }
    return -1;
}

// d + f * m, with the product formed as the polynomial product forms it and added as the sum
// adds it, coefficient by coefficient. The operands' degrees are their own (rebuilding them first,
// as the product does, decides the same degrees again); a degree of -1, or degrees adding up to
// more than 8, make the product zero; entries of m above its degree take no part.
//
// The product adds each of its terms onto the +0.0 it starts from, and the sum adds the
// product onto d. Neither +0.0 is written out here, and a zero product is not added at all,
// because neither changes a bit of the result: d starts as +0.0 and is only ever a sum, so it is
// never -0.0, and d + y then equals d + z whenever y and z differ at most in the sign of a zero
// (x + 0.0 and x only differ there, for every x but -0.0 itself, and for a NaN not at all).
// Returns the highest place the product can reach, -1 when nothing was added.
std::int64_t addiereProdukt(Koeffizienten& d, const Faktor& f, const Eintrag& m) {
    const std::int64_t gm = m.grad;
    if (f.grad < 0 || gm < 0 || f.grad + gm > maxGrad) {
        return -1;
    }
    const auto g = static_cast<std::size_t>(gm);
    if (f.grad == 0) {
        for (std::size_t j = 0; j <= g; ++j) {
            d[j] = d[j] + f.k0 * m.k[j];
        }
        return gm;
    }
    Koeffizienten t;
    t[0] = f.k0 * m.k[0];
    for (std::size_t j = 1; j <= g; ++j) {
        t[j] = f.k1 * m.k[j - 1] + f.k0 * m.k[j];
    }
    t[g + 1] = f.k1 * m.k[g];
    for (std::size_t j = 0; j <= g + 1; ++j) {
        d[j] = d[j] + t[j];
    }
    return gm + 1;
}

// The expansion of an n x n eigen text matrix with one polynomial per column set. A minor that
// the expansion along row 0 meets is always the lowest k rows on some k columns (ascending), so
// it is fixed by its column set; its polynomial is formed here once, with exactly the sums and
// products, in exactly the order, that the plain recursion spends on it every time it meets it.
// Sets come in ascending order as numbers, so every subset is ready before the sets above it.
class Entwicklung {
public:
    // The storage holds 2^n table polynomials, 2 n^2 factors and 2^n set sizes.
    Entwicklung(const SMatrix& s, std::int64_t n, Eintrag* tabelle, Faktor* faktoren,
                std::uint8_t* groessen)
        : n_(n), tabelle_(tabelle), faktor_{faktoren, faktoren + n * n}, groesse_(groessen) {
        // Each entry is parsed once and multiplied once by each of the two signs a term of the
        // expansion can carry; the last row also stands alone, as the minors of size 1.
        for (std::int64_t i = 0; i < n; ++i) {
            for (std::int64_t j = 0; j < n; ++j) {
                const Polynom e = elString2Polynom(s(i, j));
                for (std::size_t v = 0; v < 2; ++v) {
                    Koeffizienten t{};
                    const double vorzeichen = vorz(static_cast<std::int64_t>(v));
                    for (std::int64_t g = 0; g <= e.grad(); ++g) {
                        t[static_cast<std::size_t>(g)] = vorzeichen * e.koeff(g) + 0.0;
                    }
                    faktor_[v][i * n + j] = {t[0], t[1], gradVon(t, 1)};
                }
                if (i == n - 1) {
                    tabelle_[std::size_t{1} << j] = {e.koeff(), e.grad()};
                }
            }
        }
    }

    Polynom determinante() {
        const std::uint32_t alle = (std::uint32_t{1} << static_cast<unsigned>(n_)) - 1;
        groesse_[0] = 0;
        for (std::uint32_t spalten = 1; spalten <= alle; ++spalten) {
            groesse_[spalten] = static_cast<std::uint8_t>(groesse_[spalten & (spalten - 1)] + 1);
            if (groesse_[spalten] > 1) {
                minor(spalten, groesse_[spalten]);
            }
        }
        return Polynom(tabelle_[alle].k);
    }

private:
    void minor(std::uint32_t spalten, std::int64_t k) {
        const std::int64_t zeile = n_ - k;
        Koeffizienten d{};
        std::int64_t oben = -1; // above this place d still holds the +0.0 it started with
        std::size_t j = 0;
        for (std::uint32_t rest = spalten; rest != 0; rest &= rest - 1, ++j) {
            const int spalte = std::countr_zero(rest);
            const std::uint32_t ohne = spalten & ~(std::uint32_t{1} << spalte);
            // The degrees of the partial sums are never looked at; only the full sum's is decided.
            oben = std::max(oben,
                            addiereProdukt(d, faktor_[j % 2][zeile * n_ + spalte], tabelle_[ohne]));
        }
        tabelle_[spalten] = {d, gradVon(d, oben)};
    }

    std::int64_t n_;
    Eintrag* tabelle_;
    std::array<Faktor*, 2> faktor_;
    std::uint8_t* groesse_;
};

template <std::size_t N> struct Speicher {
    std::array<Eintrag, std::size_t{1} << N> tabelle;
    std::array<Faktor, 2 * N * N> faktoren;
    std::array<std::uint8_t, std::size_t{1} << N> groessen;
};

} // namespace

Polynom sMatrix2Polynom(const SMatrix& s) {
    const std::int64_t n = s.rows;
    // No caller asks for any of these: no rows has no determinant, too few columns leave the
    // expansion without entries, and more rows would need a table of 2^n polynomials.
    if (n < 1 || s.columns < n || n > tabellenGrenze) {
        return Polynom();
    }
    if (n <= kleineTabelle) {
        Speicher<kleineTabelle> speicher;
        return Entwicklung(s, n, speicher.tabelle.data(), speicher.faktoren.data(),
                           speicher.groessen.data())
            .determinante();
    }
    const auto speicher = std::make_unique_for_overwrite<Speicher<tabellenGrenze>>();
    return Entwicklung(s, n, speicher->tabelle.data(), speicher->faktoren.data(),
                       speicher->groessen.data())
        .determinante();
}

std::pair<Polynom, std::vector<double>> eigenWerte(const Matrix& a) {
    if (!a.istQuadratisch()) {
        return {Polynom(), {}};
    }
    const Polynom p = sMatrix2Polynom(m2EwSmatrix(a));
    return {p, nullstMenge(p)};
}

} // namespace tabulon
