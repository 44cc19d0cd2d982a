// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/Rechenbeobachter.h"

#include <algorithm>

void Beobachterliste::geometrie_berechnet(Projekt& p) const {
    // By index: an observer may register another while it is told.
    for (std::size_t i = 0; i < liste_.size(); ++i) {
        liste_[i]->geometrie_berechnet(p);
    }
}

void Beobachterliste::alles_berechnet(Projekt& p) const {
    for (std::size_t i = 0; i < liste_.size(); ++i) {
        liste_[i]->alles_berechnet(p);
    }
}

Beobachtung::Beobachtung(Beobachterliste& liste, Rechenbeobachter& beobachter)
    : liste_(liste), beobachter_(&beobachter) {
    liste_.liste_.push_back(beobachter_);
}

Beobachtung::~Beobachtung() {
    auto& l = liste_.liste_;
    l.erase(std::find(l.begin(), l.end(), beobachter_));
}
