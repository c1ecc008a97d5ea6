#pragma once
// The numbers of the list matrices "A" ... "Z" as their texts gave them when they were last read
// as operands of a term. The n-fold command evaluates the same term on the same operands in every
// run, and converting their texts to numbers again each time costs about as much as the
// computation itself (the n-fold benchmark in bench/terme.cpp shows it). The conversion depends
// on the texts alone, so equal texts give the remembered numbers to the last bit, and any change
// of an entry, also by another command, shows in the comparison of its texts.

#include "numeric/matrix.h"
#include "textmatrix/smatrix.h"

#include <array>

namespace tabulon {

class Operandenspeicher {
public:
    // matrix(texte) for the list name of one letter `buchstabe`, "A" ... "Z".
    const Matrix& werte(char buchstabe, const SMatrix& texte);

private:
    struct Gelesen {
        SMatrix texte;
        Matrix werte; // matrix(texte)
        bool belegt = false;
    };
    std::array<Gelesen, 26> gelesen;
};

} // namespace tabulon
