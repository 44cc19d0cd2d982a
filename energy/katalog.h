// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/c_glob.h"

#include <array>
#include <cstdint>
#include <string>

// The catalogue of heating systems: nine systems, each with up to two transfers and four
// carriers, and the characteristic values of every combination by usable floor area. The values
// are characteristic values in the manner of DIN V 4701-10 for systems inside the thermal
// envelope; they are held in the program and cannot be edited.

// One row of the catalogue: the system's text, two transfer texts, four carrier texts; an empty
// text means the row has no such entry.
struct Heizsystemzeile {
    std::string Bezeichnung;
    std::array<std::string, 2> Uebergabe;
    std::array<std::string, 4> Energietraeger;
};

// The nine rows in the language "d" or "e".
std::array<Heizsystemzeile, 9> katalog_laden(const std::string& sprache);

// y = (y1 - y0) / (x1 - x0) · x + (x1 · y0 - x0 · y1) / (x1 - x0), in double, rounded to float.
float interpolieren(double x, double x0, double x1, double y0, double y1);

// The eight characteristic values and the short carrier names of a combination at the usable
// floor area f_nutz (m²). A combination the catalogue does not offer throws FatalError.
Energiekennwerte katalog_werte(int16_t Heizsystem, int16_t Uebergabe, int16_t Energietraeger,
                               float f_nutz);
