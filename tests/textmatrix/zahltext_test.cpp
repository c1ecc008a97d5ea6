#include "textmatrix/liste.h"
#include "textmatrix/zahltext.h"

#include <clocale>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <optional>
#include <string_view>

namespace tabulon {
namespace {

// Every test of this executable runs under a German locale, whose decimal comma would show up in
// any number text that depends on the process locale.
class DeutschesGebietsschema : public ::testing::Environment {
public:
    void SetUp() override {
        ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr)
            << "the locale de_DE.UTF-8 is missing (scripts/einrichten.sh generates it)";
        ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    }
    void TearDown() override { std::setlocale(LC_ALL, "C"); }
};
const ::testing::Environment* const umgebung =
    ::testing::AddGlobalTestEnvironment(new DeutschesGebietsschema);

constexpr double inf = std::numeric_limits<double>::infinity();

TEST(Zahltext, Text2ZahlLiestDenGanzenTextImCGebietsschema) {
    const struct {
        const char* text;
        std::optional<double> zahl;
    } faelle[] = {
        {"", 0.0},      {"1.5", 1.5}, {"  -2e3", -2e3}, {"\t+.5", 0.5},
        {"0x1p3", 8.0}, {"-0", -0.0}, {"1e-400", 0.0},  {"-Infinity", -inf},
        {"1,5", {}},    {"5 ", {}},   {"1/2", {}},      {"1e999", {}},
        {"-1e999", {}}, {"   ", {}},  {"A", {}},        {"1e", {}},
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
        {-0.0, "-0.0", "-0.0"},
        {1e-7, "1e-07", "9.9999999999999995e-08"},
        {100000.0, "100000.0", "100000.0"},
        {1e16, "1e+16", "10000000000000000.0"},
        {-inf, "-inf", "-inf"},
        {-std::nan(""), "nan", "nan"},
    };
    for (const auto& fall : faelle) {
        EXPECT_EQ(zahlText(fall.zahl), fall.standard);
        EXPECT_EQ(zahlTextVoll(fall.zahl), fall.voll);
    }
    EXPECT_EQ(festkomma(-1.005, 2), "-1.00");
    EXPECT_EQ(festkomma(1e300, 1).size(), 303u); // longer than any fixed buffer
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
    EXPECT_EQ(xrunden(-0.00000005), -1e-07); // half away from zero
    EXPECT_FALSE(std::signbit(xrunden(-4e-8)));
}

// The field readers are driven through the editing transcripts; here their limits.
TEST(Zahltext, FeldWerteSaettigenOderLehnenAb) {
    EXPECT_EQ(intWert("  2147483648abc"), std::numeric_limits<int>::max());
    EXPECT_EQ(intWert("-99999999999999999999"), std::numeric_limits<int>::min());
    EXPECT_EQ(strengeGanzzahl("2147483648"), std::nullopt);
    EXPECT_EQ(strengeGanzzahl("-2147483648"), std::numeric_limits<int>::min());
    EXPECT_EQ(doubleWert("1e3,5"), 1000.0);
}

} // namespace
} // namespace tabulon
