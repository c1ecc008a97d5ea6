#pragma once
// ViewController, the main window as a platform-neutral model. It holds the window's values
// (the 64 tableau cells, the text fields, the name field's background, the overwrite box and the
// decimals slider) and runs every command of the window on them, step by step in a fixed order:
// that order is visible, because texts can stay in hidden cells and every message, note, page
// and beep is observable. What only a window system can do (beep, question dialog, random
// numbers, exit, documents folder) goes through Plattform.
//
// The primitives are in viewcontroller.cpp; the commands are in one file per group:
// listenbefehle.cpp (store, delete, show, print, empty the list), rechenbefehle.cpp (transpose,
// invert, Gauss, kernel, orthonormalise, Gram, round), tableaubefehle.cpp (random and unit
// matrix, border, insert, remove, size buttons, restart, quit), protokollbefehle.cpp (paging
// through the protocol), termbefehle.cpp (term evaluation once and n times), charpolbefehl.cpp
// (characteristic polynomial), dateibefehle.cpp (list file, TeX export, saving the protocol) and
// exaktbefehle.cpp (the menu "Exakt": the same tasks in exact fractions, step by step).

#include "textmatrix/smatrix.h"
#include "window/plattform.h"

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace tabulon {

struct Matrix;

// The note of a command whose 'Name' names no matrix of the list.
inline const std::string nameFehltNotiz = "Bitte Namen einer Matrix im Feld 'Name' angeben.";
class UebungsController;

struct Zelle {
    std::string text;
    bool versteckt = false;
};

class ViewController {
public:
    explicit ViewController(Plattform& plattform) : plattform(plattform) {}
    ViewController(const ViewController&) = delete;
    ViewController& operator=(const ViewController&) = delete;

    // The window's values.
    std::array<Zelle, 64> zellen; // a00F ... a77F: row i, column j at i * 8 + j
    std::string eingabeFb;        // 'Name'
    bool eingabeFbGruen = false;  // green while the system asks for a name
    std::string eingabeF;         // the term
    std::string ausgabeF;         // the message area
    std::string notizF;           // the note line
    std::string zeileF;
    std::string spalteF;
    std::string skalarF;
    std::string zaehlF; // 'n ='
    std::string mListeF;
    std::string seitenF = "0"; // page 0, the empty start page, is shown at start
    std::string dezimalenF = "6";
    bool ueberschreibF = false; // the overwrite box
    std::string ueberschreibLabel = "Aus";
    int dezimalRegler = 6; // the decimals slider, 1 ... 10
    std::string infoUndHilfeBTitel;
    bool infoUndHilfeBGelb = false;

    Zelle& zelle(int row, int column) { return zellen[static_cast<std::size_t>(row * 8 + column)]; }
    const Zelle& zelle(int row, int column) const {
        return zellen[static_cast<std::size_t>(row * 8 + column)];
    }

    // Start-up: the help button gets its face and title, then the window registers itself with
    // the application delegate through the callback.
    void viewDidLoad(const std::function<void(ViewController&)>& beimDelegateAnmelden);

    // Fires the window action of this name (einlistB, rundenB, protoUp, ...) from the table in
    // window/aktionen.h; false when unknown.
    bool fensterAktion(std::string_view name);

    // Primitives.
    void liesStringMatrix();
    void schreibStringMatrix();
    void fensterPutz();
    void tableauLoeschen();
    // Rows 0 ... rowmax, columns 0 ... columnmax of strEinAusMatrix as a new text matrix.
    SMatrix sichtbarerBlock() const;
    // A result into the tableau: embedded, schreibStringMatrix(), refreshMatrixView(),
    // fensterPutz(). The numeric form embeds without a refresh of its own (as the kernel needs).
    void schreibInsTableau(const SMatrix& r);
    void schreibInsTableau(const Matrix& r);
    void ausgabe(const std::string& t);
    void protokolliere(const std::string& t);
    void seiteAnzeigen();
    void protoAusgabe();
    void notiz(const std::string& t);
    void notizloeschen();
    std::string liesName();
    // The text matrix listed under `name`; when there is none, the beep, the note asking for a
    // name, and nullptr.
    const SMatrix* gelisteteMatrix(const std::string& name);
    void aktualisiereMListe();
    void sollEingeben();
    void hatEingegeben();
    void dezimalSlider();
    void ueberschreibChecker();
    std::string auswahl(const std::string& nachricht, const std::string& option1,
                        const std::string& option2);

    // List commands.
    void einlisten();
    void einlistB();
    void freierMatrixNameB();
    void auslistenName();
    void auslistB();
    void name2SMatrixB();
    void zeigeListe();
    void druckeMatrix();
    void loescheGanzeListe(bool warnung);
    void listeLoeschen(bool warnung);

    // Computation commands.
    void transponiere();
    void invertiere();
    void gausse();
    void genErzSystemVomKern();
    void orthonormiere();
    void gram();
    void rundenB();

    // Tableau editing commands.
    void genZufallsM();
    void genEinheitsM();
    void raendern();
    void einfuegen();
    void entfernen();
    void genZufallsMatrixB() { genZufallsM(); }
    void tableauRaendern() { raendern(); }
    void tableauLoeschB() { tableauLoeschen(); }
    void rplusB();
    void rminusB();
    void cplusB();
    void cminusB();
    void neustart();
    void quitB();

    // Protocol.
    int seitenWunsch() const;
    void protoUp();
    void protoDown();
    void protoDelSeite();
    void neueSeite();
    void protoSpeichern();

    // Terms.
    void parsStart();
    void parsNfachStart();

    // Characteristic polynomial and real eigenvalues.
    void charPol();

    // The menu "Exakt".
    void exaktGauss();
    void exaktLGS();
    void exaktKern();
    void exaktInverse();
    void exaktDeterminante();
    void exaktEigen();
    void exaktTexAusgabe();

    // The practice of row operations on the matrix named in 'Name' (uebungsbefehl.cpp); the
    // practice stays open, and reachable here, until the next one replaces it.
    void exaktUeben();
    std::shared_ptr<UebungsController> uebung;

    // Files.
    void speichern();
    void laden();
    std::string listeAllerMatrizen() const;
    void texAusgabeEinzel();
    void texAusgabeAlle();

    Plattform& plattform;
};

} // namespace tabulon
