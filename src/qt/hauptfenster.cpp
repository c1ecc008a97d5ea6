#include "qt/hauptfenster.h"

#include "app/appdelegate.h"
#include "qt/hilfefenster.h"
#include "qt/myview.h"
#include "qt/qtplattform.h"
#include "qt/tableauwidget.h"
#include "textmatrix/liste.h"
#include "window/aktionen.h"
#include "window/viewcontroller.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QTimer>
#include <QVBoxLayout>

namespace tabulon {

namespace {

void setzeText(QLineEdit* feld, const std::string& wert) {
    const QString text = QString::fromStdString(wert);
    if (feld->text() != text) {
        feld->setText(text);
    }
}

void setzeHintergrund(QLineEdit* feld, const QColor& farbe) {
    QPalette palette = feld->palette();
    palette.setColor(QPalette::Base, farbe);
    feld->setPalette(palette);
}

QLabel* beschriftung(const QString& text, QWidget* fuer) {
    auto* label = new QLabel(text);
    label->setBuddy(fuer);
    return label;
}

// Room for this many characters of the field's font, so that the layout follows the system font.
void zeichenBreit(QLineEdit* feld, int zeichen) {
    feld->setMaximumWidth(feld->fontMetrics().horizontalAdvance(QLatin1Char('0')) * zeichen + 16);
}

const QColor gruen(0x9c, 0xe6, 0x9c);
const QColor blinkFarbe(0xff, 0xd2, 0x4d);

} // namespace

Hauptfenster::Hauptfenster(ViewController& vc, AppDelegate& delegate, QtPlattform& plattform)
    : vc(vc), delegate(delegate), plattform(plattform) {
    setObjectName(QStringLiteral("ViewController"));
    setWindowTitle(QStringLiteral("Tabulon"));

    auto* hintergrund = new MyView([this] { this->plattform.piep(); });
    hintergrund->setObjectName(QStringLiteral("MyView"));

    // One column over the whole width: the tableau needs every pixel of it for eight results of
    // up to 19 characters, and the message area below shows a protocol page of an 8 x 8 matrix
    // without wrapping. The message area takes the height that is left.
    auto* ganz = new QVBoxLayout(hintergrund);
    ganz->setContentsMargins(8, 6, 8, 6);
    ganz->setSpacing(5);
    QWidget* ausgabe = baueAusgabe(); // first: the page row's label names it
    ganz->addWidget(baueNamenszeile());
    ganz->addWidget(baueTableau());
    ganz->addWidget(baueTermzeile());
    ganz->addWidget(baueWerkzeugzeile());
    ganz->addWidget(baueSeitenzeile());
    ganz->addWidget(ausgabe, 1);
    ganz->addWidget(baueFusszeile());
    setCentralWidget(hintergrund);
    baueMenue();

    plattform.elternFenster = this;
    plattform.vorDerFrage = [this] { ausModell(); };
    plattform.blinken = [this] { blinken(); };

    vc.viewDidLoad([&delegate](ViewController& v) { delegate.mainVC = &v; });
    ausModell();
    tableau->zelle(0, 0)->setFocus();
}

Hauptfenster::~Hauptfenster() {
    plattform.elternFenster = nullptr;
    plattform.vorDerFrage = nullptr;
    plattform.blinken = nullptr;
}

QPushButton* Hauptfenster::knopf(const QString& titel, const char* name, const QString& hinweis) {
    auto* k = new QPushButton(titel);
    k->setObjectName(QString::fromLatin1(name));
    k->setToolTip(hinweis);
    k->setAutoDefault(false);
    k->setFocusPolicy(Qt::TabFocus);
    const std::string aktion = name;
    connect(k, &QPushButton::clicked, this, [this, aktion] { fensterAktion(aktion); });
    return k;
}

// A line edit for the model's text field of this name: the user types only into those the model
// says can be typed into, and ausModell() shows every one of them.
QLineEdit* Hauptfenster::feld(const char* name) {
    auto* f = new QLineEdit;
    f->setObjectName(QString::fromLatin1(name));
    const Textfeld* modellFeld = textfeld(name);
    f->setReadOnly(modellFeld == nullptr || !modellFeld->tippbar);
    if (modellFeld != nullptr) {
        const auto wert = modellFeld->wert;
        connect(f, &QLineEdit::textEdited, this,
                [this, wert](const QString& text) { vc.*wert = text.toStdString(); });
        zeilen.push_back({f, wert});
    }
    return f;
}

QWidget* Hauptfenster::baueNamenszeile() {
    auto* zeile = new QWidget;
    auto* reihe = new QHBoxLayout(zeile);
    reihe->setContentsMargins(0, 0, 0, 0);
    eingabeFb = feld("eingabeFb");
    eingabeFb->setToolTip(QStringLiteral("Name der Matrix, ein Buchstabe A ... Z; "
                                         "die Eingabetaste trägt die Tableau-Matrix ein"));
    eingabeFb->setAutoFillBackground(true);
    zeichenBreit(eingabeFb, 4);
    connect(eingabeFb, &QLineEdit::returnPressed, this, [this] { fensterAktion("einlistB"); });
    reihe->addWidget(beschriftung(QStringLiteral("&Name"), eingabeFb));
    reihe->addWidget(eingabeFb);
    reihe->addWidget(knopf(QStringLiteral("<-"), "einlistB",
                           QStringLiteral("Tableau-Matrix unter <Name> in die Liste eintragen "
                                          "(Alt+Links)")));
    reihe->addWidget(knopf(QStringLiteral("->"), "name2SMatrixB",
                           QStringLiteral("Matrix <Name> aus der Liste ins Tableau kopieren "
                                          "(Alt+Rechts)")));
    reihe->addWidget(
        knopf(QStringLiteral("Matrixnamen zuweisen"), "freierMatrixNameB",
              QStringLiteral("Tableau-Matrix unter dem ersten freien Namen eintragen")));
    reihe->addWidget(knopf(QStringLiteral("Lösche <Name>"), "auslistB",
                           QStringLiteral("Matrix <Name> aus der Liste löschen")));
    reihe->addSpacing(12);

    mListeF = feld("mListeF");
    mListeF->setToolTip(QStringLiteral("Namen aller Matrizen der Liste"));
    mListeF->setMinimumWidth(mListeF->fontMetrics().horizontalAdvance(QLatin1Char('M')) * 8);
    reihe->addWidget(beschriftung(QStringLiteral("L&iste"), mListeF));
    reihe->addWidget(mListeF, 1);
    infoUndHilfeB = new QPushButton;
    infoUndHilfeB->setObjectName(QStringLiteral("infoUndHilfeB"));
    infoUndHilfeB->setAutoDefault(false);
    infoUndHilfeB->setToolTip(QStringLiteral("Erläuterungen zu allen Anweisungen (F1)"));
    connect(infoUndHilfeB, &QPushButton::clicked, this, &Hauptfenster::hilfeOeffnen);
    reihe->addWidget(infoUndHilfeB);
    return zeile;
}

QWidget* Hauptfenster::baueTableau() {
    auto* bereich = new QWidget;
    auto* reihe = new QHBoxLayout(bereich);
    reihe->setContentsMargins(0, 4, 0, 4);
    tableau = new TableauWidget(vc);
    tableau->setObjectName(QStringLiteral("tableau"));
    tableau->nachEinfuegen = [this] { ausModell(); };
    reihe->addWidget(tableau, 1);

    // The size buttons are small squares in one column beside the cells: a row below the grid
    // would cost the message area its height on a small screen.
    const int kante = fontMetrics().height() + 10;
    const auto klein = [kante](QPushButton* k) {
        k->setFixedSize(kante, kante);
        return k;
    };
    auto* knoepfe = new QVBoxLayout;
    knoepfe->setSpacing(3);
    knoepfe->addWidget(klein(knopf(QStringLiteral(">"), "cplusB",
                                   QStringLiteral("Spalte anhängen (Alt+Umschalt+Rechts)"))));
    knoepfe->addWidget(
        klein(knopf(QStringLiteral("<"), "cminusB",
                    QStringLiteral("Letzte Spalte entfernen (Alt+Umschalt+Links)"))));
    knoepfe->addSpacing(kante / 2);
    knoepfe->addWidget(klein(knopf(QStringLiteral("v"), "rplusB",
                                   QStringLiteral("Zeile anhängen (Alt+Umschalt+Runter)"))));
    knoepfe->addWidget(klein(knopf(QStringLiteral("^"), "rminusB",
                                   QStringLiteral("Letzte Zeile entfernen (Alt+Umschalt+Hoch)"))));
    knoepfe->addStretch(1);
    reihe->addLayout(knoepfe);
    return bereich;
}

QWidget* Hauptfenster::baueTermzeile() {
    auto* zeile = new QWidget;
    auto* reihe = new QHBoxLayout(zeile);
    reihe->setContentsMargins(0, 0, 0, 0);
    eingabeF = feld("eingabeF");
    eingabeF->setToolTip(QStringLiteral("Matrixterm, zum Beispiel (A - B)^3 * B; "
                                        "die Eingabetaste wertet ihn aus"));
    connect(eingabeF, &QLineEdit::returnPressed, this, [this] { menueAktion("termAuswerten"); });
    reihe->addWidget(beschriftung(QStringLiteral("T&erm"), eingabeF));
    reihe->addWidget(eingabeF, 1);

    auto* auswerten = new QPushButton(QStringLiteral("Term-Auswertung"));
    auswerten->setObjectName(QStringLiteral("termAuswertenB"));
    auswerten->setAutoDefault(false);
    auswerten->setFocusPolicy(Qt::TabFocus);
    connect(auswerten, &QPushButton::clicked, this, [this] { menueAktion("termAuswerten"); });
    reihe->addWidget(auswerten);

    skalarF = feld("skalarF");
    skalarF->setToolTip(QStringLiteral("Skalar r des Terms"));
    zeichenBreit(skalarF, 6);
    reihe->addWidget(beschriftung(QStringLiteral("r ="), skalarF));
    reihe->addWidget(skalarF);

    zaehlF = feld("zaehlF");
    zaehlF->setToolTip(QStringLiteral("Anzahl der Durchläufe der n-maligen Auswertung; "
                                      "die Eingabetaste startet sie"));
    zeichenBreit(zaehlF, 4);
    connect(zaehlF, &QLineEdit::returnPressed, this, [this] { menueAktion("nMalAuswerten"); });
    reihe->addWidget(beschriftung(QStringLiteral("n ="), zaehlF));
    reihe->addWidget(zaehlF);
    auto* nMal = new QPushButton(QStringLiteral("n-mal"));
    nMal->setObjectName(QStringLiteral("nMalAuswertenB"));
    nMal->setToolTip(QStringLiteral("Term n-mal auswerten, Ergebnis jeweils unter <Name>"));
    nMal->setAutoDefault(false);
    nMal->setFocusPolicy(Qt::TabFocus);
    connect(nMal, &QPushButton::clicked, this, [this] { menueAktion("nMalAuswerten"); });
    reihe->addWidget(nMal);
    return zeile;
}

QWidget* Hauptfenster::baueWerkzeugzeile() {
    auto* zeile = new QWidget;
    auto* reihe = new QHBoxLayout(zeile);
    reihe->setContentsMargins(0, 0, 0, 0);
    zeileF = feld("zeileF");
    zeileF->setToolTip(QStringLiteral("Zeilenzahl z oder Zeilennummer"));
    zeichenBreit(zeileF, 3);
    spalteF = feld("spalteF");
    spalteF->setToolTip(QStringLiteral("Spaltenzahl s oder Spaltennummer"));
    zeichenBreit(spalteF, 3);

    reihe->addWidget(beschriftung(QStringLiteral("&z ="), zeileF));
    reihe->addWidget(zeileF);
    reihe->addWidget(beschriftung(QStringLiteral("&s ="), spalteF));
    reihe->addWidget(spalteF);
    reihe->addSpacing(6);
    reihe->addWidget(knopf(QStringLiteral("Zufalls (z,s)-Matrix"), "genZufallsMatrixB",
                           QStringLiteral("Zufallsmatrix mit z Zeilen und s Spalten")));
    // 'E(z)' is a window button that sends the menu action, as the menu entry does.
    auto* einheit = new QPushButton(QStringLiteral("E(z)"));
    einheit->setObjectName(QStringLiteral("genEinheitsmatrixB"));
    einheit->setToolTip(QStringLiteral("(z,z)-Einheitsmatrix ins Tableau"));
    einheit->setAutoDefault(false);
    einheit->setFocusPolicy(Qt::TabFocus);
    connect(einheit, &QPushButton::clicked, this, [this] { menueAktion("genEinheitsmatrix"); });
    reihe->addWidget(einheit);
    reihe->addWidget(knopf(QStringLiteral("Einfügen"), "einfuegen",
                           QStringLiteral("Leere Zeile z und/oder Spalte s einfügen")));
    reihe->addWidget(knopf(QStringLiteral("Entfernen"), "entfernen",
                           QStringLiteral("Zeile z und/oder Spalte s entfernen")));
    reihe->addWidget(knopf(QStringLiteral("Runden"), "rundenB",
                           QStringLiteral("Tableau-Matrix auf die Nachkommastellen runden")));
    reihe->addWidget(knopf(QStringLiteral("Rändern"), "tableauRaendern",
                           QStringLiteral("Neue erste Zeile und Spalte, 1 in der Ecke")));
    reihe->addWidget(knopf(QStringLiteral("Tableau löschen"), "tableauLoeschB",
                           QStringLiteral("Alle Felder des Tableaus leeren")));
    reihe->addStretch(1);
    return zeile;
}

QWidget* Hauptfenster::baueSeitenzeile() {
    auto* zeile = new QWidget;
    auto* reihe = new QHBoxLayout(zeile);
    reihe->setContentsMargins(0, 0, 0, 0);
    const int kante = fontMetrics().height() + 10;
    auto* zurueck = knopf(QStringLiteral("^"), "protoDown",
                          QStringLiteral("Eine Seite zurück (Strg+Bild aufwärts)"));
    zurueck->setFixedWidth(kante + 6);
    auto* vor =
        knopf(QStringLiteral("^"), "protoUp", QStringLiteral("Eine Seite vor (Strg+Bild abwärts)"));
    vor->setFixedWidth(kante + 6);
    // The label names the message area below and gives it the keyboard focus with Alt+P.
    reihe->addWidget(beschriftung(QStringLiteral("&Protokoll"), ausgabeF));
    reihe->addWidget(zurueck);
    reihe->addWidget(knopf(QStringLiteral("DEL"), "protoDelSeite",
                           QStringLiteral("Diese Seite endgültig löschen")));
    reihe->addWidget(vor);
    reihe->addSpacing(6);
    reihe->addWidget(knopf(QStringLiteral("Seite"), "neueSeite",
                           QStringLiteral("Die Seite mit der eingetragenen Nummer zeigen")));
    seitenF = feld("seitenF");
    seitenF->setAlignment(Qt::AlignCenter);
    seitenF->setToolTip(QStringLiteral("Nummer der gezeigten Protokollseite; "
                                       "die Eingabetaste zeigt die eingetragene Seite"));
    zeichenBreit(seitenF, 4);
    connect(seitenF, &QLineEdit::returnPressed, this, [this] { fensterAktion("neueSeite"); });
    reihe->addWidget(seitenF);
    reihe->addSpacing(12);

    notizF = feld("notizF");
    notizF->setFocusPolicy(Qt::NoFocus);
    reihe->addWidget(notizF, 1);
    return zeile;
}

QWidget* Hauptfenster::baueAusgabe() {
    ausgabeF = new QPlainTextEdit;
    ausgabeF->setObjectName(QStringLiteral("ausgabeF"));
    ausgabeF->setReadOnly(true);
    // Protocol pages are tables of numbers: a fixed-width font, no wrapping (a long row scrolls
    // sideways instead of breaking in two) and tab stops every 8 characters, so that a page
    // lines up as the saved protocol file does in an editor.
    ausgabeF->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    ausgabeF->setLineWrapMode(QPlainTextEdit::NoWrap);
    ausgabeF->setWordWrapMode(QTextOption::NoWrap);
    ausgabeF->setTabStopDistance(
        QFontMetricsF(ausgabeF->font()).horizontalAdvance(QLatin1Char(' ')) * 8);
    ausgabeF->setTabChangesFocus(true);
    ausgabeF->setMinimumHeight(ausgabeF->fontMetrics().lineSpacing() * 5);
    return ausgabeF;
}

QWidget* Hauptfenster::baueFusszeile() {
    auto* zeile = new QWidget;
    auto* reihe = new QHBoxLayout(zeile);
    reihe->setContentsMargins(0, 0, 0, 0);

    dezimalSlider = new QSlider(Qt::Horizontal);
    dezimalSlider->setObjectName(QStringLiteral("dezimalSlider"));
    dezimalSlider->setRange(1, 10);
    dezimalSlider->setPageStep(1);
    dezimalSlider->setTickPosition(QSlider::TicksBelow);
    dezimalSlider->setTickInterval(1);
    dezimalSlider->setMinimumWidth(140);
    dezimalSlider->setToolTip(QStringLiteral("Nachkommastellen der Ausgabe, 1 bis 10"));
    connect(dezimalSlider, &QSlider::valueChanged, this, [this](int wert) {
        vc.dezimalRegler = wert;
        fensterAktion("dezimalSlider");
    });
    dezimalenF = feld("dezimalenF");
    dezimalenF->setFocusPolicy(Qt::NoFocus);
    zeichenBreit(dezimalenF, 3);
    reihe->addWidget(beschriftung(QStringLiteral("Nach&kommastellen"), dezimalSlider));
    reihe->addWidget(dezimalSlider);
    reihe->addWidget(dezimalenF);
    reihe->addSpacing(16);

    ueberschreibF = new QCheckBox(QStringLiteral("Ü&berschreiben"));
    ueberschreibF->setObjectName(QStringLiteral("ueberschreibF"));
    ueberschreibF->setToolTip(QStringLiteral("Vorhandene Matrix beim Eintragen überschreiben"));
    connect(ueberschreibF, &QCheckBox::toggled, this, [this](bool an) {
        vc.ueberschreibF = an;
        fensterAktion("ueberschreibChecker");
    });
    ueberschreibLabel = new QLabel;
    ueberschreibLabel->setObjectName(QStringLiteral("ueberschreibLabel"));
    reihe->addWidget(ueberschreibF);
    reihe->addWidget(ueberschreibLabel);
    reihe->addStretch(1);
    reihe->addWidget(knopf(QStringLiteral("Beenden"), "quitB",
                           QStringLiteral("Tabulon nach Rückfrage beenden")));
    return zeile;
}

void Hauptfenster::fensterAktion(std::string_view name) {
    vc.fensterAktion(name);
    ausModell();
}

void Hauptfenster::menueAktion(std::string_view name) {
    delegate.menueAktion(name);
    ausModell();
}

void Hauptfenster::ausModell() {
    tableau->zeigeModell();
    for (const auto& [zeile, wert] : zeilen) {
        setzeText(zeile, vc.*wert);
    }
    setzeHintergrund(eingabeFb, vc.eingabeFbGruen ? gruen : QColor(Qt::white));
    // A long note may not fit the line; hovering shows it whole.
    notizF->setToolTip(QString::fromStdString(vc.notizF));

    const QString ausgabe = QString::fromStdString(vc.ausgabeF);
    if (ausgabeF->toPlainText() != ausgabe) {
        ausgabeF->setPlainText(ausgabe);
    }
    {
        const QSignalBlocker sperre(ueberschreibF);
        ueberschreibF->setChecked(vc.ueberschreibF);
    }
    {
        const QSignalBlocker sperre(dezimalSlider);
        dezimalSlider->setValue(vc.dezimalRegler);
    }
    ueberschreibLabel->setText(QString::fromStdString(vc.ueberschreibLabel));

    infoUndHilfeB->setText(QString::fromStdString(vc.infoUndHilfeBTitel));
    if (vc.infoUndHilfeBGelb) {
        infoUndHilfeB->setMinimumSize(182, 42);
        infoUndHilfeB->setStyleSheet(QStringLiteral(
            "QPushButton { background-color: #ffe135; color: black; border: 1px solid #c9a800;"
            " border-radius: 3px; padding: 0 12px; }"
            " QPushButton:pressed { background-color: #f0c800; }"));
    }
}

void Hauptfenster::closeEvent(QCloseEvent* ereignis) {
    if (plattform.beendetSich || listenZustand().sMatrixListe.empty()) {
        ereignis->accept();
        return;
    }
    // The model asks its own question; its answer to end the program comes back through the
    // platform, which here only notes it, so that the window closes the ordinary way.
    plattform.beendenAbfangen = true;
    plattform.abgefangenerStatus.reset();
    vc.quitB();
    plattform.beendenAbfangen = false;
    ausModell();
    if (plattform.abgefangenerStatus) {
        plattform.beendetSich = true;
        ereignis->accept();
    } else {
        ereignis->ignore();
    }
}

void Hauptfenster::hilfeOeffnen() {
    if (hilfe) {
        hilfe->raise();
        hilfe->activateWindow();
        return;
    }
    hilfe = new Hilfefenster(this);
    hilfe->show();
}

// The note line lights up for a moment, so that a refused action is seen even without sound.
void Hauptfenster::blinken() {
    if (blinktGerade) {
        return;
    }
    blinktGerade = true;
    setzeHintergrund(notizF, blinkFarbe);
    QTimer::singleShot(180, notizF, [this] {
        notizF->setPalette(QPalette());
        blinktGerade = false;
    });
}

} // namespace tabulon
