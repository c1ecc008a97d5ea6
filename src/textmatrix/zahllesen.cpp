#include "textmatrix/zahlwege.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace tabulon::zahlwege {

namespace {

// A plain decimal literal, the form from_chars and strtod read alike: an optional '-', digits
// with an optional point (at least one digit), an optional exponent with sign and at least one
// digit, and nothing else. Blanks, '+', hexadecimal, inf and nan are not plain.
struct SchlichteZahl {
    bool schlicht = false;
    bool negativ = false;
    bool zifferNichtNull = false;
    int signifikant = 0;        // digits from the first non-zero one on
    std::uint64_t mantisse = 0; // those digits, while there are at most 19
    long zehnerExponent = 0;    // value = mantisse 10^zehnerExponent (while signifikant <= 19)
};

bool istZiffer(char c) {
    return static_cast<unsigned>(c - '0') < 10;
}

// Separate tight loops for the leading zeros and the digits of each part: the mantissa wraps
// harmlessly past 19 digits, where it is no longer used.
SchlichteZahl zerlege(std::string_view t) {
    SchlichteZahl z;
    const char* p = t.data();
    const char* const ende = p + t.size();
    if (p != ende && *p == '-') {
        z.negativ = true;
        ++p;
    }
    const char* const ganzAnfang = p;
    while (p != ende && *p == '0') {
        ++p;
    }
    const char* signifikantAnfang = p;
    std::uint64_t m = 0;
    while (p != ende && istZiffer(*p)) {
        m = m * 10 + static_cast<std::uint64_t>(*p - '0');
        ++p;
    }
    long signifikant = p - signifikantAnfang;
    bool ziffern = p != ganzAnfang;
    long nachkomma = 0;
    if (p != ende && *p == '.') {
        ++p;
        const char* const bruchAnfang = p;
        if (signifikant == 0) {
            while (p != ende && *p == '0') {
                ++p;
            }
        }
        signifikantAnfang = p;
        while (p != ende && istZiffer(*p)) {
            m = m * 10 + static_cast<std::uint64_t>(*p - '0');
            ++p;
        }
        signifikant += p - signifikantAnfang;
        nachkomma = p - bruchAnfang;
        ziffern = ziffern || p != bruchAnfang;
    }
    if (!ziffern) {
        return z;
    }
    long exponent = 0;
    if (p != ende && (*p == 'e' || *p == 'E')) {
        ++p;
        bool expNegativ = false;
        if (p != ende && (*p == '+' || *p == '-')) {
            expNegativ = *p == '-';
            ++p;
        }
        const char* const expAnfang = p;
        for (; p != ende && istZiffer(*p); ++p) {
            exponent = std::min(exponent * 10 + (*p - '0'), 100000L);
        }
        if (p == expAnfang) {
            return z;
        }
        exponent = expNegativ ? -exponent : exponent;
    }
    z.schlicht = p == ende;
    z.zifferNichtNull = signifikant > 0;
    z.signifikant = static_cast<int>(std::min(signifikant, 100000L));
    z.mantisse = m;
    z.zehnerExponent = exponent - nachkomma;
    return z;
}

} // namespace

// Where from_chars and strtod cannot differ in what they report, the number without strtod:
// - at most 15 significant digits and |zehnerExponent| <= 22: mantisse < 10^15 < 2^53 and
//   10^|zehnerExponent| are exact doubles, so one multiplication or division rounds the exact
//   value once, to nearest, as the correctly rounding strtod does; the result lies between
//   1e-22 and 1e37, a normal double;
// - a plain literal of at most 64 characters whose from_chars value is a finite normal double,
//   or a zero written with zero digits only (from_chars is correctly rounded like strtod).
// Overflow, underflow into the subnormals or to zero, and every other form go through strtod.
std::optional<double> text2ZahlSchnell(std::string_view text) {
    const SchlichteZahl z = zerlege(text);
    if (!z.schlicht) {
        return std::nullopt;
    }
    if (!z.zifferNichtNull) {
        return z.negativ ? -0.0 : 0.0;
    }
    if (z.signifikant <= 15 && z.zehnerExponent >= -22 && z.zehnerExponent <= 22) {
        const auto m = static_cast<double>(z.mantisse);
        const double wert = z.zehnerExponent >= 0 ? m * zehnHoch[z.zehnerExponent]
                                                  : m / zehnHoch[-z.zehnerExponent];
        return z.negativ ? -wert : wert;
    }
    constexpr std::size_t laengsteSchnelle = 64;
    if (text.size() > laengsteSchnelle) {
        return std::nullopt;
    }
    double wert = 0.0;
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), wert);
    if (fehler != std::errc() || ende != text.data() + text.size()) {
        return std::nullopt;
    }
    if (!(std::fabs(wert) >= std::numeric_limits<double>::min()) || std::isinf(wert)) {
        return std::nullopt;
    }
    return wert;
}

} // namespace tabulon::zahlwege
