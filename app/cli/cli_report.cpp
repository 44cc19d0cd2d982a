// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/cli/befehle.h"
#include "app/cli/cli_programm.h"
#include "app/cli/pfade.h"
#include "project/c_glob.h"
#include "report/Report.h"

int befehl_report(const std::vector<std::string>& args, std::ostream&, std::ostream& fehler) {
    std::string datei, ziel, sprache;
    std::string klima = datenordner("klima");
    int seite = 0;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "--sprache" && i + 1 < args.size() &&
            (args[i + 1] == "d" || args[i + 1] == "e")) {
            sprache = args[++i];
        } else if (args[i] == "--seite" && i + 1 < args.size() && args[i + 1].size() == 1 &&
                   args[i + 1][0] >= '0' && args[i + 1][0] <= '7') {
            seite = args[++i][0] - '0';
        } else if (args[i] == "--klima" && i + 1 < args.size()) {
            klima = args[++i];
        } else if (!args[i].empty() && args[i][0] != '-' && (datei.empty() || ziel.empty())) {
            (datei.empty() ? datei : ziel) = args[i];
        } else {
            fehler << "velmaris-cli report: unexpected argument \"" << args[i] << "\"\n";
            return 1;
        }
    }
    if (ziel.empty()) {
        fehler << "usage: velmaris-cli report PROJECT.vel OUT.rtf [--sprache d|e] [--seite 0..7] "
                  "[--klima DIR]\n";
        return 1;
    }
    KonsolenProgramm programm(klima, sprache);
    if (programm.oeffnen(datei, fehler) != 0) {
        return 2;
    }
    const Reportquelle quelle{programm.p, *programm.ebenen, dezimalzeichen(programm.p.Sprache),
                              [](const std::string& t) { return times_breite(t); }};
    const std::string report_text = report_der_sprache(quelle, static_cast<int16_t>(seite));
    if (!report_speichern(report_text, ziel)) {
        fehler << "velmaris-cli report: cannot write \"" << ziel << "\"\n";
        return 2;
    }
    return 0;
}
