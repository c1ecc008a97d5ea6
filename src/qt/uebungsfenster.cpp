#include "qt/uebungsfenster.h"

#include "uebung/uebungscontroller.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace tabulon {

namespace {

QString qs(const std::string& s) {
    return QString::fromStdString(s);
}

QString ohneLetztenUmbruch(const std::string& s) {
    QString t = qs(s);
    if (t.endsWith(QLatin1Char('\n')))
        t.chop(1);
    return t;
}

// The matrices are blocks of text aligned in columns, so they need a font of fixed width. Some
// platforms (the offscreen one among them) answer the request for the system's fixed font with
// a proportional one; then the font matcher is asked for any monospaced family.
QFont festeBreite() {
    QFont f = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (!QFontInfo(f).fixedPitch()) {
        f.setFamilies({QStringLiteral("DejaVu Sans Mono"), QStringLiteral("Noto Sans Mono"),
                       QStringLiteral("monospace")});
        f.setStyleHint(QFont::Monospace);
        f.setFixedPitch(true);
    }
    return f;
}

// The matrices are what the learner works on, so they are set a little larger than the text.
QLabel* matrixFeld(const char* name) {
    auto* l = new QLabel;
    l->setObjectName(QLatin1String(name));
    QFont f = festeBreite();
    f.setPointSizeF(f.pointSizeF() * 1.25);
    l->setFont(f);
    l->setTextInteractionFlags(Qt::TextSelectableByMouse);
    l->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return l;
}

QGroupBox* kasten(const char* titel, QWidget* inhalt) {
    auto* k = new QGroupBox(QString::fromUtf8(titel));
    auto* l = new QVBoxLayout(k);
    l->addWidget(inhalt);
    return k;
}

} // namespace

Uebungsfenster::Uebungsfenster(UebungsController& modell, std::function<void()> nachTableau,
                               QWidget* eltern)
    : QWidget(eltern, Qt::Window), modell(modell), nachTableau(std::move(nachTableau)) {
    setObjectName(QStringLiteral("uebungsfenster"));
    setWindowTitle(QStringLiteral("Zeilenumformungen üben: ") + qs(modell.uebung.name));

    start = matrixFeld("startmatrix");
    aktuell = matrixFeld("aktuelleMatrix");
    schritte = new QListWidget;
    schritte->setObjectName(QStringLiteral("schritte"));
    schritte->setFont(festeBreite());
    // The list is read, not used: Tab goes from field to button without stopping in it.
    schritte->setFocusPolicy(Qt::NoFocus);

    auto* matrizen = new QHBoxLayout;
    matrizen->addWidget(kasten("Startmatrix", start), 1);
    matrizen->addWidget(kasten("Aktuelle Matrix", aktuell), 1);
    matrizen->addWidget(kasten("Schritte", schritte), 1);

    umformung = new QLineEdit;
    umformung->setObjectName(QStringLiteral("umformungF"));
    umformung->setPlaceholderText(
        QStringLiteral("z. B. Z2 - 3 Z1,  Z1 <-> Z2,  1/2 Z3,  II - 3 I"));
    vergleich = new QLineEdit;
    vergleich->setObjectName(QStringLiteral("vergleichF"));
    vergleich->setPlaceholderText(QStringLiteral("Name einer Matrix der Liste"));
    vergleich->setMaxLength(1);
    auto* umformungLabel = new QLabel(QStringLiteral("Um&formung:"));
    umformungLabel->setBuddy(umformung);
    auto* vergleichLabel = new QLabel(QStringLiteral("Ver&gleich mit:"));
    vergleichLabel->setBuddy(vergleich);

    // Alt plus the underlined letter fires a button; Ctrl and plain keys stay with the fields.
    struct Knopf {
        const char* name;
        const char* text;
    };
    const Knopf knoepfe[] = {
        {"umformenB", "&Umformen"},
        {"rueckgaengigB", "&Rückgängig"},
        {"tippB", "&Tipp"},
        {"pruefenB", "&Prüfen"},
        {"vergleichenB", "&Vergleichen"},
        {"insTableauB", "&Ins Tableau"},
        {"texB", "Te&X"},
    };
    QPushButton* knopf[7];
    for (int i = 0; i < 7; ++i) {
        knopf[i] = new QPushButton(QString::fromUtf8(knoepfe[i].text));
        knopf[i]->setObjectName(QLatin1String(knoepfe[i].name));
        knopf[i]->setAutoDefault(false);
        const char* name = knoepfe[i].name;
        connect(knopf[i], &QPushButton::clicked, this, [this, name] { aktion(name); });
    }
    connect(umformung, &QLineEdit::returnPressed, this, [this] { aktion("umformenB"); });
    connect(vergleich, &QLineEdit::returnPressed, this, [this] { aktion("vergleichenB"); });
    auto* schliessen = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    connect(schliessen, &QShortcut::activated, this, &QWidget::close);

    auto* eingabe = new QGridLayout;
    eingabe->addWidget(umformungLabel, 0, 0);
    eingabe->addWidget(umformung, 0, 1);
    eingabe->addWidget(knopf[0], 0, 2);
    eingabe->addWidget(knopf[1], 0, 3);
    eingabe->addWidget(knopf[2], 0, 4);
    eingabe->addWidget(knopf[3], 0, 5);
    eingabe->addWidget(vergleichLabel, 1, 0);
    eingabe->addWidget(vergleich, 1, 1);
    eingabe->addWidget(knopf[4], 1, 2);
    eingabe->addWidget(knopf[5], 1, 3);
    eingabe->addWidget(knopf[6], 1, 4);
    eingabe->setColumnStretch(1, 1);

    notiz = new QLabel;
    notiz->setObjectName(QStringLiteral("uebungsnotiz"));
    notiz->setWordWrap(true);
    notiz->setMinimumHeight(notiz->fontMetrics().lineSpacing() * 2);
    notiz->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto* haupt = new QVBoxLayout(this);
    haupt->addLayout(matrizen, 1);
    haupt->addLayout(eingabe);
    haupt->addWidget(notiz);

    setTabOrder(umformung, knopf[0]);
    for (int i = 0; i < 3; ++i)
        setTabOrder(knopf[i], knopf[i + 1]);
    setTabOrder(knopf[3], vergleich);
    setTabOrder(vergleich, knopf[4]);
    setTabOrder(knopf[4], knopf[5]);
    setTabOrder(knopf[5], knopf[6]);

    ausModell();
    umformung->setFocus();
}

void Uebungsfenster::aktion(const char* knopf) {
    modell.umformungF = umformung->text().toStdString();
    modell.vergleichF = vergleich->text().toStdString();
    modell.fensterAktion(knopf);
    ausModell();
    if (std::string_view(knopf) == "insTableauB" && nachTableau)
        nachTableau();
}

void Uebungsfenster::ausModell() {
    start->setText(ohneLetztenUmbruch(modell.startText()));
    aktuell->setText(ohneLetztenUmbruch(modell.aktuellText()));
    schritte->clear();
    for (const auto& s : modell.schrittTexte())
        schritte->addItem(qs(s));
    schritte->scrollToBottom();
    umformung->setText(qs(modell.umformungF));
    vergleich->setText(qs(modell.vergleichF));
    notiz->setText(qs(modell.notizF));
}

} // namespace tabulon
