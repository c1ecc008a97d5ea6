#pragma once
// The term language: a matrix expression such as "A^2-A" or "(A-B)^3*r*B" typed into the term
// field, evaluated against the matrix list.
//
// A term is a list of one-character tokens (string2ZeichenFeld). Before any matrix is touched,
// the list is checked against a successor table (formelKorrekt) and for balanced brackets.
// Evaluation builds no tree: the innermost, rightmost bracket core is evaluated first and its
// result name put in its place, until no bracket is left; a bracket-free term is reduced by four
// stages in a fixed order (powers, products, minus signs, sums), each step taken at the right
// end of the term. Every intermediate value is stored as an ordinary entry of the matrix list
// under the next free letter and its name recorded in tempNamen, so every operation works on
// names only; the command that started the evaluation removes those entries again. A failed
// evaluation yields the name "Fehler", which is never a list name, so it also makes every
// enclosing evaluation fail.
//
// termzustand.h/.cpp (state), operanden.h/.cpp (the operand numbers), tokenizer.cpp (tokens),
// syntax.cpp (successor table and checks), auswertung.cpp (evaluation), potenz.cpp (hoch),
// zeichen.h/.cpp (UTF-8 characters and upper-casing).

#include "numeric/matrix.h"
#include "terms/termzustand.h"
#include "textmatrix/smatrix.h"

#include <array>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tabulon {

using Zeichenfeld = std::vector<std::string>;

// The fixed token sets.
const std::set<std::string>& termAlphabet(); // the 42 tokens of the language
const std::set<std::string>& mNamen();       // "r", "A" ... "Z", "(": what a term may begin with
const std::set<std::string>& nieRechts();    // "(", "*", "m", "^", "r", "+": never at the end

// The checks and the evaluator look tokens up by their number in the alphabet instead of in the
// sets above: 0 ... 25 for "A" ... "Z", then "r", "(", ")", "+", "m", "*", "^" and "1" ... "9"
// (26 ... 41). Any other text has no number (-1).
inline constexpr int alphabetGroesse = 42;
enum TokenNummer : int { nrSkalar = 26, nrAuf, nrZu, nrPlus, nrMinus, nrMal, nrHoch, nrEins };
int tokenNummer(std::string_view token);
bool istAnfangsToken(int nummer); // in mNamen
bool istNieRechts(int nummer);    // in nieRechts

// One token per user-perceived character. "-" becomes "m", "r" stays "r", blanks are dropped,
// everything else is upper-cased by full Unicode case mapping ("ß" becomes the one token "SS").
// Never rejects anything; malformed UTF-8 bytes become tokens of their own.
Zeichenfeld string2ZeichenFeld(std::string_view quelle);
// The same splitting without any mapping: blanks dropped, case kept.
Zeichenfeld string2ZeichenFeldL(std::string_view quelle);
// The tokens that belong to the alphabet, in their order.
Zeichenfeld gereinigt(Zeichenfeld feld);
// The index of the last token equal to `zeichen`, or -1.
std::int64_t posVonZeichen(const Zeichenfeld& feld, std::string_view zeichen);

// Syntax.
inline const std::string syntaxFehler =
    "Der Term ist unabhängig von den Werten der Matrizen fehlerhaft.\n";
// A new set on every call; the checks themselves use darfFolgen, which builds nothing.
std::set<std::string> erlaubteNachfolger(const std::string& v);
bool darfFolgen(const std::string& v, const std::string& w); // w in erlaubteNachfolger(v)
bool formelKorrekt(const Zeichenfeld& feld);
bool klammernAusgewogen(const Zeichenfeld& feld);

// Evaluation. A name result is ("Fehler", false) on failure; a stage result is the reduced
// term with its flag. A stage or termAuswerten called with ok false does nothing but fail.
inline const std::string fehlerName = "Fehler";
inline const std::string produktFehler = "Nicht produktkompatible Matrizen !\n ";
inline const std::string quadratFehler = "Zum Potenzieren müssen Matrizen quadratisch sein!\n";
inline const std::string regulaerFehler = "Nur reguläre Matrizen können invertiert werden!\n";

using NamenErgebnis = std::pair<std::string, bool>;
using StufenErgebnis = std::pair<Zeichenfeld, bool>;

NamenErgebnis parsen(std::string_view kette);
// Evaluates every bracket core of a balanced term and puts its result name in its place: the
// core of the last "(" (up to the first ")" after it) first, then again in what is left, so the
// innermost, rightmost core goes first. Done in one pass from the right.
Zeichenfeld klammernAufloesen(Zeichenfeld term);
NamenErgebnis termAuswerten(Zeichenfeld term, bool ok);
StufenErgebnis potenzenAuswerten(Zeichenfeld term, bool ok);
StufenErgebnis malAuswerten(Zeichenfeld term, bool ok);
StufenErgebnis minusAuswerten(Zeichenfeld term, bool ok);
StufenErgebnis plusAuswerten(Zeichenfeld term, bool ok);
std::pair<Matrix, bool> matProdukt(const Matrix& m1, const Matrix& m2);
std::pair<Matrix, bool> matSumme(const Matrix& m1, const Matrix& m2);
// Stores m under the next free letter and records the name in tempNamen; ("?", false) when no
// letter is free. Takes m by value: the evaluator hands over a fresh text matrix, which is moved
// into the list instead of copied entry by entry.
NamenErgebnis einbuchten(SMatrix m);

// mat^n for n > 0, the inverse for n = -1. Appends its message to fehlerListe when mat is not
// square, or for n = -1 when its determinant is exactly 0.0.
std::pair<Matrix, bool> hoch(const Matrix& mat, int n);

// Removes every entry named in tempNamen from the list, except `behalten` (the target of the
// n-fold command), and empties tempNamen.
void tempNamenEntfernen(const std::string& behalten = "");

} // namespace tabulon
