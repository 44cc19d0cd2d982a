// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the case library as project files beside the synthetic test station, for the
// comparison of the browser build's command-line program with the native one:
//   web-fallprojekte DIR   ->   DIR/trier.met, DIR/<case>.vel
#include "calc/c_mod.h"
#include "climate/klimadatei.h"
#include "project/lebenszyklus/projektdatei.h"
#include "tests/regression/fallbibliothek.h"
#include "tools/teststation/teststation.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>

namespace {

bool schreiben(const std::filesystem::path& pfad, const std::string& text) {
    std::ofstream datei(pfad, std::ios::binary);
    datei << text;
    return static_cast<bool>(datei);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: web-fallprojekte DIR\n";
        return 1;
    }
    const std::filesystem::path ordner = argv[1];
    std::filesystem::create_directories(ordner);
    if (!schreiben(ordner / "trier.met", station_text(Stationskopf{}, synthetisches_wetter))) {
        std::cerr << "web-fallprojekte: cannot write into " << ordner << "\n";
        return 1;
    }
    for (const Fall& fall : FAELLE) {
        auto p = std::make_unique<Projekt>();
        p->KlimaOrdner = ordner.string();
        p->FormLoadGuard = -1;
        neues_projekt(*p);
        klimadatei_lesen(*p);
        p->FormLoadGuard = 0;
        fall.aendern(*p);
        alles_berechnen(*p);
        if (!schreiben(ordner / (std::string(fall.name) + ".vel"), datei_schreiben(*p))) {
            std::cerr << "web-fallprojekte: cannot write " << fall.name << ".vel\n";
            return 1;
        }
    }
    return 0;
}
