#include "textmatrix/liste.h"

#include <gtest/gtest.h>
#include <string>

namespace tabulon {
namespace {

using Antwort = std::pair<std::string, bool>;

class Liste : public ::testing::Test {
protected:
    void SetUp() override { listenZustandZuruecksetzen(); }
    void TearDown() override { listenZustandZuruecksetzen(); }

    static SMatrix eins(const char* wert) {
        SMatrix m(1, 1);
        m(0, 0) = wert;
        return m;
    }
    static void fuelle(int anzahl) {
        for (int i = 0; i < anzahl; ++i) {
            ASSERT_TRUE(eins("1").einlistenAls(std::string(1, static_cast<char>('A' + i))).second);
        }
    }
};

// The messages themselves are pinned by the list transcripts; here: what the list holds after
// each answer.
TEST_F(Liste, EinlistenAendertDieListeNurBeiErfolg) {
    SMatrix leer(3, 3);
    leer(1, 1) = "        ";
    listenZustand().ueberschreiben = true;
    EXPECT_FALSE(leer.einlistenAls("A").second);
    EXPECT_TRUE(listenZustand().sMatrixListe.empty());
    listenZustand().ueberschreiben = false;

    ASSERT_TRUE(eins("1").einlistenAls("B").second);
    EXPECT_EQ(eins("2").einlistenAls("B"),
              Antwort("Der Name 'B' ist als Matrixname nicht mehr verfügbar.", false));
    EXPECT_EQ(listenZustand().sMatrixListe.at("B"), eins("1"));
    listenZustand().ueberschreiben = true;
    EXPECT_TRUE(eins("2").einlistenAls("B").second);
    EXPECT_EQ(listenZustand().sMatrixListe.at("B"), eins("2"));

    // Empty rows go before the gaps are filled: the middle row disappears, the gap in the last
    // row becomes "0.0", nine blanks are no gap.
    SMatrix m(3, 3);
    m.grid = {"1", "2", "         ", "", "", " ", "3", "   ", "9"};
    ASSERT_TRUE(m.einlistenAls("C").second);
    SMatrix erwartet(2, 3);
    erwartet.grid = {"1", "2", "         ", "3", "0.0", "9"};
    EXPECT_EQ(listenZustand().sMatrixListe.at("C"), erwartet);
    EXPECT_EQ(naechsterFreierName(), "A");
}

TEST_F(Liste, AuslistenUndFreieNamen) {
    EXPECT_EQ(auslisten("Q"), Antwort("Es gibt in der Liste keine Matrix namens 'Q'  .", false));
    fuelle(2);
    EXPECT_EQ(naechsterFreierName(), "C");
    EXPECT_EQ(auslisten("A"), Antwort("ok", true));
    EXPECT_TRUE(SMatrix::freierMatrixname("A"));
    EXPECT_EQ(naechsterFreierName(), "A");
    for (const char* name : {"?", "a", "AB", ""}) {
        EXPECT_FALSE(SMatrix::freierMatrixname(name)) << name;
    }
    listenZustandZuruecksetzen();
    fuelle(26);
    EXPECT_EQ(naechsterFreierName(), "?");
    EXPECT_FALSE(eins("1").einlistenAls("?").second);
}

TEST_F(Liste, AktuelleListeInEinerZweiUndDreiSpalten) {
    for (const char* name : {"Z", "A", "C"}) {
        ASSERT_TRUE(eins("1").einlistenAls(name).second);
    }
    EXPECT_EQ(aktuelleListe(), "A\nC\nZ\n");
    const struct {
        int anzahl;
        const char* text;
    } faelle[] = {
        {0, ""},
        {10, "A\nB\nC\nD\nE\nF\nG\nH\nI\nJ\n"},
        {11, "A , B\nC , D\nE , F\nG , H\nI , J\nK"},
        {20, "A , B\nC , D\nE , F\nG , H\nI , J\nK , L\nM , N\nO , P\nQ , R\nS , T\n"},
        {21, "ABC\nDEF\nGHI\nJKL\nMNO\nPQR\nSTU\n"},
        {26, "ABC\nDEF\nGHI\nJKL\nMNO\nPQR\nSTU\nVWX\nYZ"},
    };
    for (const auto& fall : faelle) {
        listenZustandZuruecksetzen();
        fuelle(fall.anzahl);
        EXPECT_EQ(aktuelleListe(), fall.text) << fall.anzahl << " names";
    }
}

} // namespace
} // namespace tabulon
