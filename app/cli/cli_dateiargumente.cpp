// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/cli/cli_dateiargumente.h"

#include "app/cli/aufrufe.h"

bool dateiargumente_lesen(const char* befehl, const std::vector<std::string>& args,
                          const std::vector<Wertoption>& optionen, Dateiargumente& a,
                          std::ostream& fehler) {
    std::vector<std::string> dateien;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const bool wert_da = i + 1 < args.size();
        const Wertoption* eigene = nullptr;
        for (const Wertoption& o : optionen) {
            if (args[i] == o.name) {
                eigene = &o;
            }
        }
        if (eigene != nullptr && wert_da) {
            if (!eigene->lesen(args[++i])) {
                fehler << "velmaris-cli " << befehl << ": " << eigene->falsch << "\n";
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
            fehler << "velmaris-cli " << befehl << ": unexpected argument \"" << args[i] << "\"\n";
            return false;
        }
    }
    if (dateien.size() != 2) {
        fehler << aufruf(befehl);
        return false;
    }
    a.projekt = dateien[0];
    a.ziel = dateien[1];
    return true;
}
