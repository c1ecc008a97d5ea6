#pragma once
// The list file «Matrix_MatDats.txt»: the whole matrix list as one line of fields, each ended by
// "%": per matrix its name, rows, columns and the entries row by row, in the order A ... Z, and
// the closing field "end". There is no escaping, so the writer refuses a list it cannot write
// faithfully, and the reader checks the whole file before it changes anything: a damaged or
// hostile file is refused as a whole and leaves the list exactly as it was.
//
// Reading is one pass over the bytes: blanks are dropped, the rest is split into fields at every
// "%" as the records ask for them, so the memory it takes stays a small multiple of the file's
// size, which is bounded by groessteListendatei.

#include "textmatrix/smatrix.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace tabulon {

inline const std::string listenDateiName = "MatDats";

// The largest list file that is read or written. The largest list the tableau can build, 26
// matrices of 8 x 8, stays below it with entries of 600 bytes each; a number's standard text
// has at most 24.
inline constexpr std::size_t groessteListendatei = 1024 * 1024;

// name%rows%columns%e00%e01%...% for one matrix.
std::string m2String(const SMatrix& m, const std::string& name);
// Every listed matrix in the order of grossBuchstaben, then "end%".
std::string alleMatrizenCodieren();
// The length of alleMatrizenCodieren(), computed without building the text.
std::size_t codierteLaenge();

// When the list cannot be written so that it loads back the same (an entry holding "%", a file
// longer than groessteListendatei, or anything else that would not read back), the note that
// refuses the save; nothing when the whole list can be saved.
std::optional<std::string> speicherHindernis();

// The records of a file text, checked as a whole.
struct ListenInhalt {
    std::map<std::string, SMatrix> matrizen; // a later record of the same name replaces
    std::string fehler;                      // why the file was refused
    bool ok = false;
};
// Checks a text whose blanks are already dropped.
ListenInhalt stringfeldPruefen(std::string_view ohneLeerzeichen);

// The text of a list file: a text of more than groessteListendatei bytes is refused, a leading
// byte-order mark skipped, blanks dropped, and the records entered into the list (replacing
// matrices of the same name, taking the names out of the free names) when the whole text is
// sound: ("", true). Otherwise (the note that refuses the file, false), and the list is
// unchanged.
std::pair<std::string, bool> codestringDecodieren(std::string_view code);

// A name that a file may bring into the list: not empty, nothing that could leave the documents
// folder when it becomes part of a file name, and none of the marker names "?" and "Fehler".
bool zulaessigerListenname(std::string_view name);

} // namespace tabulon
