// SPDX-License-Identifier: GPL-3.0-or-later
// EnergyPlus weather files: a LOCATION line (city, state, country, source, station, latitude,
// longitude, zone, height), seven further head lines, then one record per hour with the hour
// ending 1..24 in local standard time in field 4, air temperature in field 7, total and diffuse
// horizontal radiation (Wh/m² in the hour, equal to the hourly mean in W/m²) in fields 14 and 16.
#include "climate/import/quelle_intern.h"

namespace quellen {

namespace {

constexpr std::size_t KOPFZEILEN = 8;

// "unknown" and "-" stand for a name the file does not know.
std::string name_oder_leer(std::string_view feld) {
    if (feld == "unknown" || feld == "-") {
        return {};
    }
    return std::string(feld);
}

} // namespace

void epw_lesen(const std::vector<std::string_view>& zeilen, Quelldaten& d) {
    if (zeilen.empty()) {
        throw Lesefehler(1, "no LOCATION line", true);
    }
    const std::vector<std::string_view> ort = felder(zeilen[0], ',');
    if (ort.size() < 10) {
        throw Lesefehler(1, "the LOCATION line has fewer than 10 fields");
    }
    d.ort = name_oder_leer(ort[1]);
    d.land = name_oder_leer(ort[3]);
    d.breite = zahl(ort[6], 1, "latitude");
    d.laenge = zahl(ort[7], 1, "longitude");
    d.koordinaten = true;
    d.ortszone = zahl(ort[8], 1, "time zone");
    d.stempelzone = d.ortszone;
    // The PVGIS export writes its hours in universal time, whatever the LOCATION line's zone.
    if (ort[4].find("ECMWF") != std::string_view::npos) {
        d.stempelzone = 0;
    }

    // Hourly files carry minute 0 or 60; other minutes mean several records per hour.
    bool unterstuendlich = false;
    for (std::size_t i = KOPFZEILEN; i < zeilen.size(); ++i) {
        const std::vector<std::string_view> f = felder(zeilen[i], ',');
        if (f.size() > 4 && f[4] != "0" && f[4] != "60" && !f[4].empty()) {
            unterstuendlich = true;
            break;
        }
    }
    Stundensammler sammler(unterstuendlich);
    for (std::size_t i = KOPFZEILEN; i < zeilen.size(); ++i) {
        const int nr = static_cast<int>(i + 1);
        if (zeilen[i].empty()) {
            continue;
        }
        const std::vector<std::string_view> f = felder(zeilen[i], ',');
        if (f.size() < 16) {
            throw Lesefehler(nr, "fewer than 16 fields");
        }
        const int index = stundenindex(ganz(f[1], nr, "month"), ganz(f[2], nr, "day"),
                                       ganz(f[3], nr, "hour"), nr);
        if (index < 0) {
            continue;
        }
        const Quellstunde s = pruefen({zahl(f[6], nr, "air temperature"),
                                       zahl(f[13], nr, "global horizontal radiation"),
                                       zahl(f[15], nr, "diffuse horizontal radiation")},
                                      nr);
        sammler.hinzu(index, s, nr);
    }
    d.stunden = sammler.fertig();
}

} // namespace quellen
