// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planes/CheckField.h"
#include "planes/ListField.h"
#include "planes/ScrollField.h"
#include "project/Label.h"

#include <array>

struct Projekt;
class E_Fenster;

// The building plane: set temperature and overheating limit (kept at least 0.1 K apart), internal
// gains, air change and heat recovery, walls towards heated neighbours, the construction of the
// walls and the efficiency of the air conditioning.
class E_Gebaeude {
public:
    // `fenster` is the windows plane whose share fields follow the neighbour walls.
    E_Gebaeude(Projekt& p, E_Fenster& fenster, char dezimal);
    E_Gebaeude(const E_Gebaeude&) = delete;
    E_Gebaeude& operator=(const E_Gebaeude&) = delete;

    ScrollField Troom_sb{-100, 400, 20, 200};     // set temperature, position / 10 °C
    ScrollField Tueber_sb{100, 400, 10, 100};     // overheating limit, position / 10 °C
    ScrollField intg_sb{0, 800, 10, 50};          // internal gains, position / 2 kWh/(m² a)
    ScrollField infiltration_sb{0, 1000, 20, 60}; // infiltration, position / 100 1/h
    ScrollField lw_sb{0, 1000, 20, 60};           // mechanical air change, position / 100 1/h
    ScrollField WRG_Sb{0, 100, 5, 1};             // heat recovery, position / 100
    ScrollField Klimaeffizienz_sb{5, 80, 10, 25}; // cooling per electricity, position / 10
    Label troom_anz, Tueber_anz, intg_anz, intg_anz2, infiltration_anz, lw_anz, WRG_anz;
    Label KlimaEffizienz_anz;
    // Wall towards a heated neighbour, by facade north, south, east, west.
    CheckField awn_cb, aws_cb, awo_cb, aww_cb;
    ListField Aussenwandart, Innenwandart; // rows 0 heavy, 1 medium, 2 light
    // The effective heat capacity after a whole run: Wh/(m³ K) and kWh/K, and the stacked
    // weight's two shapes (height and top in twips over a base line at 1500).
    Label Cwirk_anz, cges_anz;
    int Gewicht1_Height = 0, Gewicht1_Top = 1500, Gewicht2_Height = 0, Gewicht2_Top = 1500;

    // The displays of a whole run, from Cwirk and v_geb.
    void speicher_anzeigen();

private:
    void Troom_geaendert();
    void Tueber_geaendert();
    void wand(CheckField& cb, int16_t& feld, int fassade);

    Projekt& p_;
    E_Fenster& fenster_;
    char dezimal_;
};
