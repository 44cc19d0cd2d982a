// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The writer of new station files: the head from the window's fields and one row of four
// right-aligned five-column fields per hour. Windows-1252 text with CR LF line ends.

#include "climate/import/Klimaimport.h"
#include "climate/import/quelle.h"

#include <string>
#include <vector>

// Lines 1 to 6 of the station file, each with CR LF: "place (country)", latitude (south
// negative), longitude (east negative), zone (east of Greenwich negative) after their
// 14-character labels, an empty line, the column head.
std::string stationskopf(const Klimaimport& f);

// The data row of row i (0-based; the day field counts 24 rows per day from 1) with CR LF.
// Temperature to one decimal with ".0" and the zero before the point; the total rounded to a
// whole number; the diffuse value to one decimal, so that a value like 123.4 is six characters
// wide and the row runs past column 20. With `direkt` set, G_Gh holds the direct value and the
// total is the sum with the diffuse value.
std::string stationszeile(int i, const Quellstunde& s, bool direkt);

// The whole file: head and 8760 rows from `zeilen` (at least 8760, the first row is written
// first).
std::string stationsdatei(const Klimaimport& f, const std::vector<Quellstunde>& zeilen,
                          bool direkt);
