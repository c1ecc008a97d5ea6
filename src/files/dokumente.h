#pragma once
// Files and exports: the list file (listendatei.h), the TeX export (tex.h) and the two helpers
// below that every file of the system goes through. All files lie directly in the user's
// documents folder, which the window asks of its platform and hands in here, so these functions
// never need the window. Names are checked before anything touches the disk: no file name this
// system writes or reads can leave the documents folder.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace tabulon {

// True when "Matrix_" + name + ".txt" names a file directly inside the documents folder: the
// name is not empty and holds no "/", no "\", no ".." and no ASCII control character.
bool sichererDateiname(std::string_view name);

// Writes s as "Matrix_" + name + ".txt" into the folder, replacing an earlier file of that name.
// The folder is created when missing. The text goes to a temporary file in the same folder,
// which is flushed to disk and then renamed over the target, so a failed write leaves the old
// file as it was and never half a new one; the new file keeps the permissions of the old one.
// After a successful write, temporaries that an interrupted save to the same name left behind
// are removed.
// (true, "") on success, and also when the folder is unknown (then nothing is written);
// (false, "Failed writing to URL: <file URL>, Error: <C library error text>") on failure,
// also when the folder cannot be created.
std::pair<bool, std::string> schreiben(const std::optional<std::filesystem::path>& ordner,
                                       const std::string& name, const std::string& s);

// Reads fileName + ".txt" from the folder, but never more than grenze + 1 bytes: a longer file
// gives its first grenze + 1 bytes, which tells the caller that it is too big. (true, text) on
// success; (false, "Keine Datei mit gespeicherten Matrizen im Dokumenten-Ordner gefunden.") when
// the file is missing, no regular file, or unreadable, also when the folder does not exist or
// cannot be entered; (false, "") when the folder is unknown.
std::pair<bool, std::string> lesen(const std::optional<std::filesystem::path>& ordner,
                                   const std::string& fileName, std::size_t grenze);

inline const std::string keineDateiMeldung =
    "Keine Datei mit gespeicherten Matrizen im Dokumenten-Ordner gefunden.";

// The file URL as the write-failure message shows it: "file://" followed by the absolute path,
// every byte outside A-Z a-z 0-9 - . _ ~ / written as %XX.
std::string dateiUrl(const std::filesystem::path& pfad);

} // namespace tabulon
