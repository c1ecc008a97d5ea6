#pragma once
// The help window's topic for the practice of row operations, in the style of its other topics.

#include <string_view>

namespace tabulon {

extern const std::string_view uebungHT;

} // namespace tabulon
