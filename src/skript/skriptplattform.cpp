#include "skript/skriptplattform.h"

#include "skript/zitat.h"
#include "textmatrix/zahltext.h"

namespace tabulon::skript {

SkriptPlattform::SkriptPlattform(std::ostream& aus, std::uint32_t saat,
                                 std::filesystem::path dokumente, std::function<void(int)> ende)
    : aus(aus), zufall(saat), dokumente(std::move(dokumente)), ende(std::move(ende)) {}

void SkriptPlattform::zeile(const std::string& text) {
    aus << text << '\n';
    aus.flush();
}

void SkriptPlattform::piep() {
    zeile("piep");
}

int SkriptPlattform::frage(const std::string& nachricht, const std::string& option1,
                           const std::string& option2) {
    // With nothing queued the dialog ends without a button, as an alert closed by other means.
    int knopf = 0;
    std::string ergebnis = "Fehler";
    if (!antworten.empty()) {
        const std::string titel = std::move(antworten.front());
        antworten.pop_front();
        if (titel == option1) {
            knopf = ersterKnopf;
            ergebnis = option1;
        } else if (titel == option2) {
            knopf = zweiterKnopf;
            ergebnis = option2;
        }
    }
    zeile("frage " + zitiert(nachricht) + " " + zitiert(option1) + " " + zitiert(option2) + " -> " +
          zitiert(ergebnis));
    return knopf;
}

std::uint32_t SkriptPlattform::zufallUnter(std::uint32_t grenze) {
    return zufall.unter(grenze);
}

void SkriptPlattform::beenden(int status) {
    zeile("ende " + ganzText(status));
    if (ende) {
        ende(status);
    }
}

std::optional<std::filesystem::path> SkriptPlattform::dokumentenOrdner() {
    if (dokumente.empty()) {
        return std::nullopt;
    }
    return dokumente;
}

} // namespace tabulon::skript
