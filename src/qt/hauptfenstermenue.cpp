// The application menu: one entry for each of the delegate's 23 menu actions, grouped by what
// they work on, plus the window's own entries (copy and paste of blocks, help, quit).

#include "qt/hauptfenster.h"

#include "app/appdelegate.h"
#include "qt/tableauwidget.h"

#include <QAction>
#include <QApplication>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

namespace tabulon {

namespace {

struct Menueeintrag {
    std::string_view aktion;
    const char* titel;
    const char* kuerzel; // empty: no shortcut
    int menue;           // index into the menu titles below
};

const char* const menueTitel[] = {"Datei", "Liste", "Rechnen", "Tableau"};

// Shortcuts avoid the keys a line edit keeps for itself (Ctrl+A, C, D, E, K, V, X, Y, Z, ...), so
// they also work while the cursor is in a cell.
const Menueeintrag eintraege[] = {
    {"ladenM", "Laden", "Ctrl+L", 0},
    {"speichernM", "Speichern", "Ctrl+S", 0},
    {"protoSpeichern", "Speichere Protokoll", "Ctrl+P", 0},
    {"speichereEinzelmatrix", "Erzeuge TEX-Format(>Name<)", "Ctrl+Shift+X", 0},
    {"texAusgabeAlleMatrizen", "Erzeuge TEX-Format aler Matrizen", "Ctrl+Alt+X", 0},
    {"neustartM", "Neustart", "Ctrl+N", 0},

    {"zeigeGanzeListe", "Zeige Liste", "Ctrl+Shift+L", 1},
    {"druckeMatrixN", "Zeige Matrix<Name>", "Ctrl+M", 1},
    {"loescheName", "Lösche <Name>", "Ctrl+Shift+D", 1},
    {"loescheGanzeListe", "Lösche ganze Liste", "", 1},
    {"MatrixlisteLoeschen", "Matrixliste leeren", "", 1},

    {"termAuswerten", "Term-Auswertung", "Ctrl+Return", 2},
    {"nMalAuswerten", "n-malige Term-Auswertung", "Ctrl+Shift+Return", 2},
    {"Transponiere", "Transponiere ..", "Ctrl+T", 2},
    {"Invertiere", "Invertiere ..", "Ctrl+I", 2},
    {"Gausse", "Gauss-Verfahren ..", "Ctrl+G", 2},
    {"genErzSysVomKern", "Basis zum Kern ..", "Ctrl+Shift+K", 2},
    {"Orthonormiere", "Orthonormiere ..", "Ctrl+O", 2},
    {"gramsche", "Gramsche Determinante ..", "Ctrl+Shift+G", 2},
    {"charPolUndEwe", "Char. Polynom und Eigenwerte ..", "Ctrl+Shift+P", 2},

    {"genZufallsmatrix", "Zufalls (z,s)-Matrix", "Ctrl+R", 3},
    {"genEinheitsmatrix", "E(z)", "Ctrl+Shift+E", 3},
    {"TableauLöschen", "Tableau löschen", "Ctrl+Shift+Backspace", 3},
};

} // namespace

void Hauptfenster::baueMenue() {
    QMenu* menues[4];
    for (int m = 0; m < 4; ++m) {
        menues[m] = menuBar()->addMenu(QString::fromUtf8(menueTitel[m]));
    }
    for (const auto& eintrag : eintraege) {
        auto* aktion = menues[eintrag.menue]->addAction(QString::fromUtf8(eintrag.titel));
        aktion->setObjectName(
            QString::fromUtf8(eintrag.aktion.data(), qsizetype(eintrag.aktion.size())));
        if (*eintrag.kuerzel) {
            aktion->setShortcut(QKeySequence(QString::fromLatin1(eintrag.kuerzel)));
        }
        const std::string_view name = eintrag.aktion;
        connect(aktion, &QAction::triggered, this, [this, name] { menueAktion(name); });
        if (eintrag.aktion == "neustartM") {
            menues[0]->addSeparator();
        }
    }

    auto* beenden = menues[0]->addAction(QStringLiteral("Beenden"));
    beenden->setObjectName(QStringLiteral("programmBeenden"));
    beenden->setShortcut(QKeySequence::Quit);
    beenden->setMenuRole(QAction::QuitRole);
    connect(beenden, &QAction::triggered, qApp, &QApplication::closeAllWindows);

    menues[3]->addSeparator();
    auto* kopieren = menues[3]->addAction(QStringLiteral("Sichtbaren Block kopieren"));
    kopieren->setObjectName(QStringLiteral("blockKopieren"));
    kopieren->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+C")));
    connect(kopieren, &QAction::triggered, this, [this] { tableau->sichtbarenBlockKopieren(); });
    auto* einfuegen = menues[3]->addAction(QStringLiteral("Block ab der aktuellen Zelle einfügen"));
    einfuegen->setObjectName(QStringLiteral("blockEinfuegen"));
    einfuegen->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+V")));
    connect(einfuegen, &QAction::triggered, this, [this] { tableau->blockAusZwischenablage(); });

    auto* hilfeMenue = menuBar()->addMenu(QStringLiteral("Hilfe"));
    auto* hilfeAktion = hilfeMenue->addAction(QStringLiteral("Info und Hilfe"));
    hilfeAktion->setObjectName(QStringLiteral("infoUndHilfe"));
    hilfeAktion->setShortcut(QKeySequence::HelpContents);
    connect(hilfeAktion, &QAction::triggered, this, &Hauptfenster::hilfeOeffnen);
}

} // namespace tabulon
