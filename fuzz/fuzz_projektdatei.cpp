// SPDX-License-Identifier: GPL-3.0-or-later
// The project reader on arbitrary bytes, with the planes whose handlers it fires, followed by
// the transfer of the state to the planes: each input is read or refused with a handled fault,
// never more.
#include "fuzz/StummeDialogs.h"
#include "planes/Eingabeflaechen.h"
#include "project/FatalError.h"
#include "project/Laufzeitfehler.h"
#include "project/c_glob.h"
#include "project/lebenszyklus/eingaben_anzeigen.h"
#include "project/lebenszyklus/projektdatei.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t laenge) {
    static auto p = [] {
        auto neu = std::make_unique<Projekt>();
        neu->Sprache = "d";
        neues_projekt(*neu);
        return neu;
    }();
    static Eingabeflaechen ebenen(*p);
    static StummeDialogs dialogs;
    // The guard stays set: the planes' handlers derive the geometry only, and the station
    // folder is empty, so that a climate option ends in a handled fault without reading.
    p->FormLoadGuard = -1;
    p->Klimaauswahl = 0;
    try {
        if (datei_lesen(*p, ebenen, dialogs,
                        std::string_view(reinterpret_cast<const char*>(daten), laenge))) {
            p->Klimaauswahl = 0;
            eingaben_anzeigen(*p, ebenen, dialogs);
        }
        datei_schreiben(*p);
    } catch (const Laufzeitfehler&) {
    } catch (const FatalError&) {
    }
    return 0;
}
