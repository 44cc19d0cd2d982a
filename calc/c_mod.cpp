// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/c_mod.h"

#include "calc/geometrie.h"
#include "calc/monatsbilanz.h"
#include "calc/stundensimulation.h"
#include "climate/klimainfo.h"
#include "energy/energie.h"
#include "project/c_glob.h"

#include <map>

namespace {

std::map<const Projekt*, Rechenbeobachter*>& beobachter() {
    static std::map<const Projekt*, Rechenbeobachter*> tabelle;
    return tabelle;
}

} // namespace

Rechenbeobachter* rechenbeobachter(const Projekt& p) {
    const auto it = beobachter().find(&p);
    return it == beobachter().end() ? nullptr : it->second;
}

void rechenbeobachter_setzen(const Projekt& p, Rechenbeobachter* b) {
    if (b == nullptr) {
        beobachter().erase(&p);
    } else {
        beobachter()[&p] = b;
    }
}

void alles_berechnen(Projekt& p) {
    geometrie_berechnen(p);
    fensterflaechen_berechnen(p);
    if (Rechenbeobachter* b = rechenbeobachter(p)) {
        b->geometrie_berechnet(p);
    }
    // While a project is built up, areas and displays stay right and nothing else runs; whoever
    // set the guard runs the driver again after clearing it.
    if (p.FormLoadGuard != 0) {
        return;
    }
    monatsbilanz(p);
    stundensimulation(p);
    EnergRefresh(p);
    Ausfuellen(p);
    if (Rechenbeobachter* b = rechenbeobachter(p)) {
        b->alles_berechnet(p);
    }
}
