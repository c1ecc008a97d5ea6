#pragma once
// Uebungsfenster, the practice of row operations on the desktop: a window that shows the
// UebungsController's start matrix, current matrix and steps, and hands every button to it.
// The model owns the flow; after each action the window copies the model's values back onto
// its widgets. Everything works from the keyboard (see the shortcuts in the constructor).

#include <QWidget>

#include <functional>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace tabulon {

class UebungsController;

class Uebungsfenster : public QWidget {
public:
    // `nachTableau` runs after insTableauB, so that the main window shows its new tableau.
    Uebungsfenster(UebungsController& modell, std::function<void()> nachTableau,
                   QWidget* eltern = nullptr);

    // Types nothing itself: copies the fields to the model, fires the button, copies back.
    void aktion(const char* knopf);

private:
    void ausModell();

    UebungsController& modell;
    std::function<void()> nachTableau;
    QLabel* start;
    QLabel* aktuell;
    QListWidget* schritte;
    QLineEdit* umformung;
    QLineEdit* vergleich;
    QLabel* notiz;
};

} // namespace tabulon
