#include "skript/skriptzeile.h"

#include "skript/zitat.h"

#include <string_view>
#include <vector>

namespace tabulon::skript {

namespace {

// A word of a line: a bare word, or the unescaped contents of a quoted text.
struct Wort {
    std::string text;
    bool zitiert = false;
};

struct Woerter {
    std::vector<Wort> woerter;
    std::string fehler;
};

bool istLeerraum(char c) {
    return c == ' ' || c == '\t';
}

// A whole number from `von` to `bis` written with decimal digits only (no sign, no blanks).
std::optional<int> zahlImBereich(const Wort& w, int von, int bis) {
    if (w.zitiert || w.text.empty() || w.text.size() > 9) {
        return std::nullopt;
    }
    int wert = 0;
    for (const char c : w.text) {
        if (c < '0' || c > '9') {
            return std::nullopt;
        }
        wert = wert * 10 + (c - '0');
    }
    if (wert < von || wert > bis) {
        return std::nullopt;
    }
    return wert;
}

Zeilenergebnis fehler(std::string text) {
    return {std::nullopt, std::move(text)};
}

Zeilenergebnis befehl(Befehl b) {
    return {std::move(b), {}};
}

// Checks that the arguments after the command word are bare words (false) or quoted texts (true)
// in exactly this pattern.
bool passt(const std::vector<Wort>& w, std::initializer_list<bool> muster) {
    if (w.size() != muster.size() + 1) {
        return false;
    }
    std::size_t i = 1;
    for (const bool zitiert : muster) {
        if (w[i++].zitiert != zitiert) {
            return false;
        }
    }
    return true;
}

// Splits a line at blanks and tabs; an error text when a quote is not closed, an escape is
// unknown or a quote touches the next word.
Woerter zerlegeWoerter(std::string_view zeile) {
    Woerter ergebnis;
    std::size_t i = 0;
    while (true) {
        while (i < zeile.size() && istLeerraum(zeile[i])) {
            ++i;
        }
        if (i == zeile.size()) {
            return ergebnis;
        }
        Wort wort;
        if (zeile[i] == '"') {
            wort.zitiert = true;
            ++i;
            bool geschlossen = false;
            while (i < zeile.size()) {
                const char c = zeile[i++];
                if (c == '"') {
                    geschlossen = true;
                    break;
                }
                if (c != '\\') {
                    wort.text.push_back(c);
                    continue;
                }
                if (i == zeile.size()) {
                    break;
                }
                switch (const char e = zeile[i++]) {
                case '"':
                case '\\':
                    wort.text.push_back(e);
                    break;
                case 'n':
                    wort.text.push_back('\n');
                    break;
                case 't':
                    wort.text.push_back('\t');
                    break;
                default:
                    ergebnis.fehler = "unbekannte Escape-Folge \\" + std::string(1, e) +
                                      " im Text (erlaubt sind \\\" \\\\ \\n \\t)";
                    return ergebnis;
                }
            }
            if (!geschlossen) {
                ergebnis.fehler = "der Text ist nicht mit \" abgeschlossen";
                return ergebnis;
            }
            if (i < zeile.size() && !istLeerraum(zeile[i])) {
                ergebnis.fehler = "nach dem schließenden \" fehlt ein Leerzeichen";
                return ergebnis;
            }
        } else {
            while (i < zeile.size() && !istLeerraum(zeile[i])) {
                if (zeile[i] == '"') {
                    ergebnis.fehler = "ein \" mitten in einem Wort";
                    return ergebnis;
                }
                wort.text.push_back(zeile[i++]);
            }
        }
        ergebnis.woerter.push_back(std::move(wort));
    }
}

} // namespace

Zeilenergebnis zerlegeZeile(std::string_view zeile) {
    // A script written on Windows still reads line by line.
    if (!zeile.empty() && zeile.back() == '\r') {
        zeile.remove_suffix(1);
    }
    const auto erstes = zeile.find_first_not_of(" \t");
    if (erstes == std::string_view::npos || zeile[erstes] == '#') {
        return {};
    }
    auto [w, wortFehler] = zerlegeWoerter(zeile);
    if (!wortFehler.empty()) {
        return fehler(wortFehler);
    }
    if (w.front().zitiert) {
        return fehler("die Zeile beginnt nicht mit einem Befehl");
    }
    const std::string& wort = w.front().text;
    Befehl b;
    b.name = w.size() > 1 ? w[1].text : std::string();

    if (wort == "feld") {
        if (!passt(w, {false, true})) {
            return fehler("erwartet: feld NAME \"TEXT\"");
        }
        b.art = Befehlsart::feld;
        b.text = w[2].text;
        return befehl(std::move(b));
    }
    if (wort == "zelle") {
        if (!passt(w, {false, false, true})) {
            return fehler("erwartet: zelle ZEILE SPALTE \"TEXT\"");
        }
        const auto i = zahlImBereich(w[1], 0, 7);
        const auto j = zahlImBereich(w[2], 0, 7);
        if (!i || !j) {
            return fehler("Zeile und Spalte einer Zelle sind ganze Zahlen von 0 bis 7");
        }
        b.art = Befehlsart::zelle;
        b.name.clear();
        b.zeile = *i;
        b.spalte = *j;
        b.text = w[3].text;
        return befehl(std::move(b));
    }
    if (wort == "regler") {
        const auto n = passt(w, {false}) ? zahlImBereich(w[1], 1, 10) : std::nullopt;
        if (!n) {
            return fehler("erwartet: regler N mit einer ganzen Zahl N von 1 bis 10");
        }
        b.art = Befehlsart::regler;
        b.name.clear();
        b.zeile = *n;
        return befehl(std::move(b));
    }
    if (wort == "haken") {
        if (!passt(w, {false}) || (b.name != "an" && b.name != "aus")) {
            return fehler("erwartet: haken an oder haken aus");
        }
        b.art = Befehlsart::haken;
        b.an = b.name == "an";
        b.name.clear();
        return befehl(std::move(b));
    }
    if (wort == "antwort") {
        if (!passt(w, {true})) {
            return fehler("erwartet: antwort \"TEXT\"");
        }
        b.art = Befehlsart::antwort;
        b.text = std::move(b.name);
        b.name.clear();
        return befehl(std::move(b));
    }
    // The commands that take one bare name; the driver checks the name against the window.
    struct NamensBefehl {
        std::string_view wort;
        Befehlsart art;
        std::string_view form;
    };
    static constexpr NamensBefehl namensBefehle[] = {
        {"knopf", Befehlsart::knopf, "erwartet: knopf NAME"},
        {"menue", Befehlsart::menue, "erwartet: menue NAME"},
        {"hilfe", Befehlsart::hilfe, "erwartet: hilfe NAME"},
        {"zeige", Befehlsart::zeige, "erwartet: zeige WAS"},
    };
    for (const auto& nb : namensBefehle) {
        if (wort == nb.wort) {
            if (!passt(w, {false})) {
                return fehler(std::string(nb.form));
            }
            b.art = nb.art;
            return befehl(std::move(b));
        }
    }
    return fehler("unbekannter Befehl " + zitiert(wort));
}

} // namespace tabulon::skript
