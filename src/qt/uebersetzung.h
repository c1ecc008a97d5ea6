#pragma once
// Qt's own texts (the cells' context menu, standard dialogs, key names in the menus) in German,
// whatever the system locale: the whole program speaks German, and a German word beside an
// English "Undo" reads like a fault.

class QCoreApplication;

namespace tabulon {

// Loads Qt's German translation (qtbase_de from Qt's translation folder; Debian package
// qt6-translations-l10n) into the application. False when it is not installed: Qt's texts
// then stay English, and nothing else changes.
bool deutscheQtTexteLaden(QCoreApplication& programm);

} // namespace tabulon
