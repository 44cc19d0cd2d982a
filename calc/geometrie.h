// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct Projekt;

// The building's geometry from its inputs: gross facades, roof planes and gables, ground and
// usable floor, volumes, the envelope to volume ratio and the lower floor's temperature
// correction. Each value is rounded to float as it is stored.
void geometrie_berechnen(Projekt& p);

// Window areas from the window shares and the net walls; the door comes off the north wall.
void fensterflaechen_berechnen(Projekt& p);
