// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

// The numeric read of the station files and project files: blanks are skipped, an optional sign,
// digits and one decimal point form the number, and the first other character ends it. Text
// without a number gives 0; it never fails.
double numerisch_lesen(std::string_view text);

// Columns von..bis (1-based, inclusive) of a line; what the line does not reach is missing, so a
// short row reads as zeros.
std::string_view spalten(std::string_view zeile, std::size_t von, std::size_t bis);
