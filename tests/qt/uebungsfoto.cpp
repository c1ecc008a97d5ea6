// uebungsfoto <bild.png> [warten]: shows the practice window on a 3 x 4 matrix after a few steps
// and a hint, and saves what it looks like.

#include "app/appdelegate.h"
#include "qt/hauptfenster.h"
#include "qt/qtplattform.h"
#include "uebung/uebungscontroller.h"
#include "window/viewcontroller.h"

#include <QApplication>
#include <QPixmap>
#include <QTimer>

int main(int argc, char** argv) {
    QApplication programm(argc, argv);
    if (argc < 2) {
        return 2;
    }
    tabulon::QtPlattform plattform;
    tabulon::ViewController vc(plattform);
    tabulon::AppDelegate delegate;
    tabulon::Hauptfenster haupt(vc, delegate, plattform);
    haupt.resize(1280, 800);
    haupt.show();

    const char* eintraege[3][4] = {
        {"0", "3", "-6", "6"}, {"3", "-7", "8", "-5"}, {"3", "-9", "12", "-9"}};
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 4; ++j)
            vc.zelle(i, j).text = eintraege[i][j];
    vc.eingabeFb = "C";
    vc.einlistB();
    delegate.menueAktion("exaktUeben");
    auto& uebung = *vc.uebung;
    for (const char* schritt : {"Z1 <-> Z2", "1/3 Z1", "Z3 - 3 Z1", "Z2 : 3"}) {
        uebung.umformungF = schritt;
        uebung.umformenB();
    }
    uebung.tippB();
    // The steps went to the model directly; a window opened afresh shows them.
    plattform.uebungGeoeffnet(uebung);
    QWidget* fenster = plattform.uebungsfenster;
    fenster->resize(1000, 520);
    fenster->move(140, 140);
    QTimer::singleShot(400, fenster, [&] {
        fenster->grab().save(QString::fromLocal8Bit(argv[1]));
        // With a second argument the program stays a while, for a picture of the whole screen.
        QTimer::singleShot(argc > 2 ? 4000 : 0, fenster, [] { QApplication::quit(); });
    });
    return QApplication::exec();
}
