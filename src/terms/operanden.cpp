#include "terms/operanden.h"

#include <cstddef>

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

} // namespace tabulon
