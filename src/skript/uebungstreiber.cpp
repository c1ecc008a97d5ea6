// The script commands that reach the practice of row operations while one is open: its two
// fields, its buttons and its three displays.

#include "skript/treiber.h"

#include "skript/zitat.h"
#include "textmatrix/zahltext.h"
#include "uebung/uebungscontroller.h"

namespace tabulon::skript {

namespace {

std::string zahl(std::size_t n) {
    return ganzText(static_cast<std::int64_t>(n));
}

} // namespace

std::optional<std::string> Treiber::uebungsBefehl(const Befehl& befehl) {
    const std::string& name = befehl.name;
    bool gehoertDazu = false;
    switch (befehl.art) {
    case Befehlsart::feld:
        gehoertDazu = UebungsController::feld(name) != nullptr;
        break;
    case Befehlsart::knopf:
        gehoertDazu = UebungsController::knopf(name) != nullptr;
        break;
    case Befehlsart::zeige:
        gehoertDazu =
            name == "uebung" || name == "uebungsnotiz" || UebungsController::feld(name) != nullptr;
        break;
    default:
        break;
    }
    if (!gehoertDazu) {
        return std::nullopt;
    }
    if (!vc.uebung) {
        return "keine Übung geöffnet für " + zitiert(name);
    }
    UebungsController& u = *vc.uebung;
    if (befehl.art == Befehlsart::feld) {
        u.*(UebungsController::feld(name)->wert) = befehl.text;
    } else if (befehl.art == Befehlsart::knopf) {
        u.fensterAktion(name);
    } else if (name == "uebung") {
        const BMatrix& m = u.uebung.aktuell();
        std::string text = "uebung " + zahl(m.rows) + " " + zahl(m.columns);
        for (const Bruch& e : m.eintraege) {
            text += " " + zitiert(bruchText(e));
        }
        plattform.zeile(text);
        plattform.zeile("schritte " + zahl(u.uebung.schritte.size()));
    } else if (name == "uebungsnotiz") {
        plattform.zeile("uebungsnotiz " + zitiert(u.notizF));
    } else {
        plattform.zeile(name + " " + zitiert(u.*(UebungsController::feld(name)->wert)));
    }
    return std::string();
}

} // namespace tabulon::skript
