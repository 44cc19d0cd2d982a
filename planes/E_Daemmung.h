// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planes/CheckField.h"
#include "planes/ListField.h"
#include "planes/OptionGroup.h"
#include "planes/ScrollField.h"
#include "project/Label.h"

struct Projekt;

// The insulation plane: U values of walls, roof or top ceiling and lower floor, the door, the
// boundaries above and below, the absorption of the walls, the ventilated roof and the heat
// bridge surcharge.
class E_Daemmung {
public:
    E_Daemmung(Projekt& p, char dezimal);
    E_Daemmung(const E_Daemmung&) = delete;
    E_Daemmung& operator=(const E_Daemmung&) = delete;

    // U values: position / 100 W/(m² K); the walls start at 0.01, the closures at 0.
    ScrollField kwn_sb{1, 150, 10, 20}, kws_sb{1, 150, 10, 20};
    ScrollField kwo_sb{1, 150, 10, 20}, kww_sb{1, 150, 10, 20};
    ScrollField kd_sb{0, 150, 10, 20}, kk_sb{0, 150, 10, 20};
    ScrollField ft_sb{0, 500, 10, 20};        // door area, position x 0.1 m²
    ScrollField kt_sb{0, 200, 10, 15};        // door U value, position x 0.1 W/(m² K)
    ScrollField absfaktor_sb{0, 100, 10, 50}; // absorption, position / 100
    Label kwn_anz, kws_anz, kwo_anz, kww_anz, kd_anz, kk_anz, ft_anz, kt_anz, absfaktor_anz;

    ListField ugd;        // lower boundary, rows 0..4 = ugd_typ
    ListField ogd;        // unheated roof space, rows 0..2 = Dachraum_typ; without heated attic
    ListField ogd_Dach;   // one fixed row, shown with a heated attic
    Label liste2;         // caption of the upper closure: roof or upper floor
    CheckField cbk_hDach; // ventilated roof; the record holds 1 - value
    OptionGroup Waermebruecken_opt{1, 3}; // surcharge 0, 0.10, 0.05 W/(m² K)

    // The heat bridge surcharge of the option `index`, 1..3.
    static float waermebruecken_wert(int index);

private:
    void wert_setzen(float& feld, Label& anz, double wert, const char* muster);

    Projekt& p_;
    char dezimal_;
};
