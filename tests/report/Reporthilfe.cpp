// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/report/Reporthilfe.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

Reportprogramm::Reportprogramm(const std::string& sprache) {
    ordner.schreiben("trier.met", station_text(Stationskopf{}, synthetisches_wetter));
    programm = std::make_unique<KonsolenProgramm>(*datensatz, ordner.pfad().string(), sprache);
}

Reportquelle Reportprogramm::quelle() const {
    return Reportquelle{programm->p, *programm->ebenen, dezimalzeichen(programm->p.Sprache),
                        [](const std::string& t) { return times_breite(t); }};
}

std::string Reportprogramm::report(int seite) const {
    return report_der_sprache(quelle(), static_cast<int16_t>(seite));
}

bool golden_vergleichen(const std::string& name, const std::string& jetzt) {
    const std::string pfad = std::string(VELMARIS_SOURCE_DIR) + "/tests/report/golden/" + name;
    if (std::getenv("VELMARIS_GOLDEN_UPDATE") != nullptr) {
        std::ofstream(pfad, std::ios::binary) << jetzt;
        return false;
    }
    std::ifstream datei(pfad, std::ios::binary);
    EXPECT_TRUE(datei) << "no golden file " << pfad;
    EXPECT_EQ(jetzt, datei_lesen(pfad)) << "the text drifted from " << pfad;
    return true;
}
