// SPDX-License-Identifier: GPL-3.0-or-later
// The pages of end and primary energy for heating and for cooling.
#include "energy/energie.h"
#include "print/Druckdiagramme.h"
#include "print/Drucker.h"
#include "print/Drucktext.h"
#include "print/Seiten.h"

namespace {

constexpr const char* JAHRESEINHEIT = " kWh/(m² a)";

} // namespace

void Seite_Heizenergie(Druckseite& s) {
    const Projekt& p = s.p;
    const std::string traeger = s.t(p.Energie.Traegername.c_str(), p.Energie.Traegername_e.c_str());
    const std::string strom = s.t("Strom", "electricity");
    auto jahr = [&](double v) { return s.wert(v, "0.0") + JAHRESEINHEIT; };

    abschnitt(s, s.t("Wärme:", "Heat:"));
    wertzeile(s, s.t("Heizwärmebedarf:", "Heat energy demand:"), jahr(p.qhs_sum));
    wertzeile(s, s.t("Verluste bei der Wärmespeicherung:", "Losses of the heat storage:"),
              jahr(p.Energie.q_s));
    wertzeile(s, s.t("Wärmeverluste bei der Verteilung:", "Heat losses from the distribution:"),
              jahr(p.Energie.q_d));
    wertzeile(s, s.t("Verluste bei der Übergabe an die Räume:", "Losses of the heat transfer:"),
              jahr(p.Energie.q_ce));
    wertzeile(s, s.t("Aufwandszahl der Wärmeerzeugung:", "Expense number of heat generation:"),
              s.wert(p.Energie.e_g, "0.00"));
    wertzeile(s, s.t("Endenergiebedarf ", "End energy demand ") + traeger + ":",
              jahr(p.q_HE_Energietraeger));
    wertzeile(s, s.t("Primärenergiebedarf ", "Primary energy demand ") + traeger + ":",
              jahr(p.q_PE_Energietraeger));
    s.y += 2;
    abschnitt(s, s.t("Hilfsenergie (Strom):", "Auxiliary energy (electricity):"));
    wertzeile(s, s.t("Endenergiebedarf Hilfsenergie:", "End energy demand auxiliary energy:"),
              jahr(p.q_HE_Strom));
    wertzeile(s,
              s.t("Primärenergiebedarf Hilfsenergie:", "Primary energy demand auxiliary energy:"),
              jahr(p.q_PE_Strom));
    s.y += 4;

    s.d.FontSize = 8;
    const std::vector<double> anker = {62, 84, 106, 130, 152, 175};
    const std::string end = s.t("Endenergie", "End energy"), pri = s.t("Primärenergie", "Primary");
    const std::string gesamt = s.t("gesamt", "total");
    const std::string einheit = "in kWh/m^2";
    tabellenkopf(s, s.t("Monat", "Month"), anker,
                 {{end, end, end, pri, pri, pri},
                  {traeger, strom, gesamt, traeger, strom, gesamt},
                  {einheit, einheit, einheit, einheit, einheit, einheit}},
                 DRUCKZEILE_KLEIN);
    const Energiemonate w = energie_monatswerte(p);
    const std::vector<int> stellen = {1, 1, 1, 1, 1, 1};
    for (int m = 1; m <= MONATE; ++m) {
        const double E = w.E[m], H = w.H[m], P = w.P[m], Q = w.Q[m];
        tabellenzeile(s, monatszeile(p, m), anker, {E, H, E + H, P, Q, P + Q}, stellen,
                      DRUCKZEILE_KLEIN);
    }
    regel(s, s.y - 0.4);
    s.y += 0.5;
    const double he = p.q_HE_Energietraeger, hs = p.q_HE_Strom;
    const double pe = p.q_PE_Energietraeger, ps = p.q_PE_Strom;
    // With electricity as the carrier the months hold its auxiliary part too; the year does
    // the same, so that the columns add up.
    if (p.Energie.Traegername == "Strom") {
        tabellenzeile(s, s.t("Jahressumme", "Yearly sum"), anker,
                      {he + hs, 0, he + hs, pe + ps, 0, pe + ps}, stellen, DRUCKZEILE_KLEIN);
    } else {
        tabellenzeile(s, s.t("Jahressumme", "Yearly sum"), anker,
                      {he, hs, he + hs, pe, ps, pe + ps}, stellen, DRUCKZEILE_KLEIN);
    }
    regel(s, s.y);
    s.d.FontSize = 10;
    Diagramm_Heizenergie(s.d, p);
}

void Seite_Kuehlenergie(Druckseite& s) {
    const Projekt& p = s.p;
    double kuehl = 0;
    for (int m = 1; m <= MONATE; ++m) {
        kuehl += p.Monat[m].Kuehlbedarf;
    }
    const double f = p.f_nutz, eff = p.Klimaeffizienz;
    auto jahr = [&](double v) { return s.wert(v, "0.0") + JAHRESEINHEIT; };

    abschnitt(s, s.t("Kühlung:", "Cooling:"));
    wertzeile(s, s.t("Effizienzfaktor Klimaanlage:", "Efficiency factor of air conditioning:"),
              s.wert(eff, "0.0") +
                  s.t(" kWh Kühlung / kWh Strom", " kWh cooling / kWh electricity"));
    wertzeile(s, s.t("Kühlbedarf:", "Cooling demand:"), jahr(kuehl / f));
    wertzeile(s, s.t("Endenergiebedarf (Strom):", "End energy demand (electricity):"),
              jahr(kuehl / eff / f));
    wertzeile(s, s.t("Primärenergiebedarf:", "Primary energy demand:"),
              jahr(kuehl / eff * PRIMAERFAKTOR_STROM / f));
    s.y += 4;

    s.d.FontSize = 8;
    const std::vector<double> anker = {90, 130, 170};
    tabellenkopf(
        s, s.t("Monat", "Month"), anker,
        {{s.t("Kühlbedarf", "Cooling demand"), s.t("Endenergiebedarf", "End energy demand"),
          s.t("Primärenergiebedarf", "Primary energy demand")},
         {"", s.t("(Strom)", "(electricity)"), ""},
         {"in kWh/m^2", "in kWh/m^2", "in kWh/m^2"}},
        DRUCKZEILE_KLEIN);
    const std::vector<int> stellen = {1, 1, 1};
    for (int m = 1; m <= MONATE; ++m) {
        const double k = p.Monat[m].Kuehlbedarf;
        tabellenzeile(s, monatszeile(p, m), anker,
                      {k / f, k / eff / f, k / eff * PRIMAERFAKTOR_STROM / f}, stellen,
                      DRUCKZEILE_KLEIN);
    }
    regel(s, s.y - 0.4);
    s.y += 0.5;
    tabellenzeile(s, s.t("Jahressumme", "Yearly sum"), anker,
                  {kuehl / f, kuehl / eff / f, kuehl / eff * PRIMAERFAKTOR_STROM / f}, stellen,
                  DRUCKZEILE_KLEIN);
    regel(s, s.y);
    s.d.FontSize = 10;
    Diagramm_Kuehlenergie(s.d, p);
}
