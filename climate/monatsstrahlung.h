// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct Projekt;

// Plane azimuths of the four facades, degrees (0 south, -90 east, +90 west, 180 north).
constexpr double AZIMUT_N = 180, AZIMUT_S = 0, AZIMUT_O = -90, AZIMUT_W = 90;

// Mean outdoor temperature and radiation on the four vertical facades of each month: fills
// Monat().Tmittel (°C) and Monat().Strahlung_N/_S/_O/_W (MJ/m², cut to whole numbers). Runs after
// each station read and each change of the orientation.
void monatsstrahlung_berechnen(Projekt& p);
