// The desktop window against its model: widget names, edits and clicks reach the model, its
// answers reach the screen, and the Qt question returns the button pressed.

#include "app/appdelegate.h"
#include "app/hilfetexte.h"
#include "app/tabulonhilfen.h"
#include "app/zustand.h"
#include "qt/hauptfenster.h"
#include "qt/hilfefenster.h"
#include "qt/myview.h"
#include "qt/qtplattform.h"
#include "qt/tableauwidget.h"
#include "terms/parser.h"
#include "textmatrix/liste.h"
#include "window/aktionen.h"
#include "window/tableau.h"
#include "window/viewcontroller.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QtTest>

#include <memory>

using namespace tabulon;

namespace {

struct Aufbau {
    QtPlattform plattform;
    ViewController vc{plattform};
    AppDelegate delegate;
    std::unique_ptr<Hauptfenster> fenster;
    int blinkZaehler = 0;

    Aufbau() {
        allesZuruecksetzen();
        fenster = std::make_unique<Hauptfenster>(vc, delegate, plattform);
        plattform.blinken = [this] { ++blinkZaehler; };
        fenster->show();
        QApplication::setActiveWindow(fenster.get());
    }

    template <typename T> T* finde(const QString& name) const {
        return fenster->findChild<T*>(name);
    }
    QLineEdit* zelle(int i, int j) const {
        return finde<QLineEdit>(QStringLiteral("a%1%2F").arg(i).arg(j));
    }
};

} // namespace

class FensterTest : public QObject {
    Q_OBJECT

    static QString text(std::string_view name) {
        return QString::fromUtf8(name.data(), qsizetype(name.size()));
    }

    // Every menu action of the model has its entry, and every entry of the menu bar is a menu
    // action, a window action (its name with an M added) or one of the window's own.
    static void menueUndModellPassenZusammen(const Aufbau& a) {
        for (const Menueaktion& aktion : menueaktionen()) {
            QVERIFY2(a.finde<QAction>(text(aktion.name)), aktion.name.data());
        }
        const QStringList eigene = {
            QStringLiteral("programmBeenden"), QStringLiteral("blockKopieren"),
            QStringLiteral("blockEinfuegen"), QStringLiteral("infoUndHilfe"),
            QStringLiteral("tastenkuerzel")};
        int eintraege = 0;
        for (QAction* menue : a.fenster->menuBar()->actions()) {
            for (QAction* eintrag : menue->menu()->actions()) {
                const QString name = eintrag->objectName();
                if (eintrag->isSeparator() || eigene.contains(name)) {
                    continue;
                }
                ++eintraege;
                const std::string n = name.toStdString();
                const bool bekannt = menueaktion(n) != nullptr ||
                                     (n.ends_with('M') && fensteraktion(n.substr(0, n.size() - 1)));
                QVERIFY2(bekannt, qPrintable(name));
            }
        }
        QVERIFY(eintraege >= int(menueaktionen().size()));
    }

private slots:
    // Every widget and menu entry carries the model's name, and one pass over the window reaches
    // the model by typing, a button, the box, the slider, a menu entry, the term field's Enter
    // and a shortcut pressed in a cell.
    void einDurchgangDurchsFenster() {
        Aufbau a;
        for (int i = 0; i < 64; ++i) {
            QVERIFY(a.zelle(i / 8, i % 8) && a.zelle(i / 8, i % 8)->isVisible());
        }
        for (const Fensteraktion& aktion : fensteraktionen()) {
            QVERIFY2(!aktion.knopf || a.finde<QPushButton>(text(aktion.name)), aktion.name.data());
        }
        for (const char* name : {"infoUndHilfeB", "genEinheitsmatrixB"}) {
            QVERIFY2(a.finde<QPushButton>(name), name);
        }
        // Every field of the model is shown, and only those it calls typeable take typing.
        for (const Textfeld& feld : textfelder()) {
            QVERIFY2(a.finde<QWidget>(text(feld.name)), feld.name.data());
            if (auto* zeile = a.finde<QLineEdit>(text(feld.name))) {
                QVERIFY2(zeile->isReadOnly() == !feld.tippbar, feld.name.data());
            }
        }
        menueUndModellPassenZusammen(a);
        auto* regler = a.finde<QSlider>("dezimalSlider");
        QCOMPARE(QList<int>({regler->minimum(), regler->maximum(), regler->value()}),
                 QList<int>({1, 10, 6}));
        auto* hilfe = a.finde<QPushButton>("infoUndHilfeB");
        QCOMPARE(hilfe->text(), QStringLiteral("Info und Hilfe"));
        QVERIFY(hilfe->width() >= 182 && hilfe->height() >= 42);
        QCOMPARE(QApplication::focusWidget(), a.zelle(0, 0));

        QTest::keyClicks(a.zelle(0, 0), "1");
        QTest::keyClicks(a.zelle(1, 0), " 3");
        QTest::keyClicks(a.finde<QLineEdit>("eingabeFb"), "e");
        QTest::mouseClick(a.finde<QPushButton>("einlistB"), Qt::LeftButton);
        QCOMPARE(listenZustand().sMatrixListe.at("E").grid, (std::vector<std::string>{"1", " 3"}));
        QCOMPARE(a.finde<QLineEdit>("eingabeFb")->text(), QStringLiteral("E"));
        QCOMPARE(a.finde<QLineEdit>("mListeF")->text(), QString::fromStdString(a.vc.mListeF));

        QCOMPARE(a.finde<QLabel>("ueberschreibLabel")->text(), QStringLiteral("Aus"));
        a.finde<QCheckBox>("ueberschreibF")->click();
        QCOMPARE(a.finde<QLabel>("ueberschreibLabel")->text(), QStringLiteral("Ein"));
        QVERIFY(listenZustand().ueberschreiben);
        regler->setValue(3);
        QCOMPARE(listenZustand().dezimalen, 3);
        QCOMPARE(a.finde<QLineEdit>("dezimalenF")->text(), QStringLiteral("3"));

        // A menu action writes cells, hides the rest and clears the field it read.
        QTest::keyClicks(a.finde<QLineEdit>("zeileF"), "2");
        a.finde<QAction>("genEinheitsmatrix")->trigger();
        QCOMPARE(a.zelle(1, 1)->text(), QStringLiteral("1.0"));
        QVERIFY(a.zelle(1, 1)->isVisible() && !a.zelle(2, 2)->isVisible());
        QCOMPARE(a.finde<QLineEdit>("zeileF")->text(), QString());

        QTest::keyClicks(a.finde<QLineEdit>("eingabeF"), "E+E");
        QTest::keyClick(a.finde<QLineEdit>("eingabeF"), Qt::Key_Return);
        QCOMPARE(a.zelle(0, 0)->text(), QStringLiteral("2.0"));

        QTest::keyClick(QApplication::focusWidget(), Qt::Key_R, Qt::ControlModifier);
        QVERIFY(a.zelle(7, 7)->isVisible() && !a.zelle(7, 7)->text().isEmpty());
    }

    void hilfefensterZeigtDieTexte() {
        Aufbau a;
        QTest::mouseClick(a.finde<QPushButton>("infoUndHilfeB"), Qt::LeftButton);
        Hilfefenster* hilfe = a.fenster->hilfefenster();
        QVERIFY(hilfe && hilfe->isVisible());
        auto* text = hilfe->findChild<QPlainTextEdit*>("hifeF");
        QCOMPARE(text->toPlainText(),
                 QStringLiteral("\n") +
                     QString::fromUtf8(allgInfoH.data(), qsizetype(allgInfoH.size())));
        QCOMPARE(hilfe->windowTitle(), QStringLiteral("Tabulon Info und Erläuterungen"));
        // One button per topic and 'Schließen'.
        QCOMPARE(hilfe->findChildren<QPushButton*>().size(),
                 qsizetype(TabulonHilfen::themen().size() + 1));

        QTest::mouseClick(hilfe->findChild<QPushButton*>("loescheH"), Qt::LeftButton);
        const std::string beide = "\n" + std::string(loescheHT) + std::string(loescheListeHT);
        QCOMPARE(text->toPlainText(), QString::fromStdString(beide));

        QTest::mouseClick(hilfe->findChild<QPushButton*>("fensterZuB"), Qt::LeftButton);
        QVERIFY(!hilfe->isVisible());
        QTRY_VERIFY(!a.fenster->hilfefenster()); // deleted on close, opened anew next time
    }

    void blockEinfuegenUndKopieren() {
        // Separators: tabs win over semicolons, semicolons over blanks.
        QCOMPARE(zerlegeBlock(QStringLiteral("1\t2 3\n4\t5\n"))[0][1], QStringLiteral("2 3"));
        QCOMPARE(zerlegeBlock(QStringLiteral("1; 2\r\n3;4"))[1][1], QStringLiteral("4"));
        QCOMPARE(zerlegeBlock(QStringLiteral("  1   -2 \n3 4"))[0][1], QStringLiteral("-2"));

        Aufbau a;
        // Clipped at row and column 7; copying takes the visible block only.
        a.fenster->tableauWidget()->setzeAktuelleZelle(6, 6);
        a.fenster->tableauWidget()->blockEinfuegen(QStringLiteral("a b c\nd e f\ng h i"));
        QCOMPARE(QString::fromStdString(a.vc.zelle(7, 7).text), QStringLiteral("e"));
        a.vc.zeileF = "2";
        a.fenster->menueAktion("genEinheitsmatrix");
        QCOMPARE(a.fenster->tableauWidget()->sichtbarerBlockText(),
                 QStringLiteral("1.0\t0.0\n0.0\t1.0\n"));
    }

    // A click beeps unless Shift is held; dragging beeps on every move with a button held.
    void ruhigeFlaechePieptOhneUmschalttaste() {
        Aufbau a;
        auto* flaeche = a.finde<MyView>("MyView");
        const QPoint rand(2, 2);
        QTest::mouseClick(flaeche, Qt::LeftButton, Qt::NoModifier, rand);
        QTest::mouseClick(flaeche, Qt::LeftButton, Qt::ShiftModifier, rand);
        QCOMPARE(a.blinkZaehler, 1);
        for (const Qt::MouseButtons knoepfe : {Qt::LeftButton, Qt::LeftButton, Qt::NoButton}) {
            QMouseEvent zug(QEvent::MouseMove, QPointF(rand), flaeche->mapToGlobal(QPointF(rand)),
                            Qt::NoButton, knoepfe, Qt::NoModifier);
            QApplication::sendEvent(flaeche, &zug);
        }
        QCOMPARE(a.blinkZaehler, 3);
    }
};

QTEST_MAIN(FensterTest)
#include "fenster_test.moc"
