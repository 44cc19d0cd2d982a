// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct Projekt;

// The recalculation driver, run after every change of an input: geometry and window areas
// always; with FormLoadGuard at 0 also the monthly balance, the hourly simulation, the end and
// primary energy and the climate and building figures. Nothing is cached between runs but the
// sun factors, which depend on the station and the orientation alone.
void alles_berechnen(Projekt& p);

// Told by the driver about its runs on one project, so that displays follow the record. The
// driver itself computes numbers only.
class Rechenbeobachter {
public:
    virtual ~Rechenbeobachter() = default;
    // After the geometry and the window areas, on every run, also under the load guard.
    virtual void geometrie_berechnet(Projekt& p) = 0;
    // After a whole run with the guard at 0.
    virtual void alles_berechnet(Projekt& p) = 0;
};

// Registers the one observer of the project `p` (nullptr removes it). Nothing is registered by
// default; the registration holds the pointer only.
void rechenbeobachter_setzen(const Projekt& p, Rechenbeobachter* beobachter);

// The observer registered for the project `p`, or nullptr; one that registers itself over it
// passes the runs on to it.
Rechenbeobachter* rechenbeobachter(const Projekt& p);
