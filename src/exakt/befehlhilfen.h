#pragma once
// Small pieces the exact commands share.

#include <string>
#include <vector>

#include "exakt/befehle.h"
#include "exakt/bruch.h"

namespace tabulon {

std::string zahl(std::size_t n);
std::string groesse(const BMatrix& m); // "2 × 3"
ExaktAntwort abgelehnt(std::string notiz);
std::vector<std::string> variablen(std::size_t n); // x1, x2, ...

} // namespace tabulon
