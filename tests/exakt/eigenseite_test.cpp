// The page of exaktEigen: the eigenvectors it gives must satisfy A·v = λ·v, its multiplicities
// and its verdict on diagonalisability must be right.

#include <string>

#include <gtest/gtest.h>

#include "exakt/befehle.h"
#include "zufallsmatrix.h"

using namespace tabulon;
using namespace tabulon::exakttest;

TEST(ExaktEigen, EigenvektorenErfuellenDieGleichung) {
    EXPECT_FALSE(exaktEigen("Q", texte({{"1", "2"}})).ok);
    // Upper triangles with small integer diagonals, made dense by row additions with the
    // matching column subtractions (a similarity), so every eigenvalue is rational.
    Zufall z{4711};
    for (int fall = 0; fall < 30; ++fall) {
        const auto n = static_cast<std::size_t>(z.ganz(1, 6));
        BMatrix a(n, n);
        for (std::size_t r = 0; r < n; ++r)
            for (std::size_t c = r; c < n; ++c)
                a(r, c) = c == r ? z.ganz(-3, 3) : z.ganz(-2, 2) * (fall % 2);
        for (int k = 0; k < 6 && n > 1; ++k) {
            auto i = static_cast<std::size_t>(z.ganz(0, static_cast<int>(n) - 1));
            auto j = static_cast<std::size_t>(z.ganz(0, static_cast<int>(n) - 1));
            if (i == j)
                continue;
            Bruch f = z.ganz(-2, 2);
            for (std::size_t c = 0; c < n; ++c)
                a(i, c) += f * a(j, c);
            for (std::size_t r = 0; r < n; ++r)
                a(r, j) -= f * a(r, i);
        }
        SMatrix s(static_cast<std::int64_t>(n), static_cast<std::int64_t>(n));
        for (std::size_t k = 0; k < n * n; ++k)
            s.grid[k] = bruchText(a.eintraege[k]);
        ExaktAntwort e = exaktEigen("A", s);
        ASSERT_TRUE(e.ok);
        // Every "A·vk = (...) = λ·vk" line is checked again here against the matrix.
        std::size_t vektoren = 0;
        Bruch lambda;
        for (const auto& b : e.seite.bloecke) {
            const auto& st = b.zeile.stuecke;
            if (!st.empty() && st[0].text.starts_with("λ") && st.size() >= 2 && st[1].istBruch)
                lambda = st[1].wert;
            if (st.size() < 2 || !st[0].text.starts_with("   v"))
                continue;
            BVektor v;
            for (const auto& x : st)
                if (x.istBruch)
                    v.push_back(x.wert);
            ASSERT_EQ(v.size(), n);
            EXPECT_NE(v, BVektor(n, 0));
            EXPECT_EQ(a * v, lambda * v) << s.string();
            ++vektoren;
        }
        ASSERT_TRUE(e.tableau) << s.string();
        EXPECT_EQ(static_cast<std::size_t>(e.tableau->columns), vektoren);
    }
}
