// Determinant and inverse for n = 2 ... 8, the largest the tableau holds: the tables of minors
// beside the plain expansion that recomputes every minor. A term such as A^-1*B evaluated a
// hundred thousand times rests on their speed.

#include "numeric/matrix.h"
#include "referenz/laplace.h"

#include <benchmark/benchmark.h>

#include <cstdint>

namespace {

// Integers -9 ... 8 from a fixed generator, so every run times the same matrices.
tabulon::Matrix ganzzahlig(std::int64_t n) {
    std::uint64_t zustand = 20261123;
    tabulon::Matrix a(n, n);
    for (double& x : a.grid) {
        zustand = zustand * 6364136223846793005ULL + 1442695040888963407ULL;
        x = static_cast<double>(static_cast<std::int64_t>(zustand >> 59) - 9 +
                                ((zustand >> 40) & 1));
    }
    return a;
}

void determinante(benchmark::State& state) {
    const tabulon::Matrix a = ganzzahlig(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(a.det());
    }
}
BENCHMARK(determinante)->DenseRange(2, 8)->Unit(benchmark::kMicrosecond);

void determinanteSchlicht(benchmark::State& state) {
    const tabulon::Matrix a = ganzzahlig(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(tabulon::referenz::laplaceDet(a));
    }
}
BENCHMARK(determinanteSchlicht)->DenseRange(2, 8)->Unit(benchmark::kMicrosecond);

void inverse(benchmark::State& state) {
    const tabulon::Matrix a = ganzzahlig(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(a.invers());
    }
}
BENCHMARK(inverse)->DenseRange(2, 8)->Unit(benchmark::kMicrosecond);

void inverseSchlicht(benchmark::State& state) {
    const tabulon::Matrix a = ganzzahlig(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(tabulon::referenz::kofaktorInverse(a));
    }
}
BENCHMARK(inverseSchlicht)->DenseRange(2, 8)->Unit(benchmark::kMicrosecond);

} // namespace
