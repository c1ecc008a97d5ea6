#include "qt/hilfefenster.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tabulon {

Hilfefenster::Hilfefenster(QWidget* eltern) : QDialog(eltern) {
    setObjectName(QStringLiteral("TabulonHilfen"));
    setAttribute(Qt::WA_DeleteOnClose);
    setModal(false);

    auto* knoepfe = new QGridLayout;
    knoepfe->setSpacing(4);
    const auto& themen = TabulonHilfen::themen();
    const int proSpalte = 12;
    for (std::size_t k = 0; k < themen.size(); ++k) {
        const auto& thema = themen[k];
        auto* knopf =
            new QPushButton(QString::fromUtf8(thema.knopf.data(), qsizetype(thema.knopf.size())));
        knopf->setObjectName(
            QString::fromUtf8(thema.aktion.data(), qsizetype(thema.aktion.size())));
        knopf->setAutoDefault(false);
        const std::string_view name = thema.aktion;
        connect(knopf, &QPushButton::clicked, this, [this, name] { aktion(name); });
        knoepfe->addWidget(knopf, int(k) % proSpalte, int(k) / proSpalte);
    }

    hifeF = new QPlainTextEdit;
    hifeF->setObjectName(QStringLiteral("hifeF"));
    hifeF->setReadOnly(true);
    hifeF->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    hifeF->setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('x')) * 70);

    auto* zu = new QPushButton(QStringLiteral("Schließen"));
    zu->setObjectName(QStringLiteral("fensterZuB"));
    zu->setAutoDefault(false);
    connect(zu, &QPushButton::clicked, this, [this] { aktion("fensterZuB"); });

    auto* links = new QVBoxLayout;
    links->addLayout(knoepfe);
    links->addStretch(1);
    links->addWidget(zu);

    auto* ganz = new QHBoxLayout(this);
    ganz->addLayout(links);
    ganz->addWidget(hifeF, 1);

    hilfen.viewDidLoad();
    zeigeModell();
    resize(sizeHint().expandedTo(QSize(960, 620)));
}

void Hilfefenster::aktion(std::string_view name) {
    if (name == "fensterZuB") {
        hilfen.fensterZuB();
    } else {
        hilfen.hilfeAktion(name);
    }
    zeigeModell();
    if (!hilfen.offen) {
        close();
    }
}

void Hilfefenster::showEvent(QShowEvent* ereignis) {
    QDialog::showEvent(ereignis);
    hilfen.viewDidAppear();
    zeigeModell();
}

void Hilfefenster::zeigeModell() {
    const QString text = QString::fromStdString(hilfen.hifeF);
    if (hifeF->toPlainText() != text) {
        hifeF->setPlainText(text);
    }
    if (!hilfen.titel.empty()) {
        setWindowTitle(QString::fromStdString(hilfen.titel));
    }
}

} // namespace tabulon
