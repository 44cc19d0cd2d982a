// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/A_Heizen.h"

#include "charts/Balkenrahmen.h"
#include "charts/Diagrammtexte.h"
#include "charts/Stufentabellen.h"
#include "charts/Surface.h"
#include "project/Zahlformat.h"
#include "project/c_glob.h"

namespace {

// A stack of segments from the axis up: each from the running sum below it to the sum with it.
class Stapel {
public:
    Stapel(Surface& s, double x1, double x2, double stufe)
        : s_(s), x1_(x1), x2_(x2), stufe_(stufe) {}
    void segment(double wert, Rgb farbe) {
        const double unten = balken_y(BILANZRAHMEN, summe_, stufe_, 5);
        summe_ += wert;
        s_.FilledBox(x1_, unten, x2_, balken_y(BILANZRAHMEN, summe_, stufe_, 5), farbe);
    }

private:
    Surface& s_;
    double x1_, x2_, stufe_;
    double summe_ = 0;
};

void jahreslabel(Surface& s, const std::string& text) {
    s.CurrentX = 88 - s.TextWidth(text) - 5;
    s.CurrentY = 124;
    s.Print(text);
}

void fassadenbalken(Surface& s, double wert, double M, Rgb farbe, const ChartTheme& t) {
    s.Cls();
    const double y = 50 - 50 * wert / M;
    s.FilledBox(1, 49, 8, y, farbe);
    s.Box(1, 49, 8, y, t.achsen);
}

} // namespace

void FassadenbalkenZeichnen(const Projekt& p, HeizenFlaechen& f, const Diagrammeinstellung& e) {
    const ChartTheme& t = e.thema;
    double M = 1.0;
    for (const float w :
         {p.Fenstergewinn_O, p.Fenstergewinn_S, p.Fenstergewinn_W, p.Fenstergewinn_N,
          p.Fensterverlust_O, p.Fensterverlust_S, p.Fensterverlust_W, p.Fensterverlust_N}) {
        M = w > M ? w : M;
    }
    fassadenbalken(f.Gewinne_N, p.Fenstergewinn_N, M, t.solar, t);
    fassadenbalken(f.Verluste_N, p.Fensterverlust_N, M, t.transmission, t);
    fassadenbalken(f.Gewinne_S, p.Fenstergewinn_S, M, t.solar, t);
    fassadenbalken(f.Verluste_S, p.Fensterverlust_S, M, t.transmission, t);
    fassadenbalken(f.Gewinne_O, p.Fenstergewinn_O, M, t.solar, t);
    fassadenbalken(f.Verluste_O, p.Fensterverlust_O, M, t.transmission, t);
    fassadenbalken(f.Gewinne_W, p.Fenstergewinn_W, M, t.solar, t);
    fassadenbalken(f.Verluste_W, p.Fensterverlust_W, M, t.transmission, t);
}

void JahrBilanzZeichnen(const Projekt& p, HeizenFlaechen& f, const Diagrammeinstellung& e) {
    const ChartTheme& t = e.thema;
    Surface& s = f.JahrBilanz;
    const double stufe = stufe_jahrbilanz_heizen(p.qverl_s);
    achsenrahmen(s, BILANZRAHMEN, 85, 5, stufe, sprachtext(e.Sprache, "kWh/(m²a)", "kWh/(m²a)"), 5,
                 t);
    jahreslabel(s, p.txt_Jahresbilanz);
    Stapel verluste(s, 35, 55, stufe);
    verluste.segment(p.qtrs, t.transmission);
    verluste.segment(p.qinfs, t.lueftung);
    Stapel deckung(s, 60, 80, stufe);
    deckung.segment(p.qhs_sum, t.heizen);
    deckung.segment(p.qis, t.intern);
    deckung.segment(p.qsols, t.solar);
}

void HeizbilanzZeichnen(const Projekt& p, HeizenFlaechen& f, const Diagrammeinstellung& e) {
    const ChartTheme& t = e.thema;
    double M = 1;
    for (int m = 1; m <= 12; ++m) {
        const double verluste = (p.Monat[m].Qt + p.Monat[m].Qv) / p.f_nutz;
        M = verluste > M ? verluste : M;
    }
    Surface& s = f.Heizbilanz;
    const double stufe = stufe_heizbilanz(M);
    achsenrahmen(s, BILANZRAHMEN, 325, 5, stufe,
                 sprachtext(e.Sprache, "kWh/(m² Monat)", "kWh/(m² month)"), 3, t);
    monatsnamen(s, p, 124);
    for (int m = 1; m <= 12; ++m) {
        const Monatswerte& W = p.Monat[m];
        const double x0 = monatsspalte(m);
        Stapel verluste(s, x0, x0 + 8, stufe);
        verluste.segment(W.Qt / p.f_nutz, t.transmission);
        verluste.segment(W.Qv / p.f_nutz, t.lueftung);
        Stapel deckung(s, x0 + 10, x0 + 18, stufe);
        deckung.segment(W.Qh / p.f_nutz, t.heizen);
        deckung.segment(W.Qi_genutzt / p.f_nutz, t.intern);
        deckung.segment(W.Qs_genutzt / p.f_nutz, t.solar);
    }
}

HeizFelder HeizFelderAusfuellen(const Projekt& p, char dezimal) {
    const auto spez = [dezimal](double v) { return format_muster(v, "##0.0", dezimal) + " "; };
    const auto abs = [dezimal](double v) { return format_muster(v, "####0", dezimal) + " "; };
    HeizFelder f;
    f.qsols_anz = spez(p.qsols);
    f.qis_anz = spez(p.qis);
    f.qh_s_anz = spez(p.qhs_sum);
    f.qinfs_anz = spez(p.qinfs);
    f.qtrs_anz = spez(p.qtrs);
    f.qh_anz = abs(p.qh);
    f.qsol_anz = abs(p.qsol);
    f.qi_anz = abs(p.qi);
    f.qinf_anz = abs(p.qinf);
    f.qtr_anz = abs(p.qtr);
    return f;
}
