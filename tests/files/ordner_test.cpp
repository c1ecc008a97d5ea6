// Where the documents folder is: the environment, then the user-dirs setting, then ~/Documents.
#include "files/ordner.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace tabulon {
namespace {

TEST(Dokumente, UserDirsSetting) {
    const std::filesystem::path home = "/home/anna";
    const auto aus = [&home](const char* text) { return dokumenteAusUserDirs(text, home); };
    EXPECT_EQ(
        aus("# xdg\nXDG_DESKTOP_DIR=\"$HOME/Desktop\"\nXDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\n"),
        std::filesystem::path("/home/anna/Dokumente"));
    EXPECT_EQ(aus("  XDG_DOCUMENTS_DIR = \"/daten/Meine\\ Texte\"\r\n"),
              std::filesystem::path("/daten/Meine Texte"));
    // The last line wins; the home folder itself means "no such folder".
    EXPECT_EQ(aus("XDG_DOCUMENTS_DIR=\"/a\"\nXDG_DOCUMENTS_DIR=\"$HOME/b\""),
              std::filesystem::path("/home/anna/b"));
    EXPECT_EQ(aus("XDG_DOCUMENTS_DIR=\"$HOME/\""), std::nullopt);
    EXPECT_EQ(aus("XDG_DOCUMENTS_DIR=\"/home/anna\""), std::nullopt);
    // Neither relative paths nor unquoted values nor other keys are taken.
    EXPECT_EQ(aus("XDG_DOCUMENTS_DIR=\"Dokumente\""), std::nullopt);
    EXPECT_EQ(aus("XDG_DOCUMENTS_DIR=/x"), std::nullopt);
    EXPECT_EQ(aus("XDG_DOCUMENTS_DIRS=\"/x\"\n#XDG_DOCUMENTS_DIR=\"/y\""), std::nullopt);
    EXPECT_EQ(aus(""), std::nullopt);
}

// Changes the environment for good; no other test of this program reads it.
TEST(Dokumente, ReihenfolgeDerQuellen) {
    std::string muster = (std::filesystem::temp_directory_path() / "tabulon-XXXXXX").string();
    const std::filesystem::path home = mkdtemp(muster.data());
    setenv("HOME", home.c_str(), 1);
    unsetenv("XDG_CONFIG_HOME");
    setenv("XDG_DOCUMENTS_DIR", "", 1);
    EXPECT_EQ(standardDokumentenOrdner(), home / "Documents");
    std::filesystem::create_directory(home / ".config");
    std::ofstream(home / ".config" / "user-dirs.dirs") << "XDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\n";
    EXPECT_EQ(standardDokumentenOrdner(), home / "Dokumente");
    setenv("XDG_CONFIG_HOME", (home / "leer").c_str(), 1);
    EXPECT_EQ(standardDokumentenOrdner(), home / "Documents");
    unsetenv("XDG_CONFIG_HOME");
    setenv("XDG_DOCUMENTS_DIR", "/x/y", 1);
    EXPECT_EQ(standardDokumentenOrdner(), std::filesystem::path("/x/y"));
    unsetenv("XDG_DOCUMENTS_DIR");

    // Named only, never created here; the writer creates it.
    EXPECT_FALSE(std::filesystem::exists(home / "Dokumente"));
    EXPECT_EQ(ordnerAnlegen(home / "Dokumente" / "tief"), 0);
    EXPECT_TRUE(std::filesystem::is_directory(home / "Dokumente" / "tief"));
    EXPECT_EQ(ordnerAnlegen(home / ".config" / "user-dirs.dirs"), ENOTDIR);
    std::filesystem::remove_all(home);
}

} // namespace
} // namespace tabulon
