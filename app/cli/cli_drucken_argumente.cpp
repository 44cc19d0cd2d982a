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
    std::vector<std::string> dateien;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const bool wert_da = i + 1 < args.size();
        if (args[i] == "--seiten" && wert_da) {
            if (!seiten_lesen(args[++i], a.auswahl)) {
                fehler << "velmaris-cli drucken: --seiten takes option numbers 1..7 such as "
                          "1,3,5, each once\n";
                return false;
            }
        } else if (args[i] == "--sprache" && wert_da &&
                   (args[i + 1] == "d" || args[i + 1] == "e")) {
            a.sprache = args[++i];
        } else if (args[i] == "--klima" && wert_da) {
            a.klima = args[++i];
        } else if (!args[i].empty() && args[i][0] != '-') {
            dateien.push_back(args[i]);
        } else {
            fehler << "velmaris-cli drucken: unexpected argument \"" << args[i] << "\"\n";
            return false;
        }
    }
    if (dateien.size() != 2) {
        fehler << "usage: velmaris-cli drucken PROJECT.vel OUT.pdf [--seiten 1,3,5] "
                  "[--sprache d|e] [--klima DIR]\n";
        return false;
    }
    a.projekt = dateien[0];
    a.ziel = dateien[1];
    return true;
}
