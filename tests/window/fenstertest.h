#pragma once
// A test platform that records beeps, questions and the exit, answers questions from a queue and
// hands out fixed random numbers; and a fixture that starts every test from a fresh process state.

#include "textmatrix/liste.h"
#include "textmatrix/zahltext.h"
#include "window/tableau.h"
#include "window/viewcontroller.h"

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

namespace tabulon {

class TestPlattform : public Plattform {
public:
    std::vector<std::string> ereignisse; // "piep", "frage <message>", "ende <status>"
    std::deque<int> antworten;           // results of the next questions; empty: zweiterKnopf
    std::deque<std::uint32_t> zufall;    // the next random numbers; empty: 0

    void piep() override { ereignisse.push_back("piep"); }
    int frage(const std::string& nachricht, const std::string&, const std::string&) override {
        ereignisse.push_back("frage " + nachricht);
        if (antworten.empty()) {
            return zweiterKnopf;
        }
        const int a = antworten.front();
        antworten.pop_front();
        return a;
    }
    std::uint32_t zufallUnter(std::uint32_t grenze) override {
        if (zufall.empty()) {
            return 0;
        }
        const std::uint32_t z = zufall.front();
        zufall.pop_front();
        return z % grenze;
    }
    void beenden(int status) override { ereignisse.push_back("ende " + ganzText(status)); }
    std::optional<std::filesystem::path> dokumentenOrdner() override { return std::nullopt; }

    int piepse() const {
        int n = 0;
        for (const auto& e : ereignisse) {
            n += e == "piep";
        }
        return n;
    }
};

class FensterTest : public ::testing::Test {
protected:
    FensterTest() {
        listenZustandZuruecksetzen();
        tableauZustandZuruecksetzen();
        protokollZustandZuruecksetzen();
    }

    // Types the rows into the top-left cells: {{"1", "2"}, {"3", "4"}}.
    void tippe(const std::vector<std::vector<std::string>>& zeilen) {
        for (std::size_t i = 0; i < zeilen.size(); ++i) {
            for (std::size_t j = 0; j < zeilen[i].size(); ++j) {
                vc.zelle(static_cast<int>(i), static_cast<int>(j)).text = zeilen[i][j];
            }
        }
    }

    // The visible cells as "a|b;c|d"; a visible cell outside rows 0 ... rowmax or columns
    // 0 ... columnmax, or a hidden one inside, shows up as "#".
    std::string sichtbar() const {
        const auto& t = tableauZustand();
        std::string s;
        for (int i = 0; i < 8; ++i) {
            for (int j = 0; j < 8; ++j) {
                const bool innen = i <= t.rowmax && j <= t.columnmax;
                const auto& z = vc.zelle(i, j);
                if (innen == z.versteckt) {
                    return "#";
                }
                if (innen) {
                    s += (j > 0 ? "|" : "") + z.text;
                }
            }
            if (i < t.rowmax) {
                s += ";";
            }
        }
        return s;
    }

    // Puts the rows into the list under the name, as a stored matrix.
    static void speichere(const std::string& name,
                          const std::vector<std::vector<std::string>>& zeilen) {
        SMatrix m(static_cast<std::int64_t>(zeilen.size()),
                  static_cast<std::int64_t>(zeilen[0].size()));
        for (std::size_t i = 0; i < zeilen.size(); ++i) {
            for (std::size_t j = 0; j < zeilen[i].size(); ++j) {
                m(static_cast<std::int64_t>(i), static_cast<std::int64_t>(j)) = zeilen[i][j];
            }
        }
        listenZustand().sMatrixListe[name] = m;
        listenZustand().smNamen.erase(name);
    }

    TestPlattform plattform;
    ViewController vc{plattform};
};

} // namespace tabulon
