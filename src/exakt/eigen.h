#pragma once
// The eigenvalues of a square matrix of exact rationals, computed without rounding.
//
// eigenAnalyse forms det(A - x·E) with exact coefficients, factorises it over the rationals into
// irreducible integer polynomials and reads every real eigenvalue off its factor: a linear factor
// gives a fraction, a quadratic one p ± q·√d with d square-free, and a factor of higher degree
// gives decimals isolated with ball arithmetic, printed only as far as every digit is certain.
// The geometric multiplicity comes from the rank of f(A) for the irreducible factor f, which is
// exact and shared by all roots of f. The work is done by FLINT and Arb; this header only speaks
// gmpxx so that callers never see their types.

#include <gmpxx.h>

#include <cstddef>
#include <string>
#include <vector>

namespace tabulon {

struct ReellerEigenwert {
    enum class Art { rational, quadratisch, dezimal };
    Art art = Art::rational;
    mpq_class wert;       // rational: the value
    mpq_class p, q;       // quadratisch: p + q·√d, q != 0 carries the sign
    mpz_class d;          // quadratisch: square-free, d > 1
    std::string dezimal;  // dezimal: a decimal of which every printed digit is certain
    double naeherung = 0; // for ordering and display only
    int algebraisch = 0;  // algebraic multiplicity
    int geometrisch = 0;  // geometric multiplicity
    int faktor = -1;      // index into EigenAnalyse::faktoren of the factor this is a root of
    // "-5/3", "1/2 + 1/2·√5", "-√2", "≈ 1.3247179572"
    std::string text() const;
};

struct EigenFaktor {
    std::vector<mpz_class> koeffizienten; // primitive, positive leading coefficient, index = power
    int vielfachheit = 0;
};

struct EigenAnalyse {
    std::vector<mpq_class> charpoly;   // det(A - x·E), index = power, degree n
    mpq_class konstante;               // charpoly = konstante · product of faktoren^vielfachheit
    std::vector<EigenFaktor> faktoren; // irreducible over Q, by degree, linear ones by root
    std::vector<ReellerEigenwert> reelle; // distinct real eigenvalues, ascending
    int nichtReell = 0; // number of non-real eigenvalues counted with multiplicity

    // Over the reals: no non-real eigenvalue and geometric = algebraic for every real one.
    bool diagonalisierbar() const;
};

// eintraege holds the n·n entries row by row. n = 0, or a count of entries other than n·n,
// gives the analysis of the empty matrix: charpoly 1, no factors, no eigenvalues.
EigenAnalyse eigenAnalyse(std::size_t n, const std::vector<mpq_class>& eintraege);

// "-x^3 + 4x^2 - x - 6"; a fractional coefficient is joined with a dot: "1/2·x^2 - 3/4".
std::string polynomText(const std::vector<mpq_class>& koeffizienten);
std::string polynomText(const std::vector<mpz_class>& koeffizienten);
// "(x^2 - 2)", with the power when the factor repeats: "(x - 1)^2".
std::string faktorText(const EigenFaktor&);
// The whole factorisation: "-(x - 1)^2·(x^2 - 2)", "1/8·(2x - 1)^3".
std::string faktorisierungText(const EigenAnalyse&);

} // namespace tabulon
