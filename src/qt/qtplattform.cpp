#include "qt/qtplattform.h"

#include "qt/uebungsfenster.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QMessageBox>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QRandomGenerator>
#include <QStandardPaths>

#include <cstdlib>

namespace tabulon {

void QtPlattform::piep() {
    QApplication::beep();
    if (blinken) {
        blinken();
    }
}

int QtPlattform::frage(const std::string& nachricht, const std::string& option1,
                       const std::string& option2) {
    if (vorDerFrage) {
        vorDerFrage();
    }
    QMessageBox box(elternFenster);
    box.setWindowTitle(QStringLiteral("Tabulon"));
    box.setText(QString::fromStdString(nachricht));
    box.setIconPixmap(anwendungsIcon(64));
    QPushButton* erster = box.addButton(QString::fromStdString(option1), QMessageBox::AcceptRole);
    QPushButton* zweiter = box.addButton(QString::fromStdString(option2), QMessageBox::RejectRole);
    erster->setObjectName(QStringLiteral("ersterKnopf"));
    zweiter->setObjectName(QStringLiteral("zweiterKnopf"));
    box.setDefaultButton(erster);
    box.setEscapeButton(zweiter);
    box.exec();
    const auto* geklickt = box.clickedButton();
    if (geklickt == erster) {
        return ersterKnopf;
    }
    if (geklickt == zweiter) {
        return zweiterKnopf;
    }
    return 0;
}

std::uint32_t QtPlattform::zufallUnter(std::uint32_t grenze) {
    if (grenze == 0) {
        return 0;
    }
    return QRandomGenerator::global()->bounded(grenze);
}

void QtPlattform::beenden(int status) {
    QApplication::closeAllWindows();
    std::exit(status);
}

std::optional<std::filesystem::path> QtPlattform::dokumentenOrdner() {
    const QString ort = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (ort.isEmpty() || !QDir().mkpath(ort)) {
        return std::nullopt;
    }
    return std::filesystem::path(QFile::encodeName(ort).toStdString());
}

QPixmap anwendungsIcon(int kante) {
    QPixmap bild(kante, kante);
    bild.fill(Qt::transparent);
    QPainter maler(&bild);
    maler.setRenderHint(QPainter::Antialiasing);
    const qreal k = kante;
    maler.setPen(Qt::NoPen);
    maler.setBrush(QColor(0x2f, 0x5d, 0x8a));
    maler.drawRoundedRect(QRectF(0, 0, k, k), k * 0.18, k * 0.18);

    // A matrix in brackets: the program's subject at a glance.
    QPen stift(Qt::white, k * 0.06, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
    maler.setPen(stift);
    maler.setBrush(Qt::NoBrush);
    const qreal oben = k * 0.2;
    const qreal unten = k * 0.8;
    const qreal haken = k * 0.1;
    maler.drawPolyline(QPolygonF({QPointF(k * 0.22 + haken, oben), QPointF(k * 0.22, oben),
                                  QPointF(k * 0.22, unten), QPointF(k * 0.22 + haken, unten)}));
    maler.drawPolyline(QPolygonF({QPointF(k * 0.78 - haken, oben), QPointF(k * 0.78, oben),
                                  QPointF(k * 0.78, unten), QPointF(k * 0.78 - haken, unten)}));
    QFont schrift = maler.font();
    schrift.setBold(true);
    schrift.setPixelSize(static_cast<int>(k * 0.42));
    maler.setFont(schrift);
    maler.drawText(QRectF(0, 0, k, k), Qt::AlignCenter, QStringLiteral("M"));
    return bild;
}

void QtPlattform::uebungGeoeffnet(UebungsController& uebung) {
    // The model of the old window is already gone, so the window goes at once, not later.
    delete uebungsfenster.data();
    auto* fenster = new Uebungsfenster(
        uebung,
        [this] {
            if (vorDerFrage) {
                vorDerFrage(); // copies the main window's model onto its widgets
            }
        },
        elternFenster);
    fenster->setAttribute(Qt::WA_DeleteOnClose);
    uebungsfenster = fenster;
    fenster->show();
    fenster->raise();
    fenster->activateWindow();
}

} // namespace tabulon
