// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/OneBased.h"

struct Projekt;

// Primary energy factor of the auxiliary electricity, whatever the system.
constexpr double PRIMAERFAKTOR_STROM = 3.0;

// From the yearly heat demand to end and primary energy for the chosen heat supply: writes
// q_HE_Energietraeger, q_HE_Strom, q_PE_Energietraeger, q_PE_Strom (kWh/(m² a)) and the values
// the energy plane shows. A building that needs less than 0.1 kWh/(m² a) has no supply losses
// and no auxiliary energy; a heat demand below 1E-10 is stored as 1E-10 so that later divisions
// by it stay defined.
void EnergRefresh(Projekt& p);

// The year's energy shared out over the months in proportion to their heat demand,
// kWh/(m² month): E carrier end energy, H auxiliary end energy, P carrier primary energy,
// Q auxiliary primary energy. With electricity as the carrier its two parts are summed in E
// and P, and H and Q are 0.
struct Energiemonate {
    OneBased<float, 12> E, H, P, Q;
};
Energiemonate energie_monatswerte(const Projekt& p);
