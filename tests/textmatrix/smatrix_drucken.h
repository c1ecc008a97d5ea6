#pragma once
// Failure messages show a text matrix as its rows of quoted entries instead of raw bytes.

#include "textmatrix/smatrix.h"

#include <ostream>

namespace tabulon {

inline void PrintTo(const SMatrix& m, std::ostream* os) {
    *os << m.rows << "x" << m.columns << " {";
    for (std::size_t k = 0; k < m.grid.size(); ++k) {
        *os << (k == 0                                                            ? ""
                : (m.columns > 0 && k % static_cast<std::size_t>(m.columns) == 0) ? " | "
                                                                                  : ", ")
            << '"' << m.grid[k] << '"';
    }
    *os << "}";
}

} // namespace tabulon
