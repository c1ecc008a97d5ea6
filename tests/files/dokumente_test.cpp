#include "dateitest.h"
#include "files/dokumente.h"

#include <sys/stat.h>

namespace tabulon {
namespace {

using DokumenteTest = DateiTest;

TEST_F(DokumenteTest, SchreibenErsetztGanzUndLaesstKeineResteZurueck) {
    EXPECT_EQ(schreiben(ordner, "X", "alt, und länger als das Neue"),
              std::make_pair(true, std::string()));
    EXPECT_EQ(schreiben(ordner, "X", "ä%\n"), std::make_pair(true, std::string()));
    EXPECT_EQ(inhalt("Matrix_X.txt"), "ä%\n"); // UTF-8 as given, no byte-order mark
    EXPECT_EQ(dateien(), std::vector<std::string>{"Matrix_X.txt"});
    EXPECT_EQ(lesen(ordner, "Matrix_X"), std::make_pair(true, std::string("ä%\n")));
    EXPECT_EQ(schreiben(ordner, "leer", ""), std::make_pair(true, std::string()));
    EXPECT_EQ(lesen(ordner, "Matrix_leer"), std::make_pair(true, std::string()));
}

TEST_F(DokumenteTest, FehlschlagNenntUrlUndFehlerUndLaesstAlteDateiStehen) {
    const auto fehlt = ordner / "gibt es nicht";
    EXPECT_EQ(schreiben(fehlt, "MatDats", "end%"),
              std::make_pair(false, "Failed writing to URL: " + dateiUrl(fehlt) +
                                        "/Matrix_MatDats.txt, Error: No such file or directory"));
    EXPECT_EQ(dateiUrl(fehlt), "file://" + ordner.string() + "/gibt%20es%20nicht");

    // A folder in the way of the target: the rename fails, nothing else is touched.
    std::filesystem::create_directory(ordner / "Matrix_Z.txt");
    lege("Matrix_Z.txt/drin", "alt");
    const auto [ok, meldung] = schreiben(ordner, "Z", "neu");
    EXPECT_FALSE(ok);
    EXPECT_EQ(meldung.rfind("Failed writing to URL: file://", 0), 0u) << meldung;
    EXPECT_EQ(inhalt("Matrix_Z.txt/drin"), "alt");
    EXPECT_EQ(dateien(), std::vector<std::string>{"Matrix_Z.txt"});
}

TEST_F(DokumenteTest, NamenDieDenOrdnerVerlassenKoennten) {
    std::filesystem::create_directory(ordner / "innen");
    const auto innen = ordner / "innen";
    for (const std::string name : {"", "../X", "a\\b", "..", "x\ny"}) {
        SCOPED_TRACE(name);
        EXPECT_FALSE(sichererDateiname(name));
        const auto [ok, meldung] = schreiben(innen, name, "böse");
        EXPECT_FALSE(ok);
        EXPECT_NE(meldung.find(", Error: Invalid argument"), std::string::npos) << meldung;
        EXPECT_FALSE(lesen(innen, name).first);
    }
    EXPECT_EQ(dateien(), std::vector<std::string>{"innen"});
    EXPECT_TRUE(std::filesystem::is_empty(innen));
    for (const std::string name : {"ab", "a.b", "ä"}) {
        EXPECT_TRUE(sichererDateiname(name)) << name;
    }
}

TEST_F(DokumenteTest, LesenVerweigertFehlendeOrdnerUndRohre) {
    const std::pair<bool, std::string> keine{false, keineDateiMeldung};
    EXPECT_EQ(lesen(ordner, "Matrix_MatDats"), keine);
    std::filesystem::create_directory(ordner / "Matrix_D.txt");
    EXPECT_EQ(lesen(ordner, "Matrix_D"), keine);
    // A named pipe must neither block nor be read.
    ASSERT_EQ(mkfifo((ordner / "Matrix_P.txt").c_str(), 0600), 0);
    EXPECT_EQ(lesen(ordner, "Matrix_P"), keine);
}

} // namespace
} // namespace tabulon
