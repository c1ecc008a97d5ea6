#include "qt/tableauwidget.h"

#include "window/viewcontroller.h"

#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>

#include <algorithm>

namespace tabulon {

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
    gitter->setSpacing(3);
    // Matrices are what the user reads here: the cells get a slightly larger font than the
    // window, and room for a signed number with seven decimals.
    QFont schrift = font();
    schrift.setPointSizeF(schrift.pointSizeF() * 1.15);
    // Set once here, the cells inherit it: one font to resolve instead of 64.
    setFont(schrift);
    const QFontMetrics masse(schrift);
    const int breite = masse.horizontalAdvance(QStringLiteral("-0.0000000"));
    const int hoehe = masse.height() * 8 / 5;
    for (int i = 0; i < 8; ++i) {
        for (int j = 0; j < 8; ++j) {
            auto* feld = new QLineEdit(this);
            feld->setObjectName(QStringLiteral("a%1%2F").arg(i).arg(j));
            feld->setMinimumSize(breite, hoehe);
            feld->setAlignment(Qt::AlignRight);
            // Hidden cells keep their place, so the visible block does not jump around.
            QSizePolicy politik = feld->sizePolicy();
            politik.setRetainSizeWhenHidden(true);
            feld->setSizePolicy(politik);
            feld->setContextMenuPolicy(Qt::CustomContextMenu);
            feld->installEventFilter(this);
            connect(feld, &QLineEdit::textEdited, this, [this, i, j](const QString& text) {
                this->vc.zelle(i, j).text = text.toStdString();
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
}

void TableauWidget::setzeAktuelleZelle(int zeile, int spalte) {
    aktZeile = zeile;
    aktSpalte = spalte;
}

void TableauWidget::blockEinfuegen(const QString& text) {
    const auto block = zerlegeBlock(text);
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
            vc.zelle(i, j).text = block[r][c].toStdString();
        }
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

// Enter runs through the visible block row by row and starts again at the top left.
void TableauWidget::naechsteZelle() {
    for (int schritt = 1; schritt <= 64; ++schritt) {
        const int k = (aktZeile * 8 + aktSpalte + schritt) % 64;
        if (gehe(k / 8, k % 8, Cursor::alles)) {
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
        switch (taste->key()) {
        case Qt::Key_Up:
            gehe(i - 1, j, Cursor::ende);
            return true;
        case Qt::Key_Down:
            gehe(i + 1, j, Cursor::ende);
            return true;
        case Qt::Key_Left:
            if (feld->cursorPosition() == 0 && !feld->hasSelectedText() &&
                !(taste->modifiers() & Qt::ShiftModifier)) {
                return gehe(i, j - 1, Cursor::ende);
            }
            return false;
        case Qt::Key_Right:
            if (feld->cursorPosition() == feld->text().size() && !feld->hasSelectedText() &&
                !(taste->modifiers() & Qt::ShiftModifier)) {
                return gehe(i, j + 1, Cursor::anfang);
            }
            return false;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            setzeAktuelleZelle(i, j);
            naechsteZelle();
            return true;
        default:
            return false;
        }
    }
    return QWidget::eventFilter(objekt, ereignis);
}

} // namespace tabulon
