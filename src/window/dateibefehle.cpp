// The file commands of the main window: saving and loading the list, the TeX export and saving
// the protocol. The files themselves are src/files/; here are the questions, notes and beeps.

#include "files/dokumente.h"
#include "files/listendatei.h"
#include "files/tex.h"
#include "textmatrix/liste.h"
#include "window/tableau.h"
#include "window/viewcontroller.h"

namespace tabulon {

void ViewController::speichern() {
    const std::string antwort = auswahl("Dieser Befehl überschreibt eine eventuell existierende "
                                        "frühere Datei mit Matrizen. Trotzdem speichern?",
                                        "Ja", "Nein, lieber nicht");
    if (antwort != "Ja") {
        return;
    }
    // The format has no escaping: a list that would not read back as it is stays unsaved, and
    // the old file with it.
    if (const auto hindernis = speicherHindernis()) {
        notiz(*hindernis);
        plattform.piep();
        return;
    }
    const auto [ok, meldung] =
        schreiben(plattform.dokumentenOrdner(), listenDateiName, alleMatrizenCodieren());
    notiz(ok ? "Die Matrizen der Liste wurden im Dokument-Ordner gespeichert." : meldung);
}

void ViewController::laden() {
    if (!listenZustand().sMatrixListe.empty()) {
        const std::string antwort =
            auswahl("Dieser Befehl überschreibt alle Matrizen der Liste, deren Namen bei den zu "
                    "ladenden Matrizen ebenfalls vorkommen. Trotzdem laden?",
                    "Ja", "Nein, lieber nicht");
        if (antwort != "Ja") {
            return;
        }
    }
    const auto [gelesen, text] =
        lesen(plattform.dokumentenOrdner(), "Matrix_" + listenDateiName, groessteListendatei);
    if (!gelesen) {
        notiz(text);
        plattform.piep();
        return;
    }
    const auto [meldung, eingetragen] = codestringDecodieren(text);
    if (!eingetragen) {
        notiz(meldung);
        plattform.piep();
        return;
    }
    ausgabeF = "";
    zeigeListe();
    notiz("Die im Dokumente-Ordner gespeicherten Matrizen wurden geladen. ");
    aktualisiereMListe();
}

std::string ViewController::listeAllerMatrizen() const {
    return texAlle(listenZustand().dezimalen);
}

void ViewController::texAusgabeEinzel() {
    const std::string name = liesName();
    const std::string text = tex(name, listenZustand().dezimalen);
    bool ok = false;
    if (!text.empty()) {
        ok = schreiben(plattform.dokumentenOrdner(), name, text).first;
    }
    if (ok) {
        notiz("Die Datei Matrix_" + name + " wurde im  Dokument-Ordner gespeichert.");
    } else {
        notiz("Da hat irgendetwas nicht funktioniert.");
        plattform.piep();
    }
}

void ViewController::texAusgabeAlle() {
    if (listenZustand().sMatrixListe.empty()) {
        notiz("Die Liste aller Matrizen scheint leer zu sein.");
        plattform.piep();
        return;
    }
    const bool ok = schreiben(plattform.dokumentenOrdner(), "Alle", listeAllerMatrizen()).first;
    if (ok) {
        notiz("Die Datei 'Matrix_Alle'  wurde im  Dokument-Ordner gespeichert.");
    } else {
        notiz("Da hat beim Speichern irgendetwas nicht funktioniert.");
        plattform.piep();
    }
}

void ViewController::protoSpeichern() {
    std::string s;
    for (const std::string& seite : protokollZustand().protokoll) {
        s += "\n" + seite;
    }
    if (schreiben(plattform.dokumentenOrdner(), "proto", s).first) {
        notiz("Das Protokoll wurde im Doku-Ordner als 'Matrix_proto.txt' gespeichert.");
    } else {
        plattform.piep();
    }
}

} // namespace tabulon
