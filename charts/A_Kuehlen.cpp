// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/A_Kuehlen.h"

#include "charts/Balkenrahmen.h"
#include "charts/Diagrammtexte.h"
#include "charts/Stufentabellen.h"
#include "charts/Surface.h"
#include "project/c_glob.h"

#include <array>

namespace {

// What one routine of the three differs in.
struct Kuehlpaar {
    int n;                         // steps of the axis
    std::array<double, 13> monat;  // value of month 1..12 at index 1..12
    double jahr;                   // value of the year
    Rgb farbe;                     // bar colour
    double (*stufe_monat)(double); // scale of the month chart
    double (*stufe_jahr)(double);  // scale of the year chart
    std::string einheit_monat, einheit_jahr, jahreslabel;
};

// Month labels under the lower axis, as far below it as on the balance charts.
constexpr double MONATSNAMEN_Y = KUEHLRAHMEN.achse_y + 7;

void zeichnen(const Projekt& p, Surface& monat, Surface& jahr, const Kuehlpaar& k,
              const ChartTheme& t) {
    const double basis = KUEHLRAHMEN.achse_y - 1;
    double M = 1;
    for (int m = 1; m <= 12; ++m) {
        M = k.monat[static_cast<std::size_t>(m)] > M ? k.monat[static_cast<std::size_t>(m)] : M;
    }
    const double stufe = k.stufe_monat(M);
    achsenrahmen(monat, KUEHLRAHMEN, 325, k.n, stufe, k.einheit_monat, 3, t);
    monatsnamen(monat, p, MONATSNAMEN_Y);
    for (int m = 1; m <= 12; ++m) {
        const double wert = k.monat[static_cast<std::size_t>(m)];
        if (wert > 0) {
            const double x0 = monatsspalte(m);
            monat.FilledBox(x0, basis, x0 + 18, balken_y(KUEHLRAHMEN, wert, stufe, k.n), k.farbe);
        }
    }

    const double stufe_j = k.stufe_jahr(k.jahr);
    achsenrahmen(jahr, KUEHLRAHMEN, 85, k.n, stufe_j, k.einheit_jahr, 5, t);
    jahr.CurrentX = 88 - jahr.TextWidth(k.jahreslabel) - 5;
    jahr.CurrentY = MONATSNAMEN_Y;
    jahr.Print(k.jahreslabel);
    if (k.jahr > 0) {
        jahr.FilledBox(45, basis, 70, balken_y(KUEHLRAHMEN, k.jahr, stufe_j, k.n), k.farbe);
    }
}

} // namespace

void StundenProTagZeichnen(const Projekt& p, KuehlenFlaechen& f, const Diagrammeinstellung& e) {
    Kuehlpaar k{4,
                {},
                0,
                e.thema.ueberwaermung,
                stufe_stunden_pro_tag,
                stufe_stunden_pro_tag,
                sprachtext(e.Sprache, "Std. / Tag", "h / d"),
                sprachtext(e.Sprache, "Std. / Tag", "h / d"),
                sprachtext(e.Sprache, "Jahresmittel", "yearly mean")};
    double summe = 0;
    for (int m = 1; m <= 12; ++m) {
        k.monat[static_cast<std::size_t>(m)] =
            static_cast<double>(p.Monat[m].Stunden_heiss) / p.Monat[m].Tage;
        summe += p.Monat[m].Stunden_heiss;
    }
    k.jahr = summe / 365;
    zeichnen(p, f.StundenProTagMonat, f.StundenProTagJahr, k, e.thema);
}

void KuehlBedarfZeichnen(const Projekt& p, KuehlenFlaechen& f, const Diagrammeinstellung& e) {
    Kuehlpaar k{5,
                {},
                0,
                e.thema.kuehlen,
                stufe_monatsbilanz,
                stufe_jahrbilanz_uebersicht,
                sprachtext(e.Sprache, "kWh/(m² Monat)", "kWh/(m² month)"),
                sprachtext(e.Sprache, "kWh/(m²a)", "kWh/(m²a)"),
                p.txt_Jahresbilanz};
    for (int m = 1; m <= 12; ++m) {
        k.monat[static_cast<std::size_t>(m)] = p.Monat[m].Kuehlbedarf / p.f_nutz;
        k.jahr += p.Monat[m].Kuehlbedarf / p.f_nutz;
    }
    zeichnen(p, f.KuehlbedarfMonat, f.KuehlbedarfJahr, k, e.thema);
}

void KuehlGradStundenZeichnen(const Projekt& p, KuehlenFlaechen& f, const Diagrammeinstellung& e) {
    Kuehlpaar k{5,
                {},
                0,
                e.thema.kuehlgradstunden,
                stufe_kuehlgradstunden_monat,
                stufe_kuehlgradstunden_jahr,
                sprachtext(e.Sprache, "Kh", "Kh"),
                sprachtext(e.Sprache, "Kh", "Kh"),
                sprachtext(e.Sprache, "Jahressumme", "yearly sum")};
    for (int m = 1; m <= 12; ++m) {
        k.monat[static_cast<std::size_t>(m)] = p.Monat[m].Kuehlgradstunden;
        k.jahr += p.Monat[m].Kuehlgradstunden;
    }
    zeichnen(p, f.KuehlGradStundenMonat, f.KuehlGradStundenJahr, k, e.thema);
}
