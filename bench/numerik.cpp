// Determinant and inverse of an 8 x 8 matrix, the largest the tableau holds. Both expand by
// cofactors and keep each minor's determinant once; a term such as A^-1*B evaluated a hundred
// thousand times rests on their speed.

#include "numeric/matrix.h"

#include <benchmark/benchmark.h>

namespace {

tabulon::Matrix regulaereAchtMalAcht() {
    tabulon::Matrix a(8, 8);
    for (int i = 0; i < 8; ++i) {
        for (int j = 0; j < 8; ++j) {
            a(i, j) = static_cast<double>((i * 5 + j * 3) % 11 - 5) + (i == j ? 10.0 : 0.0);
        }
    }
    return a;
}

void determinante(benchmark::State& state) {
    const tabulon::Matrix a = regulaereAchtMalAcht();
    for (auto _ : state) {
        benchmark::DoNotOptimize(a.det());
    }
}
BENCHMARK(determinante)->Unit(benchmark::kMillisecond);

void inverse(benchmark::State& state) {
    const tabulon::Matrix a = regulaereAchtMalAcht();
    for (auto _ : state) {
        benchmark::DoNotOptimize(a.invers());
    }
}
BENCHMARK(inverse)->Unit(benchmark::kMillisecond);

} // namespace
