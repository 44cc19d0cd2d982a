// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// A deterministic generator of station files for tests and for a fresh clone without delivered
// climate data. It writes the exact layout the station reader expects: the place line, three
// header numbers after 14-character labels, an empty line, the column head, and 8760 rows of four
// right-aligned five-column fields, the last hour of the year first.

#include <functional>
#include <string>

struct Stationskopf {
    std::string ort = "Teststation (Deutschland)";
    double breite = 49.75; // degrees, north positive
    double laenge = -6.64; // degrees, west positive
    double zone = -1;      // hours, east of Greenwich negative
};

// One hour of the year: outdoor air °C, total and diffuse horizontal radiation W/m².
struct Stationsstunde {
    double Ta = 0;
    double G_Gh = 0;
    double G_Dh = 0;
};

// A field right-aligned to five columns.
std::string feld5(const std::string& text);

// The station file text (CR LF line ends) with the hours given by `stunde(tag, stunde)`, day
// 1..365 and hour 1..24.
std::string station_text(const Stationskopf& kopf,
                         const std::function<Stationsstunde(int, int)>& stunde);

// A plausible synthetic central European climate: a yearly and a daily temperature wave, a
// clear-sky radiation shape by sun height, and deterministic clouds.
Stationsstunde synthetisches_wetter(int tag, int stunde);
