// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/cli/befehle.h"
#include "app/cli/cli_programm.h"
#include "app/cli/pfade.h"
#include "project/c_glob.h"
#include "report/Report.h"
#include "report/Temperaturverlauf.h"

int befehl_temperaturen(const std::vector<std::string>& args, std::ostream&, std::ostream& fehler) {
    std::string datei, ziel, sprache;
    std::string klima = datenordner("klima");
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "--sprache" && i + 1 < args.size() &&
            (args[i + 1] == "d" || args[i + 1] == "e")) {
            sprache = args[++i];
        } else if (args[i] == "--klima" && i + 1 < args.size()) {
            klima = args[++i];
        } else if (!args[i].empty() && args[i][0] != '-' && (datei.empty() || ziel.empty())) {
            (datei.empty() ? datei : ziel) = args[i];
        } else {
            fehler << "velmaris-cli temperaturen: unexpected argument \"" << args[i] << "\"\n";
            return 1;
        }
    }
    if (ziel.empty()) {
        fehler << "usage: velmaris-cli temperaturen PROJECT.vel OUT.txt [--sprache d|e] "
                  "[--klima DIR]\n";
        return 1;
    }
    KonsolenProgramm programm(klima, sprache);
    if (programm.oeffnen(datei, fehler) != 0) {
        return 2;
    }
    if (!temperaturverlauf_exportieren(programm.p, dezimalzeichen(programm.p.Sprache), ziel)) {
        fehler << "velmaris-cli temperaturen: cannot write \"" << ziel << "\"\n";
        return 2;
    }
    return 0;
}
