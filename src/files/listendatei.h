#pragma once
// The list file «Matrix_MatDats.txt»: the whole matrix list as one line of fields, each ended by
// "%": per matrix its name, rows, columns and the entries row by row, in the order A ... Z, and
// the closing field "end". There is no escaping, so the writer refuses a list it cannot write
// faithfully, and the reader checks the whole file before it changes anything: a damaged or
// hostile file is refused as a whole and leaves the list exactly as it was.
//
// Reading goes text -> characters (blanks dropped, string2ZeichenFeldL of the term language) ->
// fields (zeichenFeld2Stringfeld) -> records (stringfeldDecode).

#include "terms/parser.h"
#include "textmatrix/smatrix.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tabulon {

inline const std::string listenDateiName = "MatDats";

// name%rows%columns%e00%e01%...% for one matrix.
std::string m2String(const SMatrix& m, const std::string& name);
// Every listed matrix in the order of grossBuchstaben, then "end%".
std::string alleMatrizenCodieren();

// When some listed matrix cannot be written so that it reads back the same (an entry or name
// holding "%", or one that would merge with a field end), the note that refuses the save and
// names that matrix; nothing when the whole list can be saved.
std::optional<std::string> speicherHindernis();

// Joins characters into fields at every "%"; characters after the last "%" are dropped.
Zeichenfeld zeichenFeld2Stringfeld(const Zeichenfeld& quelle);

// The records of a field list, checked as a whole.
struct ListenInhalt {
    std::vector<std::pair<std::string, SMatrix>> matrizen; // in file order
    std::string fehler;                                    // why the file was refused
    bool ok = false;
};
ListenInhalt stringfeldPruefen(const Zeichenfeld& meinFeld);

// Enters the records into the list (replacing matrices of the same name, taking the names out of
// the free names) when the whole field list is sound: ("", true). Otherwise (the note that
// refuses the file, false), and the list is unchanged.
std::pair<std::string, bool> stringfeldDecode(const Zeichenfeld& meinFeld);
// The text of a list file: a leading byte-order mark is skipped, a text of more than
// groessteListendatei bytes is refused.
std::pair<std::string, bool> codestringDecodieren(std::string_view code);
inline constexpr std::size_t groessteListendatei = 16 * 1024 * 1024;

// A name that a file may bring into the list: not empty, nothing that could leave the documents
// folder when it becomes part of a file name, and none of the marker names "?" and "Fehler".
bool zulaessigerListenname(std::string_view name);

} // namespace tabulon
