#pragma once
// The page an exact command writes: a sequence of blocks, each a line of German text (in which
// fractions stay numbers, so that TeX can set them as \frac) or a matrix of fractions with an
// optional bar before its last columns. The same page becomes the plain text of the protocol
// page and the TeX text of the export, so the two never tell different stories.

#include <string>
#include <string_view>
#include <vector>

#include "exakt/bruch.h"

namespace tabulon {

// A piece of a line: text, or a fraction (when `istBruch`).
struct Stueck {
    bool istBruch = false;
    std::string text;
    Bruch wert;
    bool operator==(const Stueck&) const = default;
};

struct Zeile {
    std::vector<Stueck> stuecke;

    Zeile() = default;
    Zeile(std::string_view t) { *this << t; }
    Zeile(const std::string& t) { *this << t; }
    Zeile(const char* t) { *this << t; }
    Zeile& operator<<(std::string_view t);
    Zeile& operator<<(const char* t) { return *this << std::string_view(t); }
    Zeile& operator<<(const std::string& t) { return *this << std::string_view(t); }
    Zeile& operator<<(const Bruch& b);
    Zeile& operator<<(const BVektor& v); // "(a, b, c)"
    Zeile& operator<<(const Zeile& z);

    std::string text() const;
    bool operator==(const Zeile&) const = default;
};

struct Block {
    bool istMatrix = false;
    Zeile zeile;
    BMatrix matrix;
    std::size_t balken = 0; // columns behind the bar; 0: no bar
    bool operator==(const Block&) const = default;
};

struct Seite {
    std::vector<Block> bloecke;

    Seite& zeile(Zeile z);
    Seite& leer() { return zeile(Zeile()); }
    Seite& matrix(const BMatrix& m, std::size_t balken = 0);

    bool istLeer() const { return bloecke.empty(); }
    // Lines joined by "\n", matrices indented by two blanks, columns right-aligned and parted by
    // two blanks, the bar as " | ". Ends with a line break.
    std::string text() const;
    // The page body in TeX (amsmath): each line a paragraph, each matrix a displayed array in
    // round brackets whose column format carries the bar.
    std::string tex() const;

    bool operator==(const Seite&) const = default;
};

// The page as a complete TeX document (article, amsmath, UTF-8), ready to be compiled.
std::string texDokument(const Seite& seite);

// A fraction in TeX math: "3", "-\frac{5}{3}".
std::string bruchTex(const Bruch& b);

// Text of a line set for TeX's text mode: the special characters escaped, the symbols of the
// pages (arrows, minus, dot, root, Greek letters, ...) set in math.
std::string texText(std::string_view text);

} // namespace tabulon
