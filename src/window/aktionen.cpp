// The three name tables of the main window. They are short, so a lookup walks them in order.

#include "window/aktionen.h"

#include <array>

namespace tabulon {

namespace {

using VC = ViewController;

constexpr std::array<Fensteraktion, 21> fensterTabelle{{
    {"einlistB", &VC::einlistB, true},
    {"auslistB", &VC::auslistB, true},
    {"freierMatrixNameB", &VC::freierMatrixNameB, true},
    {"name2SMatrixB", &VC::name2SMatrixB, true},
    {"rundenB", &VC::rundenB, true},
    {"genZufallsMatrixB", &VC::genZufallsMatrixB, true},
    {"tableauRaendern", &VC::tableauRaendern, true},
    {"einfuegen", &VC::einfuegen, true},
    {"entfernen", &VC::entfernen, true},
    {"tableauLoeschB", &VC::tableauLoeschB, true},
    {"rplusB", &VC::rplusB, true},
    {"rminusB", &VC::rminusB, true},
    {"cplusB", &VC::cplusB, true},
    {"cminusB", &VC::cminusB, true},
    {"quitB", &VC::quitB, true},
    {"protoUp", &VC::protoUp, true},
    {"protoDown", &VC::protoDown, true},
    {"protoDelSeite", &VC::protoDelSeite, true},
    {"neueSeite", &VC::neueSeite, true},
    {"dezimalSlider", &VC::dezimalSlider, false},
    {"ueberschreibChecker", &VC::ueberschreibChecker, false},
}};

constexpr std::array<Textfeld, 12> feldTabelle{{
    {"eingabeFb", &VC::eingabeFb, true},
    {"eingabeF", &VC::eingabeF, true},
    {"ausgabeF", &VC::ausgabeF, false},
    {"notizF", &VC::notizF, false},
    {"zeileF", &VC::zeileF, true},
    {"spalteF", &VC::spalteF, true},
    {"skalarF", &VC::skalarF, true},
    {"zaehlF", &VC::zaehlF, true},
    {"mListeF", &VC::mListeF, false},
    {"seitenF", &VC::seitenF, true},
    {"dezimalenF", &VC::dezimalenF, false},
    {"ueberschreibLabel", &VC::ueberschreibLabel, false},
}};

// Most menu actions call one member without arguments.
template <void (VC::*M)()> void rufe(VC& vc) {
    (vc.*M)();
}

// The two list entries ask before they empty the list; the list button does not. The menu's
// "Matrixliste leeren" also leaves the list field as it is.
void listeLeerenMitFrage(VC& vc) {
    vc.listeLoeschen(true);
}
void ganzeListeLoeschenMitFrage(VC& vc) {
    vc.loescheGanzeListe(true);
}

constexpr std::array<Menueaktion, 31> menueTabelle{{
    {"TableauLöschen", rufe<&VC::tableauLoeschen>},
    {"nMalAuswerten", rufe<&VC::parsNfachStart>},
    {"termAuswerten", rufe<&VC::parsStart>},
    {"MatrixlisteLoeschen", listeLeerenMitFrage},
    {"Invertiere", rufe<&VC::invertiere>},
    {"Transponiere", rufe<&VC::transponiere>},
    {"Orthonormiere", rufe<&VC::orthonormiere>},
    {"Gausse", rufe<&VC::gausse>},
    {"loescheName", rufe<&VC::auslistenName>},
    {"charPolUndEwe", rufe<&VC::charPol>},
    {"gramsche", rufe<&VC::gram>},
    {"speichereEinzelmatrix", rufe<&VC::texAusgabeEinzel>},
    {"texAusgabeAlleMatrizen", rufe<&VC::texAusgabeAlle>},
    {"loescheGanzeListe", ganzeListeLoeschenMitFrage},
    {"genZufallsmatrix", rufe<&VC::genZufallsM>},
    {"genErzSysVomKern", rufe<&VC::genErzSystemVomKern>},
    {"genEinheitsmatrix", rufe<&VC::genEinheitsM>},
    {"zeigeGanzeListe", rufe<&VC::zeigeListe>},
    {"druckeMatrixN", rufe<&VC::druckeMatrix>},
    {"neustartM", rufe<&VC::neustart>},
    {"ladenM", rufe<&VC::laden>},
    {"speichernM", rufe<&VC::speichern>},
    {"protoSpeichern", rufe<&VC::protoSpeichern>},
    {"exaktGauss", rufe<&VC::exaktGauss>},
    {"exaktLGS", rufe<&VC::exaktLGS>},
    {"exaktKern", rufe<&VC::exaktKern>},
    {"exaktInverse", rufe<&VC::exaktInverse>},
    {"exaktDeterminante", rufe<&VC::exaktDeterminante>},
    {"exaktEigen", rufe<&VC::exaktEigen>},
    {"exaktTexAusgabe", rufe<&VC::exaktTexAusgabe>},
    {"exaktUeben", rufe<&VC::exaktUeben>},
}};

template <typename T> const T* finde(std::span<const T> tabelle, std::string_view name) {
    for (const T& eintrag : tabelle) {
        if (eintrag.name == name) {
            return &eintrag;
        }
    }
    return nullptr;
}

} // namespace

std::span<const Fensteraktion> fensteraktionen() {
    return fensterTabelle;
}

std::span<const Textfeld> textfelder() {
    return feldTabelle;
}

std::span<const Menueaktion> menueaktionen() {
    return menueTabelle;
}

const Fensteraktion* fensteraktion(std::string_view name) {
    return finde(fensteraktionen(), name);
}

const Textfeld* textfeld(std::string_view name) {
    return finde(textfelder(), name);
}

const Menueaktion* menueaktion(std::string_view name) {
    return finde(menueaktionen(), name);
}

} // namespace tabulon
