// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/c_glob.h"
#include "tools/teststation/teststation.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

// A temporary folder that is removed with the object.
class TempOrdner {
public:
    TempOrdner();
    ~TempOrdner();
    TempOrdner(const TempOrdner&) = delete;
    TempOrdner& operator=(const TempOrdner&) = delete;
    const std::filesystem::path& pfad() const { return pfad_; }
    // Writes a file into the folder and returns its path.
    std::filesystem::path schreiben(const std::string& name, const std::string& inhalt) const;

private:
    std::filesystem::path pfad_;
};

// The text of a file, byte for byte; empty when it cannot be read.
std::string datei_lesen(const std::filesystem::path& pfad);

// A project record on the heap (the hourly tables make it too large for a test's stack).
std::unique_ptr<Projekt> leeres_projekt();

// A record with the inputs of a new project and no station read: enough for geometry and the
// building parameters.
std::unique_ptr<Projekt> neues_projekt_ohne_klima();

// The new project on a station written into `ordner` as "trier.met", read and recalculated as
// at start. `stunde` gives the station's hours (default: the synthetic climate).
std::unique_ptr<Projekt>
neues_testprojekt(const TempOrdner& ordner,
                  const std::function<Stationsstunde(int, int)>& stunde = synthetisches_wetter,
                  const Stationskopf& kopf = Stationskopf{});
