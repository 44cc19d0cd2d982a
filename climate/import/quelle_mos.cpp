// SPDX-License-Identifier: GPL-3.0-or-later
// The Modelica weather table (TMY3 layout): comment lines "#", a line "double tab1(rows,columns)",
// then one row per hour with the time in seconds since January 1, 0:00 in column 1 (the hour that
// ends then), air temperature in column 2, total and diffuse horizontal radiation (Wh/m²) in
// columns 9 and 11. A "#LOCATION" comment names place, latitude, longitude and zone as in EPW.
#include "climate/import/quelle_intern.h"
#include "climate/import/zahltext.h"

#include <cmath>

namespace quellen {

namespace {

constexpr double STUNDE = 3600;
constexpr int FEBRUAR_29 = 59 * 24; // first hour of February 29 in a leap year, 0-based

} // namespace

void mos_lesen(const std::vector<std::string_view>& zeilen, Quelldaten& d) {
    for (const std::string_view z : zeilen) {
        if (z.substr(0, 10) != "#LOCATION,") {
            continue;
        }
        const std::vector<std::string_view> f = felder(z, ',');
        double breite = 0, laenge = 0, zone = 0;
        if (f.size() > 8 && zahl_streng(f[6], breite) && zahl_streng(f[7], laenge) &&
            zahl_streng(f[8], zone)) {
            d.breite = breite;
            d.laenge = laenge;
            d.koordinaten = true;
            d.ortszone = zone;
            d.stempelzone = zone;
        }
        if (f.size() > 1) {
            d.ort = std::string(f[1]);
        }
        break;
    }

    // The last time tells a leap year (8784 hours) from a common one.
    double letzte = 0;
    for (const std::string_view z : zeilen) {
        const std::vector<std::string_view> w = woerter(z);
        double t = 0;
        if (!w.empty() && z[0] != '#' && zahl_streng(w[0], t) && t > letzte) {
            letzte = t;
        }
    }
    const bool schaltjahr = letzte > JAHRESSTUNDEN * STUNDE;

    Stundensammler sammler(false);
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        const int nr = static_cast<int>(i + 1);
        const std::string_view z = zeilen[i];
        if (z.empty() || z[0] == '#' || z.substr(0, 7) == "double ") {
            continue;
        }
        const std::vector<std::string_view> w = woerter(z);
        if (w.empty()) {
            continue;
        }
        if (w.size() < 11) {
            throw Lesefehler(nr, "fewer than 11 columns");
        }
        const double t = zahl(w[0], nr, "time");
        if (t != std::floor(t / STUNDE) * STUNDE || t < 0 || t > 8784 * STUNDE) {
            throw Lesefehler(nr, "the time is no whole hour of the year");
        }
        // The row at 0 s is the table's start value, a copy of the first hour.
        if (t == 0) {
            continue;
        }
        int index = static_cast<int>(t / STUNDE) - 1;
        if (schaltjahr && index >= FEBRUAR_29) {
            if (index < FEBRUAR_29 + 24) {
                continue;
            }
            index -= 24;
        }
        sammler.hinzu(index,
                      pruefen({zahl(w[1], nr, "air temperature"),
                               zahl(w[8], nr, "global horizontal radiation"),
                               zahl(w[10], nr, "diffuse horizontal radiation")},
                              nr),
                      nr);
    }
    // Tables that stop at the start of the year's last hour lack the hour ending at 24:00 on
    // December 31; it repeats the hour before, a night hour.
    if (!sammler.belegt(JAHRESSTUNDEN - 1) && sammler.belegt(JAHRESSTUNDEN - 2)) {
        sammler.kopieren(JAHRESSTUNDEN - 2, JAHRESSTUNDEN - 1);
    }
    d.stunden = sammler.fertig();
}

} // namespace quellen
