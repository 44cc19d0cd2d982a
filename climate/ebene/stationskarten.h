// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The Europe and the world map of the climate plane: the dots to paint, the station under the
// mouse and the station picked by a click. Positions are those of the station lists, times a
// factor for the enlarged world map (1.5); colours are in the encoding with red in the low byte.

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

struct E_Klima;
struct Projekt;
struct Stationsliste;

// Colour of a station dot, yellow.
constexpr int32_t FARBE_STATION = 65535;
// Colour of the dot of the selected station, red.
constexpr int32_t FARBE_GEWAEHLT = 255;

// Hover tolerance of the Europe and of the world map, pixels in each axis.
constexpr double TOLERANZ_EUROPA = 3.0;
constexpr double TOLERANZ_WELT = 2.0;
// Factor of the enlarged world map.
constexpr double ZOOM_FAKTOR = 1.5;

// A filled circle of radius 2 pixels.
struct Kartenpunkt {
    double x = 0, y = 0; // centre, pixels
    int32_t farbe = 0;
};

// One yellow dot per station, and last the red one at the station of row `gewaehlt`, or off the
// picture at (-10, -10) when no row is selected.
std::vector<Kartenpunkt> kartenpunkte(const Stationsliste& liste, int gewaehlt,
                                      double faktor = 1.0);

// The hover text over a map: empty unless the colour under the mouse is a dot colour; then up to
// 250 random stations are tried, and the first within `toleranz` pixels in both axes gives its
// name. So a hover over a dot may by chance show nothing.
std::string station_unter_maus(const Stationsliste& liste, int32_t farbe, double x, double y,
                               double toleranz, const std::function<double()>& zufall,
                               double faktor = 1.0);

// A click (mouse release) on a map: only on a yellow dot; every station within 3 pixels in both
// axes whose name sorts at or before the hover text `maus_region` is picked in turn, so the last
// one stays. The row, or -1 when nothing is picked.
int station_beim_klick(const Stationsliste& liste, int32_t farbe, double x, double y,
                       const std::string& maus_region, double faktor = 1.0);

// The click on the map of the plane's current scope (Europe or World): the picked station goes
// through the station list's pick.
void station_karte_klick(E_Klima& e, Projekt& p, int32_t farbe, double x, double y,
                         const std::string& maus_region);

// The mouse over the map of the plane's current scope at (x, y) with `farbe` under it: MausRegion
// names the station found by station_unter_maus with the scope's tolerance, or is cleared.
void station_karte_hover(E_Klima& e, const Projekt& p, int32_t farbe, double x, double y);

// The world map of `karte` pixels in a frame of `rahmen` pixels: the frame width and the largest
// scroll value in twips (15 to the pixel); the scroll value is kept inside.
void weltkarte_einrichten(E_Klima& e, int karte, int rahmen);

// HScroll1 moved to `wert` twips, held inside 0..HScroll1_max: the map's left edge is -HScroll1.
void HScroll1_Change(E_Klima& e, int wert);
