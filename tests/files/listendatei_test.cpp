#include "dateitest.h"
#include "files/listendatei.h"

namespace tabulon {
namespace {

using ListendateiTest = DateiTest;

TEST_F(ListendateiTest, LiestAuchUngewoehnlicheAberHarmloseDateien) {
    // A byte-order mark, blanks everywhere, a hand-edited name, an empty entry, an entry that reads
    // "end", leading zeros in a count, a later record of the same name, and text after "end".
    liste("D", 1, {"9"});
    liste("B", 1, {"8"});
    const auto [meldung, ok] = codestringDecodieren(
        "\xEF\xBB\xBF a b %1%2%1 2%x%D%01%2%%end%D%1%1%-0. 5%end%alles danach%egal");
    EXPECT_TRUE(ok) << meldung;
    const auto& l = listenZustand();
    ASSERT_EQ(l.sMatrixListe.size(), 3u);
    EXPECT_EQ(l.sMatrixListe.at("ab").grid, (std::vector<std::string>{"12", "x"}));
    EXPECT_EQ(l.sMatrixListe.at("D").grid, std::vector<std::string>{"-0.5"});
    EXPECT_EQ(l.sMatrixListe.at("B").grid, std::vector<std::string>{"8"});
    EXPECT_EQ(l.smNamen.size(), 24u); // "ab" was never a free name
}

struct Kaputt {
    std::string datei;
    std::string grund;
};

class KaputteDatei : public DateiTest, public ::testing::WithParamInterface<Kaputt> {};

TEST_P(KaputteDatei, WirdGanzAbgelehntUndDieListeBleibt) {
    beispielListe();
    liste("B", 1, {"5"});
    const ListenZustand vorher = listenZustand();
    const auto [meldung, ok] = codestringDecodieren(GetParam().datei);
    EXPECT_FALSE(ok);
    EXPECT_EQ(meldung, "Die Datei 'Matrix_MatDats.txt' wurde nicht geladen: " + GetParam().grund +
                           " Die Liste ist unverändert.");
    EXPECT_EQ(listenZustand().sMatrixListe, vorher.sMatrixListe);
    EXPECT_EQ(listenZustand().smNamen, vorher.smNamen);
}

const std::string ohneEnd = "Das abschließende Feld 'end' fehlt.";
const std::string name = "Sie enthält einen leeren oder unzulässigen Matrixnamen.";

const std::string zeilen = "Die Zeilenzahl der Matrix A ist keine ganze Zahl von 1 bis 8.";

INSTANTIATE_TEST_SUITE_P(
    Listendatei, KaputteDatei,
    ::testing::Values(
        Kaputt{"end", ohneEnd},
        Kaputt{"A%2%2%1%2%3%end%", ohneEnd}, // "end" taken as the last entry
        Kaputt{"A%x%1%5%end%", zeilen}, Kaputt{"A%0%1%end%", zeilen},
        Kaputt{"A%9%1%1%2%3%4%5%6%7%8%9%end%", zeilen},
        Kaputt{"A%1%99999999999999999999%5%end%",
               "Die Spaltenzahl der Matrix A ist keine ganze Zahl von 1 bis 8."},
        Kaputt{"E%1%1%5%A%2%2%1%2%3%", "Der Matrix A fehlen Einträge."},
        Kaputt{"E%1%1%5%A%2%", "Die Matrix A ist unvollständig."}, Kaputt{"%1%1%5%end%", name},
        Kaputt{"../x%1%1%5%end%", name}, Kaputt{"?%1%1%5%end%", name},
        Kaputt{"Fehler%1%1%5%end%", name},
        Kaputt{std::string(groessteListendatei - 3, ' ') + "end%xyzw",
               "Sie ist zu groß für eine Matrixliste."},
        // The damage comes after a good record: the good one must not be entered either.
        Kaputt{"E%1%1%5%/%1%1%5%end%", name}));

TEST_F(ListendateiTest, SchreibenVerweigertWasNichtZurueckkaeme) {
    liste("A", 1, {"1"});
    liste("K", 1, {"1", "5%"});
    liste("M", 1, {"\xcc\x81"}); // a lone combining accent would merge with the "%" before it
    EXPECT_EQ(speicherHindernis(),
              "Die Matrix K kann nicht gespeichert werden: ein Eintrag enthält das Zeichen '%', "
              "das in der Datei die Felder trennt. Die Datei 'Matrix_MatDats.txt' wurde nicht "
              "verändert.");
    listenZustand().sMatrixListe.erase("K");
    EXPECT_EQ(speicherHindernis(), "Die Liste lässt sich nicht so speichern, dass sie unverändert "
                                   "wieder geladen werden kann. Die Datei 'Matrix_MatDats.txt' "
                                   "wurde nicht verändert.");
    // Inside an entry the accent is harmless, and blanks are simply dropped on reading.
    listenZustand().sMatrixListe["M"].grid[0] = "e\xcc\x81 1 2";
    EXPECT_EQ(speicherHindernis(), std::nullopt);
    const std::string text = alleMatrizenCodieren();
    listenZustandZuruecksetzen();
    EXPECT_TRUE(codestringDecodieren(text).second);
    EXPECT_EQ(listenZustand().sMatrixListe.at("M").grid[0], "e\xcc\x81"
                                                            "12");
}

} // namespace
} // namespace tabulon
