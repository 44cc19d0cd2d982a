// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/Einfallsfaktoren.h"

#include <cmath>

const std::vector<Sonnenstunde>& Einfallsfaktoren::stunden(float L) {
    if (!stunden_belegt_ || stunden_L_ != L) {
        stunden_.resize(WERTE);
        for (int n = 1; n <= 365; ++n) {
            const Sonnentag tag = sonnentag(n);
            for (int h = 1; h <= 24; ++h) {
                stunden_[static_cast<std::size_t>((n - 1) * 24 + h - 1)] = sonnenstunde(tag, L, h);
            }
        }
        stunden_L_ = L;
        stunden_belegt_ = true;
    }
    return stunden_;
}

const float* Einfallsfaktoren::tabelle(float Breite, float L, int16_t orient, double azimut,
                                       double neigung) {
    ++uhr_;
    Eintrag* frei = &eintraege_[0];
    for (Eintrag& e : eintraege_) {
        if (e.belegt && e.Breite == Breite && e.L == L && e.orient == orient &&
            e.azimut == azimut && e.neigung == neigung) {
            e.zuletzt = uhr_;
            return e.werte.data();
        }
        if (!e.belegt || (frei->belegt && e.zuletzt < frei->zuletzt)) {
            frei = &e;
        }
    }
    const std::vector<Sonnenstunde>& s = stunden(L);
    const Ebenenlage lage = ebenenlage(orient, azimut, neigung);
    const double sin_phi = std::sin(static_cast<double>(Breite));
    const double cos_phi = std::cos(static_cast<double>(Breite));
    frei->werte.resize(WERTE);
    for (std::size_t i = 0; i < static_cast<std::size_t>(WERTE); ++i) {
        frei->werte[i] = einfallsfaktor(s[i], lage, sin_phi, cos_phi);
    }
    frei->Breite = Breite;
    frei->L = L;
    frei->orient = orient;
    frei->azimut = azimut;
    frei->neigung = neigung;
    frei->belegt = true;
    frei->zuletzt = uhr_;
    return frei->werte.data();
}

Einfallsfaktoren& einfallsfaktoren() {
    static Einfallsfaktoren memo;
    return memo;
}
