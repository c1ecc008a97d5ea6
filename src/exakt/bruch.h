#pragma once
// The exact layer: every entry of a text matrix read as a fraction, as the learner typed it,
// and computed on with GMP's rationals, so that 1/3 stays 1/3 and every step can be shown.
// bruch.h holds the numbers and the fraction matrix, seite.h the page that explains a command,
// gaussjordan.h the recorded elimination, befehle.h the commands of the menu "Exakt".
// Nothing here uses Qt or the floating-point matrices; the window reaches it only through
// befehle.h.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <gmpxx.h>

#include "textmatrix/smatrix.h"

namespace tabulon {

using Bruch = mpq_class;
using BVektor = std::vector<Bruch>;

// An entry read exactly: integers, decimals with a point and an optional exponent, and
// quotients p/q of two such numbers; "" and blank entries are 0. Leading white space is
// allowed as in the classic number rule. Anything else gives nothing (no exception).
std::optional<Bruch> liesBruch(std::string_view text);

// Reduced, sign in front, integers without denominator: "-5/3", "2", "0".
std::string bruchText(const Bruch& b);

// The double nearest to b (ties to even), so that the tableau shows the same standard number
// text a classic command would show for the value.
double naechsterDouble(const Bruch& b);

// A matrix of fractions, row-major.
struct BMatrix {
    std::size_t rows = 0;
    std::size_t columns = 0;
    std::vector<Bruch> eintraege;

    BMatrix() = default;
    BMatrix(std::size_t rows, std::size_t columns); // all entries 0

    static BMatrix einheit(std::size_t n);
    // The columns of the given vectors side by side; all vectors have `rows` entries.
    static BMatrix ausSpalten(std::size_t rows, const std::vector<BVektor>& spalten);

    Bruch& operator()(std::size_t r, std::size_t c) { return eintraege[r * columns + c]; }
    const Bruch& operator()(std::size_t r, std::size_t c) const {
        return eintraege[r * columns + c];
    }

    BVektor spalte(std::size_t c) const;
    BMatrix linksTeil(std::size_t anzahl) const;  // the first `anzahl` columns
    BMatrix rechtsTeil(std::size_t anzahl) const; // the last `anzahl` columns
    BMatrix nebeneinander(const BMatrix& rechts) const;
    bool istNull() const;

    bool operator==(const BMatrix&) const = default;
};

BMatrix operator*(const BMatrix& a, const BMatrix& b);
BVektor operator*(const BMatrix& a, const BVektor& v);
BMatrix operator-(const BMatrix& a, const BMatrix& b);
BMatrix operator*(const Bruch& s, const BMatrix& a);
BVektor operator*(const Bruch& s, const BVektor& v);

// A text matrix read exactly, or the note that names the first entry that is no number.
struct BLesung {
    bool ok = false;
    BMatrix matrix;
    std::string notiz;
};
BLesung liesBMatrix(const std::string& name, const SMatrix& s);

// The fractions as standard number texts of the classic commands ("0.5", "2.0").
SMatrix tableauText(const BMatrix& m);

} // namespace tabulon
