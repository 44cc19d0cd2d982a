// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/shell/cli_programm.h"
#include "report/Report.h"
#include "tests/support/Testprojekt.h"

#include <memory>
#include <string>

// The program started without a display on the synthetic station in a folder of its own, in
// the language `sprache`, with the new project; the report reads its record and planes.
struct Reportprogramm {
    explicit Reportprogramm(const std::string& sprache);
    TempOrdner ordner;
    std::unique_ptr<Projekt> datensatz = leeres_projekt();
    std::unique_ptr<KonsolenProgramm> programm;
    Reportquelle quelle() const;
    // The report of the language of the run.
    std::string report(int seite) const;
};

// Compares `jetzt` with the golden file tests/report/golden/`name`; VELMARIS_GOLDEN_UPDATE=1
// rewrites it. Returns false when the file was rewritten.
bool golden_vergleichen(const std::string& name, const std::string& jetzt);
