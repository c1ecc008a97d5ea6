#include "uebung/zeilenparser.h"

#include <optional>
#include <vector>

#include "textmatrix/zahltext.h"

namespace tabulon {

namespace {

enum class Art { zeile, zahl, plus, minus, mal, durch, gleich, tausch, ende };

struct Token {
    Art art = Art::ende;
    std::size_t stelle = 0; // characters from 1
    std::size_t zeile = 0;  // Art::zeile: the row number as typed, from 1
    Bruch zahl;
    std::string text; // as typed, for messages
};

std::string nummer(std::size_t n) {
    return ganzText(static_cast<std::int64_t>(n));
}

std::string stelle(std::size_t s) {
    return "Stelle " + nummer(s) + ": ";
}

bool istZiffer(char c) {
    return c >= '0' && c <= '9';
}

// The Roman numerals of German classrooms for rows 1 ... 8.
std::size_t roemisch(const std::string& t) {
    static const char* const zahlen[] = {"I", "II", "III", "IV", "V", "VI", "VII", "VIII"};
    for (std::size_t i = 0; i < 8; ++i)
        if (t == zahlen[i])
            return i + 1;
    return 0;
}

// Splits the text into tokens; the typographic signs of the pages (−, ·, ←, ↔) count as their
// ASCII forms, so that a hint or a copied page line reads back.
struct Zerlegung {
    std::vector<Token> tokens;
    std::string fehler;
};

Zerlegung zerlege(std::string_view s) {
    Zerlegung z;
    std::size_t i = 0;
    std::size_t zeichen = 1; // the character position of s[i]
    auto weiter = [&](std::size_t bytes, std::size_t zeichenZahl = 1) {
        i += bytes;
        zeichen += zeichenZahl;
    };
    auto folgt = [&](std::string_view w) { return s.substr(i, w.size()) == w; };
    while (i < s.size()) {
        const char c = s[i];
        Token t;
        t.stelle = zeichen;
        if (c == ' ' || c == '\t') {
            weiter(1);
            continue;
        }
        if (c == '+' || c == '-' || c == '*' || c == ':' || c == '=') {
            t.art = c == '+'   ? Art::plus
                    : c == '-' ? Art::minus
                    : c == '*' ? Art::mal
                    : c == ':' ? Art::durch
                               : Art::gleich;
            t.text = std::string(1, c);
            weiter(1);
        } else if (folgt("<->")) {
            t.art = Art::tausch;
            t.text = "<->";
            weiter(3, 3);
        } else if (folgt("↔") || folgt("←") || folgt("−") || folgt("·")) {
            t.art = folgt("↔")   ? Art::tausch
                    : folgt("←") ? Art::gleich
                    : folgt("−") ? Art::minus
                                 : Art::mal;
            const std::size_t laenge = folgt("·") ? 2 : 3;
            t.text = std::string(s.substr(i, laenge));
            weiter(laenge);
        } else if (c == 'Z' || c == 'z') {
            std::size_t j = i + 1;
            while (j < s.size() && istZiffer(s[j]))
                ++j;
            if (j == i + 1) {
                z.fehler = stelle(zeichen) + "nach „" + std::string(1, c) +
                           "“ fehlt die Nummer der Zeile (Z1 … Z8).";
                return z;
            }
            t.art = Art::zeile;
            t.text = std::string(s.substr(i, j - i));
            // More than two digits is no row of an 8 × 8 matrix; 99 stands for it in the message.
            t.zeile = j - i - 1 > 2 ? 99 : std::stoul(t.text.substr(1));
            weiter(j - i, j - i);
        } else if (c == 'I' || c == 'i' || c == 'V' || c == 'v') {
            std::size_t j = i;
            std::string gross;
            while (j < s.size() && (s[j] == 'I' || s[j] == 'i' || s[j] == 'V' || s[j] == 'v')) {
                gross += (s[j] == 'i' || s[j] == 'I') ? 'I' : 'V';
                ++j;
            }
            t.art = Art::zeile;
            t.text = std::string(s.substr(i, j - i));
            t.zeile = roemisch(gross);
            if (t.zeile == 0) {
                z.fehler = stelle(zeichen) + "„" + t.text +
                           "“ ist keine Zeilennummer (I, II, III, IV, V, VI, VII, VIII).";
                return z;
            }
            weiter(j - i, j - i);
        } else if (istZiffer(c) || c == '.') {
            // A number as the exact commands read entries: digits and points, an exponent, and
            // an optional "/" with a second such number.
            std::size_t j = i;
            auto teil = [&] {
                while (j < s.size() && (istZiffer(s[j]) || s[j] == '.'))
                    ++j;
                if (j < s.size() && (s[j] == 'e' || s[j] == 'E')) {
                    std::size_t k = j + 1;
                    if (k < s.size() && (s[k] == '+' || s[k] == '-'))
                        ++k;
                    if (k < s.size() && istZiffer(s[k])) {
                        while (k < s.size() && istZiffer(s[k]))
                            ++k;
                        j = k;
                    }
                }
            };
            teil();
            // The denominator may carry its own sign, as in the entries ("6/-4").
            std::size_t nenner = j + 1;
            if (nenner < s.size() && (s[nenner] == '-' || s[nenner] == '+'))
                ++nenner;
            if (j < s.size() && s[j] == '/' && nenner < s.size() &&
                (istZiffer(s[nenner]) || s[nenner] == '.')) {
                j = nenner;
                teil();
            }
            t.text = std::string(s.substr(i, j - i));
            auto wert = liesBruch(t.text);
            if (!wert) {
                z.fehler = stelle(zeichen) + "„" + t.text + "“ ist keine Zahl.";
                return z;
            }
            t.art = Art::zahl;
            t.zahl = *wert;
            weiter(j - i, j - i);
        } else {
            // One whole UTF-8 character for the message.
            std::size_t laenge = 1;
            const auto b = static_cast<unsigned char>(c);
            if (b >= 0xF0)
                laenge = 4;
            else if (b >= 0xE0)
                laenge = 3;
            else if (b >= 0xC0)
                laenge = 2;
            z.fehler = stelle(zeichen) + "das Zeichen „" + std::string(s.substr(i, laenge)) +
                       "“ gehört zu keiner Zeilenumformung.";
            return z;
        }
        z.tokens.push_back(std::move(t));
    }
    Token ende;
    ende.stelle = zeichen;
    z.tokens.push_back(ende);
    return z;
}

struct Term {
    Bruch faktor;
    std::size_t zeile = 0;
    std::size_t stelle = 0;
    std::string text;
};

// Recursive descent over the tokens; the first error stops it.
class Leser {
public:
    explicit Leser(std::vector<Token> t) : tokens(std::move(t)) {}

    const Token& jetzt() const { return tokens[pos]; }
    const Token& danach() const { return tokens[std::min(pos + 1, tokens.size() - 1)]; }
    void weiter() {
        if (jetzt().art != Art::ende)
            ++pos;
    }

    bool erwarte(Art art, const char* was) {
        if (jetzt().art == art)
            return true;
        fehler = stelle(jetzt().stelle) + "erwartet wird " + was + ", " +
                 (jetzt().art == Art::ende ? std::string("aber die Eingabe endet hier.")
                                           : "nicht „" + jetzt().text + "“.");
        return false;
    }

    // A number with an optional sign of its own: "Z3 : -2", "Z2 + -3 Z1".
    bool vorzeichenVorZahl() const {
        return (jetzt().art == Art::minus || jetzt().art == Art::plus) && danach().art == Art::zahl;
    }

    std::optional<Bruch> zahl() {
        Bruch vorzeichen = 1;
        if (vorzeichenVorZahl()) {
            vorzeichen = jetzt().art == Art::minus ? -1 : 1;
            weiter();
        }
        if (!erwarte(Art::zahl, "eine Zahl"))
            return std::nullopt;
        Bruch z = vorzeichen * jetzt().zahl;
        weiter();
        return z;
    }

    // [number [*]] row [* number | : number]
    std::optional<Term> term(Bruch vorzeichen) {
        Term t;
        t.faktor = vorzeichen;
        t.stelle = jetzt().stelle;
        if (jetzt().art == Art::zahl || vorzeichenVorZahl()) {
            t.faktor *= *zahl();
            if (jetzt().art == Art::mal)
                weiter();
        }
        if (!erwarte(Art::zeile, "eine Zeile (Z1 … Z8 oder I … VIII)"))
            return std::nullopt;
        t.zeile = jetzt().zeile;
        t.text = jetzt().text;
        weiter();
        if (jetzt().art == Art::mal) {
            weiter();
            auto z = zahl();
            if (!z)
                return std::nullopt;
            t.faktor *= *z;
        } else if (jetzt().art == Art::durch) {
            const std::size_t s = danach().stelle;
            weiter();
            auto z = zahl();
            if (!z)
                return std::nullopt;
            if (*z == 0) {
                fehler = stelle(s) + "durch 0 kann man nicht teilen.";
                return std::nullopt;
            }
            t.faktor /= *z;
        }
        return t;
    }

    // A sum of terms; a sign in front of the first one is allowed (-Z1).
    std::optional<std::vector<Term>> kombination() {
        std::vector<Term> terme;
        Bruch vorzeichen = 1;
        if (jetzt().art == Art::plus || jetzt().art == Art::minus) {
            vorzeichen = jetzt().art == Art::minus ? -1 : 1;
            weiter();
        }
        for (;;) {
            auto t = term(vorzeichen);
            if (!t)
                return std::nullopt;
            terme.push_back(std::move(*t));
            if (jetzt().art != Art::plus && jetzt().art != Art::minus)
                return terme;
            vorzeichen = jetzt().art == Art::minus ? -1 : 1;
            weiter();
        }
    }

    std::vector<Token> tokens;
    std::size_t pos = 0;
    std::string fehler;
};

std::string zn(std::size_t zeile) {
    return "Z" + nummer(zeile);
}

UmformungLesung abgelehnt(std::string fehler) {
    UmformungLesung l;
    l.fehler = std::move(fehler);
    return l;
}

UmformungLesung gelesen(Zeilenoperation::Art art, std::size_t ziel, std::size_t quelle,
                        Bruch faktor) {
    UmformungLesung l;
    l.ok = true;
    l.operation = {art, ziel - 1, quelle - 1, std::move(faktor)};
    return l;
}

} // namespace

UmformungLesung liesUmformung(std::string_view text, std::size_t zeilen) {
    Zerlegung z = zerlege(text);
    if (!z.fehler.empty())
        return abgelehnt(z.fehler);
    if (z.tokens.size() == 1)
        return abgelehnt("Bitte eine Zeilenumformung eingeben, zum Beispiel „Z2 - 3 Z1“, "
                         "„Z1 <-> Z2“ oder „1/2 Z3“.");
    Leser l(std::move(z.tokens));

    // Every row named must exist; checked in the order they were typed.
    auto pruefeZeile = [&](std::size_t zeile, std::size_t s) -> std::string {
        if (zeile >= 1 && zeile <= zeilen)
            return "";
        return stelle(s) + "die Zeile " + nummer(zeile) + " gibt es nicht; die Matrix hat " +
               (zeilen == 1 ? std::string("nur eine Zeile.") : nummer(zeilen) + " Zeilen.");
    };

    if (l.jetzt().art == Art::zeile && l.danach().art == Art::tausch) {
        const Token a = l.jetzt();
        l.weiter();
        l.weiter();
        if (!l.erwarte(Art::zeile, "eine Zeile (Z1 … Z8 oder I … VIII)"))
            return abgelehnt(l.fehler);
        const Token b = l.jetzt();
        l.weiter();
        if (!l.erwarte(Art::ende, "das Ende der Eingabe"))
            return abgelehnt(l.fehler);
        for (const Token* t : {&a, &b})
            if (auto f = pruefeZeile(t->zeile, t->stelle); !f.empty())
                return abgelehnt(f);
        if (a.zeile == b.zeile)
            return abgelehnt("Die Zeile " + zn(a.zeile) +
                             " mit sich selbst zu tauschen ändert nichts.");
        return gelesen(Zeilenoperation::Art::tausch, a.zeile, b.zeile, 0);
    }

    std::optional<Token> ziel;
    if (l.jetzt().art == Art::zeile && l.danach().art == Art::gleich) {
        ziel = l.jetzt();
        l.weiter();
        l.weiter();
    }
    auto terme = l.kombination();
    if (!terme)
        return abgelehnt(l.fehler);
    if (!l.erwarte(Art::ende, "„+“, „-“ oder das Ende der Eingabe"))
        return abgelehnt(l.fehler);
    if (ziel)
        if (auto f = pruefeZeile(ziel->zeile, ziel->stelle); !f.empty())
            return abgelehnt(f);
    for (const Term& t : *terme)
        if (auto f = pruefeZeile(t.zeile, t.stelle); !f.empty())
            return abgelehnt(f);

    if (terme->size() == 1) {
        const Term& t = terme->front();
        if (ziel && ziel->zeile != t.zeile)
            return abgelehnt("Eine Zeile durch das Vielfache einer anderen zu ersetzen ist keine "
                             "Äquivalenzumformung; " +
                             zn(ziel->zeile) + " muss rechts selbst vorkommen.");
        if (t.faktor == 0)
            return abgelehnt("Eine Zeile mit 0 zu multiplizieren ist keine Äquivalenzumformung.");
        if (t.faktor == 1)
            return abgelehnt("Die Zeile " + zn(t.zeile) +
                             " mit 1 zu multiplizieren ändert nichts.");
        return gelesen(Zeilenoperation::Art::skalieren, t.zeile, t.zeile, t.faktor);
    }
    if (terme->size() > 2)
        return abgelehnt("Eine elementare Zeilenumformung addiert das Vielfache genau einer "
                         "anderen Zeile; bitte in einzelne Schritte zerlegen.");
    const Term& a = (*terme)[0];
    const Term& b = (*terme)[1];
    if (a.zeile == b.zeile)
        return abgelehnt("Ein Vielfaches der Zeile " + zn(a.zeile) +
                         " zu ihr selbst zu addieren ist keine Zeilenumformung dieser Art; "
                         "zum Multiplizieren bitte „" +
                         zn(a.zeile) + " * Zahl“ schreiben.");
    const std::size_t zielZeile = ziel ? ziel->zeile : a.zeile;
    if (zielZeile != a.zeile && zielZeile != b.zeile)
        return abgelehnt("Die Zeile " + zn(zielZeile) +
                         ", die ersetzt wird, muss rechts selbst vorkommen.");
    const Term& bleibt = zielZeile == a.zeile ? a : b;
    const Term& dazu = zielZeile == a.zeile ? b : a;
    if (bleibt.faktor != 1)
        return abgelehnt("Die Zeile " + zn(zielZeile) +
                         ", die ersetzt wird, muss den Faktor 1 haben; Multiplizieren und "
                         "Addieren sind zwei Schritte.");
    if (dazu.faktor == 0)
        return abgelehnt("Das 0-Fache einer Zeile zu addieren ändert nichts.");
    return gelesen(Zeilenoperation::Art::addieren, zielZeile, dazu.zeile, dazu.faktor);
}

} // namespace tabulon
