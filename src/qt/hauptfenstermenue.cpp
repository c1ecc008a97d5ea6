// The application menu: one entry for each of the model's menu actions, grouped by what
// they work on, the window buttons that a keyboard user wants under a key as well, and the
// window's own entries (copy and paste of blocks, help, shortcuts, quit). Every menu and entry
// has an access letter, unique within its menu, so that Alt and the letter reach every command.

#include "qt/hauptfenster.h"

#include "app/appdelegate.h"
#include "qt/qtplattform.h"
#include "qt/tableauwidget.h"
#include "qt/tastenkuerzel.h"
#include "window/aktionen.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

namespace tabulon {

namespace {

struct Menueeintrag {
    std::string_view aktion;
    const char* titel;   // '&' marks the access letter
    const char* kuerzel; // empty: no shortcut
    int menue;           // index into the menu titles below
    bool trennlinieDanach = false;
};

const char* const menueTitel[] = {"&Datei", "&Liste", "&Rechnen", "&Tableau", "&Exakt"};
constexpr int anzahlMenues = 5;

// The titles of the model's menu actions and of the window buttons that a keyboard user wants
// under a key as well; which of the two an entry fires, the model's tables say. Shortcuts avoid
// the keys a line edit keeps for itself (Ctrl+A, C, D, E, K, V, X, Y, Z, the arrows with Ctrl or
// Shift, ...), so they also work while the cursor is in a cell. Window actions reach the
// controller directly, as their buttons do.
const Menueeintrag eintraege[] = {
    {"ladenM", "&Laden", "Ctrl+L", 0},
    {"speichernM", "&Speichern", "Ctrl+S", 0},
    {"protoSpeichern", "Speichere &Protokoll", "Ctrl+P", 0},
    {"speichereEinzelmatrix", "Erzeuge &TEX-Format(>Name<)", "Ctrl+Shift+X", 0},
    {"texAusgabeAlleMatrizen", "Erzeuge TEX-Format &aler Matrizen", "Ctrl+Alt+X", 0, true},
    {"protoDown", "&Vorige Protokollseite", "Ctrl+PgUp", 0},
    {"protoUp", "Nä&chste Protokollseite", "Ctrl+PgDown", 0},
    {"protoDelSeite", "Protokollseite lösch&en", "", 0, true},
    {"neustartM", "&Neustart", "Ctrl+N", 0, true},

    {"einlistB", "Tableau-Matrix unter <Name> &eintragen", "Alt+Left", 1},
    {"name2SMatrixB", "Matrix <Name> ins &Tableau holen", "Alt+Right", 1},
    {"freierMatrixNameB", "Matrixnamen zu&weisen", "", 1, true},
    {"zeigeGanzeListe", "&Zeige Liste", "Ctrl+Shift+L", 1},
    {"druckeMatrixN", "Zeige &Matrix<Name>", "Ctrl+M", 1},
    {"loescheName", "&Lösche <Name>", "Ctrl+Shift+D", 1},
    {"loescheGanzeListe", "Lösche &ganze Liste", "", 1},
    {"MatrixlisteLoeschen", "Matrixliste lee&ren", "", 1},

    {"termAuswerten", "&Term-Auswertung", "Ctrl+Return", 2},
    {"nMalAuswerten", "&n-malige Term-Auswertung", "Ctrl+Shift+Return", 2, true},
    {"Transponiere", "T&ransponiere ..", "Ctrl+T", 2},
    {"Invertiere", "&Invertiere ..", "Ctrl+I", 2},
    {"Gausse", "&Gauss-Verfahren ..", "Ctrl+G", 2},
    {"genErzSysVomKern", "&Basis zum Kern ..", "Ctrl+Shift+K", 2},
    {"Orthonormiere", "&Orthonormiere ..", "Ctrl+O", 2},
    {"gramsche", "Gramsche &Determinante ..", "Ctrl+Shift+G", 2},
    {"charPolUndEwe", "&Char. Polynom und Eigenwerte ..", "Ctrl+Shift+P", 2},

    {"genZufallsmatrix", "&Zufalls (z,s)-Matrix", "Ctrl+R", 3},
    {"genEinheitsmatrix", "&E(z)", "Ctrl+Shift+E", 3},
    {"TableauLöschen", "Tableau &löschen", "Ctrl+Shift+Backspace", 3, true},
    {"rundenB", "&Runden", "", 3},
    {"tableauRaendern", "Rän&dern", "", 3},
    {"einfuegen", "E&infügen (Zeile z, Spalte s)", "", 3},
    {"entfernen", "E&ntfernen (Zeile z, Spalte s)", "", 3, true},
    {"rplusB", "Zeile &anhängen (v)", "Alt+Shift+Down", 3},
    {"rminusB", "Le&tzte Zeile entfernen (^)", "Alt+Shift+Up", 3},
    {"cplusB", "&Spalte anhängen (>)", "Alt+Shift+Right", 3},
    {"cminusB", "Letzte S&palte entfernen (<)", "Alt+Shift+Left", 3, true},

    // The exact commands are reached by their access letters (Alt+E, then the letter): the
    // Ctrl+Alt keys that are still free lock the screen or open a terminal on common desktops.
    {"exaktGauss", "&Gauß-Jordan Schritt für Schritt ..", "", 4},
    {"exaktLGS", "&Lineares Gleichungssystem lösen ..", "", 4},
    {"exaktKern", "&Kern und Bild ..", "", 4},
    {"exaktInverse", "&Inverse ..", "", 4},
    {"exaktDeterminante", "&Determinante ..", "", 4},
    {"exaktEigen", "&Eigenwerte und Eigenvektoren ..", "", 4, true},
    {"exaktUeben", "&Zeilenumformungen üben …", "", 4, true},
    {"exaktTexAusgabe", "Letzte exakte Seite als &TeX(>Name<)", "", 4},
};

} // namespace

void Hauptfenster::baueMenue() {
    QMenu* menues[anzahlMenues];
    for (int m = 0; m < anzahlMenues; ++m) {
        menues[m] = menuBar()->addMenu(QString::fromUtf8(menueTitel[m]));
    }
    for (const auto& eintrag : eintraege) {
        QMenu* menue = menues[eintrag.menue];
        auto* aktion = menue->addAction(QString::fromUtf8(eintrag.titel));
        const QString name =
            QString::fromUtf8(eintrag.aktion.data(), qsizetype(eintrag.aktion.size()));
        const bool istMenueaktion = menueaktion(eintrag.aktion) != nullptr;
        // Menu entries carry their action's name; an entry for a window button adds an M, so
        // that a search by name never confuses it with the button.
        aktion->setObjectName(istMenueaktion ? name : name + QLatin1Char('M'));
        if (*eintrag.kuerzel) {
            aktion->setShortcut(QKeySequence(QString::fromLatin1(eintrag.kuerzel)));
        }
        const std::string_view aktionsName = eintrag.aktion;
        if (istMenueaktion) {
            connect(aktion, &QAction::triggered, this,
                    [this, aktionsName] { menueAktion(aktionsName); });
        } else {
            connect(aktion, &QAction::triggered, this,
                    [this, aktionsName] { fensterAktion(aktionsName); });
        }
        if (eintrag.trennlinieDanach) {
            menue->addSeparator();
        }
    }

    // The desktop's quit closes the window, which asks first while the list holds a matrix.
    auto* beenden = menues[0]->addAction(QStringLiteral("&Beenden"));
    beenden->setObjectName(QStringLiteral("programmBeenden"));
    beenden->setShortcut(QKeySequence::Quit);
    beenden->setMenuRole(QAction::QuitRole);
    connect(beenden, &QAction::triggered, this, &QWidget::close);
    dateiMenue = menues[0];
    dateiMenue->setToolTipsVisible(true);
    connect(dateiMenue, &QMenu::aboutToShow, this, &Hauptfenster::dokumentenOrdnerZeigen);

    auto* kopieren = menues[3]->addAction(QStringLiteral("Sichtbaren Block &kopieren"));
    kopieren->setObjectName(QStringLiteral("blockKopieren"));
    kopieren->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+C")));
    connect(kopieren, &QAction::triggered, this, [this] { tableau->sichtbarenBlockKopieren(); });
    auto* einfuegen =
        menues[3]->addAction(QStringLiteral("&Block ab der aktuellen Zelle einfügen"));
    einfuegen->setObjectName(QStringLiteral("blockEinfuegen"));
    einfuegen->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+V")));
    connect(einfuegen, &QAction::triggered, this, [this] { tableau->blockAusZwischenablage(); });

    auto* hilfeMenue = menuBar()->addMenu(QStringLiteral("&Hilfe"));
    auto* hilfeAktion = hilfeMenue->addAction(QStringLiteral("&Info und Hilfe"));
    hilfeAktion->setObjectName(QStringLiteral("infoUndHilfe"));
    hilfeAktion->setShortcut(QKeySequence::HelpContents);
    connect(hilfeAktion, &QAction::triggered, this, &Hauptfenster::hilfeOeffnen);
    auto* kuerzel = hilfeMenue->addAction(QStringLiteral("&Tastenkürzel"));
    kuerzel->setObjectName(QStringLiteral("tastenkuerzel"));
    kuerzel->setShortcut(QKeySequence(QStringLiteral("Ctrl+F1")));
    connect(kuerzel, &QAction::triggered, this, &Hauptfenster::tastenkuerzelZeigen);

    // F10 opens the menu bar, as on most desktops; Alt and a menu's letter do the same.
    auto* menueleiste = new QAction(this);
    menueleiste->setObjectName(QStringLiteral("menueleiste"));
    menueleiste->setShortcut(QKeySequence(Qt::Key_F10));
    connect(menueleiste, &QAction::triggered, this, [this] {
        menuBar()->setFocus(Qt::ShortcutFocusReason);
        menuBar()->setActiveAction(menuBar()->actions().value(0));
    });
    addAction(menueleiste);
}

// The file commands write into the documents folder and read from it; their tooltips say
// which folder that is. Asked only when the menu opens, because asking may create the folder.
void Hauptfenster::dokumentenOrdnerZeigen() {
    const auto ordner = plattform.dokumentenOrdner();
    const QString hinweis =
        ordner ? QStringLiteral("Dokument-Ordner: ") +
                     QDir::toNativeSeparators(QString::fromStdString(ordner->string()))
               : QStringLiteral("Kein Dokument-Ordner gefunden");
    for (QAction* aktion : dateiMenue->actions()) {
        const QString name = aktion->objectName();
        if (name == QLatin1String("ladenM") || name == QLatin1String("speichernM") ||
            name == QLatin1String("protoSpeichern") ||
            name == QLatin1String("speichereEinzelmatrix") ||
            name == QLatin1String("texAusgabeAlleMatrizen")) {
            aktion->setToolTip(hinweis);
        }
    }
}

void Hauptfenster::tastenkuerzelZeigen() {
    auto* fenster = new Tastenkuerzelfenster(*menuBar(), this);
    fenster->show();
}

} // namespace tabulon
