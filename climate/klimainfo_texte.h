// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

struct Klimakennwerte;
struct Projekt;

// The texts of the labels of the climate and building plane A_Klima, formed from the record:
// what the plane shows and what the report reads as its building rows.
struct KlimainfoTexte {
    std::string anz_klimaregion;                       // the region or station chosen
    std::string anz_MaxJahrTemp, anz_MinJahrTemp;      // extreme hourly Ta, "0.0"
    std::string anz_MaxMonatTemp, anz_MinMonatTemp;    // warmest, coldest month mean, "0.0"
    std::string anz_MaxMonatName, anz_MinMonatName;    // their names
    std::string anz_MittelJahrTemp;                    // year mean of the month means, "0.0"
    std::string anz_Heizgradtage;                      // Kd, "0"
    std::string anz_Umittel;                           // W/(m² K), "0.00"
    std::string anz_Tspez, anz_Vspez, anz_TVspez;      // W/K, "0.0"
    std::string anz_tau;                               // hours, "0.0"
    std::string anz_Heizlast, anz_kuehllast;           // kW, "0.0"
    std::string anz_heizlast_spez, anz_kuehllast_spez; // W/m², "0.0"
    std::string anz_Heizgrenztemp;                     // °C, "0.0"
    std::string anz_Heiztage;                          // a whole number as text
};

// The label texts with the decimal mark `dezimal`. The station's year values stay empty while
// the record has read its station without them.
KlimainfoTexte klimainfo_texte(const Projekt& p, char dezimal);

// One year value of the station read last, "0.0" with the decimal mark `dezimal`; empty while the
// record has read its station without its year values.
std::string klima_jahreswert(const Klimakennwerte& k, double wert, char dezimal);
