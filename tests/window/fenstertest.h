#pragma once
// A test platform that records beeps and questions, says no to every question and hands out
// fixed random numbers; and a fixture that starts each test from a fresh process state.

#include "app/zustand.h"
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
    std::vector<std::string> ereignisse;    // "piep", "frage <message>"
    std::deque<std::uint32_t> zufall;       // the next random numbers; empty: 0
    std::int64_t anhaltenNach = 0;          // asks a long command to stop after that many runs
    std::vector<std::int64_t> fortschritte; // the runs done, as each report gave them
    int fortschrittEnden = 0;

    void piep() override { ereignisse.push_back("piep"); }
    int frage(const std::string& nachricht, const std::string&, const std::string&) override {
        ereignisse.push_back("frage " + nachricht);
        return zweiterKnopf;
    }
    std::uint32_t zufallUnter(std::uint32_t grenze) override {
        if (zufall.empty()) {
            return 0;
        }
        const std::uint32_t z = zufall.front();
        zufall.pop_front();
        return z % grenze;
    }
    void beenden(int) override {}
    std::optional<std::filesystem::path> dokumentenOrdner() override { return std::nullopt; }
    bool fortschritt(std::int64_t fertig, std::int64_t gesamt) override {
        EXPECT_LT(fertig, gesamt);
        fortschritte.push_back(fertig);
        return fertig != anhaltenNach;
    }
    void fortschrittEnde() override { ++fortschrittEnden; }
};

class FensterTest : public ::testing::Test {
protected:
    FensterTest() { allesZuruecksetzen(); }

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

    // Puts the matrix written as "a|b;c|d" into the list under the name.
    static void speichere(const std::string& name, const std::string& text) {
        std::int64_t zeilen = 1;
        std::vector<std::string> eintraege{""};
        for (const char c : text) {
            if (c == ';' || c == '|') {
                zeilen += c == ';';
                eintraege.emplace_back();
            } else {
                eintraege.back() += c;
            }
        }
        SMatrix m(zeilen, std::ssize(eintraege) / zeilen);
        m.grid = std::move(eintraege);
        listenZustand().sMatrixListe[name] = m;
        listenZustand().smNamen.erase(name);
    }

    TestPlattform plattform;
    ViewController vc{plattform};
};

} // namespace tabulon
