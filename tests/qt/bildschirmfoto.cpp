// bildschirmfoto <main.png> <help.png>: shows the main window with a random matrix just
// listed, and saves what it looks like.

#include "app/appdelegate.h"
#include "qt/hauptfenster.h"
#include "qt/qtplattform.h"
#include "window/viewcontroller.h"

#include <QApplication>
#include <QPixmap>
#include <QTimer>

int main(int argc, char** argv) {
    QApplication programm(argc, argv);
    if (argc < 3) {
        return 2;
    }
    tabulon::QtPlattform plattform;
    tabulon::ViewController vc(plattform);
    tabulon::AppDelegate delegate;
    tabulon::Hauptfenster fenster(vc, delegate, plattform);
    fenster.resize(1280, 800);
    fenster.show();

    vc.zeileF = "6";
    vc.spalteF = "7";
    fenster.fensterAktion("genZufallsMatrixB");
    fenster.fensterAktion("freierMatrixNameB");

    QTimer::singleShot(300, &fenster, [&] {
        fenster.grab().save(QString::fromLocal8Bit(argv[1]));
        fenster.hilfeOeffnen();
        QTimer::singleShot(300, &fenster, [&] {
            fenster.hilfefenster()->grab().save(QString::fromLocal8Bit(argv[2]));
            QApplication::quit();
        });
    });
    return QApplication::exec();
}
