#include "terms/parser.h"

namespace tabulon {

namespace {

bool istGrossbuchstabe(const std::string& v) {
    return v.size() == 1 && v[0] >= 'A' && v[0] <= 'Z';
}

bool istZiffer(const std::string& v, char von) {
    return v.size() == 1 && v[0] >= von && v[0] <= '9';
}

std::set<std::string> mitGrossbuchstaben(std::set<std::string> menge) {
    for (char c = 'A'; c <= 'Z'; ++c) {
        menge.insert(std::string(1, c));
    }
    return menge;
}

} // namespace

// The rows are tried in this order; "1" is matched by the row of the operands before the row of
// the other digits, because it also ends the inverse "^-1", after which an operator or ")" may
// follow.
std::set<std::string> erlaubteNachfolger(const std::string& v) {
    if (v == "+" || v == "*" || v == "(") {
        return mNamen();
    }
    if (v == "^") {
        return {"m", "1", "2", "3", "4", "5", "6", "7", "8", "9"};
    }
    if (v == "1" || istGrossbuchstabe(v)) {
        return {"+", "m", "*", "^", ")"};
    }
    if (v == ")") {
        return {"+", "m", "*", "^"};
    }
    if (v == "r") {
        return {"*"};
    }
    if (v == "m") {
        return mitGrossbuchstaben({"1", "r", "("});
    }
    if (istZiffer(v, '2')) {
        return {"+", "m", "*", ")"};
    }
    return {};
}

bool formelKorrekt(const Zeichenfeld& feld) {
    if (feld.empty()) {
        return false;
    }
    if (feld.size() == 1) {
        return mNamen().contains(feld.front());
    }
    bool paareErlaubt = true;
    for (std::size_t i = 0; paareErlaubt && i + 1 < feld.size(); ++i) {
        paareErlaubt = erlaubteNachfolger(feld[i]).contains(feld[i + 1]);
    }
    return paareErlaubt && mNamen().contains(feld.front()) && !nieRechts().contains(feld.back());
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

bool klammerfrei(const Zeichenfeld& feld) {
    for (const auto& zeichen : feld) {
        if (zeichen == "(" || zeichen == ")") {
            return false;
        }
    }
    return true;
}

} // namespace tabulon
