#include "qt/eintragspruefung.h"

#include "textmatrix/smatrix.h"
#include "textmatrix/zahltext.h"

#include <algorithm>

namespace tabulon {

std::optional<std::string> mitDezimalpunkt(const std::string& text) {
    if (std::count(text.begin(), text.end(), ',') != 1 || text.find('.') != std::string::npos ||
        text2Zahl(text)) {
        return std::nullopt;
    }
    std::string punkt = text;
    std::replace(punkt.begin(), punkt.end(), ',', '.');
    if (!text2Zahl(punkt)) {
        return std::nullopt;
    }
    return punkt;
}

Eintragsart eintragsart(const std::string& text) {
    if (istLeerzeichen(text)) {
        return Eintragsart::leer;
    }
    if (text2Zahl(text)) {
        return Eintragsart::zahl;
    }
    return mitDezimalpunkt(text) ? Eintragsart::dezimalkomma : Eintragsart::keineZahl;
}

QString eintragsHinweis(Eintragsart art) {
    switch (art) {
    case Eintragsart::keineZahl:
        return QStringLiteral("Keine Zahl: der Eintrag zählt bei Rechnungen als 0.");
    case Eintragsart::dezimalkomma:
        return QStringLiteral("Keine Zahl: der Eintrag zählt bei Rechnungen als 0. "
                              "Dezimalzahlen brauchen einen Punkt, zum Beispiel 1.5 statt 1,5.");
    case Eintragsart::zahl:
    case Eintragsart::leer:
        break;
    }
    return {};
}

} // namespace tabulon
