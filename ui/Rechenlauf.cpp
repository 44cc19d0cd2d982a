// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Rechenlauf.h"

#include "project/c_glob.h"

Rechenlauf::Rechenlauf(const Projekt& p, Rechenbeobachter* weiter) : p_(p), weiter_(weiter) {}

Rechenlauf::~Rechenlauf() {
    if (rechenbeobachter(p_) == this) {
        rechenbeobachter_setzen(p_, weiter_);
    }
}

void Rechenlauf::geometrie_berechnet(Projekt& p) {
    if (weiter_ != nullptr) {
        weiter_->geometrie_berechnet(p);
    }
    if (p.FormLoadGuard == 0) {
        stand_ = Stand::Abgebrochen;
    }
}

void Rechenlauf::alles_berechnet(Projekt& p) {
    if (weiter_ != nullptr) {
        weiter_->alles_berechnet(p);
    }
    stand_ = Stand::Fertig;
}

Rechenlauf::Stand Rechenlauf::abholen() {
    const Stand s = stand_;
    stand_ = Stand::Keiner;
    return s;
}
