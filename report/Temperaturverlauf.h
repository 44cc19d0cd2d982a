// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

struct Projekt;

// The hourly temperature course of the last simulation as plain text, lines ending in CR LF:
// a head in the language p.Sprache, then one row per hour of day, month, hour, outdoor air Ta,
// free-running T_frei and controlled T_regel (°C, "0.0" with the decimal mark `dezimal`), each
// right-aligned to ten characters. Texts are UTF-8.

// The month screen (temperatur_text): `monat` 1..12 one month under a "Monat:" line, 0 all
// twelve months without it.
std::string temperaturverlauf_schreiben(const Projekt& p, int monat, char dezimal);

// The year file's text: its own head (no month line, the units line ends in "in kW", the English
// column head spells "Month" and "T free") and the 8760 rows.
std::string temperaturverlauf_jahrestext(const Projekt& p, char dezimal);

// Writes the year file to `pfad` in Windows-1252. False when it cannot be written; the file may
// then remain partly written.
bool temperaturverlauf_exportieren(const Projekt& p, char dezimal, const std::string& pfad);
