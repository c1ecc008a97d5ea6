// The exact commands on the largest matrix the tableau holds, 8 x 8: with integers -9 ... 8
// each answer, page included, must take below 50 ms, with six-digit decimals below 200 ms. The
// decimals are the hard case: their denominators are powers of ten that grow through every
// elimination step before they cancel.

#include "exakt/befehle.h"
#include "exakt/zufallsmatrix.h" // tests/exakt: the same matrices the tests use

#include <benchmark/benchmark.h>

namespace {

using Befehl = tabulon::ExaktAntwort (*)(const std::string&, const tabulon::SMatrix&);

tabulon::SMatrix matrix(tabulon::exakttest::Art art) {
    tabulon::exakttest::Zufall z{20261124};
    return tabulon::exakttest::zufallsMatrix(z, 8, 8, art);
}

void messen(benchmark::State& state, Befehl befehl, tabulon::exakttest::Art art) {
    const tabulon::SMatrix a = matrix(art);
    for (auto _ : state) {
        tabulon::ExaktAntwort antwort = befehl("A", a);
        benchmark::DoNotOptimize(antwort);
    }
}

using tabulon::exakttest::Art;

} // namespace

BENCHMARK_CAPTURE(messen, gaussGanz, tabulon::exaktGauss, Art::ganz)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(messen, lgsGanz, tabulon::exaktLGS, Art::ganz)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(messen, kernGanz, tabulon::exaktKern, Art::ganz)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(messen, inverseGanz, tabulon::exaktInverse, Art::ganz)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(messen, determinanteGanz, tabulon::exaktDeterminante, Art::ganz)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(messen, eigenGanz, tabulon::exaktEigen, Art::ganz)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(messen, gaussDezimal, tabulon::exaktGauss, Art::dezimal)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(messen, lgsDezimal, tabulon::exaktLGS, Art::dezimal)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(messen, kernDezimal, tabulon::exaktKern, Art::dezimal)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(messen, inverseDezimal, tabulon::exaktInverse, Art::dezimal)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(messen, determinanteDezimal, tabulon::exaktDeterminante, Art::dezimal)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(messen, eigenDezimal, tabulon::exaktEigen, Art::dezimal)
    ->Unit(benchmark::kMillisecond);
