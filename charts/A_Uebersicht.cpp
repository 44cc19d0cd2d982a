// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/A_Uebersicht.h"

#include "charts/Balkenrahmen.h"
#include "charts/Diagrammtexte.h"
#include "charts/Stufentabellen.h"
#include "charts/Surface.h"
#include "project/c_glob.h"

namespace {

// The year label of a year chart: right end at 88 - 5, under the axis.
void jahreslabel(Surface& s, const std::string& text) {
    s.CurrentX = 88 - s.TextWidth(text) - 5;
    s.CurrentY = 124;
    s.Print(text);
}

// The kWh/(m² month) unit label of the month balance charts.
std::string einheit_monat(const std::string& sprache) {
    return sprachtext(sprache, "kWh/(m² Monat)", "kWh/(m² month)");
}

// A bar of the hour charts, built by overdrawing from the full height down, so that the classes
// stand red at the bottom, yellow above and blue on top; a class without hours is skipped.
void stundenbalken(Surface& s, double x1, double x2, double kalt, double komfort, double heiss,
                   double stufe, const ChartTheme& t) {
    if (heiss > 0) {
        s.FilledBox(x1, 116, x2, balken_y(BILANZRAHMEN, kalt + komfort + heiss, stufe, 4),
                    t.kuehlen);
    }
    if (komfort > 0) {
        s.FilledBox(x1, 116, x2, balken_y(BILANZRAHMEN, kalt + komfort, stufe, 4), t.solar);
    }
    if (kalt > 0) {
        s.FilledBox(x1, 116, x2, balken_y(BILANZRAHMEN, kalt, stufe, 4), t.heizen);
    }
}

} // namespace

void MonatsbilanzZeichnen(const Projekt& p, UebersichtFlaechen& f, const Diagrammeinstellung& e) {
    const ChartTheme& t = e.thema;
    double M = 0;
    double kuehlen_jahr = 0;
    for (int m = 1; m <= 12; ++m) {
        const double heiz = p.Monat[m].Qh / p.f_nutz;
        const double kuehl = p.Monat[m].Kuehlbedarf / p.f_nutz;
        M = heiz > M ? heiz : M;
        M = kuehl > M ? kuehl : M;
        kuehlen_jahr += p.Monat[m].Kuehlbedarf;
    }

    Surface& s = f.Monatsbilanz;
    const double stufe = stufe_monatsbilanz(M);
    achsenrahmen(s, BILANZRAHMEN, 325, 5, stufe, einheit_monat(e.Sprache), 3, t);
    monatsnamen(s, p, 124);
    for (int m = 1; m <= 12; ++m) {
        const double x0 = monatsspalte(m);
        if (p.Monat[m].Qh > 0) {
            s.FilledBox(x0, 116, x0 + 8, balken_y(BILANZRAHMEN, p.Monat[m].Qh / p.f_nutz, stufe, 5),
                        t.heizen);
        }
        if (p.Monat[m].Kuehlbedarf > 0) {
            s.FilledBox(x0 + 10, 116, x0 + 18,
                        balken_y(BILANZRAHMEN, p.Monat[m].Kuehlbedarf / p.f_nutz, stufe, 5),
                        t.kuehlen);
        }
    }

    // The year's cooling demand is added up here from the months; it is held nowhere else.
    Surface& j = f.JahrBilanz;
    const double kuehlen_spez = kuehlen_jahr / p.f_nutz;
    const double Mj = p.qhs_sum > kuehlen_spez ? p.qhs_sum : kuehlen_spez;
    const double stufe_j = stufe_jahrbilanz_uebersicht(Mj);
    achsenrahmen(j, BILANZRAHMEN, 85, 5, stufe_j, sprachtext(e.Sprache, "kWh/(m²a)", "kWh/(m²a)"),
                 5, t);
    jahreslabel(j, p.txt_Jahresbilanz);
    j.FilledBox(35, 116, 55, balken_y(BILANZRAHMEN, p.qhs_sum, stufe_j, 5), t.heizen);
    j.FilledBox(60, 116, 80, balken_y(BILANZRAHMEN, kuehlen_spez, stufe_j, 5), t.kuehlen);
}

void UeberGrafikZeichnen(const Projekt& p, UebersichtFlaechen& f, const Diagrammeinstellung& e) {
    const ChartTheme& t = e.thema;
    // Fixed steps: the tops 800 h and 8800 h hold the longest month and the whole year.
    constexpr double STUFE_MONAT = 200;
    constexpr double STUFE_JAHR = 2200;

    Surface& s = f.UeberGrafik;
    achsenrahmen(s, BILANZRAHMEN, 325, 4, STUFE_MONAT,
                 sprachtext(e.Sprache, "Std./Monat", "h/month"), 10, t);
    monatsnamen(s, p, 123);
    double kalt = 0, komfort = 0, heiss = 0;
    for (int m = 1; m <= 12; ++m) {
        const Monatswerte& M = p.Monat[m];
        const double x0 = monatsspalte(m);
        stundenbalken(s, x0, x0 + 18, M.Stunden_kalt, M.Stunden_komfort, M.Stunden_heiss,
                      STUFE_MONAT, t);
        kalt += M.Stunden_kalt;
        komfort += M.Stunden_komfort;
        heiss += M.Stunden_heiss;
    }

    Surface& j = f.UeberJahr;
    achsenrahmen(j, BILANZRAHMEN, 85, 4, STUFE_JAHR, sprachtext(e.Sprache, "Std.", "h"), 10, t);
    const std::string summe = sprachtext(e.Sprache, "Jahressumme", "annual sum");
    if (!summe.empty()) {
        j.CurrentX = 22;
        j.CurrentY = 123;
        j.Print(summe);
    }
    stundenbalken(j, 45, 70, kalt, komfort, heiss, STUFE_JAHR, t);
}
