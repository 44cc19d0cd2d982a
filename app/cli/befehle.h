// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ostream>
#include <string>
#include <vector>

// The commands of velmaris-cli. Each takes the arguments after its name and returns the exit
// status: 0 done, 1 wrong arguments; a FatalError reaches the caller (status 2).

// calc --new [--klima DIR] [--hourly]: the new project on the default station, recalculated
// once, printed as one JSON object.
int befehl_calc(const std::vector<std::string>& args, std::ostream& aus, std::ostream& fehler);
