// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct Projekt;
class Dialogs;
class Eingabeflaechen;

// Copies the state to the input planes: each scroll position becomes the value times its scale,
// rounded. A position that differs fires its handler, which quantises the value to the field's
// grid; a position that stays leaves an off-grid value as it is. The order of the planes and
// fields is part of the result. Ends by clearing Geaendert. Throws Laufzeitfehler for a value
// that its field cannot show.
void eingaben_anzeigen(Projekt& p, Eingabeflaechen& e, Dialogs& d);
