// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/teststation/teststation.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>

std::string feld5(const std::string& text) {
    return text.size() >= 5 ? text : std::string(5 - text.size(), ' ') + text;
}

namespace {

std::string zahl(double wert, int stellen) {
    char puffer[32];
    std::snprintf(puffer, sizeof puffer, "%.*f", stellen, wert);
    std::string text = puffer;
    if (text == "-0" || text == "-0.0") {
        text.erase(0, 1);
    }
    return text;
}

std::string zeile(int tag, const Stationsstunde& s) {
    return feld5(std::to_string(tag)) + feld5(zahl(s.Ta, 1)) + feld5(zahl(s.G_Gh, 0)) +
           feld5(zahl(s.G_Dh, 0)) + "\r\n";
}

// A small deterministic hash in 0..1 for the clouds of a day.
double bewoelkung(int tag) {
    uint32_t x = static_cast<uint32_t>(tag) * 2654435761u;
    x ^= x >> 15;
    x *= 2246822519u;
    x ^= x >> 13;
    return (x % 1000) / 1000.0;
}

} // namespace

std::string station_text(const Stationskopf& kopf,
                         const std::function<Stationsstunde(int, int)>& stunde) {
    std::string text = kopf.ort + "\r\n";
    text += "Breitengrad:  " + zahl(kopf.breite, 2) + "\r\n";
    text += "L\xE4ngengrad:   " + zahl(kopf.laenge, 2) + "\r\n";
    text += "Zeitzone:     " + zahl(kopf.zone, 0) + "\r\n";
    text += "\r\n";
    text += "   dy   Ta G_Gh G_Dh\r\n";
    // The first row stands for the last hour of the year.
    text += zeile(365, stunde(365, 24));
    for (int k = 0; k < 8759; ++k) {
        const int tag = k / 24 + 1;
        text += zeile(tag, stunde(tag, k % 24 + 1));
    }
    return text;
}

Stationsstunde synthetisches_wetter(int tag, int stunde) {
    const double pi = 3.141592653589793;
    const double jahr = std::cos(2 * pi * (tag - 196) / 365.0);
    const double mitte = stunde - 0.5;
    Stationsstunde s;
    s.Ta = 9.5 + 9.0 * jahr + 4.0 * std::sin(2 * pi * (mitte - 9) / 24);
    // Sun height at 50° N, with noon at 12:30 local time.
    const double dekl = 23.45 * pi / 180 * std::sin(2 * pi * (284 + tag) / 365.0);
    const double phi = 50 * pi / 180;
    const double w = (mitte - 12.5) * 15 * pi / 180;
    const double sinh =
        std::sin(phi) * std::sin(dekl) + std::cos(phi) * std::cos(dekl) * std::cos(w);
    if (sinh > 0) {
        const double klar = 1000 * sinh * std::exp(-0.2 / std::max(sinh, 0.05));
        const double wolken = bewoelkung(tag);
        s.G_Gh = std::round(klar * (1 - 0.7 * wolken));
        s.G_Dh = std::round(s.G_Gh * (0.25 + 0.6 * wolken));
    }
    return s;
}
