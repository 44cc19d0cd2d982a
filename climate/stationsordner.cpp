// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/stationsordner.h"

#include "project/Dateizugriff.h"
#include "project/c_glob.h"

#include <filesystem>
#include <system_error>

std::vector<std::string> stationsordner(const Projekt& p) {
    std::vector<std::string> ordner;
    if (!p.EigeneStationen.empty()) {
        ordner.push_back(p.EigeneStationen);
    }
    ordner.push_back(p.KlimaOrdner);
    return ordner;
}

std::string stationspfad(const Projekt& p, const std::string& datei) {
    for (const std::string& ordner : stationsordner(p)) {
        const std::string pfad = ordner + "/" + datei;
        if (datei_vorhanden(pfad)) {
            return pfad;
        }
    }
    return p.KlimaOrdner + "/" + datei;
}

std::string importordner(const Projekt& p) {
    if (p.EigeneStationen.empty()) {
        return p.KlimaOrdner;
    }
    // A fault shows when the import writes its file there.
    std::error_code fehler;
    std::filesystem::create_directories(p.EigeneStationen, fehler);
    return p.EigeneStationen;
}
