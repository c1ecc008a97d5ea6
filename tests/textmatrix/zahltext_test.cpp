#include "textmatrix/liste.h"
#include "textmatrix/zahltext.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <optional>
#include <string_view>

namespace tabulon {
namespace {

constexpr double inf = std::numeric_limits<double>::infinity();

TEST(Zahltext, Text2ZahlLiestDenGanzenTextImCGebietsschema) {
    const struct {
        const char* text;
        std::optional<double> zahl;
    } faelle[] = {
        {"", 0.0},        {"1.5", 1.5},
        {"  -2e3", -2e3}, {"\t+.5", 0.5},
        {"0x1p3", 8.0},   {"-0", -0.0},
        {"1e-400", 0.0},  {"4.9e-324", std::numeric_limits<double>::denorm_min()},
        {"inf", inf},     {"-Infinity", -inf},
        {"1,5", {}},      {"5 ", {}},
        {"1/2", {}},      {"1e999", {}},
        {"-1e999", {}},   {"   ", {}},
        {"A", {}},        {"1e", {}},
        {".", {}},
    };
    for (const auto& fall : faelle) {
        const std::optional<double> z = text2Zahl(fall.text);
        ASSERT_EQ(z.has_value(), fall.zahl.has_value()) << '"' << fall.text << '"';
        if (z) {
            EXPECT_EQ(*z, *fall.zahl) << fall.text;
            EXPECT_EQ(std::signbit(*z), std::signbit(*fall.zahl)) << fall.text;
        }
    }
    EXPECT_TRUE(std::isnan(text2Zahl("nan").value_or(0.0)));
    EXPECT_FALSE(text2Zahl(std::string_view("1\0002", 3)).has_value());
}

TEST(Zahltext, StandardUndVollTextMitPunktNull) {
    const struct {
        double zahl;
        const char* standard;
        const char* voll;
    } faelle[] = {
        {1.0 / 3.0, "0.333333333333333", "0.33333333333333331"},
        {2.0, "2.0", "2.0"},
        {-0.0, "-0.0", "-0.0"},
        {1e-7, "1e-07", "9.9999999999999995e-08"},
        {100000.0, "100000.0", "100000.0"},
        {1e16, "1e+16", "10000000000000000.0"},
        {0.1, "0.1", "0.10000000000000001"},
        {inf, "inf", "inf"},
        {-inf, "-inf", "-inf"},
        {std::nan(""), "nan", "nan"},
        {-std::nan(""), "nan", "nan"},
    };
    for (const auto& fall : faelle) {
        EXPECT_EQ(zahlText(fall.zahl), fall.standard);
        EXPECT_EQ(zahlTextVoll(fall.zahl), fall.voll);
    }
    EXPECT_EQ(festkomma(2.5, 0), "2");
    EXPECT_EQ(festkomma(-1.005, 2), "-1.00");
    EXPECT_EQ(festkomma(1e300, 1).size(), 303u);
}

TEST(Zahltext, RoundSchwelleAusDezimalenStellenAusAmount) {
    listenZustandZuruecksetzen();
    EXPECT_EQ(round(-0.00000004, 6), "0.000000");
    EXPECT_EQ(round(-0.0000004, 6), "-0.000000");
    EXPECT_EQ(round(2.5, 6), "2.500000");
    EXPECT_EQ(round(-0.00000004, 10), "0.0000000000");
    listenZustand().dezimalen = 2;
    EXPECT_EQ(round(-0.0001, 6), "0.000000");
    EXPECT_EQ(round(-0.001, 2), "-0.00");
    listenZustandZuruecksetzen();

    EXPECT_EQ(xrunden(0.123456789), 0.1234568);
    EXPECT_EQ(xrunden(-0.00000005), -1e-07);
    EXPECT_FALSE(std::signbit(xrunden(-4e-8)));
    EXPECT_EQ(xrunden(-4e-8), 0.0);
}

TEST(Zahltext, FeldWerte) {
    const int max = std::numeric_limits<int>::max(), min = std::numeric_limits<int>::min();
    const struct {
        const char* text;
        int ganz;
        double wert;
        std::optional<int> streng;
    } faelle[] = {
        {"12", 12, 12.0, 12},
        {"  42abc", 42, 42.0, {}},
        {"+3.9", 3, 3.9, {}},
        {"-2147483648", min, -2147483648.0, min},
        {"2147483648", max, 2147483648.0, {}},
        {"-99999999999999999999", min, -1e20, {}},
        {"1,5", 1, 1.0, {}},
        {"x5", 0, 0.0, {}},
        {"", 0, 0.0, {}},
        {"-", 0, 0.0, {}},
        {"1e3", 1, 1000.0, {}},
    };
    for (const auto& fall : faelle) {
        EXPECT_EQ(intWert(fall.text), fall.ganz) << fall.text;
        EXPECT_EQ(doubleWert(fall.text), fall.wert) << fall.text;
        EXPECT_EQ(strengeGanzzahl(fall.text), fall.streng) << fall.text;
    }
}

} // namespace
} // namespace tabulon
