#include "textmatrix/zahlwege.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

namespace tabulon::zahlwege {

namespace {

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

} // namespace

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

} // namespace tabulon::zahlwege
