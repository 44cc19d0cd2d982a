// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct Projekt;

// The recalculation driver, run after every change of an input: geometry and window areas
// always; with FormLoadGuard at 0 also the monthly balance, the hourly simulation, the end and
// primary energy and the climate and building figures. Nothing is cached between runs but the
// sun factors, which depend on the station and the orientation alone.
void alles_berechnen(Projekt& p);
