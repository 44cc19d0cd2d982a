// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Fields of one line of a column text: tab-separated, or blank-separated with the column
// positions taken from a sample line.

#include "climate/import/Klimaimport.h"

#include <string>
#include <string_view>

// The n-th tab-separated field (n from 1). Fails (ok false, wert empty) when fewer than n - 1 tabs
// precede it; the last field needs no tab behind it.
void StelleTab(std::string_view zeile, int n, std::string& wert, bool& ok);

// Stores the column positions of the sample line in f.Spaltenanfang and their number in
// f.Spaltenzahl. Mode 2 (right-aligned): the position behind each field; mode 1 (left-aligned):
// the position of each field's first character. At most 100 columns.
void Spalten_Festlegen(Klimaimport& f, std::string_view beispiel);

// The n-th field (n from 1) of a blank-separated line by the positions of Spalten_Festlegen.
void StelleLeer(const Klimaimport& f, std::string_view zeile, int n, std::string& wert, bool& ok);

// The n-th field by the separation mode of the window: StelleTab for mode 0, else StelleLeer.
void Stelle(const Klimaimport& f, std::string_view zeile, int n, std::string& wert, bool& ok);

// Most head lines the import skips: the count is a 16-bit number.
constexpr std::size_t KOPFZEILEN_HOECHSTENS = 32767;

// The head lines to skip for the text of Kopfzeilen: its numeric read, rounded to a whole number
// (halves to even), never negative; a larger count than KOPFZEILEN_HOECHSTENS gives
// KOPFZEILEN_HOECHSTENS + 1, which the import refuses and the preview shows as past the end.
std::size_t kopfzeilenzahl(const std::string& Kopfzeilen);
