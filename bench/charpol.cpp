// The characteristic polynomial and its eigenvalues for n = 2 ... 8, the plain expansion of the
// tests' reference beside the library's table: the polynomial alone and with its real roots.
// The eigenvalue command must answer at once even for a full 8 x 8 tableau.

#include "numeric/matrix.h"
#include "polynomials/charpoly.h"
#include "referenz/charpoly_laplace.h"

#include <benchmark/benchmark.h>
#include <cstdint>

namespace {

// Integers -9 ... 8, the same every run.
tabulon::Matrix ganzzahlig(std::int64_t n) {
    tabulon::Matrix a(n, n);
    std::uint32_t zustand = 2718281u + static_cast<std::uint32_t>(n);
    for (double& x : a.grid) {
        zustand = zustand * 1103515245u + 12345u;
        x = static_cast<double>(static_cast<int>((zustand >> 16) % 18) - 9);
    }
    return a;
}

void polynomEinfach(benchmark::State& state) {
    const tabulon::Matrix a = ganzzahlig(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(tabulon::referenz::charPolynom(a));
    }
}
BENCHMARK(polynomEinfach)->DenseRange(2, 8)->Unit(benchmark::kMicrosecond);

void polynomTabelle(benchmark::State& state) {
    const tabulon::Matrix a = ganzzahlig(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(tabulon::sMatrix2Polynom(tabulon::m2EwSmatrix(a)));
    }
}
BENCHMARK(polynomTabelle)->DenseRange(2, 8)->Unit(benchmark::kMicrosecond);

void eigenwerteEinfach(benchmark::State& state) {
    const tabulon::Matrix a = ganzzahlig(state.range(0));
    for (auto _ : state) {
        const tabulon::Polynom p = tabulon::referenz::charPolynom(a);
        benchmark::DoNotOptimize(tabulon::referenz::nullstellen(p));
    }
}
BENCHMARK(eigenwerteEinfach)->DenseRange(2, 8)->Unit(benchmark::kMicrosecond);

void eigenwerteTabelle(benchmark::State& state) {
    const tabulon::Matrix a = ganzzahlig(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(tabulon::eigenWerte(a));
    }
}
BENCHMARK(eigenwerteTabelle)->DenseRange(2, 8)->Unit(benchmark::kMicrosecond);

// The root finder alone on the polynomial of the 8 x 8 matrix.
void nullstellenEinfach(benchmark::State& state) {
    const tabulon::Polynom p = tabulon::referenz::charPolynom(ganzzahlig(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(tabulon::referenz::nullstellen(p));
    }
}
BENCHMARK(nullstellenEinfach)->Arg(8)->Unit(benchmark::kMicrosecond);

void nullstellenSchnell(benchmark::State& state) {
    const tabulon::Polynom p = tabulon::referenz::charPolynom(ganzzahlig(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(tabulon::nullstMenge(p));
    }
}
BENCHMARK(nullstellenSchnell)->Arg(8)->Unit(benchmark::kMicrosecond);

} // namespace
