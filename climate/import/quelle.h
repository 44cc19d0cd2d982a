// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Common hourly climate exports read into the 8760 hours of a station: EnergyPlus EPW (also the
// PVGIS EPW export), the DWD test reference year (.dat), the Modelica table (.mos), NSRDB CSV
// downloads (any step up to an hour, averaged) and the PVGIS CSV export.

#include "climate/import/Klimaimport.h"

#include <string>
#include <string_view>
#include <vector>

constexpr int JAHRESSTUNDEN = 8760;

// One hour: the mean over the hour of outdoor air °C, total and diffuse horizontal W/m².
struct Quellstunde {
    double Ta = 0;
    double G_Gh = 0;
    double G_Dh = 0;
};

// What a source says of itself and its hours.
struct Quelldaten {
    Quellformat format = Quellformat::spalten;
    std::string ort;          // place from the header, may be empty
    std::string land;         // country from the header, may be empty
    bool koordinaten = false; // latitude and longitude known
    double breite = 0;        // degrees, north positive
    double laenge = 0;        // degrees, east positive
    double ortszone = 0;      // local standard time, hours east of Greenwich (a proposal)
    double stempelzone = 0;   // time base of `stunden`, hours east of Greenwich
    // 8760 hours of the year without Feb 29; index k is the hour that ends k + 1 hours after
    // January 1, 0:00, in `stempelzone`.
    std::vector<Quellstunde> stunden;
};

// Why a source could not be read: the 1-based line of the file (0 when the fault is not one
// line's), the reason, and whether hours are missing rather than wrong.
struct Quellfehler {
    int zeile = 0;
    std::string grund;
    bool zu_wenig = false;
};

// The format of a source text by its first lines; `spalten` when none is recognised.
Quellformat format_erkennen(const std::vector<std::string_view>& zeilen);

// Reads a source of a known format (not `spalten`). True with `daten` filled, or false with
// `fehler` set and `daten` holding what the head gave before the fault (no hours); never more
// than the text holds.
bool quelle_lesen(Quellformat format, std::string_view text, Quelldaten& daten,
                  Quellfehler& fehler);

// The hours moved so that they count in `zone` (hours east of Greenwich, rounded to whole hours
// of shift); the year wraps around. The returned table is in the station's own row order: the
// hour ending at 24:00 on December 31 first, then January 1 from 1:00.
std::vector<Quellstunde> stationsreihenfolge(const Quelldaten& daten, double zone);

// The name of a format for messages and the command line ("epw", "try", "mos", "nsrdb", "pvgis",
// "spalten").
std::string formatname(Quellformat format);
