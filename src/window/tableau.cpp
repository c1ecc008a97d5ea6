#include "window/tableau.h"

#include "textmatrix/zahltext.h"

#include <algorithm>
#include <cstddef>

namespace tabulon {

namespace {

// rowmax and columnmax always name a row and a column of the 8 x 8 tableau, even when a matrix
// of an unexpected size (none or more than 8 rows, say from a foreign list file) is embedded.
int sichtbarerIndex(std::int64_t anzahl) {
    return static_cast<int>(std::clamp<std::int64_t>(anzahl - 1, 0, 7));
}

} // namespace

void refreshMatrixView() {
    auto& t = tableauZustand();
    for (int i = 0; i < 8; ++i) {
        for (int j = 0; j < 8; ++j) {
            const bool sichtbar = i <= t.rowmax && j <= t.columnmax;
            t.fensterZustand[static_cast<std::size_t>(i * 10 + j)] = !sichtbar;
            if (!sichtbar) {
                t.strEinAusMatrix(i, j) = "";
            }
        }
    }
}

void rowplus() {
    auto& t = tableauZustand();
    if (t.rowmax < 7) {
        ++t.rowmax;
    }
    refreshMatrixView();
}

void rowminus() {
    auto& t = tableauZustand();
    if (t.rowmax > 0) {
        --t.rowmax;
    }
    refreshMatrixView();
}

void columnplus() {
    auto& t = tableauZustand();
    if (t.columnmax < 7) {
        ++t.columnmax;
    }
    refreshMatrixView();
}

void columninus() {
    auto& t = tableauZustand();
    if (t.columnmax > 0) {
        --t.columnmax;
    }
    refreshMatrixView();
}

void clearEingabematix() {
    auto& t = tableauZustand();
    for (int i = 0; i < 8; ++i) {
        for (int j = 0; j < 8; ++j) {
            t.strEinAusMatrix(i, j) = "";
        }
    }
}

void einbettenInEinAusMatrix(const SMatrix& m) {
    auto& t = tableauZustand();
    t.rowmax = sichtbarerIndex(m.rows);
    t.columnmax = sichtbarerIndex(m.columns);
    refreshMatrixView();
    const std::int64_t zeilen = std::min<std::int64_t>(m.rows, 8);
    const std::int64_t spalten = std::min<std::int64_t>(m.columns, 8);
    for (std::int64_t i = 0; i < zeilen; ++i) {
        for (std::int64_t j = 0; j < spalten; ++j) {
            t.strEinAusMatrix(i, j) = m(i, j);
        }
    }
}

void einbettenInEinAusMatrix(const Matrix& m) {
    auto& t = tableauZustand();
    t.rowmax = sichtbarerIndex(m.rows);
    t.columnmax = sichtbarerIndex(m.columns);
    const std::int64_t zeilen = std::min<std::int64_t>(m.rows, 8);
    const std::int64_t spalten = std::min<std::int64_t>(m.columns, 8);
    for (std::int64_t i = 0; i < zeilen; ++i) {
        for (std::int64_t j = 0; j < spalten; ++j) {
            zahlTextIn(t.strEinAusMatrix(i, j), m(i, j));
        }
    }
}

} // namespace tabulon
