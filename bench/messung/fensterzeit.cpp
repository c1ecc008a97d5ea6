// tabulon_fensterzeit: starts a program N times on the X display of $DISPLAY and reports, for
// each start, the time from fork() until X maps its top-level window with the given title, and
// the program's resident memory (VmRSS) a while after that. Prints each run and the medians.
//
//   tabulon_fensterzeit [-n RUNS] [-w SECONDS] [-t TITLE] PROGRAM [ARGS...]
//
// It listens for MapNotify on the root window instead of polling with xwininfo: polling costs a
// process per look on a machine with two cores, which slows the very start it measures. Without
// a window manager a child of the root that is mapped is viewable at once.

#include <xcb/xcb.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include <poll.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Uhr = std::chrono::steady_clock;

struct Lauf {
    double millisekunden = 0;
    double cpuMillisekunden = 0;
    double rssMiB = 0;
};

xcb_atom_t atom(xcb_connection_t* x, const char* name) {
    auto cookie = xcb_intern_atom(x, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    xcb_intern_atom_reply_t* antwort = xcb_intern_atom_reply(x, cookie, nullptr);
    const xcb_atom_t a = antwort ? antwort->atom : xcb_atom_t{XCB_ATOM_NONE};
    std::free(antwort);
    return a;
}

std::string eigenschaft(xcb_connection_t* x, xcb_window_t fenster, xcb_atom_t name) {
    auto cookie = xcb_get_property(x, 0, fenster, name, XCB_GET_PROPERTY_TYPE_ANY, 0, 256);
    xcb_get_property_reply_t* antwort = xcb_get_property_reply(x, cookie, nullptr);
    std::string wert;
    if (antwort) {
        const auto laenge = xcb_get_property_value_length(antwort);
        const auto* daten = static_cast<const char*>(xcb_get_property_value(antwort));
        wert.assign(daten, daten + laenge);
        std::free(antwort);
    }
    return wert;
}

double rssMiB(pid_t pid) {
    char pfad[64];
    std::snprintf(pfad, sizeof pfad, "/proc/%d/status", static_cast<int>(pid));
    std::ifstream status(pfad);
    std::string zeile;
    while (std::getline(status, zeile)) {
        if (zeile.rfind("VmRSS:", 0) == 0) {
            return std::strtod(zeile.c_str() + 6, nullptr) / 1024.0;
        }
    }
    return -1;
}

// The processor time all threads of the process have used so far: unlike the wall-clock time it
// hardly depends on what else the machine is doing.
double cpuMillisekunden(pid_t pid) {
    char pfad[64];
    std::snprintf(pfad, sizeof pfad, "/proc/%d/task", static_cast<int>(pid));
    double summe = 0;
    std::error_code fehler;
    for (const auto& faden : std::filesystem::directory_iterator(pfad, fehler)) {
        std::ifstream werte(faden.path() / "schedstat");
        double nanosekunden = 0;
        if (werte >> nanosekunden) {
            summe += nanosekunden / 1e6;
        }
    }
    return summe;
}

void beende(pid_t pid) {
    kill(pid, SIGTERM);
    for (int i = 0; i < 100; ++i) {
        if (waitpid(pid, nullptr, WNOHANG) == pid) {
            return;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    kill(pid, SIGKILL);
    waitpid(pid, nullptr, 0);
}

// One start: nullopt when the program ends or shows nothing within ten seconds.
std::optional<Lauf> messe(xcb_connection_t* x, char** programm, const std::string& titel,
                          double warten) {
    const xcb_atom_t netName = atom(x, "_NET_WM_NAME");
    xcb_flush(x);

    const auto start = Uhr::now();
    const pid_t pid = fork();
    if (pid == 0) {
        execvp(programm[0], programm);
        std::perror(programm[0]);
        _exit(127);
    }
    if (pid < 0) {
        std::perror("fork");
        return std::nullopt;
    }

    std::optional<Lauf> lauf;
    const auto frist = start + std::chrono::seconds(10);
    pollfd warte{xcb_get_file_descriptor(x), POLLIN, 0};
    while (!lauf && Uhr::now() < frist) {
        while (xcb_generic_event_t* ereignis = xcb_poll_for_event(x)) {
            if ((ereignis->response_type & 0x7f) == XCB_MAP_NOTIFY && !lauf) {
                const auto zeit = Uhr::now();
                const auto* map = reinterpret_cast<xcb_map_notify_event_t*>(ereignis);
                const std::string name = eigenschaft(x, map->window, netName);
                if (name == titel || eigenschaft(x, map->window, XCB_ATOM_WM_NAME) == titel) {
                    lauf = Lauf{std::chrono::duration<double, std::milli>(zeit - start).count(),
                                cpuMillisekunden(pid), 0};
                }
            }
            std::free(ereignis);
        }
        if (lauf) {
            break;
        }
        if (waitpid(pid, nullptr, WNOHANG) == pid) {
            std::fprintf(stderr, "%s ended before its window appeared\n", programm[0]);
            return std::nullopt;
        }
        poll(&warte, 1, 20);
    }
    if (!lauf) {
        std::fprintf(stderr, "no window titled \"%s\" within 10 s\n", titel.c_str());
        beende(pid);
        return std::nullopt;
    }
    std::this_thread::sleep_for(std::chrono::duration<double>(warten));
    lauf->rssMiB = rssMiB(pid);
    beende(pid);
    // Leave the maps of this run behind, so the next run starts with an empty queue.
    while (xcb_generic_event_t* ereignis = xcb_poll_for_event(x)) {
        std::free(ereignis);
    }
    return lauf;
}

double median(std::vector<double> werte) {
    std::sort(werte.begin(), werte.end());
    const std::size_t n = werte.size();
    return n % 2 ? werte[n / 2] : (werte[n / 2 - 1] + werte[n / 2]) / 2;
}

int gebrauch() {
    std::fprintf(
        stderr, "usage: tabulon_fensterzeit [-n RUNS] [-w SECONDS] [-t TITLE] PROGRAM [ARGS...]\n");
    return 2;
}

} // namespace

int main(int argc, char** argv) {
    int laeufe = 9;
    double warten = 2.0;
    std::string titel = "Tabulon";
    int a = 1;
    for (; a + 1 < argc && argv[a][0] == '-'; a += 2) {
        const std::string schalter = argv[a];
        if (schalter == "-n") {
            laeufe = std::atoi(argv[a + 1]);
        } else if (schalter == "-w") {
            warten = std::strtod(argv[a + 1], nullptr);
        } else if (schalter == "-t") {
            titel = argv[a + 1];
        } else {
            return gebrauch();
        }
    }
    if (a >= argc || laeufe < 1) {
        return gebrauch();
    }

    xcb_connection_t* x = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(x)) {
        std::fprintf(stderr, "cannot open the X display \"%s\"\n",
                     std::getenv("DISPLAY") ? std::getenv("DISPLAY") : "");
        return 1;
    }
    const xcb_window_t wurzel = xcb_setup_roots_iterator(xcb_get_setup(x)).data->root;
    const std::uint32_t maske = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(x, wurzel, XCB_CW_EVENT_MASK, &maske);

    std::vector<double> zeiten;
    std::vector<double> cpu;
    std::vector<double> speicher;
    for (int k = 1; k <= laeufe; ++k) {
        const auto lauf = messe(x, argv + a, titel, warten);
        if (!lauf) {
            xcb_disconnect(x);
            return 1;
        }
        std::printf("run %d: %.1f ms to mapped (%.1f ms CPU), VmRSS %.1f MiB\n", k,
                    lauf->millisekunden, lauf->cpuMillisekunden, lauf->rssMiB);
        std::fflush(stdout);
        zeiten.push_back(lauf->millisekunden);
        cpu.push_back(lauf->cpuMillisekunden);
        speicher.push_back(lauf->rssMiB);
    }
    std::printf("median of %d: %.1f ms to mapped (%.1f ms CPU), VmRSS %.1f MiB\n", laeufe,
                median(zeiten), median(cpu), median(speicher));
    xcb_disconnect(x);
    return 0;
}
