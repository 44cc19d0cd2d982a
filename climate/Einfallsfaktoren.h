// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "climate/Sonne.h"

#include <array>
#include <cstdint>
#include <vector>

// Memo of einfallsfaktor_ebene over the whole year for a few planes. The factors depend only on
// the station (latitude, longitude correction), the orientation and the plane, so a table made
// once serves every recalculation until one of these changes; each value is bit for bit the one
// einfallsfaktor_ebene gives.
class Einfallsfaktoren {
public:
    static constexpr int WERTE = 365 * 24;
    static constexpr int PLAETZE = 10;

    // The factors for n = 1..365 and h = 1..24 at index (n - 1) · 24 + (h - 1). The pointer stays
    // valid while fewer than PLAETZE other planes are asked for.
    const float* tabelle(float Breite, float L, int16_t orient, double azimut, double neigung);

private:
    struct Eintrag {
        float Breite = 0, L = 0;
        int16_t orient = 0;
        double azimut = 0, neigung = 0;
        bool belegt = false;
        unsigned long zuletzt = 0;
        std::vector<float> werte;
    };
    const std::vector<Sonnenstunde>& stunden(float L);

    std::vector<Sonnenstunde> stunden_;
    float stunden_L_ = 0;
    bool stunden_belegt_ = false;
    std::array<Eintrag, PLAETZE> eintraege_;
    unsigned long uhr_ = 0;
};

// The memo of the running program.
Einfallsfaktoren& einfallsfaktoren();
