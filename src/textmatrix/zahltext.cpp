#include "textmatrix/zahltext.h"

#include <algorithm>
#include <bit>
#include <cerrno>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <locale.h>

namespace tabulon {

namespace {

// One C locale object for the whole process. strtod_l and a thread-local uselocale make every
// conversion independent of whatever setlocale the program (or Qt) performed.
locale_t cLocale() {
    static const locale_t c = newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(nullptr));
    return c;
}

bool istCLeerraum(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
}

// strtod in the C locale on a NUL-terminated copy. `gelesen` is the number of characters the
// literal used (0 when the text does not begin with one); `ueberlauf` marks a literal whose
// magnitude exceeds the double range (strtod then answers HUGE_VAL with ERANGE, while the literal
// "inf" answers the same value without ERANGE).
struct Gelesen {
    double wert = 0.0;
    std::size_t gelesen = 0;
    bool ueberlauf = false;
};

Gelesen lies(std::string_view text) {
    const std::string kopie(text);
    const char* anfang = kopie.c_str();
    char* ende = nullptr;
    const int altesErrno = errno;
    errno = 0;
    Gelesen g;
    g.wert = strtod_l(anfang, &ende, cLocale());
    g.ueberlauf = errno == ERANGE && std::isinf(g.wert);
    errno = altesErrno;
    g.gelesen = static_cast<std::size_t>(ende - anfang);
    return g;
}

// The number texts come from std::to_chars with a precision, which the C++ standard defines as
// printf's output for the same format in the C locale: the same digits, the same rounding of
// ties to even, never a decimal comma.
std::string mitPraezision(double x, std::chars_format form, int praezision) {
    // Room for every text: %.17g needs at most 24 characters; %.*f a sign, the 309 digits
    // before the point of the largest double, the point and the decimals.
    std::string text(static_cast<std::size_t>(312 + praezision), '\0');
    const char* ende =
        std::to_chars(text.data(), text.data() + text.size(), x, form, praezision).ptr;
    text.resize(static_cast<std::size_t>(ende - text.data()));
    return text;
}

// The ".0" rule: a text with neither a point, nor an exponent, nor the 'n' of "inf" is an integer
// and gets ".0", so that it reads as a real number.
void mitPunkt(std::string& text) {
    const auto nichtGanz = [](char c) { return c == '.' || c == 'e' || c == 'n'; };
    if (std::none_of(text.begin(), text.end(), nichtGanz)) {
        text += ".0";
    }
}

// The one fast path, measured as needed: a term evaluated n times writes every entry of every
// intermediate matrix as text, and to_chars with a precision takes longer than this.
// It covers 1e-4 <= |x| < 1e15, where %.15g writes plain notation: the integer N nearest to
// y = |x| 10^(14 - E), E the decimal exponent of x, as 15 significant digits, the point after
// digit E + 1, trailing zeros of the fraction dropped. Why one multiplication finds N:
// - 10^(14 - E) is an exact double (0 <= 14 - E <= 19), so fl(y) is y rounded once, and rounding
//   is monotonic: 1e14 < fl(y) < 1e15 means 1e14 < y < 1e15 (both bounds are doubles), so E is
//   the decimal exponent.
// - Below 1e15 < 2^50 the spacing of doubles is at most 1/8, so T = floor(fl(y)) and T + 1/2
//   are doubles and |y - fl(y)| <= 1/16. fl(y) < T + 1/2 means T - 1/16 <= y < T + 1/2: N = T.
//   fl(y) > T + 1/2 means T + 1/2 < y < T + 1 + 1/16: N = T + 1.
// A fraction of exactly 1/2 (a tie, which printf rounds to even, or close to one), N = 10^15
// (the digits move into the next decade) and everything outside the range take the general way.
bool alsGleitkommaKurz(std::string& ziel, double x) {
    static constexpr double zehnHoch[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,
                                          1e7,  1e8,  1e9,  1e10, 1e11, 1e12, 1e13,
                                          1e14, 1e15, 1e16, 1e17, 1e18, 1e19};
    const double betrag = std::fabs(x);
    if (!(betrag >= 1e-4 && betrag < 1e15)) {
        return false;
    }
    // With 2^b <= |x| < 2^(b + 1) (b read from the exponent bits of the normal double |x|),
    // b log10 2 rounded towards zero is the decimal exponent or one off either way; the range of
    // fl(y) tells which. Plain casts instead of std::floor, which is a library call here.
    const int b = static_cast<int>(std::bit_cast<std::uint64_t>(betrag) >> 52) - 1023;
    int e = static_cast<int>(b * 0.30102999566398120);
    double y = betrag * zehnHoch[14 - e];
    if (y < 1e14 || (y >= 1e15 && e < 14)) {
        e += y < 1e14 ? -1 : 1;
        y = betrag * zehnHoch[14 - e];
    }
    if (!(y > 1e14 && y < 1e15)) {
        return false;
    }
    const auto t = static_cast<std::uint64_t>(y); // floor, as y > 0
    const double rest = y - static_cast<double>(t);
    if (rest == 0.5) {
        return false;
    }
    const std::uint64_t n = rest < 0.5 ? t : t + 1;
    char ziffern[16];
    if (std::to_chars(ziffern, ziffern + sizeof ziffern, n).ptr != ziffern + 15) {
        return false; // N = 10^15
    }
    // Written into a buffer and assigned once: "-0.000" and 15 digits fit in 22 characters.
    std::size_t bruchEnde = 15;
    while (bruchEnde > 0 && ziffern[bruchEnde - 1] == '0') {
        --bruchEnde;
    }
    char text[32];
    char* p = text;
    *p = '-';
    p += x < 0 ? 1 : 0;
    const int ganz = e >= 0 ? e + 1 : 0; // digits before the point
    if (e >= 0) {
        p = std::copy_n(ziffern, ganz, p);
        *p++ = '.';
    } else {
        p = std::copy_n("0.000", 1 - e, p); // 0.0001234 for E = -4
    }
    if (bruchEnde <= static_cast<std::size_t>(ganz)) {
        *p++ = '0'; // the ".0" of an integer
    } else {
        p = std::copy(ziffern + ganz, ziffern + bruchEnde, p);
    }
    ziel.assign(text, static_cast<std::size_t>(p - text));
    return true;
}

} // namespace

std::optional<double> text2Zahl(std::string_view text) {
    if (text.empty()) {
        return 0.0;
    }
    // A decimal literal that from_chars reads whole is read exactly as strtod reads it: both
    // round correctly. A literal ending in a digit or a point is never inf or nan (whose NaN
    // payload strtod keeps); blanks in front, a '+', hexadecimal, overflow and underflow to zero
    // stop from_chars, and strtod decides them.
    const char letztes = text.back();
    if ((letztes >= '0' && letztes <= '9') || letztes == '.') {
        double wert = 0.0;
        const char* ende = text.data() + text.size();
        const auto [gelesenBis, fehler] = std::from_chars(text.data(), ende, wert);
        if (fehler == std::errc() && gelesenBis == ende) {
            return wert;
        }
    }
    const Gelesen g = lies(text);
    if (g.gelesen == 0 || g.gelesen != text.size() || g.ueberlauf) {
        return std::nullopt;
    }
    // An underflowing literal (1e-400) is inside the range of the notation, so it converts to
    // what strtod gives: a subnormal or zero.
    return g.wert;
}

// A NaN is written "nan" whatever its sign bit: x86 produces 0/0 with the sign set, and the
// C library would print that as "-nan", which is not a text the system shows.
void zahlTextIn(std::string& ziel, double x) {
    if (std::isnan(x)) {
        ziel.assign("nan");
        return;
    }
    if (alsGleitkommaKurz(ziel, x)) {
        return;
    }
    char puffer[32]; // %.15g needs at most 22 characters, "-1.23456789012345e-308"
    const char* ende =
        std::to_chars(puffer, puffer + sizeof puffer, x, std::chars_format::general, 15).ptr;
    ziel.assign(puffer, static_cast<std::size_t>(ende - puffer));
    mitPunkt(ziel);
}

std::string zahlText(double x) {
    std::string text;
    zahlTextIn(text, x);
    return text;
}

std::string ganzText(std::int64_t n) {
    char puffer[24]; // holds every 64-bit integer
    const auto ergebnis = std::to_chars(puffer, puffer + sizeof puffer, n);
    return std::string(puffer, ergebnis.ptr);
}

std::string zahlTextVoll(double x) {
    if (std::isnan(x)) {
        return "nan";
    }
    std::string t = mitPraezision(x, std::chars_format::general, 17);
    mitPunkt(t);
    return t;
}

std::string festkomma(double x, int amount) {
    if (std::isnan(x)) {
        return "nan";
    }
    // A negative precision would mean "default" to printf; the callers' digits are 1 to 10.
    return mitPraezision(x, std::chars_format::fixed, amount < 0 ? 0 : amount);
}

std::string round(double x, int amount) {
    const double schwelle = std::pow(10.0, -(amount + 1));
    // Setting tiny values to +0 keeps "-0.000000" away from values that are noise.
    if (std::fabs(x) < schwelle) {
        x = 0.0;
    }
    return festkomma(x, amount);
}

double xrunden(double x) {
    double r = std::round(x * 10000000.0) / 10000000.0;
    if (std::fabs(r) < 1e-07) {
        r = 0.0;
    }
    return r;
}

int intWert(std::string_view text) {
    std::size_t i = 0;
    while (i < text.size() && istCLeerraum(text[i])) {
        ++i;
    }
    bool negativ = false;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
        negativ = text[i] == '-';
        ++i;
    }
    // Accumulate towards the sign so that INT_MIN is reachable, and stop at the bounds.
    long long wert = 0;
    for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
        wert = wert * 10 + (text[i] - '0');
        if (wert > static_cast<long long>(INT_MAX) + 1) {
            wert = static_cast<long long>(INT_MAX) + 1;
        }
    }
    if (negativ) {
        return static_cast<int>(-wert);
    }
    return wert > INT_MAX ? INT_MAX : static_cast<int>(wert);
}

double doubleWert(std::string_view text) {
    const Gelesen g = lies(text);
    return g.gelesen == 0 ? 0.0 : g.wert;
}

std::optional<int> strengeGanzzahl(std::string_view text) {
    // from_chars reads an optional '-' and the digits, and reports a value beyond int; the '+' it
    // does not know is taken off first, unless a sign follows it.
    if (text.size() > 1 && text[0] == '+' && text[1] != '-') {
        text.remove_prefix(1);
    }
    int wert = 0;
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), wert);
    if (fehler != std::errc() || ende != text.data() + text.size()) {
        return std::nullopt;
    }
    return wert;
}

} // namespace tabulon
