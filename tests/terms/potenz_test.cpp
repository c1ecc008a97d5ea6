#include "terms/parser.h"

#include <gtest/gtest.h>

namespace tabulon {
namespace {

Matrix aus(std::int64_t zeilen, std::int64_t spalten, std::initializer_list<double> werte) {
    Matrix m(zeilen, spalten);
    m.grid.assign(werte);
    return m;
}

using Potenz = std::pair<Matrix, bool>;

TEST(Hoch, PotenzenInverseUndIhreMeldungen) {
    termZustandZuruecksetzen();
    // The factors are taken from the left: with these entries a * (a * a) and (a * a) * a
    // differ in the last bit.
    const Matrix a = aus(2, 2, {0.1, 0.7, 0.3, 0.9});
    ASSERT_NE(a * (a * a), (a * a) * a);
    EXPECT_EQ(hoch(a, 1), Potenz(a, true));
    EXPECT_EQ(hoch(a, 3), Potenz(a * (a * a), true));
    EXPECT_EQ(hoch(aus(2, 2, {1, 2, 3, 4}), -1), Potenz(aus(2, 2, {-2, 1, 1.5, -0.5}), true));
    EXPECT_EQ(termZustand().fehlerListe, "");

    const Matrix rechteck = aus(2, 3, {1, 2, 3, 4, 5, 6});
    EXPECT_EQ(hoch(rechteck, 2), Potenz(Matrix(1, 1), false));
    EXPECT_EQ(hoch(rechteck, -1), Potenz(Matrix(1, 1), false));
    EXPECT_EQ(hoch(aus(2, 2, {1, 2, 2, 4}), -1), Potenz(Matrix(1, 1), false));
    EXPECT_EQ(termZustand().fehlerListe, quadratFehler + quadratFehler + regulaerFehler);

    // Only an exact 0.0 is refused here; a tiny determinant passes, and the inverse of a matrix
    // that fails the zero test is the 1 x 1 zero matrix.
    termZustandZuruecksetzen();
    EXPECT_EQ(hoch(aus(2, 2, {1e-8, 0, 0, 1e-8}), -1), Potenz(Matrix(1, 1), true));
    EXPECT_EQ(termZustand().fehlerListe, "");
}

} // namespace
} // namespace tabulon
