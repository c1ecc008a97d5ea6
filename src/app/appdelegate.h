#pragma once
// AppDelegate, the application shell's side of the menu. Every menu command of the program
// arrives here and goes on to the one main window through mainVC; the window's own buttons, slider
// and checkbox call the ViewController directly. mainVC is empty until the window registers
// itself in viewDidLoad:
//
//     vc.viewDidLoad([&](ViewController& v) { delegate.mainVC = &v; });
//
// and menu commands that come before that are ignored. The delegate does not own the window: the
// platform layer that creates both keeps the window alive as long as the delegate.

#include "window/viewcontroller.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace tabulon {

class AppDelegate {
public:
    ViewController* mainVC = nullptr;

    // The names of the menu actions: the 23 of the application menu's table in its order, then the
    // eight of the menu "Exakt" (seven exact commands and the practice of row operations). The
    // desktop menu has an entry for each and fires them with menueAktion.
    static constexpr std::size_t anzahlMenueAktionen = 31;
    static const std::array<std::string_view, anzahlMenueAktionen>& menueNamen();

    // Fires the menu action of this name; false when there is no action of that name. A known
    // action with an empty mainVC does nothing and still counts as fired.
    bool menueAktion(std::string_view name);

    void applicationDidFinishLaunching() {}
    void applicationWillTerminate() {}

    void TableauLöschen();
    void nMalAuswerten();
    void termAuswerten();
    void MatrixlisteLoeschen();
    void Invertiere();
    void Transponiere();
    void Orthonormiere();
    void Gausse();
    void loescheName();
    void charPolUndEwe();
    void gramsche();
    void speichereEinzelmatrix();
    void texAusgabeAlleMatrizen();
    void loescheGanzeListe();
    void genZufallsmatrix();
    void genErzSysVomKern();
    void genEinheitsmatrix();
    void zeigeGanzeListe();
    void druckeMatrixN();
    void neustartM();
    void ladenM();
    void speichernM();
    void protoSpeichern();

    // The menu "Exakt".
    void exaktGauss();
    void exaktLGS();
    void exaktKern();
    void exaktInverse();
    void exaktDeterminante();
    void exaktEigen();
    void exaktTexAusgabe();

    // The practice of row operations.
    void exaktUeben();
};

} // namespace tabulon
