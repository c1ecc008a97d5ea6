#include "textmatrix/liste.h"

namespace tabulon {

ListenZustand::ListenZustand() : smNamen(alphabetGross()) {}

// Created with its start values on first use; allesZuruecksetzen() assigns them again.
ListenZustand& listenZustand() {
    static ListenZustand zustand;
    return zustand;
}

} // namespace tabulon
