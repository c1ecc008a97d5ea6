#include "exakt/seite.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace tabulon {

namespace {

// Column widths count characters, not bytes: entries are ASCII, but a bar or a minus sign in a
// line of text is not.
std::size_t breite(const std::string& s) {
    std::size_t n = 0;
    for (unsigned char c : s)
        if ((c & 0xC0) != 0x80)
            ++n;
    return n;
}

std::string matrixText(const BMatrix& m, std::size_t balken) {
    std::vector<std::size_t> breiten(m.columns, 0);
    std::vector<std::string> texte(m.eintraege.size());
    for (std::size_t i = 0; i < texte.size(); ++i) {
        texte[i] = bruchText(m.eintraege[i]);
        breiten[i % m.columns] = std::max(breiten[i % m.columns], breite(texte[i]));
    }
    std::string s;
    for (std::size_t r = 0; r < m.rows; ++r) {
        s += " ";
        for (std::size_t c = 0; c < m.columns; ++c) {
            s += (balken > 0 && c == m.columns - balken) ? " | " : "  ";
            const std::string& t = texte[r * m.columns + c];
            s.append(breiten[c] - breite(t), ' ');
            s += t;
        }
        s += "\n";
    }
    return s;
}

// The symbols the pages use, each with its TeX form for text mode.
const std::pair<std::string_view, std::string_view> symbole[] = {
    {"←", "\\ensuremath{\\leftarrow}"},
    {"↔", "\\ensuremath{\\leftrightarrow}"},
    {"−", "\\ensuremath{-}"},
    {"·", "\\ensuremath{\\cdot}"},
    {"×", "\\ensuremath{\\times}"},
    {"≈", "\\ensuremath{\\approx}"},
    {"≠", "\\ensuremath{\\neq}"},
    {"≤", "\\ensuremath{\\leq}"},
    {"≥", "\\ensuremath{\\geq}"},
    {"±", "\\ensuremath{\\pm}"},
    {"λ", "\\ensuremath{\\lambda}"},
    {"⁻¹", "\\ensuremath{^{-1}}"},
    {"²", "\\ensuremath{^{2}}"},
    {"³", "\\ensuremath{^{3}}"},
    {"…", "\\ldots{}"},
    {"\\", "\\textbackslash{}"},
    {"{", "\\{"},
    {"}", "\\}"},
    {"$", "\\$"},
    {"&", "\\&"},
    {"#", "\\#"},
    {"%", "\\%"},
    {"_", "\\_"},
    {"~", "\\textasciitilde{}"},
};

bool istZiffer(char c) {
    return c >= '0' && c <= '9';
}

} // namespace

Zeile& Zeile::operator<<(std::string_view t) {
    if (!stuecke.empty() && !stuecke.back().istBruch)
        stuecke.back().text += t;
    else
        stuecke.push_back(Stueck{false, std::string(t), Bruch()});
    return *this;
}

Zeile& Zeile::operator<<(const Bruch& b) {
    stuecke.push_back(Stueck{true, "", b});
    return *this;
}

Zeile& Zeile::operator<<(const BVektor& v) {
    *this << "(";
    for (std::size_t i = 0; i < v.size(); ++i) {
        if (i > 0)
            *this << ", ";
        *this << v[i];
    }
    return *this << ")";
}

Zeile& Zeile::operator<<(const Zeile& z) {
    for (const auto& st : z.stuecke) {
        if (st.istBruch)
            *this << st.wert;
        else
            *this << st.text;
    }
    return *this;
}

std::string Zeile::text() const {
    std::string s;
    for (const auto& st : stuecke)
        s += st.istBruch ? bruchText(st.wert) : st.text;
    return s;
}

Seite& Seite::zeile(Zeile z) {
    Block b;
    b.zeile = std::move(z);
    bloecke.push_back(std::move(b));
    return *this;
}

Seite& Seite::matrix(const BMatrix& m, std::size_t balken) {
    Block b;
    b.istMatrix = true;
    b.matrix = m;
    b.balken = balken;
    bloecke.push_back(std::move(b));
    return *this;
}

std::string Seite::text() const {
    std::string s;
    for (const auto& b : bloecke)
        s += b.istMatrix ? matrixText(b.matrix, b.balken) : b.zeile.text() + "\n";
    return s;
}

std::string bruchTex(const Bruch& wert) {
    Bruch b = wert;
    b.canonicalize();
    if (b.get_den() == 1)
        return b.get_num().get_str();
    mpz_class p = abs(b.get_num());
    return std::string(b < 0 ? "-" : "") + "\\frac{" + p.get_str() + "}{" + b.get_den().get_str() +
           "}";
}

std::string texText(std::string_view text) {
    std::string s;
    std::size_t i = 0;
    while (i < text.size()) {
        // A root over digits, as in "1/2·√5", becomes \sqrt{5}; a power "x^12" becomes x^{12}.
        if (text.substr(i).starts_with("√") || text[i] == '^') {
            std::size_t start = i + (text[i] == '^' ? 1 : std::string_view("√").size());
            std::size_t ende = start;
            while (ende < text.size() && istZiffer(text[ende]))
                ++ende;
            std::string argument(text.substr(start, ende - start));
            s += text[i] == '^' ? "\\ensuremath{^{" + argument + "}}"
                                : "\\ensuremath{\\sqrt{" + argument + "}}";
            i = ende;
            continue;
        }
        // A hyphen joins two words ("Gauß-Jordan", "1-mal"); every other '-' is a minus sign,
        // which text mode would set as a short hyphen.
        if (text[i] == '-') {
            bool davorWort = i > 0 && (std::isalnum(static_cast<unsigned char>(text[i - 1])) ||
                                       static_cast<unsigned char>(text[i - 1]) >= 0x80);
            bool danachBuchstabe =
                i + 1 < text.size() && (std::isalpha(static_cast<unsigned char>(text[i + 1])) ||
                                        static_cast<unsigned char>(text[i + 1]) >= 0x80);
            s += davorWort && danachBuchstabe ? "-" : "\\ensuremath{-}";
            ++i;
            continue;
        }
        bool ersetzt = false;
        for (const auto& [zeichen, tex] : symbole)
            if (text.substr(i).starts_with(zeichen)) {
                s += tex;
                i += zeichen.size();
                ersetzt = true;
                break;
            }
        if (!ersetzt)
            s += text[i++];
    }
    return s;
}

std::string Seite::tex() const {
    std::string s;
    for (const auto& b : bloecke) {
        if (!b.istMatrix) {
            if (b.zeile.stuecke.empty()) {
                s += "\\medskip\n\n";
                continue;
            }
            for (const auto& st : b.zeile.stuecke)
                s += st.istBruch ? "\\ensuremath{" + bruchTex(st.wert) + "}" : texText(st.text);
            s += "\n\n";
            continue;
        }
        const BMatrix& m = b.matrix;
        s += "\\[\n\\left(\\begin{array}{";
        for (std::size_t c = 0; c < m.columns; ++c) {
            if (b.balken > 0 && c == m.columns - b.balken)
                s += "|";
            s += "c";
        }
        s += "}\n";
        for (std::size_t r = 0; r < m.rows; ++r) {
            for (std::size_t c = 0; c < m.columns; ++c) {
                if (c > 0)
                    s += " & ";
                s += bruchTex(m(r, c));
            }
            s += " \\\\\n";
        }
        s += "\\end{array}\\right)\n\\]\n\n";
    }
    return s;
}

std::string texDokument(const Seite& seite) {
    return "\\documentclass{article}\n"
           "\\usepackage[utf8]{inputenc}\n"
           "\\usepackage[T1]{fontenc}\n"
           "\\usepackage{amsmath}\n"
           "\\setlength{\\parindent}{0pt}\n"
           "\\begin{document}\n\n" +
           seite.tex() + "\\end{document}\n";
}

} // namespace tabulon
