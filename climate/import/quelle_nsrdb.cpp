// SPDX-License-Identifier: GPL-3.0-or-later
// NSRDB downloads: line 1 names and line 2 values of the site (Latitude, Longitude, Time Zone of
// the stamps, Local Time Zone), line 3 the column names, then one row per time stamp (Year, Month,
// Day, Hour, Minute in the zone of the stamps). The column order differs between files, so every
// column is found by its name. A stamp after (H-1):00 up to H:00 belongs to the hour ending at H;
// its values are averaged, four quarter-hours for the 15-minute files.
#include "climate/import/quelle_intern.h"
#include "climate/import/zahltext.h"

namespace quellen {

namespace {

std::size_t spalte(const std::vector<std::string_view>& namen, std::string_view name, int zeile) {
    for (std::size_t i = 0; i < namen.size(); ++i) {
        if (namen[i] == name) {
            return i;
        }
    }
    throw Lesefehler(zeile, "no column \"" + std::string(name) + "\"");
}

} // namespace

void nsrdb_lesen(const std::vector<std::string_view>& zeilen, Quelldaten& d) {
    if (zeilen.size() < 3) {
        throw Lesefehler(static_cast<int>(zeilen.size()) + 1, "the three head lines are missing",
                         true);
    }
    const std::vector<std::string_view> kopf = felder(zeilen[0], ',');
    const std::vector<std::string_view> werte = felder(zeilen[1], ',');
    auto kopfwert = [&](std::string_view name, double& wert) {
        for (std::size_t i = 0; i < kopf.size() && i < werte.size(); ++i) {
            if (kopf[i] == name) {
                return zahl_streng(werte[i], wert);
            }
        }
        return false;
    };
    d.koordinaten = kopfwert("Latitude", d.breite) && kopfwert("Longitude", d.laenge);
    if (!kopfwert("Time Zone", d.stempelzone)) {
        throw Lesefehler(2, "no \"Time Zone\" of the time stamps");
    }
    if (!kopfwert("Local Time Zone", d.ortszone)) {
        d.ortszone = d.stempelzone;
    }

    const std::vector<std::string_view> namen = felder(zeilen[2], ',');
    const std::size_t monat = spalte(namen, "Month", 3), tag = spalte(namen, "Day", 3),
                      stunde = spalte(namen, "Hour", 3), minute = spalte(namen, "Minute", 3),
                      ta = spalte(namen, "Temperature", 3), ghi = spalte(namen, "GHI", 3),
                      dhi = spalte(namen, "DHI", 3);

    Stundensammler sammler(true);
    for (std::size_t i = 3; i < zeilen.size(); ++i) {
        const int nr = static_cast<int>(i + 1);
        if (zeilen[i].empty()) {
            continue;
        }
        const std::vector<std::string_view> f = felder(zeilen[i], ',');
        if (f.size() < namen.size()) {
            throw Lesefehler(nr, "fewer fields than column names");
        }
        const int h = ganz(f[stunde], nr, "hour");
        const int min = ganz(f[minute], nr, "minute");
        if (h < 0 || h > 23 || min < 0 || min > 59) {
            throw Lesefehler(nr, "impossible time of day");
        }
        // The day's hour index of the stamp's day, then the hour the stamp closes or lies in.
        const int tagesanfang =
            stundenindex(ganz(f[monat], nr, "month"), ganz(f[tag], nr, "day"), 1, nr);
        if (tagesanfang < 0) {
            continue;
        }
        int index = tagesanfang + h - (min == 0 ? 1 : 0);
        if (index < 0) {
            index += JAHRESSTUNDEN;
        }
        sammler.hinzu(index,
                      pruefen({zahl(f[ta], nr, "air temperature"),
                               zahl(f[ghi], nr, "global horizontal radiation"),
                               zahl(f[dhi], nr, "diffuse horizontal radiation")},
                              nr),
                      nr);
    }
    d.stunden = sammler.fertig();
}

} // namespace quellen
