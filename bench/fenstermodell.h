#pragma once
// What the command benchmarks share: a window system that stays silent, a fresh start of all
// process-wide state, and a matrix typed into the tableau and stored as a user would do it.

#include "exakt/befehle.h"
#include "terms/parser.h"
#include "textmatrix/liste.h"
#include "window/plattform.h"
#include "window/tableau.h"
#include "window/viewcontroller.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

namespace tabulon::bench {

class StillePlattform : public Plattform {
public:
    int piepse = 0; // a beep means the benchmark measured a refusal

    void piep() override { ++piepse; }
    int frage(const std::string&, const std::string&, const std::string&) override {
        return zweiterKnopf;
    }
    std::uint32_t zufallUnter(std::uint32_t) override { return 0; }
    void beenden(int) override {}
    std::optional<std::filesystem::path> dokumentenOrdner() override { return std::nullopt; }
};

// Types the 8 x 8 texts into the cells and presses the store button with `name` in the name
// field.
template <typename Eintrag>
void eintippenUndEinlisten(ViewController& vc, const std::string& name, Eintrag eintrag) {
    for (int i = 0; i < 8; ++i) {
        for (int j = 0; j < 8; ++j) {
            vc.zelle(i, j).text = eintrag(i, j);
        }
    }
    vc.eingabeFb = name;
    vc.einlistB();
}

// Every command writes a protocol page; a long run would otherwise measure a growing vector.
// The pages go away every 1024 calls, outside the timing.
inline void protokollKurzHalten(benchmark::State& state) {
    if ((state.iterations() & 1023) == 0) {
        state.PauseTiming();
        protokollZustand() = ProtokollZustand();
        state.ResumeTiming();
    }
}

// Runs `aktion` in the benchmark's loop. A command that beeped was refused and measured nothing
// worth a time: the run is reported as an error with the refusal's note.
inline void befehlMessen(benchmark::State& state, ViewController& vc,
                         const StillePlattform& plattform, void (ViewController::*aktion)()) {
    for (auto _ : state) {
        (vc.*aktion)();
        benchmark::DoNotOptimize(vc.notizF);
        protokollKurzHalten(state);
    }
    if (plattform.piepse != 0) {
        state.SkipWithError(vc.notizF.c_str());
    }
}

} // namespace tabulon::bench
