#pragma once
// How the desktop window judges a cell's text before any command reads it: a text that is not
// a number counts as 0 in every computation, silently, so the window marks such a cell and says
// why in its tooltip. A decimal comma, what a German spreadsheet writes, is told apart because
// it is the common case and has a plain remedy.

#include <QString>

#include <optional>
#include <string>

namespace tabulon {

enum class Eintragsart {
    zahl,         // converts to a number
    leer,         // "" or 1 to 8 blanks: counts as 0 and is meant to
    keineZahl,    // anything else: counts as 0 in computations
    dezimalkomma, // would be a number with a point in place of its one comma
};

Eintragsart eintragsart(const std::string& text);

// The text with its one comma turned into a point, when exactly that makes it a number ("1,5",
// "-2,5e3"); nothing for any other text, numbers included.
std::optional<std::string> mitDezimalpunkt(const std::string& text);

// The German hint for a cell of this kind; empty for numbers and empty entries.
QString eintragsHinweis(Eintragsart art);

} // namespace tabulon
