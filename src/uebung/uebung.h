#pragma once
// The practice as a value: the start matrix, the matrix after every step the learner took, and
// the questions the practice answers about a matrix (the next Gauss–Jordan step, the echelon
// forms and the rank, row equivalence). The hints come from the very elimination exaktGauss
// shows, so that following them alone retraces its page step by step.

#include <cstddef>
#include <string>
#include <vector>

#include "exakt/gaussjordan.h"
#include "exakt/seite.h"

namespace tabulon {

struct Uebung {
    std::string name; // the matrix of the list the practice started from
    BMatrix start;
    std::vector<Zeilenoperation> schritte;
    std::vector<BMatrix> verlauf; // the matrix after each step, so undo needs no inverse

    Uebung() = default;
    Uebung(std::string name, BMatrix start);

    const BMatrix& aktuell() const { return verlauf.empty() ? start : verlauf.back(); }
    void umformen(const Zeilenoperation& op);
    bool rueckgaengig(); // false at the start: there is no step to undo

    bool operator==(const Uebung&) const = default;
};

// The next step of Gauss–Jordan (pivot: the first non-zero entry at or below the current row)
// from m, and why it is taken; `fertig` when m is already in reduced row echelon form.
struct Tipp {
    bool fertig = false;
    Zeilenoperation operation;
    std::string grund;
};
Tipp naechsterSchritt(const BMatrix& m);

struct Stufenform {
    bool zeilenstufenform = false;
    bool reduziert = false;
    std::size_t rang = 0;
};
Stufenform pruefe(const BMatrix& m);
std::string pruefText(const Stufenform& s);

// Whether b is row-equivalent to a (same size, same reduced row echelon form) and whether it is
// that reduced form itself.
struct Vergleich {
    bool aequivalent = false;
    bool reduzierteForm = false;
};
Vergleich vergleiche(const BMatrix& a, const BMatrix& b);

// The whole exercise as a page: the start, each step with its operation and the matrix after
// it, and the end with what it has reached.
Seite uebungsSeite(const Uebung& u);

// A matrix as the aligned block of the pages (two blanks indent, columns right-aligned).
std::string matrixText(const BMatrix& m);

} // namespace tabulon
