// Properties of the exact engine on many random integer, decimal and mixed matrices up to 8 x 8,
// each checked against something computed another way.

#include <numeric>
#include <string>

#include <gtest/gtest.h>

#include "exakt/befehle.h"
#include "exakt/gaussjordan.h"
#include "zufallsmatrix.h"

using namespace tabulon;
using namespace tabulon::exakttest;

namespace {

// Bareiss' fraction-free elimination on the matrix with each row scaled to integers; it
// shares no code with the commands' elimination.
Bruch bareiss(const BMatrix& a) {
    const std::size_t n = a.rows;
    std::vector<mpz_class> m(n * n);
    mpz_class skala = 1;
    for (std::size_t r = 0; r < n; ++r) {
        mpz_class kgv = 1;
        for (std::size_t c = 0; c < n; ++c)
            mpz_lcm(kgv.get_mpz_t(), kgv.get_mpz_t(), a(r, c).get_den().get_mpz_t());
        skala *= kgv;
        for (std::size_t c = 0; c < n; ++c)
            m[r * n + c] = a(r, c).get_num() * (kgv / a(r, c).get_den());
    }
    mpz_class vorher = 1;
    int vorzeichen = 1;
    for (std::size_t k = 0; k + 1 < n; ++k) {
        if (m[k * n + k] == 0) {
            std::size_t p = k + 1;
            while (p < n && m[p * n + k] == 0)
                ++p;
            if (p == n)
                return 0;
            for (std::size_t c = 0; c < n; ++c)
                std::swap(m[k * n + c], m[p * n + c]);
            vorzeichen = -vorzeichen;
        }
        for (std::size_t i = k + 1; i < n; ++i)
            for (std::size_t j = k + 1; j < n; ++j)
                m[i * n + j] = (m[i * n + j] * m[k * n + k] - m[i * n + k] * m[k * n + j]) / vorher;
        vorher = m[k * n + k];
    }
    Bruch det(vorzeichen * m[n * n - 1], skala);
    det.canonicalize();
    return det;
}

// Reduced row echelon form: row i leads with a 1 in pivotspalten[i], every pivot column is a
// unit vector, the rows below the rank are zero, the pivot columns increase.
bool istReduziert(const BMatrix& r, const std::vector<std::size_t>& pivots) {
    for (std::size_t i = 0; i < r.rows; ++i) {
        std::size_t fuehrend = 0;
        while (fuehrend < r.columns && r(i, fuehrend) == 0)
            ++fuehrend;
        if (i >= pivots.size()) {
            if (fuehrend != r.columns)
                return false;
            continue;
        }
        if (fuehrend != pivots[i] || (i > 0 && pivots[i] <= pivots[i - 1]))
            return false;
        for (std::size_t k = 0; k < r.rows; ++k)
            if (r(k, pivots[i]) != (k == i ? 1 : 0))
                return false;
    }
    return true;
}

struct Fall {
    SMatrix text;
    BMatrix a;
};

// 8 x 8 down to 1 x 1 and wide and tall shapes, every kind of entry, some rank-deficient.
std::vector<Fall> faelle() {
    std::vector<Fall> f;
    Zufall z{20261124};
    for (Art art : {Art::ganz, Art::dezimal, Art::gemischt})
        for (int i = 0; i < 40; ++i) {
            auto rows = z.ganz(1, 8), columns = z.ganz(1, 8);
            if (i % 4 == 0)
                columns = rows;
            SMatrix s = zufallsMatrix(z, rows, columns, art, i % 3 == 0);
            BLesung l = liesBMatrix("A", s);
            EXPECT_TRUE(l.ok) << l.notiz;
            f.push_back({s, l.matrix});
        }
    return f;
}

std::string zeigen(const SMatrix& s) {
    return s.string();
}

} // namespace

TEST(ExaktEigenschaften, ReduzierteFormIstReduziertUndZeilenaequivalent) {
    for (const auto& [s, a] : faelle()) {
        Umformung u = gaussJordan(a, a.columns);
        EXPECT_TRUE(istReduziert(u.reduziert, u.pivotspalten)) << zeigen(s);
        // Replaying the recorded operations on A gives the reduced form, and each operation is
        // invertible, so the two are row-equivalent and the page tells the truth.
        BMatrix nachgespielt = a;
        for (const auto& op : u.alleOperationen()) {
            if (op.art == Zeilenoperation::Art::skalieren) {
                EXPECT_NE(op.faktor, 0);
            }
            if (op.art == Zeilenoperation::Art::addieren) {
                EXPECT_NE(op.ziel, op.quelle);
            }
            anwenden(op, nachgespielt);
        }
        EXPECT_EQ(nachgespielt, u.reduziert) << zeigen(s);
        EXPECT_EQ(u.schritte.back().danach, u.reduziert);
    }
}

TEST(ExaktEigenschaften, KernBasisRangUndDefekt) {
    for (const auto& [s, a] : faelle()) {
        Umformung u = gaussJordan(a, a.columns);
        auto basis = kernbasis(u, a.columns);
        EXPECT_EQ(u.rang() + basis.size(), a.columns) << zeigen(s);
        for (const auto& v : basis)
            EXPECT_EQ(a * v, BVektor(a.rows, 0)) << zeigen(s);
        // Independent: the basis vectors as columns have full column rank.
        if (!basis.empty()) {
            EXPECT_EQ(gaussJordan(BMatrix::ausSpalten(a.columns, basis), basis.size()).rang(),
                      basis.size());
        }
        // The matrix with a dependent last row has rank below its row count.
        ExaktAntwort k = exaktKern("A", s);
        EXPECT_EQ(k.tableau.has_value(), !basis.empty());
        if (k.tableau) {
            EXPECT_EQ(k.tableau->columns, static_cast<std::int64_t>(basis.size()));
        }
    }
}

TEST(ExaktEigenschaften, LoesungenErfuellenDasSystem) {
    for (const auto& [s, a] : faelle()) {
        if (a.columns < 2)
            continue;
        const std::size_t n = a.columns - 1;
        ExaktAntwort l = exaktLGS("A", s);
        ASSERT_TRUE(l.ok);
        Umformung u = gaussJordan(a, n);
        bool loesbar = u.rang() == gaussJordan(a, a.columns).rang();
        EXPECT_EQ(l.tableau.has_value(), loesbar) << zeigen(s);
        if (!l.tableau)
            continue;
        BMatrix koeffizienten = a.linksTeil(n);
        BVektor b = a.spalte(n);
        // The tableau holds doubles; the exact particular solution is read off the reduced form.
        BVektor x(n);
        for (std::size_t i = 0; i < u.rang(); ++i)
            x[u.pivotspalten[i]] = u.reduziert(i, n);
        EXPECT_EQ(koeffizienten * x, b) << zeigen(s);
        EXPECT_EQ(l.tableau->columns, static_cast<std::int64_t>(1 + n - u.rang()));
        EXPECT_EQ(l.tableau->rows, static_cast<std::int64_t>(n));
    }
}

TEST(ExaktEigenschaften, InverseUndDeterminante) {
    int invertiert = 0, singulaer = 0;
    for (const auto& [s, a] : faelle()) {
        ExaktAntwort d = exaktDeterminante("A", s);
        ExaktAntwort i = exaktInverse("A", s);
        if (a.rows != a.columns) {
            EXPECT_FALSE(d.ok);
            EXPECT_FALSE(i.ok);
            continue;
        }
        ASSERT_TRUE(d.ok);
        Bruch det = bareiss(a);
        EXPECT_EQ(d.notiz, "det(A) = " + bruchText(det)) << zeigen(s);
        EXPECT_EQ(i.ok, det != 0) << zeigen(s);
        if (!i.ok) {
            ++singulaer;
            continue;
        }
        ++invertiert;
        // The inverse is the last matrix of the page.
        const BMatrix* inverse = nullptr;
        for (const auto& b : i.seite.bloecke)
            if (b.istMatrix)
                inverse = &b.matrix;
        ASSERT_NE(inverse, nullptr);
        EXPECT_EQ(a * *inverse, BMatrix::einheit(a.rows)) << zeigen(s);
        EXPECT_EQ(*inverse * a, BMatrix::einheit(a.rows)) << zeigen(s);
        EXPECT_EQ(i.tableau->grid.size(), a.rows * a.rows);
    }
    EXPECT_GT(invertiert, 10);
    EXPECT_GT(singulaer, 3);
}
