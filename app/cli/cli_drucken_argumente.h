// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/cli/cli_dateiargumente.h"
#include "print/Ausdrucken.h"

#include <ostream>
#include <string>
#include <vector>

// The arguments of drucken: PROJECT.vel OUT.pdf [--seiten 1,3,5] [--sprache d|e] [--klima DIR].
struct Druckargumente : Dateiargumente {
    Druckauswahl auswahl{true, true, true, true, true, true, true};
};

// Reads the arguments; false with a message on `fehler` for a wrong one. The option numbers are
// those of the print dialog, 1..7, each once at most; without --seiten all are ticked.
bool druckargumente_lesen(const std::vector<std::string>& args, Druckargumente& a,
                          std::ostream& fehler);
