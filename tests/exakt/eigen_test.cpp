// The eigenvalue analysis against references that share no code with it: a determinant by
// plain fraction elimination, a Sturm count of the real roots, exact arithmetic in Q(√d), sign
// changes at the ends of every printed decimal, and matrices built similar to a block diagonal
// whose eigenvalues and multiplicities are known by construction.

#include "exakt/eigen.h"
#include "exakt/eigen_wurzeln.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <random>
#include <string>
#include <vector>

namespace tabulon {
namespace {

using Q = mpq_class;
using Matrix = std::vector<Q>; // n × n, row by row

Q bruch(const mpz_class& zaehler, const mpz_class& nenner) {
    Q q(zaehler, nenner);
    q.canonicalize();
    return q;
}

// Plain elimination with fractions: the determinant and the rank.
struct Elimination {
    Q det = 1;
    int rang = 0;
};

Elimination eliminiere(std::size_t n, Matrix a) {
    Elimination e;
    for (std::size_t s = 0; s < n; ++s) {
        const std::size_t r = static_cast<std::size_t>(e.rang);
        std::size_t z = r;
        while (z < n && a[z * n + s] == 0) {
            ++z;
        }
        if (z == n) {
            e.det = 0;
            continue;
        }
        if (z != r) {
            for (std::size_t j = 0; j < n; ++j) {
                std::swap(a[z * n + j], a[r * n + j]);
            }
            e.det = -e.det;
        }
        e.det *= a[r * n + s];
        for (std::size_t i = r + 1; i < n; ++i) {
            const Q f = a[i * n + s] / a[r * n + s];
            for (std::size_t j = s; j < n; ++j) {
                a[i * n + j] -= f * a[r * n + j];
            }
        }
        ++e.rang;
    }
    return e;
}

Q detGauss(std::size_t n, const Matrix& a) {
    return eliminiere(n, a).det;
}
int rang(std::size_t n, const Matrix& a) {
    return eliminiere(n, a).rang;
}

Matrix minusLambdaE(std::size_t n, Matrix a, const Q& lambda) {
    for (std::size_t i = 0; i < n; ++i) {
        a[i * n + i] -= lambda;
    }
    return a;
}

template <typename T> Q wert(const std::vector<T>& p, const Q& x) {
    Q w = 0;
    for (std::size_t i = p.size(); i-- > 0;) {
        w = w * x + Q(p[i]);
    }
    return w;
}

std::vector<Q> mal(const std::vector<Q>& a, const std::vector<Q>& b) {
    std::vector<Q> c(a.size() + b.size() - 1, Q(0));
    for (std::size_t i = 0; i < a.size(); ++i) {
        for (std::size_t j = 0; j < b.size(); ++j) {
            c[i + j] += a[i] * b[j];
        }
    }
    return c;
}

std::vector<Q> rest(std::vector<Q> a, const std::vector<Q>& b) {
    while (a.size() >= b.size()) {
        const Q f = a.back() / b.back();
        const std::size_t versatz = a.size() - b.size();
        for (std::size_t i = 0; i < b.size(); ++i) {
            a[versatz + i] -= f * b[i];
        }
        a.pop_back();
    }
    while (!a.empty() && a.back() == 0) {
        a.pop_back();
    }
    return a;
}

int vorzeichenwechsel(const std::vector<std::vector<Q>>& kette, bool beiPlusUnendlich) {
    int wechsel = 0;
    int letztes = 0;
    for (const auto& p : kette) {
        int s = sgn(p.back());
        if (!beiPlusUnendlich && (p.size() - 1) % 2 == 1) {
            s = -s;
        }
        if (s != 0 && letztes != 0 && s != letztes) {
            ++wechsel;
        }
        if (s != 0) {
            letztes = s;
        }
    }
    return wechsel;
}

// Sturm's theorem: the number of distinct real roots, repeated roots included once.
int sturmAnzahl(const std::vector<Q>& p) {
    std::vector<Q> ableitung;
    for (std::size_t i = 1; i < p.size(); ++i) {
        ableitung.push_back(p[i] * static_cast<long>(i));
    }
    std::vector<std::vector<Q>> kette{p};
    if (!ableitung.empty()) {
        kette.push_back(ableitung);
    }
    while (kette.size() >= 2 && kette.back().size() > 1) {
        std::vector<Q> r = rest(kette[kette.size() - 2], kette.back());
        if (r.empty()) {
            break;
        }
        for (Q& x : r) {
            x = -x;
        }
        kette.push_back(r);
    }
    return vorzeichenwechsel(kette, false) - vorzeichenwechsel(kette, true);
}

// f(p + q·√d) in Q(√d), as the pair (rational part, coefficient of √d).
std::pair<Q, Q> wertInQWurzelD(const std::vector<mpz_class>& f, const ReellerEigenwert& w) {
    Q a = 0;
    Q b = 0;
    const Q d(w.d);
    for (std::size_t i = f.size(); i-- > 0;) {
        const Q na = a * w.p + b * w.q * d + Q(f[i]);
        const Q nb = a * w.q + b * w.p;
        a = na;
        b = nb;
    }
    return {a, b};
}

bool quadratfreiKlein(const mpz_class& d) {
    for (long p = 2; p * p <= 100000 && mpz_class(p * p) <= d; ++p) {
        if (mpz_divisible_ui_p(d.get_mpz_t(), static_cast<unsigned long>(p * p))) {
            return false;
        }
    }
    return true;
}

// Every printed digit certain: the factor changes sign between the printed decimal and the
// decimal one unit in its last place further from zero.
void pruefeDezimale(const std::vector<mpz_class>& f, const std::string& text) {
    SCOPED_TRACE(text);
    const std::size_t punkt = text.find('.');
    ASSERT_NE(punkt, std::string::npos);
    const std::size_t stellen = text.size() - punkt - 1;
    std::string ohnePunkt = text;
    ohnePunkt.erase(punkt, 1);
    EXPECT_GE(stellen, 10u);
    mpz_class skala;
    mpz_ui_pow_ui(skala.get_mpz_t(), 10, stellen);
    const Q unten = bruch(mpz_class(ohnePunkt, 10), skala);
    const Q schritt = bruch(text[0] == '-' ? -1 : 1, skala);
    EXPECT_LT(sgn(wert(f, unten)) * sgn(wert(f, unten + schritt)), 0);
}

// Everything that must hold for any matrix, checked against the references above.
void pruefeAnalyse(std::size_t n, const Matrix& a) {
    const EigenAnalyse e = eigenAnalyse(n, a);
    ASSERT_EQ(e.charpoly.size(), n + 1);
    // n + 1 points fix a polynomial of degree n.
    for (long x = -static_cast<long>(n / 2); x <= static_cast<long>(n - n / 2); ++x) {
        const Q punkt = bruch(x, 3);
        EXPECT_EQ(wert(e.charpoly, punkt), detGauss(n, minusLambdaE(n, a, punkt))) << "x = " << x;
    }
    std::vector<Q> produkt{e.konstante};
    int summe = e.nichtReell;
    for (const EigenFaktor& f : e.faktoren) {
        EXPECT_GT(f.koeffizienten.back(), 0);
        mpz_class inhalt = 0;
        for (const mpz_class& c : f.koeffizienten) {
            mpz_gcd(inhalt.get_mpz_t(), inhalt.get_mpz_t(), c.get_mpz_t());
        }
        EXPECT_EQ(inhalt, 1);
        for (int k = 0; k < f.vielfachheit; ++k) {
            produkt = mal(produkt, std::vector<Q>(f.koeffizienten.begin(), f.koeffizienten.end()));
        }
    }
    EXPECT_EQ(produkt, e.charpoly);
    EXPECT_EQ(static_cast<int>(e.reelle.size()), sturmAnzahl(e.charpoly));
    for (std::size_t i = 0; i < e.reelle.size(); ++i) {
        const ReellerEigenwert& w = e.reelle[i];
        SCOPED_TRACE(w.text());
        summe += w.algebraisch;
        EXPECT_LE(1, w.geometrisch);
        EXPECT_LE(w.geometrisch, w.algebraisch);
        ASSERT_GE(w.faktor, 0);
        const EigenFaktor& f = e.faktoren[static_cast<std::size_t>(w.faktor)];
        EXPECT_EQ(w.algebraisch, f.vielfachheit);
        if (i > 0) {
            EXPECT_LT(e.reelle[i - 1].naeherung, w.naeherung);
        }
        switch (w.art) {
        case ReellerEigenwert::Art::rational:
            EXPECT_EQ(detGauss(n, minusLambdaE(n, a, w.wert)), 0);
            EXPECT_EQ(w.geometrisch, static_cast<int>(n) - rang(n, minusLambdaE(n, a, w.wert)));
            EXPECT_EQ(wert(f.koeffizienten, w.wert), 0);
            break;
        case ReellerEigenwert::Art::quadratisch:
            EXPECT_EQ(f.koeffizienten.size(), 3u);
            EXPECT_NE(w.q, 0);
            EXPECT_GT(w.d, 1);
            EXPECT_TRUE(quadratfreiKlein(w.d)) << w.d;
            EXPECT_EQ(wertInQWurzelD(f.koeffizienten, w), std::make_pair(Q(0), Q(0)));
            break;
        case ReellerEigenwert::Art::dezimal:
            EXPECT_GE(f.koeffizienten.size(), 4u);
            pruefeDezimale(f.koeffizienten, w.dezimal);
            break;
        }
    }
    EXPECT_EQ(summe, static_cast<int>(n));
}

struct Beispiel {
    std::size_t n;
    std::vector<const char*> eintraege;
    std::string charpoly;
    std::string faktorisierung;
    std::string werte; // "text alg/geo", joined by "; "
    int nichtReell;
    bool diagonalisierbar;
};

void PrintTo(const Beispiel& b, std::ostream* os) {
    *os << b.faktorisierung;
}

class FesteBeispiele : public testing::TestWithParam<Beispiel> {};

TEST_P(FesteBeispiele, ExakteWerteUndTexte) {
    const Beispiel& b = GetParam();
    Matrix a;
    for (const char* t : b.eintraege) {
        a.emplace_back(t);
        a.back().canonicalize();
    }
    const EigenAnalyse e = eigenAnalyse(b.n, a);
    EXPECT_EQ(polynomText(e.charpoly), b.charpoly);
    EXPECT_EQ(faktorisierungText(e), b.faktorisierung);
    std::string werte;
    for (const ReellerEigenwert& w : e.reelle) {
        werte += (werte.empty() ? "" : "; ") + w.text() + " " + std::to_string(w.algebraisch) +
                 "/" + std::to_string(w.geometrisch);
    }
    EXPECT_EQ(werte, b.werte);
    EXPECT_EQ(e.nichtReell, b.nichtReell);
    EXPECT_EQ(e.diagonalisierbar(), b.diagonalisierbar);
    pruefeAnalyse(b.n, a);
}

INSTANTIATE_TEST_SUITE_P(
    Eigen, FesteBeispiele,
    testing::Values(
        // the companion matrix of x^3 - x - 1
        Beispiel{3,
                 {"0", "0", "1", "1", "0", "1", "0", "1", "0"},
                 "-x^3 + x + 1",
                 "-(x^3 - x - 1)",
                 "≈ 1.3247179572 1/1",
                 2,
                 false},
        // the companion matrix of (x - 1/2)(x^2 - x - 1): p and q are fractions
        Beispiel{3,
                 {"0", "0", "-1/2", "1", "0", "1/2", "0", "1", "3/2"},
                 "-x^3 + 3/2·x^2 + 1/2·x - 1/2",
                 "-1/2·(2x - 1)·(x^2 - x - 1)",
                 "1/2 - 1/2·√5 1/1; 1/2 1/1; 1/2 + 1/2·√5 1/1",
                 0,
                 true},
        Beispiel{1, {"-7"}, "-x - 7", "-(x + 7)", "-7 1/1", 0, true},
        // √192 = 8·√3
        Beispiel{
            2, {"0", "8", "24", "0"}, "x^2 - 192", "(x^2 - 192)", "-8·√3 1/1; 8·√3 1/1", 0, true},
        Beispiel{2,
                 {"1/10", "0", "0", "-1/1000"},
                 "x^2 - 99/1000·x - 1/10000",
                 "1/10000·(1000x + 1)·(10x - 1)",
                 "-1/1000 1/1; 1/10 1/1",
                 0,
                 true}));

TEST(Eigen, SichereDezimalenUndQuadratfrei) {
    flintwrap::Ball x;
    arb_set_str(x.v, "0.12345678905 +/- 1e-12", 128);
    EXPECT_EQ(sichereDezimalen(x.v, 10), "0.1234567890");
    arb_set_str(x.v, "-2.00000000001 +/- 1e-12", 128);
    EXPECT_EQ(sichereDezimalen(x.v, 10), "-2.0000000000");
    EXPECT_EQ(sichereDezimalen(x.v, 12), "");
    arb_set_str(x.v, "0.29999999999999 +/- 1e-13", 128); // reaches across 0.3
    EXPECT_EQ(sichereDezimalen(x.v, 10), "");
    EXPECT_EQ(sichereDezimalen(x.v, 0), "0");
    arb_set_str(x.v, "0 +/- 1e-20", 128);
    EXPECT_EQ(sichereDezimalen(x.v, 3), "");

    EXPECT_EQ(quadratfrei(72), std::make_pair(mpz_class(6), mpz_class(2)));
    EXPECT_EQ(quadratfrei(1), std::make_pair(mpz_class(1), mpz_class(1)));
    EXPECT_EQ(quadratfrei(1009), std::make_pair(mpz_class(1), mpz_class(1009)));
    // Above the full factorisation: small squares still come out, and so does a cofactor
    // that is the square of a large prime.
    const mpz_class grossePrimzahl("170141183460469231731687303715884105727"); // 2^127 - 1
    const auto [s, d] = quadratfrei(mpz_class(4 * 9 * 5) * grossePrimzahl * grossePrimzahl);
    EXPECT_EQ(s, 6 * grossePrimzahl);
    EXPECT_EQ(d, 5);
    // A square of a prime above the trial division, found by the full factorisation.
    mpz_class p = 20000;
    mpz_class r = 1000000000;
    mpz_nextprime(p.get_mpz_t(), p.get_mpz_t());
    mpz_nextprime(r.get_mpz_t(), r.get_mpz_t());
    EXPECT_EQ(quadratfrei(7 * p * p * r), std::make_pair(p, mpz_class(7 * r)));
}

std::vector<long> zufallsEintraege(std::mt19937_64& g, std::size_t anzahl, long von, long bis) {
    std::uniform_int_distribution<long> v(von, bis);
    std::vector<long> e(anzahl);
    for (long& x : e) {
        x = v(g);
    }
    return e;
}

TEST(Eigen, ZufaelligeGanzeUndDezimaleMatrizen) {
    std::mt19937_64 g(20261124);
    for (std::size_t n = 1; n <= 8; ++n) {
        for (int runde = 0; runde < 12; ++runde) {
            SCOPED_TRACE("n = " + std::to_string(n) + ", Runde " + std::to_string(runde));
            const auto ganz = zufallsEintraege(g, n * n, -9, 8);
            pruefeAnalyse(n, Matrix(ganz.begin(), ganz.end()));
            // six-digit decimals such as -123.456, and a few of them with fewer places
            Matrix dezimal;
            for (long x : zufallsEintraege(g, n * n, -999999, 999999)) {
                dezimal.push_back(bruch(x, x % 7 == 0 ? 100 : 1000));
            }
            pruefeAnalyse(n, dezimal);
        }
    }
}

// Blocks whose eigenvalues are known: a Jordan block, or the companion matrix of a polynomial.
struct Block {
    std::vector<long> polynom; // companion of this monic polynomial when size > 1 …
    long lambda = 0;           // … or a Jordan block of lambda of the given size
    std::size_t groesse = 1;
};

// diag(blocks), then conjugated by random integer row operations and their inverse column
// operations, which keep the entries integral and the eigenstructure unchanged.
Matrix aehnlicheMatrix(std::mt19937_64& g, const std::vector<Block>& bloecke, std::size_t& n) {
    n = 0;
    for (const Block& b : bloecke) {
        n += b.polynom.empty() ? b.groesse : b.polynom.size() - 1;
    }
    Matrix a(n * n, Q(0));
    std::size_t o = 0;
    for (const Block& b : bloecke) {
        if (b.polynom.empty()) {
            for (std::size_t i = 0; i < b.groesse; ++i) {
                a[(o + i) * n + o + i] = b.lambda;
                if (i + 1 < b.groesse) {
                    a[(o + i) * n + o + i + 1] = 1;
                }
            }
            o += b.groesse;
        } else {
            const std::size_t k = b.polynom.size() - 1;
            for (std::size_t i = 0; i < k; ++i) {
                if (i + 1 < k) {
                    a[(o + i + 1) * n + o + i] = 1;
                }
                a[(o + i) * n + o + k - 1] = -b.polynom[i];
            }
            o += k;
        }
    }
    std::uniform_int_distribution<std::size_t> index(0, n - 1);
    std::uniform_int_distribution<long> faktor(-2, 2);
    for (int schritt = 0; schritt < 12 && n > 1; ++schritt) {
        const std::size_t i = index(g);
        const std::size_t j = index(g);
        const long c = faktor(g);
        if (i == j || c == 0) {
            continue;
        }
        for (std::size_t s = 0; s < n; ++s) {
            a[i * n + s] += c * a[j * n + s];
        }
        for (std::size_t z = 0; z < n; ++z) {
            a[z * n + j] -= c * a[z * n + i];
        }
    }
    return a;
}

TEST(Eigen, AehnlichZuBekanntenBloecken) {
    struct Fall {
        std::vector<Block> bloecke;
        std::string faktorisierung;
        std::string vielfachheiten; // "alg/geo" of the real eigenvalues, ascending
        int nichtReell;
    };
    const std::vector<Fall> faelle{
        {{{{}, 2, 3}, {{}, 2, 1}, {{}, -1, 2}}, "(x + 1)^2·(x - 2)^4", "2/1 4/2", 0},
        {{{{-2, 0, 1}}, {{-2, 0, 1}}, {{}, 5, 1}}, "-(x - 5)·(x^2 - 2)^2", "2/2 2/2 1/1", 0},
        {{{{-1, -1, 0, 1}}, {{-1, -1, 0, 1}}, {{1, 0, 1}}}, "(x^2 + 1)·(x^3 - x - 1)^2", "2/2", 6},
        {{{{}, 0, 4}, {{}, 0, 4}}, "x^8", "8/2", 0},
        // the companion matrix of (x^2 - 2)^2: one eigenvector for each of ±√2
        {{{{4, 0, -4, 0, 1}}, {{-1, -1, 0, 1}}}, "-(x^2 - 2)^2·(x^3 - x - 1)", "2/1 1/1 2/1", 2},
        {{{{-5, 0, 1}}, {{-5, 0, 1}}, {{-5, 0, 1}}, {{-5, 0, 1}}}, "(x^2 - 5)^4", "4/4 4/4", 0},
    };
    std::mt19937_64 g(42);
    for (const Fall& f : faelle) {
        for (int runde = 0; runde < 3; ++runde) {
            std::size_t n = 0;
            const Matrix a = aehnlicheMatrix(g, f.bloecke, n);
            SCOPED_TRACE(f.faktorisierung);
            const EigenAnalyse e = eigenAnalyse(n, a);
            EXPECT_EQ(faktorisierungText(e), f.faktorisierung);
            std::string v;
            for (const ReellerEigenwert& w : e.reelle) {
                v += (v.empty() ? "" : " ") + std::to_string(w.algebraisch) + "/" +
                     std::to_string(w.geometrisch);
            }
            EXPECT_EQ(v, f.vielfachheiten);
            EXPECT_EQ(e.nichtReell, f.nichtReell);
            pruefeAnalyse(n, a);
        }
    }
}

} // namespace
} // namespace tabulon
