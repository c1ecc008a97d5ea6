// One line of the text per literal, as in the help window's other texts, so that the blanks at
// the start and end of each line stay visible in the source.

#include "exakt/hilfe.h"

namespace tabulon {

const std::string_view exaktGaussHT =
    "Hilfethema: Exakt - Gauß-Jordan-Verfahren Schritt für Schritt\n\n"
    " 'Exakt: Gauß-Jordan' formt die Matrix <Name> mit Brüchen statt mit Dezimalzahlen um: "
    "aus 1/3 wird nie 0.333333333333333.\n"
    " Die Einträge dürfen ganze Zahlen (7), Dezimalzahlen mit Punkt (0.25, 1e-3) oder Brüche "
    "(1/2, -3/4) sein; ein leerer Eintrag zählt als 0.\n\n"
    " Jede elementare Zeilenumformung wird genannt:\n"
    "   Z1 ↔ Z2        tauscht die Zeilen 1 und 2,\n"
    "   Z2 ← 1/7·Z2    multipliziert Zeile 2 mit 1/7,\n"
    "   Z2 ← Z2 − 3·Z1 zieht das Dreifache von Zeile 1 von Zeile 2 ab.\n"
    " Nach jeder Spalte wird die Matrix gezeigt. Als Pivot dient in jeder Spalte der erste "
    "Eintrag ungleich 0 ab der aktuellen Zeile, wie auf dem Papier.\n\n"
    " Am Ende stehen die reduzierte Zeilenstufenform, der Rang und die Pivotspalten. Die "
    "reduzierte Form kommt in das Eingabe-Tableau.";

const std::string_view exaktLGSHT =
    "Hilfethema: Exakt - Lineares Gleichungssystem lösen\n\n"
    " Die Matrix <Name> ist die erweiterte Koeffizientenmatrix: ihre letzte Spalte enthält "
    "die rechten Seiten.\n"
    " Beispiel: x + 2y = 4 und 3x - y = -2 ergeben die Matrix\n"
    "  1   2   4\n"
    "  3  -1  -2\n\n"
    " Nach den Umformungen wird die Lösungsmenge angegeben:\n"
    " - eine eindeutige Lösung, etwa x1 = 0, x2 = 2,\n"
    " - unendlich viele Lösungen mit frei wählbaren Parametern t (oder t1, t2, ...),\n"
    " - keine Lösung, wenn eine Zeile 0 = c mit c ungleich 0 lautet; diese Zeile wird "
    "genannt.\n\n"
    " Das Eingabe-Tableau erhält als erste Spalte eine spezielle Lösung, dahinter eine Basis "
    "der Lösungen des homogenen Systems. Ohne Lösung bleibt es unverändert.";

const std::string_view exaktKernHT =
    "Hilfethema: Exakt - Kern und Bild\n\n"
    " Aus der reduzierten Zeilenstufenform von <Name> werden eine Basis des Kerns und eine "
    "Basis des Bildes bestimmt.\n"
    " Jede Spalte ohne Pivot gehört zu einer freien Variablen; setzt man sie 1 und die "
    "anderen freien Variablen 0, ergibt sich ein Basisvektor des Kerns.\n"
    " Für jeden Basisvektor v wird <Name>·v = 0 nachgerechnet.\n"
    " Die Pivotspalten der ursprünglichen Matrix bilden eine Basis des Bildes.\n\n"
    " Es gilt Rang + Defekt = Anzahl der Spalten.\n"
    " Die Kernbasis kommt spaltenweise in das Eingabe-Tableau; enthält der Kern nur den "
    "Nullvektor, bleibt das Tableau unverändert.";

const std::string_view exaktInverseHT =
    "Hilfethema: Exakt - Inverse Matrix\n\n"
    " Neben die quadratische Matrix <Name> wird die Einheitsmatrix E geschrieben: [A | E].\n"
    " Die Zeilenumformungen machen links daraus E; rechts steht dann die Inverse: [E | A⁻¹].\n\n"
    " Die Inverse von ((1, 2), (4, 5)) ist zum Beispiel ((-5/3, 2/3), (4/3, -1/3)).\n"
    " Ist die Matrix nicht quadratisch oder ihr Rang kleiner als die Zeilenzahl, gibt es "
    "keine Inverse; die Notiz nennt dann den Rang.";

const std::string_view exaktDeterminanteHT =
    "Hilfethema: Exakt - Determinante\n\n"
    " Die quadratische Matrix <Name> wird in eine obere Dreiecksmatrix umgeformt.\n"
    " Zi ← Zi − c·Zk ändert die Determinante nicht; jeder Zeilentausch ändert ihr "
    "Vorzeichen.\n"
    " Die Determinante ist dann das Produkt der Diagonalelemente, mit dem Vorzeichen der "
    "Zeilentausche.\n\n"
    " Das Ergebnis ist ein exakter Bruch und steht in der Notiz; das Eingabe-Tableau bleibt "
    "unverändert.";

const std::string_view exaktEigenHT =
    "Hilfethema: Exakt - Eigenwerte und Eigenvektoren\n\n"
    " Für die quadratische Matrix <Name> wird das charakteristische Polynom det(A − x·E) "
    "mit exakten Koeffizienten berechnet und über den rationalen Zahlen zerlegt.\n\n"
    " Die Eigenwerte erscheinen exakt: rationale als Bruch, die Nullstellen quadratischer "
    "Faktoren als p ± q·√d, andere reelle als Dezimalzahl, deren Ziffern alle sicher sind. "
    "Nicht reelle Eigenwerte werden gezählt.\n"
    " Zu jedem reellen Eigenwert stehen die algebraische und die geometrische "
    "Vielfachheit, zu jedem rationalen Eigenwert eine Basis des Eigenraums mit der Probe "
    "A·v = λ·v.\n\n"
    " A ist über den reellen Zahlen diagonalisierbar, wenn alle Eigenwerte reell sind und "
    "bei jedem beide Vielfachheiten übereinstimmen.\n"
    " Die Eigenvektoren der rationalen Eigenwerte kommen spaltenweise in das "
    "Eingabe-Tableau.";

const std::string_view exaktTexAusgabeHT =
    "Hilfethema: Exakt - TeX-Ausgabe\n\n"
    " Die letzte exakte Seite der Matrix <Name> wird als TeX-Dokument gespeichert: Brüche "
    "als \\frac, die erweiterte Matrix mit ihrem Trennstrich.\n"
    " Die Datei Matrix_<Name>_exakt.txt liegt im Dokument-Ordner und lässt sich mit "
    "pdflatex übersetzen.\n\n"
    " Vorher muss für <Name> ein Befehl des Menüs 'Exakt' ausgeführt worden sein.";

} // namespace tabulon
