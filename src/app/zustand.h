#pragma once
// The whole process back to its start values: the matrix list, the term language, the tableau,
// the protocol pages and the pages of the exact commands. Every owner keeps its state in one
// struct behind an accessor (listenZustand(), termZustand(), tableauZustand(), protokollZustand(),
// exaktZustand()); a fresh default-constructed struct is the start value, so this function only
// assigns one to each. Tests, benchmarks and fuzz targets call it before every case, so no case
// sees what an earlier one left behind.

namespace tabulon {

void allesZuruecksetzen();

} // namespace tabulon
