// SPDX-License-Identifier: GPL-3.0-or-later
// The PVGIS CSV export (typical year or hourly series): optional head lines with "Latitude
// (decimal degrees):" and "Longitude (decimal degrees):", a line of column names with time(UTC),
// T2m, G(h) and Gd(h), one row per hour stamped YYYYMMDD:HHMM in universal time, and an optional
// footer after the rows. The radiation of stamp HH:00 is centred a quarter-hour after it, so a
// stamp is taken as the hour ending one hour later.
#include "climate/import/quelle_intern.h"
#include "climate/import/zahltext.h"

#include <cmath>

namespace quellen {

namespace {

// "Latitude (decimal degrees):	45.000" and the like.
bool kopfwert(std::string_view zeile, std::string_view name, double& wert) {
    if (zeile.substr(0, name.size()) != name) {
        return false;
    }
    const std::size_t doppelpunkt = zeile.find(':');
    if (doppelpunkt == std::string_view::npos) {
        return false;
    }
    std::string_view rest = zeile.substr(doppelpunkt + 1);
    const std::size_t komma = rest.find(',');
    return zahl_streng(rest.substr(0, komma), wert);
}

bool ziffern(std::string_view text) {
    for (const char c : text) {
        if (c < '0' || c > '9') {
            return false;
        }
    }
    return !text.empty();
}

} // namespace

void pvgis_lesen(const std::vector<std::string_view>& zeilen, Quelldaten& d) {
    std::size_t kopf = 0;
    bool breite = false, laenge = false;
    while (kopf < zeilen.size() && zeilen[kopf].find("time(UTC)") == std::string_view::npos) {
        breite = breite || kopfwert(zeilen[kopf], "Latitude", d.breite);
        laenge = laenge || kopfwert(zeilen[kopf], "Longitude", d.laenge);
        ++kopf;
    }
    if (kopf >= zeilen.size()) {
        throw Lesefehler(0, "no line of column names with \"time(UTC)\"", true);
    }
    d.koordinaten = breite && laenge;
    d.stempelzone = 0;
    d.ortszone = d.koordinaten ? std::round(d.laenge / 15) : 0;

    const std::vector<std::string_view> namen = felder(zeilen[kopf], ',');
    auto spalte = [&](std::string_view name) {
        for (std::size_t i = 0; i < namen.size(); ++i) {
            if (namen[i] == name) {
                return i;
            }
        }
        throw Lesefehler(static_cast<int>(kopf + 1), "no column \"" + std::string(name) + "\"");
    };
    const std::size_t zeit = spalte("time(UTC)"), ta = spalte("T2m"), gh = spalte("G(h)"),
                      dh = spalte("Gd(h)");

    Stundensammler sammler(false);
    for (std::size_t i = kopf + 1; i < zeilen.size(); ++i) {
        const int nr = static_cast<int>(i + 1);
        const std::vector<std::string_view> f = felder(zeilen[i], ',');
        // The rows end at the first line without a stamp: an empty line or the footer.
        const std::string_view stempel = zeit < f.size() ? f[zeit] : std::string_view();
        if (stempel.size() != 13 || stempel[8] != ':' || !ziffern(stempel.substr(0, 8)) ||
            !ziffern(stempel.substr(9))) {
            break;
        }
        if (f.size() < namen.size()) {
            throw Lesefehler(nr, "fewer fields than column names");
        }
        const int monat = (stempel[4] - '0') * 10 + (stempel[5] - '0');
        const int tag = (stempel[6] - '0') * 10 + (stempel[7] - '0');
        const int stunde = (stempel[9] - '0') * 10 + (stempel[10] - '0');
        if (stunde > 23) {
            throw Lesefehler(nr, "impossible time of day");
        }
        const int index = stundenindex(monat, tag, stunde + 1, nr);
        if (index < 0) {
            continue;
        }
        sammler.hinzu(index,
                      pruefen({zahl(f[ta], nr, "air temperature"),
                               zahl(f[gh], nr, "global horizontal radiation"),
                               zahl(f[dh], nr, "diffuse horizontal radiation")},
                              nr),
                      nr);
    }
    d.stunden = sammler.fertig();
}

} // namespace quellen
