#include "polynomials/charpoly.h"

#include "numeric/entwicklung.h"
#include "textmatrix/zahltext.h"

#include <algorithm>
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

// Beyond this size the table (2^n polynomials) would outgrow any sensible memory; no text matrix
// of the system comes near it (the tableau has eight rows).
constexpr std::int64_t tabellenGrenze = 16;

} // namespace

Polynom sMatrix2Polynom(const SMatrix& s) {
    const std::int64_t n = s.rows;
    // No caller asks for any of these: no rows has no determinant, too few columns leave the
    // expansion without entries, and more rows would need a table of 2^n polynomials.
    if (n < 1 || s.columns < n || n > tabellenGrenze) {
        return Polynom();
    }
    // Each entry of the square block is read once, and multiplied once by each of the two
    // signs a term can carry, as the recursion writes a term: the sign as a polynomial times the
    // entry, that times the minor. Rows are counted from the bottom.
    std::vector<Polynom> eintraege;
    std::vector<Polynom> mitVorzeichen;
    for (std::int64_t i = n - 1; i >= 0; --i) {
        for (std::int64_t j = 0; j < n; ++j) {
            eintraege.push_back(elString2Polynom(s(i, j)));
            for (const std::int64_t stelle : {0, 1}) {
                const Polynom vorzeichen(Polynom::Koeffizienten{vorz(stelle)});
                mitVorzeichen.push_back(vorzeichen * eintraege.back());
            }
        }
    }
    const auto eintrag = [&](std::int64_t k, int spalte) -> const Polynom& {
        return eintraege[static_cast<std::size_t>(k * n + spalte)];
    };
    const auto glied = [&](std::int64_t k, int spalte, std::int64_t j, const Polynom& minor) {
        return mitVorzeichen[static_cast<std::size_t>(2 * (k * n + spalte) + j)] * minor;
    };
    std::vector<Polynom> tabelle;
    minorenFuellen(tabelle, n, n, eintrag, glied);
    return tabelle[(std::size_t{1} << n) - 1];
}

std::pair<Polynom, std::vector<double>> eigenWerte(const Matrix& a) {
    if (!a.istQuadratisch()) {
        return {Polynom(), {}};
    }
    const Polynom p = sMatrix2Polynom(m2EwSmatrix(a));
    return {p, nullstMenge(p)};
}

} // namespace tabulon
