// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct Projekt;

// The hourly one-node model of the whole building: December as a warm-up, then January to
// December, one exact step of the first-order equation per hour for the free-running and the
// controlled indoor temperature. Fills T_frei, T_regel, Q_heiz, Q_kuehl, the peak loads, the
// cooling demand by cause, the degree hours over Tueber, the hours in three bands, and the
// coefficients the climate information plane shows.
void stundensimulation(Projekt& p);
