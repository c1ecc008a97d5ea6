#include "files/listendatei.h"

#include "files/dokumente.h"
#include "textmatrix/liste.h"
#include "textmatrix/zahltext.h"

#include <algorithm>
#include <cstddef>
#include <map>

namespace tabulon {

namespace {

const std::string trenner = "%";
const std::string endeFeld = "end";
constexpr std::string_view bom = "\xEF\xBB\xBF";

// The fields of a text one at a time, each the text up to the next "%"; what follows the last
// "%" belongs to no field.
class Felder {
public:
    explicit Felder(std::string_view text) : rest(text) {}
    std::optional<std::string_view> naechstes() {
        const auto ende = rest.find('%');
        if (ende == std::string_view::npos) {
            return std::nullopt;
        }
        const std::string_view feld = rest.substr(0, ende);
        rest.remove_prefix(ende + 1);
        return feld;
    }

private:
    std::string_view rest;
};

// A row or column count: decimal digits only (blanks are gone before this) with a value of 1 to
// 8, the largest size the tableau can hold.
std::optional<std::int64_t> anzahl(std::string_view feld) {
    if (feld.empty() ||
        !std::all_of(feld.begin(), feld.end(), [](char c) { return c >= '0' && c <= '9'; })) {
        return std::nullopt;
    }
    const std::size_t erste = feld.find_first_not_of('0');
    if (erste == std::string_view::npos || feld.size() - erste != 1) {
        return std::nullopt;
    }
    const int wert = feld[erste] - '0';
    if (wert < 1 || wert > 8) {
        return std::nullopt;
    }
    return wert;
}

std::string ohneLeerzeichen(std::string text) {
    std::erase(text, ' ');
    return text;
}

std::string abgelehnt(const std::string& grund) {
    return "Die Datei 'Matrix_" + listenDateiName + ".txt' wurde nicht geladen: " + grund +
           " Die Liste ist unverändert.";
}

std::string nichtGespeichert(const std::string& grund) {
    return grund + " Die Datei 'Matrix_" + listenDateiName + ".txt' wurde nicht verändert.";
}

} // namespace

std::string m2String(const SMatrix& m, const std::string& name) {
    std::string s = name + trenner + ganzText(m.rows) + trenner + ganzText(m.columns) + trenner;
    for (std::int64_t i = 0; i < m.rows; ++i) {
        for (std::int64_t j = 0; j < m.columns; ++j) {
            s += m(i, j) + trenner;
        }
    }
    return s;
}

std::string alleMatrizenCodieren() {
    const auto& liste = listenZustand().sMatrixListe;
    std::string s;
    for (const std::string& x : grossBuchstaben()) {
        const auto gefunden = liste.find(x);
        if (gefunden != liste.end()) {
            s += m2String(gefunden->second, x);
        }
    }
    return s + endeFeld + trenner;
}

std::size_t codierteLaenge() {
    const auto& liste = listenZustand().sMatrixListe;
    std::size_t laenge = endeFeld.size() + 1;
    for (const std::string& name : grossBuchstaben()) {
        const auto gefunden = liste.find(name);
        if (gefunden == liste.end()) {
            continue;
        }
        const SMatrix& m = gefunden->second;
        laenge += name.size() + ganzText(m.rows).size() + ganzText(m.columns).size() + 3;
        for (const std::string& e : m.grid) {
            laenge += e.size() + 1;
        }
    }
    return laenge;
}

std::optional<std::string> speicherHindernis() {
    const auto& liste = listenZustand().sMatrixListe;
    for (const std::string& x : grossBuchstaben()) {
        const auto gefunden = liste.find(x);
        if (gefunden == liste.end()) {
            continue;
        }
        const auto& grid = gefunden->second.grid;
        const bool prozent = std::any_of(grid.begin(), grid.end(), [](const std::string& e) {
            return e.find('%') != std::string::npos;
        });
        if (prozent) {
            return nichtGespeichert("Die Matrix " + x +
                                    " kann nicht gespeichert werden: ein Eintrag enthält das "
                                    "Zeichen '%', das in der Datei die Felder trennt.");
        }
    }
    // Measured before anything is built: a list with a huge entry must not cost its size many
    // times over just to be refused.
    if (codierteLaenge() > groessteListendatei) {
        return nichtGespeichert("Die Liste ist zu groß: ihre Datei wäre länger als " +
                                ganzText(static_cast<std::int64_t>(groessteListendatei)) +
                                " Bytes, und eine längere Datei wird nicht geladen.");
    }
    // Whatever else might not come back (a name that the reader would refuse, a byte-order mark
    // at the start of the text), the text is read back here: it must give the list it came
    // from, up to the blanks, which the format drops by design.
    const std::string text = ohneLeerzeichen(alleMatrizenCodieren());
    const ListenInhalt zurueck = stringfeldPruefen(text.starts_with(bom) ? "" : text);
    std::map<std::string, SMatrix> erwartet;
    for (const std::string& x : grossBuchstaben()) {
        const auto gefunden = liste.find(x);
        if (gefunden != liste.end()) {
            SMatrix m = gefunden->second;
            std::transform(m.grid.begin(), m.grid.end(), m.grid.begin(), ohneLeerzeichen);
            erwartet[x] = std::move(m);
        }
    }
    if (!zurueck.ok || zurueck.matrizen != erwartet) {
        return nichtGespeichert("Die Liste lässt sich nicht so speichern, dass sie unverändert "
                                "wieder geladen werden kann.");
    }
    return std::nullopt;
}

bool zulaessigerListenname(std::string_view name) {
    return sichererDateiname(name) && name != "?" && name != "Fehler";
}

ListenInhalt stringfeldPruefen(std::string_view ohneLeerzeichen) {
    ListenInhalt inhalt;
    Felder felder(ohneLeerzeichen);
    while (true) {
        const auto name = felder.naechstes();
        if (!name) {
            inhalt.fehler = abgelehnt("Das abschließende Feld 'end' fehlt.");
            return inhalt;
        }
        if (*name == endeFeld) {
            break;
        }
        const std::string nameText(*name);
        if (!zulaessigerListenname(*name)) {
            inhalt.fehler = abgelehnt("Sie enthält einen leeren oder unzulässigen Matrixnamen.");
            return inhalt;
        }
        const auto zeilenFeld = felder.naechstes();
        const auto spaltenFeld = zeilenFeld ? felder.naechstes() : std::nullopt;
        if (!spaltenFeld) {
            inhalt.fehler = abgelehnt("Die Matrix " + nameText + " ist unvollständig.");
            return inhalt;
        }
        const auto zeilen = anzahl(*zeilenFeld);
        if (!zeilen) {
            inhalt.fehler = abgelehnt("Die Zeilenzahl der Matrix " + nameText +
                                      " ist keine ganze Zahl von 1 bis 8.");
            return inhalt;
        }
        const auto spalten = anzahl(*spaltenFeld);
        if (!spalten) {
            inhalt.fehler = abgelehnt("Die Spaltenzahl der Matrix " + nameText +
                                      " ist keine ganze Zahl von 1 bis 8.");
            return inhalt;
        }
        SMatrix m(*zeilen, *spalten);
        for (std::string& eintrag : m.grid) {
            const auto feld = felder.naechstes();
            if (!feld) {
                inhalt.fehler = abgelehnt("Der Matrix " + nameText + " fehlen Einträge.");
                return inhalt;
            }
            eintrag = *feld;
        }
        inhalt.matrizen.insert_or_assign(nameText, std::move(m));
    }
    inhalt.ok = true;
    return inhalt;
}

std::pair<std::string, bool> codestringDecodieren(std::string_view code) {
    if (code.size() > groessteListendatei) {
        return {abgelehnt("Sie ist zu groß für eine Matrixliste."), false};
    }
    // Tabulon writes no byte-order mark, but an editor may add one; it would become part of the
    // first name.
    if (code.starts_with(bom)) {
        code.remove_prefix(bom.size());
    }
    ListenInhalt inhalt = stringfeldPruefen(ohneLeerzeichen(std::string(code)));
    if (!inhalt.ok) {
        return {inhalt.fehler, false};
    }
    ListenZustand& zustand = listenZustand();
    for (auto& [name, m] : inhalt.matrizen) {
        zustand.smNamen.erase(name);
        zustand.sMatrixListe.insert_or_assign(name, std::move(m));
    }
    return {"", true};
}

} // namespace tabulon
