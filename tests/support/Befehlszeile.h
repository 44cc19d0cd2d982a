// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

// What a command line printed on standard output, and its exit status (-1 if it did not exit).
struct Befehlslauf {
    int status = -1;
    std::string aus;
};

// Runs a shell command line as a user would and collects its standard output.
Befehlslauf befehl_ausfuehren(const std::string& befehlszeile);
