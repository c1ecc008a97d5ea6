#include "terms/parser.h"

#include <gtest/gtest.h>

namespace tabulon {
namespace {

// The refusals and their messages are covered by the evaluation table; here the two points that
// only hoch itself shows.
TEST(Hoch, FaktorenVonLinksUndExakterNulltest) {
    termZustandZuruecksetzen();
    // With these entries a * (a * a) and (a * a) * a differ in the last bit.
    Matrix a(2, 2);
    a.grid = {0.1, 0.7, 0.3, 0.9};
    ASSERT_NE(a * (a * a), (a * a) * a);
    EXPECT_EQ(hoch(a, 3), std::make_pair(a * (a * a), true));

    // Only an exact 0.0 is refused; a determinant of 1e-16 passes, and invers() then gives the
    // 1 x 1 zero matrix with success and no message.
    a.grid = {1e-8, 0, 0, 1e-8};
    EXPECT_EQ(hoch(a, -1), std::make_pair(Matrix(1, 1), true));
    EXPECT_EQ(termZustand().fehlerListe, "");
}

} // namespace
} // namespace tabulon
