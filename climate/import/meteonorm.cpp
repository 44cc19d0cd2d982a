// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/import/meteonorm.h"

#include <string>

namespace {

bool enthaelt(std::string_view text, std::string_view teil) {
    return text.find(teil) != std::string_view::npos;
}

// Drops a leading "-" and reports whether there was one.
bool vorzeichen_ab(std::string& text) {
    if (!text.empty() && text[0] == '-') {
        text.erase(0, 1);
        return true;
    }
    return false;
}

} // namespace

bool ist_meteonorm(const std::vector<std::string_view>& zeilen) {
    if (zeilen.size() < 4) {
        return false;
    }
    const std::string_view z = zeilen[3];
    return enthaelt(z, "Ta") && (enthaelt(z, "G_Gh") || enthaelt(z, "G_Dh"));
}

void Meteonorm_Lesen(Klimaimport& f, const std::vector<std::string_view>& zeilen) {
    f.Laden_aktiv = true;
    f.Kopfzeilen = "4";
    f.Dezimalzeichen = 1;

    auto zeile = [&](std::size_t i) { return i < zeilen.size() ? zeilen[i] : std::string_view(); };
    std::string ort(zeile(0));
    if (!ort.empty() && ort[0] == '"') {
        ort = ort.size() >= 2 ? ort.substr(1, ort.size() - 2) : std::string();
    }
    f.Standortname = ort;

    // Latitude, longitude, height and zone, comma-separated; the zone is the rest of the line.
    std::string rest(zeile(1));
    auto naechstes = [&rest]() {
        const std::size_t komma = rest.find(',');
        std::string teil = rest.substr(0, komma);
        rest = komma == std::string::npos ? std::string() : rest.substr(komma + 1);
        return teil;
    };
    std::string breite = naechstes();
    f.Breitezusatz = vorzeichen_ab(breite) ? 1 : 0;
    f.Breitengrad = breite;
    std::string laenge = naechstes();
    f.Laengezusatz = vorzeichen_ab(laenge) ? 1 : 0;
    f.Laengengrad = laenge;
    naechstes();
    f.GMT = vorzeichen_ab(rest) ? 0 : 1;
    f.Zeitzone = rest;

    f.Dezimalzeichen = 0;
    f.Datentrennung = 0;
    f.Land.clear();

    // The column names, tab-separated; a later column replaces an earlier of the same name.
    int temperatur = 0, gesamt = 0, diffus = 0, direkt = 0;
    const std::string_view namen = zeile(3);
    std::size_t pos = 0;
    for (int n = 1;; ++n) {
        const std::size_t tab = namen.find('\t', pos);
        const std::string_view wert =
            namen.substr(pos, tab == std::string_view::npos ? tab : tab - pos);
        if (enthaelt(wert, "Ta")) {
            temperatur = n;
        }
        if (enthaelt(wert, "G_Gh")) {
            gesamt = n;
        }
        if (enthaelt(wert, "G_Dh")) {
            diffus = n;
        }
        if (enthaelt(wert, "G_Bh")) {
            direkt = n;
        }
        if (tab == std::string_view::npos) {
            break;
        }
        pos = tab + 1;
    }
    for (int i = 1; i <= 6; ++i) {
        int16_t art = SPALTE_UNBENUTZT;
        if (i == temperatur) {
            art = SPALTE_TEMPERATUR;
        }
        if (i == gesamt) {
            art = SPALTE_GESAMT;
        }
        if (i == direkt) {
            art = SPALTE_DIREKT;
        }
        if (i == diffus) {
            art = SPALTE_DIFFUS;
        }
        f.Spaltenbelegung[static_cast<std::size_t>(i)] = art;
    }
    f.Laden_aktiv = false;
}
