#include "terms/parser.h"
#include "textmatrix/liste.h"

#include <optional>

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
    return matrix(eintrag->second);
}

const std::string& token(const Zeichenfeld& term, std::int64_t i) {
    static const std::string keins;
    if (i < 0 || i >= static_cast<std::int64_t>(term.size())) {
        return keins;
    }
    return term[static_cast<std::size_t>(i)];
}

// Replaces the tokens von ... bis (both included) by `ersatz`.
Zeichenfeld ersetzt(const Zeichenfeld& term, std::int64_t von, std::int64_t bis,
                    const Zeichenfeld& ersatz) {
    Zeichenfeld neu(term.begin(), term.begin() + von);
    neu.insert(neu.end(), ersatz.begin(), ersatz.end());
    neu.insert(neu.end(), term.begin() + bis + 1, term.end());
    return neu;
}

// Stores a computed value and gives back its temporary name, or nothing when no letter is free.
std::optional<std::string> ablegen(const std::pair<Matrix, bool>& wert) {
    if (!wert.second) {
        return std::nullopt;
    }
    const auto [name, ok] = einbuchten(wert.first.smatrix());
    if (!ok) {
        return std::nullopt;
    }
    return name;
}

// One step of the power stage at the "^" at index p: the reduced term, or nothing on failure.
std::optional<Zeichenfeld> potenzSchritt(const Zeichenfeld& term, std::int64_t p) {
    const auto basis = operand(term, p - 1);
    if (!basis) {
        return std::nullopt;
    }
    int n = 0;
    std::int64_t ende = p + 1;
    const std::string& exponent = token(term, p + 1);
    if (exponent == "m") {
        // Only "-1", the inverse, is a negative exponent.
        if (token(term, p + 2) != "1") {
            return std::nullopt;
        }
        n = -1;
        ende = p + 2;
    } else if (exponent.size() == 1 && exponent[0] >= '1' && exponent[0] <= '9') {
        n = exponent[0] - '0';
    } else {
        return std::nullopt;
    }
    const auto name = ablegen(hoch(*basis, n));
    if (!name) {
        return std::nullopt;
    }
    return ersetzt(term, p - 1, ende, {*name});
}

std::optional<Zeichenfeld> malSchritt(const Zeichenfeld& term, std::int64_t p) {
    const auto rechts = operand(term, p + 1);
    if (!rechts) {
        return std::nullopt;
    }
    std::optional<std::string> name;
    if (token(term, p - 1) == "r") {
        name = ablegen({termZustand().r * *rechts, true});
    } else {
        const auto links = operand(term, p - 1);
        if (!links) {
            return std::nullopt;
        }
        name = ablegen(matProdukt(*links, *rechts));
    }
    if (!name) {
        return std::nullopt;
    }
    return ersetzt(term, p - 1, p + 1, {*name});
}

// A difference becomes a sum: "m X" turns into "+ (-X)", so the sum stage does the adding.
std::optional<Zeichenfeld> minusSchritt(const Zeichenfeld& term, std::int64_t p) {
    const auto rechts = operand(term, p + 1);
    if (!rechts) {
        return std::nullopt;
    }
    const auto name = ablegen({rechts->gegenMatrix(), true});
    if (!name) {
        return std::nullopt;
    }
    return ersetzt(term, p, p + 1, {"+", *name});
}

std::optional<Zeichenfeld> plusSchritt(const Zeichenfeld& term, std::int64_t p) {
    const auto links = operand(term, p - 1);
    const auto rechts = links ? operand(term, p + 1) : std::nullopt;
    if (!rechts) {
        return std::nullopt;
    }
    const auto name = ablegen(matSumme(*links, *rechts));
    if (!name) {
        return std::nullopt;
    }
    return ersetzt(term, p - 1, p + 1, {*name});
}

// The common scheme of the stages: while the operator occurs, reduce at its last occurrence;
// the first failing step ends the stage.
template <typename Schritt>
StufenErgebnis stufe(Zeichenfeld term, bool ok, const std::string& op, Schritt schritt) {
    if (!ok) {
        return {std::move(term), false};
    }
    for (auto p = posVonZeichen(term, op); p >= 0; p = posVonZeichen(term, op)) {
        auto neu = schritt(term, p);
        if (!neu) {
            return {std::move(term), false};
        }
        term = std::move(*neu);
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

NamenErgebnis einbuchten(const SMatrix& m) {
    const std::string name = naechsterFreierName();
    if (name == "?") {
        return {name, false};
    }
    auto& liste = listenZustand();
    termZustand().tempNamen.insert(name);
    liste.sMatrixListe[name] = m;
    liste.smNamen.erase(name);
    return {name, true};
}

NamenErgebnis termAuswerten(const Zeichenfeld& term, bool ok) {
    StufenErgebnis stand{term, ok};
    const auto kommtVor = [&stand](const std::string& op) {
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

std::pair<std::int64_t, std::int64_t> klammerkernEnden(const Zeichenfeld& feld) {
    const std::int64_t links = posVonZeichen(feld, "(");
    if (links < 0) {
        return {0, 0};
    }
    for (auto i = links; i < static_cast<std::int64_t>(feld.size()); ++i) {
        if (feld[static_cast<std::size_t>(i)] == ")") {
            return {links, i};
        }
    }
    return {0, 0};
}

Zeichenfeld entkerne(const Zeichenfeld& feld) {
    const auto [links, rechts] = klammerkernEnden(feld);
    if (rechts <= links) {
        // No complete bracket pair: nothing to take out. parsen never gets here, because it
        // only calls this on balanced terms that hold brackets.
        return feld;
    }
    const Zeichenfeld kern(feld.begin() + links + 1, feld.begin() + rechts);
    // A failed core leaves "Fehler" behind, on which the enclosing evaluation fails.
    const auto [name, ok] = termAuswerten(kern, true);
    (void)ok;
    return ersetzt(feld, links, rechts, {name});
}

NamenErgebnis parsen(std::string_view kette) {
    const Zeichenfeld feld = string2ZeichenFeld(kette);
    bool ok = formelKorrekt(feld);
    if (!ok) {
        termZustand().fehlerListe = syntaxFehler;
    }
    Zeichenfeld t = gereinigt(feld);
    if (ok) {
        ok = klammernAusgewogen(t);
    }
    while (ok && !klammerfrei(t)) {
        t = entkerne(t);
    }
    return termAuswerten(t, ok);
}

void tempNamenEntfernen(const std::string& behalten) {
    auto& liste = listenZustand();
    auto& temp = termZustand().tempNamen;
    for (const auto& name : temp) {
        if (name != behalten) {
            liste.sMatrixListe.erase(name);
            liste.smNamen.insert(name);
        }
    }
    temp.clear();
}

} // namespace tabulon
