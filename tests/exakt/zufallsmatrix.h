#pragma once
// Random text matrices for the exact tests and benchmarks, made again from the same seed:
// integers -9 ... 8, six-digit decimals, and mixes with fractions and blank entries. Some are
// made rank-deficient on purpose, since a full-rank random matrix never exercises a free column.

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

#include "textmatrix/smatrix.h"

namespace tabulon::exakttest {

struct Zufall {
    std::uint64_t zustand;
    std::uint64_t naechste() {
        zustand = zustand * 6364136223846793005u + 1442695040888963407u;
        return zustand >> 33;
    }
    int ganz(int von, int bis) { return von + static_cast<int>(naechste() % (bis - von + 1)); }
};

enum class Art { ganz, dezimal, gemischt };

inline std::string eintrag(Zufall& z, Art art) {
    switch (art) {
    case Art::ganz:
        return std::to_string(z.ganz(-9, 8));
    case Art::dezimal: {
        // Six significant digits with the point somewhere inside: "-123.456", "0.00123456".
        std::string ziffern = std::to_string(z.ganz(100000, 999999));
        int punkt = z.ganz(0, 6);
        std::string s = (z.ganz(0, 1) ? "-" : "");
        if (punkt == 0)
            return s + "0.00" + ziffern;
        return s + ziffern.substr(0, punkt) + "." + ziffern.substr(punkt);
    }
    case Art::gemischt:
        switch (z.ganz(0, 4)) {
        case 0:
            return "";
        case 1:
            return std::to_string(z.ganz(-5, 5)) + "/" + std::to_string(z.ganz(1, 7));
        case 2:
            return std::to_string(z.ganz(-20, 20)) + "e-1";
        default:
            return std::to_string(z.ganz(-3, 3));
        }
    }
    return "0";
}

// A rows x columns matrix; with `abhaengig` its last row is the sum of the first two (when there
// are at least three rows), so its rank is below the row count.
inline SMatrix zufallsMatrix(Zufall& z, std::int64_t rows, std::int64_t columns, Art art,
                             bool abhaengig = false) {
    SMatrix s(rows, columns);
    for (auto& e : s.grid)
        e = eintrag(z, art);
    if (abhaengig && rows >= 3 && art == Art::ganz)
        for (std::int64_t c = 0; c < columns; ++c)
            s(rows - 1, c) = std::to_string(std::stoi(s(0, c)) + std::stoi(s(1, c)));
    return s;
}

// A text matrix written row by row: texte({{"1", "2"}, {"3", "4"}}).
inline SMatrix texte(std::initializer_list<std::vector<std::string>> zeilen) {
    SMatrix s(static_cast<std::int64_t>(zeilen.size()),
              static_cast<std::int64_t>(zeilen.begin()->size()));
    std::int64_t r = 0;
    for (const auto& zeile : zeilen) {
        for (std::size_t c = 0; c < zeile.size(); ++c)
            s(r, static_cast<std::int64_t>(c)) = zeile[c];
        ++r;
    }
    return s;
}

} // namespace tabulon::exakttest
