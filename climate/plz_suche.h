// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

// The post code table klima/plz.txt: comma- or line-delimited items, each a three-digit prefix in
// columns 1-3, one separator in column 4, and the climate region 1..12 (0 for a prefix not in
// use) in columns 5-6.

// The region of the post code `plz` (at least three characters) in the table text: the first item
// whose first three characters equal those of `plz` gives it. A prefix missing from the table, or
// a region number outside 0..12, throws FatalError, since the search has no other end.
int plz_region(const std::string& tabelle, const std::string& plz);

// The same from the table file; a missing file throws FatalError.
int plz_region_aus_datei(const std::string& pfad, const std::string& plz);
