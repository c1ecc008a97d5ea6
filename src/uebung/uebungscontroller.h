#pragma once
// UebungsController, the practice window as a platform-neutral model, like ViewController for
// the main window: the two text fields, the message line and one member per button. A platform
// window shows the start matrix, the current matrix and the steps, and calls the buttons; the
// script driver does the same. The main window opens it (ViewController::exaktUeben) and hands
// in how a matrix reaches its tableau, so that this model needs nothing of the window.

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "textmatrix/smatrix.h"
#include "uebung/uebung.h"
#include "window/plattform.h"

namespace tabulon {

class UebungsController {
public:
    using InsTableau = std::function<void(const SMatrix&)>;

    UebungsController(Plattform& plattform, Uebung uebung, InsTableau insTableau);
    UebungsController(const UebungsController&) = delete;
    UebungsController& operator=(const UebungsController&) = delete;

    std::string umformungF; // the row operation typed, or the hint
    std::string vergleichF; // the name of a matrix of the list to compare
    std::string notizF;     // the message line
    Uebung uebung;

    // The names of this window, one table per kind, used by the driver, the desktop window and
    // the tests. Both fields take typing.
    struct Knopf {
        std::string_view name;
        void (UebungsController::*aktion)();
    };
    struct Feld {
        std::string_view name;
        std::string UebungsController::*wert;
    };
    // The buttons, in the order the window shows them.
    static std::span<const Knopf> knoepfe();
    static std::span<const Feld> felder();
    static const Knopf* knopf(std::string_view name); // nullptr when there is none
    static const Feld* feld(std::string_view name);

    // Fires the button of this name; false when there is none.
    bool fensterAktion(std::string_view name);

    void umformenB();
    void rueckgaengigB();
    void tippB();
    void pruefenB();
    void vergleichenB();
    void insTableauB();
    void texB();

    std::string startText() const { return matrixText(uebung.start); }
    std::string aktuellText() const { return matrixText(uebung.aktuell()); }
    // "1. Z2 ← Z2 − 3·Z1", one per step.
    std::vector<std::string> schrittTexte() const;

    // The file the exercise goes to: "Matrix_<name>_uebung.txt" of the documents folder.
    std::string texName() const { return uebung.name + "_uebung"; }

private:
    void abgelehnt(std::string meldung);

    Plattform& plattform;
    InsTableau insTableau;
};

} // namespace tabulon
