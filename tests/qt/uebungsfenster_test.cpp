// The practice window driven by the keyboard alone: Enter applies the typed operation, the Alt
// letters fire the buttons and reach the fields, and the current matrix reaches the main
// window's tableau on the screen.

#include "app/appdelegate.h"
#include "app/zustand.h"
#include "qt/hauptfenster.h"
#include "qt/qtplattform.h"
#include "qt/uebungsfenster.h"
#include "textmatrix/liste.h"
#include "uebung/uebungscontroller.h"
#include "window/tableau.h"
#include "window/viewcontroller.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

#include <memory>

using namespace tabulon;

class UebungsfensterTest : public QObject {
    Q_OBJECT

private slots:
    void keyboardAlone() {
        allesZuruecksetzen();
        QtPlattform plattform;
        ViewController vc{plattform};
        AppDelegate delegate;
        int pieps = 0;
        auto haupt = std::make_unique<Hauptfenster>(vc, delegate, plattform);
        plattform.blinken = [&] { ++pieps; };
        haupt->show();

        // A = ((2, 4), (1, 3)) into the list through the model, then the menu action.
        vc.zelle(0, 0).text = "2";
        vc.zelle(0, 1).text = "4";
        vc.zelle(1, 0).text = "1";
        vc.zelle(1, 1).text = "3";
        vc.eingabeFb = "A";
        vc.einlistB();
        QVERIFY(delegate.menueAktion("exaktUeben"));
        QWidget* fenster = plattform.uebungsfenster;
        QVERIFY(fenster && fenster->isVisible());
        QApplication::setActiveWindow(fenster);
        QVERIFY(QTest::qWaitForWindowActive(fenster));
        // Every button and field of the model is on the screen under its name.
        for (const auto& knopf : UebungsController::knoepfe()) {
            QVERIFY2(fenster->findChild<QPushButton*>(
                         QString::fromUtf8(knopf.name.data(), qsizetype(knopf.name.size()))),
                     knopf.name.data());
        }
        for (const auto& f : UebungsController::felder()) {
            QVERIFY2(fenster->findChild<QLineEdit*>(
                         QString::fromUtf8(f.name.data(), qsizetype(f.name.size()))),
                     f.name.data());
        }
        auto* feld = fenster->findChild<QLineEdit*>("umformungF");
        auto* aktuell = fenster->findChild<QLabel*>("aktuelleMatrix");
        auto* schritte = fenster->findChild<QListWidget*>("schritte");
        auto* notiz = fenster->findChild<QLabel*>("uebungsnotiz");
        QCOMPARE(QApplication::focusWidget(), feld);
        QCOMPARE(fenster->findChild<QLabel*>("startmatrix")->text(),
                 QStringLiteral("   2  4\n   1  3"));
        QVERIFY(QFontInfo(aktuell->font()).fixedPitch());

        QTest::keyClicks(feld, "Z1 : 2");
        QTest::keyClick(feld, Qt::Key_Return);
        QCOMPARE(aktuell->text(), QStringLiteral("   1  2\n   1  3"));
        QCOMPARE(schritte->count(), 1);
        QCOMPARE(feld->text(), QString());

        // A refusal: beep, the text stays, the matrix too.
        QTest::keyClicks(feld, "Z3 - Z1");
        QTest::keyClick(feld, Qt::Key_Return);
        QCOMPARE(pieps, 1);
        QCOMPARE(feld->text(), QStringLiteral("Z3 - Z1"));
        QVERIFY(notiz->text().contains(QStringLiteral("die Zeile 3 gibt es nicht")));

        // A button fired by its Alt letter clicks after a short animation, hence the waits.
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_R, Qt::AltModifier);
        QTRY_COMPARE(schritte->count(), 0);
        QCOMPARE(aktuell->text(), QStringLiteral("   2  4\n   1  3"));

        // Hints alone, applied with Enter, down to the reduced form; first the field is emptied.
        QTest::keyClick(feld, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(feld, Qt::Key_Delete);
        QCOMPARE(feld->text(), QString());
        for (int i = 0; i < 3; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_T, Qt::AltModifier);
            QTRY_VERIFY(!feld->text().isEmpty());
            QTest::keyClick(feld, Qt::Key_Return);
        }
        QCOMPARE(aktuell->text(), QStringLiteral("   1  0\n   0  1"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_P, Qt::AltModifier);
        QTRY_COMPARE(notiz->text(),
                     QStringLiteral("Die Matrix ist in reduzierter Zeilenstufenform. Rang: 2."));

        // Alt+G to the compare field, a name and Enter.
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_G, Qt::AltModifier);
        QCOMPARE(QApplication::focusWidget(), fenster->findChild<QLineEdit*>("vergleichF"));
        QTest::keyClicks(QApplication::focusWidget(), "a");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(notiz->text(),
                 QStringLiteral("A ist zeilenäquivalent zu A, aber nicht seine reduzierte "
                                "Zeilenstufenform."));

        // Alt+I: the main window's cells show the current matrix; the list keeps A.
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_I, Qt::AltModifier);
        QTRY_COMPARE(haupt->findChild<QLineEdit*>("a00F")->text(), QStringLiteral("1.0"));
        QCOMPARE(haupt->findChild<QLineEdit*>("a01F")->text(), QStringLiteral("0.0"));
        QCOMPARE(listenZustand().sMatrixListe.at("A").grid,
                 (std::vector<std::string>{"2", "4", "1", "3"}));
        QCOMPARE(pieps, 1);

        // Every button has its Alt letter.
        for (auto* knopf : fenster->findChildren<QPushButton*>())
            QVERIFY2(knopf->text().contains(QLatin1Char('&')), qPrintable(knopf->objectName()));

        // A second practice replaces the window; Escape closes it.
        QVERIFY(delegate.menueAktion("exaktUeben"));
        QWidget* zweites = plattform.uebungsfenster;
        QVERIFY(zweites && zweites != fenster);
        QApplication::setActiveWindow(zweites);
        QVERIFY(QTest::qWaitForWindowActive(zweites));
        QTest::keyClick(zweites, Qt::Key_Escape);
        QTRY_VERIFY(plattform.uebungsfenster.isNull());
    }
};

QTEST_MAIN(UebungsfensterTest)
#include "uebungsfenster_test.moc"
