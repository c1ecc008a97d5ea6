// How the desktop window shows and takes things: whole results in the cells, an unwrapped message
// area, marked non-numbers, pasting, the close question and the keyboard.

#include "app/appdelegate.h"
#include "app/zustand.h"
#include "qt/eintragspruefung.h"
#include "qt/hauptfenster.h"
#include "qt/qtplattform.h"
#include "qt/tableauwidget.h"
#include "qt/tastenkuerzel.h"
#include "qt/uebersetzung.h"
#include "terms/parser.h"
#include "textmatrix/liste.h"
#include "window/tableau.h"
#include "window/viewcontroller.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTextBlock>
#include <QTextLayout>
#include <QTimer>
#include <QtTest>

#include <memory>
#include <random>
#include <set>

using namespace tabulon;

namespace {

struct Aufbau {
    QtPlattform plattform;
    ViewController vc{plattform};
    AppDelegate delegate;
    std::unique_ptr<Hauptfenster> fenster;

    explicit Aufbau(QSize groesse = QSize(1280, 800)) {
        allesZuruecksetzen();
        fenster = std::make_unique<Hauptfenster>(vc, delegate, plattform);
        plattform.blinken = nullptr;
        fenster->resize(groesse);
        fenster->show();
        QApplication::setActiveWindow(fenster.get());
        QVERIFY(QTest::qWaitForWindowExposed(fenster.get()));
    }
    ~Aufbau() {
        // Nothing may ask on the way out of a test.
        plattform.beendetSich = true;
    }

    template <typename T> T* finde(const QString& name) const {
        return fenster->findChild<T*>(name);
    }
    QLineEdit* zelle(int i, int j) const { return fenster->tableauWidget()->zelle(i, j); }
    void tippe(int i, int j, const QString& text) {
        zelle(i, j)->clear();
        QTest::keyClicks(zelle(i, j), text);
    }
    // An 8 x 8 matrix of random integers from -9 to 8, stored as A and inverted.
    void inverse8() {
        std::mt19937 zufall(14);
        std::uniform_int_distribution<int> verteilung(-9, 8);
        for (int i = 0; i < 8; ++i) {
            for (int j = 0; j < 8; ++j) {
                vc.zelle(i, j).text = std::to_string(verteilung(zufall));
            }
        }
        vc.eingabeFb = "A";
        fenster->fensterAktion("einlistB");
        fenster->menueAktion("Invertiere");
    }
};

// Answers the next question of the window with the button titled so.
void antworte(const QString& knopf) {
    QTimer::singleShot(0, [knopf] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box);
        for (QAbstractButton* k : box->buttons()) {
            if (k->text() == knopf) {
                k->click();
            }
        }
    });
}

} // namespace

class BedienungTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        QStandardPaths::setTestModeEnabled(true);
        QVERIFY(deutscheQtTexteLaden(*QCoreApplication::instance()));
    }

    // Qt's own texts speak German, the key names in the menus included.
    void qtTexteDeutsch() {
        QCOMPARE(QCoreApplication::translate("QLineEdit", "&Undo"), QStringLiteral("&Rückgängig"));
        QCOMPARE(QKeySequence(QStringLiteral("Ctrl+L")).toString(QKeySequence::NativeText),
                 QStringLiteral("Strg+L"));
    }

    // At 1280 x 800 and at 1024 x 600 every entry of an 8 x 8 inverse is in view whole; the
    // window fits 1024 x 600; the page field shows 0 at start and the message area never wraps.
    void ergebnisseGanzLesbar() {
        for (const QSize groesse : {QSize(1280, 800), QSize(1024, 600)}) {
            Aufbau a(groesse);
            QCOMPARE(a.finde<QLineEdit>("seitenF")->text(), QStringLiteral("0"));
            QVERIFY(a.fenster->minimumSizeHint().width() <= 1024);
            QVERIFY(a.fenster->minimumSizeHint().height() <= 600);
            QCOMPARE(a.fenster->size(), groesse);
            a.inverse8();
            for (int k = 0; k < 64; ++k) {
                const int i = k / 8;
                const int j = k % 8;
                QVERIFY(a.zelle(i, j)->text().size() >= 15);
                QVERIFY2(a.fenster->tableauWidget()->passtGanz(i, j),
                         qPrintable(a.zelle(i, j)->text() +
                                    QStringLiteral(" at %1 pixels").arg(groesse.width())));
                QVERIFY(a.zelle(i, j)->toolTip().isEmpty());
            }
            auto* ausgabe = a.finde<QPlainTextEdit>("ausgabeF");
            QVERIFY(ausgabe->toPlainText().startsWith(QStringLiteral("A^-1 = ")));
            QApplication::processEvents();
            for (QTextBlock b = ausgabe->document()->begin(); b.isValid(); b = b.next()) {
                QVERIFY2(b.layout()->lineCount() <= 1, qPrintable(b.text()));
            }
            QVERIFY(ausgabe->horizontalScrollBar()->maximum() > 0);
            // Tab stops every 8 characters of a fixed-width font, as an editor shows the saved
            // protocol: "369.000000<tab>504.000000" puts 504 at column 16.
            const QFontMetricsF masse(ausgabe->font());
            const qreal zeichen = masse.horizontalAdvance(QLatin1Char(' '));
            for (const char c : {'i', 'M', '0', '-', '.'}) {
                QCOMPARE(masse.horizontalAdvance(QLatin1Char(c)), zeichen);
            }
            QCOMPARE(ausgabe->tabStopDistance(), 8 * zeichen);
            QVERIFY(ausgabe->tabChangesFocus());
        }
    }

    // A text that does not fit even the smallest font shows its start, and whole on hovering.
    void zuLangerTextZeigtAnfangUndTooltip() {
        Aufbau a(QSize(1024, 600));
        const QString lang = QStringLiteral("-123456789012345678901234567890.5");
        a.tippe(0, 0, lang);
        a.fenster->ausModell();
        QVERIFY(!a.fenster->tableauWidget()->passtGanz(0, 0));
        QVERIFY(a.zelle(0, 0)->toolTip().contains(lang));
        a.zelle(1, 1)->setFocus();
        QCOMPARE(a.zelle(0, 0)->cursorPosition(), 0);
        QCOMPARE(a.vc.zelle(0, 0).text, lang.toStdString());
    }

    void nichtZahlenMarkiert() {
        const std::pair<const char*, Eintragsart> arten[] = {
            {"1.5", Eintragsart::zahl},
            {"-2e3", Eintragsart::zahl},
            {"-2,5e3", Eintragsart::dezimalkomma},
            {"", Eintragsart::leer},
            {"        ", Eintragsart::leer},
            {"         ", Eintragsart::keineZahl},
            {"1,5", Eintragsart::dezimalkomma},
            {" 1,5", Eintragsart::dezimalkomma},
            {"1,5 ", Eintragsart::keineZahl},
            {"1,2,3", Eintragsart::keineZahl},
            {"1.2,3", Eintragsart::keineZahl},
            {"1/2", Eintragsart::keineZahl},
            {"1e999", Eintragsart::keineZahl},
        };
        for (const auto& [text, art] : arten) {
            QVERIFY2(eintragsart(text) == art, text);
        }

        Aufbau a;
        const QColor grund = a.zelle(0, 0)->palette().color(QPalette::Base);
        a.tippe(0, 0, QStringLiteral("1,5"));
        a.tippe(0, 1, QStringLiteral("1/2"));
        a.tippe(0, 2, QStringLiteral("2.5"));
        QVERIFY(a.zelle(0, 0)->palette().color(QPalette::Base) != grund);
        QVERIFY(a.zelle(0, 1)->palette().color(QPalette::Base) != grund);
        QCOMPARE(a.zelle(0, 2)->palette().color(QPalette::Base), grund);
        QVERIFY(a.zelle(0, 0)->toolTip().contains(QStringLiteral("als 0")));
        QVERIFY(a.zelle(0, 0)->toolTip().contains(QStringLiteral("Punkt")));
        QVERIFY(a.zelle(0, 1)->toolTip().contains(QStringLiteral("als 0")));
        QVERIFY(!a.zelle(0, 1)->toolTip().contains(QStringLiteral("Punkt")));
        QVERIFY(a.zelle(0, 2)->toolTip().isEmpty());
        // Corrected, the mark goes; the text stays as typed in the model either way.
        a.tippe(0, 0, QStringLiteral("1.5"));
        QCOMPARE(a.zelle(0, 0)->palette().color(QPalette::Base), grund);
        QVERIFY(a.zelle(0, 0)->toolTip().isEmpty());
        QCOMPARE(a.vc.zelle(0, 1).text, "1/2");
    }

    // A 3 x 3 block pasted into a 2 x 2 visible block: the block grows, '<-' stores 3 x 3.
    // Decimal commas become points, and the note line says so; other texts stay as they are.
    void einfuegenVergroessertUndSetztPunkte() {
        Aufbau a;
        a.vc.zeileF = "2";
        a.fenster->menueAktion("genEinheitsmatrix");
        QVERIFY(!a.zelle(2, 2)->isVisible());
        TableauWidget* t = a.fenster->tableauWidget();
        t->setzeAktuelleZelle(0, 0);
        t->blockEinfuegen(QStringLiteral("1,5;2;3\n4;5;a,b\n7;8;-0,25\n"));
        QVERIFY(a.zelle(2, 2)->isVisible() && !a.zelle(3, 3)->isVisible());
        QCOMPARE(tableauZustand().rowmax, 2);
        QCOMPARE(tableauZustand().columnmax, 2);
        QCOMPARE(a.zelle(0, 0)->text(), QStringLiteral("1.5"));
        QCOMPARE(a.zelle(1, 2)->text(), QStringLiteral("a,b"));
        QCOMPARE(a.zelle(2, 2)->text(), QStringLiteral("-0.25"));
        QCOMPARE(a.finde<QLineEdit>("notizF")->text(),
                 QStringLiteral("Beim Einfügen wurden 2 Dezimalkommas durch Punkte ersetzt."));
        a.vc.eingabeFb = "A";
        a.fenster->fensterAktion("einlistB");
        const SMatrix& m = listenZustand().sMatrixListe.at("A");
        QCOMPARE(m.rows * 10 + m.columns, 33);

        // Pasted from a lower cell, only the rows needed appear; a block without commas leaves
        // the note line alone.
        a.fenster->fensterAktion("rminusB");
        a.fenster->fensterAktion("rminusB");
        a.vc.notizF = "vorher";
        t->setzeAktuelleZelle(0, 1);
        t->blockEinfuegen(QStringLiteral("9 9\n9 9"));
        QCOMPARE(tableauZustand().rowmax, 1);
        QCOMPARE(tableauZustand().columnmax, 2);
        QCOMPARE(a.finde<QLineEdit>("notizF")->text(), QStringLiteral("vorher"));
    }

    // The close button and the desktop quit ask while the list holds a matrix; "Nein, noch
    // nicht" keeps the window and the list, "Ja, Beenden" closes; an empty list closes at once.
    void schliessenFragtBeiVollerListe() {
        {
            Aufbau a;
            QVERIFY(a.fenster->close());
        }
        Aufbau a;
        a.vc.zelle(0, 0).text = "1";
        a.vc.eingabeFb = "A";
        a.fenster->fensterAktion("einlistB");
        antworte(QStringLiteral("Nein, noch nicht"));
        QVERIFY(!a.fenster->close());
        QVERIFY(a.fenster->isVisible());
        antworte(QStringLiteral("Nein, noch nicht"));
        a.finde<QAction>("programmBeenden")->trigger();
        QVERIFY(a.fenster->isVisible());
        QCOMPARE(listenZustand().sMatrixListe.size(), std::size_t(1));
        antworte(QStringLiteral("Ja, Beenden"));
        QVERIFY(a.fenster->close());
        QVERIFY(!a.fenster->isVisible());
    }

    void tastatur() {
        Aufbau a;
        // Enter in 'Name' stores the tableau matrix.
        a.tippe(0, 0, QStringLiteral("7"));
        QTest::keyClicks(a.finde<QLineEdit>("eingabeFb"), "b");
        QTest::keyClick(a.finde<QLineEdit>("eingabeFb"), Qt::Key_Return);
        QVERIFY(listenZustand().sMatrixListe.count("B"));

        // Enter goes down the visible block, then to the top of the next column.
        a.vc.zeileF = "2";
        a.fenster->menueAktion("genEinheitsmatrix");
        a.zelle(0, 0)->setFocus();
        const std::pair<int, int> weg[] = {{1, 0}, {0, 1}, {1, 1}, {0, 0}};
        for (const auto& [i, j] : weg) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            QCOMPARE(QApplication::focusWidget(), a.zelle(i, j));
        }
        // A cell's text is selected on arrival, and the arrows go on to the next cell.
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
        QCOMPARE(QApplication::focusWidget(), a.zelle(0, 1));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QCOMPARE(QApplication::focusWidget(), a.zelle(1, 1));
        a.zelle(0, 0)->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), a.zelle(0, 1));

        // Alt+Right fetches <Name> into the tableau, Alt+Shift+Down adds a row.
        a.finde<QLineEdit>("eingabeFb")->setText(QStringLiteral("B"));
        a.vc.eingabeFb = "B";
        QTest::keyClick(a.zelle(0, 0), Qt::Key_Right, Qt::AltModifier);
        QCOMPARE(a.zelle(0, 0)->text(), QStringLiteral("7"));
        QCOMPARE(tableauZustand().rowmax, 0);
        QTest::keyClick(a.zelle(0, 0), Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
        QCOMPARE(tableauZustand().rowmax, 1);
    }

    // Every menu and entry has an access letter, unique within its menu; the overview lists
    // every shortcut of the menus; the file entries name the documents folder.
    void menuesUndUebersicht() {
        Aufbau a;
        const QString uebersicht = tastenkuerzelHtml(*a.fenster->menuBar(), *a.fenster);
        std::set<QChar> oben;
        for (QAction* menueAktion : a.fenster->menuBar()->actions()) {
            const QString titel = menueAktion->text();
            QVERIFY2(titel.count(QLatin1Char('&')) == 1, qPrintable(titel));
            QVERIFY(oben.insert(titel.at(titel.indexOf('&') + 1).toLower()).second);
            std::set<QChar> buchstaben;
            for (QAction* eintrag : menueAktion->menu()->actions()) {
                if (eintrag->isSeparator()) {
                    continue;
                }
                const QString text = eintrag->text();
                QVERIFY2(text.count(QLatin1Char('&')) == 1, qPrintable(text));
                QVERIFY2(buchstaben.insert(text.at(text.indexOf('&') + 1).toLower()).second,
                         qPrintable(text));
                if (!eintrag->shortcut().isEmpty()) {
                    QVERIFY2(
                        uebersicht.contains(eintrag->shortcut().toString(QKeySequence::NativeText)),
                        qPrintable(text));
                }
            }
        }
        QVERIFY(uebersicht.contains(QStringLiteral("<b>Alt+N</b></td><td>Zum Feld 'Name'")));
        QVERIFY(uebersicht.contains(QStringLiteral("Strg+Return")) ||
                uebersicht.contains(QStringLiteral("Strg+Eingabe")));

        QMenu* datei = a.fenster->menuBar()->actions().value(0)->menu();
        emit datei->aboutToShow();
        const auto ordner = a.plattform.dokumentenOrdner();
        QVERIFY(ordner);
        QCOMPARE(a.finde<QAction>("speichernM")->toolTip(),
                 QStringLiteral("Dokument-Ordner: ") + QString::fromStdString(ordner->string()));
    }
};

QTEST_MAIN(BedienungTest)
#include "bedienung_test.moc"
