// tabulon_leeresfenster: the yardstick for the start-up measurement, a bare Qt Widgets window with
// an 8 x 8 table and nothing else, titled "Leer". What it takes to map is Qt's own share of
// Tabulon's start.

#include <QApplication>
#include <QTableWidget>

int main(int argc, char** argv) {
    QApplication programm(argc, argv);
    QTableWidget tabelle(8, 8);
    tabelle.setWindowTitle(QStringLiteral("Leer"));
    tabelle.show();
    return QApplication::exec();
}
