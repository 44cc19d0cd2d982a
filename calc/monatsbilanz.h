// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct Projekt;

// Utilisation factor of the gains for the gain to loss ratio gamma, after the monthly method of
// EN ISO 13790 (eq. 52) with a reference time constant of 16 h: a = tau / 3600 / 16 + 1, and
// (1 - gamma^a) / (1 - gamma^(a+1)), or a / (a + 1) for gamma exactly 1. Runs
// zeitkonstante_berechnen first.
float nutzungsgrad(Projekt& p, float gamma);

// The monthly heat balance: per month transmission and ventilation losses, solar and internal
// gains with their utilisation, and the heat demand; then the year sums and the values per m² of
// usable floor.
void monatsbilanz(Projekt& p);
