// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/stundensimulation.h"

#include "calc/zeitkonstante.h"
#include "climate/Einfallsfaktoren.h"
#include "climate/monatsstrahlung.h"
#include "project/FatalError.h"
#include "project/c_glob.h"
#include "project/checked.h"

#include <cmath>

namespace {

float f32(double v) {
    return static_cast<float>(v);
}

// The coefficients shown on the climate information plane, W/K and W/(m² K).
void kennwerte_schreiben(Projekt& p, double Hv) {
    const double Wd = p.Waermebruecken;
    Klimakennwerte& k = p.Klimainfo;
    k.tau_h = p.tau / 3600.0;
    k.Vspez = Hv;
    k.Tspez =
        (static_cast<double>(p.f_giebel_s) + p.f_sw) * (p.kws + Wd) +
        (static_cast<double>(p.f_giebel_n) + p.f_nw) * (p.kwn + Wd) +
        (static_cast<double>(p.f_giebel_o) + p.f_ow) * (p.kwo + Wd) +
        (static_cast<double>(p.f_giebel_w) + p.f_ww) * (p.kww + Wd) +
        static_cast<double>(p.kfn) * p.f_nf + static_cast<double>(p.kfs) * p.f_sf +
        static_cast<double>(p.kfo) * p.f_of + static_cast<double>(p.kfw) * p.f_wf +
        static_cast<double>(p.kt) * p.ft +
        (static_cast<double>(p.f_dach_n) + p.f_dach_flach + p.f_dach_s + p.f_dach_o + p.f_dach_w) *
            (p.kd + Wd) +
        (p.kk + Wd) * p.f_gd;
    const double A = (p.kws + Wd) * p.f_sw + (p.kwn + Wd) * p.f_nw + (p.kwo + Wd) * p.f_ow +
                     (p.kww + Wd) * p.f_ww + static_cast<double>(p.kfn) * p.f_nf +
                     static_cast<double>(p.kfs) * p.f_sf + static_cast<double>(p.kfo) * p.f_of +
                     static_cast<double>(p.kfw) * p.f_wf + static_cast<double>(p.kt) * p.ft +
                     (p.kd + Wd) * p.f_gd + (p.kk + Wd) * p.f_gd;
    const double B = static_cast<double>(p.f_sw) + p.f_nw + p.f_ow + p.f_ww + p.f_nf + p.f_sf +
                     p.f_of + p.f_wf + p.ft + p.f_gd + p.f_gd;
    k.Umittel = A / B;
    k.TVspez = A + Hv;
}

void monat_zuruecksetzen(Monatswerte& M) {
    M.Kuehlbedarf = M.Kuehlgradstunden = 0;
    M.Stunden_kalt = M.Stunden_heiss = M.Stunden_komfort = 0;
    M.Kuehl_solar = M.Kuehl_intern = M.Kuehl_trans = M.Kuehl_lueft = 0;
}

} // namespace

// Widths: the two running temperatures and the driving power are double, since the model is
// sensitive to where they are rounded; the plane radiations and everything the tables, month
// sums and peaks keep are floats. The cooling load of the hour and its four causes are values of
// the hour only and stay double until they are added to a float sum.
void stundensimulation(Projekt& p) {
    double T_frei = p.Troom;
    double T_regel = p.Troom;
    p.Heizlast_max = 0;
    p.Kuehllast_max = 0;
    zeitkonstante_berechnen(p);
    const int i = p.Dachgeschoss ? 0 : p.Dachraum_typ;
    if (i < 0 || i > 3) {
        throw FatalError("The roof space kind " + std::to_string(i) + " is outside the table 0..3.",
                         "Die Dachraumart " + std::to_string(i) +
                             " liegt außerhalb der Tabelle 0..3.");
    }
    const double Hv = lueftungskoeffizient(p);
    kennwerte_schreiben(p, Hv);
    if (p.tau == 0) {
        throw FatalError("Division by zero: the time constant tau is 0.",
                         "Division durch Null: die Zeitkonstante tau ist 0.");
    }

    const float tau = p.tau, Cwirk = p.Cwirk, Troom = p.Troom, Tueber = p.Tueber;
    const double Wd = p.Waermebruecken;
    // Absorption over the outer surface coefficient of 20 W/(m² K).
    const double s = p.absfaktor / 20.0;
    const double c = p.cbk_hDach;
    const double sc = s * c;
    const double Ur = p.kd + Wd;
    const double U_flach = Ur * p.f_dach_flach * p.Dachraum[static_cast<std::size_t>(i)].Faktor;
    const double U_dn = Ur * p.f_dach_n, U_ds = Ur * p.f_dach_s;
    const double U_do = Ur * p.f_dach_o, U_dw = Ur * p.f_dach_w;
    const double U_n = (p.kwn + Wd) * (static_cast<double>(p.f_giebel_n) + p.f_nw);
    const double U_s = (p.kws + Wd) * (static_cast<double>(p.f_giebel_s) + p.f_sw);
    const double U_o = (p.kwo + Wd) * (static_cast<double>(p.f_giebel_o) + p.f_ow);
    const double U_w = (p.kww + Wd) * (static_cast<double>(p.f_giebel_w) + p.f_ww);
    const double U_tuer = static_cast<double>(p.kt) * p.ft;
    const double U_rest = static_cast<double>(p.kfs) * p.f_sf +
                          static_cast<double>(p.kfn) * p.f_nf +
                          static_cast<double>(p.kfo) * p.f_of +
                          static_cast<double>(p.kfw) * p.f_wf + (p.kk + Wd) * p.f_gd * p.Fx_ugd;
    // Constant internal power, W.
    const double Gi = static_cast<double>(p.f_nutz) * p.intg * 1000 / 8760;
    // The pitch in degrees goes into the cosine as if it were radians; that is the model.
    const double k = std::cos(static_cast<double>(p.Dachneigung)) / 2 + 1;
    const double e = std::exp(-3600 / static_cast<double>(tau));

    Einfallsfaktoren& memo = einfallsfaktoren();
    const float B = p.Breite, L = p.Laengenkorrektur;
    const int16_t o = p.orient;
    const float* fN = memo.tabelle(B, L, o, AZIMUT_N, 90);
    const float* fS = memo.tabelle(B, L, o, AZIMUT_S, 90);
    const float* fO = memo.tabelle(B, L, o, AZIMUT_O, 90);
    const float* fW = memo.tabelle(B, L, o, AZIMUT_W, 90);
    const float* fDN = p.f_dach_n > 0 ? memo.tabelle(B, L, o, AZIMUT_N, p.Dachneigung) : nullptr;
    const float* fDS = p.f_dach_s > 0 ? memo.tabelle(B, L, o, AZIMUT_S, p.Dachneigung) : nullptr;
    const float* fDO = p.f_dach_o > 0 ? memo.tabelle(B, L, o, AZIMUT_O, p.Dachneigung) : nullptr;
    const float* fDW = p.f_dach_w > 0 ? memo.tabelle(B, L, o, AZIMUT_W, p.Dachneigung) : nullptr;
    const float* fDF = p.f_dach_flach > 0 ? memo.tabelle(B, L, o, 0, 0) : nullptr;

    // A plane of area 0 keeps its value, which its area multiplies away.
    float I_DN = 0, I_DS = 0, I_DO = 0, I_DW = 0, I_DF = 0;
    int n = 334;
    // Thirteen month passes: December as a warm-up, then January to December. The warm-up's
    // month values vanish when December runs again; the peak loads are kept.
    for (int pass = 0; pass < 13; ++pass) {
        const int m = pass == 0 ? 12 : pass;
        Monatswerte& M = p.Monat[m];
        monat_zuruecksetzen(M);
        for (int d = 1; d <= M.Tage; ++d) {
            n = n % 365 + 1;
            for (int h = 1; h <= 24; ++h) {
                const std::size_t x = static_cast<std::size_t>((n - 1) * 24 + h - 1);
                const Wetterwert& w = p.Wetter(m, d, h);
                const double Ta = w.Ta, Dir = w.Direkt, Dif = w.Diffus;
                const double Dh = Dif * 0.5;
                const double Rh = (Dif + Dir) * 0.125;
                // Diffuse and reflected radiation are lowered by 0.7 against the monthly sums.
                const float I_N = f32((Dh + Rh) * 0.7 + fN[x] * Dir);
                const float I_S = f32((Dh + Rh) * 0.7 + fS[x] * Dir);
                const float I_O = f32((Dh + Rh) * 0.7 + fO[x] * Dir);
                const float I_W = f32((Dh + Rh) * 0.7 + fW[x] * Dir);
                if (fDN) {
                    I_DN = f32(Dif * (k * 0.75 + 0.25) + fDN[x] * Dir);
                }
                if (fDS) {
                    I_DS = f32(Dif * (k * 0.75 + 0.25) + fDS[x] * Dir);
                }
                if (fDO) {
                    I_DO = f32(Dif * (k * 0.75 + 0.25) + fDO[x] * Dir);
                }
                if (fDW) {
                    I_DW = f32(Dif * (k * 0.75 + 0.25) + fDW[x] * Dir);
                }
                if (fDF) {
                    I_DF = f32(fDF[x] * Dir + Dif);
                }

                const double Gs =
                    p.f_sf * static_cast<double>(I_S) * (1 - static_cast<double>(p.verschs)) *
                        (1 - static_cast<double>(p.ras)) * p.gfs +
                    p.f_nf * static_cast<double>(I_N) * (1 - static_cast<double>(p.verschn)) *
                        (1 - static_cast<double>(p.ran)) * p.gfn +
                    p.f_of * static_cast<double>(I_O) * (1 - static_cast<double>(p.verscho)) *
                        (1 - static_cast<double>(p.rao)) * p.gfo +
                    p.f_wf * static_cast<double>(I_W) * (1 - static_cast<double>(p.verschw)) *
                        (1 - static_cast<double>(p.raw)) * p.gfw;
                // Driving power, W. The west wall subtracts its radiation term where the three
                // other walls add it; that stands as it is.
                const double P =
                    U_flach * (sc * I_DF + Ta) + U_dn * (sc * I_DN + Ta) + U_ds * (sc * I_DS + Ta) +
                    U_do * (sc * I_DO + Ta) + U_dw * (sc * I_DW + Ta) + U_n * (s * I_N + Ta) +
                    U_s * (s * I_S + Ta) + U_o * (s * I_O + Ta) + U_w * (Ta - s * I_W) + Gs +
                    Hv * Ta + Gi + U_tuer * Ta + U_rest * Ta;

                // Exact step of C dT/dt = P - (Ht + Hv) T over one hour.
                const double gleichgewicht = static_cast<double>(tau) * P / Cwirk;
                T_frei = gleichgewicht * (1 - e) + e * T_frei;
                T_regel = gleichgewicht * (1 - e) + e * T_regel;

                if (static_cast<float>(T_regel) < Troom) {
                    const float q = f32((Troom - T_regel) * Cwirk / 3600000);
                    p.Q_heiz(m, d, h) = q;
                    if (q > p.Heizlast_max) {
                        p.Heizlast_max = q;
                    }
                    T_regel = Troom;
                } else {
                    p.Q_heiz(m, d, h) = 0;
                }

                if (static_cast<float>(T_regel) > Tueber) {
                    const double Qk = (T_regel - Tueber) * Cwirk / 3600000;
                    p.Q_kuehl(m, d, h) = f32(Qk);
                    // Causes of the cooling load, with the temperature still above the limit.
                    const double D = Ta - T_regel;
                    double Gt = U_flach * (sc * I_DF + D) + U_dn * (sc * I_DN + D) +
                                U_ds * (sc * I_DS + D) + U_do * (sc * I_DO + D) +
                                U_dw * (sc * I_DW + D) + U_n * (s * I_N + D) + U_s * (s * I_S + D) +
                                U_o * (s * I_O + D) + U_w * (D - s * I_W) + U_tuer * D + U_rest * D;
                    if (Gt < 0) {
                        Gt = 0;
                    }
                    double Gv = Hv * D;
                    if (Gv < 0) {
                        Gv = 0;
                    }
                    const double S = Gs + Gi + Gt + Gv;
                    if (S == 0) {
                        throw FatalError("Division by zero: a cooling hour has no gain of any "
                                         "kind to share its load among.",
                                         "Division durch Null: eine Kühlstunde hat keinen "
                                         "Gewinn, auf den sich ihre Last verteilen ließe.");
                    }
                    M.Kuehl_intern = f32(M.Kuehl_intern + Qk * Gi / S);
                    M.Kuehl_solar = f32(M.Kuehl_solar + Qk * Gs / S);
                    M.Kuehl_trans = f32(M.Kuehl_trans + Qk * Gt / S);
                    M.Kuehl_lueft = f32(M.Kuehl_lueft + Qk * Gv / S);
                    M.Kuehlbedarf = f32(M.Kuehlbedarf + Qk);
                    if (Qk > p.Kuehllast_max) {
                        p.Kuehllast_max = f32(Qk);
                    }
                    T_regel = Tueber;
                } else {
                    p.Q_kuehl(m, d, h) = 0;
                }

                const float frei = to_f32(T_frei, "free-running temperature");
                if (frei > Tueber) {
                    M.Kuehlgradstunden = f32(M.Kuehlgradstunden + (T_frei - Tueber));
                }
                p.T_frei(m, d, h) = frei;
                p.T_regel(m, d, h) = to_f32(T_regel, "controlled temperature");
                if (frei > Tueber) {
                    ++M.Stunden_heiss;
                } else if (frei >= Troom) {
                    ++M.Stunden_komfort;
                } else {
                    ++M.Stunden_kalt;
                }
            }
        }
    }
}
