#include "dateitest.h"
#include "files/tex.h"

namespace tabulon {
namespace {

using TexTest = DateiTest;

TEST_F(TexTest, BloeckeAufsByte) {
    listenZustand().dezimalen = 2;
    liste("A", {{"1", "2"}, {"3", "4"}});
    EXPECT_EQ(tex("A"), "\\begin {displaymath}\n"
                        "A = \\left(\\begin {array} {cc}\n"
                        "1.00  & 2.00\\\\\n"
                        "3.00  & 4.00\\\\\n"
                        "\\end {array} \\right) \n"
                        "\\end {displaymath}\n");
    liste("S", {{"1/2", "0.5", "x y"}});
    EXPECT_NE(tex("S").find("\n1/2  & 0.50 & x y\\\\\n"), std::string::npos);
    liste("V", {{"1"}, {"-2"}, {"3"}});
    EXPECT_NE(tex("V").find("{c}\n1.00 \\\\\n-2.00 \\\\\n3.00 \\\\\n\\end"), std::string::npos);
    listenZustand().dezimalen = 0;
    liste("E", {{"7"}});
    EXPECT_NE(tex("E").find("E = \\left(\\begin {array} {c}\n7 \\\\\n"), std::string::npos);
    EXPECT_EQ(tex("B"), "");
    EXPECT_EQ(tex(""), "");
}

TEST_F(TexTest, AlleMatrizenInListenfolge) {
    EXPECT_EQ(texAlle(), "");
    liste("C", {{"5"}});
    liste("A", {{"1"}});
    EXPECT_EQ(texAlle(), "A:\n" + tex("A") + "\n\nC:\n" + tex("C") + "\n\n");
    EXPECT_EQ(vc.listeAllerMatrizen(), texAlle());
}

} // namespace
} // namespace tabulon
