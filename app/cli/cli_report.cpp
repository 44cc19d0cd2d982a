// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/cli/befehle.h"
#include "app/cli/cli_dateiargumente.h"
#include "app/shell/cli_programm.h"
#include "project/c_glob.h"
#include "project/pfade.h"
#include "report/Report.h"

int befehl_report(Projekt& p, const std::vector<std::string>& args, std::ostream&,
                  std::ostream& fehler) {
    Dateiargumente a;
    int seite = 0;
    const auto seite_lesen = [&seite](const std::string& w) {
        if (w.size() != 1 || w[0] < '0' || w[0] > '7') {
            return false;
        }
        seite = w[0] - '0';
        return true;
    };
    if (!dateiargumente_lesen("report", args,
                              {{"--seite", "--seite takes 0 (all pages) to 7", seite_lesen}}, a,
                              fehler)) {
        return 1;
    }
    KonsolenProgramm programm(p, a.klima.empty() ? datenordner("klima") : a.klima, a.sprache);
    if (programm.oeffnen(a.projekt, fehler) != 0) {
        return 2;
    }
    const Reportquelle quelle{programm.p, *programm.ebenen, dezimalzeichen(programm.p.Sprache),
                              [](const std::string& t) { return times_breite(t); }};
    const std::string report_text = report_der_sprache(quelle, static_cast<int16_t>(seite));
    if (!report_speichern(report_text, a.ziel)) {
        fehler << "velmaris-cli report: cannot write \"" << a.ziel << "\"\n";
        return 2;
    }
    return 0;
}
