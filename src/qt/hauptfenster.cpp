#include "qt/hauptfenster.h"

#include "app/appdelegate.h"
#include "qt/hilfefenster.h"
#include "qt/myview.h"
#include "qt/qtplattform.h"
#include "qt/tableauwidget.h"
#include "window/viewcontroller.h"

#include <QCheckBox>
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

    auto* links = new QVBoxLayout;
    links->addWidget(baueNamenszeile());
    // The commands follow the tableau directly; the free height collects above the note line,
    // which stays at the bottom next to the settings.
    links->addWidget(baueTableau());
    links->addSpacing(8);
    links->addWidget(baueTermzeile());
    links->addWidget(baueWerkzeugzeile());
    links->addStretch(1);
    notizF = feld("notizF", &ViewController::notizF);
    notizF->setReadOnly(true);
    notizF->setFocusPolicy(Qt::NoFocus);
    notizF->setToolTip(QStringLiteral("Hinweise der Anweisungen"));
    links->addWidget(notizF);
    links->addWidget(baueFusszeile());

    auto* ganz = new QHBoxLayout(hintergrund);
    ganz->setContentsMargins(12, 10, 12, 10);
    ganz->setSpacing(16);
    ganz->addLayout(links, 0);
    ganz->addWidget(baueProtokoll(), 1);
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

QLineEdit* Hauptfenster::feld(const char* name, std::string ViewController::*wert) {
    auto* f = new QLineEdit;
    f->setObjectName(QString::fromLatin1(name));
    connect(f, &QLineEdit::textEdited, this,
            [this, wert](const QString& text) { vc.*wert = text.toStdString(); });
    return f;
}

QWidget* Hauptfenster::baueNamenszeile() {
    auto* zeile = new QWidget;
    auto* reihe = new QHBoxLayout(zeile);
    reihe->setContentsMargins(0, 0, 0, 0);
    eingabeFb = feld("eingabeFb", &ViewController::eingabeFb);
    eingabeFb->setToolTip(QStringLiteral("Name der Matrix, ein Buchstabe A ... Z"));
    eingabeFb->setAutoFillBackground(true);
    zeichenBreit(eingabeFb, 4);
    reihe->addWidget(beschriftung(QStringLiteral("Name"), eingabeFb));
    reihe->addWidget(eingabeFb);
    reihe->addWidget(knopf(QStringLiteral("<-"), "einlistB",
                           QStringLiteral("Tableau-Matrix unter <Name> in die Liste eintragen")));
    reihe->addWidget(knopf(QStringLiteral("->"), "name2SMatrixB",
                           QStringLiteral("Matrix <Name> aus der Liste ins Tableau kopieren")));
    reihe->addWidget(
        knopf(QStringLiteral("Matrixnamen zuweisen"), "freierMatrixNameB",
              QStringLiteral("Tableau-Matrix unter dem ersten freien Namen eintragen")));
    reihe->addWidget(knopf(QStringLiteral("Lösche <Name>"), "auslistB",
                           QStringLiteral("Matrix <Name> aus der Liste löschen")));
    reihe->addStretch(1);
    return zeile;
}

QWidget* Hauptfenster::baueTableau() {
    auto* bereich = new QWidget;
    auto* gitter = new QGridLayout(bereich);
    gitter->setContentsMargins(0, 6, 0, 6);
    tableau = new TableauWidget(vc);
    tableau->setObjectName(QStringLiteral("tableau"));
    tableau->nachEinfuegen = [this] { ausModell(); };
    gitter->addWidget(tableau, 0, 0);

    // The size buttons are small squares beside and below the cells they grow or shrink.
    const int kante = fontMetrics().height() + 12;
    const auto klein = [kante](QPushButton* k) {
        k->setFixedSize(kante, kante);
        return k;
    };
    auto* spalten = new QVBoxLayout;
    spalten->addStretch(1);
    spalten->addWidget(
        klein(knopf(QStringLiteral(">"), "cplusB", QStringLiteral("Spalte anhängen"))));
    spalten->addWidget(
        klein(knopf(QStringLiteral("<"), "cminusB", QStringLiteral("Letzte Spalte entfernen"))));
    spalten->addStretch(1);
    gitter->addLayout(spalten, 0, 1);

    auto* zeilen = new QHBoxLayout;
    zeilen->addStretch(1);
    zeilen->addWidget(
        klein(knopf(QStringLiteral("v"), "rplusB", QStringLiteral("Zeile anhängen"))));
    zeilen->addWidget(
        klein(knopf(QStringLiteral("^"), "rminusB", QStringLiteral("Letzte Zeile entfernen"))));
    zeilen->addStretch(1);
    gitter->addLayout(zeilen, 1, 0);
    return bereich;
}

QWidget* Hauptfenster::baueTermzeile() {
    auto* zeile = new QWidget;
    auto* reihe = new QHBoxLayout(zeile);
    reihe->setContentsMargins(0, 0, 0, 0);
    eingabeF = feld("eingabeF", &ViewController::eingabeF);
    eingabeF->setToolTip(QStringLiteral("Matrixterm, zum Beispiel (A - B)^3 * B; "
                                        "die Eingabetaste wertet ihn aus"));
    connect(eingabeF, &QLineEdit::returnPressed, this, [this] { menueAktion("termAuswerten"); });
    reihe->addWidget(beschriftung(QStringLiteral("Term"), eingabeF));
    reihe->addWidget(eingabeF, 1);

    auto* auswerten = new QPushButton(QStringLiteral("Term-Auswertung"));
    auswerten->setObjectName(QStringLiteral("termAuswertenB"));
    auswerten->setAutoDefault(false);
    connect(auswerten, &QPushButton::clicked, this, [this] { menueAktion("termAuswerten"); });
    reihe->addWidget(auswerten);

    skalarF = feld("skalarF", &ViewController::skalarF);
    skalarF->setToolTip(QStringLiteral("Skalar r des Terms"));
    zeichenBreit(skalarF, 6);
    reihe->addWidget(beschriftung(QStringLiteral("r ="), skalarF));
    reihe->addWidget(skalarF);

    zaehlF = feld("zaehlF", &ViewController::zaehlF);
    zaehlF->setToolTip(QStringLiteral("Anzahl der Durchläufe der n-maligen Auswertung"));
    zeichenBreit(zaehlF, 4);
    connect(zaehlF, &QLineEdit::returnPressed, this, [this] { menueAktion("nMalAuswerten"); });
    reihe->addWidget(beschriftung(QStringLiteral("n ="), zaehlF));
    reihe->addWidget(zaehlF);
    auto* nMal = new QPushButton(QStringLiteral("n-mal"));
    nMal->setObjectName(QStringLiteral("nMalAuswertenB"));
    nMal->setToolTip(QStringLiteral("Term n-mal auswerten, Ergebnis jeweils unter <Name>"));
    nMal->setAutoDefault(false);
    connect(nMal, &QPushButton::clicked, this, [this] { menueAktion("nMalAuswerten"); });
    reihe->addWidget(nMal);
    return zeile;
}

QWidget* Hauptfenster::baueWerkzeugzeile() {
    auto* zeile = new QWidget;
    auto* spalte = new QVBoxLayout(zeile);
    spalte->setContentsMargins(0, 0, 0, 0);
    zeileF = feld("zeileF", &ViewController::zeileF);
    zeileF->setToolTip(QStringLiteral("Zeilenzahl z oder Zeilennummer"));
    zeichenBreit(zeileF, 3);
    spalteF = feld("spalteF", &ViewController::spalteF);
    spalteF->setToolTip(QStringLiteral("Spaltenzahl s oder Spaltennummer"));
    zeichenBreit(spalteF, 3);

    auto* oben = new QHBoxLayout;
    oben->addWidget(beschriftung(QStringLiteral("z ="), zeileF));
    oben->addWidget(zeileF);
    oben->addWidget(beschriftung(QStringLiteral("s ="), spalteF));
    oben->addWidget(spalteF);
    oben->addSpacing(8);
    oben->addWidget(knopf(QStringLiteral("Zufalls (z,s)-Matrix"), "genZufallsMatrixB",
                          QStringLiteral("Zufallsmatrix mit z Zeilen und s Spalten")));
    // 'E(z)' is a window button that sends the menu action, as the menu entry does.
    auto* einheit = new QPushButton(QStringLiteral("E(z)"));
    einheit->setObjectName(QStringLiteral("genEinheitsmatrixB"));
    einheit->setToolTip(QStringLiteral("(z,z)-Einheitsmatrix ins Tableau"));
    einheit->setAutoDefault(false);
    connect(einheit, &QPushButton::clicked, this, [this] { menueAktion("genEinheitsmatrix"); });
    oben->addWidget(einheit);
    oben->addWidget(knopf(QStringLiteral("Einfügen"), "einfuegen",
                          QStringLiteral("Leere Zeile z und/oder Spalte s einfügen")));
    oben->addWidget(knopf(QStringLiteral("Entfernen"), "entfernen",
                          QStringLiteral("Zeile z und/oder Spalte s entfernen")));
    oben->addStretch(1);
    spalte->addLayout(oben);

    auto* unten = new QHBoxLayout;
    unten->addWidget(knopf(QStringLiteral("Runden"), "rundenB",
                           QStringLiteral("Tableau-Matrix auf die Nachkommastellen runden")));
    unten->addWidget(knopf(QStringLiteral("Rändern"), "tableauRaendern",
                           QStringLiteral("Neue erste Zeile und Spalte, 1 in der Ecke")));
    unten->addWidget(knopf(QStringLiteral("Tableau löschen"), "tableauLoeschB",
                           QStringLiteral("Alle Felder des Tableaus leeren")));
    unten->addStretch(1);
    spalte->addLayout(unten);
    return zeile;
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
    dezimalenF = feld("dezimalenF", &ViewController::dezimalenF);
    dezimalenF->setReadOnly(true);
    dezimalenF->setFocusPolicy(Qt::NoFocus);
    zeichenBreit(dezimalenF, 3);
    reihe->addWidget(beschriftung(QStringLiteral("Nachkommastellen"), dezimalSlider));
    reihe->addWidget(dezimalSlider);
    reihe->addWidget(dezimalenF);
    reihe->addSpacing(16);

    ueberschreibF = new QCheckBox(QStringLiteral("Überschreiben"));
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

QWidget* Hauptfenster::baueProtokoll() {
    auto* bereich = new QWidget;
    auto* spalte = new QVBoxLayout(bereich);
    spalte->setContentsMargins(0, 0, 0, 0);

    auto* oben = new QHBoxLayout;
    mListeF = feld("mListeF", &ViewController::mListeF);
    mListeF->setReadOnly(true);
    mListeF->setToolTip(QStringLiteral("Namen aller Matrizen der Liste"));
    oben->addWidget(beschriftung(QStringLiteral("Liste"), mListeF));
    oben->addWidget(mListeF, 1);
    infoUndHilfeB = new QPushButton;
    infoUndHilfeB->setObjectName(QStringLiteral("infoUndHilfeB"));
    infoUndHilfeB->setAutoDefault(false);
    connect(infoUndHilfeB, &QPushButton::clicked, this, &Hauptfenster::hilfeOeffnen);
    oben->addWidget(infoUndHilfeB);
    spalte->addLayout(oben);

    ausgabeF = new QPlainTextEdit;
    ausgabeF->setObjectName(QStringLiteral("ausgabeF"));
    ausgabeF->setReadOnly(true);
    ausgabeF->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    ausgabeF->setMinimumWidth(ausgabeF->fontMetrics().horizontalAdvance(QLatin1Char('0')) * 48);
    spalte->addWidget(ausgabeF, 1);

    auto* seiten = new QHBoxLayout;
    seiten->addWidget(beschriftung(QStringLiteral("Protokoll"), ausgabeF));
    seiten->addStretch(1);
    seiten->addWidget(knopf(QStringLiteral("^"), "protoDown", QStringLiteral("Eine Seite zurück")));
    seiten->addWidget(knopf(QStringLiteral("DEL"), "protoDelSeite",
                            QStringLiteral("Diese Seite endgültig löschen")));
    seiten->addWidget(knopf(QStringLiteral("^"), "protoUp", QStringLiteral("Eine Seite vor")));
    seiten->addSpacing(12);

    auto* seitenwahl = new QVBoxLayout;
    seitenwahl->setSpacing(2);
    seitenwahl->addWidget(knopf(QStringLiteral("Seite"), "neueSeite",
                                QStringLiteral("Die Seite mit der eingetragenen Nummer zeigen")));
    seitenF = feld("seitenF", &ViewController::seitenF);
    seitenF->setAlignment(Qt::AlignCenter);
    seitenF->setToolTip(QStringLiteral("Nummer der gezeigten Protokollseite"));
    zeichenBreit(seitenF, 5);
    connect(seitenF, &QLineEdit::returnPressed, this, [this] { fensterAktion("neueSeite"); });
    seitenwahl->addWidget(seitenF);
    seiten->addLayout(seitenwahl);
    spalte->addLayout(seiten);
    return bereich;
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
    setzeText(eingabeFb, vc.eingabeFb);
    setzeHintergrund(eingabeFb, vc.eingabeFbGruen ? gruen : QColor(Qt::white));
    setzeText(eingabeF, vc.eingabeF);
    setzeText(notizF, vc.notizF);
    setzeText(zeileF, vc.zeileF);
    setzeText(spalteF, vc.spalteF);
    setzeText(skalarF, vc.skalarF);
    setzeText(zaehlF, vc.zaehlF);
    setzeText(mListeF, vc.mListeF);
    setzeText(seitenF, vc.seitenF);
    setzeText(dezimalenF, vc.dezimalenF);

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
