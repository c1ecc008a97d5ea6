#pragma once
// Hauptfenster, the main window on the desktop. It only shows the model's values and passes the
// user's edits and actions on: every edit of a field writes its text into the ViewController at
// once, every button fires the window action of its name, every menu entry the AppDelegate's menu
// action of its name (or, for a button that is in the menu too, the window action), and after
// each action ausModell() copies all of the model's values back onto the screen. Each widget's
// objectName is the model's name for it (window/aktionen.h), each menu entry's objectName its
// action's name.

#include "qt/hilfefenster.h"

#include <QMainWindow>
#include <QPointer>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

class QCheckBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPlainTextEdit;
class QPushButton;
class QSlider;

namespace tabulon {

class AppDelegate;
class QtPlattform;
class TableauWidget;
class ViewController;

class Hauptfenster : public QMainWindow {
public:
    Hauptfenster(ViewController& vc, AppDelegate& delegate, QtPlattform& plattform);
    // Unhooks the platform's callbacks, which point into this window.
    ~Hauptfenster() override;

    void fensterAktion(std::string_view name);
    void menueAktion(std::string_view name);
    void ausModell();
    void hilfeOeffnen();

    void tastenkuerzelZeigen();

    TableauWidget* tableauWidget() const { return tableau; }
    Hilfefenster* hilfefenster() const { return hilfe; }

protected:
    // The window's close button and the desktop's quit ask the 'Beenden' question while the
    // list holds a matrix, since closing loses every matrix not saved; an empty list closes at
    // once.
    void closeEvent(QCloseEvent* ereignis) override;

private:
    QWidget* baueNamenszeile();
    QWidget* baueTableau();
    QWidget* baueTermzeile();
    QWidget* baueWerkzeugzeile();
    QWidget* baueFusszeile();
    QWidget* baueSeitenzeile();
    QWidget* baueAusgabe();
    void baueMenue();
    void dokumentenOrdnerZeigen();

    QPushButton* knopf(const QString& titel, const char* name, const QString& hinweis);
    QLineEdit* feld(const char* name);
    void blinken();

    ViewController& vc;
    AppDelegate& delegate;
    QtPlattform& plattform;

    TableauWidget* tableau = nullptr;
    QLineEdit* eingabeFb = nullptr;
    QLineEdit* eingabeF = nullptr;
    QLineEdit* notizF = nullptr;
    QLineEdit* zeileF = nullptr;
    QLineEdit* spalteF = nullptr;
    QLineEdit* skalarF = nullptr;
    QLineEdit* zaehlF = nullptr;
    QLineEdit* mListeF = nullptr;
    QLineEdit* seitenF = nullptr;
    QLineEdit* dezimalenF = nullptr;
    QPlainTextEdit* ausgabeF = nullptr;
    QCheckBox* ueberschreibF = nullptr;
    QLabel* ueberschreibLabel = nullptr;
    QSlider* dezimalSlider = nullptr;
    QPushButton* infoUndHilfeB = nullptr;
    QPointer<Hilfefenster> hilfe;
    QMenu* dateiMenue = nullptr;
    // Every line edit made by feld(), with the model's text it shows.
    std::vector<std::pair<QLineEdit*, std::string ViewController::*>> zeilen;
    bool blinktGerade = false;
};

} // namespace tabulon
