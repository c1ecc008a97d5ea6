#pragma once
// One line of a tabulon-skript script, taken apart and checked before anything runs: a command
// word, bare words and numbers, and texts in double quotes. A line that cannot be run never
// reaches the window; it yields an error text instead, which the driver reports with the line's
// number.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tabulon::skript {

enum class Befehlsart { feld, zelle, regler, haken, antwort, knopf, menue, zeige };

struct Befehl {
    Befehlsart art = Befehlsart::zeige;
    std::string name; // the field, button, menu action or what to show
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

// A word of a line: a bare word, or the unescaped contents of a quoted text.
struct Wort {
    std::string text;
    bool zitiert = false;

    bool operator==(const Wort&) const = default;
};

// Splits a line at blanks and tabs; an error text when a quote is not closed, an escape is
// unknown or a quote touches the next word.
struct Woerter {
    std::vector<Wort> woerter;
    std::string fehler;
};
Woerter zerlegeWoerter(std::string_view zeile);

// The names the commands accept.
const std::vector<std::string_view>& eingabeFelder(); // feld
const std::vector<std::string_view>& anzeigeFelder(); // zeige NAME of a text field
const std::vector<std::string_view>& knopfNamen();    // knopf
const std::vector<std::string_view>& anzeigen();      // zeige, the other forms

} // namespace tabulon::skript
