#include "polynomials/polynom.h"
#include "polynomials/polynomhilfe.h"

#include <gtest/gtest.h>

namespace tabulon {
namespace {

TEST(Polynom, GradFolgtDerNullkorrekturUndWinzigeKoeffizientenBleiben) {
    EXPECT_EQ(poly({0, 0, 1e-16}).grad(), -1);
    EXPECT_EQ(poly({0, 0, 1e-15}).grad(), 2);
    EXPECT_EQ(poly({0, 0, 0, 0, 0, 0, 0, 0, -2}).grad(), 8);
    // Above the degree the coefficient still counts in the value and the sum, not the product.
    const Polynom rest = poly({2, 0, 0, 0, 0, 0, 0, 0, 1e-16});
    EXPECT_EQ(rest.grad(), 0);
    EXPECT_EQ(rest.wert(100.0), 2.0 + 1e-16 * 1e16);
    EXPECT_EQ((rest + poly({1, 1})).koeff(8), 1e-16);
    EXPECT_EQ(rest * poly({1, 1}), poly({2, 2}));
}

TEST(Polynom, AbleitungGrenzeNormierungSummeProdukt) {
    EXPECT_EQ(poly({0, -2, 0, 1}).abl(), poly({-2, 0, 3}));
    EXPECT_EQ(poly({1, 2, 3, 4, 5, 6, 7, 8, 9}).abl(), poly({2, 6, 12, 20, 30, 42, 56, 72}));
    EXPECT_EQ(poly({1, 1, 1}).wert(2), 7.0);
    EXPECT_EQ(poly({-6, 11, -6, 2}).nullstGrenze(), 12.5);
    EXPECT_EQ(poly({100, -100, 3}).nullstGrenze(), 1.0);
    EXPECT_EQ(poly({2, 4, -2}).normiert(), poly({-1, -2, 1}));
    EXPECT_EQ(poly({-1, 1}) * poly({1, 1}), poly({-1, 0, 1}));
    EXPECT_EQ(poly({0, 0, 0, 0, 0, 1}) * poly({0, 0, 0, 0, 0, 1}), poly({}));
    EXPECT_EQ(poly({0, 0, 0, 0, 1}) * poly({0, 0, 0, 0, 2}), poly({0, 0, 0, 0, 0, 0, 0, 0, 2}));
    EXPECT_EQ(poly({3, 1}) * poly({}), poly({}));
}

struct TextFall {
    Polynom p;
    const char* text;
};

class PolynomText : public ::testing::TestWithParam<TextFall> {};

TEST_P(PolynomText, AufsteigendMitVorzeichenUndOhneEinsen) {
    EXPECT_EQ(GetParam().p.string(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Faelle, PolynomText,
    ::testing::Values(TextFall{poly({-1, 0, 1}), "-1.0 + x^2"},
                      TextFall{poly({2, -1, 0, 0.5}), "2.0 - x + 0.5x^3"},
                      TextFall{poly({}), "0.0"}, TextFall{poly({0, 1.00000001}), "0.0 + x"},
                      TextFall{poly({-0.0, 4e-8, -2.5, 0, 0, 0, 0, 0, -1}), "0.0 - 2.5x^2 - x^8"},
                      TextFall{poly({1.23456789, 0, 0, 0, 0, 0, 0, -12345678}),
                               "1.2345679 - 12345678.0x^7"}));

} // namespace
} // namespace tabulon
