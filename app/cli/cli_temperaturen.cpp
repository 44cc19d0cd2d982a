// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/cli/befehle.h"
#include "app/cli/cli_dateiargumente.h"
#include "app/shell/cli_programm.h"
#include "project/c_glob.h"
#include "project/pfade.h"
#include "report/Report.h"
#include "report/Temperaturverlauf.h"

int befehl_temperaturen(Projekt& p, const std::vector<std::string>& args, std::ostream&,
                        std::ostream& fehler) {
    Dateiargumente a;
    if (!dateiargumente_lesen("temperaturen", args, {}, a, fehler)) {
        return 1;
    }
    KonsolenProgramm programm(p, a.klima.empty() ? datenordner("klima") : a.klima, a.sprache);
    if (programm.oeffnen(a.projekt, fehler) != 0) {
        return 2;
    }
    if (!temperaturverlauf_exportieren(programm.p, dezimalzeichen(programm.p.Sprache), a.ziel)) {
        fehler << "velmaris-cli temperaturen: cannot write \"" << a.ziel << "\"\n";
        return 2;
    }
    return 0;
}
