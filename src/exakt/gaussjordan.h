#pragma once
// Gauss–Jordan elimination as on paper, with every elementary row operation recorded so that a
// page can show it and a test can replay it. Pivot rule: in each column the first non-zero entry
// at or below the current row; that row is swapped up, scaled to a leading 1, and the column is
// cleared above and below it.

#include <cstddef>
#include <vector>

#include "exakt/bruch.h"
#include "exakt/seite.h"

namespace tabulon {

// Rows are counted from 0 here and shown from 1 ("Z1").
struct Zeilenoperation {
    enum class Art { tausch, skalieren, addieren };
    Art art = Art::tausch;
    std::size_t ziel = 0;
    std::size_t quelle = 0; // tausch: the other row; addieren: the row added; skalieren: unused
    Bruch faktor;           // skalieren: Z(ziel) ← faktor·Z(ziel); addieren: + faktor·Z(quelle)

    // "Z1 ↔ Z2", "Z2 ← 1/7·Z2", "Z2 ← Z2 − 3·Z1", "Z3 ← Z3 + Z1".
    Zeile text() const;
    bool operator==(const Zeilenoperation&) const = default;
};

void anwenden(const Zeilenoperation& op, BMatrix& m);

// The work on one column: the pivot row it found (if any) and the operations, then the matrix.
struct Spaltenschritt {
    std::size_t spalte = 0;
    bool hatPivot = false;
    std::size_t zeile = 0;    // the current row, where the pivot ends up
    std::size_t gefunden = 0; // the row the pivot was found in, before any exchange
    Bruch pivot;              // the pivot before scaling
    std::vector<Zeilenoperation> operationen;
    BMatrix danach;
};

struct Umformung {
    BMatrix reduziert;
    std::vector<std::size_t> pivotspalten;
    std::vector<Spaltenschritt> schritte;

    std::size_t rang() const { return pivotspalten.size(); }
    std::vector<Zeilenoperation> alleOperationen() const;
};

// Eliminates in the first `spalten` columns of a (all columns when `spalten` exceeds them); the
// columns behind take part in every row operation, as the right-hand side of a system or the
// unit matrix beside a matrix to invert do.
Umformung gaussJordan(const BMatrix& a, std::size_t spalten);

// Writes the steps on the page: the start matrix, then per column its pivot, its operations and
// the matrix after them. `balken`: the columns shown behind the bar.
void schritteZeigen(Seite& seite, const BMatrix& start, const Umformung& u, std::size_t balken);

// A basis of the solutions of R·x = 0 for the first `spalten` columns of a reduced matrix R:
// one vector per free column f, with x_f = 1, the other free variables 0 and each pivot
// variable read off its row.
std::vector<BVektor> kernbasis(const Umformung& u, std::size_t spalten);

// Pivot columns as a text: "1, 3"; "keine" when there is none.
std::string spaltenListe(const std::vector<std::size_t>& spalten);

// A linear combination c1·n1 + c2·n2 + ... + konstante in classroom form: "x1 + 2·x2",
// "2 − 3·t", "0". Terms with coefficient 0 are left out; a coefficient ±1 is not written.
Zeile linearText(const BVektor& koeffizienten, const std::vector<std::string>& namen,
                 const Bruch& konstante = 0, bool konstanteVorne = false);

} // namespace tabulon
