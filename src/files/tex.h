#pragma once
// TeX export: a listed matrix as a displaymath block with an array environment, its entries
// rounded to the decimals of the slider.

#include <string>

namespace tabulon {

// The TeX block of the listed matrix `name`; "" when the list holds no matrix under that name.
std::string tex(const std::string& name);

// For each listed matrix in the order A ... Z: its name, ":\n", its block, "\n\n". "" for an
// empty list.
std::string texAlle();

} // namespace tabulon
