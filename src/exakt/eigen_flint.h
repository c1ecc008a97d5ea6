#pragma once
// Owning wrappers for the few FLINT and Arb objects the eigenvalue code keeps, and the
// conversions to and from gmpxx. Internal to src/exakt; callers use eigen.h.

#include <gmpxx.h>

#include <acb.h>
#include <arb.h>
#include <flint/fmpz.h>
#include <flint/fmpz_mat.h>
#include <flint/fmpz_poly.h>

#include <vector>

namespace tabulon::flintwrap {

struct Zahl {
    fmpz_t v;
    Zahl() { fmpz_init(v); }
    explicit Zahl(const mpz_class& z) {
        fmpz_init(v);
        fmpz_set_mpz(v, z.get_mpz_t());
    }
    ~Zahl() { fmpz_clear(v); }
    Zahl(const Zahl&) = delete;
    Zahl& operator=(const Zahl&) = delete;
};

struct Poly {
    fmpz_poly_t v;
    Poly() { fmpz_poly_init(v); }
    ~Poly() { fmpz_poly_clear(v); }
    Poly(const Poly&) = delete;
    Poly& operator=(const Poly&) = delete;
};

struct Mat {
    fmpz_mat_t v;
    Mat(slong zeilen, slong spalten) { fmpz_mat_init(v, zeilen, spalten); }
    ~Mat() { fmpz_mat_clear(v); }
    Mat(const Mat&) = delete;
    Mat& operator=(const Mat&) = delete;
};

struct Ball {
    arb_t v;
    Ball() { arb_init(v); }
    ~Ball() { arb_clear(v); }
    Ball(const Ball& b) {
        arb_init(v);
        arb_set(v, b.v);
    }
    Ball& operator=(const Ball& b) {
        arb_set(v, b.v);
        return *this;
    }
};

struct KomplexeBaelle {
    acb_ptr v;
    slong laenge;
    explicit KomplexeBaelle(slong n) : v(_acb_vec_init(n)), laenge(n) {}
    ~KomplexeBaelle() { _acb_vec_clear(v, laenge); }
    KomplexeBaelle(const KomplexeBaelle&) = delete;
    KomplexeBaelle& operator=(const KomplexeBaelle&) = delete;
};

inline mpz_class alsMpz(const fmpz_t f) {
    mpz_class z;
    fmpz_get_mpz(z.get_mpz_t(), f);
    return z;
}

inline void setzePoly(fmpz_poly_t ziel, const std::vector<mpz_class>& koeff) {
    fmpz_poly_zero(ziel);
    Zahl c;
    for (std::size_t i = 0; i < koeff.size(); ++i) {
        fmpz_set_mpz(c.v, koeff[i].get_mpz_t());
        fmpz_poly_set_coeff_fmpz(ziel, static_cast<slong>(i), c.v);
    }
}

inline void setzeRational(arb_t ziel, const mpq_class& q, slong prec) {
    Zahl zaehler(q.get_num());
    Zahl nenner(q.get_den());
    arb_fmpz_div_fmpz(ziel, zaehler.v, nenner.v, prec);
}

} // namespace tabulon::flintwrap
