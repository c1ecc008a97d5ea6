// Speed of the term language: one evaluation of A^-1*B on 8 x 8 matrices (with the removal of
// its temporaries), and the n-fold command running that term 100 000 times. Both report runs
// per second.
#include "terms/parser.h"
#include "textmatrix/liste.h"
#include "textmatrix/zahltext.h"
#include "window/plattform.h"
#include "window/tableau.h"
#include "window/viewcontroller.h"

#include <benchmark/benchmark.h>

namespace tabulon {
namespace {

class StillePlattform : public Plattform {
public:
    void piep() override {}
    int frage(const std::string&, const std::string&, const std::string&) override {
        return zweiterKnopf;
    }
    std::uint32_t zufallUnter(std::uint32_t) override { return 0; }
    void beenden(int) override {}
    std::optional<std::filesystem::path> dokumentenOrdner() override { return std::nullopt; }
};

// A regular 8 x 8 matrix (diagonally dominant) and a full one.
void matrizenAnlegen() {
    listenZustandZuruecksetzen();
    termZustandZuruecksetzen();
    SMatrix a(8, 8);
    SMatrix b(8, 8);
    for (std::int64_t i = 0; i < 8; ++i) {
        for (std::int64_t j = 0; j < 8; ++j) {
            a(i, j) =
                zahlText(i == j ? 20.0 + static_cast<double>(i) : static_cast<double>(i + j) / 3.0);
            b(i, j) = zahlText(static_cast<double>((i * 8 + j) % 7) - 3.0);
        }
    }
    auto& liste = listenZustand();
    liste.sMatrixListe["A"] = a;
    liste.sMatrixListe["B"] = b;
    liste.smNamen.erase("A");
    liste.smNamen.erase("B");
}

void EinmalAuswerten(benchmark::State& state) {
    matrizenAnlegen();
    for (auto _ : state) {
        auto ergebnis = parsen("A^-1*B");
        benchmark::DoNotOptimize(ergebnis);
        tempNamenEntfernen();
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(EinmalAuswerten);

void NfachAuswerten(benchmark::State& state) {
    StillePlattform plattform;
    for (auto _ : state) {
        state.PauseTiming();
        matrizenAnlegen();
        tableauZustandZuruecksetzen();
        protokollZustandZuruecksetzen();
        ViewController vc(plattform);
        vc.eingabeF = std::string("A^-1*B");
        vc.eingabeFb = std::string("C");
        vc.zaehlF = std::string("100000");
        state.ResumeTiming();
        vc.parsNfachStart();
        benchmark::DoNotOptimize(vc.notizF);
    }
    state.SetItemsProcessed(state.iterations() * 100000);
}
BENCHMARK(NfachAuswerten)->Unit(benchmark::kSecond)->Iterations(1);

} // namespace
} // namespace tabulon
