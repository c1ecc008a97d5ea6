#include "qt/tableauwidget.h"

#include "qt/eintragspruefung.h"
#include "textmatrix/zahltext.h"
#include "window/tableau.h"
#include "window/viewcontroller.h"

#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace tabulon {

namespace {

// Marked cells: a warm background that stays readable on a projector, dark red text.
const QColor markierGrund(0xff, 0xd6, 0xc2);
const QColor markierText(0x8b, 0x1a, 0x00);

// The font at this fraction of its size; a font given in pixels stays in pixels.
QFont skaliert(const QFont& schrift, qreal faktor) {
    QFont neu = schrift;
    if (schrift.pointSizeF() > 0) {
        neu.setPointSizeF(std::floor(schrift.pointSizeF() * faktor * 4) / 4);
    } else {
        neu.setPixelSize(std::max(1, static_cast<int>(schrift.pixelSize() * faktor)));
    }
    return neu;
}

qreal groesse(const QFont& schrift) {
    return schrift.pointSizeF() > 0 ? schrift.pointSizeF() : schrift.pixelSize();
}

} // namespace

std::vector<std::vector<QString>> zerlegeBlock(const QString& text) {
    QString rein = text;
    rein.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    rein.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    QStringList zeilen = rein.split(QLatin1Char('\n'));
    while (!zeilen.isEmpty() && zeilen.last().trimmed().isEmpty()) {
        zeilen.removeLast();
    }

    const bool tabs = rein.contains(QLatin1Char('\t'));
    const bool semikolons = !tabs && rein.contains(QLatin1Char(';'));
    static const QRegularExpression leerraum(QStringLiteral("[ ]+"));

    std::vector<std::vector<QString>> block;
    for (const QString& zeile : zeilen) {
        QStringList felder;
        if (tabs) {
            felder = zeile.split(QLatin1Char('\t'));
        } else if (semikolons) {
            felder = zeile.split(QLatin1Char(';'));
        } else {
            felder = zeile.trimmed().split(leerraum, Qt::SkipEmptyParts);
        }
        std::vector<QString> reihe;
        for (const QString& feld : felder) {
            // Separators belong to the layout of the source, not to the entry.
            reihe.push_back(tabs || semikolons ? feld.trimmed() : feld);
        }
        block.push_back(std::move(reihe));
    }
    return block;
}

bool istBlock(const QString& text) {
    const QString ohneRand = text.trimmed();
    return text.contains(QLatin1Char('\t')) || text.contains(QLatin1Char('\n')) ||
           text.contains(QLatin1Char(';')) || ohneRand.contains(QLatin1Char(' '));
}

TableauWidget::TableauWidget(ViewController& vc, QWidget* eltern) : QWidget(eltern), vc(vc) {
    auto* gitter = new QGridLayout(this);
    gitter->setContentsMargins(0, 0, 0, 0);
    gitter->setSpacing(2);
    // Matrices are what the user reads here: the cells start from a slightly larger font than
    // the window's and shrink down to 70 % of the window's before a text is cut: that still
    // shows eight results of 21 characters side by side in a window 1024 pixels wide.
    grundSchrift = font();
    grundSchrift = skaliert(grundSchrift, 1.15);
    kleinstePunkte = groesse(font()) * 0.7;
    // Set once here, the cells inherit it: one font to resolve instead of 64.
    setFont(grundSchrift);
    const int breite = QFontMetrics(grundSchrift).horizontalAdvance(QStringLiteral("-0.000000"));
    for (int i = 0; i < 8; ++i) {
        for (int j = 0; j < 8; ++j) {
            auto* feld = new QLineEdit(this);
            feld->setObjectName(QStringLiteral("a%1%2F").arg(i).arg(j));
            feld->setMinimumWidth(breite);
            // The height of the starting font, kept when the font shrinks, so the grid does not
            // jump up and down while the window is resized.
            feld->setFixedHeight(feld->sizeHint().height());
            feld->setAlignment(Qt::AlignRight);
            // Hidden cells keep their place, so the visible block does not jump around; the
            // cells share every pixel of width the window gives.
            QSizePolicy politik(QSizePolicy::Expanding, QSizePolicy::Fixed);
            politik.setRetainSizeWhenHidden(true);
            feld->setSizePolicy(politik);
            feld->setContextMenuPolicy(Qt::CustomContextMenu);
            feld->installEventFilter(this);
            connect(feld, &QLineEdit::textEdited, this, [this, i, j](const QString& text) {
                this->vc.zelle(i, j).text = text.toStdString();
                zelleZeigen(i, j);
            });
            connect(feld, &QLineEdit::customContextMenuRequested, this,
                    [this, i, j](const QPoint& ort) { kontextMenue(i, j, ort); });
            gitter->addWidget(feld, i, j);
            zellen[static_cast<std::size_t>(i * 8 + j)] = feld;
        }
    }
    for (std::size_t k = 1; k < zellen.size(); ++k) {
        setTabOrder(zellen[k - 1], zellen[k]);
    }
}

void TableauWidget::zeigeModell() {
    for (int i = 0; i < 8; ++i) {
        for (int j = 0; j < 8; ++j) {
            const Zelle& z = vc.zelle(i, j);
            QLineEdit* feld = zelle(i, j);
            const QString text = QString::fromStdString(z.text);
            if (feld->text() != text) {
                feld->setText(text);
            }
            feld->setVisible(!z.versteckt);
        }
    }
    schriftAnpassen();
}

void TableauWidget::resizeEvent(QResizeEvent* ereignis) {
    QWidget::resizeEvent(ereignis);
    schriftAnpassen();
}

// The room for text inside a cell: its contents less the line edit's own margins (2 pixels on
// each side) and one pixel for the cursor.
int TableauWidget::textBreite(const QLineEdit* feld) const {
    QStyleOptionFrame option;
    option.initFrom(feld);
    option.rect = feld->rect();
    option.lineWidth = feld->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, feld);
    const QRect inhalt = feld->style()->subElementRect(QStyle::SE_LineEditContents, &option, feld);
    return inhalt.width() - 5;
}

bool TableauWidget::passtGanz(int zeile, int spalte) const {
    const QLineEdit* feld = zelle(zeile, spalte);
    return feld->fontMetrics().horizontalAdvance(feld->text()) <= textBreite(feld);
}

// One font for all cells, so that a column of numbers reads evenly: the starting font when the
// longest visible text fits, else smaller by the ratio, checked against the real metrics, down
// to 70 % of the window's font.
void TableauWidget::schriftAnpassen() {
    const int platz = textBreite(zelle(0, 0));
    int breitester = 0;
    const QFontMetrics grundMasse(grundSchrift);
    for (int k = 0; k < 64; ++k) {
        if (!vc.zellen[static_cast<std::size_t>(k)].versteckt) {
            breitester =
                std::max(breitester, grundMasse.horizontalAdvance(zellen[std::size_t(k)]->text()));
        }
    }
    QFont schrift = grundSchrift;
    if (breitester > platz && platz > 0) {
        const qreal kleinsteFaktor = kleinstePunkte / groesse(grundSchrift);
        qreal faktor = std::max(kleinsteFaktor, qreal(platz) / breitester);
        schrift = skaliert(grundSchrift, faktor);
        const auto zuBreit = [this, platz](const QFont& probe) {
            const QFontMetrics masse(probe);
            for (std::size_t k = 0; k < zellen.size(); ++k) {
                if (!vc.zellen[k].versteckt && masse.horizontalAdvance(zellen[k]->text()) > platz) {
                    return true;
                }
            }
            return false;
        };
        // Hinting makes widths grow a little unevenly with the size; the real metrics decide.
        while (faktor > kleinsteFaktor && zuBreit(schrift)) {
            faktor = std::max(kleinsteFaktor, faktor - 0.02);
            schrift = skaliert(grundSchrift, faktor);
        }
    }
    if (schrift != font()) {
        setFont(schrift);
    }
    for (int i = 0; i < 8; ++i) {
        for (int j = 0; j < 8; ++j) {
            zelleZeigen(i, j);
        }
    }
}

void TableauWidget::zelleZeigen(int zeile, int spalte) {
    QLineEdit* feld = zelle(zeile, spalte);
    const Eintragsart art = eintragsart(vc.zelle(zeile, spalte).text);
    const bool markiert = art == Eintragsart::keineZahl || art == Eintragsart::dezimalkomma;
    if (feld->property("markiert").toBool() != markiert) {
        feld->setProperty("markiert", markiert);
        QPalette palette;
        if (markiert) {
            palette.setColor(QPalette::Base, markierGrund);
            palette.setColor(QPalette::Text, markierText);
        }
        feld->setPalette(palette);
    }

    const bool passt = passtGanz(zeile, spalte);
    QStringList zeilen;
    if (!passt) {
        zeilen << QStringLiteral("<nobr>") + feld->text().toHtmlEscaped() +
                      QStringLiteral("</nobr>");
    }
    if (markiert) {
        zeilen << eintragsHinweis(art).toHtmlEscaped();
    }
    const QString hinweis = zeilen.join(QStringLiteral("<br>"));
    if (feld->toolTip() != hinweis) {
        feld->setToolTip(hinweis);
    }
    // A cut number keeps its sign and integer part in view; its last digits are the ones a
    // reader can spare.
    if (!passt && !feld->hasFocus()) {
        feld->setCursorPosition(0);
    }
}

void TableauWidget::setzeAktuelleZelle(int zeile, int spalte) {
    aktZeile = zeile;
    aktSpalte = spalte;
}

void TableauWidget::blockEinfuegen(const QString& text) {
    const auto block = zerlegeBlock(text);
    int letzteZeile = -1;
    int letzteSpalte = -1;
    int kommas = 0;
    for (std::size_t r = 0; r < block.size(); ++r) {
        const int i = aktZeile + static_cast<int>(r);
        if (i > 7) {
            break;
        }
        for (std::size_t c = 0; c < block[r].size(); ++c) {
            const int j = aktSpalte + static_cast<int>(c);
            if (j > 7) {
                break;
            }
            std::string eintrag = block[r][c].toStdString();
            if (auto punkt = mitDezimalpunkt(eintrag)) {
                eintrag = std::move(*punkt);
                ++kommas;
            }
            vc.zelle(i, j).text = std::move(eintrag);
            letzteZeile = std::max(letzteZeile, i);
            letzteSpalte = std::max(letzteSpalte, j);
        }
    }
    // The visible block grows as with the size buttons, so that nothing lands in a hidden cell.
    while (tableauZustand().rowmax < letzteZeile) {
        vc.rplusB();
    }
    while (tableauZustand().columnmax < letzteSpalte) {
        vc.cplusB();
    }
    if (kommas == 1) {
        vc.notiz("Beim Einfügen wurde 1 Dezimalkomma durch einen Punkt ersetzt.");
    } else if (kommas > 1) {
        vc.notiz("Beim Einfügen wurden " + ganzText(kommas) +
                 " Dezimalkommas durch Punkte ersetzt.");
    }
    zeigeModell();
    if (nachEinfuegen) {
        nachEinfuegen();
    }
}

void TableauWidget::blockAusZwischenablage() {
    blockEinfuegen(QApplication::clipboard()->text());
}

QString TableauWidget::sichtbarerBlockText() const {
    QStringList zeilen;
    for (int i = 0; i < 8; ++i) {
        if (!sichtbar(i, 0)) {
            continue;
        }
        QStringList felder;
        for (int j = 0; j < 8; ++j) {
            if (sichtbar(i, j)) {
                felder << QString::fromStdString(vc.zelle(i, j).text);
            }
        }
        zeilen << felder.join(QLatin1Char('\t'));
    }
    return zeilen.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

void TableauWidget::sichtbarenBlockKopieren() {
    QApplication::clipboard()->setText(sichtbarerBlockText());
}

bool TableauWidget::sichtbar(int zeile, int spalte) const {
    return zeile >= 0 && zeile < 8 && spalte >= 0 && spalte < 8 &&
           !vc.zelle(zeile, spalte).versteckt;
}

bool TableauWidget::gehe(int zeile, int spalte, Cursor cursor) {
    if (!sichtbar(zeile, spalte)) {
        return false;
    }
    QLineEdit* feld = zelle(zeile, spalte);
    feld->setFocus(Qt::OtherFocusReason);
    switch (cursor) {
    case Cursor::anfang:
        feld->deselect();
        feld->home(false);
        break;
    case Cursor::ende:
        feld->deselect();
        feld->end(false);
        break;
    case Cursor::alles:
        feld->selectAll();
        break;
    }
    return true;
}

// Enter goes down as in a spreadsheet, then on to the top of the next column, and after the
// last visible cell back to the top left.
void TableauWidget::naechsteZelleAbwaerts() {
    for (int schritt = 1; schritt <= 64; ++schritt) {
        const int k = (aktSpalte * 8 + aktZeile + schritt) % 64;
        if (gehe(k % 8, k / 8, Cursor::alles)) {
            return;
        }
    }
}

void TableauWidget::kontextMenue(int zeile, int spalte, const QPoint& ort) {
    QLineEdit* feld = zelle(zeile, spalte);
    setzeAktuelleZelle(zeile, spalte);
    QMenu* menue = feld->createStandardContextMenu();
    menue->addSeparator();
    QAction* einfuegen = menue->addAction(QStringLiteral("Block ab dieser Zelle einfügen"));
    QAction* kopieren = menue->addAction(QStringLiteral("Sichtbaren Block kopieren"));
    QAction* gewaehlt = menue->exec(feld->mapToGlobal(ort));
    delete menue;
    if (gewaehlt == einfuegen) {
        blockAusZwischenablage();
    } else if (gewaehlt == kopieren) {
        sichtbarenBlockKopieren();
    }
}

bool TableauWidget::eventFilter(QObject* objekt, QEvent* ereignis) {
    auto* feld = qobject_cast<QLineEdit*>(objekt);
    if (!feld) {
        return QWidget::eventFilter(objekt, ereignis);
    }
    const auto* position = std::find(zellen.begin(), zellen.end(), feld);
    const int k = static_cast<int>(position - zellen.begin());
    const int i = k / 8;
    const int j = k % 8;

    if (ereignis->type() == QEvent::FocusIn) {
        setzeAktuelleZelle(i, j);
        if (!passtGanz(i, j)) {
            QToolTip::showText(feld->mapToGlobal(QPoint(0, feld->height())), feld->toolTip(), feld);
        }
    } else if (ereignis->type() == QEvent::FocusOut) {
        if (!passtGanz(i, j)) {
            feld->setCursorPosition(0);
        }
    } else if (ereignis->type() == QEvent::KeyPress) {
        auto* taste = static_cast<QKeyEvent*>(ereignis);
        if (taste->matches(QKeySequence::Paste)) {
            const QString text = QApplication::clipboard()->text();
            if (istBlock(text)) {
                setzeAktuelleZelle(i, j);
                blockEinfuegen(text);
                return true;
            }
            return false;
        }
        if (taste->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) {
            return false;
        }
        const bool umschalt = taste->modifiers() & Qt::ShiftModifier;
        // A cell entered by Tab or Enter has its text selected: the arrows then go on to the
        // next cell, as they do at the edge of the text.
        const bool allesGewaehlt = feld->hasSelectedText() && feld->selectedText() == feld->text();
        switch (taste->key()) {
        case Qt::Key_Up:
            gehe(i - 1, j, Cursor::ende);
            return true;
        case Qt::Key_Down:
            gehe(i + 1, j, Cursor::ende);
            return true;
        case Qt::Key_Left:
            if (!umschalt &&
                (allesGewaehlt || (feld->cursorPosition() == 0 && !feld->hasSelectedText()))) {
                return gehe(i, j - 1, Cursor::ende);
            }
            return false;
        case Qt::Key_Right:
            if (!umschalt && (allesGewaehlt || (feld->cursorPosition() == feld->text().size() &&
                                                !feld->hasSelectedText()))) {
                return gehe(i, j + 1, Cursor::anfang);
            }
            return false;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            setzeAktuelleZelle(i, j);
            naechsteZelleAbwaerts();
            return true;
        default:
            return false;
        }
    }
    return QWidget::eventFilter(objekt, ereignis);
}

} // namespace tabulon
