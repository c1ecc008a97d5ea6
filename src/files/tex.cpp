#include "files/tex.h"

#include "textmatrix/liste.h"

namespace tabulon {

std::string tex(const std::string& name, int dezimalen) {
    const auto& liste = listenZustand().sMatrixListe;
    const auto gefunden = liste.find(name);
    if (gefunden == liste.end()) {
        return "";
    }
    const SMatrix m = gefunden->second.gerundet(dezimalen);
    std::string s = "\\begin {displaymath}\n";
    s += name + " = \\left(\\begin {array} {" +
         std::string(static_cast<std::size_t>(m.columns), 'c') + "}\n";
    for (std::int64_t i = 0; i < m.rows && m.columns > 0; ++i) {
        // The blank after the first entry and the one in " & " make two before each "&".
        s += m(i, 0) + " ";
        for (std::int64_t j = 1; j < m.columns; ++j) {
            s += " & " + m(i, j);
        }
        s += "\\\\\n";
    }
    s += "\\end {array} \\right) \n";
    s += "\\end {displaymath}\n";
    return s;
}

std::string texAlle(int dezimalen) {
    const auto& liste = listenZustand().sMatrixListe;
    std::string s;
    for (const std::string& x : grossBuchstaben()) {
        if (liste.count(x) != 0) {
            s += x + ":\n" + tex(x, dezimalen) + "\n\n";
        }
    }
    return s;
}

} // namespace tabulon
