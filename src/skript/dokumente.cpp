#include "skript/dokumente.h"

#include <cstdlib>
#include <system_error>

namespace tabulon::skript {

namespace {

const char* umgebung(const char* name) {
    const char* wert = std::getenv(name);
    return (wert != nullptr && *wert != '\0') ? wert : nullptr;
}

} // namespace

std::optional<std::filesystem::path> standardDokumentenOrdner() {
    if (const char* xdg = umgebung("XDG_DOCUMENTS_DIR")) {
        return std::filesystem::path(xdg);
    }
    if (const char* home = umgebung("HOME")) {
        return std::filesystem::path(home) / "Documents";
    }
    return std::nullopt;
}

bool ordnerAnlegen(const std::filesystem::path& ordner) {
    std::error_code fehler;
    std::filesystem::create_directories(ordner, fehler);
    return std::filesystem::is_directory(ordner, fehler);
}

} // namespace tabulon::skript
