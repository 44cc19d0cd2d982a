// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calc/c_mod.h"

struct Projekt;

// Stands between the refresh table and the planes: passes every run of the driver on and keeps
// how the last run of a whole year went. A run that did its geometry with the guard at 0 and
// never reached its end was stopped by a fault, also where the fault was caught and reported
// on the way (opening a project).
class Rechenlauf : public Rechenbeobachter {
public:
    enum class Stand { Keiner, Abgebrochen, Fertig };

    Rechenlauf(const Projekt& p, Rechenbeobachter* weiter);
    // Gives a registration that came back to it on to the planes.
    ~Rechenlauf() override;
    Rechenlauf(const Rechenlauf&) = delete;
    Rechenlauf& operator=(const Rechenlauf&) = delete;

    void geometrie_berechnet(Projekt& p) override;
    void alles_berechnet(Projekt& p) override;

    // How the last whole run went since the last call; Keiner if none began.
    Stand abholen();

private:
    const Projekt& p_;
    Rechenbeobachter* weiter_;
    Stand stand_ = Stand::Keiner;
};
