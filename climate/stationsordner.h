// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

struct Projekt;

// The folders whose stations the lists show: the user's own first, then the delivered one.
std::vector<std::string> stationsordner(const Projekt& p);

// The path of the station file `datei`: in the user's folder if it is there, else in the
// delivered one.
std::string stationspfad(const Projekt& p, const std::string& datei);

// The folder an import writes to: the user's own, made if missing; the delivered folder when
// the program runs from its build.
std::string importordner(const Projekt& p);
