#include "exakt/bruch.h"

#include <cmath>

#include "textmatrix/zahltext.h"

namespace tabulon {

namespace {

bool istZiffer(char c) {
    return c >= '0' && c <= '9';
}

// A literal exponent beyond this would make GMP build numbers of millions of digits from a
// cell of a few characters; no learner types one, and the classic rule refuses such values too.
constexpr long groessterExponent = 1000;

mpz_class zehnHoch(unsigned long k) {
    mpz_class z;
    mpz_ui_pow_ui(z.get_mpz_t(), 10, k);
    return z;
}

// One decimal number from pos on: [sign] (digits [. digits] | . digits) [e [sign] digits].
std::optional<Bruch> liesDezimal(std::string_view s, std::size_t& pos) {
    bool negativ = false;
    if (pos < s.size() && (s[pos] == '+' || s[pos] == '-')) {
        negativ = s[pos] == '-';
        ++pos;
    }
    std::string ziffern;
    std::size_t nachkomma = 0;
    while (pos < s.size() && istZiffer(s[pos]))
        ziffern += s[pos++];
    if (pos < s.size() && s[pos] == '.') {
        ++pos;
        while (pos < s.size() && istZiffer(s[pos])) {
            ziffern += s[pos++];
            ++nachkomma;
        }
    }
    if (ziffern.empty())
        return std::nullopt;
    long exponent = 0;
    if (pos < s.size() && (s[pos] == 'e' || s[pos] == 'E')) {
        ++pos;
        bool expNegativ = false;
        if (pos < s.size() && (s[pos] == '+' || s[pos] == '-')) {
            expNegativ = s[pos] == '-';
            ++pos;
        }
        if (pos >= s.size() || !istZiffer(s[pos]))
            return std::nullopt;
        while (pos < s.size() && istZiffer(s[pos])) {
            exponent = exponent * 10 + (s[pos++] - '0');
            if (exponent > groessterExponent)
                return std::nullopt;
        }
        if (expNegativ)
            exponent = -exponent;
    }
    mpz_class zaehler(ziffern, 10);
    exponent -= static_cast<long>(nachkomma);
    Bruch b;
    if (exponent >= 0)
        b = Bruch(zaehler * zehnHoch(static_cast<unsigned long>(exponent)));
    else
        b = Bruch(zaehler, zehnHoch(static_cast<unsigned long>(-exponent)));
    b.canonicalize();
    return negativ ? Bruch(-b) : b;
}

} // namespace

std::optional<Bruch> liesBruch(std::string_view text) {
    if (text.empty() || istLeerzeichen(std::string(text)))
        return Bruch(0);
    std::size_t pos = 0;
    while (pos < text.size() && (text[pos] == ' ' || (text[pos] >= '\t' && text[pos] <= '\r')))
        ++pos;
    auto zaehler = liesDezimal(text, pos);
    if (!zaehler)
        return std::nullopt;
    if (pos == text.size())
        return zaehler;
    if (text[pos] != '/')
        return std::nullopt;
    ++pos;
    auto nenner = liesDezimal(text, pos);
    if (!nenner || pos != text.size() || *nenner == 0)
        return std::nullopt;
    return Bruch(*zaehler / *nenner);
}

// GMP's arithmetic keeps its results reduced, but a fraction built from two integers is kept
// as given; the texts reduce a copy so that no page ever shows 2/4.
std::string bruchText(const Bruch& b) {
    Bruch r = b;
    r.canonicalize();
    return r.get_str(10);
}

double naechsterDouble(const Bruch& b) {
    if (b == 0)
        return 0.0;
    mpz_class p = abs(b.get_num());
    const mpz_class& q = b.get_den();
    // Scale so that the integer quotient m = floor(p * 2^k / q) has exactly 53 bits, then
    // round m by the remainder: that is the rounding IEEE division does, without the
    // truncation of mpq_get_d.
    long k = 53 - static_cast<long>(mpz_sizeinbase(p.get_mpz_t(), 2)) +
             static_cast<long>(mpz_sizeinbase(q.get_mpz_t(), 2));
    mpz_class m, rest;
    for (;;) {
        mpz_class z = p, n = q;
        if (k >= 0)
            z <<= static_cast<mp_bitcnt_t>(k);
        else
            n <<= static_cast<mp_bitcnt_t>(-k);
        mpz_fdiv_qr(m.get_mpz_t(), rest.get_mpz_t(), z.get_mpz_t(), n.get_mpz_t());
        std::size_t bits = mpz_sizeinbase(m.get_mpz_t(), 2);
        if (bits > 53) {
            --k;
        } else if (bits < 53) {
            ++k;
        } else {
            mpz_class doppelt = rest * 2;
            int vergleich = cmp(doppelt, n);
            if (vergleich > 0 || (vergleich == 0 && mpz_odd_p(m.get_mpz_t())))
                ++m;
            break;
        }
    }
    double x = std::ldexp(m.get_d(), static_cast<int>(-k));
    return b < 0 ? -x : x;
}

BMatrix::BMatrix(std::size_t r, std::size_t c) : rows(r), columns(c), eintraege(r * c) {}

BMatrix BMatrix::einheit(std::size_t n) {
    BMatrix e(n, n);
    for (std::size_t i = 0; i < n; ++i)
        e(i, i) = 1;
    return e;
}

BMatrix BMatrix::ausSpalten(std::size_t rows, const std::vector<BVektor>& spalten) {
    BMatrix m(rows, spalten.size());
    for (std::size_t c = 0; c < spalten.size(); ++c)
        for (std::size_t r = 0; r < rows; ++r)
            m(r, c) = spalten[c][r];
    return m;
}

BVektor BMatrix::spalte(std::size_t c) const {
    BVektor v(rows);
    for (std::size_t r = 0; r < rows; ++r)
        v[r] = (*this)(r, c);
    return v;
}

BMatrix BMatrix::linksTeil(std::size_t anzahl) const {
    BMatrix m(rows, anzahl);
    for (std::size_t r = 0; r < rows; ++r)
        for (std::size_t c = 0; c < anzahl; ++c)
            m(r, c) = (*this)(r, c);
    return m;
}

BMatrix BMatrix::rechtsTeil(std::size_t anzahl) const {
    BMatrix m(rows, anzahl);
    for (std::size_t r = 0; r < rows; ++r)
        for (std::size_t c = 0; c < anzahl; ++c)
            m(r, c) = (*this)(r, columns - anzahl + c);
    return m;
}

BMatrix BMatrix::nebeneinander(const BMatrix& rechts) const {
    BMatrix m(rows, columns + rechts.columns);
    for (std::size_t r = 0; r < rows; ++r) {
        for (std::size_t c = 0; c < columns; ++c)
            m(r, c) = (*this)(r, c);
        for (std::size_t c = 0; c < rechts.columns; ++c)
            m(r, columns + c) = rechts(r, c);
    }
    return m;
}

bool BMatrix::istNull() const {
    for (const auto& x : eintraege)
        if (x != 0)
            return false;
    return true;
}

BMatrix operator*(const BMatrix& a, const BMatrix& b) {
    BMatrix p(a.rows, b.columns);
    for (std::size_t r = 0; r < a.rows; ++r)
        for (std::size_t c = 0; c < b.columns; ++c) {
            Bruch s = 0;
            for (std::size_t k = 0; k < a.columns; ++k)
                s += a(r, k) * b(k, c);
            p(r, c) = s;
        }
    return p;
}

BVektor operator*(const BMatrix& a, const BVektor& v) {
    BVektor w(a.rows);
    for (std::size_t r = 0; r < a.rows; ++r) {
        Bruch s = 0;
        for (std::size_t k = 0; k < a.columns; ++k)
            s += a(r, k) * v[k];
        w[r] = s;
    }
    return w;
}

BMatrix operator-(const BMatrix& a, const BMatrix& b) {
    BMatrix d = a;
    for (std::size_t i = 0; i < d.eintraege.size(); ++i)
        d.eintraege[i] -= b.eintraege[i];
    return d;
}

BMatrix operator*(const Bruch& s, const BMatrix& a) {
    BMatrix m = a;
    for (auto& x : m.eintraege)
        x *= s;
    return m;
}

BVektor operator*(const Bruch& s, const BVektor& v) {
    BVektor w = v;
    for (auto& x : w)
        x *= s;
    return w;
}

BLesung liesBMatrix(const std::string& name, const SMatrix& s) {
    BLesung l;
    if (s.rows <= 0 || s.columns <= 0) {
        l.notiz = "Die Matrix " + name + " hat keine Einträge.";
        return l;
    }
    l.matrix = BMatrix(static_cast<std::size_t>(s.rows), static_cast<std::size_t>(s.columns));
    for (std::int64_t r = 0; r < s.rows; ++r)
        for (std::int64_t c = 0; c < s.columns; ++c) {
            const std::string& text = s(r, c);
            auto b = liesBruch(text);
            if (!b) {
                l.notiz = "Der Eintrag \"" + text + "\" in Zeile " + ganzText(r + 1) + ", Spalte " +
                          ganzText(c + 1) + " von " + name + " ist keine Zahl und kein Bruch.";
                if (text.find(',') != std::string::npos) {
                    std::string mitPunkt = text;
                    for (auto& z : mitPunkt)
                        if (z == ',')
                            z = '.';
                    l.notiz += " Dezimalzahlen werden mit Punkt geschrieben: \"" + mitPunkt +
                               "\" statt \"" + text + "\".";
                }
                return l;
            }
            l.matrix(static_cast<std::size_t>(r), static_cast<std::size_t>(c)) = *b;
        }
    l.ok = true;
    return l;
}

SMatrix tableauText(const BMatrix& m) {
    SMatrix s(static_cast<std::int64_t>(m.rows), static_cast<std::int64_t>(m.columns));
    for (std::size_t r = 0; r < m.rows; ++r)
        for (std::size_t c = 0; c < m.columns; ++c)
            s(static_cast<std::int64_t>(r), static_cast<std::int64_t>(c)) =
                zahlText(naechsterDouble(m(r, c)));
    return s;
}

} // namespace tabulon
