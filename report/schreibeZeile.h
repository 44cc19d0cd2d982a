// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "report/Textmass.h"

#include <string>
#include <vector>

// Wraps `text` to lines narrower than `breite` (in the units of `mass`): the list ZeilenListe.
// A text that fits is one line. Otherwise it is cut after every "-" and blank and the pieces are
// joined again while a pair fits; a word split at a hyphen and a blank ("Wärme- übergabe") is
// healed on joining, except before "sowie" and "und" ("Nord- und Süd"). A piece wider than
// `breite` stays whole on its own line.
std::vector<std::string> schreibeZeile(const std::string& text, double breite,
                                       const Textmass& mass);
