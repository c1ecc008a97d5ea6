#pragma once
// The help texts of the menu "Exakt", one topic per command, in the style of the help window's
// other topics.

#include <string_view>

namespace tabulon {

extern const std::string_view exaktGaussHT;
extern const std::string_view exaktLGSHT;
extern const std::string_view exaktKernHT;
extern const std::string_view exaktInverseHT;
extern const std::string_view exaktDeterminanteHT;
extern const std::string_view exaktEigenHT;
extern const std::string_view exaktTexAusgabeHT;

} // namespace tabulon
