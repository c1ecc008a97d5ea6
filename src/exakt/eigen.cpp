#include "exakt/eigen.h"

#include "exakt/eigen_flint.h"
#include "exakt/eigen_wurzeln.h"

#include <flint/fmpz_poly_factor.h>

#include <algorithm>
#include <utility>

namespace tabulon {

using namespace flintwrap;

namespace {

// A = B / D with an integer matrix B and the least common denominator D of all entries, so that
// the polynomial and rank work can run on integers, which FLINT handles far faster.
struct GanzeMatrix {
    mpz_class nenner = 1;
    std::vector<mpz_class> eintraege;
};

GanzeMatrix ganzMachen(const std::vector<mpq_class>& a) {
    GanzeMatrix g;
    for (const mpq_class& x : a) {
        mpz_lcm(g.nenner.get_mpz_t(), g.nenner.get_mpz_t(), x.get_den_mpz_t());
    }
    g.eintraege.reserve(a.size());
    for (const mpq_class& x : a) {
        g.eintraege.push_back(x.get_num() * (g.nenner / x.get_den()));
    }
    return g;
}

void setzeMatrix(fmpz_mat_t ziel, const GanzeMatrix& g, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t j = 0; j < n; ++j) {
            fmpz_set_mpz(fmpz_mat_entry(ziel, i, j), g.eintraege[i * n + j].get_mpz_t());
        }
    }
}

// det(A - x·E) from det(x·E - B) = pB(x): det(x·E - A) = D^-n · pB(D·x), times (-1)^n.
std::vector<mpq_class> charakteristischesPolynom(const GanzeMatrix& g, std::size_t n) {
    Mat b(static_cast<slong>(n), static_cast<slong>(n));
    setzeMatrix(b.v, g, n);
    Poly pb;
    fmpz_mat_charpoly(pb.v, b.v);
    std::vector<mpq_class> c(n + 1);
    mpz_class potenz = 1; // D^i
    for (std::size_t i = 0; i <= n; ++i) {
        Zahl k;
        fmpz_poly_get_coeff_fmpz(k.v, pb.v, static_cast<slong>(i));
        c[i] = mpq_class(alsMpz(k.v) * potenz);
        potenz *= g.nenner;
    }
    mpz_class dn = 1;
    mpz_pow_ui(dn.get_mpz_t(), g.nenner.get_mpz_t(), static_cast<unsigned long>(n));
    for (mpq_class& x : c) {
        x /= dn;
        if (n % 2 == 1) {
            x = -x;
        }
        x.canonicalize();
    }
    return c;
}

// The primitive integer multiple with positive leading coefficient.
std::vector<mpz_class> primitiv(const std::vector<mpq_class>& c) {
    mpz_class l = 1;
    for (const mpq_class& x : c) {
        mpz_lcm(l.get_mpz_t(), l.get_mpz_t(), x.get_den_mpz_t());
    }
    std::vector<mpz_class> z;
    mpz_class g = 0;
    for (const mpq_class& x : c) {
        z.push_back(x.get_num() * (l / x.get_den()));
        mpz_gcd(g.get_mpz_t(), g.get_mpz_t(), z.back().get_mpz_t());
    }
    const bool negativ = !z.empty() && z.back() < 0;
    for (mpz_class& x : z) {
        x /= g;
        if (negativ) {
            x = -x;
        }
    }
    return z;
}

std::vector<EigenFaktor> faktorisieren(const std::vector<mpz_class>& p) {
    Poly poly;
    setzePoly(poly.v, p);
    fmpz_poly_factor_t fac;
    fmpz_poly_factor_init(fac);
    fmpz_poly_factor(fac, poly.v);
    std::vector<EigenFaktor> faktoren;
    for (slong i = 0; i < fac->num; ++i) {
        EigenFaktor f;
        const slong laenge = fmpz_poly_length(fac->p + i);
        for (slong j = 0; j < laenge; ++j) {
            f.koeffizienten.push_back(alsMpz(fmpz_poly_get_coeff_ptr(fac->p + i, j)));
        }
        if (f.koeffizienten.back() < 0) {
            for (mpz_class& x : f.koeffizienten) {
                x = -x;
            }
        }
        f.vielfachheit = static_cast<int>(fac->exp[i]);
        faktoren.push_back(std::move(f));
    }
    fmpz_poly_factor_clear(fac);
    // A fixed order makes the pages reproducible: by degree, linear factors by their root,
    // the others by their coefficients from the top.
    std::sort(faktoren.begin(), faktoren.end(), [](const EigenFaktor& a, const EigenFaktor& b) {
        const auto& x = a.koeffizienten;
        const auto& y = b.koeffizienten;
        if (x.size() != y.size()) {
            return x.size() < y.size();
        }
        if (x.size() == 2) {
            return mpq_class(-x[0], x[1]) < mpq_class(-y[0], y[1]);
        }
        return std::lexicographical_compare(x.rbegin(), x.rend(), y.rbegin(), y.rend());
    });
    return faktoren;
}

// dim ker f(A) / deg f. f(A) has the kernel of D^k·f(B/D) = sum f_i·D^(k-i)·B^i, evaluated by
// Horner on integers: G = f_k·E, then G = G·B + f_j·D^(k-j)·E for j = k-1 … 0.
int geometrischeVielfachheit(const EigenFaktor& f, const GanzeMatrix& g, std::size_t n) {
    const slong sn = static_cast<slong>(n);
    Mat b(sn, sn);
    setzeMatrix(b.v, g, n);
    Mat h(sn, sn);
    Mat produkt(sn, sn);
    const std::size_t k = f.koeffizienten.size() - 1;
    Zahl c(f.koeffizienten[k]);
    fmpz_mat_one(h.v);
    fmpz_mat_scalar_mul_fmpz(h.v, h.v, c.v);
    mpz_class dPotenz = 1;
    for (std::size_t j = k; j-- > 0;) {
        dPotenz *= g.nenner;
        fmpz_mat_mul(produkt.v, h.v, b.v);
        Zahl summand(f.koeffizienten[j] * dPotenz);
        for (slong i = 0; i < sn; ++i) {
            fmpz_add(fmpz_mat_entry(produkt.v, i, i), fmpz_mat_entry(produkt.v, i, i), summand.v);
        }
        fmpz_mat_swap(h.v, produkt.v);
    }
    const slong rang = fmpz_mat_rank(h.v);
    return static_cast<int>((sn - rang) / static_cast<slong>(k));
}

} // namespace

bool EigenAnalyse::diagonalisierbar() const {
    if (nichtReell > 0) {
        return false;
    }
    return std::all_of(reelle.begin(), reelle.end(),
                       [](const ReellerEigenwert& w) { return w.algebraisch == w.geometrisch; });
}

EigenAnalyse eigenAnalyse(std::size_t n, const std::vector<mpq_class>& eintraege) {
    EigenAnalyse e;
    if (n == 0 || eintraege.size() != n * n) {
        e.charpoly = {mpq_class(1)};
        e.konstante = 1;
        return e;
    }
    const GanzeMatrix g = ganzMachen(eintraege);
    e.charpoly = charakteristischesPolynom(g, n);
    e.faktoren = faktorisieren(primitiv(e.charpoly));

    mpz_class leitProdukt = 1;
    for (const EigenFaktor& f : e.faktoren) {
        mpz_class l;
        mpz_pow_ui(l.get_mpz_t(), f.koeffizienten.back().get_mpz_t(),
                   static_cast<unsigned long>(f.vielfachheit));
        leitProdukt *= l;
    }
    e.konstante = e.charpoly.back() / leitProdukt;

    std::vector<WurzelMitBall> wurzeln;
    for (std::size_t i = 0; i < e.faktoren.size(); ++i) {
        const EigenFaktor& f = e.faktoren[i];
        ReelleWurzeln r = reelleWurzeln(f.koeffizienten);
        const int grad = static_cast<int>(f.koeffizienten.size()) - 1;
        e.nichtReell += (grad - static_cast<int>(r.size())) * f.vielfachheit;
        if (r.empty()) {
            continue;
        }
        const int geometrisch = geometrischeVielfachheit(f, g, n);
        for (WurzelMitBall& w : r) {
            w.wert.algebraisch = f.vielfachheit;
            w.wert.geometrisch = geometrisch;
            w.wert.faktor = static_cast<int>(i);
            wurzeln.push_back(std::move(w));
        }
    }
    sortiereAufsteigend(wurzeln);
    for (WurzelMitBall& w : wurzeln) {
        e.reelle.push_back(std::move(w.wert));
    }
    return e;
}

} // namespace tabulon
