#include "app/zustand.h"

#include "exakt/befehle.h"
#include "terms/termzustand.h"
#include "textmatrix/liste.h"
#include "window/tableau.h"

namespace tabulon {

void allesZuruecksetzen() {
    listenZustand() = ListenZustand();
    termZustand() = TermZustand();
    tableauZustand() = TableauZustand();
    protokollZustand() = ProtokollZustand();
    exaktZustand() = ExaktZustand();
}

} // namespace tabulon
