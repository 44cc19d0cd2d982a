// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

struct Projekt;

// Told by the recalculation driver about its runs on one record, so that displays follow the
// record. The driver itself computes numbers only.
class Rechenbeobachter {
public:
    virtual ~Rechenbeobachter() = default;
    // After the geometry and the window areas, on every run, also under the load guard.
    virtual void geometrie_berechnet(Projekt& p) = 0;
    // After a whole run with the guard at 0.
    virtual void alles_berechnet(Projekt& p) = 0;
};

// The observers of one record, told of each run in the order they registered. A copy of a record
// is a record of its own and starts without observers.
class Beobachterliste {
public:
    Beobachterliste() = default;
    Beobachterliste(const Beobachterliste&) {}
    Beobachterliste& operator=(const Beobachterliste&) { return *this; }

    // Tells each observer in turn; one that throws stops the rest, as the run itself stops.
    void geometrie_berechnet(Projekt& p) const;
    void alles_berechnet(Projekt& p) const;
    // The registered observers in their order.
    const std::vector<Rechenbeobachter*>& alle() const { return liste_; }

private:
    friend class Beobachtung;
    std::vector<Rechenbeobachter*> liste_;
};

// One observer's place in a record's list: added at the end when the registration is made,
// removed, exactly that one, when it goes. Build it as a member after what the observer reads.
class Beobachtung {
public:
    Beobachtung(Beobachterliste& liste, Rechenbeobachter& beobachter);
    ~Beobachtung();
    Beobachtung(const Beobachtung&) = delete;
    Beobachtung& operator=(const Beobachtung&) = delete;

private:
    Beobachterliste& liste_;
    Rechenbeobachter* beobachter_;
};
