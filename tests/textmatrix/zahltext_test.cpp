#include "textmatrix/liste.h"
#include "textmatrix/zahltext.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <optional>
#include <string>

namespace tabulon {
namespace {

struct TextZuZahl {
    const char* text;
    std::optional<double> zahl;
};

class Text2Zahl : public ::testing::TestWithParam<TextZuZahl> {};

TEST_P(Text2Zahl, LiestDenGanzenTextImCGebietsschema) {
    const TextZuZahl& fall = GetParam();
    const std::optional<double> gelesen = text2Zahl(fall.text);
    ASSERT_EQ(gelesen.has_value(), fall.zahl.has_value()) << '"' << fall.text << '"';
    if (fall.zahl) {
        EXPECT_EQ(*gelesen, *fall.zahl) << '"' << fall.text << '"';
        EXPECT_EQ(std::signbit(*gelesen), std::signbit(*fall.zahl)) << '"' << fall.text << '"';
    }
}

INSTANTIATE_TEST_SUITE_P(
    Faelle, Text2Zahl,
    ::testing::Values(TextZuZahl{"", 0.0}, TextZuZahl{"1.5", 1.5}, TextZuZahl{"  -2e3", -2000.0},
                      TextZuZahl{"\t+.5", 0.5}, TextZuZahl{"2.5E4", 25000.0},
                      TextZuZahl{"-0", -0.0}, TextZuZahl{"0x1p3", 8.0}, TextZuZahl{"1e-400", 0.0},
                      TextZuZahl{"4.9e-324", std::numeric_limits<double>::denorm_min()},
                      TextZuZahl{"inf", std::numeric_limits<double>::infinity()},
                      TextZuZahl{"-Infinity", -std::numeric_limits<double>::infinity()},
                      TextZuZahl{"1,5", std::nullopt}, TextZuZahl{"5 ", std::nullopt},
                      TextZuZahl{"1/2", std::nullopt}, TextZuZahl{"1e999", std::nullopt},
                      TextZuZahl{"-1e999", std::nullopt}, TextZuZahl{"   ", std::nullopt},
                      TextZuZahl{"A", std::nullopt}, TextZuZahl{"1e", std::nullopt},
                      TextZuZahl{"+", std::nullopt}, TextZuZahl{".", std::nullopt}));

TEST(Text2Zahl, NanUndEingebettetesNullzeichen) {
    const std::optional<double> nan = text2Zahl("nan");
    ASSERT_TRUE(nan.has_value());
    EXPECT_TRUE(std::isnan(*nan));
    EXPECT_FALSE(text2Zahl(std::string("1\0"
                                       "2",
                                       3))
                     .has_value());
}

struct ZahlZuText {
    double zahl;
    const char* standard;
    const char* voll;
};

class ZahlTexte : public ::testing::TestWithParam<ZahlZuText> {};

TEST_P(ZahlTexte, SchreibtPunktUndNullWieDieCBibliothek) {
    EXPECT_EQ(zahlText(GetParam().zahl), GetParam().standard);
    EXPECT_EQ(zahlTextVoll(GetParam().zahl), GetParam().voll);
}

constexpr double unendlich = std::numeric_limits<double>::infinity();

INSTANTIATE_TEST_SUITE_P(
    Faelle, ZahlTexte,
    ::testing::Values(ZahlZuText{1.0 / 3.0, "0.333333333333333", "0.33333333333333331"},
                      ZahlZuText{2.0, "2.0", "2.0"}, ZahlZuText{-0.0, "-0.0", "-0.0"},
                      ZahlZuText{1e-7, "1e-07", "9.9999999999999995e-08"},
                      ZahlZuText{100000.0, "100000.0", "100000.0"},
                      ZahlZuText{1e16, "1e+16", "10000000000000000.0"},
                      ZahlZuText{1e15, "1e+15", "1000000000000000.0"},
                      ZahlZuText{0.1, "0.1", "0.10000000000000001"},
                      ZahlZuText{-2.5, "-2.5", "-2.5"}, ZahlZuText{0.0001, "0.0001", "0.0001"},
                      ZahlZuText{unendlich, "inf", "inf"}, ZahlZuText{-unendlich, "-inf", "-inf"},
                      ZahlZuText{std::nan(""), "nan", "nan"},
                      ZahlZuText{-std::nan(""), "nan", "nan"}));

TEST(Festkomma, RundetWieDieCBibliothekMitPunkt) {
    EXPECT_EQ(festkomma(2.5, 0), "2");
    EXPECT_EQ(festkomma(3.5, 0), "4");
    EXPECT_EQ(festkomma(-1.005, 2), "-1.00");
    EXPECT_EQ(festkomma(1234567.891, 2), "1234567.89");
    EXPECT_EQ(festkomma(-0.0, 3), "-0.000");
    EXPECT_EQ(festkomma(1e300, 1).size(), 303u);
    EXPECT_EQ(festkomma(unendlich, 4), "inf");
}

TEST(Round, SchwelleFolgtDezimalenStellenFolgenAmount) {
    listenZustandZuruecksetzen();
    EXPECT_EQ(round(-0.00000004, 6), "0.000000");
    EXPECT_EQ(round(-0.0000004, 6), "-0.000000");
    EXPECT_EQ(round(2.5, 6), "2.500000");
    EXPECT_EQ(round(-0.0, 6), "0.000000");
    // The threshold comes from dezimalen, the digits from amount.
    EXPECT_EQ(round(-0.00000004, 10), "0.0000000000");
    listenZustand().dezimalen = 2;
    EXPECT_EQ(round(-0.0001, 2), "0.00");
    EXPECT_EQ(round(-0.001, 2), "-0.00");
    EXPECT_EQ(round(-0.0001, 6), "0.000000");
    EXPECT_EQ(round(3.14159, 2), "3.14");
    listenZustandZuruecksetzen();
}

TEST(Xrunden, SiebenStellenHalbVonNullWeg) {
    EXPECT_EQ(xrunden(0.123456789), 0.1234568);
    EXPECT_EQ(xrunden(-0.123456789), -0.1234568);
    EXPECT_EQ(xrunden(0.00000005), 1e-07);
    EXPECT_EQ(xrunden(-0.00000005), -1e-07);
    const double klein = xrunden(-4e-8);
    EXPECT_EQ(klein, 0.0);
    EXPECT_FALSE(std::signbit(klein));
    EXPECT_EQ(xrunden(12.0), 12.0);
}

TEST(FeldWerte, GanzzahlUndDoubleWieEinTextfeld) {
    EXPECT_EQ(intWert("  42abc"), 42);
    EXPECT_EQ(intWert("-7"), -7);
    EXPECT_EQ(intWert("+3.9"), 3);
    EXPECT_EQ(intWert("x5"), 0);
    EXPECT_EQ(intWert(""), 0);
    EXPECT_EQ(intWert("99999999999999999999"), std::numeric_limits<int>::max());
    EXPECT_EQ(intWert("-99999999999999999999"), std::numeric_limits<int>::min());
    EXPECT_EQ(intWert("-2147483648"), std::numeric_limits<int>::min());

    EXPECT_EQ(doubleWert(" 2.5xyz"), 2.5);
    EXPECT_EQ(doubleWert("1,5"), 1.0);
    EXPECT_EQ(doubleWert("abc"), 0.0);
    EXPECT_EQ(doubleWert("-3e2 "), -300.0);

    EXPECT_EQ(strengeGanzzahl("12"), 12);
    EXPECT_EQ(strengeGanzzahl("-2147483648"), std::numeric_limits<int>::min());
    EXPECT_EQ(strengeGanzzahl("+5"), 5);
    for (const char* kein : {"", "-", " 1", "1 ", "1.0", "2147483648", "1e3", "0x10"}) {
        EXPECT_FALSE(strengeGanzzahl(kein).has_value()) << '"' << kein << '"';
    }
}

} // namespace
} // namespace tabulon
