#pragma once
// The numbers of the list matrices "A" ... "Z" as their texts gave them when they were last read
// as operands of a term, and the text storage of removed temporaries. The n-fold command
// evaluates the same term on the same operands in every run, and converting their texts to
// numbers again each time costs about as much as the computation itself (the n-fold benchmark in
// bench/terme.cpp shows it). The conversion depends on the texts alone, so equal texts give the
// remembered numbers to the last bit, and any change of an entry, also by another command, shows
// in the comparison of its texts.
//
// Each run also stores its intermediate values as texts and removes them again. Most number texts
// are longer than a string holds without the heap, so writing them into the storage of the texts
// removed before saves an allocation and a release per entry: about an eighth of a run of
// "A^-1*B" on 8 x 8 (the instruction counts of the n-fold benchmark). Reused storage holds no
// trace of its old texts, as every entry is assigned anew.

#include "numeric/matrix.h"
#include "textmatrix/smatrix.h"

#include <array>
#include <vector>

namespace tabulon {

class Operandenspeicher {
public:
    // matrix(texte) for the list name of one letter `buchstabe`, "A" ... "Z".
    const Matrix& werte(char buchstabe, const SMatrix& texte);

    // m.smatrix(), written into the storage of texts handed back before when there is any.
    SMatrix texteVon(const Matrix& m);
    // Keeps the storage of a removed temporary for texteVon. Every evaluation takes back as many
    // as it hands in, so no more are kept than one evaluation had temporaries, at most 26.
    void zuruecklegen(SMatrix texte);

private:
    struct Gelesen {
        SMatrix texte;
        Matrix werte; // matrix(texte)
        bool belegt = false;
    };
    std::array<Gelesen, 26> gelesen;
    std::vector<SMatrix> frei;
};

} // namespace tabulon
