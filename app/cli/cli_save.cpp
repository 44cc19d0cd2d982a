// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/cli/aufrufe.h"
#include "app/cli/befehle.h"
#include "app/shell/cli_programm.h"
#include "project/c_glob.h"
#include "project/pfade.h"

int befehl_save(Projekt& p, const std::vector<std::string>& args, std::ostream&,
                std::ostream& fehler) {
    std::string ziel, quelle;
    std::string klima = datenordner("klima");
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "--from" && i + 1 < args.size()) {
            quelle = args[++i];
        } else if (args[i] == "--klima" && i + 1 < args.size()) {
            klima = args[++i];
        } else if (ziel.empty() && !args[i].empty() && args[i][0] != '-') {
            ziel = args[i];
        } else {
            fehler << "velmaris-cli save: unexpected argument \"" << args[i] << "\"\n";
            return 1;
        }
    }
    if (ziel.empty()) {
        fehler << aufruf("save");
        return 1;
    }
    KonsolenProgramm programm(p, klima, std::string());
    if (!quelle.empty()) {
        // A project whose station is missing is not written on the stand-in station.
        const int status = programm.oeffnen(quelle, fehler);
        if (status == KonsolenProgramm::STATION_ERSETZT) {
            return 2;
        }
        if (status != 0) {
            return status;
        }
    }
    // The menu's save as, with the name given and an existing file replaced.
    programm.dialogs.speichern_als = ziel;
    if (!programm.io->datei_speichern_unter()) {
        fehler << programm.dialogs.texte.back() << "\n";
        return 2;
    }
    return 0;
}
