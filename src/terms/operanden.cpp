#include "terms/operanden.h"
#include "textmatrix/zahltext.h"

#include <cstddef>
#include <utility>

namespace tabulon {

const Matrix& Operandenspeicher::werte(char buchstabe, const SMatrix& texte) {
    auto& g = gelesen[static_cast<std::size_t>(buchstabe - 'A')];
    if (!g.belegt || g.texte != texte) {
        g.werte = matrix(texte);
        g.texte = texte;
        g.belegt = true;
    }
    return g.werte;
}

SMatrix Operandenspeicher::texteVon(const Matrix& m) {
    SMatrix texte;
    if (!frei.empty()) {
        texte = std::move(frei.back());
        frei.pop_back();
    }
    texte.rows = m.rows;
    texte.columns = m.columns;
    texte.grid.resize(m.grid.size());
    for (std::size_t k = 0; k < m.grid.size(); ++k) {
        zahlTextIn(texte.grid[k], m.grid[k]); // the text zahlText gives, as smatrix writes it
    }
    return texte;
}

void Operandenspeicher::zuruecklegen(SMatrix texte) {
    frei.push_back(std::move(texte));
}

} // namespace tabulon
