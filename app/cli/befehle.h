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

// import SOURCE --name NAME [--ort ..] [--land ..] [--format ..] ...: a climate source converted
// into the station file NAME.met of the klima folder; the messages of the import on the terminal.
// Status 2 when the import refused the source.
int befehl_import(const std::vector<std::string>& args, std::ostream& aus, std::ostream& fehler);
