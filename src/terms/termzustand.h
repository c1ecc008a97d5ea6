#pragma once
// What one evaluation of a term shares with the command that started it. The commands set r from
// the scalar field before each evaluation, show fehlerListe in front of their failure line and
// then empty it, and remove the entries named in tempNamen when the evaluation is over.

#include "terms/operanden.h"

#include <set>
#include <string>

namespace tabulon {

struct TermZustand {
    std::string fehlerListe;         // messages of the term language, in the order they arose
    std::set<std::string> tempNamen; // list names that hold intermediate results
    double r = 0.0;                  // the value of the token "r"
    Operandenspeicher operanden;     // the numbers of the list matrices last read as operands
};

TermZustand& termZustand();

} // namespace tabulon
