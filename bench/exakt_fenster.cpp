// The exact commands the way the menu "Exakt" runs them on the largest matrix the tableau holds:
// the 8 x 8 texts typed and stored, the name read from the name field, the matrix looked up,
// read exactly, computed, and the page, tableau and note written. With integers -9 ... 8 every
// command should answer below 50 ms, with six-digit decimals below 200 ms; the TeX export writes
// the page of the last answer (the documents folder is unknown here, so no disk is measured).

#include "app/zustand.h"
#include "exakt/befehle.h"
#include "exakt/zufallsmatrix.h" // tests/exakt: the same matrices the tests use
#include "fenstermodell.h"

namespace tabulon {
namespace {

using bench::StillePlattform;
using exakttest::Art;

void befehl(benchmark::State& state, void (ViewController::*aktion)(), Art art) {
    StillePlattform plattform;
    ViewController vc(plattform);
    allesZuruecksetzen();
    exakttest::Zufall z{20261124};
    const SMatrix a = exakttest::zufallsMatrix(z, 8, 8, art);
    bench::eintippenUndEinlisten(vc, "A", [&a](int i, int j) { return a(i, j); });
    vc.eingabeFb = "A";
    // The export needs a page; it is the answer of the command that the menu would run before.
    vc.exaktEigen();
    bench::befehlMessen(state, vc, plattform, aktion);
}

BENCHMARK_CAPTURE(befehl, gaussGanz, &ViewController::exaktGauss, Art::ganz)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(befehl, gaussDezimal, &ViewController::exaktGauss, Art::dezimal)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(befehl, lgsGanz, &ViewController::exaktLGS, Art::ganz)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(befehl, lgsDezimal, &ViewController::exaktLGS, Art::dezimal)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(befehl, kernGanz, &ViewController::exaktKern, Art::ganz)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(befehl, kernDezimal, &ViewController::exaktKern, Art::dezimal)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(befehl, inverseGanz, &ViewController::exaktInverse, Art::ganz)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(befehl, inverseDezimal, &ViewController::exaktInverse, Art::dezimal)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(befehl, determinanteGanz, &ViewController::exaktDeterminante, Art::ganz)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(befehl, determinanteDezimal, &ViewController::exaktDeterminante, Art::dezimal)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(befehl, eigenGanz, &ViewController::exaktEigen, Art::ganz)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(befehl, eigenDezimal, &ViewController::exaktEigen, Art::dezimal)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(befehl, texAusgabeGanz, &ViewController::exaktTexAusgabe, Art::ganz)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(befehl, texAusgabeDezimal, &ViewController::exaktTexAusgabe, Art::dezimal)
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tabulon
