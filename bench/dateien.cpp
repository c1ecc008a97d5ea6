// Memory and time of refusing what the list file must not take in: a file of '%' just under the
// size limit, a sparse file of 1 GiB, and a save of a list whose file would be too big. The
// counter Spitze_MiB is the most heap memory the command held above what was held before it,
// counted by the allocation functions below; it must stay below 100 MiB, and refusing the 1 GiB
// file below a second.

#include "app/zustand.h"
#include "fenstermodell.h"
#include "files/listendatei.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <malloc.h>
#include <new>
#include <string>
#include <unistd.h>

namespace {

std::atomic<std::size_t> belegt{0};
std::atomic<std::size_t> spitze{0};

void* holen(std::size_t n) {
    void* p = std::malloc(n == 0 ? 1 : n);
    if (p == nullptr) {
        throw std::bad_alloc();
    }
    const std::size_t jetzt = belegt += malloc_usable_size(p);
    std::size_t alt = spitze.load();
    while (jetzt > alt && !spitze.compare_exchange_weak(alt, jetzt)) {
    }
    return p;
}

void freigeben(void* p) noexcept {
    if (p != nullptr) {
        belegt -= malloc_usable_size(p);
        std::free(p);
    }
}

} // namespace

void* operator new(std::size_t n) {
    return holen(n);
}
void* operator new[](std::size_t n) {
    return holen(n);
}
void operator delete(void* p) noexcept {
    freigeben(p);
}
void operator delete[](void* p) noexcept {
    freigeben(p);
}
void operator delete(void* p, std::size_t) noexcept {
    freigeben(p);
}
void operator delete[](void* p, std::size_t) noexcept {
    freigeben(p);
}

namespace tabulon {
namespace {

class OrdnerPlattform : public bench::StillePlattform {
public:
    std::filesystem::path ordner;
    std::optional<std::filesystem::path> dokumentenOrdner() override { return ordner; }
    // Saving asks first; the benchmark wants the save.
    int frage(const std::string&, const std::string&, const std::string&) override {
        return ersterKnopf;
    }
};

// A fresh folder with the list file as `anlegen` leaves it; removed with the object.
struct Ordner {
    std::filesystem::path pfad;
    Ordner() {
        std::string muster = (std::filesystem::temp_directory_path() / "tabulon-XXXXXX").string();
        pfad = mkdtemp(muster.data());
    }
    ~Ordner() {
        std::error_code fehler;
        std::filesystem::remove_all(pfad, fehler);
    }
    std::filesystem::path liste() const { return pfad / "Matrix_MatDats.txt"; }
};

void nichts() {}

// Runs the command once per iteration and reports its peak memory above the start, which is
// taken after `vorbereiten`.
template <typename Befehl>
void miss(benchmark::State& state, Befehl befehl, void (*vorbereiten)() = nichts) {
    std::size_t hoechste = 0;
    for (auto _ : state) {
        state.PauseTiming();
        vorbereiten();
        state.ResumeTiming();
        const std::size_t vorher = belegt.load();
        spitze = vorher;
        befehl();
        hoechste = std::max(hoechste, spitze.load() - vorher);
    }
    state.counters["Spitze_MiB"] = static_cast<double>(hoechste) / (1024.0 * 1024.0);
}

void ladenAbgelehnt(benchmark::State& state, const Ordner& ordner, const std::string& notiz) {
    OrdnerPlattform plattform;
    plattform.ordner = ordner.pfad;
    ViewController vc(plattform);
    allesZuruecksetzen();
    miss(state, [&vc] { vc.laden(); });
    if (vc.notizF.find(notiz) == std::string::npos) {
        state.SkipWithError(vc.notizF.c_str());
    }
}

void ProzentDateiAblehnen(benchmark::State& state) {
    const Ordner ordner;
    std::ofstream(ordner.liste(), std::ios::binary) << std::string(groessteListendatei, '%');
    ladenAbgelehnt(state, ordner, "unzulässigen Matrixnamen");
}
BENCHMARK(ProzentDateiAblehnen)->Unit(benchmark::kMillisecond);

void GiBDateiAblehnen(benchmark::State& state) {
    const Ordner ordner;
    std::ofstream(ordner.liste(), std::ios::binary) << "";
    std::filesystem::resize_file(ordner.liste(), std::uintmax_t{1} << 30);
    ladenAbgelehnt(state, ordner, "zu groß");
}
BENCHMARK(GiBDateiAblehnen)->Unit(benchmark::kMillisecond);

// The most a sound file under the limit can cost: records of one empty entry under as many
// distinct names as fit, each becoming a matrix of its own in the list.
void VieleNamenLaden(benchmark::State& state) {
    const Ordner ordner;
    std::string text;
    for (int k = 0; text.size() + 16 < groessteListendatei; ++k) {
        text += "n" + std::to_string(k) + "%1%1%%";
    }
    std::ofstream(ordner.liste(), std::ios::binary) << text + "end%";
    OrdnerPlattform plattform;
    plattform.ordner = ordner.pfad;
    ViewController vc(plattform);
    miss(
        state, [&vc] { vc.laden(); }, allesZuruecksetzen);
    if (vc.notizF != "Die im Dokumente-Ordner gespeicherten Matrizen wurden geladen. ") {
        state.SkipWithError(vc.notizF.c_str());
    }
    state.counters["Matrizen"] = static_cast<double>(listenZustand().sMatrixListe.size());
}
BENCHMARK(VieleNamenLaden)->Unit(benchmark::kMillisecond);

// The list holds one entry of 17 MiB; the memory counted is what refusing it costs on top.
void ZuGrossNichtSpeichern(benchmark::State& state) {
    const Ordner ordner;
    OrdnerPlattform plattform;
    plattform.ordner = ordner.pfad;
    ViewController vc(plattform);
    allesZuruecksetzen();
    SMatrix m(1, 1);
    m.grid[0] = std::string(std::size_t{17} << 20, '7');
    listenZustand().sMatrixListe["A"] = std::move(m);
    listenZustand().smNamen.erase("A");
    miss(state, [&vc] { vc.speichern(); });
    if (vc.notizF.find("zu groß") == std::string::npos || std::filesystem::exists(ordner.liste())) {
        state.SkipWithError(vc.notizF.c_str());
    }
}
BENCHMARK(ZuGrossNichtSpeichern)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tabulon
