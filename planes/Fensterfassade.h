// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planes/ListField.h"
#include "planes/ScrollField.h"
#include "project/Label.h"

#include <array>
#include <cstdint>
#include <string>

struct Projekt;

// The facades of the windows plane, in the order of its facade buttons.
enum Fassade : int { Nord = 0, Sued = 1, Ost = 2, West = 3 };

// One row of the window type list: glazing U value, g value, frame U value. Row 7, "Sonstiges",
// has no values: it marks a facade whose values were moved by hand.
struct Fenstertyp {
    const char* deutsch;
    const char* englisch;
    float kfg, gf, kfr;
};
extern const std::array<Fenstertyp, 8> FENSTERTYPEN;
constexpr int FENSTERTYP_SONSTIGES = 7;

// The controls of one facade on the windows plane and the record fields they write.
struct Fensterfassade {
    Fensterfassade(Projekt& p, Fassade f);

    ScrollField f_sb{0, 100, 5, 5};       // window share, percent
    ScrollField gf_sb{0, 100, 5, 20};     // g value, position / 100
    ScrollField kfg_sb{0, 600, 5, 20};    // glazing U value, position / 100
    ScrollField kfr_sb{0, 600, 5, 20};    // frame U value, position / 100
    ScrollField ra_sb{0, 100, 5, 20};     // frame share, position / 100
    ScrollField versch_sb{0, 100, 5, 20}; // shading, position / 100
    ListField typ;                        // window type, rows 0..7
    Label f_anz, gf_anz, kfg_anz, kfr_anz, ra_anz, versch_anz;
    Label f_flaeche_anz; // the facade's window area, written after the driver

    // The record fields of the facade.
    int16_t& f;
    int16_t& typ_feld;
    float &gf, &kfg, &kfr, &kf, &ra, &versch;
};
