#pragma once
// The overview of every key the main window knows: the menus' shortcuts and the access letters of
// the window's fields, read from the menu bar and the window themselves so that the list cannot
// fall behind them, and the keys the fields and the tableau handle.

#include <QDialog>
#include <QString>

class QMenuBar;

namespace tabulon {

// The overview as an HTML table, in German, the key names as the desktop writes them. The
// access letters of the window's labels and check boxes are read from `fenster`.
QString tastenkuerzelHtml(const QMenuBar& menues, const QWidget& fenster);

class Tastenkuerzelfenster : public QDialog {
public:
    Tastenkuerzelfenster(const QMenuBar& menues, QWidget* fenster);
};

} // namespace tabulon
