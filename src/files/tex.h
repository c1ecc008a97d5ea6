#pragma once
// TeX export: a listed matrix as a displaymath block with an array environment, its entries
// rounded to the given decimals (the command passes the slider's).

#include <string>

namespace tabulon {

// The TeX block of the listed matrix `name`; "" when the list holds no matrix under that name.
std::string tex(const std::string& name, int dezimalen);

// For each listed matrix in the order A ... Z: its name, ":\n", its block, "\n\n". "" for an
// empty list.
std::string texAlle(int dezimalen);

} // namespace tabulon
