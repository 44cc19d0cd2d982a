// SPDX-License-Identifier: GPL-3.0-or-later
#include "energy/energie.h"

#include "energy/katalog.h"
#include "project/c_glob.h"

namespace {

float f32(double v) {
    return static_cast<float>(v);
}

bool ist_strom(const Projekt& p) {
    return p.Energie.Traegername == "Strom";
}

} // namespace

void EnergRefresh(Projekt& p) {
    Energiekennwerte k = katalog_werte(p.Heizsystem, p.Uebergabe, p.Energietraeger, p.f_nutz);
    if (p.qhs_sum < 0.1) {
        k.q_ce = k.q_s = k.q_d = 0;
        k.q_s_he = k.q_d_he = k.q_g_he = 0;
    }
    p.q_HE_Energietraeger = f32((static_cast<double>(p.qhs_sum) + k.q_ce + k.q_s + k.q_d) * k.e_g);
    p.q_HE_Strom = f32(static_cast<double>(k.q_d_he) + k.q_s_he + k.q_g_he);
    p.q_PE_Energietraeger = f32(static_cast<double>(p.q_HE_Energietraeger) * k.f_p);
    p.q_PE_Strom = f32(p.q_HE_Strom * PRIMAERFAKTOR_STROM);
    // After the four results on purpose: they keep the demand as it was.
    if (p.qhs_sum < 1E-10) {
        p.qhs_sum = 1E-10f;
    }
    p.Energie = k;
}

Energiemonate energie_monatswerte(const Projekt& p) {
    Energiemonate e;
    const bool strom = ist_strom(p);
    for (int m = 1; m <= 12; ++m) {
        const double anteil = p.Monat[m].Qh / static_cast<double>(p.f_nutz) / p.qhs_sum;
        if (strom) {
            e.E[m] = f32(anteil * (static_cast<double>(p.q_HE_Strom) + p.q_HE_Energietraeger));
            e.H[m] = 0;
            e.P[m] = f32(anteil * (static_cast<double>(p.q_PE_Strom) + p.q_PE_Energietraeger));
            e.Q[m] = 0;
        } else {
            e.E[m] = f32(anteil * p.q_HE_Energietraeger);
            e.H[m] = f32(anteil * p.q_HE_Strom);
            e.P[m] = f32(anteil * p.q_PE_Energietraeger);
            e.Q[m] = f32(anteil * p.q_PE_Strom);
        }
    }
    return e;
}
