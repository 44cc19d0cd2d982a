// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/ebene/wetter_laden.h"

#include "calc/c_mod.h"
#include "climate/klimadatei.h"

void wetter_laden(Projekt& p) {
    klimadatei_lesen(p);
    alles_berechnen(p);
}
