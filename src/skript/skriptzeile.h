#pragma once
// One line of a tabulon-skript script, taken apart and checked for its shape before anything runs:
// a command word, bare words and numbers, and texts in double quotes. Whether a field, button,
// menu action or display of that name exists is the driver's check, which knows the window. A
// line that cannot be run yields an error text instead, which the driver reports with the line's
// number.

#include <optional>
#include <string>
#include <string_view>

namespace tabulon::skript {

enum class Befehlsart { feld, zelle, regler, haken, antwort, knopf, menue, zeige, hilfe };

struct Befehl {
    Befehlsart art = Befehlsart::zeige;
    std::string name; // the field, button, menu action, help topic or what to show
    std::string text; // feld, zelle, antwort
    int zeile = 0;    // zelle: the row; regler: the slider value
    int spalte = 0;   // zelle: the column
    bool an = false;  // haken

    bool operator==(const Befehl&) const = default;
};

// The result for one line: a command, or an error text, or neither for an empty line or a
// comment (first non-blank character '#').
struct Zeilenergebnis {
    std::optional<Befehl> befehl;
    std::string fehler;

    bool istLeer() const { return !befehl && fehler.empty(); }
};

Zeilenergebnis zerlegeZeile(std::string_view zeile);

} // namespace tabulon::skript
