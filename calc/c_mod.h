// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/Rechenbeobachter.h"

struct Projekt;

// The recalculation driver, run after every change of an input: geometry and window areas
// always; with FormLoadGuard at 0 also the monthly balance, the hourly simulation, the end and
// primary energy and the climate and building figures. The record's observers are told after the
// geometry and after a whole run. Nothing is cached between runs but the sun factors, which
// depend on the station and the orientation alone.
void alles_berechnen(Projekt& p);
