#include "skript/treiber.h"

#include "app/tabulonhilfen.h"
#include "skript/zitat.h"
#include "textmatrix/liste.h"
#include "textmatrix/zahltext.h"
#include "window/aktionen.h"
#include "window/tableau.h"

#include <string_view>

namespace tabulon::skript {

namespace {

// One entry of the in/out matrix; a matrix that lost its 8 x 8 shape shows "" where it has none.
std::string eintrag(const SMatrix& m, int i, int j) {
    return m.indexIsValid(i, j) ? m(i, j) : std::string();
}

// One row of the tableau: each cell's text, marked with ~ when the cell is hidden.
std::string tableauZeile(int zeile, const ViewController& vc) {
    std::string text = ganzText(zeile) + ":";
    for (int j = 0; j < 8; ++j) {
        const Zelle& z = vc.zelle(zeile, j);
        text += z.versteckt ? " ~" : " ";
        text += zitiert(z.text);
    }
    return text;
}

} // namespace

Treiber::Treiber(SkriptPlattform& plattform) : plattform(plattform), vc(plattform) {
    // The desktop program's order: the window loads and registers, then launching has finished.
    vc.viewDidLoad([this](ViewController& v) { delegate.mainVC = &v; });
    delegate.applicationDidFinishLaunching();
}

bool Treiber::zeige(const std::string& was) {
    if (const Textfeld* feld = textfeld(was)) {
        plattform.zeile(was + " " + zitiert(vc.*(feld->wert)));
        return true;
    }
    if (was == "hintergrund") {
        plattform.zeile(vc.eingabeFbGruen ? "hintergrund gruen" : "hintergrund weiss");
    } else if (was == "tableau") {
        const auto& t = tableauZustand();
        plattform.zeile("tableau " + ganzText(t.rowmax) + " " + ganzText(t.columnmax));
        for (int i = 0; i < 8; ++i) {
            plattform.zeile(tableauZeile(i, vc));
        }
    } else if (was == "einaus") {
        const SMatrix& m = tableauZustand().strEinAusMatrix;
        for (int i = 0; i < 8; ++i) {
            std::string text = ganzText(i) + ":";
            for (int j = 0; j < 8; ++j) {
                text += " " + zitiert(eintrag(m, i, j));
            }
            plattform.zeile(text);
        }
    } else if (was == "liste") {
        const auto& liste = listenZustand();
        for (const auto& [name, m] : liste.sMatrixListe) {
            std::string text =
                "matrix " + name + " " + ganzText(m.rows) + " " + ganzText(m.columns);
            for (const auto& e : m.grid) {
                text += " " + zitiert(e);
            }
            plattform.zeile(text);
        }
        std::string frei;
        for (const auto& name : liste.smNamen) {
            frei += name;
        }
        plattform.zeile("frei " + zitiert(frei));
    } else if (was == "protokoll") {
        const auto& p = protokollZustand();
        plattform.zeile("protokoll " + ganzText(p.aktSeitenNr) + " " + ganzText(p.maxSeitenNr));
        for (std::size_t i = 0; i < p.protokoll.size(); ++i) {
            plattform.zeile("seite " + ganzText(static_cast<std::int64_t>(i)) + " " +
                            zitiert(p.protokoll[i]));
        }
    } else if (was == "einstellungen") {
        const auto& liste = listenZustand();
        plattform.zeile("einstellungen " + ganzText(liste.dezimalen) + " " +
                        (liste.ueberschreiben ? "an" : "aus"));
    } else {
        return false;
    }
    return true;
}

std::string Treiber::ausfuehren(const Befehl& befehl) {
    if (auto uebung = uebungsBefehl(befehl)) {
        return *uebung;
    }
    switch (befehl.art) {
    case Befehlsart::feld: {
        const Textfeld* feld = textfeld(befehl.name);
        if (feld == nullptr || !feld->tippbar) {
            return "unbekanntes Eingabefeld " + zitiert(befehl.name);
        }
        vc.*(feld->wert) = befehl.text;
        break;
    }
    case Befehlsart::zelle:
        // Typing changes the cell only; the commands read it into the in/out matrix themselves.
        vc.zelle(befehl.zeile, befehl.spalte).text = befehl.text;
        break;
    case Befehlsart::regler:
        vc.dezimalRegler = befehl.zeile;
        vc.dezimalSlider();
        break;
    case Befehlsart::haken:
        vc.ueberschreibF = befehl.an;
        vc.ueberschreibChecker();
        break;
    case Befehlsart::antwort:
        plattform.antwortVormerken(befehl.text);
        break;
    case Befehlsart::knopf: {
        // Slider and checkbox are window actions too, but set their value first, through their
        // own commands.
        const Fensteraktion* aktion = fensteraktion(befehl.name);
        if (aktion == nullptr || !aktion->knopf) {
            return "unbekannter Knopf " + zitiert(befehl.name);
        }
        (vc.*(aktion->aktion))();
        break;
    }
    case Befehlsart::menue:
        if (!delegate.menueAktion(befehl.name)) {
            return "unbekannte Menüaktion " + zitiert(befehl.name);
        }
        break;
    case Befehlsart::zeige:
        if (!zeige(befehl.name)) {
            return "unbekannte Anzeige " + zitiert(befehl.name);
        }
        break;
    case Befehlsart::hilfe: {
        // A help window opened afresh for each topic, as the desktop window makes a new one on
        // every opening; the topic then replaces the general information it shows first.
        TabulonHilfen hilfen;
        hilfen.viewDidLoad();
        hilfen.viewDidAppear();
        if (!hilfen.hilfeAktion(befehl.name)) {
            return "unbekanntes Hilfethema " + zitiert(befehl.name);
        }
        plattform.zeile("hifeF " + zitiert(hilfen.hifeF));
        break;
    }
    }
    return {};
}

int Treiber::lauf(std::istream& ein, std::ostream& fehlerAus, const std::string& quelle) {
    std::string zeile;
    std::int64_t nummer = 0;
    while (std::getline(ein, zeile)) {
        ++nummer;
        // Some editors begin a UTF-8 file with a byte order mark; it is no part of the command.
        if (nummer == 1 && zeile.starts_with("\xEF\xBB\xBF")) {
            zeile.erase(0, 3);
        }
        const Zeilenergebnis z = zerlegeZeile(zeile);
        std::string fehler = z.fehler;
        if (z.befehl) {
            fehler = ausfuehren(*z.befehl);
        }
        if (!fehler.empty()) {
            fehlerAus << "tabulon-skript: " << quelle << ", Zeile " << ganzText(nummer) << ": "
                      << fehler << '\n';
            fehlerAus.flush();
            return 2;
        }
    }
    if (ein.bad()) {
        fehlerAus << "tabulon-skript: " << quelle << " kann nach Zeile " << ganzText(nummer)
                  << " nicht weiter gelesen werden\n";
        fehlerAus.flush();
        return 2;
    }
    return 0;
}

} // namespace tabulon::skript
