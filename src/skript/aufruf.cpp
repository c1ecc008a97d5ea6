#include "skript/aufruf.h"

namespace tabulon::skript {

namespace {

std::optional<std::uint32_t> saatWert(const std::string& text) {
    if (text.empty() || text.size() > 10) {
        return std::nullopt;
    }
    std::uint64_t wert = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') {
            return std::nullopt;
        }
        wert = wert * 10 + static_cast<std::uint64_t>(c - '0');
    }
    if (wert > 0xFFFFFFFFu) {
        return std::nullopt;
    }
    return static_cast<std::uint32_t>(wert);
}

} // namespace

std::string gebrauch() {
    return "Aufruf: tabulon-skript [--dokumente ORDNER] [--zufall N] [SKRIPT]\n"
           "  --dokumente ORDNER  Dokumente-Ordner für alle Dateien (wird angelegt)\n"
           "  --zufall N          Startwert 0 ... 4294967295 für Zufallsmatrizen\n"
           "  SKRIPT              Skriptdatei; ohne sie oder mit - die Standardeingabe\n";
}

Aufrufergebnis zerlegeAufruf(const std::vector<std::string>& argumente) {
    Aufrufergebnis ergebnis;
    Aufruf& a = ergebnis.aufruf;
    bool nurNochSkript = false;
    for (std::size_t i = 0; i < argumente.size(); ++i) {
        const std::string& arg = argumente[i];
        const bool hatWert = i + 1 < argumente.size();
        if (!nurNochSkript && arg == "--") {
            nurNochSkript = true;
        } else if (!nurNochSkript && (arg == "--hilfe" || arg == "-h" || arg == "--help")) {
            a.hilfe = true;
        } else if (!nurNochSkript && arg == "--dokumente") {
            if (!hatWert || argumente[i + 1].empty()) {
                ergebnis.fehler = "--dokumente braucht einen Ordner";
                return ergebnis;
            }
            a.dokumente = argumente[++i];
        } else if (!nurNochSkript && arg == "--zufall") {
            const auto saat = hatWert ? saatWert(argumente[i + 1]) : std::nullopt;
            if (!saat) {
                ergebnis.fehler = "--zufall braucht eine ganze Zahl von 0 bis 4294967295";
                return ergebnis;
            }
            a.saat = saat;
            ++i;
        } else if (!nurNochSkript && arg.size() > 1 && arg[0] == '-') {
            ergebnis.fehler = "unbekannte Option " + arg;
            return ergebnis;
        } else if (a.skript) {
            ergebnis.fehler = "mehr als ein Skript angegeben";
            return ergebnis;
        } else {
            a.skript = arg;
        }
    }
    if (a.skript == "-") {
        a.skript.reset();
    }
    return ergebnis;
}

} // namespace tabulon::skript
