// The number texts against the C library itself (snprintf under a C locale, strtod_l) on
// millions of doubles and texts: a shortcut in the conversions shows up as the first input where
// the two disagree.

#include "app/zustand.h"
#include "textmatrix/liste.h"
#include "textmatrix/zahltext.h"

#include <bit>
#include <cerrno>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <locale.h>
#include <optional>
#include <random>
#include <string>

namespace tabulon {
namespace {

// Every test of this executable, the comparisons with the C library included, runs under a German
// locale, whose decimal comma would show up in any number text that depends on the process locale.
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

locale_t cGebiet() {
    static const locale_t c = newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(nullptr));
    return c;
}

template <typename... Args> std::string cDruck(const char* format, Args... args) {
    const locale_t alt = uselocale(cGebiet());
    char puffer[1200];
    const int n = std::snprintf(puffer, sizeof puffer, format, args...);
    uselocale(alt);
    return std::string(puffer, static_cast<std::size_t>(n));
}

// Counts comparisons, reports the first few disagreements with the input in hexadecimal.
struct Vergleich {
    std::size_t anzahl = 0;
    std::size_t fehler = 0;
    std::string wiederbenutzt = "-1.23456789012345e-300";

    void gleich(const std::string& ist, const std::string& soll, const char* was, double x) {
        ++anzahl;
        if (ist != soll && ++fehler <= 10) {
            ADD_FAILURE() << was << '(' << cDruck("%a", x) << ") gives \"" << ist << "\", not \""
                          << soll << '"';
        }
    }
    void texte(double x, int stellen = -1) {
        const auto mitPunktNull = [x](const char* format) {
            const std::string t = cDruck(format, x);
            return std::isnan(x) ? "nan" : t.find_first_of(".en") == t.npos ? t + ".0" : t;
        };
        const std::string standard = mitPunktNull("%.15g");
        gleich(zahlText(x), standard, "zahlText", x);
        // Written over the previous input's text, as the term evaluation reuses its texts.
        zahlTextIn(wiederbenutzt, x);
        gleich(wiederbenutzt, standard, "zahlTextIn", x);
        gleich(zahlTextVoll(x), mitPunktNull("%.17g"), "zahlTextVoll", x);
        if (stellen >= 0) {
            gleich(festkomma(x, stellen), std::isnan(x) ? "nan" : cDruck("%.*f", stellen, x),
                   "festkomma", x);
        }
    }
    void zahl(const std::string& text) {
        char* ende = nullptr;
        errno = 0;
        const double s = text.empty() ? 0.0 : strtod_l(text.c_str(), &ende, cGebiet());
        const bool liest =
            text.empty() || (ende == text.c_str() + text.size() && ende != text.c_str() &&
                             !(errno == ERANGE && std::isinf(s)));
        const std::optional<double> ist = text2Zahl(text);
        ++anzahl;
        if ((ist.has_value() != liest ||
             (ist && std::bit_cast<std::uint64_t>(*ist) != std::bit_cast<std::uint64_t>(s) &&
              !(std::isnan(*ist) && std::isnan(s)))) &&
            ++fehler <= 10) {
            ADD_FAILURE() << "text2Zahl(\"" << text << "\") gives "
                          << (ist ? cDruck("%a", *ist) : "nothing") << ", strtod "
                          << (liest ? cDruck("%a", s) : "nothing");
        }
    }
};

struct Zufall {
    std::mt19937_64 z;
    int bis(int n) { return static_cast<int>(z() % static_cast<unsigned>(n)); } // 0 ... n-1
    std::string ziffern(int anzahl) {
        std::string t;
        for (int k = 0; k < anzahl; ++k) {
            t += static_cast<char>('0' + bis(10));
        }
        return t;
    }
    double zahl(const std::string& text) const { return std::strtod(text.c_str(), nullptr); }
};

// Random bit patterns (all exponents, subnormals, zeros, infinities, NaNs); short decimals
// (k digits times a power of ten, the values matrices hold) with a neighbour above and the second
// below; values next to a tie of the 15-digit rounding (d.dddddddddddddd5 x 10^e) or of the last
// decimal of %.*f (ddd.dd5), exact ties that printf rounds half to even (m + 0.5 for 15-digit m,
// 16-digit integers ending in 5) and integers around 2^53.
TEST(ZahltextVergleich, TexteWieSnprintf) {
    Zufall r{std::mt19937_64(20261123)};
    Vergleich v;
    for (int i = 0; i < 100000; ++i) {
        const double x = std::bit_cast<double>(r.z());
        v.texte(x, r.bis(12));
        v.zahl(cDruck("%.15g", x));
        v.zahl(cDruck("%.17g", x));
    }
    for (int i = 0; i < 70000; ++i) {
        const double x = r.zahl(r.ziffern(1 + r.bis(17)) + "e" + ganzText(r.bis(80) - 40));
        v.texte(x, r.bis(11));
        v.texte(-std::nextafter(x, 1e300));
        v.texte(std::nextafter(std::nextafter(x, 0.0), 0.0));
        const int e = i % 2 == 0 ? r.bis(24) - 7 : r.bis(600) - 300;
        const double y = r.zahl(ganzText(1 + r.bis(9)) + "." + r.ziffern(14) +
                                (r.bis(4) == 0 ? "49e" : "5e") + ganzText(e));
        for (const double n : {y, std::nextafter(y, 0.0), std::nextafter(y, 1e300)}) {
            v.texte(n);
        }
        const int stellen = r.bis(11);
        const double h =
            r.zahl(r.ziffern(r.bis(7)) + "." + r.ziffern(stellen) + "5" + r.ziffern(r.bis(3)));
        for (const double n : {h, -std::nextafter(h, 0.0), std::nextafter(h, 1e300)}) {
            v.texte(n, stellen);
        }
        v.texte(static_cast<double>(100000000000000 + r.z() % 900000000000000) + 0.5);
        v.texte(static_cast<double>((100000000000000 + r.z() % 800000000000000) * 10 + 5));
    }
    for (int k = -2000; k <= 2000; ++k) {
        v.texte(9007199254740992.0 + k, 1);
        v.texte(static_cast<double>(k) / 8.0, 2);
    }
    // Each power of ten from 1e-6 to 1e16 and the doubles around it, where the decimal exponent
    // changes, the plain notation of %.15g begins or ends, and 15 nines round up into the next
    // decade.
    for (int e = -6; e <= 16; ++e) {
        const double p = r.zahl("1e" + ganzText(e));
        const double neun = r.zahl("9.999999999999995e" + ganzText(e - 1));
        for (const double n : {p, neun}) {
            double unten = n;
            double oben = n;
            for (int k = 0; k < 4; ++k) {
                v.texte(unten);
                v.texte(-oben);
                unten = std::nextafter(unten, 0.0);
                oben = std::nextafter(oben, 1e300);
            }
        }
    }
    for (const double x : {0.0, -0.0, 1.0 / 0.0, -1.0 / 0.0, 4.9e-324, 2.2250738585072014e-308,
                           1.7976931348623157e308, 123456789012345.5, 999999999999999.5,
                           1000000000000005.0, 9.999999999999995e-5, 99999.99999999995}) {
        v.texte(x, 3);
    }
    EXPECT_GT(v.anzahl, 1500000u);
}

// strtod's wider syntax (blanks, '+', hexadecimal, inf, nan), overflow, underflow into the
// subnormals and to zero, malformed texts, 800-digit mantissas, and random decimal literals with
// exponents across the whole range.
TEST(ZahltextVergleich, ZahlenWieStrtod) {
    Vergleich v;
    // clang-format off
    for (const char* text : {
        "", " 1", "\t-2.5", "\n3", "+1", "+.5", "-0", "-0.0e7", ".5", "5.", "-.5e1", ".", "-",
        "-.", "1e", "1e+", "1e-", "e5", ".e5", "1.5.", "1e5.", "1e5e", "--1", "-+1", "inf",
        "-Infinity", "INF", "infinit", "nan", "NaN(123)", "-nan", "0x1p-3", "0X1.8P1", "0x",
        "0x1g", "1e309", "-1e400", "1.7976931348623157e308", "1.7976931348623159e308", "1e-320",
        "-1e-320", "2.2250738585072011e-308", "2.4703282292062328e-324", "2.4703282292062327e-324",
        "1e-400", "0e999999999", "1e-99999999999", "1e99999999999", "1,5", "1 ", "1/2", "A", "   ",
        "12345678901234567890123", "0000000000000000000000000000000000000000000000000000000001.5"}) {
        // clang-format on
        v.zahl(text);
    }
    v.zahl(std::string("1\0002", 3));
    Zufall r{std::mt19937_64(99)};
    for (int i = 0; i < 300; ++i) {
        const std::string lang = cDruck("%.17e", std::bit_cast<double>(r.z() >> 1));
        const std::size_t e = lang.find('e');
        v.zahl(lang.substr(0, e) + r.ziffern(800) + lang.substr(e));
        v.zahl("0." + r.ziffern(800));
    }
    for (int i = 0; i < 400000; ++i) {
        std::string text = (r.bis(3) == 0 ? "-" : "") + r.ziffern(r.bis(20));
        if (r.bis(2) == 0) {
            text += "." + r.ziffern(r.bis(20));
        }
        if (r.bis(2) == 0) {
            text += std::string(r.bis(2) == 0 ? "e" : "E") + (r.bis(2) == 0 ? "-" : "") +
                    ganzText(r.bis(360));
        }
        v.zahl(text);
    }
    EXPECT_GT(v.anzahl, 400000u);
}

// The threshold follows the digits asked for, whatever the list's setting: below 10^-(amount+1)
// the value is 0, at and above it keeps its sign.
TEST(Zahltext, RoundSchwelleUndStellenAusAmount) {
    listenZustand().dezimalen = 2;
    EXPECT_EQ(round(-0.00000004, 6), "0.000000");
    EXPECT_EQ(round(-0.0000004, 6), "-0.000000");
    EXPECT_EQ(round(-0.000000000004, 10), "0.0000000000");
    EXPECT_EQ(round(-0.00000000004, 10), "-0.0000000000");
    EXPECT_EQ(round(-0.0001, 2), "0.00");
    EXPECT_EQ(round(-0.001, 2), "-0.00");
    EXPECT_EQ(round(2.5e-7, 6), "0.000000");
    allesZuruecksetzen();

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
    EXPECT_EQ(strengeGanzzahl("+7"), 7);
    for (const char* keine : {"", "+", "-", "+-7", "-+7", "++7", " 7", "7 ", "0x7", "7.0"}) {
        EXPECT_EQ(strengeGanzzahl(keine), std::nullopt) << keine;
    }
    EXPECT_EQ(doubleWert("1,5e3"), 1.0);
}

} // namespace
} // namespace tabulon
