#pragma once
// The names of the main window, one table per kind: the window's actions (its buttons, the
// slider and the checkbox), its text fields and the menu actions. Everything that reaches the
// window model by name goes through these tables: the script driver, the desktop window, the
// application delegate and the tests. A new command is one entry here and its handler in
// ViewController; nothing else lists the names.

#include "window/viewcontroller.h"

#include <span>
#include <string>
#include <string_view>

namespace tabulon {

struct Fensteraktion {
    std::string_view name;
    void (ViewController::*aktion)();
    // A push button. The slider and the checkbox set their value before their action runs, so a
    // script reaches them through their own commands and never as a bare button.
    bool knopf;
};

struct Textfeld {
    std::string_view name;
    std::string ViewController::*wert;
    // The user can type into it; the others only show the window's answers.
    bool tippbar;
};

struct Menueaktion {
    std::string_view name;
    // A plain function rather than a member, because two entries pass an argument.
    void (*aktion)(ViewController&);
};

std::span<const Fensteraktion> fensteraktionen();
std::span<const Textfeld> textfelder();
// The 23 classic actions of the application menu in their order, then the menu "Exakt" (seven
// exact commands and, last, the practice of row operations).
std::span<const Menueaktion> menueaktionen();

// The entry of this name, or nullptr.
const Fensteraktion* fensteraktion(std::string_view name);
const Textfeld* textfeld(std::string_view name);
const Menueaktion* menueaktion(std::string_view name);

} // namespace tabulon
