#include "exakt/eigen_wurzeln.h"

#include <arb_fmpz_poly.h>
#include <flint/fmpz_factor.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace tabulon {

using namespace flintwrap;

namespace {

// Balls of this many bits separate the roots of two different factors of a characteristic
// polynomial of an 8 × 8 matrix with room to spare, and cost next to nothing at degree 8.
constexpr slong ordnungsBits = 512;

// Trial division by every number below probeGrenze costs about a millisecond on a discriminant
// of thousands of bits; a remainder of up to vollFaktorisierenBits is then factorised in full,
// which takes fmpz_factor at most a few milliseconds (see quadratfrei).
constexpr unsigned long probeGrenze = 1UL << 14;
constexpr std::size_t vollFaktorisierenBits = 64;

double mitte(const arb_t x) {
    return arf_get_d(arb_midref(x), ARF_RND_NEAR);
}

// Ten places after the point, and more for a small number, so that ten significant digits show.
int gewuenschteStellen(double naeherung) {
    const double betrag = std::fabs(naeherung);
    if (betrag >= 0.1 || betrag == 0.0) {
        return 10;
    }
    return 10 + static_cast<int>(-std::floor(std::log10(betrag))) - 1;
}

mpq_class alsBruch(const fmpz_t mantisse, slong exponent) {
    mpq_class q(alsMpz(mantisse));
    if (exponent >= 0) {
        mpq_mul_2exp(q.get_mpq_t(), q.get_mpq_t(), static_cast<mp_bitcnt_t>(exponent));
    } else {
        mpq_div_2exp(q.get_mpq_t(), q.get_mpq_t(), static_cast<mp_bitcnt_t>(-exponent));
    }
    return q;
}

mpz_class abgeschnitten(const mpq_class& x, const mpz_class& skala) {
    mpz_class t = x.get_num() * skala;
    mpz_tdiv_q(t.get_mpz_t(), t.get_mpz_t(), x.get_den_mpz_t());
    return t;
}

WurzelMitBall rationaleWurzel(const std::vector<mpz_class>& f) {
    WurzelMitBall w;
    w.wert.art = ReellerEigenwert::Art::rational;
    w.wert.wert = mpq_class(-f[0], f[1]);
    w.wert.wert.canonicalize();
    setzeRational(w.ball.v, w.wert.wert, ordnungsBits);
    w.wert.naeherung = w.wert.wert.get_d();
    return w;
}

// a·x² + b·x + c with discriminant b² - 4ac = s²·d: the roots (-b ± s·√d) / 2a.
ReelleWurzeln quadratischeWurzeln(const std::vector<mpz_class>& f) {
    const mpz_class diskriminante = f[1] * f[1] - 4 * f[2] * f[0];
    if (diskriminante < 0) {
        return {};
    }
    const auto [s, d] = quadratfrei(diskriminante);
    const mpq_class p(-f[1], 2 * f[2]);
    const mpq_class q(s, 2 * f[2]);
    ReelleWurzeln r(2);
    for (int i = 0; i < 2; ++i) {
        ReellerEigenwert& w = r[static_cast<std::size_t>(i)].wert;
        w.art = ReellerEigenwert::Art::quadratisch;
        w.p = p;
        w.q = i == 0 ? mpq_class(-q) : q;
        w.p.canonicalize();
        w.q.canonicalize();
        w.d = d;
        arb_t& ball = r[static_cast<std::size_t>(i)].ball.v;
        Ball wurzel;
        Ball faktor;
        Zahl dz(d);
        arb_sqrt_fmpz(wurzel.v, dz.v, ordnungsBits);
        setzeRational(faktor.v, w.q, ordnungsBits);
        arb_mul(wurzel.v, wurzel.v, faktor.v, ordnungsBits);
        setzeRational(ball, w.p, ordnungsBits);
        arb_add(ball, ball, wurzel.v, ordnungsBits);
        w.naeherung = mitte(ball);
    }
    return r;
}

// Arb isolates every root of a square-free integer polynomial and returns the real ones first,
// ascending, with an imaginary part of exactly zero. The precision doubles until the balls are
// narrow enough for the digits we want to print and for the ordering.
ReelleWurzeln dezimaleWurzeln(const std::vector<mpz_class>& f) {
    Poly poly;
    setzePoly(poly.v, f);
    const slong grad = static_cast<slong>(f.size()) - 1;
    constexpr slong hoechstePraezision = slong(1) << 16;
    for (slong prec = ordnungsBits;; prec *= 2) {
        KomplexeBaelle wurzeln(grad);
        arb_fmpz_poly_complex_roots(wurzeln.v, poly.v, 0, prec);
        ReelleWurzeln r;
        bool alleSicher = true;
        for (slong i = 0; i < grad; ++i) {
            if (!arb_is_zero(acb_imagref(wurzeln.v + i))) {
                continue;
            }
            WurzelMitBall w;
            w.wert.art = ReellerEigenwert::Art::dezimal;
            arb_set(w.ball.v, acb_realref(wurzeln.v + i));
            w.wert.naeherung = mitte(w.ball.v);
            int stellen = gewuenschteStellen(w.wert.naeherung);
            w.wert.dezimal = sichereDezimalen(w.ball.v, stellen);
            if (w.wert.dezimal.empty()) {
                alleSicher = false;
                // Only after the last refinement: fewer places, or the ball itself, which is
                // certain too, rather than a digit that might be wrong.
                while (prec >= hoechstePraezision && w.wert.dezimal.empty() && stellen-- > 0) {
                    w.wert.dezimal = sichereDezimalen(w.ball.v, stellen);
                }
                if (prec >= hoechstePraezision && w.wert.dezimal.empty()) {
                    char* text = arb_get_str(w.ball.v, 10, 0);
                    w.wert.dezimal = text;
                    flint_free(text);
                }
            }
            r.push_back(std::move(w));
        }
        if (alleSicher || prec >= hoechstePraezision) {
            return r;
        }
    }
}

} // namespace

std::string sichereDezimalen(const arb_t x, int stellen) {
    if (!arb_is_finite(x) || stellen < 0) {
        return "";
    }
    Zahl a;
    Zahl b;
    Zahl exponent;
    arb_get_interval_fmpz_2exp(a.v, b.v, exponent.v, x);
    if (!fmpz_fits_si(exponent.v)) {
        return "";
    }
    const slong e = fmpz_get_si(exponent.v);
    const mpq_class unten = alsBruch(a.v, e);
    const mpq_class oben = alsBruch(b.v, e);
    if (sgn(unten) != sgn(oben)) {
        return "";
    }
    mpz_class skala;
    mpz_ui_pow_ui(skala.get_mpz_t(), 10, static_cast<unsigned long>(stellen));
    const mpz_class t = abgeschnitten(unten, skala);
    if (t != abgeschnitten(oben, skala)) {
        return "";
    }
    std::string ziffern = mpz_class(abs(t)).get_str();
    const std::size_t s = static_cast<std::size_t>(stellen);
    if (ziffern.size() <= s) {
        ziffern.insert(0, s + 1 - ziffern.size(), '0');
    }
    if (s > 0) {
        ziffern.insert(ziffern.size() - s, ".");
    }
    return (sgn(unten) < 0 ? "-" : "") + ziffern;
}

// A discriminant of a quadratic factor of an 8 × 8 decimal matrix can run to thousands of bits,
// and factoring a product of two large primes could take hours. So the small primes are
// divided out by trial; what remains is factorised completely only when that is cheap. A larger
// remainder without a prime factor below the trial bound counts as square-free unless it is a
// perfect square. That leaves p + q·√d correct in every case, if then perhaps not fully reduced.
std::pair<mpz_class, mpz_class> quadratfrei(const mpz_class& n) {
    mpz_class rest = n;
    mpz_class s = 1;
    mpz_class d = 1;
    auto nimm = [&](const mpz_class& p, unsigned long exponent) {
        mpz_class potenz;
        mpz_pow_ui(potenz.get_mpz_t(), p.get_mpz_t(), exponent / 2);
        s *= potenz;
        if (exponent % 2 == 1) {
            d *= p;
        }
    };
    // Every k that divides the rest here is prime: its prime factors were divided out before.
    for (unsigned long k = 2; k < probeGrenze && rest > 1; ++k) {
        unsigned long exponent = 0;
        while (mpz_divisible_ui_p(rest.get_mpz_t(), k) != 0) {
            mpz_divexact_ui(rest.get_mpz_t(), rest.get_mpz_t(), k);
            ++exponent;
        }
        nimm(k, exponent);
    }
    if (rest == 1) {
        return {s, d};
    }
    if (mpz_perfect_square_p(rest.get_mpz_t()) != 0) {
        mpz_sqrt(rest.get_mpz_t(), rest.get_mpz_t());
        return {s * rest, d};
    }
    if (mpz_sizeinbase(rest.get_mpz_t(), 2) > vollFaktorisierenBits) {
        return {s, d * rest};
    }
    Zahl z(rest);
    fmpz_factor_t zerlegung;
    fmpz_factor_init(zerlegung);
    fmpz_factor(zerlegung, z.v);
    for (slong i = 0; i < zerlegung->num; ++i) {
        nimm(alsMpz(zerlegung->p + i), zerlegung->exp[i]);
    }
    fmpz_factor_clear(zerlegung);
    return {s, d};
}

ReelleWurzeln reelleWurzeln(const std::vector<mpz_class>& koeffizienten) {
    switch (koeffizienten.size()) {
    case 0:
    case 1:
        return {};
    case 2: {
        ReelleWurzeln r;
        r.push_back(rationaleWurzel(koeffizienten));
        return r;
    }
    case 3:
        return quadratischeWurzeln(koeffizienten);
    default:
        return dezimaleWurzeln(koeffizienten);
    }
}

void sortiereAufsteigend(std::vector<WurzelMitBall>& wurzeln) {
    std::sort(wurzeln.begin(), wurzeln.end(), [](const WurzelMitBall& a, const WurzelMitBall& b) {
        return arf_cmp(arb_midref(a.ball.v), arb_midref(b.ball.v)) < 0;
    });
}

} // namespace tabulon
