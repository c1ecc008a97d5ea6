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

// A row or column count: decimal digits only (blanks are gone before this) with a value of 1 to
// 8, the largest size the tableau can hold.
std::optional<std::int64_t> anzahl(const std::string& feld) {
    if (feld.empty() ||
        !std::all_of(feld.begin(), feld.end(), [](char c) { return c >= '0' && c <= '9'; })) {
        return std::nullopt;
    }
    const std::size_t erste = feld.find_first_not_of('0');
    if (erste == std::string::npos || feld.size() - erste != 1) {
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
    // The reader splits the text into user-perceived characters, so an entry beginning with a
    // combining mark would glue onto the "%" before it. Rather than list every such case, the
    // text is read back here: it must give the list it came from, up to the blanks, which the
    // format drops by design.
    const ListenInhalt zurueck =
        stringfeldPruefen(zeichenFeld2Stringfeld(string2ZeichenFeldL(alleMatrizenCodieren())));
    std::map<std::string, SMatrix> erwartet;
    for (const std::string& x : grossBuchstaben()) {
        const auto gefunden = liste.find(x);
        if (gefunden != liste.end()) {
            SMatrix m = gefunden->second;
            std::transform(m.grid.begin(), m.grid.end(), m.grid.begin(), ohneLeerzeichen);
            erwartet[x] = std::move(m);
        }
    }
    std::map<std::string, SMatrix> gelesen(zurueck.matrizen.begin(), zurueck.matrizen.end());
    if (!zurueck.ok || gelesen != erwartet) {
        return nichtGespeichert("Die Liste lässt sich nicht so speichern, dass sie unverändert "
                                "wieder geladen werden kann.");
    }
    return std::nullopt;
}

Zeichenfeld zeichenFeld2Stringfeld(const Zeichenfeld& quelle) {
    Zeichenfeld felder;
    std::string feld;
    for (const std::string& zeichen : quelle) {
        if (zeichen == trenner) {
            felder.push_back(std::move(feld));
            feld.clear();
        } else {
            feld += zeichen;
        }
    }
    return felder;
}

bool zulaessigerListenname(std::string_view name) {
    return sichererDateiname(name) && name != "?" && name != "Fehler";
}

ListenInhalt stringfeldPruefen(const Zeichenfeld& meinFeld) {
    ListenInhalt inhalt;
    const std::size_t n = meinFeld.size();
    std::size_t i = 0;
    while (true) {
        if (i >= n) {
            inhalt.fehler = abgelehnt("Das abschließende Feld 'end' fehlt.");
            return inhalt;
        }
        if (meinFeld[i] == endeFeld) {
            break;
        }
        const std::string& name = meinFeld[i];
        if (!zulaessigerListenname(name)) {
            inhalt.fehler = abgelehnt("Sie enthält einen leeren oder unzulässigen Matrixnamen.");
            return inhalt;
        }
        if (i + 2 >= n) {
            inhalt.fehler = abgelehnt("Die Matrix " + name + " ist unvollständig.");
            return inhalt;
        }
        const auto zeilen = anzahl(meinFeld[i + 1]);
        if (!zeilen) {
            inhalt.fehler = abgelehnt("Die Zeilenzahl der Matrix " + name +
                                      " ist keine ganze Zahl von 1 bis 8.");
            return inhalt;
        }
        const auto spalten = anzahl(meinFeld[i + 2]);
        if (!spalten) {
            inhalt.fehler = abgelehnt("Die Spaltenzahl der Matrix " + name +
                                      " ist keine ganze Zahl von 1 bis 8.");
            return inhalt;
        }
        i += 3;
        const auto eintraege = static_cast<std::size_t>(*zeilen * *spalten);
        if (n - i < eintraege) {
            inhalt.fehler = abgelehnt("Der Matrix " + name + " fehlen Einträge.");
            return inhalt;
        }
        SMatrix m(*zeilen, *spalten);
        std::copy_n(meinFeld.begin() + static_cast<std::ptrdiff_t>(i), eintraege, m.grid.begin());
        i += eintraege;
        inhalt.matrizen.emplace_back(name, std::move(m));
    }
    inhalt.ok = true;
    return inhalt;
}

std::pair<std::string, bool> stringfeldDecode(const Zeichenfeld& meinFeld) {
    ListenInhalt inhalt = stringfeldPruefen(meinFeld);
    if (!inhalt.ok) {
        return {inhalt.fehler, false};
    }
    ListenZustand& zustand = listenZustand();
    for (auto& [name, m] : inhalt.matrizen) {
        zustand.smNamen.erase(name);
        zustand.sMatrixListe[name] = std::move(m);
    }
    return {"", true};
}

std::pair<std::string, bool> codestringDecodieren(std::string_view code) {
    // A sound list of 26 matrices is a few kilobytes; splitting into one text per character
    // multiplies the memory many times, so a huge file is refused before that.
    if (code.size() > groessteListendatei) {
        return {abgelehnt("Sie ist zu groß für eine Matrixliste."), false};
    }
    // Tabulon writes no byte-order mark, but an editor may add one; it would become part of the
    // first name.
    if (code.starts_with("\xEF\xBB\xBF")) {
        code.remove_prefix(3);
    }
    return stringfeldDecode(zeichenFeld2Stringfeld(string2ZeichenFeldL(code)));
}

} // namespace tabulon
