// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/Druckdiagramme.h"

#include "charts/Diagrammtexte.h"
#include "charts/Stufentabellen.h"
#include "energy/energie.h"
#include "print/Drucker.h"
#include "print/Drucktext.h"
#include "project/Zahltext.h"
#include "project/c_glob.h"

#include <algorithm>
#include <initializer_list>

namespace {

constexpr double DIAGRAMMSCHRIFT = 8;

// Left edge of month m's column on a month diagram whose vertical axis stands at x.
double monat_x(double achse_x, int m) {
    return achse_x + 0.5 + 8 * (m - 1);
}

void diagrammschrift(Drucker& d) {
    d.FontName = "Arial";
    d.FontSize = DIAGRAMMSCHRIFT;
    d.FontBold = false;
    d.FontItalic = false;
    d.FontUnderline = false;
}

std::string monatseinheit(const Projekt& p) {
    return "kWh/(m² " + p.txt_Monat + ")";
}

} // namespace

double druck_y(const Druckachse& a, double wert) {
    return a.unten - (wert / a.stufe) * (a.unten - a.oben) / a.n;
}

void druck_achsen(Drucker& d, const Druckachse& a, const std::string& einheit, double einheit_x) {
    d.Line(a.x, a.unten, a.x, a.oben, BLACK);
    d.Line(a.x, a.unten, a.x_ende, a.unten, BLACK);
    for (int i = 0; i <= a.n; ++i) {
        const double y = a.unten - i * (a.unten - a.oben) / a.n;
        d.Line(a.x - 1, y, a.x, y, BLACK);
        const std::string zahl = zahl_str(i * a.stufe);
        d.CurrentX = a.x - 1.5 - d.TextWidth(zahl);
        d.CurrentY = y - 1.5;
        d.Print(zahl);
    }
    drucken_bei(d, einheit_x, a.oben - 5, einheit);
}

void druck_balken(Drucker& d, const Druckachse& a, double x1, double x2, double von, double bis,
                  Rgb farbe) {
    const double y1 = druck_y(a, von), y2 = druck_y(a, bis);
    d.FilledBox(x1, y1, x2, y2, farbe);
    d.Box(x1, y1, x2, y2, BLACK);
}

void druck_monatsnamen(Drucker& d, const std::string& sprache, double x, double y) {
    // One string whose blanks put each name under its 8 mm column in the diagram font.
    drucken_bei(d, x, y,
                sprachtext(sprache,
                           "  Jan.   Feb.   Mär.   Apr.    Mai   Jun.    Jul.   Aug.   Sep.   "
                           "Okt.   Nov.   Dez.",
                           "  Jan.   Feb.   Mar.   Apr.   May   Jun.    Jul.   Aug.   Sep.   "
                           "Oct.   Nov.   Dec."));
}

void legende(Drucker& d, double x, double y, Rgb farbe, const std::string& text) {
    d.FilledBox(x, y, x + 5, y + 2.5, farbe);
    d.Box(x, y, x + 5, y + 2.5, BLACK);
    drucken_bei(d, x + 7, y - 0.3, text);
}

void Diagramm_Monatbilanz(Drucker& d, const Projekt& p) {
    diagrammschrift(d);
    d.Box(25, 139, 133, 211, BLACK);
    double M = 1;
    for (int m = 1; m <= MONATE; ++m) {
        M = std::max(M, (static_cast<double>(p.Monat[m].Qt) + p.Monat[m].Qv) / p.f_nutz);
    }
    const Druckachse a{35, 205, 145, 131, 5, stufe_heizbilanz(M)};
    druck_achsen(d, a, monatseinheit(p), 28);
    druck_monatsnamen(d, p.Sprache, a.x, a.unten + 1);
    for (int m = 1; m <= MONATE; ++m) {
        const Monatswerte& w = p.Monat[m];
        const double f = p.f_nutz;
        const double x = monat_x(a.x, m);
        const double qt = w.Qt / f, qv = w.Qv / f;
        druck_balken(d, a, x, x + 3.4, 0, qt, DRUCK_TRANSMISSION);
        druck_balken(d, a, x, x + 3.4, qt, qt + qv, DRUCK_LUEFTUNG);
        // The supply stands internal gains first, then solar gains, heat demand on top.
        const double qi = w.Qi_genutzt / f, qs = w.Qs_genutzt / f, qh = w.Qh / f;
        druck_balken(d, a, x + 3.6, x + 7, 0, qi, DRUCK_INTERN);
        druck_balken(d, a, x + 3.6, x + 7, qi, qi + qs, DRUCK_SOLAR);
        druck_balken(d, a, x + 3.6, x + 7, qi + qs, qi + qs + qh, DRUCK_HEIZEN);
    }
}

void Diagramm_Jahresbilanz(Drucker& d, const Projekt& p) {
    diagrammschrift(d);
    d.Box(140, 139, 175, 211, BLACK);
    const Druckachse a{150, 205, 145, 172, 5, stufe_jahrbilanz_heizen(p.qverl_s)};
    druck_achsen(d, a, "kWh/(m² a)", 143);
    const double tr = p.qtrs, inf = p.qinfs, qi = p.qis, qs = p.qsols, qh = p.qhs_sum;
    druck_balken(d, a, 151, 160, 0, tr, DRUCK_TRANSMISSION);
    druck_balken(d, a, 151, 160, tr, tr + inf, DRUCK_LUEFTUNG);
    druck_balken(d, a, 162, 171, 0, qi, DRUCK_INTERN);
    druck_balken(d, a, 162, 171, qi, qi + qs, DRUCK_SOLAR);
    druck_balken(d, a, 162, 171, qi + qs, qi + qs + qh, DRUCK_HEIZEN);
    drucken_bei(d, 152, a.unten + 1, p.txt_Jahresbilanz);
}

namespace {

// The three hour classes of one bar, built by overdrawing from the full height down as on the
// overview: cooling on top, zero-energy hours in the middle, heating hours at the bottom.
void stundenbalken(Drucker& d, const Druckachse& a, double x1, double x2, double kalt,
                   double komfort, double heiss) {
    if (heiss > 0) {
        druck_balken(d, a, x1, x2, 0, kalt + komfort + heiss, DRUCK_INTERN);
    }
    if (komfort > 0) {
        druck_balken(d, a, x1, x2, 0, kalt + komfort, DRUCK_SOLAR);
    }
    if (kalt > 0) {
        druck_balken(d, a, x1, x2, 0, kalt, DRUCK_HEIZEN);
    }
}

} // namespace

void Diagramm_Stunden(Drucker& d, const Projekt& p) {
    diagrammschrift(d);
    const std::string einheit = sprachtext(p.Sprache, "Stunden", "hours");
    d.Box(25, 139, 133, 211, BLACK);
    const Druckachse a{35, 205, 145, 131, 4, 200};
    druck_achsen(d, a, einheit, 28);
    druck_monatsnamen(d, p.Sprache, a.x, a.unten + 1);
    double kalt = 0, komfort = 0, heiss = 0;
    for (int m = 1; m <= MONATE; ++m) {
        const Monatswerte& w = p.Monat[m];
        const double x = monat_x(a.x, m);
        stundenbalken(d, a, x, x + 7, w.Stunden_kalt, w.Stunden_komfort, w.Stunden_heiss);
        kalt += w.Stunden_kalt;
        komfort += w.Stunden_komfort;
        heiss += w.Stunden_heiss;
    }

    d.Box(140, 139, 175, 211, BLACK);
    const Druckachse j{152, 205, 145, 172, 4, 2200};
    druck_achsen(d, j, einheit, 145);
    stundenbalken(d, j, 155, 169, kalt, komfort, heiss);
    drucken_bei(d, 153, j.unten + 1, sprachtext(p.Sprache, "Jahressumme", "annual sum"));

    legende(d, 30, 218, DRUCK_HEIZEN, sprachtext(p.Sprache, "Heizstunden", "Heating hours"));
    legende(d, 80, 218, DRUCK_SOLAR,
            sprachtext(p.Sprache, "Nullenergiestunden", "Zero energy hours"));
    legende(d, 130, 218, DRUCK_INTERN, sprachtext(p.Sprache, "Kühlstunden", "Cooling hours"));
}

void Diagramm_Kuehlen(Drucker& d, const Projekt& p) {
    diagrammschrift(d);
    d.Box(25, 164, 133, 206, BLACK);
    double M = 1, K = 1;
    for (int m = 1; m <= MONATE; ++m) {
        M = std::max(M, static_cast<double>(p.Monat[m].Stunden_heiss) / p.Monat[m].Tage);
        K = std::max(K, p.Monat[m].Kuehlbedarf / static_cast<double>(p.f_nutz));
    }
    const Druckachse a{35, 200, 170, 131, 4, stufe_stunden_pro_tag(M)};
    druck_achsen(d, a, sprachtext(p.Sprache, "Std./Tag", "hours/day"), 28);
    druck_monatsnamen(d, p.Sprache, a.x, a.unten + 1);
    // The cooling demand stands beside the hours in the same box, on its own scale of as many
    // steps, whose numbers and unit stand right of the box.
    const Druckachse k{35, 200, 170, 131, 4, stufe_monatsbilanz(K)};
    for (int i = 0; i <= k.n; ++i) {
        const double y = k.unten - i * (k.unten - k.oben) / k.n;
        d.Line(k.x_ende, y, k.x_ende + 1, y, BLACK);
        drucken_bei(d, 134.5, y - 1.5, zahl_str(i * k.stufe));
    }
    drucken_bei(d, 134.5, k.oben - 5, monatseinheit(p));
    for (int m = 1; m <= MONATE; ++m) {
        const double x = monat_x(a.x, m);
        const double stunden = static_cast<double>(p.Monat[m].Stunden_heiss) / p.Monat[m].Tage;
        const double bedarf = p.Monat[m].Kuehlbedarf / static_cast<double>(p.f_nutz);
        if (stunden > 0) {
            druck_balken(d, a, x + 0.5, x + 3.5, 0, stunden, DRUCK_PRIMAER);
        }
        if (bedarf > 0) {
            druck_balken(d, k, x + 3.5, x + 6.5, 0, bedarf, DRUCK_INTERN);
        }
    }
    legende(d, 30, 210, DRUCK_PRIMAER, sprachtext(p.Sprache, "Überwärmung", "Overheating"));
    legende(d, 80, 210, DRUCK_INTERN, sprachtext(p.Sprache, "Kühlbedarf", "Cooling demand"));
}

void Diagramm_Fenster(Drucker& d, const Projekt& p) {
    diagrammschrift(d);
    d.Box(25, 135, 175, 207, BLACK);
    struct Fassade {
        const char* deutsch;
        const char* englisch;
        double gewinn, verlust, x;
    };
    const Fassade fassaden[] = {
        {"Nord", "north", p.Fenstergewinn_N, p.Fensterverlust_N, 54},
        {"Süd", "south", p.Fenstergewinn_S, p.Fensterverlust_S, 84},
        {"Ost", "east", p.Fenstergewinn_O, p.Fensterverlust_O, 114},
        {"West", "west", p.Fenstergewinn_W, p.Fensterverlust_W, 144},
    };
    double M = 1;
    for (const Fassade& f : fassaden) {
        M = std::max({M, f.gewinn, f.verlust});
    }
    const Druckachse a{50, 201, 141, 170, 5, stufe_jahrbilanz_heizen(M)};
    druck_achsen(d, a, "kWh/a", 43);
    for (const Fassade& f : fassaden) {
        druck_balken(d, a, f.x, f.x + 10, 0, f.gewinn, DRUCK_SOLAR);
        druck_balken(d, a, f.x + 12, f.x + 22, 0, f.verlust, DRUCK_TRANSMISSION);
        const std::string name = sprachtext(p.Sprache, f.deutsch, f.englisch);
        drucken_bei(d, f.x + 11 - d.TextWidth(name) / 2, a.unten + 1, name);
    }

    d.Box(25, 220, 175, 245, BLACK);
    drucken_bei(d, 28, 222, sprachtext(p.Sprache, "Legende:", "Legend:"));
    const std::string durch = sprachtext(p.Sprache, " durch Fenster", " of windows");
    legende(d, 50, 228, DRUCK_SOLAR,
            sprachtext(p.Sprache, "Solare Gewinne", "Solar gains") + durch);
    legende(d, 50, 236, DRUCK_TRANSMISSION,
            sprachtext(p.Sprache, "Transmissionsverluste", "Transmission losses") + durch);
}

namespace {

// The column of the legend right of the energy diagrams: at x 140, or as far left as its
// longest text needs to end at the rule at x 175.
double legendenspalte(const Drucker& d, std::initializer_list<std::string> texte) {
    double breiteste = 0;
    for (const std::string& t : texte) {
        breiteste = std::max(breiteste, d.TextWidth(t));
    }
    return std::min(140.0, 175 - 7 - breiteste);
}

// The frame of the two energy diagrams: box, axes 20 mm high of n steps of `stufe`, month names.
Druckachse energierahmen(Drucker& d, const Projekt& p, int n, double stufe) {
    diagrammschrift(d);
    d.Box(25, 209, 133, 241, BLACK);
    const Druckachse a{35, 235, 215, 131, n, stufe};
    druck_achsen(d, a, monatseinheit(p), 28);
    druck_monatsnamen(d, p.Sprache, a.x, a.unten + 1);
    return a;
}

// A bar lower than this, in mm, is thinner than the printed lines and would only smear the axis
// with its colour and its outline.
constexpr double KLEINSTE_BALKENHOEHE = 0.2;

// A segment of `wert` stacked on `sockel`, drawn only for a value above 0 as on the screen and
// only as high as a visible bar: a month without heat demand (whose balance may end a rounding
// below or above 0) or an empty auxiliary part leaves no bar, not even a sliver at the axis.
void energiebalken(Drucker& d, const Druckachse& a, double x1, double x2, double sockel,
                   double wert, Rgb farbe) {
    if (wert > 0 && druck_y(a, sockel) - druck_y(a, sockel + wert) >= KLEINSTE_BALKENHOEHE) {
        druck_balken(d, a, x1, x2, sockel, sockel + wert, farbe);
    }
}

} // namespace

void Diagramm_Heizenergie(Drucker& d, const Projekt& p) {
    const Energiemonate w = energie_monatswerte(p);
    double M = 0;
    for (int m = 1; m <= MONATE; ++m) {
        M = std::max(
            {M, static_cast<double>(w.E[m]) + w.H[m], static_cast<double>(w.P[m]) + w.Q[m]});
    }
    // Three steps of the energy plane's own table, as on the screen.
    const Druckachse a = energierahmen(d, p, 3, stufe_monatsverbrauch(M));
    for (int m = 1; m <= MONATE; ++m) {
        const double x = monat_x(a.x, m);
        const double E = w.E[m], H = w.H[m], P = w.P[m], Q = w.Q[m];
        energiebalken(d, a, x + 0.5, x + 3.5, 0, E, DRUCK_HEIZEN);
        energiebalken(d, a, x + 0.5, x + 3.5, E, H, DRUCK_STROM);
        energiebalken(d, a, x + 3.5, x + 6.5, 0, P, DRUCK_PRIMAER);
        energiebalken(d, a, x + 3.5, x + 6.5, P, Q, DRUCK_PRIMAER_STROM);
    }
    const std::string ende = sprachtext(p.Sprache, "Endenergiebedarf", "End energy demand");
    const std::string strom = sprachtext(p.Sprache, "Strom", "electricity");
    const std::string primaer =
        sprachtext(p.Sprache, "Primärenergiebedarf", "Primary energy demand");
    const double x = legendenspalte(d, {ende, strom, primaer});
    legende(d, x, 214, DRUCK_HEIZEN, ende);
    legende(d, x, 219, DRUCK_STROM, strom);
    legende(d, x, 226, DRUCK_PRIMAER, primaer);
    legende(d, x, 231, DRUCK_PRIMAER_STROM, strom);
}

void Diagramm_Kuehlenergie(Drucker& d, const Projekt& p) {
    // Cooling runs on electricity: end energy by the efficiency of the plant, primary energy by
    // the fixed factor of electricity.
    const double teiler = static_cast<double>(p.Klimaeffizienz) * p.f_nutz;
    double M = 0;
    for (int m = 1; m <= MONATE; ++m) {
        M = std::max(M, p.Monat[m].Kuehlbedarf / teiler * PRIMAERFAKTOR_STROM);
    }
    // The month values of cooling are small: they take the steps of the month balance, whose
    // tops are five steps.
    const Druckachse a = energierahmen(d, p, 5, stufe_monatsbilanz(M));
    for (int m = 1; m <= MONATE; ++m) {
        const double x = monat_x(a.x, m);
        const double end = p.Monat[m].Kuehlbedarf / teiler;
        energiebalken(d, a, x + 0.5, x + 3.5, 0, end, DRUCK_STROM);
        energiebalken(d, a, x + 3.5, x + 6.5, 0, end * PRIMAERFAKTOR_STROM, DRUCK_PRIMAER_STROM);
    }
    const std::string ende = sprachtext(p.Sprache, "Endenergiebedarf", "End energy demand");
    const std::string primaer =
        sprachtext(p.Sprache, "Primärenergiebedarf", "Primary energy demand");
    const double x = legendenspalte(d, {ende, primaer});
    legende(d, x, 214, DRUCK_STROM, ende);
    legende(d, x, 219, DRUCK_PRIMAER_STROM, primaer);
}
