#include "terms/termzustand.h"

namespace tabulon {

// Created with its start values on first use; allesZuruecksetzen() assigns them again.
TermZustand& termZustand() {
    static TermZustand zustand;
    return zustand;
}

} // namespace tabulon
