#include "terms/parser.h"
#include "textmatrix/liste.h"

#include <cstddef>
#include <iterator>
#include <optional>
#include <string_view>

namespace tabulon {

namespace {

// The value of the operand at index i: the list entry it names as a number matrix, or nothing
// when i is outside the term or the token names no entry (an unknown letter, "1", "r", "Fehler").
std::optional<Matrix> operand(const Zeichenfeld& term, std::int64_t i) {
    if (i < 0 || i >= static_cast<std::int64_t>(term.size())) {
        return std::nullopt;
    }
    const auto& liste = listenZustand().sMatrixListe;
    const auto eintrag = liste.find(term[static_cast<std::size_t>(i)]);
    if (eintrag == liste.end()) {
        return std::nullopt;
    }
    const std::string& name = eintrag->first;
    auto& zustand = termZustand();
    if (name.size() != 1 || name[0] < 'A' || name[0] > 'Z' || zustand.tempNamen.contains(name)) {
        return matrix(eintrag->second);
    }
    // Temporaries are read once, so only the user's matrices are remembered.
    return zustand.operanden.werte(name[0], eintrag->second);
}

const std::string& token(const Zeichenfeld& term, std::int64_t i) {
    static const std::string keins;
    if (i < 0 || i >= static_cast<std::int64_t>(term.size())) {
        return keins;
    }
    return term[static_cast<std::size_t>(i)];
}

// Replaces the tokens von ... bis (both included) by `name`, in place.
void ersetzen(Zeichenfeld& term, std::int64_t von, std::int64_t bis, std::string name) {
    term[static_cast<std::size_t>(von)] = std::move(name);
    term.erase(term.begin() + von + 1, term.begin() + bis + 1);
}

// Stores a computed value and gives back its temporary name, or nothing when no letter is free.
std::optional<std::string> ablegen(const std::pair<Matrix, bool>& wert) {
    if (!wert.second) {
        return std::nullopt;
    }
    auto [name, ok] = einbuchten(termZustand().operanden.texteVon(wert.first));
    if (!ok) {
        return std::nullopt;
    }
    return std::move(name);
}

// The steps of the stages reduce the term in place at the operator at index p and report
// success. A failing step leaves the term as it was.

bool potenzSchritt(Zeichenfeld& term, std::int64_t p) {
    const auto basis = operand(term, p - 1);
    if (!basis) {
        return false;
    }
    int n = 0;
    std::int64_t ende = p + 1;
    const std::string& exponent = token(term, p + 1);
    if (exponent == "m") {
        // Only "-1", the inverse, is a negative exponent.
        if (token(term, p + 2) != "1") {
            return false;
        }
        n = -1;
        ende = p + 2;
    } else if (exponent.size() == 1 && exponent[0] >= '1' && exponent[0] <= '9') {
        n = exponent[0] - '0';
    } else {
        return false;
    }
    auto name = ablegen(hoch(*basis, n));
    if (!name) {
        return false;
    }
    ersetzen(term, p - 1, ende, std::move(*name));
    return true;
}

bool malSchritt(Zeichenfeld& term, std::int64_t p) {
    const auto rechts = operand(term, p + 1);
    if (!rechts) {
        return false;
    }
    std::optional<std::string> name;
    if (token(term, p - 1) == "r") {
        name = ablegen({termZustand().r * *rechts, true});
    } else {
        const auto links = operand(term, p - 1);
        if (!links) {
            return false;
        }
        name = ablegen(matProdukt(*links, *rechts));
    }
    if (!name) {
        return false;
    }
    ersetzen(term, p - 1, p + 1, std::move(*name));
    return true;
}

// A difference becomes a sum: "m X" turns into "+ (-X)", so the sum stage does the adding.
bool minusSchritt(Zeichenfeld& term, std::int64_t p) {
    const auto rechts = operand(term, p + 1);
    if (!rechts) {
        return false;
    }
    auto name = ablegen({rechts->gegenMatrix(), true});
    if (!name) {
        return false;
    }
    // Assigned as one character: GCC 12 wrongly warns (-Wrestrict, its bug 105329) when a string
    // literal is assigned here.
    term[static_cast<std::size_t>(p)].assign(1, '+');
    term[static_cast<std::size_t>(p + 1)] = std::move(*name);
    return true;
}

bool plusSchritt(Zeichenfeld& term, std::int64_t p) {
    const auto links = operand(term, p - 1);
    const auto rechts = links ? operand(term, p + 1) : std::nullopt;
    if (!rechts) {
        return false;
    }
    auto name = ablegen(matSumme(*links, *rechts));
    if (!name) {
        return false;
    }
    ersetzen(term, p - 1, p + 1, std::move(*name));
    return true;
}

// The index of the last `op` before index `vor`, or -1.
std::int64_t letztesVor(const Zeichenfeld& term, std::string_view op, std::int64_t vor) {
    for (auto i = vor - 1; i >= 0; --i) {
        if (term[static_cast<std::size_t>(i)] == op) {
            return i;
        }
    }
    return -1;
}

// The common scheme of the stages: while the operator occurs, reduce at its last occurrence;
// the first failing step ends the stage. A step at p leaves a name at p - 1 and no operator of
// its stage from there on, so the next last occurrence lies before p - 1 and the search goes on
// from there: one pass over the term for the whole stage.
StufenErgebnis stufe(Zeichenfeld term, bool ok, std::string_view op,
                     bool (*schritt)(Zeichenfeld&, std::int64_t)) {
    if (!ok) {
        return {std::move(term), false};
    }
    for (auto p = posVonZeichen(term, op); p >= 0; p = letztesVor(term, op, p - 1)) {
        if (!schritt(term, p)) {
            return {std::move(term), false};
        }
    }
    return {std::move(term), true};
}

} // namespace

StufenErgebnis potenzenAuswerten(Zeichenfeld term, bool ok) {
    return stufe(std::move(term), ok, "^", potenzSchritt);
}

StufenErgebnis malAuswerten(Zeichenfeld term, bool ok) {
    return stufe(std::move(term), ok, "*", malSchritt);
}

StufenErgebnis minusAuswerten(Zeichenfeld term, bool ok) {
    return stufe(std::move(term), ok, "m", minusSchritt);
}

StufenErgebnis plusAuswerten(Zeichenfeld term, bool ok) {
    return stufe(std::move(term), ok, "+", plusSchritt);
}

std::pair<Matrix, bool> matProdukt(const Matrix& m1, const Matrix& m2) {
    if (m1.columns == m2.rows) {
        return {m1 * m2, true};
    }
    termZustand().fehlerListe += produktFehler;
    return {Matrix(1, 1), false};
}

std::pair<Matrix, bool> matSumme(const Matrix& m1, const Matrix& m2) {
    if (m1.rows == m2.rows && m1.columns == m2.columns) {
        return {m1 + m2, true};
    }
    return {Matrix(1, 1), false};
}

NamenErgebnis einbuchten(SMatrix m) {
    std::string name = naechsterFreierName();
    if (name == "?") {
        return {std::move(name), false};
    }
    auto& liste = listenZustand();
    termZustand().tempNamen.insert(name);
    liste.sMatrixListe.insert_or_assign(name, std::move(m));
    liste.smNamen.erase(name);
    return {std::move(name), true};
}

NamenErgebnis termAuswerten(Zeichenfeld term, bool ok) {
    StufenErgebnis stand{std::move(term), ok};
    const auto kommtVor = [&stand](std::string_view op) {
        return posVonZeichen(stand.first, op) >= 0;
    };
    if (stand.second && kommtVor("^")) {
        stand = potenzenAuswerten(std::move(stand.first), stand.second);
    }
    if (stand.second && kommtVor("*")) {
        stand = malAuswerten(std::move(stand.first), stand.second);
    }
    if (stand.second && kommtVor("m")) {
        stand = minusAuswerten(std::move(stand.first), stand.second);
    }
    if (stand.second && kommtVor("+")) {
        stand = plusAuswerten(std::move(stand.first), stand.second);
    }
    if (stand.second && !stand.first.empty() && istMatrixName(stand.first.front())) {
        return {stand.first.front(), true};
    }
    return {fehlerName, false};
}

Zeichenfeld klammernAufloesen(Zeichenfeld term) {
    // The term right of the scan, already freed of its brackets, is kept in the back of `term`
    // itself, from index `rest` on: a long term is not copied into a second vector of the same
    // size, whose fresh pages cost more than the scan (the KlammernNebeneinander benchmark).
    // Tokens only ever move right, so the scan never meets a token it has moved.
    auto rest = term.size();
    for (auto i = term.size(); i-- > 0;) {
        if (term[i] != "(") {
            if (--rest != i) {
                term[rest] = std::move(term[i]);
            }
            continue;
        }
        // Every "(" right of this one is gone, so this is the last "(" of the term, and its core
        // reaches to the first ")" after it.
        auto zu = rest;
        while (zu < term.size() && term[zu] != ")") {
            ++zu;
        }
        if (zu == term.size()) {
            return {fehlerName}; // unbalanced; parsen checks that before
        }
        Zeichenfeld kern(std::make_move_iterator(term.begin() + static_cast<std::ptrdiff_t>(rest)),
                         std::make_move_iterator(term.begin() + static_cast<std::ptrdiff_t>(zu)));
        // A failed core leaves "Fehler" behind, on which the enclosing evaluation fails.
        term[zu] = termAuswerten(std::move(kern), true).first;
        rest = zu;
    }
    term.erase(term.begin(), term.begin() + static_cast<std::ptrdiff_t>(rest));
    return term;
}

NamenErgebnis parsen(std::string_view kette) {
    Zeichenfeld t = string2ZeichenFeld(kette);
    bool ok = formelKorrekt(t);
    if (!ok) {
        termZustand().fehlerListe = syntaxFehler;
    }
    t = gereinigt(std::move(t)); // in place: a long term is not copied
    if (ok) {
        ok = klammernAusgewogen(t);
    }
    if (ok) {
        t = klammernAufloesen(std::move(t));
    }
    return termAuswerten(std::move(t), ok);
}

void tempNamenEntfernen(const std::string& behalten) {
    auto& liste = listenZustand();
    auto& zustand = termZustand();
    for (const auto& name : zustand.tempNamen) {
        if (name == behalten) {
            continue;
        }
        if (const auto eintrag = liste.sMatrixListe.find(name);
            eintrag != liste.sMatrixListe.end()) {
            zustand.operanden.zuruecklegen(std::move(eintrag->second));
            liste.sMatrixListe.erase(eintrag);
        }
        liste.smNamen.insert(name);
    }
    zustand.tempNamen.clear();
}

} // namespace tabulon
