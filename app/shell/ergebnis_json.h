// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

struct Projekt;

// The inputs and every result of a recalculated project as one JSON object of the schema
// "velmaris-calc/1"; with `stunden` also the hourly tables over the days that exist.
std::string ergebnis_json(const Projekt& p, bool stunden);
