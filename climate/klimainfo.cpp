// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/klimainfo.h"

#include "project/c_glob.h"
#include "project/checked.h"

void klima_jahreswerte(Projekt& p) {
    Klimakennwerte& k = p.Klimainfo;
    float max = -1000, min = 1000, summe = 0;
    for (int m = 1; m <= 12; ++m) {
        const float t = p.Monat[m].Tmittel;
        // Strict comparisons: a tie keeps the earlier month.
        if (t > max) {
            max = t;
            k.MaxMonat = m;
        }
        if (t < min) {
            min = t;
            k.MinMonat = m;
        }
        summe = static_cast<float>(summe + static_cast<double>(t) / 12);
    }
    k.MaxMonatTemp = max;
    k.MinMonatTemp = min;
    k.MittelJahrTemp = summe;

    float hoch = -1000, tief = 1000;
    for (int m = 1; m <= 12; ++m) {
        for (int d = 1; d <= p.Monat[m].Tage; ++d) {
            for (int h = 1; h <= 24; ++h) {
                const float ta = p.Wetter(m, d, h).Ta;
                if (ta > hoch) {
                    hoch = ta;
                }
                if (ta < tief) {
                    tief = ta;
                }
            }
        }
    }
    k.MaxJahrTemp = hoch;
    k.MinJahrTemp = tief;
}

void heizgrenztemperatur(Projekt& p) {
    // The roof factor here has 0.6 for a fully insulated roof space, where the roof space table
    // has 0.5; both stand. The empty row 3 counts nothing.
    float k = 0;
    switch (p.Dachraum_typ) {
    case 0:
        k = 1;
        break;
    case 1:
        k = 0.8f;
        break;
    case 2:
        k = 0.6f;
        break;
    default:
        break;
    }
    const double Wd = p.Waermebruecken;
    const double Hw = (p.kws + Wd) * p.f_sw + (p.kwn + Wd) * p.f_nw + (p.kwo + Wd) * p.f_ow +
                      (p.kww + Wd) * p.f_ww + static_cast<double>(p.kfn) * p.f_nf +
                      static_cast<double>(p.kfs) * p.f_sf + static_cast<double>(p.kfo) * p.f_of +
                      static_cast<double>(p.kfw) * p.f_wf + static_cast<double>(p.kt) * p.ft;
    const double Rr = (p.kd + Wd) * p.f_gd;
    const double Rf = (p.kk + Wd) * p.f_gd * p.Fx_ugd;
    const double Ht = Hw + k * Rr + Rf;
    const double Hv =
        ((1 - static_cast<double>(p.WRG)) * p.lw + p.infiltration) / 3600 * 1000 * 1.29 * p.v_luft;
    const double Gi = static_cast<double>(p.f_nutz) * p.intg * 1000 / 8760;
    const float Tg = to_f32(p.Troom - Gi / (Hv + Ht), "heating limit temperature");

    int tage = 0;
    double gradtage = 0;
    for (int m = 1; m <= 12; ++m) {
        for (int d = 1; d <= p.Monat[m].Tage; ++d) {
            double Td = 0;
            for (int h = 1; h <= 24; ++h) {
                Td += p.Wetter(m, d, h).Ta / 24.0;
            }
            if (Td < Tg) {
                ++tage;
            }
            if (Td < 12) {
                gradtage += 20 - Td;
            }
        }
    }
    Klimakennwerte& info = p.Klimainfo;
    info.Heizgrenztemperatur = Tg;
    info.Heiztage = tage;
    info.Heizgradtage = static_cast<float>(gradtage);
}

void Ausfuellen(Projekt& p) {
    heizgrenztemperatur(p);
}
