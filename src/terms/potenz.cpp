#include "terms/parser.h"

namespace tabulon {

std::pair<Matrix, bool> hoch(const Matrix& mat, int n) {
    Matrix ergebnis(1, 1);
    bool ok = mat.istQuadratisch();
    if (ok && n > 0) {
        ergebnis = mat;
        for (int i = 1; i < n; ++i) {
            ergebnis = mat * ergebnis;
        }
    }
    if (!ok) {
        termZustand().fehlerListe += quadratFehler;
    }
    if (ok && n == -1) {
        // Exactly 0.0, not the zero test: a tiny determinant passes here, and invers() then
        // gives the 1 x 1 zero matrix, which is returned with success.
        auto [inverse, d] = inversUndDet(mat);
        ok = d != 0.0;
        if (!ok) {
            termZustand().fehlerListe += regulaerFehler;
        } else {
            ergebnis = std::move(inverse);
        }
    }
    return {std::move(ergebnis), ok};
}

} // namespace tabulon
