// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The Meteonorm hourly text layout: line 1 the place, line 2 "latitude,longitude,height,zone",
// line 3 free, line 4 the tab-separated column names, then the hours.

#include "climate/import/Klimaimport.h"

#include <string_view>
#include <vector>

// True when line 4 (index 3) names "Ta" and at least one of "G_Gh", "G_Dh".
bool ist_meteonorm(const std::vector<std::string_view>& zeilen);

// Fills the window's fields from a Meteonorm source: 4 head lines, tab separation, point as the
// decimal mark, place and coordinates from lines 1 and 2, and the first six columns assigned by
// their names in line 4. Country stays empty.
void Meteonorm_Lesen(Klimaimport& f, const std::vector<std::string_view>& zeilen);
