// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The diagrams of the printed pages: the screen charts again in millimetres, each in a thin box
// drawn first, in font size 8, with the printer's colours and a legend, and the two drawings of
// the building. Bars are not clipped: a value beyond the scale passes the box.

#include "charts/Surface.h"

#include <string>

class Drucker;
struct Projekt;

// The colours of the printed diagrams.
constexpr Rgb DRUCK_TRANSMISSION{0, 255, 255}; // transmission losses; window losses
constexpr Rgb DRUCK_LUEFTUNG{255, 0, 255};     // ventilation losses
constexpr Rgb DRUCK_INTERN{0, 0, 255};         // internal gains; cooling hours and demand
constexpr Rgb DRUCK_SOLAR{255, 255, 0};        // solar gains; window gains; zero-energy hours
constexpr Rgb DRUCK_HEIZEN{255, 0, 0};         // heat demand; heating hours; end energy
constexpr Rgb DRUCK_STROM{255, 128, 0};        // auxiliary electricity, end energy
constexpr Rgb DRUCK_PRIMAER{128, 0, 0};        // primary energy; overheating hours per day
constexpr Rgb DRUCK_PRIMAER_STROM{192, 64, 0}; // auxiliary electricity, primary energy

// A vertical axis of a printed diagram, mm: at x from y `unten` (the value 0) up to `oben`
// (n steps), the horizontal axis from x to `x_ende`.
struct Druckachse {
    double x;
    double unten;
    double oben;
    double x_ende;
    int n;        // steps of the scale, 3..5
    double stufe; // value of one step, > 0
};

// The y of a value on the axis: unten - (wert / stufe) * (unten - oben) / n.
double druck_y(const Druckachse& a, double wert);

// Both axes, n + 1 ticks 1 mm long left of the axis and the numbers i * stufe right-aligned
// 1.5 mm left of the axis at the tick's y - 1.5, the unit text `einheit` at (einheit_x, oben - 5).
void druck_achsen(Drucker& d, const Druckachse& a, const std::string& einheit, double einheit_x);

// A bar segment: filled in `farbe` from `von` to `bis` (values) between x1 and x2, outlined black.
void druck_balken(Drucker& d, const Druckachse& a, double x1, double x2, double von, double bis,
                  Rgb farbe);

// The month names as one fixed string from the axis at x, top at y, in the language `sprache`.
void druck_monatsnamen(Drucker& d, const std::string& sprache, double x, double y);

// A legend entry: a small box in `farbe` at (x, y) and the text beside it.
void legende(Drucker& d, double x, double y, Rgb farbe, const std::string& text);

// The month heat balance, kWh/(m² month): losses (transmission, ventilation) and supply
// (internal gains, solar gains, heat demand from the bottom) of every month.
void Diagramm_Monatbilanz(Drucker& d, const Projekt& p);
// The year heat balance, kWh/(m² a), on the scale of the heating plane's year chart.
void Diagramm_Jahresbilanz(Drucker& d, const Projekt& p);
// Heating, zero-energy and cooling hours of the months (steps of 200 h) and, in a second box,
// of the year (steps of 2200 h), with their legend.
void Diagramm_Stunden(Drucker& d, const Projekt& p);
// Overheating hours per day of the months and, in a second box under it, the cooling demand
// of the months, kWh/(m² month).
void Diagramm_Kuehlen(Drucker& d, const Projekt& p);
// Solar gains and transmission losses of the windows of each facade, kWh/a, with the legend box.
void Diagramm_Fenster(Drucker& d, const Projekt& p);
// End and primary energy of the heating by month, each with its auxiliary electricity on top,
// kWh/(m² month), with the legend.
void Diagramm_Heizenergie(Drucker& d, const Projekt& p);
// End energy (electricity) and primary energy of the cooling by month, kWh/(m² month), on
// the scale steps of the month balance (n = 5).
void Diagramm_Kuehlenergie(Drucker& d, const Projekt& p);

// The plan of the building turned by orient around (ScaleWidth / 2 + 15, 75): outline, ridge and
// hips in black, the south arrow in red, the letters of the four facades around it.
void Diagramm_Orientierung(Drucker& d, const Projekt& p);

// The isometric sketch of the building at the top right of data sheet 1, from the reference
// point (ScaleWidth - 25 - 31.2, 57), with the facade areas and the lengths.
void Zeichnung_Haus(Drucker& d, const Projekt& p, char dezimal);

// The left end of that sketch, its letter "W" left of the house included, in mm: the rows of
// the data sheet beside it end short of it.
double skizze_links(const Drucker& d);
