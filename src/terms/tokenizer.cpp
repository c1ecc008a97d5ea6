#include "terms/parser.h"
#include "terms/zeichen.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace tabulon {

namespace {

// The alphabet in token-number order (see tokenNummer in parser.h).
constexpr std::string_view alphabetFolge = "ABCDEFGHIJKLMNOPQRSTUVWXYZr()+m*^123456789";
static_assert(alphabetFolge.size() == alphabetGroesse);

// Token number by byte; every token is one byte long.
const std::array<std::int8_t, 256>& nummernTafel() {
    static const std::array<std::int8_t, 256> tafel = [] {
        std::array<std::int8_t, 256> t{};
        t.fill(-1);
        for (std::size_t i = 0; i < alphabetFolge.size(); ++i) {
            t[static_cast<unsigned char>(alphabetFolge[i])] = static_cast<std::int8_t>(i);
        }
        return t;
    }();
    return tafel;
}

std::set<std::string> mengeAus(bool (*gehoertDazu)(int)) {
    std::set<std::string> menge;
    for (int i = 0; i < alphabetGroesse; ++i) {
        if (gehoertDazu(i)) {
            menge.insert(std::string(1, alphabetFolge[static_cast<std::size_t>(i)]));
        }
    }
    return menge;
}

} // namespace

int tokenNummer(std::string_view token) {
    if (token.size() != 1) {
        return -1;
    }
    return nummernTafel()[static_cast<unsigned char>(token[0])];
}

bool istAnfangsToken(int nummer) {
    return nummer >= 0 && nummer <= nrAuf; // "A" ... "Z", "r", "("
}

bool istNieRechts(int nummer) {
    switch (nummer) {
    case nrAuf:
    case nrMal:
    case nrMinus:
    case nrHoch:
    case nrSkalar:
    case nrPlus:
        return true;
    default:
        return false;
    }
}

const std::set<std::string>& termAlphabet() {
    static const std::set<std::string> alphabet = mengeAus([](int) { return true; });
    return alphabet;
}

const std::set<std::string>& mNamen() {
    static const std::set<std::string> namen = mengeAus(istAnfangsToken);
    return namen;
}

const std::set<std::string>& nieRechts() {
    static const std::set<std::string> menge = mengeAus(istNieRechts);
    return menge;
}

Zeichenfeld string2ZeichenFeld(std::string_view quelle) {
    Zeichenfeld feld;
    feld.reserve(quelle.size());
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

Zeichenfeld gereinigt(Zeichenfeld feld) {
    std::erase_if(feld, [](const std::string& zeichen) { return tokenNummer(zeichen) < 0; });
    return feld;
}

std::int64_t posVonZeichen(const Zeichenfeld& feld, std::string_view zeichen) {
    for (auto i = static_cast<std::int64_t>(feld.size()) - 1; i >= 0; --i) {
        if (feld[static_cast<std::size_t>(i)] == zeichen) {
            return i;
        }
    }
    return -1;
}

} // namespace tabulon
