// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/monatsstrahlung.h"

#include "climate/Einfallsfaktoren.h"
#include "project/c_glob.h"
#include "project/checked.h"

#include <cmath>

void monatsstrahlung_berechnen(Projekt& p) {
    const double azimut[4] = {AZIMUT_N, AZIMUT_S, AZIMUT_O, AZIMUT_W};
    const float* faktor[4];
    for (int e = 0; e < 4; ++e) {
        faktor[e] =
            einfallsfaktoren().tabelle(p.Breite, p.Laengenkorrektur, p.orient, azimut[e], 90);
    }
    int n = 0;
    for (int m = 1; m <= 12; ++m) {
        Monatswerte& monat = p.Monat[m];
        // The temperature sum is rounded to a float at every step; the plane sums are values of
        // this run only and stay double until they are cut to whole MJ/m².
        float temperatur = 0;
        double summe[4] = {0, 0, 0, 0};
        for (int d = 1; d <= monat.Tage; ++d) {
            ++n;
            for (int h = 1; h <= 24; ++h) {
                const Wetterwert& w = p.Wetter(m, d, h);
                temperatur =
                    static_cast<float>(temperatur + static_cast<double>(w.Ta) / monat.Tage / 24);
                // Isotropic sky on a vertical plane, and ground reflection (albedo 0.25 times
                // 0.5) of diffuse plus direct normal radiation.
                const double Dh = w.Diffus * 0.5;
                const double Rh = (static_cast<double>(w.Diffus) + w.Direkt) * 0.125;
                const std::size_t i = static_cast<std::size_t>((n - 1) * 24 + h - 1);
                for (int e = 0; e < 4; ++e) {
                    const double I = static_cast<double>(faktor[e][i]) * w.Direkt + Dh + Rh;
                    if (I > 0 && I < 1370) {
                        summe[e] += I;
                    }
                }
            }
        }
        monat.Tmittel = temperatur;
        // Wh/m² times 3.6 is kJ/m², divided by 1000 MJ/m², cut to a whole number.
        monat.Strahlung_N = to_i16(std::floor(summe[0] * 3.6 / 1000), "Strahlung_N");
        monat.Strahlung_S = to_i16(std::floor(summe[1] * 3.6 / 1000), "Strahlung_S");
        monat.Strahlung_O = to_i16(std::floor(summe[2] * 3.6 / 1000), "Strahlung_O");
        monat.Strahlung_W = to_i16(std::floor(summe[3] * 3.6 / 1000), "Strahlung_W");
    }
}
