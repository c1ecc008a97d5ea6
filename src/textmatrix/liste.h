#pragma once
// The process-wide matrix list with its names and settings. All of it is touched only from the
// user-interface thread; listenZustand() creates it with its start values on first use, and
// allesZuruecksetzen() (app/zustand.h) assigns them again.

#include "textmatrix/smatrix.h"

#include <array>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <utility>

namespace tabulon {

struct ListenZustand {
    std::map<std::string, SMatrix> sMatrixListe; // name -> matrix
    std::set<std::string> smNamen;               // the letters not in use, "A" ... "Z" at start
    int dezimalen = 6;                           // digits after the point in rounded output
    bool ueberschreiben = false;                 // storing replaces a matrix of the same name
    std::int64_t zaehler = 0;                    // n of the n-fold term command

    ListenZustand();
};

ListenZustand& listenZustand();

// The fixed tables.
inline const std::string lf = "\n";
const std::set<std::string>& alphabetGross();         // "A" ... "Z"
const std::array<std::string, 27>& grossBuchstaben(); // "A" ... "Z", then "?"

bool istMatrixName(const std::string& name);
std::pair<std::string, bool> auslisten(const std::string& name);
std::string naechsterFreierName();
std::string aktuelleListe();

} // namespace tabulon
