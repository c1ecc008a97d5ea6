#include "qt/qtplattform.h"

#include "files/ordner.h"
#include "qt/uebungsfenster.h"

#include <QApplication>
#include <QFont>
#include <QMessageBox>
#include <QPainter>
#include <QPixmap>
#include <QProgressDialog>
#include <QPushButton>
#include <QRandomGenerator>

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
    if (beendenAbfangen) {
        abgefangenerStatus = status;
        return;
    }
    beendetSich = true;
    QApplication::closeAllWindows();
    std::exit(status);
}

std::optional<std::filesystem::path> QtPlattform::dokumentenOrdner() {
    // The script driver asks the same function, so both use the same folder.
    return standardDokumentenOrdner();
}

QtPlattform::QtPlattform() = default;
QtPlattform::~QtPlattform() = default;

bool QtPlattform::fortschritt(std::int64_t fertig, std::int64_t gesamt) {
    constexpr qint64 ab = 500;     // ms before the dialog appears
    constexpr qint64 abstand = 50; // ms between two looks at the window
    constexpr int schritte = 1000; // the bar's range; n may exceed an int
    if (!fortschrittUhr.isValid()) {
        fortschrittUhr.start();
        naechsterBlick = ab;
    }
    // A run of a small term takes microseconds, a look at the window far more: look only now
    // and then, and not at all during the first half second.
    const qint64 jetzt = fortschrittUhr.elapsed();
    if (jetzt < naechsterBlick) {
        return true;
    }
    naechsterBlick = jetzt + abstand;
    if (!fortschrittDialog) {
        fortschrittDialog = std::make_unique<QProgressDialog>(elternFenster);
        fortschrittDialog->setWindowTitle(QStringLiteral("Tabulon"));
        fortschrittDialog->setCancelButtonText(QStringLiteral("Abbrechen"));
        // Application-modal: while the command runs, no other action of the window may start.
        fortschrittDialog->setWindowModality(Qt::ApplicationModal);
        fortschrittDialog->setAutoClose(false);
        fortschrittDialog->setAutoReset(false);
        fortschrittDialog->setMinimumDuration(0);
        fortschrittDialog->setRange(0, schritte);
        fortschrittDialog->setObjectName(QStringLiteral("fortschrittDialog"));
        fortschrittDialog->show();
    }
    fortschrittDialog->setLabelText(
        QStringLiteral("Lauf %1 von %2 ist fertig.").arg(fertig).arg(gesamt));
    fortschrittDialog->setValue(
        static_cast<int>(static_cast<double>(fertig) / static_cast<double>(gesamt) * schritte));
    QApplication::processEvents();
    return !fortschrittDialog->wasCanceled();
}

void QtPlattform::fortschrittEnde() {
    fortschrittDialog.reset();
    fortschrittUhr.invalidate();
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
