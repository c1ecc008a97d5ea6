// The menu actions: each one forwards to the main window's controller, or does nothing while no
// window has registered yet.

#include "app/appdelegate.h"

#include <cstddef>

namespace tabulon {

namespace {

using Menueaktion = void (AppDelegate::*)();

struct Eintrag {
    std::string_view name;
    Menueaktion aktion;
};

// One table for the names and the actions, so that the list the menu shows and the actions
// menueAktion fires cannot drift apart.
constexpr std::array<Eintrag, AppDelegate::anzahlMenueAktionen> eintraege{{
    {"TableauLöschen", &AppDelegate::TableauLöschen},
    {"nMalAuswerten", &AppDelegate::nMalAuswerten},
    {"termAuswerten", &AppDelegate::termAuswerten},
    {"MatrixlisteLoeschen", &AppDelegate::MatrixlisteLoeschen},
    {"Invertiere", &AppDelegate::Invertiere},
    {"Transponiere", &AppDelegate::Transponiere},
    {"Orthonormiere", &AppDelegate::Orthonormiere},
    {"Gausse", &AppDelegate::Gausse},
    {"loescheName", &AppDelegate::loescheName},
    {"charPolUndEwe", &AppDelegate::charPolUndEwe},
    {"gramsche", &AppDelegate::gramsche},
    {"speichereEinzelmatrix", &AppDelegate::speichereEinzelmatrix},
    {"texAusgabeAlleMatrizen", &AppDelegate::texAusgabeAlleMatrizen},
    {"loescheGanzeListe", &AppDelegate::loescheGanzeListe},
    {"genZufallsmatrix", &AppDelegate::genZufallsmatrix},
    {"genErzSysVomKern", &AppDelegate::genErzSysVomKern},
    {"genEinheitsmatrix", &AppDelegate::genEinheitsmatrix},
    {"zeigeGanzeListe", &AppDelegate::zeigeGanzeListe},
    {"druckeMatrixN", &AppDelegate::druckeMatrixN},
    {"neustartM", &AppDelegate::neustartM},
    {"ladenM", &AppDelegate::ladenM},
    {"speichernM", &AppDelegate::speichernM},
    {"protoSpeichern", &AppDelegate::protoSpeichern},
    {"exaktGauss", &AppDelegate::exaktGauss},
    {"exaktLGS", &AppDelegate::exaktLGS},
    {"exaktKern", &AppDelegate::exaktKern},
    {"exaktInverse", &AppDelegate::exaktInverse},
    {"exaktDeterminante", &AppDelegate::exaktDeterminante},
    {"exaktEigen", &AppDelegate::exaktEigen},
    {"exaktTexAusgabe", &AppDelegate::exaktTexAusgabe},
    {"exaktUeben", &AppDelegate::exaktUeben},
}};

} // namespace

const std::array<std::string_view, AppDelegate::anzahlMenueAktionen>& AppDelegate::menueNamen() {
    static const std::array<std::string_view, anzahlMenueAktionen> namen = [] {
        std::array<std::string_view, anzahlMenueAktionen> n{};
        for (std::size_t i = 0; i < eintraege.size(); ++i) {
            n[i] = eintraege[i].name;
        }
        return n;
    }();
    return namen;
}

bool AppDelegate::menueAktion(std::string_view name) {
    for (const auto& e : eintraege) {
        if (e.name == name) {
            (this->*(e.aktion))();
            return true;
        }
    }
    return false;
}

void AppDelegate::TableauLöschen() {
    if (mainVC) {
        mainVC->tableauLoeschen();
    }
}

void AppDelegate::nMalAuswerten() {
    if (mainVC) {
        mainVC->parsNfachStart();
    }
}

void AppDelegate::termAuswerten() {
    if (mainVC) {
        mainVC->parsStart();
    }
}

// The menu entry asks before it empties the list and, unlike the list button, leaves the list
// field as it is.
void AppDelegate::MatrixlisteLoeschen() {
    if (mainVC) {
        mainVC->listeLoeschen(true);
    }
}

void AppDelegate::Invertiere() {
    if (mainVC) {
        mainVC->invertiere();
    }
}

void AppDelegate::Transponiere() {
    if (mainVC) {
        mainVC->transponiere();
    }
}

void AppDelegate::Orthonormiere() {
    if (mainVC) {
        mainVC->orthonormiere();
    }
}

void AppDelegate::Gausse() {
    if (mainVC) {
        mainVC->gausse();
    }
}

void AppDelegate::loescheName() {
    if (mainVC) {
        mainVC->auslistenName();
    }
}

void AppDelegate::charPolUndEwe() {
    if (mainVC) {
        mainVC->charPol();
    }
}

void AppDelegate::gramsche() {
    if (mainVC) {
        mainVC->gram();
    }
}

void AppDelegate::speichereEinzelmatrix() {
    if (mainVC) {
        mainVC->texAusgabeEinzel();
    }
}

void AppDelegate::texAusgabeAlleMatrizen() {
    if (mainVC) {
        mainVC->texAusgabeAlle();
    }
}

void AppDelegate::loescheGanzeListe() {
    if (mainVC) {
        mainVC->loescheGanzeListe(true);
    }
}

void AppDelegate::genZufallsmatrix() {
    if (mainVC) {
        mainVC->genZufallsM();
    }
}

void AppDelegate::genErzSysVomKern() {
    if (mainVC) {
        mainVC->genErzSystemVomKern();
    }
}

void AppDelegate::genEinheitsmatrix() {
    if (mainVC) {
        mainVC->genEinheitsM();
    }
}

void AppDelegate::zeigeGanzeListe() {
    if (mainVC) {
        mainVC->zeigeListe();
    }
}

void AppDelegate::druckeMatrixN() {
    if (mainVC) {
        mainVC->druckeMatrix();
    }
}

void AppDelegate::neustartM() {
    if (mainVC) {
        mainVC->neustart();
    }
}

void AppDelegate::ladenM() {
    if (mainVC) {
        mainVC->laden();
    }
}

void AppDelegate::speichernM() {
    if (mainVC) {
        mainVC->speichern();
    }
}

void AppDelegate::protoSpeichern() {
    if (mainVC) {
        mainVC->protoSpeichern();
    }
}

void AppDelegate::exaktGauss() {
    if (mainVC) {
        mainVC->exaktGauss();
    }
}

void AppDelegate::exaktLGS() {
    if (mainVC) {
        mainVC->exaktLGS();
    }
}

void AppDelegate::exaktKern() {
    if (mainVC) {
        mainVC->exaktKern();
    }
}

void AppDelegate::exaktInverse() {
    if (mainVC) {
        mainVC->exaktInverse();
    }
}

void AppDelegate::exaktDeterminante() {
    if (mainVC) {
        mainVC->exaktDeterminante();
    }
}

void AppDelegate::exaktEigen() {
    if (mainVC) {
        mainVC->exaktEigen();
    }
}

void AppDelegate::exaktTexAusgabe() {
    if (mainVC) {
        mainVC->exaktTexAusgabe();
    }
}

void AppDelegate::exaktUeben() {
    if (mainVC) {
        mainVC->exaktUeben();
    }
}

} // namespace tabulon
