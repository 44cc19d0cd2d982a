// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Repaint events: a surface that must be painted again is redrawn from the record as it stands,
// without a recalculation, by the routine that draws it.

#include "charts/Auffrischtabelle.h"

// The surfaces with a repaint event of their own. UeberJahr and the six facade bars between
// Gewinne_N and Verluste_W have none: they are repainted with UeberGrafik and with those two.
enum class Flaeche {
    AV_Picture,
    Picture1,
    Monatsuebersicht,
    Picture2,
    Picture3,
    Temperaturen,
    Monatsbilanz,
    JahrBilanz_Uebersicht,
    UeberGrafik,
    Sankey,
    Sankey_Kuehlen,
    Heizbilanz,
    JahrBilanz_Heizen,
    NutzungsgradMonat,
    NutzungsgradJahr,
    Gewinne_N,
    Verluste_W,
    StundenProTagMonat,
    StundenProTagJahr,
    KuehlbedarfMonat,
    KuehlbedarfJahr,
    KuehlGradStundenMonat,
    KuehlGradStundenJahr,
};

// Runs the routine of `f` on its plane; a routine that draws several surfaces draws them all
// (the month and year balance of the overview, the eight facade bars, both utilisation charts,
// a cooling pair, both pictograms). A plane that is not built draws nothing.
void neu_zeichnen(Flaeche f, const Projekt& p, Ergebnisebenen& x, const Diagrammeinstellung& e);
