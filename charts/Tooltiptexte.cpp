// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/Tooltiptexte.h"

#include "charts/Diagrammtexte.h"
#include "charts/Surface.h"
#include "energy/energie.h"
#include "project/Zahlformat.h"
#include "project/c_glob.h"

#include <cmath>

namespace {

const char CR = '\r';

int monat_roh(double x) {
    const double m = std::nearbyint((x - 30 - 3) / 24 + 0.5);
    return m >= 1 && m <= 12 ? static_cast<int>(m) : 0;
}

std::string zahl(double v, const char* muster, char dez) {
    return format_muster(v, muster, dez);
}

// "caption: value kWh / (m² unit)"
std::string kwh_zeile(const std::string& caption, double wert, const std::string& einheit,
                      char dez) {
    return caption + ": " + zahl(wert, "0.0", dez) + " kWh / (m² " + einheit + ")";
}

std::string monatszeile(const Projekt& p, int m) {
    return p.txt_Monat + ": " + p.Monat[m].Name;
}

double kuehlen_jahr(const Projekt& p) {
    double summe = 0;
    for (int m = 1; m <= 12; ++m) {
        summe += p.Monat[m].Kuehlbedarf;
    }
    return summe;
}

// "caption: hours h  (share %)"
std::string stundenzeile(const std::string& caption, double stunden, double von, char dez) {
    return caption + ": " + zahl(stunden, "0", dez) + " h  (" +
           zahl(stunden / von * 100, "0.0", dez) + " %)";
}

} // namespace

int tooltip_monat(double x) {
    return monat_roh(x);
}

int tooltip_monat_energie(double x) {
    const int m = monat_roh(x);
    return m == 0 ? 1 : m;
}

bool auf_balken(const Surface& s, double x, double y) {
    return s.Point(x, y) != s.Point(2, 2);
}

bool auf_saeule_energie(const Surface& chart, const Surface& bild2, double x, double y) {
    const Rgb farbe = chart.Point(x, y);
    return farbe != bild2.Point(0, 0) && farbe != BLACK;
}

UebersichtLegende uebersicht_legende(const std::string& sprache) {
    if (sprache == "e") {
        return {"heat energy demand", "cooling demand", "heating hours", "zero energy hours",
                "cooling hours"};
    }
    return {" Heizwärmebedarf", "Kühlbedarf", "Heizstunden", "Nullenergiestunden", "Kühlstunden"};
}

std::string tooltip_Monatsbilanz(const Projekt& p, int m, const UebersichtLegende& l, char dez) {
    if (m < 1 || m > 12) {
        return std::string();
    }
    const Monatswerte& W = p.Monat[m];
    return monatszeile(p, m) + CR + kwh_zeile(l.Label9, W.Qh / p.f_nutz, p.txt_Monat, dez) + CR +
           kwh_zeile(l.Label1, W.Kuehlbedarf / p.f_nutz, p.txt_Monat, dez);
}

std::string tooltip_JahrBilanz_Uebersicht(const Projekt& p, const UebersichtLegende& l, char dez) {
    return p.txt_Jahresbilanz + CR + kwh_zeile(l.Label9, p.qhs_sum, "a", dez) + CR +
           kwh_zeile(l.Label1, kuehlen_jahr(p) / p.f_nutz, "a", dez);
}

std::string tooltip_UeberGrafik(const Projekt& p, int m, const UebersichtLegende& l, char dez) {
    if (m < 1 || m > 12) {
        return std::string();
    }
    const Monatswerte& W = p.Monat[m];
    const double stunden = W.Tage * 24.0;
    return monatszeile(p, m) + CR + stundenzeile(l.Label32, W.Stunden_kalt, stunden, dez) + CR +
           stundenzeile(l.Label01, W.Stunden_komfort, stunden, dez) + CR +
           stundenzeile(l.Label02, W.Stunden_heiss, stunden, dez);
}

std::string tooltip_UeberJahr(const Projekt& p, const UebersichtLegende& l,
                              const std::string& sprache, char dez) {
    double kalt = 0, komfort = 0, heiss = 0;
    for (int m = 1; m <= 12; ++m) {
        kalt += p.Monat[m].Stunden_kalt;
        komfort += p.Monat[m].Stunden_komfort;
        heiss += p.Monat[m].Stunden_heiss;
    }
    return sprachtext(sprache, "Jahressumme", "annual sum") + CR +
           stundenzeile(l.Label32, kalt, 8760, dez) + CR +
           stundenzeile(l.Label01, komfort, 8760, dez) + CR +
           stundenzeile(l.Label02, heiss, 8760, dez);
}

HeizenLegende heizen_legende(const std::string& sprache) {
    if (sprache == "e") {
        return {"vent. losses",           "transm. losses",        "solar gains",
                "internal gains",         "heat energy",           "usable solar gains",
                "non usable solar gains", "usable internal gains", "non usable internal gains"};
    }
    return {"Lüftungsverluste",
            "Transmissionsverluste",
            "Solare Gewinne",
            "Interne Gewinne",
            "Heizwärme",
            "Nutzbare solare Gewinne",
            "Nicht nutzbare solare Gewinne",
            "Nutzbare interne Gewinne",
            "Nicht nutzbare interne Gewinne"};
}

std::string tooltip_Heizbilanz(const Projekt& p, int m, const HeizenLegende& l, char dez) {
    if (m < 1 || m > 12) {
        return std::string();
    }
    const Monatswerte& W = p.Monat[m];
    const double f = p.f_nutz;
    const std::string& e = p.txt_Monat;
    return monatszeile(p, m) + CR + kwh_zeile(l.Label7, W.Qv / f, e, dez) + CR +
           kwh_zeile(l.Label8, W.Qt / f, e, dez) + CR +
           kwh_zeile(l.Label21, W.Qs_genutzt / f, e, dez) + CR +
           kwh_zeile(l.Label25, W.Qi_genutzt / f, e, dez) + CR +
           kwh_zeile(l.Label9, W.Qh / f, e, dez);
}

std::string tooltip_JahrBilanz_Heizen(const Projekt& p, const HeizenLegende& l, char dez) {
    return p.txt_Jahresbilanz + CR + kwh_zeile(l.Label7, p.qinfs, "a", dez) + CR +
           kwh_zeile(l.Label8, p.qtrs, "a", dez) + CR + kwh_zeile(l.Label21, p.qsols, "a", dez) +
           CR + kwh_zeile(l.Label25, p.qis, "a", dez) + CR +
           kwh_zeile(l.Label9, p.qhs_sum, "a", dez);
}

std::string tooltip_NutzungsgradMonat(const Projekt& p, int m, const HeizenLegende& l, char dez) {
    if (m < 1 || m > 12) {
        return std::string();
    }
    const Monatswerte& W = p.Monat[m];
    const double f = p.f_nutz;
    const std::string& e = p.txt_Monat;
    return monatszeile(p, m) + CR + kwh_zeile(l.Label13, W.Qs_genutzt / f, e, dez) + CR +
           kwh_zeile(l.Label11, (W.Qs_brutto - W.Qs_genutzt) / f, e, dez) + CR +
           kwh_zeile(l.Label12, W.Qi_genutzt / f, e, dez) + CR +
           kwh_zeile(l.Label10, (W.Qi_brutto - W.Qi_genutzt) / f, e, dez);
}

std::string tooltip_NutzungsgradJahr(const Projekt& p, const HeizenLegende& l, char dez) {
    // Summed from the months, as the chart is.
    double A = 0, B = 0, C = 0, D = 0;
    for (int m = 1; m <= 12; ++m) {
        A += p.Monat[m].Qs_brutto / p.f_nutz;
        B += p.Monat[m].Qi_brutto / p.f_nutz;
        C += p.Monat[m].Qs_genutzt / p.f_nutz;
        D += p.Monat[m].Qi_genutzt / p.f_nutz;
    }
    return p.txt_Jahresbilanz + CR + kwh_zeile(l.Label13, C, "a", dez) + CR +
           kwh_zeile(l.Label11, A - C, "a", dez) + CR + kwh_zeile(l.Label12, D, "a", dez) + CR +
           kwh_zeile(l.Label10, B - D, "a", dez);
}

KuehlenLegende kuehlen_legende(const std::string& sprache) {
    if (sprache == "e") {
        return {"cooling demand", "cooling degree hours"};
    }
    return {"Kühlbedarf", " Kühlgradstunden"};
}

std::string tooltip_KuehlbedarfMonat(const Projekt& p, int m, const KuehlenLegende& l, char dez) {
    if (m < 1 || m > 12) {
        return std::string();
    }
    return monatszeile(p, m) + CR +
           kwh_zeile(l.Label10, p.Monat[m].Kuehlbedarf / p.f_nutz, p.txt_Monat, dez);
}

std::string tooltip_KuehlbedarfJahr(const Projekt& p, const KuehlenLegende& l, char dez) {
    return p.txt_Jahresbilanz + CR + kwh_zeile(l.Label10, kuehlen_jahr(p) / p.f_nutz, "a", dez);
}

namespace {

std::string ueberwaermung(double stunden_pro_tag, const std::string& sprache, char dez) {
    return sprachtext(sprache, "Durchschnittliche Überwärmung: ", "Average time of overheating: ") +
           zahl(stunden_pro_tag, "0.0", dez) +
           sprachtext(sprache, " Stunden pro Tag", " hours per day");
}

} // namespace

std::string tooltip_StundenProTagMonat(const Projekt& p, int m, const std::string& sprache,
                                       char dez) {
    if (m < 1 || m > 12) {
        return std::string();
    }
    const double wert = static_cast<double>(p.Monat[m].Stunden_heiss) / p.Monat[m].Tage;
    return monatszeile(p, m) + CR + ueberwaermung(wert, sprache, dez);
}

std::string tooltip_StundenProTagJahr(const Projekt& p, const std::string& sprache, char dez) {
    double summe = 0;
    for (int m = 1; m <= 12; ++m) {
        summe += p.Monat[m].Stunden_heiss;
    }
    return sprachtext(sprache, "Jahresmittel:", "Yearly mean:") + CR +
           ueberwaermung(summe / 365, sprache, dez);
}

std::string tooltip_KuehlGradStundenMonat(const Projekt& p, int m, const KuehlenLegende& l,
                                          char dez) {
    if (m < 1 || m > 12) {
        return std::string();
    }
    return monatszeile(p, m) + CR + l.Label2 + ": " + zahl(p.Monat[m].Kuehlgradstunden, "0", dez) +
           " Kh";
}

std::string tooltip_KuehlGradStundenJahr(const Projekt& p, const KuehlenLegende& l,
                                         const std::string& sprache, char dez) {
    double summe = 0;
    for (int m = 1; m <= 12; ++m) {
        summe += p.Monat[m].Kuehlgradstunden;
    }
    return sprachtext(sprache, "Jahressumme", "yearly sum") + CR + l.Label2 + ": " +
           zahl(summe, "0", dez) + " Kh";
}

std::string tooltip_Monatsverbrauch(const Projekt& p, int m, const std::string& sprache, char dez) {
    if (m < 1 || m > 12) {
        m = 1;
    }
    const bool englisch = sprache == "e";
    const std::string monat = englisch ? "month" : "Monat";
    const std::string traeger = englisch ? p.Energie.Traegername_e : p.Energie.Traegername;
    const std::string Label8 =
        (englisch ? "heating energy demand (" : "Heizenergiebedarf (") + traeger + "):";
    const std::string Label21 =
        (englisch ? "primary energy demand (" : "Primärenergiebedarf (") + traeger + "):";
    const std::string Label33 =
        englisch ? "auxiliary energy demand (electricity):" : "Hilfsenergiebedarf (Strom):";
    const std::string Label14 =
        englisch ? "primary energy demand (electricity):" : "Primärenergiebedarf (Strom):";
    const Energiemonate w = energie_monatswerte(p);
    std::string text = monat + ": " + p.Monat[m].Name;
    if (p.Energie.Traegername == "Strom") {
        return text + CR + kwh_zeile(Label8, w.E[m], monat, dez) + CR +
               kwh_zeile(Label21, w.P[m], monat, dez);
    }
    return text + CR + kwh_zeile(Label8, w.E[m], monat, dez) + CR +
           kwh_zeile(Label33, w.H[m], monat, dez) + CR + kwh_zeile(Label21, w.P[m], monat, dez) +
           CR + kwh_zeile(Label14, w.Q[m], monat, dez);
}
