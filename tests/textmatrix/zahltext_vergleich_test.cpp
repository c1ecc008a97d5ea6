// The number texts against the C library itself (snprintf under a C locale, strtod_l) on
// millions of doubles and texts: a shortcut in the conversions shows up as the first input where
// the two disagree.

#include "textmatrix/zahltext.h"

#include <bit>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <locale.h>
#include <optional>
#include <random>
#include <string>

namespace tabulon {
namespace {

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

std::string ziffern(std::mt19937_64& z, int anzahl) {
    std::string t;
    for (int k = 0; k < anzahl; ++k) {
        t += static_cast<char>('0' + z() % 10);
    }
    return t;
}

// Random bit patterns (all exponents, subnormals, zeros, infinities, NaNs); short decimals
// (k digits times a power of ten, the values matrices hold) with their next two neighbours; values
// next to a tie of the 15-digit rounding (d.dddddddddddddd5 x 10^e) or of the last decimal of
// %.*f (ddd.dd5), exact ties that printf rounds
// half to even (m + 0.5 for 15-digit m, 16-digit integers ending in 5) and integers around 2^53.
TEST(ZahltextVergleich, TexteWieSnprintf) {
    std::mt19937_64 z(20261123);
    Vergleich v;
    for (int i = 0; i < 100000; ++i) {
        const double x = std::bit_cast<double>(z());
        v.texte(x, static_cast<int>(z() % 12));
        v.zahl(cDruck("%.15g", x));
        v.zahl(cDruck("%.17g", x));
    }
    for (int i = 0; i < 70000; ++i) {
        const std::string kurz = ziffern(z, 1 + static_cast<int>(z() % 17)) + "e" +
                                 ganzText(static_cast<int>(z() % 80) - 40);
        const double x = std::strtod(kurz.c_str(), nullptr);
        v.texte(x, static_cast<int>(z() % 11));
        v.texte(-std::nextafter(x, 1e300));
        v.texte(std::nextafter(std::nextafter(x, 0.0), 0.0));
        const std::string knapp =
            ganzText(static_cast<int>(1 + z() % 9)) + "." + ziffern(z, 14) +
            (z() % 4 == 0 ? "49e" : "5e") +
            ganzText(static_cast<int>(i % 2 == 0 ? z() % 24 : z() % 600) - (i % 2 == 0 ? 7 : 300));
        const double y = std::strtod(knapp.c_str(), nullptr);
        // The same near the rounding position of %.*f.
        const int stellen = static_cast<int>(z() % 11);
        const double h =
            std::strtod((ziffern(z, static_cast<int>(z() % 7)) + "." + ziffern(z, stellen) + "5" +
                         ziffern(z, static_cast<int>(z() % 3)))
                            .c_str(),
                        nullptr);
        v.texte(h, stellen);
        v.texte(-std::nextafter(h, 0.0), stellen);
        v.texte(std::nextafter(h, 1e300), stellen);
        v.texte(y);
        v.texte(std::nextafter(y, 0.0));
        v.texte(std::nextafter(y, 1e300));
        v.texte(static_cast<double>(100000000000000 + z() % 900000000000000) + 0.5);
        v.texte(static_cast<double>((100000000000000 + z() % 800000000000000) * 10 + 5));
    }
    for (int k = -2000; k <= 2000; ++k) {
        v.texte(9007199254740992.0 + k, 1);
        v.texte(static_cast<double>(k) / 8.0, 2);
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
    const char* const texte[] = {
        "", " 1", "\t-2.5", "\n3", "+1", "+.5", "-0", "-0.0e7", ".5", "5.", "-.5e1", ".", "-",
        "-.", "1e", "1e+", "1e-", "e5", ".e5", "1.5.", "1e5.", "1e5e", "--1", "-+1", "inf",
        "-Infinity", "INF", "infinit", "nan", "NaN(123)", "-nan", "0x1p-3", "0X1.8P1", "0x",
        "0x1g", "1e309", "-1e400", "1.7976931348623157e308", "1.7976931348623159e308", "1e-320",
        "-1e-320", "2.2250738585072011e-308", "2.4703282292062328e-324", "2.4703282292062327e-324",
        "1e-400", "0e999999999", "1e-99999999999", "1e99999999999", "1,5", "1 ", "1/2", "A", "   ",
        "12345678901234567890123", "0000000000000000000000000000000000000000000000000000000001.5"};
    // clang-format on
    for (const char* text : texte) {
        v.zahl(text);
    }
    v.zahl(std::string("1\0002", 3));
    std::mt19937_64 z(99);
    for (int i = 0; i < 300; ++i) {
        const std::string lang = cDruck("%.17e", std::bit_cast<double>(z() >> 1));
        const std::size_t e = lang.find('e');
        v.zahl(lang.substr(0, e) + ziffern(z, 800) + lang.substr(e));
        v.zahl("0." + ziffern(z, 800));
    }
    for (int i = 0; i < 400000; ++i) {
        std::string text = (z() % 3 == 0 ? "-" : "") + ziffern(z, static_cast<int>(z() % 20));
        if (z() % 2 == 0) {
            text += "." + ziffern(z, static_cast<int>(z() % 20));
        }
        if (z() % 2 == 0) {
            text += std::string(z() % 2 == 0 ? "e" : "E") + (z() % 2 == 0 ? "-" : "") +
                    ganzText(static_cast<int>(z() % 360));
        }
        v.zahl(text);
    }
    EXPECT_GT(v.anzahl, 400000u);
}

} // namespace
} // namespace tabulon
