#pragma once
// The practice of row operations: the learner types each elementary row operation, Tabulon
// applies it exactly and can undo it, give the next Gauss–Jordan step as a hint, check the
// current matrix and compare a result from paper. zeilenparser.h reads the typed operation,
// uebung.h holds the practice as a value, uebungscontroller.h is the practice window as a model
// that a Qt window or the script driver drives. The practice never changes the matrix list.

#include <cstddef>
#include <string>
#include <string_view>

#include "exakt/gaussjordan.h"

namespace tabulon {

// A typed row operation read for a matrix with `zeilen` rows: the operation, or the German
// message that says why the text is none (with the position of a syntax error, counted in
// characters from 1).
struct UmformungLesung {
    bool ok = false;
    Zeilenoperation operation;
    std::string fehler;
};

// Accepted, with or without blanks and `*`, in upper or lower case, rows as Z1 ... Z8 or as
// Roman numerals I ... VIII:
//   Z2 - 3 Z1, Z2 + 1/2 Z3, II - 3 I, Z2 = Z2 - 3 Z1, Z2 ← Z2 − 3·Z1   (adding a multiple)
//   Z1 <-> Z2, Z1 ↔ Z2                                                  (exchange)
//   2 Z3, Z3 * 2, Z3 : 2, 1/2 Z3, -Z1, Z3 = 2 Z3, Z3 ← 1/2·Z3           (scaling)
// Coefficients are exact numbers as the exact commands read entries (1/2, 0.5, 1e-3).
UmformungLesung liesUmformung(std::string_view text, std::size_t zeilen);

} // namespace tabulon
