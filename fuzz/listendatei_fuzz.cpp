// Arbitrary bytes as the list file, read into a list that already holds a few matrices. Beyond
// "no crash, no sanitizer report" it checks what loading promises: a refused file leaves the list
// exactly as it was; an accepted one only adds or replaces sound matrices under sound names and
// keeps the free names in step; and what was loaded saves and loads back unchanged.

#include "app/zustand.h"
#include "files/listendatei.h"
#include "files/tex.h"
#include "textmatrix/liste.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string_view>

namespace {

using namespace tabulon;

void pruefe(bool bedingung, const char* was) {
    if (!bedingung) {
        std::fprintf(stderr, "Verletzt: %s\n", was);
        std::abort();
    }
}

void startListe() {
    allesZuruecksetzen();
    ListenZustand& l = listenZustand();
    SMatrix a(2, 2);
    a.grid = {"1", "2", "3", "4"};
    SMatrix b(1, 3);
    b.grid = {"1/2", "-0.5", "x"};
    SMatrix z(3, 1);
    z.grid = {"1e3", "0.0", "nan"};
    l.sMatrixListe = {{"A", a}, {"B", b}, {"Z", z}};
    for (const char* name : {"A", "B", "Z"}) {
        l.smNamen.erase(name);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse) {
    startListe();
    const ListenZustand vorher = listenZustand();
    const std::string_view code(reinterpret_cast<const char*>(daten), groesse);
    const auto [meldung, ok] = codestringDecodieren(code);
    const ListenZustand& l = listenZustand();

    if (!ok) {
        pruefe(!meldung.empty(), "a refused file gives a note");
        pruefe(l.sMatrixListe == vorher.sMatrixListe, "a refused file leaves the list as it was");
        pruefe(l.smNamen == vorher.smNamen, "a refused file leaves the free names as they were");
        return 0;
    }

    for (const auto& [name, m] : vorher.sMatrixListe) {
        pruefe(l.sMatrixListe.count(name) == 1, "loading never removes a matrix");
    }
    for (const auto& [name, m] : l.sMatrixListe) {
        pruefe(zulaessigerListenname(name), "only sound names enter the list");
        pruefe(m.rows >= 1 && m.rows <= 8 && m.columns >= 1 && m.columns <= 8,
               "loaded sizes fit the tableau");
        pruefe(m.grid.size() == static_cast<std::size_t>(m.rows * m.columns),
               "every loaded matrix holds rows x columns entries");
        pruefe(l.smNamen.count(name) == 0, "a listed name is not free");
        pruefe(!tex(name, l.dezimalen).empty(), "every listed matrix has a TeX block");
    }
    for (const std::string& x : alphabetGross()) {
        pruefe((l.smNamen.count(x) == 1) != (l.sMatrixListe.count(x) == 1),
               "each letter is either free or listed");
    }
    pruefe(l.smNamen.size() <= 26, "only letters are free names");

    if (!speicherHindernis()) {
        const std::string text = alleMatrizenCodieren();
        std::map<std::string, SMatrix> gespeichert;
        for (const std::string& x : grossBuchstaben()) {
            if (l.sMatrixListe.count(x) != 0) {
                gespeichert[x] = l.sMatrixListe.at(x);
            }
        }
        allesZuruecksetzen();
        pruefe(codestringDecodieren(text).second, "a saved list loads again");
        pruefe(listenZustand().sMatrixListe == gespeichert, "a saved list loads back unchanged");
    }
    return 0;
}
