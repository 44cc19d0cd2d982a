// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/Testprojekt.h"

#include "calc/c_mod.h"
#include "climate/klimadatei.h"

#include <fstream>
#include <random>
#include <sstream>
#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

TempOrdner::TempOrdner() {
    // A fresh folder every time: a folder left by a killed test of a reused process id must not
    // be taken over. The name stays in lower case, as the lowered command-line paths need.
    std::random_device zufall;
    for (int versuch = 0; versuch < 100; ++versuch) {
        const fs::path name =
            fs::temp_directory_path() / ("velmaris-test-" + std::to_string(::getpid()) + "-" +
                                         std::to_string(zufall() % 1000000000u));
        if (::mkdir(name.c_str(), 0700) == 0) {
            pfad_ = name;
            return;
        }
    }
    throw std::runtime_error("no temporary folder in " + fs::temp_directory_path().string());
}

TempOrdner::~TempOrdner() {
    std::error_code fehler;
    fs::remove_all(pfad_, fehler);
}

fs::path TempOrdner::schreiben(const std::string& name, const std::string& inhalt) const {
    const fs::path ziel = pfad_ / name;
    std::ofstream(ziel, std::ios::binary) << inhalt;
    return ziel;
}

std::unique_ptr<Projekt> leeres_projekt() {
    return std::make_unique<Projekt>();
}

std::unique_ptr<Projekt> neues_projekt_ohne_klima() {
    auto p = leeres_projekt();
    neues_projekt(*p);
    return p;
}

std::unique_ptr<Projekt> neues_testprojekt(const TempOrdner& ordner,
                                           const std::function<Stationsstunde(int, int)>& stunde,
                                           const Stationskopf& kopf) {
    ordner.schreiben("trier.met", station_text(kopf, stunde));
    auto p = leeres_projekt();
    p->KlimaOrdner = ordner.pfad().string();
    p->FormLoadGuard = -1;
    neues_projekt(*p);
    klimadatei_lesen(*p);
    p->FormLoadGuard = 0;
    alles_berechnen(*p);
    return p;
}

std::string datei_lesen(const std::filesystem::path& pfad) {
    std::ifstream ein(pfad, std::ios::binary);
    std::stringstream s;
    s << ein.rdbuf();
    return s.str();
}
