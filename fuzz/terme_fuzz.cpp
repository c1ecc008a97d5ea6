// Arbitrary bytes as the scalar field (up to the first line break) and the term field (the rest),
// evaluated once by the term command on a list of a few matrices. Beyond "no crash, no sanitizer
// report" it checks what the command promises: afterwards the list and the free names are
// exactly what they were, no temporary and no message is left over, and the command either shows
// its result (note, protocol page, no beep) or the failure note with a beep and nothing else.

#include "app/zustand.h"
#include "terms/parser.h"
#include "textmatrix/liste.h"
#include "window/tableau.h"
#include "window/viewcontroller.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using namespace tabulon;

void pruefe(bool bedingung, const char* was) {
    if (!bedingung) {
        std::fprintf(stderr, "Verletzt: %s\n", was);
        std::abort();
    }
}

class StillePlattform : public Plattform {
public:
    int piepse = 0;
    void piep() override { ++piepse; }
    int frage(const std::string&, const std::string&, const std::string&) override {
        return zweiterKnopf;
    }
    std::uint32_t zufallUnter(std::uint32_t) override { return 0; }
    void beenden(int) override {}
    std::optional<std::filesystem::path> dokumentenOrdner() override { return std::nullopt; }
};

void lege(const std::string& name, std::int64_t zeilen, std::int64_t spalten,
          std::vector<std::string> eintraege) {
    SMatrix m(zeilen, spalten);
    m.grid = std::move(eintraege);
    listenZustand().sMatrixListe[name] = std::move(m);
    listenZustand().smNamen.erase(name);
}

// Square and regular, square and singular, not square, 1 x 1, and entries that are no numbers.
void startListe() {
    allesZuruecksetzen();
    lege("A", 2, 2, {"1", "2", "3", "4"});
    lege("B", 2, 2, {"0.5", "-1", "1e3", "x"});
    lege("C", 2, 3, {"1", "2", "3", "4", "5", "6"});
    lege("N", 2, 2, {"1", "2", "2", "4"});
    lege("E", 1, 1, {"7"});
    lege("I", 3, 3, {"1e308", "0", "0", "0", "1", "0", "0", "0", "nan"});
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse) {
    const std::string_view eingabe(reinterpret_cast<const char*>(daten), groesse);
    const auto umbruch = eingabe.find('\n');
    const std::string skalar(eingabe.substr(0, umbruch));
    const std::string term(umbruch == std::string_view::npos ? std::string_view{}
                                                             : eingabe.substr(umbruch + 1));
    startListe();
    const ListenZustand vorher = listenZustand();
    StillePlattform plattform;
    ViewController vc(plattform);
    vc.skalarF = skalar;
    vc.eingabeF = term;
    vc.parsStart();

    const ListenZustand& l = listenZustand();
    pruefe(l.sMatrixListe == vorher.sMatrixListe, "the list is as it was");
    pruefe(l.smNamen == vorher.smNamen, "the free names are as they were");
    pruefe(termZustand().tempNamen.empty(), "no temporary is left");
    pruefe(termZustand().fehlerListe.empty(), "no message is left");

    const auto& seiten = protokollZustand().protokoll;
    if (vc.notizF == "Das Ergebnis der Rechnung wird im Eingabe-Tableau angezeigt") {
        pruefe(plattform.piepse == 0, "a result sounds no beep");
        pruefe(seiten.size() == 2 &&
                   seiten.back().starts_with("Die Auswertung des Terms " + term + " ergibt: \n\n"),
               "a result is written to the protocol");
    } else {
        const std::string schluss = "Die Formel konnte nicht ausgewertet werden.";
        pruefe(vc.notizF.ends_with(schluss), "otherwise the note is the failure note");
        pruefe(plattform.piepse == 1, "a failure beeps once");
        pruefe(seiten.size() == 1, "a failure writes no protocol page");
    }
    return 0;
}
