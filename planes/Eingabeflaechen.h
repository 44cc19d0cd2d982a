// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calc/c_mod.h"
#include "climate/ebene/E_Klima.h"
#include "planes/E_Daemmung.h"
#include "planes/E_Energie.h"
#include "planes/E_Fenster.h"
#include "planes/E_Gebaeude.h"
#include "planes/E_Geometrie.h"

struct Projekt;

// The input planes of one project, built in the language of the run. They follow every driver
// run on their project: the geometry and window displays and the station's year values after
// each run, the heat capacity, the heat supply texts and figures and the A/V chart after a whole
// one.
class Eingabeflaechen : public Rechenbeobachter {
public:
    // `dezimal` is the decimal mark of the displays' number patterns.
    explicit Eingabeflaechen(Projekt& p, char dezimal = '.');
    Eingabeflaechen(const Eingabeflaechen&) = delete;
    Eingabeflaechen& operator=(const Eingabeflaechen&) = delete;

    const char dezimal; // decimal mark of the displays
    E_Daemmung daemmung;
    E_Fenster fenster;
    E_Geometrie geometrie;
    E_Gebaeude gebaeude;
    E_Energie energie;
    E_Klima klima; // station lists of p.KlimaOrdner as at construction

    // How many driver runs the planes have seen, whole runs among them.
    int laeufe = 0;
    int ganze_laeufe = 0;

    void geometrie_berechnet(Projekt& p) override;
    void alles_berechnet(Projekt& p) override;

private:
    Beobachtung beobachtung_;
};
