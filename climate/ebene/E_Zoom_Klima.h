// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The enlarged world map without its widgets: its own station list, filled from the climate
// plane's with the same selection, and its hover text. Positions are those of the world list
// times ZOOM_FAKTOR; a pick here only selects, the confirmation hands it to the plane.

#include "climate/ebene/E_Klima.h"

#include <cstdint>
#include <string>

struct Projekt;

struct E_Zoom_Klima {
    Klimaliste Klimaregionwahl2; // the world stations, as the plane's list at opening
    std::string MausRegion;      // hover text: a station name or empty
};

// Opening from the world scope of the plane: the list and its selection copied from it.
E_Zoom_Klima E_Zoom_Klima_oeffnen(const E_Klima& e);

// The mouse over the enlarged map at (x, y) pixels with `farbe` under it: MausRegion names a
// station within the world map's tolerance, or is cleared.
void E_Zoom_Klima_hover(E_Zoom_Klima& z, const E_Klima& e, int32_t farbe, double x, double y);

// A click (mouse release) on the enlarged map: a station picked as on the plane's map becomes
// the selected row of this window's list; nothing else changes.
void E_Zoom_Klima_klick(E_Zoom_Klima& z, const E_Klima& e, int32_t farbe, double x, double y);

// Command1, the confirmation: the row goes to the plane's list and fires its pick there.
void E_Zoom_Klima_Command1(const E_Zoom_Klima& z, E_Klima& e, Projekt& p);
