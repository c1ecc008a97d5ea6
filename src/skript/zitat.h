#pragma once
// Quoted texts in scripts and in the driver's output. A script writes a text between double
// quotes with the escapes \" \\ \n \t; the output writes every text the same way and shows any
// other control character (bytes 0x00-0x1F and 0x7F) as \xHH, so that one event is always one
// line. All other bytes, UTF-8 sequences included, pass through unchanged.

#include <string>
#include <string_view>

namespace tabulon::skript {

// The text in double quotes, escaped for one output line.
std::string zitiert(std::string_view text);

} // namespace tabulon::skript
