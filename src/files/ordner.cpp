#include "files/ordner.h"

#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <pwd.h>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace tabulon {

namespace {

const char* umgebung(const char* name) {
    const char* wert = std::getenv(name);
    return (wert != nullptr && *wert != '\0') ? wert : nullptr;
}

std::optional<std::filesystem::path> homeOrdner() {
    if (const char* home = umgebung("HOME")) {
        return std::filesystem::path(home);
    }
    // A session started without HOME (from a service, say) still has a home folder.
    const passwd* eintrag = ::getpwuid(::getuid());
    if (eintrag != nullptr && eintrag->pw_dir != nullptr && *eintrag->pw_dir != '\0') {
        return std::filesystem::path(eintrag->pw_dir);
    }
    return std::nullopt;
}

std::string_view ohneRand(std::string_view s) {
    const auto anfang = s.find_first_not_of(" \t\r");
    if (anfang == std::string_view::npos) {
        return {};
    }
    const auto ende = s.find_last_not_of(" \t\r");
    return s.substr(anfang, ende - anfang + 1);
}

// The value between the quotes, with the shell's backslash escapes undone, as xdg-user-dirs
// writes it.
std::optional<std::string> inAnfuehrung(std::string_view wert) {
    if (wert.size() < 2 || wert.front() != '"' || wert.back() != '"') {
        return std::nullopt;
    }
    std::string aus;
    for (std::size_t i = 1; i + 1 < wert.size(); ++i) {
        if (wert[i] == '\\' && i + 2 < wert.size()) {
            ++i;
        }
        aus += wert[i];
    }
    return aus;
}

} // namespace

std::optional<std::filesystem::path> dokumenteAusUserDirs(std::string_view text,
                                                          const std::filesystem::path& home) {
    constexpr std::string_view schluessel = "XDG_DOCUMENTS_DIR";
    std::optional<std::filesystem::path> gefunden;
    while (!text.empty()) {
        const auto ende = text.find('\n');
        const std::string_view zeile = ohneRand(text.substr(0, ende));
        text = ende == std::string_view::npos ? std::string_view{} : text.substr(ende + 1);
        if (!zeile.starts_with(schluessel)) {
            continue;
        }
        const std::string_view rest = ohneRand(zeile.substr(schluessel.size()));
        if (!rest.starts_with('=')) {
            continue;
        }
        const auto wert = inAnfuehrung(ohneRand(rest.substr(1)));
        if (!wert) {
            continue;
        }
        // The last setting wins, as when the shell sources the file.
        if (*wert == "$HOME" || *wert == "$HOME/") {
            gefunden.reset();
        } else if (wert->starts_with("$HOME/")) {
            gefunden = home / wert->substr(6);
        } else if (wert->starts_with('/')) {
            gefunden = std::filesystem::path(*wert);
        }
    }
    if (gefunden && gefunden->lexically_normal() == home.lexically_normal()) {
        return std::nullopt;
    }
    return gefunden;
}

std::optional<std::filesystem::path> standardDokumentenOrdner() {
    if (const char* xdg = umgebung("XDG_DOCUMENTS_DIR")) {
        return std::filesystem::path(xdg);
    }
    const auto home = homeOrdner();
    if (!home) {
        return std::nullopt;
    }
    const std::filesystem::path konfiguration =
        umgebung("XDG_CONFIG_HOME") ? std::filesystem::path(umgebung("XDG_CONFIG_HOME"))
                                    : *home / ".config";
    const std::filesystem::path einstellung = konfiguration / "user-dirs.dirs";
    std::error_code fehler;
    // Only a regular file: a pipe under that name must not make the program wait.
    std::ifstream datei;
    if (std::filesystem::is_regular_file(einstellung, fehler)) {
        datei.open(einstellung, std::ios::binary);
    }
    if (datei) {
        // The setting is a few hundred bytes; what lies beyond 64 KiB is no setting of ours.
        std::string text(65536, '\0');
        datei.read(text.data(), static_cast<std::streamsize>(text.size()));
        text.resize(static_cast<std::size_t>(datei.gcount()));
        if (auto ordner = dokumenteAusUserDirs(text, *home)) {
            return ordner;
        }
    }
    return *home / "Documents";
}

int ordnerAnlegen(const std::filesystem::path& ordner) {
    std::error_code fehler;
    std::filesystem::create_directories(ordner, fehler);
    std::error_code pruefung;
    if (std::filesystem::is_directory(ordner, pruefung)) {
        return 0;
    }
    if (std::filesystem::exists(ordner, pruefung)) {
        return ENOTDIR;
    }
    return fehler ? fehler.value() : ENOENT;
}

} // namespace tabulon
