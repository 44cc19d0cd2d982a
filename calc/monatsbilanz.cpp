// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/monatsbilanz.h"

#include "calc/zeitkonstante.h"
#include "project/FatalError.h"
#include "project/c_glob.h"
#include "project/checked.h"

#include <cmath>

namespace {

// The general form overflows for a large gamma with a long time constant; multiplied through by
// gamma^-(a+1) it stays finite and tends to 1 / gamma, as the factor does.
double nutzungsgrad_allgemein(double gamma, double a) {
    const double oben = std::pow(gamma, a);
    const double unten = std::pow(gamma, a + 1);
    if (std::isfinite(unten)) {
        return (1 - oben) / (1 - unten);
    }
    const double r = std::pow(gamma, -(a + 1));
    return (r - 1 / gamma) / (r - 1);
}

float f32(double v) {
    return static_cast<float>(v);
}

} // namespace

float nutzungsgrad(Projekt& p, float gamma) {
    zeitkonstante_berechnen(p);
    const float a = f32(p.tau / 3600.0 / 16 + 1);
    if (gamma == 1.0f) {
        return f32(static_cast<double>(a) / (static_cast<double>(a) + 1));
    }
    return to_f32(nutzungsgrad_allgemein(gamma, a), "utilisation factor");
}

// Every field and every named intermediate (D, the four solar gains, L) is stored and so a float;
// the sums and products inside one formula run in double. The conductances below are parts of the
// loss formula, taken out of the month loop in the same order of operations.
void monatsbilanz(Projekt& p) {
    p.Fensterverlust_N = p.Fensterverlust_W = p.Fensterverlust_S = p.Fensterverlust_O = 0;
    p.Fenstergewinn_N = p.Fenstergewinn_W = p.Fenstergewinn_S = p.Fenstergewinn_O = 0;
    p.qh = p.qsol = p.qi = p.qtr = p.qinf = 0;
    p.qtr_Waende = p.qtr_Dach = p.qtr_Boden = p.qtr_Fenster = p.qtr_Tuer = 0;
    zeitkonstante_berechnen(p);

    const double Wd = p.Waermebruecken;
    // Only rows 0..3 exist; with a heated attic the factor is that of row 0, which is 1.
    const int k = p.Dachgeschoss ? 0 : p.Dachraum_typ;
    if (k < 0 || k > 3) {
        throw FatalError("The roof space kind " + std::to_string(k) + " is outside the table 0..3.",
                         "Die Dachraumart " + std::to_string(k) +
                             " liegt außerhalb der Tabelle 0..3.");
    }
    const double faktor = p.Dachraum[static_cast<std::size_t>(k)].Faktor;
    const double dach =
        static_cast<double>(p.f_dach_n) + p.f_dach_flach + p.f_dach_s + p.f_dach_o + p.f_dach_w;
    // Conductances in W/K, summed in the order of the loss formula; the gables count as wall of
    // their facade, windows and door carry no heat bridge surcharge.
    const double H_dach = (p.kd + Wd) * dach;
    const double H_boden = (p.kk + Wd) * p.f_gd * p.Fx_ugd;
    const double H_tuer = static_cast<double>(p.kt) * p.ft;
    const double H_fenster[4] = {
        static_cast<double>(p.kfw) * p.f_wf, static_cast<double>(p.kfo) * p.f_of,
        static_cast<double>(p.kfs) * p.f_sf, static_cast<double>(p.kfn) * p.f_nf};
    const double H_wand[4] = {(p.kwo + Wd) * (static_cast<double>(p.f_giebel_o) + p.f_ow),
                              (p.kww + Wd) * (static_cast<double>(p.f_giebel_w) + p.f_ww),
                              (p.kwn + Wd) * (static_cast<double>(p.f_giebel_n) + p.f_nw),
                              (p.kws + Wd) * (static_cast<double>(p.f_giebel_s) + p.f_sw)};
    const double H_rest = H_boden + H_tuer + H_fenster[0] + H_fenster[1] + H_fenster[2] +
                          H_fenster[3] + H_wand[0] + H_wand[1] + H_wand[2] + H_wand[3];
    const double H_waende = H_wand[0] + H_wand[1] + H_wand[2] + H_wand[3];
    const double H_fenster_summe = H_fenster[0] + H_fenster[1] + H_fenster[2] + H_fenster[3];
    const double luftwechsel =
        ((1 - static_cast<double>(p.WRG)) * p.lw + p.infiltration) * p.v_luft;

    for (int m = 1; m <= 12; ++m) {
        Monatswerte& M = p.Monat[m];
        M.Qi_brutto = f32(static_cast<double>(p.intg) * p.f_nutz * M.Tage / 365);
        // Degree days, Kd; a month warmer than the set temperature counts nothing, and there is
        // no heating limit beyond that.
        float D = f32((static_cast<double>(p.Troom) - M.Tmittel) * M.Tage);
        if (D < 0) {
            D = 0;
        }

        // 0.024 turns W/K times Kd into kWh.
        p.Fensterverlust_N =
            f32(p.Fensterverlust_N + static_cast<double>(p.kfn) * p.f_nf * D * 0.024);
        p.Fensterverlust_W =
            f32(p.Fensterverlust_W + static_cast<double>(p.kfw) * p.f_wf * D * 0.024);
        p.Fensterverlust_S =
            f32(p.Fensterverlust_S + static_cast<double>(p.kfs) * p.f_sf * D * 0.024);
        p.Fensterverlust_O =
            f32(p.Fensterverlust_O + static_cast<double>(p.kfo) * p.f_of * D * 0.024);

        M.Qt = f32((H_dach * faktor * D + H_rest * D) * 0.024);
        p.qtr_Waende = f32(p.qtr_Waende + H_waende * 0.024 * D);
        p.qtr_Tuer = f32(p.qtr_Tuer + static_cast<double>(p.ft) * 0.024 * p.kt * D);
        p.qtr_Dach = f32(p.qtr_Dach + H_dach * 0.024 * faktor * D);
        p.qtr_Boden =
            f32(p.qtr_Boden + static_cast<double>(p.f_gd) * 0.024 * (p.kk + Wd) * p.Fx_ugd * D);
        p.qtr_Fenster = f32(p.qtr_Fenster + H_fenster_summe * 0.024 * D);

        // 0.0086 = 0.024 · 1.29 / 3.6 turns m³/h times Kd into kWh.
        M.Qv = f32(luftwechsel * D * 0.0086);

        // Solar gains per facade, MJ/m² turned to kWh by 3.6; shading is a reduction.
        const float S_N =
            f32((1 - static_cast<double>(p.ran)) * (1 - static_cast<double>(p.verschn)) * p.gfn *
                p.f_nf * M.Strahlung_N / 3.6);
        const float S_W =
            f32((1 - static_cast<double>(p.raw)) * (1 - static_cast<double>(p.verschw)) * p.gfw *
                p.f_wf * M.Strahlung_W / 3.6);
        const float S_O =
            f32((1 - static_cast<double>(p.rao)) * (1 - static_cast<double>(p.verscho)) * p.gfo *
                p.f_of * M.Strahlung_O / 3.6);
        const float S_S =
            f32((1 - static_cast<double>(p.ras)) * (1 - static_cast<double>(p.verschs)) * p.gfs *
                p.f_sf * M.Strahlung_S / 3.6);
        M.Qs_brutto = f32(static_cast<double>(S_N) + S_W + S_O + S_S);

        // A month without loss has no usable gains and no heat demand. The loss is held as a
        // float before it divides the gains.
        const float L = f32(static_cast<double>(M.Qv) + M.Qt);
        if (L <= 0) {
            M.Nutzgrad = 0;
        } else {
            const float gamma = f32((static_cast<double>(M.Qs_brutto) + M.Qi_brutto) / L);
            M.Nutzgrad = nutzungsgrad(p, gamma);
        }
        M.Qs_genutzt = f32(static_cast<double>(M.Qs_brutto) * M.Nutzgrad);
        M.Qi_genutzt = f32(static_cast<double>(M.Qi_brutto) * M.Nutzgrad);
        p.Fenstergewinn_N = f32(p.Fenstergewinn_N + static_cast<double>(S_N) * M.Nutzgrad);
        p.Fenstergewinn_W = f32(p.Fenstergewinn_W + static_cast<double>(S_W) * M.Nutzgrad);
        p.Fenstergewinn_S = f32(p.Fenstergewinn_S + static_cast<double>(S_S) * M.Nutzgrad);
        p.Fenstergewinn_O = f32(p.Fenstergewinn_O + static_cast<double>(S_O) * M.Nutzgrad);

        // Not clamped: the utilisation keeps it at or above 0 but for rounding.
        M.Qh = f32(static_cast<double>(M.Qv) + M.Qt - M.Qs_genutzt - M.Qi_genutzt);
        p.qh = f32(static_cast<double>(p.qh) + M.Qh);
        p.qsol = f32(static_cast<double>(p.qsol) + M.Qs_genutzt);
        p.qi = f32(static_cast<double>(p.qi) + M.Qi_genutzt);
        p.qtr = f32(static_cast<double>(p.qtr) + M.Qt);
        p.qinf = f32(static_cast<double>(p.qinf) + M.Qv);
    }

    if (p.f_nutz == 0) {
        throw FatalError("Division by zero: the usable floor area is 0.",
                         "Division durch Null: die Nutzfläche ist 0.");
    }
    const double A = p.f_nutz;
    p.qhs_sum = f32(p.qh / A);
    p.qsols = f32(p.qsol / A);
    p.qis = f32(p.qi / A);
    p.qtrs = f32(p.qtr / A);
    p.qinfs = f32(p.qinf / A);
    p.qverl_s = f32(static_cast<double>(p.qinfs) + p.qtrs);
}
