// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calc/c_mod.h"

struct Projekt;

// Keeps how the last run of a whole year went, as an observer of the driver's runs between the
// planes and the refresh table. A run that did its geometry with the guard at 0 and
// never reached its end was stopped by a fault, also where the fault was caught and reported
// on the way (opening a project).
class Rechenlauf : public Rechenbeobachter {
public:
    enum class Stand { Keiner, Abgebrochen, Fertig };

    explicit Rechenlauf(Projekt& p);
    Rechenlauf(const Rechenlauf&) = delete;
    Rechenlauf& operator=(const Rechenlauf&) = delete;

    void geometrie_berechnet(Projekt& p) override;
    void alles_berechnet(Projekt& p) override;

    // How the last whole run went since the last call; Keiner if none began.
    Stand abholen();

private:
    Stand stand_ = Stand::Keiner;
    Beobachtung beobachtung_;
};
