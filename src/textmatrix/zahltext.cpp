#include "textmatrix/zahltext.h"

#include "textmatrix/liste.h"
#include "textmatrix/zahlwege.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
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
    if (const std::optional<double> schnell = zahlwege::text2ZahlSchnell(text)) {
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
void zahlTextIn(std::string& ziel, double x) {
    if (x == 0.0) {
        ziel.assign(std::signbit(x) ? "-0.0" : "0.0");
        return;
    }
    if (std::isnan(x)) {
        ziel.assign("nan");
        return;
    }
    char puffer[48];
    char* ende = nullptr;
    if (!zahlwege::zahlTextGanzzahlig(x, ende, puffer) &&
        !zahlwege::zahlTextKurz(x, ende, puffer)) {
        // Near a tie, subnormals and infinities: the exact digits, with the ".0" rule.
        ende = std::to_chars(puffer, puffer + sizeof puffer, x, std::chars_format::general, 15).ptr;
        if (std::find_first_of(puffer, ende, ".en", ".en" + 3) == ende) {
            std::memcpy(ende, ".0", 2);
            ende += 2;
        }
    }
    ziel.assign(puffer, static_cast<std::size_t>(ende - puffer));
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
    if (zahlwege::festkommaGanzzahlig(x, stellen, ende, puffer)) {
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
