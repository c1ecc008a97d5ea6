#include "terms/parser.h"

#include <array>
#include <bitset>
#include <cstddef>
#include <initializer_list>

namespace tabulon {

namespace {

using Nachfolger = std::bitset<alphabetGroesse>;

constexpr int nrA = 0;
constexpr int nrZ = 25;
constexpr int nrNeun = nrEins + 8;

Nachfolger mit(std::initializer_list<int> nummern) {
    Nachfolger menge;
    for (const int n : nummern) {
        menge.set(static_cast<std::size_t>(n));
    }
    return menge;
}

Nachfolger mitBuchstaben(std::initializer_list<int> nummern) {
    Nachfolger menge = mit(nummern);
    for (int n = nrA; n <= nrZ; ++n) {
        menge.set(static_cast<std::size_t>(n));
    }
    return menge;
}

Nachfolger ziffern(int von) {
    Nachfolger menge;
    for (int n = von; n <= nrNeun; ++n) {
        menge.set(static_cast<std::size_t>(n));
    }
    return menge;
}

// One row per token number. The rows are tried in this order; "1" is matched by the row of the
// operands before the row of the other digits, because it also ends the inverse "^-1", after
// which an operator or ")" may follow.
Nachfolger zeileFuer(int v) {
    if (v == nrPlus || v == nrMal || v == nrAuf) {
        return mitBuchstaben({nrSkalar, nrAuf}); // mNamen
    }
    if (v == nrHoch) {
        return mit({nrMinus}) | ziffern(nrEins);
    }
    if (v == nrEins || (v >= nrA && v <= nrZ)) {
        return mit({nrPlus, nrMinus, nrMal, nrHoch, nrZu});
    }
    if (v == nrZu) {
        return mit({nrPlus, nrMinus, nrMal, nrHoch});
    }
    if (v == nrSkalar) {
        return mit({nrMal});
    }
    if (v == nrMinus) {
        return mitBuchstaben({nrEins, nrSkalar, nrAuf});
    }
    if (v > nrEins && v <= nrNeun) {
        return mit({nrPlus, nrMinus, nrMal, nrZu});
    }
    return {};
}

// Built once; tokens outside the alphabet have no row and follow nothing.
const std::array<Nachfolger, alphabetGroesse>& nachfolgerTafel() {
    static const std::array<Nachfolger, alphabetGroesse> tafel = [] {
        std::array<Nachfolger, alphabetGroesse> t{};
        for (int v = 0; v < alphabetGroesse; ++v) {
            t[static_cast<std::size_t>(v)] = zeileFuer(v);
        }
        return t;
    }();
    return tafel;
}

bool folgtAuf(int v, int w) {
    return v >= 0 && w >= 0 &&
           nachfolgerTafel()[static_cast<std::size_t>(v)].test(static_cast<std::size_t>(w));
}

} // namespace

std::set<std::string> erlaubteNachfolger(const std::string& v) {
    std::set<std::string> menge;
    const int nummer = tokenNummer(v);
    for (const std::string& w : termAlphabet()) {
        if (folgtAuf(nummer, tokenNummer(w))) {
            menge.insert(w);
        }
    }
    return menge;
}

bool darfFolgen(const std::string& v, const std::string& w) {
    return folgtAuf(tokenNummer(v), tokenNummer(w));
}

bool formelKorrekt(const Zeichenfeld& feld) {
    if (feld.empty()) {
        return false;
    }
    if (feld.size() == 1) {
        return istAnfangsToken(tokenNummer(feld.front()));
    }
    bool paareErlaubt = true;
    for (std::size_t i = 0; paareErlaubt && i + 1 < feld.size(); ++i) {
        paareErlaubt = darfFolgen(feld[i], feld[i + 1]);
    }
    const int letzter = tokenNummer(feld.back());
    // A token outside the alphabet is in no set, so it is not in nieRechts either; the pair
    // before it has failed already.
    return paareErlaubt && istAnfangsToken(tokenNummer(feld.front())) && !istNieRechts(letzter);
}

bool klammernAusgewogen(const Zeichenfeld& feld) {
    std::int64_t tiefe = 0;
    bool nieNegativ = true;
    for (const auto& zeichen : feld) {
        if (zeichen == ")") {
            --tiefe;
        }
        if (tiefe < 0) {
            nieNegativ = false;
        }
        if (zeichen == "(") {
            ++tiefe;
        }
    }
    return nieNegativ && tiefe == 0;
}

} // namespace tabulon
