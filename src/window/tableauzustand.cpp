#include "window/tableau.h"

namespace tabulon {

// Both are created with their start values on first use; allesZuruecksetzen() assigns them again.
TableauZustand& tableauZustand() {
    static TableauZustand zustand;
    return zustand;
}

ProtokollZustand& protokollZustand() {
    static ProtokollZustand zustand;
    return zustand;
}

} // namespace tabulon
