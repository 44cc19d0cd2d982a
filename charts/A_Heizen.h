// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The charts and result fields of the heating plane.

#include "charts/ChartTheme.h"
#include "charts/Flaechen.h"

struct Projekt;

// The eight facade bars, window gains yellow and window losses dark blue, all on one largest
// value (at least 1 kWh) so that they compare: bar top at 50 - 50 value / M.
void FassadenbalkenZeichnen(const Projekt& p, HeizenFlaechen& f, const Diagrammeinstellung& e);

// JahrBilanz of the heating plane: losses (transmission, ventilation) beside supply (heat
// demand, internal, solar gains), kWh/(m² a), scaled by qverl_s.
void JahrBilanzZeichnen(const Projekt& p, HeizenFlaechen& f, const Diagrammeinstellung& e);

// Heizbilanz: the same two stacks for every month, kWh/(m² month); every segment is drawn, also
// at zero height.
void HeizbilanzZeichnen(const Projekt& p, HeizenFlaechen& f, const Diagrammeinstellung& e);

// The ten result fields: specific values by "##0.0", absolute ones by "####0", each followed by
// one blank.
HeizFelder HeizFelderAusfuellen(const Projekt& p, char dezimal);

// NutzungsgradMonat and NutzungsgradJahr: usable solar and internal gains with the unusable
// rest stacked on top, months and year.
void NutzungsgradZeichnen(const Projekt& p, HeizenFlaechen& f, const Diagrammeinstellung& e);
