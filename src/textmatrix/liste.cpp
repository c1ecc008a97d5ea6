#include "textmatrix/liste.h"

#include <vector>

namespace tabulon {

const std::set<std::string>& alphabetGross() {
    static const std::set<std::string> namen = [] {
        std::set<std::string> s;
        for (char c = 'A'; c <= 'Z'; ++c) {
            s.insert(std::string(1, c));
        }
        return s;
    }();
    return namen;
}

const std::array<std::string, 27>& grossBuchstaben() {
    // "?" closes the table: the search for a free name ends on it when all letters are taken.
    static const std::array<std::string, 27> folge = [] {
        std::array<std::string, 27> a;
        for (int i = 0; i < 26; ++i) {
            a[static_cast<std::size_t>(i)] = std::string(1, static_cast<char>('A' + i));
        }
        a[26] = "?";
        return a;
    }();
    return folge;
}

bool istMatrixName(const std::string& name) {
    return listenZustand().sMatrixListe.count(name) != 0;
}

bool SMatrix::freierMatrixname(const std::string& name) {
    return !istMatrixName(name) && alphabetGross().count(name) != 0;
}

std::pair<std::string, bool> SMatrix::einlistenAls(const std::string& name) const {
    if (istLeer()) {
        return {"Es ist keine Matrix vorhanden - nur Leere", false};
    }
    ListenZustand& zustand = listenZustand();
    const bool frei = freierMatrixname(name);
    if (!frei && !zustand.ueberschreiben) {
        return {"Der Name '" + name + "' ist als Matrixname nicht mehr verfügbar.", false};
    }
    std::string meldung;
    if (!frei) {
        meldung = "Die alte Matrix " + name + " wurde überschrieben.\n";
    }
    SMatrix m = *this;
    // Rows go before entries are filled in: a row that was empty in the tableau disappears,
    // while the gaps of a row that holds something become zeros.
    m.killLeerzeilen();
    m.killLeerspalten();
    for (std::string& eintrag : m.grid) {
        if (istLeerzeichen(eintrag)) {
            eintrag = "0.0";
        }
    }
    zustand.sMatrixListe[name] = std::move(m);
    zustand.smNamen.erase(name);
    meldung += "Die Tableau-Matrix wurde unter dem Namen " + name + " in die Liste eingetragen.";
    return {meldung, true};
}

std::pair<std::string, bool> auslisten(const std::string& name) {
    ListenZustand& zustand = listenZustand();
    if (zustand.sMatrixListe.erase(name) == 0) {
        return {"Es gibt in der Liste keine Matrix namens '" + name + "'  .", false};
    }
    zustand.smNamen.insert(name);
    return {"ok", true};
}

std::string naechsterFreierName() {
    // The set is ordered like grossBuchstaben: "A" < "B" < ... < "Z" as texts. Longer or other
    // texts that may have been put in between are skipped, so the answer is the first free
    // letter in that order, found without a lookup per letter.
    const std::set<std::string>& frei = listenZustand().smNamen;
    for (auto it = frei.lower_bound("A");
         it != frei.end() && static_cast<unsigned char>((*it)[0]) <= 'Z'; ++it) {
        if (it->size() == 1) {
            return *it;
        }
    }
    return grossBuchstaben().back();
}

std::string aktuelleListe() {
    std::vector<std::string> namen;
    for (const std::string& name : grossBuchstaben()) {
        if (istMatrixName(name)) {
            namen.push_back(name);
        }
    }
    const std::size_t n = namen.size();
    std::string text;
    for (std::size_t i = 0; i < n; ++i) {
        text += namen[i];
        if (n <= 10) {
            text += lf;
        } else if (n <= 20) {
            if (i % 2 == 1) {
                text += lf;
            } else if (i + 1 < n) {
                text += " , ";
            }
        } else if (i % 3 == 2) {
            text += lf;
        }
    }
    return text;
}

} // namespace tabulon
