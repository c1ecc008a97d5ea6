#pragma once
// AppDelegate, the application shell's side of the menu. Every menu command of the program
// arrives here by name and goes on to the one main window through mainVC; the window's own
// buttons, slider and checkbox call the ViewController directly. mainVC is empty until the window
// registers itself in viewDidLoad:
//
//     vc.viewDidLoad([&](ViewController& v) { delegate.mainVC = &v; });
//
// and menu commands that come before that are ignored. The delegate does not own the window: the
// platform layer that creates both keeps the window alive as long as the delegate.
//
// Which menu actions there are, and what each one calls, is the table menueaktionen() of
// window/aktionen.h; the delegate keeps no list of its own. The desktop window builds its menu
// from its own table of titles, access letters and shortcuts, whose names a test holds to that
// table; the script driver sends its menu commands here.

#include "window/viewcontroller.h"

#include <string_view>

namespace tabulon {

class AppDelegate {
public:
    ViewController* mainVC = nullptr;

    // Fires the menu action of this name; false when there is no action of that name. A known
    // action with an empty mainVC does nothing and still counts as fired.
    bool menueAktion(std::string_view name);

    void applicationDidFinishLaunching() {}
    void applicationWillTerminate() {}

    // One member per menu action, under the action's name, for callers that name the action in
    // code rather than in a text; each answers as menueAktion does, so a test can tell a name
    // missing from the table.
    bool TableauLöschen() { return menueAktion("TableauLöschen"); }
    bool nMalAuswerten() { return menueAktion("nMalAuswerten"); }
    bool termAuswerten() { return menueAktion("termAuswerten"); }
    bool MatrixlisteLoeschen() { return menueAktion("MatrixlisteLoeschen"); }
    bool Invertiere() { return menueAktion("Invertiere"); }
    bool Transponiere() { return menueAktion("Transponiere"); }
    bool Orthonormiere() { return menueAktion("Orthonormiere"); }
    bool Gausse() { return menueAktion("Gausse"); }
    bool loescheName() { return menueAktion("loescheName"); }
    bool charPolUndEwe() { return menueAktion("charPolUndEwe"); }
    bool gramsche() { return menueAktion("gramsche"); }
    bool speichereEinzelmatrix() { return menueAktion("speichereEinzelmatrix"); }
    bool texAusgabeAlleMatrizen() { return menueAktion("texAusgabeAlleMatrizen"); }
    bool loescheGanzeListe() { return menueAktion("loescheGanzeListe"); }
    bool genZufallsmatrix() { return menueAktion("genZufallsmatrix"); }
    bool genErzSysVomKern() { return menueAktion("genErzSysVomKern"); }
    bool genEinheitsmatrix() { return menueAktion("genEinheitsmatrix"); }
    bool zeigeGanzeListe() { return menueAktion("zeigeGanzeListe"); }
    bool druckeMatrixN() { return menueAktion("druckeMatrixN"); }
    bool neustartM() { return menueAktion("neustartM"); }
    bool ladenM() { return menueAktion("ladenM"); }
    bool speichernM() { return menueAktion("speichernM"); }
    bool protoSpeichern() { return menueAktion("protoSpeichern"); }

    // The menu "Exakt".
    bool exaktGauss() { return menueAktion("exaktGauss"); }
    bool exaktLGS() { return menueAktion("exaktLGS"); }
    bool exaktKern() { return menueAktion("exaktKern"); }
    bool exaktInverse() { return menueAktion("exaktInverse"); }
    bool exaktDeterminante() { return menueAktion("exaktDeterminante"); }
    bool exaktEigen() { return menueAktion("exaktEigen"); }
    bool exaktTexAusgabe() { return menueAktion("exaktTexAusgabe"); }

    // The practice of row operations.
    bool exaktUeben() { return menueAktion("exaktUeben"); }
};

} // namespace tabulon
