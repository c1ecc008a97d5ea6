#pragma once
// The cofactor expansion along the first row, with every minor formed once. Determinant and
// inverse expand a matrix of doubles, the characteristic polynomial one of polynomials; the
// arithmetic is the same, so it is written once, over the entry type.
//
// The plain recursion expands a k x k minor along its first row: for the columns of the minor in
// ascending order, position j = 0, 1, ..., it forms glied(entry, minor without that row and
// column, j) and adds the terms one after the other to a sum that starts from zero; a 1 x 1
// minor is its entry. Every minor it meets consists of the lowest k rows of the matrix on some
// set of k columns, so it is fixed by its column set (a bit mask), and its own minors are the
// sets with one column less. Forming the sets by size therefore finds every smaller minor ready,
// and each minor is computed with exactly the operations, in exactly the order, the recursion
// spends on it each time it meets it: the same bits, for about a thousand terms on 8 x 8
// instead of 8!.

#include <algorithm>
#include <bit>
#include <cstdint>
#include <vector>

namespace tabulon {

// The next larger bit mask with as many bits set as `menge`: the lowest run of ones moves up by
// one place with its lowest one, and the rest of the run starts again at the bottom.
inline std::uint32_t naechsteMenge(std::uint32_t menge) {
    const std::uint32_t oben = menge + (menge & -menge);
    return (((oben ^ menge) >> 2) >> std::countr_zero(menge)) | oben;
}

// The minor of k rows on the columns of `menge`, from its minors of k - 1 rows in `tabelle`.
template <typename T, typename Eintrag, typename Glied>
T minor(std::int64_t k, std::uint32_t menge, Eintrag& eintrag, Glied& glied,
        const std::vector<T>& tabelle) {
    if (k == 1) {
        return eintrag(0, std::countr_zero(menge));
    }
    // The sign of a term depends only on whether its position is even or odd, so the columns
    // are taken two at a time and glied is told the parity as a constant it can fold.
    T summe{};
    for (std::uint32_t rest = menge; rest != 0;) {
        const int gerade = std::countr_zero(rest);
        summe = summe + glied(k - 1, gerade, 0, tabelle[menge & ~(1U << gerade)]);
        rest &= rest - 1;
        if (rest == 0) {
            break;
        }
        const int ungerade = std::countr_zero(rest);
        summe = summe + glied(k - 1, ungerade, 1, tabelle[menge & ~(1U << ungerade)]);
        rest &= rest - 1;
    }
    return summe;
}

// Fills `tabelle` with the minors of an expansion of `zeilen` rows, one per set of the first
// `breite` columns (index = bit mask); sets with more columns than there are rows are left as
// they are. Rows are counted from the bottom: the minors of k rows expand along row k - 1 so
// counted. eintrag(k, c) is the entry in that row k and column c, a minor of one row;
// glied(k, c, j, m) is the term of that entry with the minor m at a position of its set whose
// parity is j (0 even, 1 odd), which is all the sign depends on. T{} is the zero the sums start
// from.
//
// Only the minors of at least `ab` rows are formed; the smaller ones must already be in
// `tabelle` (from an expansion that shares those lowest rows).
template <typename T, typename Eintrag, typename Glied>
void minorenFuellen(std::vector<T>& tabelle, std::int64_t zeilen, std::int64_t breite,
                    Eintrag eintrag, Glied glied, std::int64_t ab = 1) {
    tabelle.resize(std::size_t{1} << breite);
    // Sets are walked by size, so that the loop over a set's columns runs the same number of
    // times for a whole group (a loop whose count changes from set to set is mispredicted at
    // every end); a set's minors are one size smaller and are all ready before the group starts.
    for (std::int64_t k = ab; k <= std::min(zeilen, breite); ++k) {
        const std::uint32_t ende = std::uint32_t{1} << breite;
        for (std::uint32_t menge = (std::uint32_t{1} << k) - 1; menge < ende;
             menge = naechsteMenge(menge)) {
            tabelle[menge] = minor(k, menge, eintrag, glied, tabelle);
        }
    }
}

} // namespace tabulon
