#include "uebung/uebungscontroller.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "exakt/befehle.h"
#include "exakt/befehlhilfen.h"
#include "files/dokumente.h"
#include "terms/zeichen.h"
#include "textmatrix/liste.h"
#include "textmatrix/zahltext.h"
#include "uebung/zeilenparser.h"

namespace tabulon {

UebungsController::UebungsController(Plattform& plattform, Uebung uebung, InsTableau insTableau)
    : uebung(std::move(uebung)), plattform(plattform), insTableau(std::move(insTableau)) {
    const Uebung& u = this->uebung;
    notizF = "Übung mit " + u.name + " (" + groesse(u.start) +
             "): bitte eine Zeilenumformung eingeben, zum Beispiel „Z2 - 3 Z1“.";
}

namespace {

using UC = UebungsController;

constexpr UC::Knopf knopfTabelle[] = {
    {"umformenB", &UC::umformenB},
    {"rueckgaengigB", &UC::rueckgaengigB},
    {"tippB", &UC::tippB},
    {"pruefenB", &UC::pruefenB},
    {"vergleichenB", &UC::vergleichenB},
    {"insTableauB", &UC::insTableauB},
    {"texB", &UC::texB},
};

constexpr UC::Feld feldTabelle[] = {
    {"umformungF", &UC::umformungF},
    {"vergleichF", &UC::vergleichF},
};

} // namespace

std::span<const UC::Knopf> UebungsController::knoepfe() {
    return knopfTabelle;
}

std::span<const UC::Feld> UebungsController::felder() {
    return feldTabelle;
}

const UC::Knopf* UebungsController::knopf(std::string_view name) {
    const auto k = std::ranges::find(knopfTabelle, name, &Knopf::name);
    return k == std::end(knopfTabelle) ? nullptr : k;
}

const UC::Feld* UebungsController::feld(std::string_view name) {
    const auto f = std::ranges::find(feldTabelle, name, &Feld::name);
    return f == std::end(feldTabelle) ? nullptr : f;
}

bool UebungsController::fensterAktion(std::string_view name) {
    const Knopf* gefunden = knopf(name);
    if (gefunden == nullptr) {
        return false;
    }
    (this->*(gefunden->aktion))();
    return true;
}

void UebungsController::abgelehnt(std::string meldung) {
    plattform.piep();
    notizF = std::move(meldung);
}

void UebungsController::umformenB() {
    const UmformungLesung l = liesUmformung(umformungF, uebung.start.rows);
    if (!l.ok) {
        // The text stays in the field, so that the learner can correct it.
        abgelehnt(l.fehler);
        return;
    }
    uebung.umformen(l.operation);
    umformungF.clear();
    notizF = "Schritt " + zahl(uebung.schritte.size()) + ": " + l.operation.text().text();
    notizF += pruefe(uebung.aktuell()).reduziert
                  ? ". Die Matrix ist jetzt in reduzierter Zeilenstufenform."
                  : ".";
}

void UebungsController::rueckgaengigB() {
    if (uebung.schritte.empty()) {
        abgelehnt("Es gibt noch keinen Schritt, der rückgängig gemacht werden kann.");
        return;
    }
    const std::string text = uebung.schritte.back().text().text();
    const std::size_t n = uebung.schritte.size();
    uebung.rueckgaengig();
    notizF = "Schritt " + zahl(n) + " (" + text + ") ist rückgängig gemacht.";
}

void UebungsController::tippB() {
    const Tipp t = naechsterSchritt(uebung.aktuell());
    if (t.fertig) {
        umformungF.clear();
        notizF = t.grund;
        return;
    }
    umformungF = t.operation.text().text();
    notizF = "Tipp: " + t.grund;
}

void UebungsController::pruefenB() {
    notizF = pruefText(pruefe(uebung.aktuell()));
}

void UebungsController::vergleichenB() {
    // A lower-case letter names the same matrix, upper-cased as the name field is.
    vergleichF = grossGeschrieben(vergleichF);
    const std::string& name = vergleichF;
    const auto& liste = listenZustand().sMatrixListe;
    const auto gefunden = liste.find(name);
    if (name.empty() || gefunden == liste.end()) {
        abgelehnt("Bitte Namen einer Matrix der Liste im Feld 'Vergleich' angeben.");
        return;
    }
    const BLesung l = liesBMatrix(name, gefunden->second);
    if (!l.ok) {
        abgelehnt(l.notiz);
        return;
    }
    const BMatrix& a = uebung.start;
    const BMatrix& b = l.matrix;
    const std::string& start = uebung.name;
    if (a.rows != b.rows || a.columns != b.columns) {
        notizF = name + " ist nicht zeilenäquivalent zu " + start + ": " + name + " ist " +
                 groesse(b) + ", " + start + " ist " + groesse(a) + ".";
        return;
    }
    const Vergleich v = vergleiche(a, b);
    if (!v.aequivalent)
        notizF = name + " ist nicht zeilenäquivalent zu " + start + ".";
    else if (v.reduzierteForm)
        notizF = name + " ist zeilenäquivalent zu " + start +
                 " und ist seine reduzierte Zeilenstufenform.";
    else
        notizF = name + " ist zeilenäquivalent zu " + start +
                 ", aber nicht seine reduzierte Zeilenstufenform.";
}

void UebungsController::insTableauB() {
    insTableau(tableauText(uebung.aktuell()));
    notizF = "Die aktuelle Matrix wurde ins Feld der Eingabematrix geschrieben.";
}

void UebungsController::texB() {
    const auto [ok, fehler] =
        schreiben(plattform.dokumentenOrdner(), texName(), texDokument(uebungsSeite(uebung)));
    if (!ok) {
        abgelehnt(exaktTexFehlerNotiz);
        return;
    }
    notizF = "Die Datei Matrix_" + texName() + " wurde im  Dokument-Ordner gespeichert.";
}

std::vector<std::string> UebungsController::schrittTexte() const {
    std::vector<std::string> texte;
    for (std::size_t i = 0; i < uebung.schritte.size(); ++i)
        texte.push_back(zahl(i + 1) + ". " + uebung.schritte[i].text().text());
    return texte;
}

} // namespace tabulon
