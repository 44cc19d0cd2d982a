// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The two energy flow diagrams of the Sankey plane, composed of the pieces of c_sankey.

#include "charts/ChartTheme.h"
#include "charts/Flaechen.h"

struct Projekt;

// The scale, band widths and edges of the heating diagram on a surface `H` pixels high. All
// widths are whole pixels, Int(value / S); edges are rows from the top.
struct SankeyHeizenMasse {
    double SV = 0; // loss of the heating system, kWh/(m² a); negative: gains from the environment
    double TV = 0; // transformation and transport loss, kWh/(m² a); negative: renewable energy
    double S = 1;  // energy per pixel, kWh/(m² a)
    int bPE = 0, bTV = 0, bEE = 0, bSV = 0, bQH = 0, bQI = 0, bQS = 0, bQL = 0, bQT = 0;
    int Y = 0; // base of all bands, counted from the bottom
    int yP = 0, yE = 0, yA = 0, yB = 0, yC = 0, yD = 0, yF = 0;
};
SankeyHeizenMasse sankey_heizen_masse(const Projekt& p, double H);

// The boundaries of the transmission arrows at x 310, rows from the top: ground below B1, door
// B1..B2 (at least two pixels when there is a door loss), walls, windows, roof above B4.
struct Transmissionsteilung {
    int B1 = 0, B2 = 0, B3 = 0, B4 = 0;
};
Transmissionsteilung transmissionsteilung(const Projekt& p, const SankeyHeizenMasse& m);

// The heating energy flow on Sankey: primary energy at the left, through end energy and heat
// demand, joined by the internal and solar gains, to the ventilation and transmission losses at
// the right, the transmission split by building part.
void SankeyHeizen(const Projekt& p, SankeyFlaechen& f, const Diagrammeinstellung& e);

// The pixel widths and the places of the pieces of the cooling diagram on a surface `H` pixels
// high whose texts are `zeile` pixels high.
struct SankeyKuehlenMasse {
    // Year sums of the four causes of the cooling demand per m², kWh/(m² a): transmission,
    // ventilation, solar and internal gains; C their sum, E = C / Klimaeffizienz the electricity,
    // P = 3 E its primary energy, L = P - E the transformation loss.
    double teile[4] = {0, 0, 0, 0};
    double C = 0, E = 0, P = 0, L = 0;
    int bTeil[4] = {0, 0, 0, 0}; // pixel widths of the four inlets
    int bC = 0, bE = 0, bP = 0, bL = 0;
    int y0 = 30; // top of the stack of cooling demand over end energy
    // Columns: the bend where the loss leaves the primary band, the tails and the ends of the
    // inlets' straight pieces, the start of the collected band and the cooling device.
    double xBogen = 60, xEinlass = 160, xEinlassEnde = 200, xSammel = 230, xGeraet = 300;
};
SankeyKuehlenMasse sankey_kuehlen_masse(const Projekt& p, double H, double zeile);

// The cooling energy flow on Sankey_Kuehlen: the four surplus gains collected into the cooling
// demand, the electricity from primary to end energy, and both leaving as removed heat and
// waste heat of the cooling device. Without cooling demand only a centred text.
void SankeyKuehlen(const Projekt& p, SankeyFlaechen& f, const Diagrammeinstellung& e);
