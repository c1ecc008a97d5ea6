// The characteristic polynomial of an 8 x 8 matrix is the slowest thing the eigenvalue command
// does: the Laplace expansion visits 8! leaf entries, each turned from text into a polynomial.
// The command must still answer at once.

#include "numeric/matrix.h"
#include "polynomials/charpoly.h"

#include <benchmark/benchmark.h>

namespace {

tabulon::Matrix symmetrischeAchtMalAcht() {
    tabulon::Matrix a(8, 8);
    for (int i = 0; i < 8; ++i) {
        for (int j = i; j < 8; ++j) {
            a(i, j) = a(j, i) = static_cast<double>((i * 7 + j * 3) % 19 - 9) + 0.25 * i;
        }
    }
    return a;
}

void charakteristischesPolynom(benchmark::State& state) {
    const tabulon::Matrix a = symmetrischeAchtMalAcht();
    for (auto _ : state) {
        benchmark::DoNotOptimize(tabulon::sMatrix2Polynom(tabulon::m2EwSmatrix(a)));
    }
}
BENCHMARK(charakteristischesPolynom)->Unit(benchmark::kMillisecond);

void eigenwerte(benchmark::State& state) {
    const tabulon::Matrix a = symmetrischeAchtMalAcht();
    for (auto _ : state) {
        benchmark::DoNotOptimize(tabulon::eigenWerte(a));
    }
}
BENCHMARK(eigenwerte)->Unit(benchmark::kMillisecond);

} // namespace
