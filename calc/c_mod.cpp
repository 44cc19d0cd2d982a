// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/c_mod.h"

#include "calc/geometrie.h"
#include "calc/monatsbilanz.h"
#include "calc/stundensimulation.h"
#include "climate/klimainfo.h"
#include "energy/energie.h"
#include "project/c_glob.h"

void alles_berechnen(Projekt& p) {
    geometrie_berechnen(p);
    fensterflaechen_berechnen(p);
    p.beobachter.geometrie_berechnet(p);
    // While a project is built up, areas and displays stay right and nothing else runs; whoever
    // set the guard runs the driver again after clearing it.
    if (p.FormLoadGuard != 0) {
        return;
    }
    monatsbilanz(p);
    stundensimulation(p);
    EnergRefresh(p);
    Ausfuellen(p);
    p.beobachter.alles_berechnet(p);
}
