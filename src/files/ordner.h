#pragma once
// Where the documents folder is. The desktop program and the script driver ask the same function,
// so both write to and read from the same folder.

#include <filesystem>
#include <optional>
#include <string_view>

namespace tabulon {

// The user's documents folder as the desktop's conventions name it, in this order:
// 1. $XDG_DOCUMENTS_DIR when set and not empty;
// 2. the line XDG_DOCUMENTS_DIR="..." of the user-dirs setting
//    ($XDG_CONFIG_HOME/user-dirs.dirs, else ~/.config/user-dirs.dirs), a path that begins with
//    $HOME/ or /; a setting that names the home folder itself means "none" and is passed over;
// 3. ~/Documents.
// The home folder is $HOME, else the one the user database names. Nothing when no home folder
// can be found. The folder is only named here, not created: the writer creates it.
std::optional<std::filesystem::path> standardDokumentenOrdner();

// The documents folder of one user-dirs setting text, or nothing when the text does not set it
// (or sets it to the home folder). `home` replaces $HOME.
std::optional<std::filesystem::path> dokumenteAusUserDirs(std::string_view text,
                                                          const std::filesystem::path& home);

// Creates the folder and its parents when missing. 0 when it is a folder afterwards, else the
// error number of the failure (ENOTDIR when a file is in the way).
int ordnerAnlegen(const std::filesystem::path& ordner);

} // namespace tabulon
