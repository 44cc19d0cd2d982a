// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/cli/cli_drucken_argumente.h"

namespace {

// The list "1,3,5" of option numbers 1..7 as ticks; false for anything else.
bool seiten_lesen(const std::string& liste, Druckauswahl& auswahl) {
    auswahl.fill(false);
    std::size_t i = 0;
    while (true) {
        if (i >= liste.size() || liste[i] < '1' || liste[i] > '7') {
            return false;
        }
        bool& haken = auswahl[static_cast<std::size_t>(liste[i] - '1')];
        if (haken) {
            return false;
        }
        haken = true;
        ++i;
        if (i == liste.size()) {
            return true;
        }
        if (liste[i] != ',') {
            return false;
        }
        ++i;
    }
}

} // namespace

bool druckargumente_lesen(const std::vector<std::string>& args, Druckargumente& a,
                          std::ostream& fehler) {
    return dateiargumente_lesen(
        "drucken", args,
        {{"--seiten", "--seiten takes option numbers 1..7 such as 1,3,5, each once",
          [&a](const std::string& liste) { return seiten_lesen(liste, a.auswahl); }}},
        a, fehler);
}
