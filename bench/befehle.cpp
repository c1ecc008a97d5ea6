// The whole command path through the window model for one 8 x 8 matrix of integers from -9 to
// 8: the name is read from the name field, the matrix looked up in the list, converted,
// computed, written into the tableau and the protocol, as the menu or the button does it.
// Every command should answer within 50 us.

#include "app/zustand.h"
#include "fenstermodell.h"
#include "numeric/matrix.h"
#include "textmatrix/zahltext.h"

#include <array>

namespace tabulon {
namespace {

using bench::StillePlattform;

// Deterministic entries -9 ... 8 from a linear congruential generator; the seed gives a
// regular matrix with a kernel of only the zero vector and real and complex eigenvalues.
std::array<std::int64_t, 64> eintraege() {
    std::array<std::int64_t, 64> werte{};
    std::uint32_t x = 20261123;
    for (auto& w : werte) {
        x = x * 1103515245u + 12345u;
        w = static_cast<std::int64_t>((x >> 16) % 18) - 9;
    }
    return werte;
}

void befehl(benchmark::State& state, void (ViewController::*aktion)()) {
    StillePlattform plattform;
    ViewController vc(plattform);
    allesZuruecksetzen();
    const auto werte = eintraege();
    bench::eintippenUndEinlisten(vc, "A", [&werte](int i, int j) {
        return ganzText(werte[static_cast<std::size_t>(i * 8 + j)]);
    });
    if (matrix(listenZustand().sMatrixListe.at("A")).det() == 0.0) {
        state.SkipWithError("A ist singulär");
        return;
    }
    vc.eingabeFb = "A";
    bench::befehlMessen(state, vc, plattform, aktion);
}

void Transponiere(benchmark::State& state) {
    befehl(state, &ViewController::transponiere);
}
void Invertiere(benchmark::State& state) {
    befehl(state, &ViewController::invertiere);
}
void Gausse(benchmark::State& state) {
    befehl(state, &ViewController::gausse);
}
void Kern(benchmark::State& state) {
    befehl(state, &ViewController::genErzSystemVomKern);
}
void Orthonormiere(benchmark::State& state) {
    befehl(state, &ViewController::orthonormiere);
}
void Gram(benchmark::State& state) {
    befehl(state, &ViewController::gram);
}
// Rounds the tableau, which holds the inverse of A; rounding rounded texts does the same work
// again, so the tableau need not be restored between calls.
void Runden(benchmark::State& state) {
    StillePlattform plattform;
    ViewController vc(plattform);
    allesZuruecksetzen();
    const auto werte = eintraege();
    bench::eintippenUndEinlisten(vc, "A", [&werte](int i, int j) {
        return ganzText(werte[static_cast<std::size_t>(i * 8 + j)]);
    });
    vc.eingabeFb = "A";
    vc.invertiere();
    bench::befehlMessen(state, vc, plattform, &ViewController::rundenB);
}
void CharPol(benchmark::State& state) {
    befehl(state, &ViewController::charPol);
}

BENCHMARK(Transponiere)->Unit(benchmark::kMicrosecond);
BENCHMARK(Invertiere)->Unit(benchmark::kMicrosecond);
BENCHMARK(Gausse)->Unit(benchmark::kMicrosecond);
BENCHMARK(Kern)->Unit(benchmark::kMicrosecond);
BENCHMARK(Orthonormiere)->Unit(benchmark::kMicrosecond);
BENCHMARK(Gram)->Unit(benchmark::kMicrosecond);
BENCHMARK(Runden)->Unit(benchmark::kMicrosecond);
BENCHMARK(CharPol)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace tabulon
