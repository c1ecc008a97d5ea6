#pragma once
// A fresh process state and a fresh documents folder for every test, a platform that records
// beeps and questions, and small helpers to put matrices into the list and read files back.

#include "textmatrix/liste.h"
#include "window/tableau.h"
#include "window/viewcontroller.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace tabulon {

class DateiPlattform : public Plattform {
public:
    std::optional<std::filesystem::path> ordner;
    int antwort = zweiterKnopf; // the button pressed at every question
    int piepse = 0;

    void piep() override { ++piepse; }
    int frage(const std::string&, const std::string&, const std::string&) override {
        return antwort;
    }
    std::uint32_t zufallUnter(std::uint32_t) override { return 0; }
    void beenden(int) override {}
    std::optional<std::filesystem::path> dokumentenOrdner() override { return ordner; }
};

class DateiTest : public ::testing::Test {
protected:
    DateiTest() {
        listenZustandZuruecksetzen();
        tableauZustandZuruecksetzen();
        protokollZustandZuruecksetzen();
        std::string muster = (std::filesystem::temp_directory_path() / "tabulon-XXXXXX").string();
        ordner = mkdtemp(muster.data());
        plattform.ordner = ordner;
    }
    ~DateiTest() override {
        std::error_code fehler;
        std::filesystem::remove_all(ordner, fehler);
    }

    // A matrix of the given rows, its entries row by row.
    static void liste(const std::string& name, std::int64_t zeilen, std::vector<std::string> e) {
        SMatrix m(zeilen, static_cast<std::int64_t>(e.size()) / zeilen);
        m.grid = std::move(e);
        listenZustand().sMatrixListe[name] = m;
        listenZustand().smNamen.erase(name);
    }

    // The list worked through in the documentation: A = 1, 2 / 3, 4 and C = -0.5, 1e3, 0.0.
    static void beispielListe() {
        liste("A", 2, {"1", "2", "3", "4"});
        liste("C", 1, {"-0.5", "1e3", "0.0"});
    }

    std::string inhalt(const std::string& datei) const {
        std::ifstream ein(ordner / datei, std::ios::binary);
        return {std::istreambuf_iterator<char>(ein), std::istreambuf_iterator<char>()};
    }
    void lege(const std::string& datei, const std::string& text) const {
        std::ofstream(ordner / datei, std::ios::binary) << text;
    }
    std::vector<std::string> dateien() const {
        std::vector<std::string> namen;
        for (const auto& e : std::filesystem::directory_iterator(ordner)) {
            namen.push_back(e.path().filename().string());
        }
        std::sort(namen.begin(), namen.end());
        return namen;
    }

    std::filesystem::path ordner;
    DateiPlattform plattform;
    ViewController vc{plattform};
};

} // namespace tabulon
