// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/cli/aufrufe.h"
#include "app/cli/befehle.h"
#include "app/shell/cli_programm.h"
#include "app/shell/ergebnis_json.h"
#include "calc/c_mod.h"
#include "climate/klimadatei.h"
#include "project/c_glob.h"
#include "project/pfade.h"

int befehl_calc(Projekt& p, const std::vector<std::string>& args, std::ostream& aus,
                std::ostream& fehler) {
    bool neu = false, stunden = false;
    std::string klima = datenordner("klima");
    std::string datei, sprache;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "--new") {
            neu = true;
        } else if (args[i] == "--hourly") {
            stunden = true;
        } else if (args[i] == "--klima" && i + 1 < args.size()) {
            klima = args[++i];
        } else if (args[i] == "--sprache" && i + 1 < args.size() &&
                   (args[i + 1] == "d" || args[i + 1] == "e")) {
            sprache = args[++i];
        } else if (datei.empty() && !args[i].empty() && args[i][0] != '-') {
            datei = args[i];
        } else {
            fehler << "velmaris-cli calc: unexpected argument \"" << args[i] << "\"\n";
            return 1;
        }
    }
    if (neu == !datei.empty()) {
        fehler << aufruf("calc");
        return 1;
    }
    if (!datei.empty()) {
        // A fresh start as the desktop's, then the project opened by the menu's own code.
        KonsolenProgramm programm(p, klima, sprache);
        const int status = programm.oeffnen(datei, fehler);
        if (status != 0 && status != KonsolenProgramm::STATION_ERSETZT) {
            return status;
        }
        aus << ergebnis_json(programm.p, stunden) << "\n";
        return status;
    }

    p.AppPfad = programmordner();
    p.KlimaOrdner = klima;
    // The start sequence: build the new project with the guard set, then one recalculation.
    p.FormLoadGuard = -1;
    neues_projekt(p);
    klimadatei_lesen(p);
    p.FormLoadGuard = 0;
    alles_berechnen(p);

    aus << ergebnis_json(p, stunden) << "\n";
    return 0;
}
