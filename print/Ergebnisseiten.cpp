// SPDX-License-Identifier: GPL-3.0-or-later
// The result pages of the hours, the heat and cooling balance and the windows.
#include "print/Druckdiagramme.h"
#include "print/Drucker.h"
#include "print/Drucktext.h"
#include "print/Seiten.h"

void Seite_Stunden(Druckseite& s) {
    const Projekt& p = s.p;
    const std::vector<double> anker = {75, 92, 118, 135, 158, 175};
    const std::string h = s.t("in h", "in h");
    tabellenkopf(
        s, s.t("Monat", "Month"), anker,
        {{"", s.t("Heizstunden", "Heating hours"), "",
          s.t("Nullenergiestunden", "Zero energy hours"), "", s.t("Kühlstunden", "Cooling hours")},
         {h, "in %", h, "in %", h, "in %"}},
        DRUCKZEILE);
    const std::vector<int> stellen = {0, 1, 0, 1, 0, 1};
    double kalt = 0, komfort = 0, heiss = 0;
    for (int m = 1; m <= MONATE; ++m) {
        const Monatswerte& w = p.Monat[m];
        const double stunden = w.Tage * 24.0;
        tabellenzeile(s, monatszeile(p, m), anker,
                      {static_cast<double>(w.Stunden_kalt), w.Stunden_kalt / stunden * 100,
                       static_cast<double>(w.Stunden_komfort), w.Stunden_komfort / stunden * 100,
                       static_cast<double>(w.Stunden_heiss), w.Stunden_heiss / stunden * 100},
                      stellen, DRUCKZEILE);
        kalt += w.Stunden_kalt;
        komfort += w.Stunden_komfort;
        heiss += w.Stunden_heiss;
    }
    regel(s, s.y - 0.5);
    s.y += 0.5;
    tabellenzeile(s, s.t("Jahr", "Year"), anker,
                  {kalt, kalt / 87.6, komfort, komfort / 87.6, heiss, heiss / 87.6}, stellen,
                  DRUCKZEILE);
    regel(s, s.y);
    Diagramm_Stunden(s.d, p);
}

void Seite_Waermebilanz(Druckseite& s) {
    const Projekt& p = s.p;
    s.d.FontSize = 8;
    const std::vector<double> anker = {62, 80, 98, 116, 134, 152, 174};
    const std::string kwh = s.t("in kWh", "in kWh");
    tabellenkopf(s, s.t("Monat", "Month"), anker,
                 {{s.t("Trans-", "Transm."), s.t("Lüftungs-", "Ventil."), s.t("Wärmever-", "Total"),
                   s.t("Interne", "Internal"), s.t("Solare", "Solar"), s.t("Nutzungs-", "Utilis."),
                   s.t("Heizwärme-", "Heat")},
                  {s.t("mission", "losses"), s.t("verluste", "losses"), s.t("luste ges.", "losses"),
                   s.t("Gewinne", "gains"), s.t("Gewinne", "gains"), s.t("grad", "factor"),
                   s.t("bedarf", "demand")},
                  {kwh, kwh, kwh, kwh, kwh, "", kwh}},
                 DRUCKZEILE_KLEIN);
    for (int m = 1; m <= MONATE; ++m) {
        const Monatswerte& w = p.Monat[m];
        tabellenzeile(s, monatszeile(p, m), anker,
                      {w.Qt, w.Qv, static_cast<double>(w.Qt) + w.Qv, w.Qi_genutzt, w.Qs_genutzt,
                       w.Nutzgrad, w.Qh},
                      {0, 0, 0, 0, 0, 2, 0}, DRUCKZEILE_KLEIN);
    }
    regel(s, s.y - 0.4);
    s.y += 0.5;
    tabellenzeile(s, s.t("Summe absolut", "Sum absolute"), anker,
                  {p.qtr, p.qinf, static_cast<double>(p.qtr) + p.qinf, p.qi, p.qsol, 0, p.qh},
                  {0, 0, 0, 0, 0, -1, 0}, DRUCKZEILE_KLEIN);
    tabellenzeile(s, s.t("Summe spezifisch", "Sum specific"), anker,
                  {p.qtrs, p.qinfs, p.qverl_s, p.qis, p.qsols, 0, p.qhs_sum},
                  {1, 1, 1, 1, 1, -1, 1}, DRUCKZEILE_KLEIN);
    regel(s, s.y);
    s.d.FontSize = 10;
    drucken_bei(s.d, 26, s.y + 1,
                s.t("(spezifisch: in kWh/m² Nutzfläche)", "(specific: in kWh/m² useful area)"));

    Diagramm_Monatbilanz(s.d, p);
    Diagramm_Jahresbilanz(s.d, p);
    drucken_bei(s.d, 25, 214, s.t("Legende:", "Legend:"));
    legende(s.d, 30, 220, DRUCK_TRANSMISSION, s.t("Transmissionsverluste", "Transmission losses"));
    legende(s.d, 80, 220, DRUCK_LUEFTUNG, s.t("Lüftungsverluste", "Ventilation losses"));
    legende(s.d, 30, 226, DRUCK_INTERN, s.t("Interne Gewinne", "Internal gains"));
    legende(s.d, 80, 226, DRUCK_SOLAR, s.t("Solare Gewinne", "Solar gains"));
    legende(s.d, 130, 226, DRUCK_HEIZEN, s.t("Heizwärmebedarf", "Heat energy demand"));
}

void Seite_Kuehlbilanz(Druckseite& s) {
    const Projekt& p = s.p;
    // The two columns of the cooling demand carry the same heading: the second stands far
    // enough right that the English one keeps a gap to the first.
    const std::vector<double> anker = {78, 110, 140, 175};
    tabellenkopf(s, s.t("Monat", "Month"), anker,
                 {{s.t("Kühlbedarf", "Cooling demand"), s.t("Kühlbedarf", "Cooling demand"),
                   s.t("Überwärmung", "Overheating"), s.t("Kühlgradstunden", "Cooling degree h.")},
                  {"in kWh", "in kWh/m^2", s.t("in Std./Tag", "in hours/day"), "in Kh"}},
                 DRUCKZEILE);
    const std::vector<int> stellen = {0, 1, 1, 0};
    double kuehl = 0, heiss = 0, grad = 0;
    for (int m = 1; m <= MONATE; ++m) {
        const Monatswerte& w = p.Monat[m];
        tabellenzeile(s, monatszeile(p, m), anker,
                      {w.Kuehlbedarf, w.Kuehlbedarf / static_cast<double>(p.f_nutz),
                       static_cast<double>(w.Stunden_heiss) / w.Tage, w.Kuehlgradstunden},
                      stellen, DRUCKZEILE);
        kuehl += w.Kuehlbedarf;
        heiss += w.Stunden_heiss;
        grad += w.Kuehlgradstunden;
    }
    regel(s, s.y - 0.5);
    s.y += 0.5;
    // The long row header is set smaller, so that a sum of five digits still stands clear of it.
    const double groesse = s.d.FontSize;
    s.d.FontSize = 8;
    drucken_bei(s.d, 26, s.y + 0.5, s.t("Jahresmittel / Jahressumme", "Yearly mean / yearly sum"));
    s.d.FontSize = groesse;
    tabellenzeile(s, "", anker, {kuehl, kuehl / p.f_nutz, heiss / 365, grad}, stellen, DRUCKZEILE);
    regel(s, s.y);
    Diagramm_Kuehlen(s.d, p);
}

void Seite_Fensterbilanz(Druckseite& s) {
    const Projekt& p = s.p;
    abschnitt(s, s.t("Orientierung:", "Orientation:"));
    // The value stays left of the plan, which stands from x 100 on.
    drucken_bei(s.d, 30, s.y, s.t("Südabweichung:", "Deviation from south:"));
    drucken_bei(s.d, 70, s.y, s.wert(p.orient, "0") + " °");
    Diagramm_Orientierung(s.d, p);
    s.d.FontSize = 10;

    s.y = 95;
    const std::vector<double> anker = {95, 140, 175};
    tabellenkopf(s, s.t("Fassade", "Facade"), anker,
                 {{s.t("Solare Gewinne", "Solar gains"),
                   s.t("Transmissionsverluste", "Transmission losses"), s.t("Bilanz", "Balance")},
                  {"in kWh/a", "in kWh/a", "in kWh/a"}},
                 DRUCKZEILE);
    const struct {
        const char *deutsch, *englisch;
        double gewinn, verlust;
    } fassaden[] = {{"Nord", "north", p.Fenstergewinn_N, p.Fensterverlust_N},
                    {"Süd", "south", p.Fenstergewinn_S, p.Fensterverlust_S},
                    {"Ost", "east", p.Fenstergewinn_O, p.Fensterverlust_O},
                    {"West", "west", p.Fenstergewinn_W, p.Fensterverlust_W}};
    double gewinn = 0, verlust = 0;
    for (const auto& f : fassaden) {
        tabellenzeile(s, s.t(f.deutsch, f.englisch), anker,
                      {f.gewinn, f.verlust, f.gewinn - f.verlust}, {0, 0, 0}, DRUCKZEILE);
        gewinn += f.gewinn;
        verlust += f.verlust;
    }
    regel(s, s.y - 0.5);
    s.y += 0.5;
    tabellenzeile(s, s.t("Summe", "Sum"), anker, {gewinn, verlust, gewinn - verlust}, {0, 0, 0},
                  DRUCKZEILE);
    regel(s, s.y);
    Diagramm_Fenster(s.d, p);
}
