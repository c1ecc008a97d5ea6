// tabulon-skript: the window model without a window, driven by a script. See docs/skript.md.

#include "files/ordner.h"
#include "skript/aufruf.h"
#include "skript/skriptplattform.h"
#include "skript/treiber.h"

#include <clocale>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <random>

int main(int argc, char** argv) {
    using namespace tabulon::skript;
    // The user's locale, as the desktop program gets it from its framework: the window model must
    // write and read numbers the same way under any of them, and the transcripts check that.
    std::setlocale(LC_ALL, "");

    const auto [aufruf, fehler] = zerlegeAufruf(std::vector<std::string>(argv + 1, argv + argc));
    if (!fehler.empty()) {
        std::cerr << "tabulon-skript: " << fehler << '\n' << gebrauch();
        return 2;
    }
    if (aufruf.hilfe) {
        std::cout << gebrauch();
        return 0;
    }

    std::filesystem::path dokumente;
    if (aufruf.dokumente) {
        dokumente = *aufruf.dokumente;
        if (tabulon::ordnerAnlegen(dokumente) != 0) {
            std::cerr << "tabulon-skript: der Dokumente-Ordner " << *aufruf.dokumente
                      << " kann nicht angelegt werden\n";
            return 2;
        }
    } else if (const auto standard = tabulon::standardDokumentenOrdner()) {
        // The same folder as the desktop program's, created only when a command writes a file.
        dokumente = *standard;
    }

    std::ifstream datei;
    std::istream* ein = &std::cin;
    std::string quelle = "Standardeingabe";
    if (aufruf.skript) {
        quelle = *aufruf.skript;
        std::error_code ec;
        if (!std::filesystem::is_directory(*aufruf.skript, ec)) {
            datei.open(*aufruf.skript, std::ios::binary);
        }
        if (!datei.is_open()) {
            std::cerr << "tabulon-skript: das Skript " << quelle << " kann nicht gelesen werden\n";
            return 2;
        }
        ein = &datei;
    }

    const std::uint32_t saat = aufruf.saat ? *aufruf.saat : std::random_device{}();
    // ende N: the output is already flushed line by line, so the process may end at once.
    SkriptPlattform plattform(std::cout, saat, dokumente, [](int status) { std::exit(status); });
    Treiber treiber(plattform);
    return treiber.lauf(*ein, std::cerr, quelle);
}
