#include "textmatrix/smatrix.h"

#include "textmatrix/liste.h"
#include "textmatrix/zahltext.h"

#include <algorithm>
#include <cassert>
#include <cstddef>

namespace tabulon {

namespace {

std::size_t stelle(std::int64_t row, std::int64_t column, std::int64_t columns) {
    return static_cast<std::size_t>(row * columns + column);
}

} // namespace

bool istLeerzeichen(const std::string& eintrag) {
    return eintrag.size() <= 8 &&
           std::all_of(eintrag.begin(), eintrag.end(), [](char c) { return c == ' '; });
}

SMatrix::SMatrix(std::int64_t rows, std::int64_t columns)
    : rows(std::max<std::int64_t>(rows, 0)), columns(std::max<std::int64_t>(columns, 0)),
      grid(static_cast<std::size_t>(this->rows * this->columns)) {}

std::string& SMatrix::operator()(std::int64_t row, std::int64_t column) {
    assert(indexIsValid(row, column));
    return grid[stelle(row, column, columns)];
}

const std::string& SMatrix::operator()(std::int64_t row, std::int64_t column) const {
    assert(indexIsValid(row, column));
    return grid[stelle(row, column, columns)];
}

bool SMatrix::indexIsValid(std::int64_t row, std::int64_t column) const {
    return row >= 0 && row < rows && column >= 0 && column < columns;
}

bool SMatrix::istLeer() const {
    return std::all_of(grid.begin(), grid.end(), istLeerzeichen);
}

void SMatrix::killLeerzeilen() {
    // A wholly empty matrix keeps its size, so the tableau's empty matrix stays recognisable.
    if (istLeer()) {
        return;
    }
    std::vector<std::int64_t> bleibende;
    for (std::int64_t i = 0; i < rows; ++i) {
        bool leer = true;
        for (std::int64_t j = 0; j < columns && leer; ++j) {
            leer = istLeerzeichen((*this)(i, j));
        }
        if (!leer) {
            bleibende.push_back(i);
        }
    }
    if (static_cast<std::int64_t>(bleibende.size()) == rows) {
        return;
    }
    SMatrix neu(static_cast<std::int64_t>(bleibende.size()), columns);
    for (std::int64_t k = 0; k < neu.rows; ++k) {
        for (std::int64_t j = 0; j < columns; ++j) {
            neu(k, j) = std::move((*this)(bleibende[static_cast<std::size_t>(k)], j));
        }
    }
    *this = std::move(neu);
}

void SMatrix::killLeerspalten() {
    // Removing empty columns is removing empty rows of the transpose.
    if (istLeer()) {
        return;
    }
    SMatrix t = transponiert();
    t.killLeerzeilen();
    if (t.rows != columns) {
        *this = t.transponiert();
    }
}

SMatrix SMatrix::transponiert() const {
    SMatrix t(columns, rows);
    for (std::int64_t i = 0; i < rows; ++i) {
        for (std::int64_t j = 0; j < columns; ++j) {
            t(j, i) = (*this)(i, j);
        }
    }
    return t;
}

SMatrix SMatrix::spalteEinfuegen(std::int64_t col) const {
    // The tableau has eight columns, so a ninth is never made.
    if (columns > 7 || col > columns || col < 0) {
        return *this;
    }
    SMatrix neu(rows, columns + 1);
    for (std::int64_t i = 0; i < rows; ++i) {
        for (std::int64_t j = 0; j < columns; ++j) {
            neu(i, j < col ? j : j + 1) = (*this)(i, j);
        }
    }
    return neu;
}

SMatrix SMatrix::zeileEinfuegen(std::int64_t ro) const {
    if (rows > 7 || ro > rows || ro < 0) {
        return *this;
    }
    SMatrix neu(rows + 1, columns);
    for (std::int64_t i = 0; i < rows; ++i) {
        for (std::int64_t j = 0; j < columns; ++j) {
            neu(i < ro ? i : i + 1, j) = (*this)(i, j);
        }
    }
    return neu;
}

std::pair<SMatrix, bool> SMatrix::spalteLoeschen(std::int64_t c) const {
    if (c < 0 || c >= columns || columns == 1) {
        return {*this, false};
    }
    SMatrix neu(rows, columns - 1);
    for (std::int64_t i = 0; i < rows; ++i) {
        for (std::int64_t j = 0; j < neu.columns; ++j) {
            neu(i, j) = (*this)(i, j < c ? j : j + 1);
        }
    }
    return {neu, true};
}

std::pair<SMatrix, bool> SMatrix::zeileLoeschen(std::int64_t r) const {
    if (r < 0 || r >= rows || rows == 1) {
        return {*this, false};
    }
    SMatrix neu(rows - 1, columns);
    for (std::int64_t i = 0; i < neu.rows; ++i) {
        for (std::int64_t j = 0; j < columns; ++j) {
            neu(i, j) = (*this)(i < r ? i : i + 1, j);
        }
    }
    return {neu, true};
}

SMatrix SMatrix::getrimmt() const {
    // The block always contains entry (0, 0); a matrix without entries trims to one empty cell.
    if (rows < 1 || columns < 1) {
        return SMatrix(1, 1);
    }
    std::int64_t maxZeile = 0;
    std::int64_t maxSpalte = 0;
    for (std::int64_t i = 0; i < rows; ++i) {
        for (std::int64_t j = 0; j < columns; ++j) {
            if (!istLeerzeichen((*this)(i, j))) {
                maxZeile = std::max(maxZeile, i);
                maxSpalte = std::max(maxSpalte, j);
            }
        }
    }
    SMatrix block(maxZeile + 1, maxSpalte + 1);
    for (std::int64_t i = 0; i < block.rows; ++i) {
        for (std::int64_t j = 0; j < block.columns; ++j) {
            block(i, j) = (*this)(i, j);
        }
    }
    return block;
}

SMatrix SMatrix::gerundet(int dezimalen) const {
    SMatrix ergebnis = *this;
    for (std::string& eintrag : ergebnis.grid) {
        if (const std::optional<double> zahl = text2Zahl(eintrag)) {
            eintrag = round(*zahl, dezimalen);
        }
    }
    return ergebnis;
}

std::string SMatrix::string() const {
    std::string text;
    for (std::int64_t i = 0; i < rows; ++i) {
        for (std::int64_t j = 0; j < columns; ++j) {
            text += (*this)(i, j);
            text += "     ";
        }
        text += lf;
    }
    return text;
}

} // namespace tabulon
