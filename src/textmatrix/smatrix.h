#pragma once
// SMatrix, the text matrix. Everything the user sees, lists or saves is an SMatrix: entries stay
// exactly as typed and become numbers only when a computation needs them (numeric/matrix.h holds
// the conversions). The empty-entry rule and the list state live beside it in this folder.

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace tabulon {

// An entry counts as empty when it is "" or 1 to 8 blanks (the set leerzeichen).
bool istLeerzeichen(const std::string& eintrag);

struct SMatrix {
    std::int64_t rows = 0;
    std::int64_t columns = 0;
    std::vector<std::string> grid; // row-major, rows * columns entries

    SMatrix() = default;
    SMatrix(std::int64_t rows, std::int64_t columns); // all entries ""

    std::string& operator()(std::int64_t row, std::int64_t column);
    const std::string& operator()(std::int64_t row, std::int64_t column) const;
    bool indexIsValid(std::int64_t row, std::int64_t column) const;

    bool istQuadratisch() const { return rows == columns; }
    bool istLeer() const;

    void killLeerzeilen();
    void killLeerspalten();

    SMatrix transponiert() const;
    SMatrix spalteEinfuegen(std::int64_t col) const;
    SMatrix zeileEinfuegen(std::int64_t ro) const;
    std::pair<SMatrix, bool> spalteLoeschen(std::int64_t c) const;
    std::pair<SMatrix, bool> zeileLoeschen(std::int64_t r) const;
    SMatrix getrimmt() const;
    SMatrix gerundet(int dezimalen) const; // numeric entries as round(x, dezimalen)

    std::string string() const; // each entry followed by five blanks, each row by lf

    // Stores this matrix under `name` in the list: (message for the note line, stored?).
    std::pair<std::string, bool> einlistenAls(const std::string& name) const;
    // True when the list holds no matrix under `name` and `name` is one of "A" ... "Z".
    static bool freierMatrixname(const std::string& name);

    bool operator==(const SMatrix&) const = default;
};

} // namespace tabulon
