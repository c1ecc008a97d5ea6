// The desktop program: the application loop, the delegate and the main window with its model.

#include "app/appdelegate.h"
#include "qt/hauptfenster.h"
#include "qt/qtplattform.h"
#include "window/viewcontroller.h"

#include <QApplication>
#include <QIcon>

int main(int argc, char** argv) {
    QApplication programm(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tabulon"));
    QApplication::setWindowIcon(QIcon(tabulon::anwendungsIcon()));

    tabulon::QtPlattform plattform;
    tabulon::ViewController vc(plattform);
    tabulon::AppDelegate delegate;
    // The start-up order of the desktop platform: the delegate exists with mainVC empty, the main
    // window loads and registers itself, then launching has finished.
    tabulon::Hauptfenster fenster(vc, delegate, plattform);
    delegate.applicationDidFinishLaunching();
    fenster.show();
    const int status = QApplication::exec();
    delegate.applicationWillTerminate();
    return status;
}
