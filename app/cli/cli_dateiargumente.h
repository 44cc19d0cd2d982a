// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

// The arguments of the commands that open a project and write one file from it:
// PROJECT.vel OUT [--sprache d|e] [--klima DIR] and the command's own options.
struct Dateiargumente {
    std::string projekt;
    std::string ziel;
    std::string sprache; // "d", "e", or empty for the language file
    std::string klima;   // station folder, empty for the delivered one
};

// An option of one command that takes a value: `lesen` takes the value and is false for a wrong
// one, which `falsch` then explains.
struct Wertoption {
    const char* name;
    const char* falsch;
    std::function<bool(const std::string&)> lesen;
};

// Reads the arguments of `befehl`; false with a message on `fehler` for a wrong one, and with the
// command's usage unless there are exactly two files.
bool dateiargumente_lesen(const char* befehl, const std::vector<std::string>& args,
                          const std::vector<Wertoption>& optionen, Dateiargumente& a,
                          std::ostream& fehler);
