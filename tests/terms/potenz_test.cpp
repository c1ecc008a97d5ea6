#include "terms/parser.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>

namespace tabulon {
namespace {

bool bitgleich(const Matrix& a, const Matrix& b) {
    if (a.rows != b.rows || a.columns != b.columns) {
        return false;
    }
    for (std::size_t k = 0; k < a.grid.size(); ++k) {
        if (std::bit_cast<std::uint64_t>(a.grid[k]) != std::bit_cast<std::uint64_t>(b.grid[k])) {
            return false;
        }
    }
    return true;
}

Matrix aus(std::int64_t zeilen, std::int64_t spalten, std::initializer_list<double> werte) {
    Matrix m(zeilen, spalten);
    m.grid.assign(werte);
    return m;
}

class Potenz : public ::testing::Test {
protected:
    void SetUp() override { termZustandZuruecksetzen(); }
};

TEST_F(Potenz, PositiveExponentenMultiplizierenVonLinks) {
    const Matrix a = aus(2, 2, {0.1, 0.7, 0.3, 0.9});
    auto [eins, ok1] = hoch(a, 1);
    EXPECT_TRUE(ok1);
    EXPECT_TRUE(bitgleich(eins, a));
    auto [drei, ok3] = hoch(a, 3);
    EXPECT_TRUE(ok3);
    EXPECT_TRUE(bitgleich(drei, a * (a * a)));
    EXPECT_TRUE(termZustand().fehlerListe.empty());
}

TEST_F(Potenz, NichtQuadratischOderSingulaer) {
    const Matrix rechteck = aus(2, 3, {1, 2, 3, 4, 5, 6});
    EXPECT_EQ(hoch(rechteck, 2), (std::pair<Matrix, bool>{Matrix(1, 1), false}));
    EXPECT_EQ(hoch(rechteck, -1), (std::pair<Matrix, bool>{Matrix(1, 1), false}));
    EXPECT_EQ(termZustand().fehlerListe, quadratFehler + quadratFehler);

    termZustandZuruecksetzen();
    EXPECT_EQ(hoch(aus(2, 2, {1, 2, 2, 4}), -1), (std::pair<Matrix, bool>{Matrix(1, 1), false}));
    EXPECT_EQ(termZustand().fehlerListe, regulaerFehler);

    // Only an exact 0.0 is refused here; a tiny determinant passes, and the inverse of a matrix
    // that fails the zero test is the 1 x 1 zero matrix.
    termZustandZuruecksetzen();
    EXPECT_EQ(hoch(aus(2, 2, {1e-8, 0, 0, 1e-8}), -1),
              (std::pair<Matrix, bool>{Matrix(1, 1), true}));
    EXPECT_TRUE(termZustand().fehlerListe.empty());
}

// The inverse of hoch shares its minors instead of recomputing them; it must still agree with
// Matrix::invers() to the last bit, for every size the tableau allows.
TEST_F(Potenz, InverseStimmtBitgenauMitMatrixUeberein) {
    std::uint64_t zustand = 12345;
    const auto zufall = [&zustand] {
        zustand = zustand * 6364136223846793005ULL + 1442695040888963407ULL;
        return static_cast<double>(static_cast<std::int64_t>(zustand >> 33) % 2001 - 1000) / 7.0;
    };
    for (std::int64_t n = 1; n <= 8; ++n) {
        Matrix m(n, n);
        for (double& x : m.grid) {
            x = zufall();
        }
        const auto [inverse, ok] = hoch(m, -1);
        EXPECT_TRUE(ok);
        EXPECT_TRUE(bitgleich(inverse, m.invers())) << "size " << n;
    }
    EXPECT_TRUE(bitgleich(hoch(aus(2, 2, {1, 2, 3, 4}), -1).first, aus(2, 2, {-2, 1, 1.5, -0.5})));
}

} // namespace
} // namespace tabulon
