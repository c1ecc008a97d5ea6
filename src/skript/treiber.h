#pragma once
// The driver proper: one window model with its application delegate, driven by the lines of a
// script as a user would drive the desktop window. At start the window runs viewDidLoad, so the
// delegate's mainVC is set and menu commands reach the window from the first line on.

#include "app/appdelegate.h"
#include "skript/skriptplattform.h"
#include "skript/skriptzeile.h"
#include "window/viewcontroller.h"

#include <istream>
#include <optional>
#include <ostream>
#include <string>

namespace tabulon::skript {

class Treiber {
public:
    explicit Treiber(SkriptPlattform& plattform);
    Treiber(const Treiber&) = delete;
    Treiber& operator=(const Treiber&) = delete;

    // Runs one command; an error text when the window has no field, button or display of its
    // name or the delegate no such menu action (and then nothing has happened), else "".
    std::string ausfuehren(const Befehl& befehl);

    // Runs the script line by line, each line as soon as it is read. Returns 0 at its end, or 2
    // after the first line that cannot be run, which is reported on `fehlerAus` with its number;
    // `quelle` names the script in that message.
    int lauf(std::istream& ein, std::ostream& fehlerAus, const std::string& quelle);

    SkriptPlattform& plattform;
    ViewController vc;
    AppDelegate delegate;

private:
    bool zeige(const std::string& was); // false for an unknown display
    // The fields, buttons and displays of the practice (uebungstreiber.cpp): nothing when the
    // command is none of them, else "" or the error text.
    std::optional<std::string> uebungsBefehl(const Befehl& befehl);
};

} // namespace tabulon::skript
