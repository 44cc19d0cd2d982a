// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The charts of the energy plane: the monthly end and primary energy and the pictograms of
// the carrier and of the auxiliary electricity.

#include "charts/ChartTheme.h"

struct Projekt;
class Surface;

// The monthly chart on Monatsuebersicht: per month the carrier's end energy (red) with the
// auxiliary electricity on top (orange), and beside it the primary energy (dark red) with its
// auxiliary part (rust), kWh/(m² month), from energie_monatswerte. The axis has three steps.
void Monatsverbrauch_zeichnen(const Projekt& p, Surface& s, const Diagrammeinstellung& e);

// The pictograms: Picture2 the main carrier with its yearly amount, Picture3 the auxiliary
// electricity (blank with electricity as the carrier).
void Energietraeger_zeichnen(const Projekt& p, Surface& Picture2, Surface& Picture3,
                             const Diagrammeinstellung& e);

// The yearly amount of the carrier in its own unit and that unit's text (" m³/a", " l/a",
// " kg/a", " kWh/a"); an unknown carrier gives its end energy in kWh/a.
struct Traegermenge {
    double menge = 0;
    const char* einheit = " kWh/a";
};
Traegermenge traegermenge(const Projekt& p);
