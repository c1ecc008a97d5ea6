// Speed of the term language through the window model: the single evaluation of (A-B)^3*B and
// of A^-1*B, and the n-fold evaluation of A^-1*B reported per run, on 8 x 8 matrices typed into
// the tableau and stored as a user would. EinmalAuswerten measures parsen alone with the removal
// of its temporaries.

#include "app/zustand.h"
#include "fenstermodell.h"
#include "textmatrix/zahltext.h"

namespace tabulon {
namespace {

using bench::StillePlattform;

// A regular 8 x 8 matrix (diagonally dominant) as A and a full one as B.
void matrizenAnlegen(ViewController& vc) {
    allesZuruecksetzen();
    bench::eintippenUndEinlisten(vc, "A", [](int i, int j) {
        return zahlText(i == j ? 20.0 + static_cast<double>(i) : static_cast<double>(i + j) / 3.0);
    });
    bench::eintippenUndEinlisten(
        vc, "B", [](int i, int j) { return zahlText(static_cast<double>((i * 8 + j) % 7) - 3.0); });
}

void EinmalAuswerten(benchmark::State& state) {
    StillePlattform plattform;
    ViewController vc(plattform);
    matrizenAnlegen(vc);
    for (auto _ : state) {
        auto ergebnis = parsen("A^-1*B");
        benchmark::DoNotOptimize(ergebnis);
        tempNamenEntfernen();
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(EinmalAuswerten)->Unit(benchmark::kMicrosecond);

void parsStartMit(benchmark::State& state, const char* term) {
    StillePlattform plattform;
    ViewController vc(plattform);
    matrizenAnlegen(vc);
    vc.eingabeF = term;
    vc.skalarF = "2";
    for (auto _ : state) {
        vc.parsStart();
        benchmark::DoNotOptimize(vc.ausgabeF);
        bench::protokollKurzHalten(state);
    }
    if (vc.notizF != "Das Ergebnis der Rechnung wird im Eingabe-Tableau angezeigt") {
        state.SkipWithError(vc.notizF.c_str());
    }
}

void ParsStartAminusBhoch3malB(benchmark::State& state) {
    parsStartMit(state, "(A-B)^3*B");
}
BENCHMARK(ParsStartAminusBhoch3malB)->Unit(benchmark::kMicrosecond);

void ParsStartAinversMalB(benchmark::State& state) {
    parsStartMit(state, "A^-1*B");
}
BENCHMARK(ParsStartAinversMalB)->Unit(benchmark::kMicrosecond);

// One call runs the term `laeufe` times; the counter pro_Lauf is the time of one run.
void NfachAinversMalB(benchmark::State& state) {
    const auto laeufe = state.range(0);
    StillePlattform plattform;
    ViewController vc(plattform);
    matrizenAnlegen(vc);
    vc.eingabeF = "A^-1*B";
    vc.eingabeFb = "C";
    vc.zaehlF = ganzText(laeufe);
    for (auto _ : state) {
        vc.parsNfachStart();
        benchmark::DoNotOptimize(vc.ausgabeF);
        bench::protokollKurzHalten(state);
    }
    if (vc.notizF != "Das Ergebnis der Berechnung von C wird im Eingabe-Tableau angezeigt") {
        state.SkipWithError(vc.notizF.c_str());
    }
    const auto alleLaeufe = static_cast<double>(state.iterations() * laeufe);
    state.SetItemsProcessed(state.iterations() * laeufe);
    state.counters["pro_Lauf"] =
        benchmark::Counter(alleLaeufe, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(NfachAinversMalB)->Arg(1000)->Unit(benchmark::kMillisecond);

// Deeply nested and many side-by-side bracket cores, of the given number: "((A)^1)^1 ..." and
// "(A)+(A)+ ...". The letters run out after 25 steps, so almost every core fails at once and the
// time is that of taking the term apart, which must grow linearly with its length: the fitted
// complexity is reported as oN or better.
std::string verschachtelt(std::int64_t kerne) {
    std::string t = "A";
    for (std::int64_t k = 0; k < kerne; ++k) {
        t = "(" + t + ")" + (k + 1 < kerne ? "^1" : "");
    }
    return t;
}

std::string nebeneinander(std::int64_t kerne) {
    std::string t = "(A)";
    for (std::int64_t k = 1; k < kerne; ++k) {
        t += "+(A)";
    }
    return t;
}

void klammernMit(benchmark::State& state, std::string (*bauen)(std::int64_t)) {
    StillePlattform plattform;
    ViewController vc(plattform);
    matrizenAnlegen(vc);
    vc.eingabeF = bauen(state.range(0));
    for (auto _ : state) {
        vc.parsStart();
        benchmark::DoNotOptimize(vc.notizF);
        bench::protokollKurzHalten(state);
    }
    state.SetComplexityN(state.range(0));
}

void KlammernVerschachtelt(benchmark::State& state) {
    klammernMit(state, verschachtelt);
}
BENCHMARK(KlammernVerschachtelt)
    ->RangeMultiplier(10)
    ->Range(1000, 100000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

void KlammernNebeneinander(benchmark::State& state) {
    klammernMit(state, nebeneinander);
}
BENCHMARK(KlammernNebeneinander)
    ->RangeMultiplier(10)
    ->Range(1000, 100000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

} // namespace
} // namespace tabulon
