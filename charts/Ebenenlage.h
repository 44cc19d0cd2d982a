// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Placement rules of the result planes that the Qt layer applies: where a tooltip frame comes
// up, and the layout of the enlarged temperature window A_Zoom. Pixels of the plane, y down.

#include <array>

struct Lagepunkt {
    int x = 0;
    int y = 0;
};

// The tooltip frame over a chart of the overview, heating or cooling plane, from the pointer
// relative to the plane: 5 pixels left of and 20 above the pointer, moved back inside the plane
// where it would stand out on any side.
Lagepunkt tooltip_lage(Lagepunkt zeiger, int rahmen_breite, int rahmen_hoehe, int ebene_breite,
                       int ebene_hoehe);

// The frame over the energy plane's monthly chart stands left of the pointer (its own width
// plus 5) and 20 above it, never left of the plane; if it would end below the plane it moves up
// to 50 plus its height above the pointer.
Lagepunkt tooltip_lage_energie(Lagepunkt zeiger, int rahmen_breite, int rahmen_hoehe,
                               int ebene_hoehe);

// A_Zoom for a plane of `breite` x `hoehe`: the chart less 16 and 56, the close button at
// width - 144 and height - 33, and twelve month buttons spread evenly over the width, each
// reaching one pixel into the next (left = Round((i - 1) / 12 * width), halves to even).
struct ZoomLage {
    int Temperaturen_Width = 0, Temperaturen_Height = 0;
    int Schliessen_Left = 0, Schliessen_Top = 0;
    std::array<int, 12> Monatsbutton_Left{}, Monatsbutton_Width{}; // index 0 is January
};
ZoomLage zoom_lage(int breite, int hoehe);
