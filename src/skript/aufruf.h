#pragma once
// The command line of tabulon-skript:
//
//     tabulon-skript [--dokumente DIR] [--zufall N] [SKRIPT]
//
// Options may come in any order before the script; "--" ends the options, so that a script
// whose name begins with "-" can be given; "-" alone stands for standard input.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tabulon::skript {

struct Aufruf {
    std::optional<std::string> dokumente; // --dokumente DIR
    std::optional<std::uint32_t> saat;    // --zufall N, 0 ... 4294967295
    std::optional<std::string> skript;    // nothing: standard input
    bool hilfe = false;                   // --hilfe or -h: print the usage and end
};

struct Aufrufergebnis {
    Aufruf aufruf;
    std::string fehler; // not empty when the command line is wrong
};

Aufrufergebnis zerlegeAufruf(const std::vector<std::string>& argumente);

// The usage text, several lines, ending with a line break.
std::string gebrauch();

} // namespace tabulon::skript
