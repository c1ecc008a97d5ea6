// The desktop program: the application loop, the delegate and the main window with its model.

#include "app/appdelegate.h"
#include "qt/hauptfenster.h"
#include "qt/qtplattform.h"
#include "qt/startstil.h"
#include "qt/uebersetzung.h"
#include "window/viewcontroller.h"

#include <QApplication>
#include <QIcon>
#include <QTimer>

int main(int argc, char** argv) {
    QApplication programm(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tabulon"));
    tabulon::startStilEinrichten();
    tabulon::deutscheQtTexteLaden(programm);

    tabulon::QtPlattform plattform;
    tabulon::ViewController vc(plattform);
    tabulon::AppDelegate delegate;
    // The start-up order of the desktop platform: the delegate exists with mainVC empty, the main
    // window loads and registers itself, then launching has finished.
    tabulon::Hauptfenster fenster(vc, delegate, plattform);
    delegate.applicationDidFinishLaunching();
    fenster.show();
    // The icon is drawn with a bold face that nothing else in the window uses, and the window
    // manager takes it as well a moment after the window has appeared: it waits for the first
    // turn of the event loop, after show() has sent the window to the display.
    QTimer::singleShot(0, &programm,
                       [] { QApplication::setWindowIcon(QIcon(tabulon::anwendungsIcon())); });
    const int status = QApplication::exec();
    delegate.applicationWillTerminate();
    return status;
}
