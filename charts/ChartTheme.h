// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "charts/Surface.h"

#include <string>

// The colours and fonts of the charts, by what they stand for. One value serves the screen and
// the printed pages; the defaults are the program's own palette.
struct ChartTheme {
    Rgb transmission{0, 0, 136};   // transmission losses; window losses of a facade
    Rgb lueftung{102, 102, 255};   // ventilation losses
    Rgb heizen{255, 0, 0};         // heat demand; heating hours; room air
    Rgb intern{255, 128, 0};       // usable internal gains
    Rgb solar{255, 255, 0};        // usable solar gains; window gains; zero-energy hours
    Rgb kuehlen{0, 0, 255};        // cooling demand; cooling hours; outdoor air
    Rgb achsen{0, 0, 0};           // axes, ticks, bar outlines, texts
    Rgb gitter{192, 192, 192};     // grid of the temperature chart
    Rgb solar_gesamt{192, 192, 0}; // solar gains beyond the usable part
    Rgb intern_gesamt{200, 99, 0}; // internal gains beyond the usable part
    Rgb ueberwaermung{128, 0, 0};  // overheating hours per day
    Rgb kuehlgradstunden{64, 64, 0};
    Rgb sankey_heizen{255, 180, 180};      // bands of the heating energy flow
    Rgb sankey_kuehlen{180, 180, 255};     // bands of the cooling energy flow
    std::string schrift = "MS Sans Serif"; // font of the bar charts
    double schriftgroesse = 8.25;          // its size, points
    std::string sankey_schrift = "Arial";  // font of the energy flow diagrams
    double sankey_schriftgroesse = 8;
};

// What every chart routine is given besides the record and its surfaces.
struct Diagrammeinstellung {
    std::string Sprache = "d"; // "d" or "e"; any other letter prints no language-bound text
    char dezimal = ',';        // decimal mark of the locale in values such as "0.0"
    ChartTheme thema;
};
