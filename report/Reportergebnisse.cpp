// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/Reportschreiber.h"

#include "energy/energie.h"
#include "planes/Eingabeflaechen.h"
#include "project/Zahltext.h"

namespace bericht {

void Reportschreiber::uebersicht() {
    seitenkopf(s("Ausgabe: Übersicht", "Output: Overview"));
    abschnitt(s("Heizwärme- und Kühlbedarf", "Heat energy and cooling demand"));
    anhaengen(TABS_2);
    zeile_anhaengen(s(" \\tab Heizwärmebedarf \\tab Kühlbedarf",
                      " \\tab Heat energy demand \\tab Cooling demand"));
    zeile_anhaengen(" \\tab in kWh/m² \\tab in kWh/m²");
    double qh = 0, kuehl = 0;
    for (int m = 1; m <= 12; ++m) {
        const Monatswerte& mo = p_.Monat[m];
        zeile_anhaengen(monat(m) + quot(mo.Qh, p_.f_nutz, "0.0") + T +
                        quot(mo.Kuehlbedarf, p_.f_nutz, "0.0"));
        qh += mo.Qh;
        kuehl += mo.Kuehlbedarf;
    }
    regel();
    zeile_anhaengen(s("     Jahressumme", "     Yearly sum") + std::string("\\tab ") +
                    quot(qh, p_.f_nutz, "0.0") + T + quot(kuehl, p_.f_nutz, "0.0"));
    zeile_anhaengen("");

    abschnitt(s("Heiz- und Kühlstunden", "Heating and cooling hours"));
    anhaengen(TABS_3);
    zeile_anhaengen(s(" \\tab Heizstunden \\tab Nullenergiestunden \\tab Kühlstunden",
                      " \\tab Heating hours \\tab Zero energy hours \\tab Cooling hours"));
    zeile_anhaengen(s(" \\tab in Stunden \\tab in Stunden \\tab in Stunden",
                      " \\tab in hours \\tab in hours \\tab in hours"));
    long kalt = 0, komfort = 0, heiss = 0;
    for (int m = 1; m <= 12; ++m) {
        const Monatswerte& mo = p_.Monat[m];
        zeile_anhaengen(monat(m) + std::to_string(mo.Stunden_kalt) + "\\tab " +
                        std::to_string(mo.Stunden_komfort) + "\\tab " +
                        std::to_string(mo.Stunden_heiss));
        kalt += mo.Stunden_kalt;
        komfort += mo.Stunden_komfort;
        heiss += mo.Stunden_heiss;
    }
    regel();
    // The sums by the number-to-text form, whose leading blank ends the tab word.
    zeile_anhaengen(s("     Summe (in Std.)", "     Sum (in hours)") + std::string("\\tab") +
                    zahl_str(static_cast<double>(kalt)) + "\\tab" +
                    zahl_str(static_cast<double>(komfort)) + "\\tab" +
                    zahl_str(static_cast<double>(heiss)));
    zeile_anhaengen(s("     Summe (in %)", "     Sum (in %)") + std::string("\\tab ") +
                    z(kalt / 87.6, "0.0") + T + z(komfort / 87.6, "0.0") + T +
                    z(heiss / 87.6, "0.0"));
}

void Reportschreiber::klima() {
    seitenkopf(s("Ausgabe: Klima- und Gebäudedaten", "Output: Climate and building data"));
    abschnitt(s("Klimadaten", "Climate data"));
    anhaengen(TABS_3);
    zeile_anhaengen(s(" \\tab Mitteltemperatur \\tab Temperaturmaximum \\tab Temperaturminimum",
                      " \\tab Mean temperature \\tab Maximum temperature \\tab Minimum "
                      "temperature"));
    zeile_anhaengen(" \\tab in °C \\tab in °C \\tab in °C");
    double jahr = 0;
    for (int m = 1; m <= 12; ++m) {
        const int tage = p_.Monat[m].Tage;
        double summe = 0;
        // The extremes start from fixed bounds rather than from the first hour.
        float hoch = -1000, tief = 1000;
        for (int d = 1; d <= tage; ++d) {
            for (int h = 1; h <= 24; ++h) {
                const float ta = p_.Wetter(m, d, h).Ta;
                summe += ta;
                jahr += ta / 8760.0;
                hoch = ta > hoch ? ta : hoch;
                tief = ta < tief ? ta : tief;
            }
        }
        const double mittel = tage > 0 ? summe / (tage * 24.0) : 0.0;
        zeile_anhaengen(monat(m) + z(mittel, "0.0") + T + z(hoch, "0.0") + T + z(tief, "0.0"));
    }
    regel();
    zeile_anhaengen(s("     Jahresmittel \\tab ", "     Yearly mean \\tab ") + z(jahr, "0.0"));
    zeile_anhaengen("");

    abschnitt(s("Gebäudedaten", "Building data"));
    anhaengen(TABS_WERT);
    const KlimainfoTexte& k = info_;
    zeile_anhaengen(s("     Mittlerer U-Wert: \\tab ", "     Mean U value: \\tab ") +
                    k.anz_Umittel + " W/(m² K)");
    zeile_anhaengen(s("     Spezifische Transmissionsverluste: \\tab ",
                      "     Specific transmission losses: \\tab ") +
                    k.anz_Tspez + " W/K");
    zeile_anhaengen(
        s("     Spezifische Lüftungsverluste: \\tab ", "     Specific ventilation losses: \\tab ") +
        k.anz_Vspez + " W/K");
    zeile_anhaengen(
        s("     Summe spezifische Verluste: \\tab ", "     Sum specific losses: \\tab ") +
        k.anz_TVspez + " W/K");
    zeile_anhaengen(s("     Thermische Trägheit: \\tab ", "     Thermal inertia: \\tab ") +
                    k.anz_tau + s(" Stunden", " hours"));
    zeile_anhaengen(s("     Maximale Heizlast: \\tab ", "     Maximum heating load: \\tab ") +
                    k.anz_Heizlast + " kW");
    zeile_anhaengen(s("     Maximale spezifische Heizlast: \\tab ",
                      "     Maximum specific heating load: \\tab ") +
                    k.anz_heizlast_spez + " W/m²");
    zeile_anhaengen(s("     Maximale Kühllast: \\tab ", "     Maximum cooling load: \\tab ") +
                    k.anz_kuehllast + " kW");
    zeile_anhaengen(s("     Maximale spezifische Kühllast: \\tab ",
                      "     Maximum specific cooling load: \\tab ") +
                    k.anz_kuehllast_spez + " W/m²");
    zeile_anhaengen(
        s("     Heizgrenztemperatur: \\tab ", "     Limit temperature for heating: \\tab ") +
        k.anz_Heizgrenztemp + "°C");
    // " Tage" in both languages.
    zeile_anhaengen(s("     Effektive Heiztage: \\tab ", "     Effective heating days: \\tab ") +
                    k.anz_Heiztage + " Tage");
}

void Reportschreiber::waermebilanz() {
    seitenkopf(s("Ausgabe: Wärmebilanz", "Output: Heat balance"));
    bilanztabelle(true);
    zeile_anhaengen("");
    bilanztabelle(false);
}

void Reportschreiber::bilanztabelle(bool spezifisch) {
    abschnitt(spezifisch ? s("Spezifisch (pro m² Nutzfläche)", "Specific (per m² useful area)")
                         : s("Absolut (gesamtes Gebäude)", "Absolute (total building)"));
    anhaengen(TABS_6);
    // "Tramsmis-" stands in the German and the English table alike.
    zeile_anhaengen(
        s(" \\tab Tramsmis- \\tab Lüftungs- \\tab Interne \\tab Solare \\tab Nutzungs- \\tab "
          "Heizwärme-",
          " \\tab Transm. \\tab Ventil. \\tab Internal \\tab Solar \\tab Usability \\tab Heat "
          "energy"));
    zeile_anhaengen(
        s(" \\tab sionsverl. \\tab verluste \\tab Gewinne \\tab Gewinne \\tab faktor \\tab "
          "bedarf",
          " \\tab losses \\tab losses \\tab Gains \\tab Gains \\tab factor \\tab demand"));
    zeile_anhaengen(spezifisch ? " \\tab in kWh/m² \\tab in kWh/m² \\tab in kWh/m² \\tab in "
                                 "kWh/m² \\tab \\tab in kWh/m²"
                               : " \\tab in kWh \\tab in kWh \\tab in kWh \\tab in kWh \\tab "
                                 "\\tab in kWh");
    for (int m = 1; m <= 12; ++m) {
        const Monatswerte& mo = p_.Monat[m];
        auto wert = [&](float v) { return spezifisch ? quot(v, p_.f_nutz, "0.0") : z(v, "0"); };
        zeile_anhaengen(monat(m) + wert(mo.Qt) + T + wert(mo.Qv) + T + wert(mo.Qi_genutzt) + T +
                        wert(mo.Qs_genutzt) + T + z(mo.Nutzgrad, "0.00") + T + wert(mo.Qh));
    }
    regel();
    const char* muster = spezifisch ? "0.0" : "0";
    const std::array<float, 5> jahr =
        spezifisch ? std::array<float, 5>{p_.qtrs, p_.qinfs, p_.qis, p_.qsols, p_.qhs_sum}
                   : std::array<float, 5>{p_.qtr, p_.qinf, p_.qi, p_.qsol, p_.qh};
    zeile_anhaengen(s("     Jahressumme \\tab ", "     Yearly sum \\tab ") + z(jahr[0], muster) +
                    T + z(jahr[1], muster) + T + z(jahr[2], muster) + T + z(jahr[3], muster) + T +
                    T + z(jahr[4], muster));
}

void Reportschreiber::kuehlbilanz() {
    seitenkopf(s("Ausgabe: Kühlbilanz", "Output: Cooling balance"));
    abschnitt(s("Kühlbedarf und Überwärmung", "Cooling demand and overheating"));
    anhaengen(TABS_4);
    zeile_anhaengen(s(" \\tab Kühlbedarf \\tab Kühlbedarf \\tab Durchschnittliche \\tab "
                      "Kühlgradstunden",
                      " \\tab Cooling demand \\tab Cooling demand \\tab Mean \\tab Cooling "
                      "degree"));
    zeile_anhaengen(s(" \\tab spezifisch \\tab absolut \\tab Überwärmung",
                      " \\tab specific \\tab absolute \\tab overheating \\tab hours"));
    zeile_anhaengen(s(" \\tab in kWh/m² \\tab in kWh \\tab in Stunden/Tag \\tab in Kh",
                      " \\tab in kWh/m² \\tab in kWh \\tab in hours/day \\tab in Kh"));
    double kuehl = 0, grad = 0;
    for (int m = 1; m <= 12; ++m) {
        const Monatswerte& mo = p_.Monat[m];
        zeile_anhaengen(monat(m) + quot(mo.Kuehlbedarf, p_.f_nutz, "0.0") + T +
                        z(mo.Kuehlbedarf, "0") + T + quot(mo.Stunden_heiss, mo.Tage, "0.0") + T +
                        z(mo.Kuehlgradstunden, "0.0"));
        kuehl += mo.Kuehlbedarf;
        grad += mo.Kuehlgradstunden;
    }
    regel();
    zeile_anhaengen(s("     Jahressumme", "     Yearly sum") + std::string("\\tab ") +
                    quot(kuehl, p_.f_nutz, "0.0") + T + z(kuehl, "0") + T + T + z(grad, "0.0"));
}

void Reportschreiber::energie_heizung() {
    seitenkopf(s("Ausgabe: Primär- und Endenergiebedarf Heizung",
                 "Output: Primary and end energy demand for heating"));
    abschnitt(s("Energiebedarf der Heizungsanlage", "Energy demand of the heating system"));
    anhaengen(TABS_WERT);
    const Energiekennwerte& k = p_.Energie;
    const std::string traeger = e_ ? k.Traegername_e : k.Traegername;
    const bool strom = k.Traegername == "Strom";
    const std::string einheit = " kWh/(m² a)";
    auto feld = [&](float v) { return z(v, "0.0"); };
    zeile_anhaengen(s("     Wärme:", "     Heat:"));
    zeile_anhaengen(s("          Heizwärmebedarf: \\tab ", "          Heat energy demand: \\tab ") +
                    feld(p_.qhs_sum) + einheit);
    zeile_anhaengen(s("          Verluste bei der Wärmespeicherung: \\tab ",
                      "          Losses of the heat storage: \\tab ") +
                    feld(k.q_s) + einheit);
    zeile_anhaengen(s("          Wärmeverluste bei der Verteilung: \\tab ",
                      "          Heat losses from the distribution: \\tab ") +
                    feld(k.q_d) + einheit);
    zeile_anhaengen(s("          Verluste bei der Übergabe an die Räume: \\tab ",
                      "          Looses at the transmission to the rooms: \\tab ") +
                    feld(k.q_ce) + einheit);
    zeile_anhaengen(s("          Aufwandszahl der Wärmeerzeugung: \\tab ",
                      "          Expense number of heat generation: \\tab ") +
                    z(k.e_g, "0.00"));
    zeile_anhaengen("");
    zeile_anhaengen(s("          Endenergiebedarf ", "          End energy demand ") + traeger +
                    ": \\tab " + feld(p_.q_HE_Energietraeger) + einheit);
    if (!strom) {
        zeile_anhaengen(s("          Primärenergiefaktor ", "          Primary energy factor ") +
                        traeger + ": \\tab " + feld(k.f_p));
        zeile_anhaengen(s("          Primärenergiebedarf ", "          Primary energy demand ") +
                        traeger + ": \\tab " + feld(p_.q_PE_Energietraeger) + einheit);
    }
    zeile_anhaengen(s("     Hilfsenergie (Strom):", "     Auxiliary energy (electricity):"));
    zeile_anhaengen(s("          Hilfsenergiebedarf zur Wärmeerzeugung: \\tab ",
                      "          Auxiliary energy for heat generation: \\tab ") +
                    feld(k.q_g_he) + einheit);
    zeile_anhaengen(s("          Hilfsenergiebedarf zur Wärmespeicherung: \\tab ",
                      "          Auxiliary energy for heat storage: \\tab ") +
                    feld(k.q_s_he) + einheit);
    zeile_anhaengen(s("          Hilfsenergiebedarf zur Wärmeverteilung: \\tab ",
                      "          Auxiliary energy for heat distribution: \\tab ") +
                    feld(k.q_d_he) + einheit);
    zeile_anhaengen("");
    zeile_anhaengen(s("          Endenergiebedarf Hilfsenergie (Strom): \\tab ",
                      "          End energy demand auxiliary energy (electricity): \\tab ") +
                    feld(p_.q_HE_Strom) + einheit);
    if (strom) {
        // Electricity has a single primary energy line, as on the energy plane.
        zeile_anhaengen(s("     Primärenergiefaktor Strom: \\tab ",
                          "     Primary energy factor electricity: \\tab ") +
                        feld(k.f_p));
        zeile_anhaengen(
            s("     Primärenergiebedarf Strom: \\tab ",
              "     Primary energy demand electricity: \\tab ") +
            feld(static_cast<float>(static_cast<double>(p_.q_PE_Strom) + p_.q_PE_Energietraeger)) +
            einheit);
    } else {
        zeile_anhaengen(s("          Primärenergiefaktor Strom: \\tab ",
                          "          Primary energy factor electricity: \\tab ") +
                        z(PRIMAERFAKTOR_STROM, "0.0"));
        zeile_anhaengen(s("          Primärenergiebedarf Hilfsenergie (Strom): \\tab ",
                          "          Primary energy demand auxiliary energy (electricity): "
                          "\\tab ") +
                        feld(p_.q_PE_Strom) + einheit);
    }
    zeile_anhaengen("");
    if (strom) {
        stromtabelle();
    } else {
        energietabelle(traeger);
    }
}

std::string Reportschreiber::anteil(int m, double jahr) const {
    if (p_.qhs_sum == 0) {
        return "0";
    }
    const double w = static_cast<double>(p_.Monat[m].Qh) / p_.f_nutz / p_.qhs_sum;
    return z(w * jahr, "0.0");
}

void Reportschreiber::stromtabelle() {
    anhaengen(TABS_2);
    zeile_anhaengen(s(" \\tab Endenergiebedarf \\tab Primärenergiebedarf",
                      " \\tab End energy demand \\tab Primary energy demand"));
    zeile_anhaengen(s(" \\tab Strom \\tab Strom", " \\tab electricity \\tab electricity"));
    zeile_anhaengen(" \\tab in kWh/m² \\tab in kWh/m²");
    const double he = static_cast<double>(p_.q_HE_Strom) + p_.q_HE_Energietraeger;
    const double pe = static_cast<double>(p_.q_PE_Strom) + p_.q_PE_Energietraeger;
    for (int m = 1; m <= 12; ++m) {
        zeile_anhaengen(monat(m) + anteil(m, he) + T + anteil(m, pe));
    }
    regel();
    zeile_anhaengen(s("     Jahressumme", "     Yearly sum") + std::string("\\tab ") +
                    z(he, "0.0") + T + z(pe, "0.0"));
}

void Reportschreiber::energietabelle(const std::string& traeger) {
    anhaengen(TABS_6);
    zeile_anhaengen(s(" \\tab Endenergie- \\tab Endenergie- \\tab Endenergie- \\tab "
                      "Primärener- \\tab Primärener- \\tab Primärener-",
                      " \\tab End energy \\tab End energy \\tab End energy \\tab Primary "
                      "\\tab Primary \\tab Primary "));
    zeile_anhaengen(s(" \\tab bedarf \\tab bedarf \\tab bedarf \\tab giebedarf \\tab giebedarf "
                      "\\tab giebedarf",
                      " \\tab demand \\tab demand \\tab demand \\tab demand \\tab demand \\tab "
                      "demand"));
    const std::string strom = s("Strom", "electricity");
    const std::string gesamt = s("gesamt", "total");
    zeile_anhaengen(" \\tab " + traeger + " \\tab " + strom + " \\tab " + gesamt + " \\tab " +
                    traeger + " \\tab " + strom + " \\tab " + gesamt);
    zeile_anhaengen(" \\tab in kWh/m² \\tab in kWh/m² \\tab in kWh/m² \\tab in kWh/m² \\tab in "
                    "kWh/m² \\tab in kWh/m²");
    const double he_t = p_.q_HE_Energietraeger, he_s = p_.q_HE_Strom;
    const double pe_t = p_.q_PE_Energietraeger, pe_s = p_.q_PE_Strom;
    for (int m = 1; m <= 12; ++m) {
        zeile_anhaengen(monat(m) + anteil(m, he_t) + T + anteil(m, he_s) + T +
                        anteil(m, he_s + he_t) + T + anteil(m, pe_t) + T + anteil(m, pe_s) + T +
                        anteil(m, pe_s + pe_t));
    }
    regel();
    zeile_anhaengen(s("     Jahressumme", "     Yearly sum") + std::string("\\tab ") +
                    z(he_t, "0.0") + T + z(he_s, "0.0") + T +
                    z(static_cast<float>(he_s + he_t), "0.0") + T + z(pe_t, "0.0") + T +
                    z(pe_s, "0.0") + T + z(static_cast<float>(pe_s + pe_t), "0.0"));
}

void Reportschreiber::energie_kuehlung() {
    seitenkopf(s("Ausgabe: Primär- und Endenergiebedarf Kühlung",
                 "Output: Primary and end energy demand for cooling"));
    abschnitt(s("Energiebedarf der Kühlanlage", "Energy demand of the cooling system"));
    anhaengen(TABS_WERT);
    zeile_anhaengen(s("     Effizienzfaktor der Klimaanlage: \\tab ",
                      "     Efficiency factor of the air conditioning: \\tab ") +
                    z(p_.Klimaeffizienz, "0.0") +
                    s(" kWh Kühlung/ kWh Strom", " kWh cooling/ kWh electricity"));
    zeile_anhaengen("");
    anhaengen(TABS_3);
    zeile_anhaengen(s(" \\tab Kühlbedarf \\tab Kühlenergiebedarf \\tab Primärenergiebedarf",
                      " \\tab Cooling demand \\tab End energy demand for cooling \\tab Primary "
                      "energy demand"));
    zeile_anhaengen(" \\tab in kWh/m² \\tab in kWh/m² \\tab in kWh/m²");
    const double eff = p_.Klimaeffizienz, fl = p_.f_nutz;
    auto zeile = [&](double kuehl) {
        return quot(kuehl, fl, "0.0") + T + z(kuehl / eff / fl, "0.0") + T +
               z(kuehl / eff * 3.0 / fl, "0.0");
    };
    double summe = 0;
    for (int m = 1; m <= 12; ++m) {
        zeile_anhaengen(monat(m) + zeile(p_.Monat[m].Kuehlbedarf));
        summe += p_.Monat[m].Kuehlbedarf;
    }
    regel();
    zeile_anhaengen(s("     Jahressumme", "     Yearly sum") + std::string("\\tab ") +
                    zeile(summe));
}

} // namespace bericht
