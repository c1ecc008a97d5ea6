#pragma once
// Integers in messages and fields are written in plain decimal, the same in every locale.

#include <charconv>
#include <cstdint>
#include <string>

namespace tabulon {

inline std::string ganzText(std::int64_t n) {
    char puffer[24];
    auto [ende, fehler] = std::to_chars(puffer, puffer + sizeof puffer, n);
    (void)fehler; // 24 characters hold every 64-bit integer
    return std::string(puffer, ende);
}

} // namespace tabulon
