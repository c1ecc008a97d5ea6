// bildschirmfoto SZENE BREITE HOEHE BILD.png: shows the main window at the given size (in
// device-independent pixels) in one of the situations a user meets, and saves what it looks like.
//   inverse3  a 3 x 3 matrix stored as A and inverted, with the protocol page of the inverse
//   inverse8  the same for a fixed 8 x 8 matrix of random integers
//   markiert  a 2 x 3 matrix with a decimal comma and a fraction, which count as 0
//   hilfe     the help window
//   kuerzel   the overview of the shortcuts
// The matrices are fixed, so that pictures taken on different days can be compared.

#include "app/appdelegate.h"
#include "qt/hauptfenster.h"
#include "qt/qtplattform.h"
#include "qt/uebersetzung.h"
#include "window/viewcontroller.h"

#include <QApplication>
#include <QPixmap>
#include <QTimer>

#include <cstdio>
#include <random>
#include <string>

int main(int argc, char** argv) {
    QApplication programm(argc, argv);
    tabulon::deutscheQtTexteLaden(programm);
    if (argc < 5) {
        std::fputs(
            "bildschirmfoto inverse3|inverse8|markiert|exakt|hilfe|kuerzel BREITE HOEHE BILD.png\n",
            stderr);
        return 2;
    }
    const std::string szene = argv[1];
    const int breite = std::atoi(argv[2]);
    const int hoehe = std::atoi(argv[3]);
    const QString datei = QString::fromLocal8Bit(argv[4]);

    tabulon::QtPlattform plattform;
    tabulon::ViewController vc(plattform);
    tabulon::AppDelegate delegate;
    tabulon::Hauptfenster fenster(vc, delegate, plattform);
    delegate.applicationDidFinishLaunching();
    fenster.resize(breite, hoehe);
    fenster.show();

    int n = 0;
    if (szene == "inverse3") {
        const char* eintraege[3][3] = {{"4", "7", "2"}, {"3", "6", "1"}, {"2", "5", "3"}};
        n = 3;
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < n; ++j) {
                vc.zelle(i, j).text = eintraege[i][j];
            }
        }
    } else if (szene == "inverse8") {
        // Entries -9 ... 8 like the random-matrix button; this seed gives an invertible matrix.
        std::mt19937 zufall(14);
        std::uniform_int_distribution<int> verteilung(-9, 8);
        n = 8;
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < n; ++j) {
                vc.zelle(i, j).text = std::to_string(verteilung(zufall));
            }
        }
    }
    if (szene == "markiert") {
        const char* eintraege[2][3] = {{"1,5", "2", "1/2"}, {"4", "-0.25", "x"}};
        for (int i = 0; i < 2; ++i) {
            for (int j = 0; j < 3; ++j) {
                vc.zelle(i, j).text = eintraege[i][j];
            }
        }
        fenster.ausModell();
    }
    if (szene == "exakt") {
        // The exact inverse of ((1, 2), (4, 5)): thirds, and every row operation on the page.
        const char* eintraege[2][2] = {{"1", "2"}, {"4", "5"}};
        for (int i = 0; i < 2; ++i) {
            for (int j = 0; j < 2; ++j) {
                vc.zelle(i, j).text = eintraege[i][j];
            }
        }
        vc.eingabeFb = "a";
        fenster.fensterAktion("einlistB");
        vc.eingabeFb = "a";
        fenster.menueAktion("exaktInverse");
    }
    if (n > 0) {
        vc.eingabeFb = "a";
        fenster.fensterAktion("einlistB");
        vc.eingabeFb = "a";
        fenster.menueAktion("Invertiere");
    }

    // Leaving must not ask whether to leave a list with a matrix in it.
    plattform.beendetSich = true;
    QTimer::singleShot(400, &fenster, [&] {
        if (szene == "kuerzel") {
            fenster.tastenkuerzelZeigen();
            QTimer::singleShot(400, &fenster, [&] {
                for (QWidget* w : QApplication::topLevelWidgets()) {
                    if (w->objectName() == QLatin1String("Tastenkuerzel")) {
                        w->grab().save(datei);
                    }
                }
                QApplication::quit();
            });
            return;
        }
        if (szene == "hilfe") {
            fenster.hilfeOeffnen();
            // Leaving must not ask whether to leave a list with a matrix in it.
            plattform.beendetSich = true;
            QTimer::singleShot(400, &fenster, [&] {
                fenster.hilfefenster()->grab().save(datei);
                QApplication::quit();
            });
            return;
        }
        fenster.grab().save(datei);
        QApplication::quit();
    });
    return QApplication::exec();
}
