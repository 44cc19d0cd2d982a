// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/shell/Rechenlauf.h"

#include "project/c_glob.h"

Rechenlauf::Rechenlauf(Projekt& p) : beobachtung_(p.beobachter, *this) {}

void Rechenlauf::geometrie_berechnet(Projekt& p) {
    if (p.FormLoadGuard == 0) {
        stand_ = Stand::Abgebrochen;
    }
}

void Rechenlauf::alles_berechnet(Projekt&) {
    stand_ = Stand::Fertig;
}

Rechenlauf::Stand Rechenlauf::abholen() {
    const Stand s = stand_;
    stand_ = Stand::Keiner;
    return s;
}
