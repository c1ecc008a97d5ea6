#pragma once
// UTF-8 text as the user sees it: characters made of a code point and the marks that combine
// with it, and their upper-case forms. Only the tokenizer needs this.

#include <string>
#include <string_view>
#include <vector>

namespace tabulon {

// The user-perceived characters of `text`, as views into it, in order. A base code point takes
// every following combining mark, variation selector and joiner; "\r\n", a pair of regional
// indicators and an emoji sequence joined by U+200D are one character each. A byte that is not
// part of well-formed UTF-8 is a character of its own.
std::vector<std::string_view> zeichenZerlegen(std::string_view text);

// The full upper-case mapping of one character, code point by code point: "ä" -> "Ä",
// "ß" -> "SS", "ı" -> "I". Covers the letters that keyboards type (Latin-1, Latin Extended-A and
// Additional, Greek, Cyrillic, Armenian, fullwidth Latin) and the Latin ligatures; every other
// code point, and every malformed byte, stays as it is.
std::string grossGeschrieben(std::string_view zeichen);

} // namespace tabulon
