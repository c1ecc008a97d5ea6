// The exact eigenvalue analysis on the two kinds of 8 × 8 matrix a learner types: small
// integers, and six-digit decimals, whose common denominator makes every number far longer.

#include "exakt/eigen.h"

#include <benchmark/benchmark.h>

#include <random>
#include <vector>

namespace {

std::vector<mpq_class> zufallsMatrix(std::size_t n, long von, long bis, long nenner) {
    std::mt19937_64 g(8);
    std::uniform_int_distribution<long> v(von, bis);
    std::vector<mpq_class> a;
    for (std::size_t i = 0; i < n * n; ++i) {
        a.emplace_back(v(g), nenner);
        a.back().canonicalize();
    }
    return a;
}

void ganzeZahlen(benchmark::State& state) {
    const auto a = zufallsMatrix(8, -9, 8, 1);
    for (auto _ : state) {
        benchmark::DoNotOptimize(tabulon::eigenAnalyse(8, a));
    }
}
BENCHMARK(ganzeZahlen)->Unit(benchmark::kMillisecond);

// Entries such as -123.456: six digits, three of them after the point.
void sechsstelligeDezimalen(benchmark::State& state) {
    const auto a = zufallsMatrix(8, -999999, 999999, 1000);
    for (auto _ : state) {
        benchmark::DoNotOptimize(tabulon::eigenAnalyse(8, a));
    }
}
BENCHMARK(sechsstelligeDezimalen)->Unit(benchmark::kMillisecond);

// Some six-digit decimals with up to six places: the common denominator reaches 10^6.
void gemischteDezimalen(benchmark::State& state) {
    auto a = zufallsMatrix(8, -999999, 999999, 1);
    long nenner = 1;
    for (mpq_class& x : a) {
        x /= nenner;
        nenner = nenner == 1000000 ? 1 : nenner * 10;
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(tabulon::eigenAnalyse(8, a));
    }
}
BENCHMARK(gemischteDezimalen)->Unit(benchmark::kMillisecond);

} // namespace
