#include "uebung/hilfe.h"

namespace tabulon {

const std::string_view uebungHT =
    "Hilfethema: Zeilenumformungen üben\n\n"
    " Menü 'Exakt' -> 'Zeilenumformungen üben ...' öffnet eine Übung mit der Matrix, deren "
    "Name im Feld 'Name' steht. Die Matrix der Liste bleibt dabei unverändert; gerechnet wird "
    "exakt mit Brüchen.\n\n"
    " Eine Zeilenumformung wird in das Feld 'Umformung' geschrieben und mit 'Umformen' oder der "
    "Eingabetaste ausgeführt. Zeilen heißen Z1 ... Z8 oder I ... VIII, Leerzeichen und '*' "
    "dürfen fehlen:\n"
    "   Z2 - 3 Z1     II - 3 I     Z2 = Z2 - 3 Z1     Z2 + 1/2 Z3\n"
    "   Z1 <-> Z2     Z1 ↔ Z2\n"
    "   2 Z3     Z3 * 2     Z3 : 2     1/2 Z3     -Z1\n\n"
    " Eine Eingabe, die keine elementare Zeilenumformung ist (etwa eine Multiplikation mit 0 "
    "oder das Addieren einer Zeile zu sich selbst), wird mit einer Begründung abgelehnt; die "
    "Matrix bleibt, wie sie war.\n\n"
    " 'Rückgängig' nimmt den letzten Schritt zurück. 'Tipp' schreibt den nächsten Schritt des "
    "Gauß-Jordan-Verfahrens in das Feld und sagt, warum; erst 'Umformen' führt ihn aus. "
    "'Prüfen' sagt, ob die Matrix in Zeilenstufenform oder in reduzierter Zeilenstufenform ist, "
    "und nennt ihren Rang.\n\n"
    " Ein Ergebnis von Papier prüft man, indem man es unter einem Namen in die Liste einträgt, "
    "den Namen in das Feld 'Vergleich' schreibt und 'Vergleichen' drückt: Die Übung sagt, ob es "
    "zur Startmatrix zeilenäquivalent und ob es ihre reduzierte Zeilenstufenform ist.\n\n"
    " 'Ins Tableau' schreibt die aktuelle Matrix in das Tableau des Hauptfensters, 'TeX' die "
    "ganze Übung als Datei Matrix_<Name>_uebung.txt in den Dokumente-Ordner.";

} // namespace tabulon
