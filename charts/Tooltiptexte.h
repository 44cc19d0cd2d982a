// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The texts of the tooltips over the charts, built from the record and the month under the
// pointer. Lines are separated by a carriage return. The captions of the legend fields that a
// text quotes are passed in, as the plane shows them.

#include <string>

struct Projekt;
class Surface;

// The month of a month chart under the pointer at x pixels: Round((x - 30 - 3) / 24 + 0.5),
// halves to even; 0 outside 1..12, where no tooltip is shown.
int tooltip_monat(double x);
// The same for the energy plane's chart, where a month outside 1..12 becomes 1.
int tooltip_monat_energie(double x);
// Whether the pointer at (x,y) stands on a bar of a balance chart: its pixel differs from the
// background read at (2,2).
bool auf_balken(const Surface& s, double x, double y);
// Whether the pointer stands on a column of the energy chart: its pixel is neither black nor
// the background of the pictogram surface read at (0,0).
bool auf_saeule_energie(const Surface& chart, const Surface& Picture2, double x, double y);

// The captions quoted by the overview's tooltips.
struct UebersichtLegende {
    std::string Label9;  // heat demand
    std::string Label1;  // cooling demand
    std::string Label32; // heating hours
    std::string Label01; // zero-energy hours
    std::string Label02; // cooling hours
};
UebersichtLegende uebersicht_legende(const std::string& sprache);

std::string tooltip_Monatsbilanz(const Projekt& p, int m, const UebersichtLegende& l, char dez);
std::string tooltip_JahrBilanz_Uebersicht(const Projekt& p, const UebersichtLegende& l, char dez);
std::string tooltip_UeberGrafik(const Projekt& p, int m, const UebersichtLegende& l, char dez);
std::string tooltip_UeberJahr(const Projekt& p, const UebersichtLegende& l,
                              const std::string& sprache, char dez);

// The captions quoted by the heating plane's tooltips.
struct HeizenLegende {
    std::string Label7;  // ventilation losses
    std::string Label8;  // transmission losses
    std::string Label21; // usable solar gains
    std::string Label25; // usable internal gains
    std::string Label9;  // heat demand
    std::string Label13; // usable solar gains
    std::string Label11; // solar gains that cannot be used
    std::string Label12; // usable internal gains
    std::string Label10; // internal gains that cannot be used
};
HeizenLegende heizen_legende(const std::string& sprache);

std::string tooltip_Heizbilanz(const Projekt& p, int m, const HeizenLegende& l, char dez);
std::string tooltip_JahrBilanz_Heizen(const Projekt& p, const HeizenLegende& l, char dez);
std::string tooltip_NutzungsgradMonat(const Projekt& p, int m, const HeizenLegende& l, char dez);
std::string tooltip_NutzungsgradJahr(const Projekt& p, const HeizenLegende& l, char dez);

// The captions quoted by the cooling plane's tooltips.
struct KuehlenLegende {
    std::string Label10; // cooling demand
    std::string Label2;  // cooling degree hours
};
KuehlenLegende kuehlen_legende(const std::string& sprache);

std::string tooltip_KuehlbedarfMonat(const Projekt& p, int m, const KuehlenLegende& l, char dez);
std::string tooltip_KuehlbedarfJahr(const Projekt& p, const KuehlenLegende& l, char dez);
std::string tooltip_StundenProTagMonat(const Projekt& p, int m, const std::string& sprache,
                                       char dez);
std::string tooltip_StundenProTagJahr(const Projekt& p, const std::string& sprache, char dez);
std::string tooltip_KuehlGradStundenMonat(const Projekt& p, int m, const KuehlenLegende& l,
                                          char dez);
std::string tooltip_KuehlGradStundenJahr(const Projekt& p, const KuehlenLegende& l,
                                         const std::string& sprache, char dez);

// The energy plane's monthly chart: the month, then end and primary energy of the carrier and
// of the auxiliary electricity with the plane's captions (which end in a colon, so a line
// shows two); with electricity as the carrier two lines of summed values.
std::string tooltip_Monatsverbrauch(const Projekt& p, int m, const std::string& sprache, char dez);
