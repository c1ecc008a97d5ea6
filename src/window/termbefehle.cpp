#include "terms/parser.h"
#include "textmatrix/liste.h"
#include "textmatrix/zahltext.h"
#include "window/tableau.h"
#include "window/viewcontroller.h"

#include <cmath>
#include <cstdint>
#include <utility>

namespace tabulon {

namespace {

const std::string misslungen = "Die Formel konnte nicht ausgewertet werden.";

// The n of the n-fold command: the field's numeric value truncated toward zero. A value that is
// not a number, infinite, negative or beyond the 64-bit range gives 0, so that the command
// refuses it with the n message instead of running a negative or undefined number of times.
std::int64_t anzahlLaeufe(const std::string& feld) {
    const double wert = doubleWert(feld);
    constexpr double grenze = 9223372036854775808.0; // 2^63
    if (!std::isfinite(wert) || wert <= -1.0 || wert >= grenze) {
        return 0;
    }
    return static_cast<std::int64_t>(wert);
}

// Stores the run's result under the target as the list stores any matrix. A temporary result
// is removed right after the run, so its entry is swapped with the target's: the target gets the
// result, and the target's old texts leave with the temporary, so no texts are copied. The
// result can also be the target itself, or a matrix of the list that must stay as it is.
void ergebnisUebernehmen(const std::string& ergebnis, const std::string& ziel) {
    auto& liste = listenZustand();
    if (ergebnis != ziel) {
        auto& quelle = liste.sMatrixListe.at(ergebnis);
        if (termZustand().tempNamen.contains(ergebnis)) {
            std::swap(liste.sMatrixListe[ziel], quelle);
        } else {
            liste.sMatrixListe.insert_or_assign(ziel, quelle);
        }
    }
    liste.smNamen.erase(ziel);
}

} // namespace

void ViewController::parsStart() {
    const std::string term = eingabeF;
    NamenErgebnis ergebnis{"", false};
    auto& zustand = termZustand();
    if (!term.empty()) {
        zustand.r = doubleWert(skalarF);
        ergebnis = parsen(term);
    }
    if (!ergebnis.second) {
        notiz(zustand.fehlerListe + misslungen);
        zustand.fehlerListe.clear();
        plattform.piep();
    } else {
        const Matrix m = matrix(listenZustand().sMatrixListe.at(ergebnis.first));
        schreibInsTableau(m);
        notiz("Das Ergebnis der Rechnung wird im Eingabe-Tableau angezeigt");
        ausgabe("Die Auswertung des Terms " + term + " ergibt: \n\n" +
                m.string(listenZustand().dezimalen));
    }
    tempNamenEntfernen();
}

void ViewController::parsNfachStart() {
    const std::string term = eingabeF;
    bool ok = true;
    auto& zustand = termZustand();
    auto& liste = listenZustand();

    liste.zaehler = anzahlLaeufe(zaehlF);
    if (liste.zaehler == 0) {
        zustand.fehlerListe = "Was ist n ??    \t  ";
        ok = false;
    }
    const std::string name = liesName();
    if (!alphabetGross().contains(name)) {
        zustand.fehlerListe += "< " + name + " > ist kein erlaubter Name.\n";
        ok = false;
    }
    if (term.empty()) {
        ok = false;
    }

    // The runs done; fewer than zaehler when the user stopped the command.
    std::int64_t laeufe = 0;
    if (ok) {
        zustand.r = doubleWert(skalarF);
        while (laeufe < liste.zaehler) {
            const auto [ergebnis, gelungen] = parsen(term);
            ok = gelungen;
            if (ok) {
                ergebnisUebernehmen(ergebnis, name);
            }
            // In the first run a temporary may have taken the still free target letter; the
            // target keeps its entry all the same.
            tempNamenEntfernen(name);
            ++laeufe;
            if (laeufe < liste.zaehler && !plattform.fortschritt(laeufe, liste.zaehler)) {
                break;
            }
        }
        plattform.fortschrittEnde();
    }
    const std::string abbruch = laeufe < liste.zaehler && laeufe > 0
                                    ? "Nach " + ganzText(laeufe) + " von " +
                                          ganzText(liste.zaehler) + " Läufen abgebrochen."
                                    : "";

    if (!ok) {
        notiz(zustand.fehlerListe + misslungen + (abbruch.empty() ? "" : " " + abbruch));
        zustand.fehlerListe.clear();
        plattform.piep();
        return;
    }
    const Matrix m = matrix(liste.sMatrixListe.at(name));
    schreibInsTableau(m);
    // A stopped command names the runs it did, in the note and in the protocol.
    notiz((abbruch.empty() ? "" : abbruch + " ") + "Das Ergebnis der Berechnung von " + name +
          " wird im Eingabe-Tableau angezeigt");
    ausgabe("Die " + ganzText(laeufe) + "-malige Auswertung des Terms " + term +
            " ergibt: " + name + " = \n\n" + m.string(listenZustand().dezimalen));
}

} // namespace tabulon
