// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/A_Heizen.h"

#include "charts/Balkenrahmen.h"
#include "charts/Diagrammtexte.h"
#include "charts/Stufentabellen.h"
#include "charts/Surface.h"
#include "project/c_glob.h"

namespace {

// A bar of the usable part with the whole on top of it: the usable part is part of the whole,
// so both segments run from their own values, not from a running sum.
void nutzbalken(Surface& s, double x1, double x2, double nutzbar, double gesamt, double stufe,
                Rgb farbe_nutzbar, Rgb farbe_gesamt) {
    const double y_nutzbar = balken_y(BILANZRAHMEN, nutzbar, stufe, 5);
    s.FilledBox(x1, 116, x2, y_nutzbar, farbe_nutzbar);
    s.FilledBox(x1, y_nutzbar, x2, balken_y(BILANZRAHMEN, gesamt, stufe, 5), farbe_gesamt);
}

} // namespace

void NutzungsgradZeichnen(const Projekt& p, HeizenFlaechen& f, const Diagrammeinstellung& e) {
    const ChartTheme& t = e.thema;
    double M = 1;
    double A = 0, B = 0, C = 0, D = 0;
    for (int m = 1; m <= 12; ++m) {
        const Monatswerte& W = p.Monat[m];
        const double solar = W.Qs_brutto / p.f_nutz;
        const double intern = W.Qi_brutto / p.f_nutz;
        M = solar > M ? solar : M;
        M = intern > M ? intern : M;
        A += solar;
        B += intern;
        C += W.Qs_genutzt / p.f_nutz;
        D += W.Qi_genutzt / p.f_nutz;
    }

    Surface& s = f.NutzungsgradMonat;
    const double stufe = stufe_heizbilanz(M);
    achsenrahmen(s, BILANZRAHMEN, 325, 5, stufe,
                 sprachtext(e.Sprache, "kWh/(m² Monat)", "kWh/(m² month)"), 3, t);
    monatsnamen(s, p, 124);
    for (int m = 1; m <= 12; ++m) {
        const Monatswerte& W = p.Monat[m];
        const double x0 = monatsspalte(m);
        nutzbalken(s, x0, x0 + 8, W.Qs_genutzt / p.f_nutz, W.Qs_brutto / p.f_nutz, stufe, t.solar,
                   t.solar_gesamt);
        nutzbalken(s, x0 + 10, x0 + 18, W.Qi_genutzt / p.f_nutz, W.Qi_brutto / p.f_nutz, stufe,
                   t.intern, t.intern_gesamt);
    }

    // The year is summed from the months, not taken from the year fields.
    Surface& j = f.NutzungsgradJahr;
    const double Mj = A > B ? A : B;
    const double stufe_j = stufe_jahrbilanz_uebersicht(Mj);
    achsenrahmen(j, BILANZRAHMEN, 85, 5, stufe_j, sprachtext(e.Sprache, "kWh/(m²a)", "kWh/(m²a)"),
                 5, t);
    j.CurrentX = 88 - j.TextWidth(p.txt_Jahresbilanz) - 5;
    j.CurrentY = 124;
    j.Print(p.txt_Jahresbilanz);
    nutzbalken(j, 35, 55, C, A, stufe_j, t.solar, t.solar_gesamt);
    nutzbalken(j, 60, 80, D, B, stufe_j, t.intern, t.intern_gesamt);
}
