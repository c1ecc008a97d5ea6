// Number texts: the conversions that a term such as A^-1*B runs for every entry of every
// intermediate matrix. Each benchmark walks a fixed array of values shaped like those results
// (quotients such as 1/3, small integers, short decimals), once through the library and once
// through the plain C library calls the library must agree with.

#include "textmatrix/zahltext.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <locale.h>
#include <string>
#include <vector>

namespace {

locale_t cGebietsschema() {
    static const locale_t c = newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(nullptr));
    return c;
}

std::vector<double> werte() {
    std::vector<double> w;
    for (int i = 1; i <= 24; ++i) {
        w.push_back(static_cast<double>(i) / static_cast<double>(i % 7 + 3)); // 1/3-like
        w.push_back(-static_cast<double>(i * 37 % 101) / 49.0);
        w.push_back(static_cast<double>(i - 12));         // small integers
        w.push_back(static_cast<double>(i * 13) / 100.0); // short decimals
    }
    return w;
}

std::vector<std::string> texte() {
    std::vector<std::string> t;
    for (const double x : werte()) {
        t.push_back(tabulon::zahlText(x));
    }
    return t;
}

std::string cText(const char* format, double x) {
    const locale_t alt = uselocale(cGebietsschema());
    char puffer[64];
    const int n = std::snprintf(puffer, sizeof puffer, format, x);
    uselocale(alt);
    return std::string(puffer, static_cast<std::size_t>(n));
}

void zahlText(benchmark::State& state) {
    const std::vector<double> w = werte();
    for (auto _ : state) {
        for (const double x : w) {
            benchmark::DoNotOptimize(tabulon::zahlText(x));
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(w.size()));
}
BENCHMARK(zahlText);

void zahlTextSnprintf(benchmark::State& state) {
    const std::vector<double> w = werte();
    for (auto _ : state) {
        for (const double x : w) {
            benchmark::DoNotOptimize(cText("%.15g", x));
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(w.size()));
}
BENCHMARK(zahlTextSnprintf);

void zahlTextVoll(benchmark::State& state) {
    const std::vector<double> w = werte();
    for (auto _ : state) {
        for (const double x : w) {
            benchmark::DoNotOptimize(tabulon::zahlTextVoll(x));
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(w.size()));
}
BENCHMARK(zahlTextVoll);

void zahlTextVollSnprintf(benchmark::State& state) {
    const std::vector<double> w = werte();
    for (auto _ : state) {
        for (const double x : w) {
            benchmark::DoNotOptimize(cText("%.17g", x));
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(w.size()));
}
BENCHMARK(zahlTextVollSnprintf);

void runden6(benchmark::State& state) {
    const std::vector<double> w = werte();
    for (auto _ : state) {
        for (const double x : w) {
            benchmark::DoNotOptimize(tabulon::round(x, 6));
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(w.size()));
}
BENCHMARK(runden6);

void runden6Snprintf(benchmark::State& state) {
    const std::vector<double> w = werte();
    for (auto _ : state) {
        for (const double x : w) {
            benchmark::DoNotOptimize(cText("%.6f", x));
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(w.size()));
}
BENCHMARK(runden6Snprintf);

void text2Zahl(benchmark::State& state) {
    const std::vector<std::string> t = texte();
    for (auto _ : state) {
        for (const std::string& s : t) {
            benchmark::DoNotOptimize(tabulon::text2Zahl(s));
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(t.size()));
}
BENCHMARK(text2Zahl);

void text2ZahlStrtod(benchmark::State& state) {
    const std::vector<std::string> t = texte();
    for (auto _ : state) {
        for (const std::string& s : t) {
            // The strings are NUL-terminated already; the library must copy its string_view.
            char* ende = nullptr;
            benchmark::DoNotOptimize(strtod_l(s.c_str(), &ende, cGebietsschema()));
            benchmark::DoNotOptimize(ende);
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(t.size()));
}
BENCHMARK(text2ZahlStrtod);

} // namespace
