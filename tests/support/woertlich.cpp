// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/woertlich.h"

#include "calc/zeitkonstante.h"
#include "climate/Sonne.h"
#include "project/c_glob.h"

#include <cmath>

void stundensimulation_woertlich(Projekt& p) {
    double Tf = p.Troom, Tr = p.Troom;
    p.Heizlast_max = p.Kuehllast_max = 0;
    zeitkonstante_berechnen(p);
    const int i = p.Dachgeschoss ? 0 : p.Dachraum_typ;
    const double Wd = p.Waermebruecken;
    const double Hv = lueftungskoeffizient(p);
    const float B = p.Breite, L = p.Laengenkorrektur;
    float I_DN = 0, I_DS = 0, I_DO = 0, I_DW = 0, I_DF = 0;
    int n = 334;
    for (int pass = 0; pass < 13; ++pass) {
        const int m = pass == 0 ? 12 : pass;
        Monatswerte& M = p.Monat[m];
        M.Kuehlbedarf = M.Kuehlgradstunden = 0;
        M.Stunden_kalt = M.Stunden_heiss = M.Stunden_komfort = 0;
        M.Kuehl_solar = M.Kuehl_intern = M.Kuehl_trans = M.Kuehl_lueft = 0;
        for (int d = 1; d <= M.Tage; ++d) {
            n = n % 365 + 1;
            for (int h = 1; h <= 24; ++h) {
                const Wetterwert& w = p.Wetter(m, d, h);
                const double Ta = w.Ta, Dir = w.Direkt, Dif = w.Diffus;
                const double Dh = Dif * 0.5, Rh = (Dif + Dir) * 0.125;
                auto wand = [&](double az) {
                    return static_cast<float>(
                        (Dh + Rh) * 0.7 + einfallsfaktor_ebene(n, L, h, az, 90, B, p.orient) * Dir);
                };
                const float I_N = wand(180), I_S = wand(0), I_O = wand(-90), I_W = wand(90);
                const double k = std::cos(static_cast<double>(p.Dachneigung)) / 2 + 1;
                auto dach = [&](double az) {
                    return static_cast<float>(
                        Dif * (k * 0.75 + 0.25) +
                        einfallsfaktor_ebene(n, L, h, az, p.Dachneigung, B, p.orient) * Dir);
                };
                if (p.f_dach_n > 0)
                    I_DN = dach(180);
                if (p.f_dach_s > 0)
                    I_DS = dach(0);
                if (p.f_dach_o > 0)
                    I_DO = dach(-90);
                if (p.f_dach_w > 0)
                    I_DW = dach(90);
                if (p.f_dach_flach > 0)
                    I_DF = static_cast<float>(
                        einfallsfaktor_ebene(n, L, h, 0, 0, B, p.orient) * Dir + Dif);
                const double s = p.absfaktor / 20.0, c = p.cbk_hDach, Ur = p.kd + Wd;
                const double Gs =
                    p.f_sf * static_cast<double>(I_S) * (1 - static_cast<double>(p.verschs)) *
                        (1 - static_cast<double>(p.ras)) * p.gfs +
                    p.f_nf * static_cast<double>(I_N) * (1 - static_cast<double>(p.verschn)) *
                        (1 - static_cast<double>(p.ran)) * p.gfn +
                    p.f_of * static_cast<double>(I_O) * (1 - static_cast<double>(p.verscho)) *
                        (1 - static_cast<double>(p.rao)) * p.gfo +
                    p.f_wf * static_cast<double>(I_W) * (1 - static_cast<double>(p.verschw)) *
                        (1 - static_cast<double>(p.raw)) * p.gfw;
                const double Gi = static_cast<double>(p.f_nutz) * p.intg * 1000 / 8760;
                auto summe = [&](double X) {
                    return Ur * p.f_dach_flach * p.Dachraum[static_cast<std::size_t>(i)].Faktor *
                               (s * c * I_DF + X) +
                           Ur * p.f_dach_n * (s * c * I_DN + X) +
                           Ur * p.f_dach_s * (s * c * I_DS + X) +
                           Ur * p.f_dach_o * (s * c * I_DO + X) +
                           Ur * p.f_dach_w * (s * c * I_DW + X) +
                           (p.kwn + Wd) * (static_cast<double>(p.f_giebel_n) + p.f_nw) *
                               (s * I_N + X) +
                           (p.kws + Wd) * (static_cast<double>(p.f_giebel_s) + p.f_sw) *
                               (s * I_S + X) +
                           (p.kwo + Wd) * (static_cast<double>(p.f_giebel_o) + p.f_ow) *
                               (s * I_O + X) +
                           (p.kww + Wd) * (static_cast<double>(p.f_giebel_w) + p.f_ww) *
                               (X - s * I_W);
                };
                const double rest =
                    static_cast<double>(p.kfs) * p.f_sf + static_cast<double>(p.kfn) * p.f_nf +
                    static_cast<double>(p.kfo) * p.f_of + static_cast<double>(p.kfw) * p.f_wf +
                    (p.kk + Wd) * p.f_gd * p.Fx_ugd;
                const double P = summe(Ta) + Gs + Hv * Ta + Gi +
                                 static_cast<double>(p.kt) * p.ft * Ta + rest * Ta;
                Tf = (static_cast<double>(p.tau) * P / p.Cwirk) *
                         (1 - std::exp(-3600 / static_cast<double>(p.tau))) +
                     std::exp(-3600 / static_cast<double>(p.tau)) * Tf;
                Tr = (static_cast<double>(p.tau) * P / p.Cwirk) *
                         (1 - std::exp(-3600 / static_cast<double>(p.tau))) +
                     std::exp(-3600 / static_cast<double>(p.tau)) * Tr;
                if (static_cast<float>(Tr) < p.Troom) {
                    p.Q_heiz(m, d, h) = static_cast<float>((p.Troom - Tr) * p.Cwirk / 3600000);
                    if (p.Q_heiz(m, d, h) > p.Heizlast_max)
                        p.Heizlast_max = p.Q_heiz(m, d, h);
                    Tr = p.Troom;
                } else {
                    p.Q_heiz(m, d, h) = 0;
                }
                if (static_cast<float>(Tr) > p.Tueber) {
                    const double Qk = (Tr - p.Tueber) * p.Cwirk / 3600000;
                    p.Q_kuehl(m, d, h) = static_cast<float>(Qk);
                    const double D = Ta - Tr;
                    double Gt = summe(D) + static_cast<double>(p.kt) * p.ft * D + rest * D;
                    if (Gt < 0)
                        Gt = 0;
                    double Gv = Hv * D;
                    if (Gv < 0)
                        Gv = 0;
                    const double S = Gs + Gi + Gt + Gv;
                    M.Kuehl_intern = static_cast<float>(M.Kuehl_intern + Qk * Gi / S);
                    M.Kuehl_solar = static_cast<float>(M.Kuehl_solar + Qk * Gs / S);
                    M.Kuehl_trans = static_cast<float>(M.Kuehl_trans + Qk * Gt / S);
                    M.Kuehl_lueft = static_cast<float>(M.Kuehl_lueft + Qk * Gv / S);
                    M.Kuehlbedarf = static_cast<float>(M.Kuehlbedarf + Qk);
                    if (Qk > p.Kuehllast_max)
                        p.Kuehllast_max = static_cast<float>(Qk);
                    Tr = p.Tueber;
                } else {
                    p.Q_kuehl(m, d, h) = 0;
                }
                if (static_cast<float>(Tf) > p.Tueber)
                    M.Kuehlgradstunden = static_cast<float>(M.Kuehlgradstunden + (Tf - p.Tueber));
                p.T_frei(m, d, h) = static_cast<float>(Tf);
                p.T_regel(m, d, h) = static_cast<float>(Tr);
                if (static_cast<float>(Tf) > p.Tueber)
                    ++M.Stunden_heiss;
                else if (static_cast<float>(Tf) >= p.Troom)
                    ++M.Stunden_komfort;
                else
                    ++M.Stunden_kalt;
            }
        }
    }
}
