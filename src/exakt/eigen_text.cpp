// The texts a learner reads: eigenvalues and polynomials in the notation of the classroom.

#include "exakt/eigen.h"

namespace tabulon {

namespace {

// The factor in front of a power of x or a root: nothing for 1, "4" for an integer, and a dot
// after a fraction, since "1/2x" would read as 1/(2x).
std::string vorfaktor(const mpq_class& betrag) {
    if (betrag == 1) {
        return "";
    }
    if (betrag.get_den() == 1) {
        return betrag.get_str();
    }
    return betrag.get_str() + "·";
}

std::string potenz(std::size_t i) {
    if (i == 1) {
        return "x";
    }
    return "x^" + std::to_string(i);
}

} // namespace

std::string ReellerEigenwert::text() const {
    switch (art) {
    case Art::rational:
        return wert.get_str();
    case Art::quadratisch: {
        const std::string wurzel = "√" + d.get_str();
        std::string t;
        if (p != 0) {
            t = p.get_str() + (q < 0 ? " - " : " + ");
        } else if (q < 0) {
            t = "-";
        }
        const mpq_class betrag = abs(q);
        // A fraction before the root keeps its dot; an integer one too, so that "3·√2" is not
        // misread as the 32nd root of anything.
        return t + (betrag == 1 ? "" : betrag.get_str() + "·") + wurzel;
    }
    case Art::dezimal:
        return "≈ " + dezimal;
    }
    return "";
}

std::string polynomText(const std::vector<mpq_class>& koeffizienten) {
    std::string t;
    for (std::size_t i = koeffizienten.size(); i-- > 0;) {
        const mpq_class& c = koeffizienten[i];
        if (c == 0) {
            continue;
        }
        if (t.empty()) {
            t = c < 0 ? "-" : "";
        } else {
            t += c < 0 ? " - " : " + ";
        }
        const mpq_class betrag = abs(c);
        t += i == 0 ? betrag.get_str() : vorfaktor(betrag) + potenz(i);
    }
    return t.empty() ? "0" : t;
}

std::string polynomText(const std::vector<mpz_class>& koeffizienten) {
    std::vector<mpq_class> q(koeffizienten.begin(), koeffizienten.end());
    return polynomText(q);
}

std::string faktorText(const EigenFaktor& f) {
    // The factor x needs no parentheses: "x^8" rather than "(x)^8".
    const bool nurX = f.koeffizienten.size() == 2 && f.koeffizienten[0] == 0;
    std::string t = nurX ? polynomText(f.koeffizienten) : "(" + polynomText(f.koeffizienten) + ")";
    if (f.vielfachheit > 1) {
        t += "^" + std::to_string(f.vielfachheit);
    }
    return t;
}

std::string faktorisierungText(const EigenAnalyse& e) {
    if (e.faktoren.empty()) {
        return e.konstante.get_str();
    }
    std::string t;
    if (e.konstante == -1) {
        t = "-";
    } else if (e.konstante != 1) {
        t = e.konstante.get_str() + "·";
    }
    for (std::size_t i = 0; i < e.faktoren.size(); ++i) {
        t += (i > 0 ? "·" : "") + faktorText(e.faktoren[i]);
    }
    return t;
}

} // namespace tabulon
