// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

struct Projekt;

// Specific heat capacity of a construction, J/(m² K), by list index 0 heavy, 1 medium, 2 light;
// 0 for an index outside the list.
int32_t bauweise_kapazitaet(int16_t index);

// Ventilation coefficient ((1 - WRG) · lw + infiltration) / 3600 · 1000 · 1.29 · v_luft, W/K,
// as stored in a float.
float lueftungskoeffizient(const Projekt& p);

// Effective heat capacity Cwirk (J/K) and time constant tau (s) from a rule of thumb for the
// storage mass of the interior: square rooms of 10 m² and 2.6 m height. Throws FatalError when
// the capacity comes out negative (a tall building on a small floor) or the loss coefficient is 0.
void zeitkonstante_berechnen(Projekt& p);
