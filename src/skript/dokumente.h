#pragma once
// Where the driver writes its files when no --dokumente folder is given: the same folder the
// desktop program uses on Linux, as far as it can be found without Qt. $XDG_DOCUMENTS_DIR when it
// is set and not empty, else $HOME/Documents. (The desktop program also reads
// ~/.config/user-dirs.dirs; a user who changed the folder there and not in the environment gets
// $HOME/Documents from the driver.)

#include <filesystem>
#include <optional>

namespace tabulon::skript {

// Nothing when neither variable is set.
std::optional<std::filesystem::path> standardDokumentenOrdner();

// Creates the folder when it is missing; false when it does not exist afterwards.
bool ordnerAnlegen(const std::filesystem::path& ordner);

} // namespace tabulon::skript
