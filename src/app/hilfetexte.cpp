// The texts are kept as adjacent string literals, one line of the text per literal, so that the
// blanks at the start and end of each line stay visible in the source.

#include "app/hilfetexte.h"

namespace tabulon {

const std::string_view allgInfoH =
    "Allgemeine Information zum Programm Tabulon V 1.026\n\n"
    " Thema:\n"
    " Einlesen und Bearbeiten von Matrizen, auf die nach der Zuweisung eines Namens mit der "
    "Taste \"<-\" zugegriffen wird.\n"
    " Die Anzahl der Zeilen und der Spalten ist auf höchstens 8 begrenzt.\n\n"
    " Die meisten Anweisungen sind über das Menü und über Tastaturkürzel erreichbar, zum "
    "Beispiel \"<cmd> L\" (hier Strg+L) für das Laden.\n\n"
    " Um eine Matrix der Liste zu bearbeiten, trägt man ihren Namen in das Feld 'Name' ein.\n"
    " Die gewählte Matrix kann dann mit einer passenden Taste bearbeitet oder mit der Taste "
    "\"->\" in das Eingabe-Tableau kopiert werden, etwa um einzelne Komponenten zu ändern.";

const std::string_view anweisungsH =
    "Hilfethema: Anweisung zur Auswertung eines Matrixterms \n\n"
    " Ein Term bezieht sich nur auf Matrizen, die bereits in der Liste stehen.\n"
    " Matrizen können addiert, multipliziert, subtrahiert und potenziert werden.\n"
    " Der Term wird in das Termfeld eingetragen und mit 'Term-Auswertung' (oder der "
    "Eingabetaste im Termfeld) ausgewertet.\n"
    " Bei korrektem Aufruf erscheint das Ergebnis im Eingabe-Tableau.\n\n"
    " Beispiele:\n"
    " A + B\n"
    " A * B\n"
    " (A - B)^3 * B\n"
    " A^-1 * B";

const std::string_view nMalAusfuehrungHT =
    "Hilfethema: n-malige Auswertung eines Matrixterms \n\n"
    " Es gelten die Erläuterungen des Hilfetextes 'Term-Auswertung'.\n\n"
    " Im Feld 'Name' muss eine existierende Matrix stehen, die im Term auch als Operand "
    "vorkommt.\n"
    " Das Feld 'n =' enthält die Anzahl der Durchläufe, eine positive ganze Zahl.\n\n"
    " Die Matrix 'Name' wird in jedem Durchlauf mit dem Ergebnis des Terms überschrieben, auch "
    "wenn die Option 'Überschreiben' ausgeschaltet ist.";

const std::string_view einauslistenHT =
    "Hilfethema: Matrixbewegungen zwischen Liste und Tableau \n\n"
    " Kopieranweisung: ->\n"
    " Die Matrix aus der Liste, deren Name im Feld <Name> eingetragen ist, wird in das "
    "Eingabe-Tableau kopiert.\n\n"
    " Einlistanweisung: <-\n"
    " Die im Eingabe-Tableau gezeigte Matrix wird unter dem Namen <Name> in die Matrixliste "
    "eingetragen.  ";

// Shown directly before loescheListeHT, so it ends with the empty line that parts the two.
const std::string_view loescheHT =
    "Hilfethema: Löschen einer Matrix aus der Liste\n\n"
    " 'Lösche <Name>' wirkt nur, wenn im Feld 'Name' eine Matrix eingetragen ist.\n"
    " Diese Matrix wird aus der Liste entfernt; ihr Name ist danach wieder verfügbar.\n\n"
    " Warnung: Die Matrix wird ohne Warnung endgültig gelöscht. Zurück bekommt man sie nur, "
    "indem man sie neu erzeugt.\n\n";

const std::string_view loescheListeHT =
    "Hilfethema: Löschen der gesamten Matrixliste\n\n"
    " Diese Anweisung löscht unwiderruflich alle in der Liste über ihre Namen gespeicherten "
    "Matrizen.\n\n"
    " Lediglich die Tableau-Matrix bleibt erhalten. Die Einstellungen der beim Drucken "
    "angezeigten Nachkommastellen und die Wahl der Option 'Überschreiben' werden nicht "
    "verändert, ansonsten ist der Zustand des Programms wie nach einem Neustart. ";

const std::string_view druckeHT =
    "Hilfethema: Ausgabe einer Matrix oder aller MatrixNamen aus der Liste\n\n"
    " 'Zeige Matrix<Name>' wirkt, wie alle Anweisungen mit <Name>, nur dann, wenn im Feld "
    "'Name' der Name einer Matrix der Liste steht.\n"
    " Die Matrix wird gerundet in das große Textfeld, das Nachrichtenfenster, ausgegeben.\n"
    " Die Komponenten werden auf die Anzahl der Nachkommastellen gerundet, die mit dem "
    "Schieberegler links unten gewählt wurde (1 bis 10).\n"
    " Das Runden betrifft nur die Ausgabe; gerechnet wird immer mit der vollen Genauigkeit.\n\n"
    " 'Zeige Liste' gibt die Namen aller Matrizen der Liste mit ihren Größen aus.";

const std::string_view freierMAtrixNameHT =
    "Hilfethema: Zuweisung eines verfügbaren Matrixnamens\n\n"
    " Eine Tableau-Matrix wird in die Liste aufgenommen, indem man einen freien Namen (einen "
    "Buchstaben A ... Z) in das Feld 'Name' einträgt und die Zuweisungstaste '<-' drückt.\n\n"
    " Die Taste 'Matrixnamen zuweisen' lässt das Programm den ersten freien Buchstaben des "
    "Alphabets wählen und speichert die Tableau-Matrix unter diesem Namen.";

const std::string_view elemZeilenUmfHT =
    "Hilfethema: Elementare Zeilenumformungen (Gauss-Verfahren)\n\n"
    " Elementare Zeilenumformungen der Matrix <Name> sind:\n"
    " - das Ersetzen einer Zeile durch ein von Null verschiedenes Vielfaches dieser Zeile,\n"
    " - das Ersetzen einer Zeile durch die Summe aus ihr und einem Vielfachen einer anderen "
    "Zeile.\n\n"
    " Anwendung: Man löst ein lineares Gleichungssystem, indem man das Verfahren auf die "
    "erweiterte Koeffizientenmatrix anwendet. Deren letzte Spalte enthält die Konstanten "
    "rechts vom Gleichheitszeichen.\n\n"
    " Beispiel: Das Gleichungssystem\n"
    "   x + 2y =  4\n"
    "  3x -  y = -2\n"
    " hat die erweiterte Koeffizientenmatrix\n"
    "  1   2   4\n"
    "  3  -1  -2";

const std::string_view transponiereHT =
    "Hilfethema: Transponieren einer Matrix\n\n"
    " Die Taste 'Transponiere ..' kippt die Matrix <Name> und schreibt sie in das "
    "Eingabe-Tableau.\n"
    " Die Komponente an der Stelle (i,j) kommt an die Stelle (j,i): eine Spiegelung an der "
    "Hauptdiagonalen.\n\n"
    " Eine symmetrische Matrix erhält man, indem man eine quadratische Matrix und ihre "
    "Transponierte addiert.";

const std::string_view basisZuKernHT =
    "Hilfethema: Eine Basis zum Kern einer linearen Abbildung \n\n"
    " Die Matrix <Name> beschreibt eine lineare Abbildung von R^s nach R^z (s Spalten, "
    "z Zeilen).\n"
    " Die Urbilder des Nullvektors bilden einen Unterraum des R^s, den Kern der Abbildung.\n\n"
    " 'Basis zum Kern ..' bestimmt eine Basis des Kerns und zeigt sie als die Spalten einer "
    "Matrix mit s Zeilen im Eingabe-Tableau.";

const std::string_view invertiereHT =
    "Hilfethema: Invertieren einer Matrix \n\n"
    " 'Invertiere ..' berechnet die Inverse der Matrix <Name> und schreibt sie in das "
    "Eingabe-Tableau.\n"
    " Eine Matrix ist invertierbar, wenn ihre lineare Abbildung bijektiv ist; dazu muss sie "
    "quadratisch und regulär sein (Determinante ungleich 0).\n\n"
    " Die Inverse B von A beschreibt die Umkehrabbildung. Algebraisch gilt A * B = E, wobei E "
    "die (n,n)-Einheitsmatrix ist.";

const std::string_view orthonormiereHT =
    "Hilfethema: Orthonormieren eines Erzeugendensystems \n\n"
    " Die Spalten der (z,s)-Matrix <Name> werden als Vektoren des R^z aufgefasst; sie erzeugen "
    "einen Unterraum.\n"
    " Das Gram-Schmidt-Verfahren orthogonalisiert und normiert sie der Reihe nach.\n\n"
    " Die Spalten der Ergebnismatrix im Eingabe-Tableau bilden eine Orthonormalbasis des "
    "Bildes der Abbildung.";

const std::string_view charPolynomEigenwerteHT =
    "Hilfethema:  Charakteristisches Polynom und reelle Eigenwerte einer Matrix\n\n"
    " Die Matrix <Name> muss quadratisch sein: n Zeilen und n Spalten, eine Abbildung des R^n "
    "in sich.\n"
    " Gesucht werden nur reelle Eigenwerte.\n\n"
    " r ist ein Eigenwert von A, wenn es einen vom Nullvektor verschiedenen Vektor a gibt mit "
    "A*a = r a.\n"
    " Die Eigenwerte sind die Nullstellen des charakteristischen Polynoms; bei einer "
    "symmetrischen Matrix sind sie alle reell.\n\n"
    " Das charakteristische Polynom in der Variablen x ist det(A - xE).\n"
    " Ist det(A - xE) = 0, so ist A - xE nicht regulär und hat einen Kernvektor a mit "
    "(A - xE)*a = o, also A*a = x*a.";

const std::string_view gramscheDetHT =
    "Hilfethema:  Gramsche Determinante\n\n"
    " Untersucht werden die Spaltenvektoren der Matrix <Name>.\n"
    " Die Gramsche Determinante ist nie negativ; sie verschwindet genau dann, wenn die Vektoren "
    "linear abhängig sind.\n"
    " Für eine quadratische Matrix ist sie das Quadrat ihrer Determinante.\n\n"
    " Für die Spalten a_1 ... a_n ist sie die Determinante der (n,n)-Matrix mit der Komponente "
    "a_i * a_j an der Stelle (i,j).\n\n"
    " Die Frobenius-Norm einer Matrix ist die Wurzel aus der Summe der Quadrate aller "
    "Komponenten.";

const std::string_view matrixRaendernHT =
    "Hilfethema:  Rändern einer Matrix\n\n"
    " Im Gegensatz zu den meisten anderen Anweisungen betrifft dieser Befehl nicht eine zu "
    "benennende Matrix, sondern die aktuelle Matrix im Eingabe-Tablau. \n\n"
    " Beim Rändern wird oben und links jeweils eine Zeile und Spalte hinzugefügt, wobei alle "
    "neuen Komponenten Nullen sind; nur das Element an der Position (0,0) ist eine 1 . ";

const std::string_view zufallsMatrixHT =
    "Hilfethema:  Erzeugen einer Zufallsmatrix\n\n"
    " 'Zufalls (z,s)-Matrix' erzeugt im Eingabe-Tableau eine Zufallsmatrix mit z Zeilen und "
    "s Spalten; z und s stehen in ihren Feldern 'z =' und 's =' (Vorgabe: z=8, s=8).\n"
    " Ihre Komponenten sind ganze Zahlen aus dem Bereich -9...9.\n"
    " Um die Matrix zu behalten, weist man ihr einen Namen zu ('<-').\n\n"
    " Beispiel: eine symmetrische (5,5)-Matrix in sechs Schritten\n"
    " 1. In beide Felder 5 eintragen.\n"
    " 2. 'Zufalls (z,s)-Matrix' drücken.\n"
    " 3. Im Feld 'Name' A eintragen und '<-' drücken.\n"
    " 4. 'Transponiere ..' im Menü wählen.\n"
    " 5. Im Feld 'Name' T eintragen und '<-' drücken.\n"
    " 6. A + T in das Termfeld eintragen und 'Term-Auswertung' drücken.";

const std::string_view RundenHT =
    "Hilfethema:  Runden der Komponenten einer Matrix\n\n"
    " 'Runden' rundet die Tableau-Matrix auf die Anzahl der Nachkommastellen, die links unten "
    "angezeigt wird (einstellbar mit dem Schieberegler).\n\n"
    " Geändert wird nur das Tableau, nicht die im Feld 'Name' genannte Matrix, es sei denn, man "
    "weist die gerundete Matrix bei eingeschalteter Option 'Überschreiben' diesem Namen zu.";

const std::string_view protoAktionenHT =
    "Hilfethema:  Protokoll - Aktionen\n\n"
    " Jede Ausgabe im Nachrichtenfenster wird zu einer fortlaufend nummerierten Protokollseite; "
    "ihre Nummer steht im Feld unter 'Seite'.\n\n"
    " Die Tasten:\n"
    " '^'  (links)  eine Seite zurück\n"
    " 'DEL'  die aktuelle Seite endgültig löschen\n"
    " '^'  (rechts)  eine Seite vor\n"
    " 'Seite'  die Seite zeigen, deren Nummer in das Feld eingetragen wurde\n\n"
    " Zum Speichern des Protokolls siehe 'Speichere Protokoll'.";

const std::string_view EzHT =
    "Hilfethema:  Erzeugen einer Einheitsmatrix gewünschter Größe\n\n"
    " Erzeugt wird eine quadratische Matrix mit Einsen auf der Hauptdiagonalen und Nullen an "
    "allen anderen Stellen.\n"
    " Die Größe z wird vorher in das Zeilenfeld 'z =' eingetragen (Vorgabe: z = 8).\n\n"
    " Beispiel: Steht dort 6, so schreibt die Taste 'E(z)' die (6,6)-Einheitsmatrix in das "
    "Eingabe-Tableau.";

const std::string_view texSpeichernHT =
    "Hilfethema:  Schreiben im TEX-Format als Textdatei in den Dokumente-Ordner\n\n"
    " 'Erzeuge TEX-Format(>Name<)' speichert die Matrix <Name> im Dokumente-Ordner unter dem "
    "Namen 'Matrix_<Name>', so dass sie in einen TEX-Quelltext eingefügt werden kann.\n"
    " Die Anzahl der Nachkommastellen ist die mit dem Schieberegler gewählte.\n\n"
    " 'Erzeuge TEX-Format aler Matrizen' speichert alle Matrizen in alphabetischer Reihenfolge "
    "in einer Datei 'Matrix_Alle'.\n\n"
    " Vorhandene Dateien dieses Namens werden ohne Warnung überschrieben.";

const std::string_view protoSpeichernHT =
    "Hilfethema:  Speichern des Protokolls im Dokumente-Ordner\n\n"
    " Die nummerierten Protokollseiten werden zu einer Textdatei 'Matrix_proto.txt' im "
    "Dokumente-Ordner zusammengefügt.\n"
    " Es gibt höchstens eine solche Datei: 'Speichere Protokoll' überschreibt eine früher "
    "gespeicherte.";

const std::string_view matrixGroesseAendernHT =
    "Hilfethema:  Anhängen/Entfernen einer zusätzlichen/der letzten "
    "Matrixzeile/Matrixspalte\n\n"
    " Die vier Tasten neben dem Tableau wirken auf die Tableau-Matrix:\n"
    " '>'  hängt eine Spalte an\n"
    " 'v'  hängt eine Zeile an\n"
    " '<'  entfernt die letzte Spalte\n"
    " '^'  entfernt die letzte Zeile\n\n"
    " Angehängte Zeilen und Spalten sind leer. Entfernte gehen verloren, wenn die Matrix nicht "
    "vorher gespeichert wurde.\n"
    " Angehängte Zeilen oder Spalten werden beim Speichern nur berücksichtigt, wenn in ihnen "
    "mindestens eine Zahl eingetragen wurde; die übrigen Felder einer solchen Zeile oder "
    "Spalte werden dann als Null gespeichert.";

const std::string_view ladeHT =
    "Hilfethema:  Laden der früher durch 'Speichern' gesicherten Matrizen von der Festplatte\n\n"
    " Die mit der letzten Anweisung 'Speichern' im Dokumente-Ordner gesicherten Matrizen werden "
    "der aktuellen Liste hinzugefügt.\n\n"
    " Matrizen gleichen Namens werden ohne Warnung überschrieben, auch wenn die Option "
    "'Überschreiben' ausgeschaltet ist.";

const std::string_view speichereHT =
    "Hilfethema:  Speichern aller aktell in der Liste befindlichen Matrizen\n\n"
    " Die Matrizen bleiben in der Liste und können im Programm weiter bearbeitet werden. \n\n"
    " Warnung: Durch das Speichern wird eine eventuell früher gespeicherte Datei mit einer "
    "Liste von Matrizen dauerhaft überschrieben.";

} // namespace tabulon
