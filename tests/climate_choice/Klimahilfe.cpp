// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/climate_choice/Klimahilfe.h"

#include <memory>

void station_schreiben(const TempOrdner& ordner, const std::string& datei, const std::string& ort,
                       double breite, double laenge_west) {
    Stationskopf kopf;
    kopf.ort = ort;
    kopf.breite = breite;
    kopf.laenge = laenge_west;
    ordner.schreiben(datei, station_text(kopf, synthetisches_wetter));
}

std::function<double()> zahlenfolge(std::deque<double> zahlen) {
    auto rest = std::make_shared<std::deque<double>>(std::move(zahlen));
    return [rest] {
        const double z = rest->front();
        if (rest->size() > 1) {
            rest->pop_front();
        }
        return z;
    };
}
