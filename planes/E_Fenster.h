// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planes/Fensterfassade.h"
#include "planes/OptionGroup.h"
#include "project/Label.h"

#include <array>

struct Projekt;

// The windows plane: window share, type, U values, g value, frame share and shading of each
// facade. In the mode "same windows" the south panel is the master: its handlers copy to the
// other three facades and run the driver once for all four.
class E_Fenster {
public:
    E_Fenster(Projekt& p, char dezimal);
    E_Fenster(const E_Fenster&) = delete;
    E_Fenster& operator=(const E_Fenster&) = delete;

    std::array<Fensterfassade, 4> fassaden; // by Fassade: north, south, east, west
    Fensterfassade& operator[](Fassade f) { return fassaden[static_cast<std::size_t>(f)]; }

    OptionGroup Option1{0, 2}; // 0 the same windows at all facades, 1 individual
    // The facade buttons that act as tabs, and the four panels of which one shows.
    struct Knopf {
        bool Visible = false;
        bool Enabled = true;
    };
    std::array<Knopf, 4> Command_HR;
    std::array<bool, 4> Frame_Visible{false, true, false, false}; // by Fassade
    // Results written after the driver: total, glazed area, mean U and g value.
    Label f_gf_anz, f_vf_anz, kf_anz, gfm_anz;

    bool Visible = false;               // whether the plane is on the screen
    const ScrollField* Fokus = nullptr; // the scroll field with the input focus, if any

    // The mode change; the options' click handler, also run by the project reader.
    void Option1_Click(int index);
    // A facade button: the panel of the facade `index` comes to the front.
    void Command_HR_Click(int index);
    // The displays of the driver, from the record.
    void anzeigen();

private:
    void handler_verbinden(Fassade f);
    // The type list's selection: the row's values, the positions moved under the guard.
    void typ_gewaehlt(Fassade f);
    // A change of the g value or of a U value: stores, shows, combines if asked, and makes the
    // type "Sonstiges" when the user moved the field.
    void typwert_geaendert(Fassade f, ScrollField Fensterfassade::*glied, float& feld, Label& anz,
                           bool kombinieren);
    // The whole window U value of the facade from the glazing and frame positions.
    void kf_kombinieren(Fassade f);
    // The end of a handler of the field `feld`: a north, east or west field runs the driver in
    // the individual mode; a south field copies to the others in the mode "same windows" and
    // runs the driver in both.
    void abschluss(Fassade f, ScrollField Fensterfassade::*feld);
    // The south position of `feld` set on the facades `ziele`, in that order.
    void kopieren(ScrollField Fensterfassade::*feld, std::array<Fassade, 3> ziele);
    // The south type row set on north, west and east.
    void typ_kopieren();

    Projekt& p_;
    char dezimal_;
};
