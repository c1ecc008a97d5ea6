#include "terms/parser.h"
#include "terms/zeichen.h"

#include <optional>

namespace tabulon {

namespace {

std::optional<TermZustand>& termSpeicher() {
    static std::optional<TermZustand> zustand;
    return zustand;
}

std::set<std::string> grossbuchstabenUnd(std::initializer_list<const char*> weitere) {
    std::set<std::string> menge;
    for (char c = 'A'; c <= 'Z'; ++c) {
        menge.insert(std::string(1, c));
    }
    for (const char* w : weitere) {
        menge.insert(w);
    }
    return menge;
}

} // namespace

TermZustand& termZustand() {
    auto& zustand = termSpeicher();
    if (!zustand) {
        zustand.emplace();
    }
    return *zustand;
}

void termZustandZuruecksetzen() {
    termSpeicher().emplace();
}

const std::set<std::string>& termAlphabet() {
    static const std::set<std::string> alphabet = grossbuchstabenUnd(
        {"+", "m", "*", "^", "1", "2", "3", "4", "5", "6", "7", "8", "9", "r", "(", ")"});
    return alphabet;
}

const std::set<std::string>& mNamen() {
    static const std::set<std::string> namen = grossbuchstabenUnd({"r", "("});
    return namen;
}

const std::set<std::string>& nieRechts() {
    static const std::set<std::string> menge{"(", "*", "m", "^", "r", "+"};
    return menge;
}

Zeichenfeld string2ZeichenFeld(std::string_view quelle) {
    Zeichenfeld feld;
    for (const std::string_view zeichen : zeichenZerlegen(quelle)) {
        if (zeichen == "-") {
            feld.emplace_back("m");
        } else if (zeichen == "r") {
            feld.emplace_back("r");
        } else if (zeichen != " ") {
            feld.push_back(grossGeschrieben(zeichen));
        }
    }
    return feld;
}

Zeichenfeld string2ZeichenFeldL(std::string_view quelle) {
    Zeichenfeld feld;
    for (const std::string_view zeichen : zeichenZerlegen(quelle)) {
        if (zeichen != " ") {
            feld.emplace_back(zeichen);
        }
    }
    return feld;
}

Zeichenfeld gereinigt(const Zeichenfeld& feld) {
    Zeichenfeld sauber;
    for (const auto& zeichen : feld) {
        if (termAlphabet().contains(zeichen)) {
            sauber.push_back(zeichen);
        }
    }
    return sauber;
}

std::int64_t posVonZeichen(const Zeichenfeld& feld, const std::string& zeichen) {
    for (auto i = static_cast<std::int64_t>(feld.size()) - 1; i >= 0; --i) {
        if (feld[static_cast<std::size_t>(i)] == zeichen) {
            return i;
        }
    }
    return -1;
}

} // namespace tabulon
