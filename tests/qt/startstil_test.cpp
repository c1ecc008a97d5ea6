// The start style may change nothing that is seen: the windows look pixel for pixel as under the
// style Qt chose, and the overflow icon it puts off is, once asked for, the style's own. A test
// program of its own, because it replaces the application's style.

#include "app/appdelegate.h"
#include "app/zustand.h"
#include "qt/hauptfenster.h"
#include "qt/hilfefenster.h"
#include "qt/qtplattform.h"
#include "qt/startstil.h"
#include "terms/parser.h"
#include "textmatrix/liste.h"
#include "window/tableau.h"
#include "window/viewcontroller.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QtTest>

#include <memory>
#include <vector>

using namespace tabulon;

namespace {

// The main window with a stored matrix, one of its menus and the help window, as pictures.
std::vector<QImage> bilder() {
    allesZuruecksetzen();
    QtPlattform plattform;
    ViewController vc(plattform);
    AppDelegate delegate;
    Hauptfenster fenster(vc, delegate, plattform);
    fenster.show();
    vc.zelle(0, 0).text = "1.5";
    vc.eingabeFb = "a";
    fenster.fensterAktion("einlistB");

    std::vector<QImage> ergebnis{fenster.grab().toImage()};
    QMenu* datei = fenster.menuBar()->actions().value(0)->menu();
    ergebnis.push_back(datei->grab().toImage());
    Hilfefenster hilfe;
    hilfe.show();
    ergebnis.push_back(hilfe.grab().toImage());
    return ergebnis;
}

QImage gemalt(const QIcon& icon, int kante) {
    QImage bild(kante, kante, QImage::Format_ARGB32_Premultiplied);
    bild.fill(Qt::transparent);
    QPainter maler(&bild);
    icon.paint(&maler, bild.rect());
    return bild;
}

} // namespace

class StartStilTest : public QObject {
    Q_OBJECT

private slots:
    // First, while the application still has the style Qt chose.
    void fensterSehenAusWieUnterDemGewaehltenStil() {
        // The first pictures of a process differ from all later ones in the slider's ticks (Fusion
        // fills a cache as it draws), so the comparison starts with the second.
        bilder();
        const std::vector<QImage> vorher = bilder();
        startStilEinrichten();
        QVERIFY(dynamic_cast<StartStil*>(QApplication::style()));
        const std::vector<QImage> nachher = bilder();
        QCOMPARE(nachher.size(), vorher.size());
        for (std::size_t k = 0; k < vorher.size(); ++k) {
            QVERIFY2(nachher[k] == vorher[k], qPrintable(QString::number(k)));
        }
    }

    void ueberlaufSymbolIstDasDesStils() {
        const std::unique_ptr<QStyle> basis(QStyleFactory::create(QStringLiteral("Fusion")));
        StartStil stil(QStyleFactory::create(QStringLiteral("Fusion")));
        const QStyle::StandardPixmap symbol = QStyle::SP_ToolBarHorizontalExtensionButton;
        QStyleOption links;
        links.direction = Qt::RightToLeft;
        const QStyleOption* optionen[] = {nullptr, &links};
        for (const QStyleOption* option : optionen) {
            const QIcon spaet = stil.standardIcon(symbol, option);
            const QIcon echt = basis->standardIcon(symbol, option);
            QVERIFY(!spaet.isNull());
            QCOMPARE(spaet.availableSizes(), echt.availableSizes());
            for (int kante : {8, 16, 24, 40}) {
                const QSize groesse(kante, kante);
                QCOMPARE(spaet.actualSize(groesse), echt.actualSize(groesse));
                for (qreal verhaeltnis : {1.0, 2.0}) {
                    QCOMPARE(spaet.pixmap(groesse, verhaeltnis).toImage(),
                             echt.pixmap(groesse, verhaeltnis).toImage());
                }
                QCOMPARE(gemalt(spaet, kante), gemalt(echt, kante));
            }
        }
        // The right-to-left arrow differs, so the direction has reached the style.
        QVERIFY(stil.standardIcon(symbol, &links).pixmap(16).toImage() !=
                stil.standardIcon(symbol).pixmap(16).toImage());
        // Every other icon comes from the style as it is.
        QCOMPARE(stil.standardIcon(QStyle::SP_ArrowUp).pixmap(16).toImage(),
                 basis->standardIcon(QStyle::SP_ArrowUp).pixmap(16).toImage());
    }
};

QTEST_MAIN(StartStilTest)
#include "startstil_test.moc"
