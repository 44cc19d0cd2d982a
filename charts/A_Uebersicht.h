// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The charts of the overview plane: the monthly and yearly heat and cooling demand, the hours
// of the three operating classes and the temperature course of the chosen month.

#include "charts/ChartTheme.h"
#include "charts/Flaechen.h"

struct Projekt;

// Monatsbilanz, then JahrBilanz of the overview: heat demand red and cooling demand blue per
// m² of usable floor, kWh/(m² month) and kWh/(m² a).
void MonatsbilanzZeichnen(const Projekt& p, UebersichtFlaechen& f, const Diagrammeinstellung& e);

// UeberGrafik, then UeberJahr: heating hours red at the bottom, zero-energy hours yellow above,
// cooling hours blue on top; fixed steps of 200 h and 2200 h.
void UeberGrafikZeichnen(const Projekt& p, UebersichtFlaechen& f, const Diagrammeinstellung& e);

// The hourly outdoor (blue) and free-running room air temperature (red) of the month
// Monat_Uebersicht over days 0 to 31, on a surface of any size.
void TemperaturDiagrammZeichnen(const Projekt& p, Surface& s, const Diagrammeinstellung& e);

// The two hourly series of the temperature chart.
enum class Temperaturreihe { Aussenluft, Raumluft };
// Largest and smallest hourly value of the month m (1..12), °C, over all its days and hours.
double max_suchen(const Projekt& p, Temperaturreihe reihe, int m);
double min_suchen(const Projekt& p, Temperaturreihe reihe, int m);
// The x pixel of a day value and the y pixel of a temperature: Round(origin + factor * value)
// and Round(origin - factor * value), halves to the even neighbour.
double X_(double tag, double ursprung, double faktor);
double Y_(double temperatur, double ursprung, double faktor);
