#include "textmatrix/zahltext.h"

#include "textmatrix/liste.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cerrno>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
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

// printf in the C locale. The thread's locale is switched only for the duration of the call, so
// the process locale (for instance de_DE with its decimal comma) never shows in a number.
template <typename... Args> std::string cFormat(const char* format, Args... args) {
    const locale_t alt = uselocale(cLocale());
    char puffer[64];
    const int n = std::snprintf(puffer, sizeof puffer, format, args...);
    std::string ergebnis;
    if (n >= 0 && static_cast<std::size_t>(n) < sizeof puffer) {
        ergebnis.assign(puffer, static_cast<std::size_t>(n));
    } else if (n >= 0) {
        // Fixed-point texts of large values (up to about 310 digits) need more room.
        ergebnis.resize(static_cast<std::size_t>(n) + 1);
        std::snprintf(ergebnis.data(), ergebnis.size(), format, args...);
        ergebnis.resize(static_cast<std::size_t>(n));
    }
    uselocale(alt);
    return ergebnis;
}

// The shortest digits that read back as x (std::to_chars without precision): `ziffern` holds
// them without point, `exponent` is the decimal exponent of the first digit.
struct KurzZiffern {
    char ziffern[32] = {}; // 16 readable bytes from every digit on, for gLayout's copies
    int anzahl = 0;
    int exponent = 0;
    bool negativ = false;
};

KurzZiffern kuerzesteZiffern(double x) {
    char puffer[32] = {};
    const char* ende =
        std::to_chars(puffer, puffer + sizeof puffer, x, std::chars_format::scientific).ptr;
    // The layout is "-d.ddde-XX": an optional sign, one digit, an optional point and up to 16
    // more digits, then 'e', a sign and two or three digits. The runs are copied with memcpy:
    // stores through char pointers would make the compiler reload every counter.
    KurzZiffern k;
    const char* p = puffer;
    k.negativ = *p == '-';
    p += k.negativ ? 1 : 0;
    const char* e = ende - 4;
    while (*e != 'e') {
        --e;
    }
    k.ziffern[0] = p[0];
    int anzahl = 1;
    if (p[1] == '.') {
        std::memcpy(k.ziffern + 1, p + 2, 16); // at most 16 digits follow the point
        anzahl += static_cast<int>(e - (p + 2));
    }
    int betrag = 0;
    for (const char* q = e + 2; q != ende; ++q) {
        betrag = betrag * 10 + (*q - '0');
    }
    k.anzahl = anzahl;
    k.exponent = e[1] == '-' ? -betrag : betrag;
    return k;
}

// printf's %g layout with precision 15 for the significant digits ziffern[0..anzahl) (the first
// one not 0, anzahl <= 15) and the decimal exponent of the first digit: plain notation when
// -4 <= exponent < 15, else d.ddde+XX with at least two exponent digits; trailing zeros of the
// fraction dropped. A text without point or exponent gets ".0". Returns the end of the text.
// Runs are copied 16 bytes at a time whatever their length (a fixed-size memcpy is a pair of
// register moves, a variable one a library call): `ziffern` must have 16 readable bytes from
// every digit on (32 in all) and `aus` room for 48.
char* gLayout(char* aus, bool negativ, const char* ziffern, int anzahl, int exponent) {
    while (anzahl > 1 && ziffern[anzahl - 1] == '0') {
        --anzahl;
    }
    *aus = '-';
    aus += negativ ? 1 : 0;
    if (exponent >= -4 && exponent < 15) {
        if (exponent < 0) {
            const int nullen = -exponent - 1;
            std::memcpy(aus, "0.000", 6);
            std::memcpy(aus + 2 + nullen, ziffern, 16);
            return aus + 2 + nullen + anzahl;
        }
        const int ganz = exponent + 1;
        std::memcpy(aus, ziffern, 16);
        if (anzahl <= ganz) {
            std::memset(aus + anzahl, '0', 16);
            std::memcpy(aus + ganz, ".0", 2);
            return aus + ganz + 2;
        }
        aus[ganz] = '.';
        std::memcpy(aus + ganz + 1, ziffern + ganz, 16);
        return aus + anzahl + 1;
    }
    aus[0] = ziffern[0];
    aus[1] = '.';
    std::memcpy(aus + 2, ziffern + 1, 16);
    aus += anzahl > 1 ? anzahl + 1 : 1;
    *aus++ = 'e';
    *aus++ = exponent < 0 ? '-' : '+';
    const int betrag = exponent < 0 ? -exponent : exponent;
    if (betrag >= 100) {
        *aus++ = static_cast<char>('0' + betrag / 100);
    }
    *aus++ = static_cast<char>('0' + betrag / 10 % 10);
    *aus++ = static_cast<char>('0' + betrag % 10);
    return aus;
}

// %.15g from the shortest round-trip digits D, or nothing when they cannot decide it.
//
// Let x be a normal double, x = f 2^k with 1 <= f < 2, and D its shortest digits (at most 17)
// with decimal exponent E; c = 10^(E-16) is one hundredth of a unit of the 15th digit. D reads
// back as x, so |x - D| <= ulp(x)/2 = 2^(k-53) = |x| 2^-53 / f.
// x and D lie in the same decade: a power of ten between them would itself read back as x and
// be shorter than D, unless D is that power of ten; then x lies below it by less than
// 2^-53 10^E, under a quarter of half a unit of the 15th digit in its decade, and rounds up to D.
// - At most 15 digits: D lies on the grid of 100c and |x - D| <= |x| 2^-53 < 10^(E+1) 2^-53
//   = 11.2 c, less than half of 100c, so rounding x to 15 digits gives D, with D's exponent.
// - 16 or 17 digits: write D = (100 T + R) c with T the first 15 digits and R the next two
//   (0..99). With m = d1.d2d3 + 0.01 >= |D| / 10^E and |x| <= |D| (1 + 2^-52),
//   |x - D| / c <= m 10^16 2^-53 (1 + 2^-52) / f < m 1.1102231 / f =: H.
//   When |R - 50| > H, x/c lies on the same side of 100 T + 50 as D/c, and x rounds to T
//   (R < 50) or to T + 1 (R > 50); no tie is possible. Otherwise (R near 50, which includes
//   every exact tie such as 123456789012345.5) the exact digits come from to_chars with a
//   precision, which the C++ standard defines as printf's %.15g.
// The margin H is computed in double; its relative error (below 1e-15) is far inside the
// difference between 1.1102230246... and the 1.1102231 used.
bool zahlTextKurz(double x, char*& ende, char* puffer) {
    const double betrag = std::fabs(x);
    if (!(betrag >= std::numeric_limits<double>::min()) || std::isinf(x)) {
        return false;
    }
    KurzZiffern k = kuerzesteZiffern(x);
    int exponent = k.exponent;
    if (k.anzahl > 15) {
        const int r16 = k.ziffern[15] - '0';
        const int r17 = k.anzahl > 16 ? k.ziffern[16] - '0' : 0;
        const int r = r16 * 10 + r17;
        const int fuehrend = (k.ziffern[0] - '0') * 100 + (k.ziffern[1] - '0') * 10 +
                             (k.ziffern[2] - '0') + 1; // m in hundredths
        int k2 = 0;
        const double f = 2.0 * std::frexp(betrag, &k2);
        const double h = static_cast<double>(fuehrend) * 0.011102231 / f;
        const int abstand = r >= 50 ? r - 50 : 50 - r;
        if (static_cast<double>(abstand) <= h) {
            return false;
        }
        k.anzahl = 15;
        if (r > 50) {
            int i = 14;
            while (i >= 0 && k.ziffern[i] == '9') {
                k.ziffern[i] = '0';
                --i;
            }
            if (i >= 0) {
                ++k.ziffern[i];
            } else {
                // 999999999999999|7x rounds up to the next power of ten.
                k.ziffern[0] = '1';
                k.anzahl = 1;
                ++exponent;
            }
        }
    }
    ende = gLayout(puffer, k.negativ, k.ziffern, k.anzahl, exponent);
    return true;
}

constexpr auto zweiZiffern = [] {
    std::array<char, 200> t{};
    for (int i = 0; i < 100; ++i) {
        t[static_cast<std::size_t>(2 * i)] = static_cast<char>('0' + i / 10);
        t[static_cast<std::size_t>(2 * i + 1)] = static_cast<char>('0' + i % 10);
    }
    return t;
}();

void achtZiffern(std::uint32_t v, char* aus) {
    const std::uint32_t oben = v / 10000;
    const std::uint32_t unten = v % 10000;
    std::memcpy(aus, &zweiZiffern[2 * (oben / 100)], 2);
    std::memcpy(aus + 2, &zweiZiffern[2 * (oben % 100)], 2);
    std::memcpy(aus + 4, &zweiZiffern[2 * (unten / 100)], 2);
    std::memcpy(aus + 6, &zweiZiffern[2 * (unten % 100)], 2);
}

// n < 10^16 as exactly 16 digits, leading zeros included.
void sechzehnZiffern(std::uint64_t n, char* aus) {
    achtZiffern(static_cast<std::uint32_t>(n / 100000000), aus);
    achtZiffern(static_cast<std::uint32_t>(n % 100000000), aus + 8);
}

// The powers of ten that are exact doubles.
constexpr double zehnHoch[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                               1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                               1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// The integer nearest to y = x 10^s (x >= 0, 0 <= s <= 22) from one multiplication, when that
// cannot be mistaken. fl(y) is y rounded once. Below 2^52, T + 1/2 is a double for every integer
// T and fl(y) - T is exact; rounding is monotonic, so fl(y) < T + 1/2 means y < T + 1/2 and
// fl(y) > T + 1/2 means y > T + 1/2. With T = floor(fl(y)), y > T - 1/2 as well (fl(y) >= T),
// and y < T + 3/2. So the fraction of fl(y) decides the nearest integer of the exact y unless it
// is exactly 1/2, where y may be a tie (printf then rounds to even) or close to one: "unknown".
bool naechsteGanzzahl(double x, int s, std::int64_t& n, double& y) {
    y = x * zehnHoch[s];
    if (!(y < 4503599627370496.0)) { // 2^52
        return false;
    }
    const auto t = static_cast<std::int64_t>(y);
    const double rest = y - static_cast<double>(t);
    if (rest == 0.5) {
        return false;
    }
    n = rest < 0.5 ? t : t + 1;
    return true;
}

// %.15g for 1e-5 <= |x| < 1e15 from the integer N nearest to |x| 10^(14-E), E the decimal
// exponent of |x|: those are the 15 significant digits printf rounds to. E is found from the
// binary exponent k (E is floor(k log10 2) or one more) and checked: fl(|x| 10^(14-E)) must
// lie in [1e14, 1e15), else the next route decides. Both bounds are exact doubles and rounding is
// monotonic, so fl(y) < 1e15 means y < 10^15, and fl(y) > 1e14 means y > 10^14. fl(y) == 1e14
// allows y slightly below 10^14 (by at most 2^-7, half an ulp under 10^14): rounded in the decade
// below, 10 y is then within 0.08 of 10^15 and gives the same text "1" with exponent E as N = 10^14
// does.
bool zahlTextGanzzahlig(double x, char*& ende, char* puffer) {
    const double betrag = std::fabs(x);
    if (!(betrag >= 1e-5 && betrag < 1e15)) {
        return false;
    }
    const int k = static_cast<int>((std::bit_cast<std::uint64_t>(betrag) >> 52) & 0x7ff) - 1023;
    int exponent = std::min((k * 1233 >> 12) + 1, 14); // 1233 / 4096 ~ log10 2
    std::int64_t n = 0;
    double y = 0.0;
    bool sicher = naechsteGanzzahl(betrag, 14 - exponent, n, y);
    if (y < 1e14) {
        --exponent;
        sicher = naechsteGanzzahl(betrag, 14 - exponent, n, y);
    }
    if (!sicher || !(y >= 1e14 && y < 1e15)) {
        return false;
    }
    char ziffern[48] = {};
    sechzehnZiffern(static_cast<std::uint64_t>(n), ziffern);
    // N has 15 digits, or is 10^15 after rounding up: the digit 1 of the next decade.
    const bool uebertrag = ziffern[0] == '1';
    ende = gLayout(puffer, std::signbit(x), ziffern + (uebertrag ? 0 : 1), uebertrag ? 1 : 15,
                   uebertrag ? exponent + 1 : exponent);
    return true;
}

// %.*f with up to 15 decimals for values whose scaled magnitude stays below 2^52: the digits are
// the integer N nearest to |x| 10^stellen, which printf writes with a point before the last
// `stellen` digits, at least one digit before it, and a minus sign whenever x has its sign bit
// set (also for -0.0 and for negative values that round to zero). `puffer` needs 48 bytes.
bool festkommaGanzzahlig(double x, int stellen, char*& ende, char* puffer) {
    if (stellen > 15) {
        return false;
    }
    std::int64_t n = 0;
    double y = 0.0;
    if (!naechsteGanzzahl(std::fabs(x), stellen, n, y)) {
        return false;
    }
    char ziffern[32] = {};
    sechzehnZiffern(static_cast<std::uint64_t>(n), ziffern); // N < 2^52 < 10^16
    int anfang = 0;
    while (anfang < 15 && ziffern[anfang] == '0') {
        ++anfang;
    }
    anfang = std::min(anfang, 15 - stellen); // keep the zeros of "0.000123"
    const int ganz = 16 - anfang - stellen;
    char* aus = puffer;
    *aus = '-';
    aus += std::signbit(x) ? 1 : 0;
    std::memcpy(aus, ziffern + anfang, 16);
    if (stellen == 0) {
        ende = aus + ganz;
        return true;
    }
    aus[ganz] = '.';
    std::memcpy(aus + ganz + 1, ziffern + anfang + ganz, 16);
    ende = aus + ganz + 1 + stellen;
    return true;
}

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

// to_chars with a precision gives printf's digits for the same format in the C locale; only
// its output buffer may be too small, and then snprintf writes the text.
std::string mitPraezision(double x, std::chars_format form, int praezision,
                          const char* cFormatText) {
    char puffer[128];
    const auto [ende, fehler] = std::to_chars(puffer, puffer + sizeof puffer, x, form, praezision);
    if (fehler != std::errc()) {
        return cFormat(cFormatText, praezision, x);
    }
    return std::string(puffer, static_cast<std::size_t>(ende - puffer));
}

} // namespace

std::optional<double> text2Zahl(std::string_view text) {
    if (text.empty()) {
        return 0.0;
    }
    if (const std::optional<double> schnell = text2ZahlSchnell(text)) {
        return schnell;
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
std::string zahlText(double x) {
    if (x == 0.0) {
        return std::signbit(x) ? "-0.0" : "0.0";
    }
    if (std::isnan(x)) {
        return "nan";
    }
    char puffer[48];
    char* ende = nullptr;
    if (!zahlTextGanzzahlig(x, ende, puffer) && !zahlTextKurz(x, ende, puffer)) {
        // Near a tie, subnormals and infinities: the exact digits, with the ".0" rule.
        ende = std::to_chars(puffer, puffer + sizeof puffer, x, std::chars_format::general, 15).ptr;
        if (std::find_first_of(puffer, ende, ".en", ".en" + 3) == ende) {
            std::memcpy(ende, ".0", 2);
            ende += 2;
        }
    }
    return std::string(puffer, static_cast<std::size_t>(ende - puffer));
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
    std::string t = mitPraezision(x, std::chars_format::general, 17, "%.*g");
    if (t.find_first_of(".en") == std::string::npos) {
        t += ".0";
    }
    return t;
}

std::string festkomma(double x, int amount) {
    if (std::isnan(x)) {
        return "nan";
    }
    // A negative precision would mean "default" to printf; the callers' digits are 1 to 10.
    const int stellen = amount < 0 ? 0 : amount;
    char puffer[48];
    char* ende = nullptr;
    if (festkommaGanzzahlig(x, stellen, ende, puffer)) {
        return std::string(puffer, static_cast<std::size_t>(ende - puffer));
    }
    return mitPraezision(x, std::chars_format::fixed, stellen, "%.*f");
}

std::string round(double x, int amount) {
    const double schwelle = std::pow(10.0, -(listenZustand().dezimalen + 1));
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
    std::size_t i = 0;
    bool negativ = false;
    if (!text.empty() && (text[0] == '+' || text[0] == '-')) {
        negativ = text[0] == '-';
        i = 1;
    }
    if (i == text.size()) {
        return std::nullopt;
    }
    long long wert = 0;
    for (; i < text.size(); ++i) {
        if (text[i] < '0' || text[i] > '9') {
            return std::nullopt;
        }
        wert = wert * 10 + (text[i] - '0');
        if (wert > static_cast<long long>(INT_MAX) + 1) {
            return std::nullopt;
        }
    }
    if (negativ) {
        wert = -wert;
    }
    if (wert > INT_MAX || wert < INT_MIN) {
        return std::nullopt;
    }
    return static_cast<int>(wert);
}

} // namespace tabulon
