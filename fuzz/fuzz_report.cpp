// SPDX-License-Identifier: GPL-3.0-or-later
// The report and the hourly temperature table on fuzzed projects: a project file the reader
// takes is recalculated on a synthetic station, and both generators run on the record in both
// languages, whatever its values.
#include "calc/c_mod.h"
#include "climate/klimadatei.h"
#include "fuzz/StummeDialogs.h"
#include "planes/Eingabeflaechen.h"
#include "project/FatalError.h"
#include "project/Laufzeitfehler.h"
#include "project/c_glob.h"
#include "project/lebenszyklus/eingaben_anzeigen.h"
#include "project/lebenszyklus/projektdatei.h"
#include "report/Report.h"
#include "report/Temperaturverlauf.h"
#include "tools/teststation/teststation.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t laenge) {
    static const auto basis = [] {
        auto neu = std::make_unique<Projekt>();
        neu->Sprache = "d";
        neues_projekt(*neu);
        klimadatei_lesen(*neu, station_text(Stationskopf{}, synthetisches_wetter), "synthetisch");
        return neu;
    }();
    static auto p = std::make_unique<Projekt>();
    static StummeDialogs dialogs;
    // Every input starts from the new project on the synthetic climate, with fresh planes; the
    // station folder is empty, so that the climate stays.
    *p = *basis;
    Eingabeflaechen ebenen(*p);
    p->FormLoadGuard = -1;
    p->Klimaauswahl = 0;
    try {
        if (!datei_lesen(*p, ebenen, dialogs,
                         std::string_view(reinterpret_cast<const char*>(daten), laenge))) {
            return 0;
        }
        p->Klimaauswahl = 0;
        eingaben_anzeigen(*p, ebenen, dialogs);
        p->FormLoadGuard = 0;
        alles_berechnen(*p);
        for (const char dezimal : {',', '.'}) {
            const Reportquelle q{*p, ebenen, dezimal,
                                 [](const std::string& t) { return times_breite(t); }};
            report_schreiben(q, 0);
            report_schreiben_englisch(q, 0);
            temperaturverlauf_jahrestext(*p, dezimal);
        }
    } catch (const Laufzeitfehler&) {
    } catch (const FatalError&) {
    }
    return 0;
}
