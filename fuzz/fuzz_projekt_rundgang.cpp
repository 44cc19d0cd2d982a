// SPDX-License-Identifier: GPL-3.0-or-later
// The project file round trip on arbitrary bytes: whatever the reader takes is written, and the
// written text reads back, through the planes as an open does, to a record that writes the same
// text again.
#include "fuzz/StummeDialogs.h"
#include "planes/Eingabeflaechen.h"
#include "project/FatalError.h"
#include "project/Laufzeitfehler.h"
#include "project/c_glob.h"
#include "project/eingaben_anzeigen.h"
#include "project/projektdatei.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace {

struct Offen {
    std::unique_ptr<Projekt> p = [] {
        auto neu = std::make_unique<Projekt>();
        neu->Sprache = "d";
        neues_projekt(*neu);
        return neu;
    }();
    Eingabeflaechen ebenen{*p};
};

// Opens `text` as the program does, with the station folder empty so that no climate is read.
bool oeffnen(Offen& o, Dialogs& dialogs, std::string_view text) {
    o.p->FormLoadGuard = -1;
    o.p->Klimaauswahl = 0;
    if (!datei_lesen(*o.p, o.ebenen, dialogs, text)) {
        return false;
    }
    o.p->Klimaauswahl = 0;
    eingaben_anzeigen(*o.p, o.ebenen, dialogs);
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t laenge) {
    static Offen erstes;
    static Offen zweites;
    static StummeDialogs dialogs;
    std::string geschrieben;
    try {
        if (!oeffnen(erstes, dialogs,
                     std::string_view(reinterpret_cast<const char*>(daten), laenge))) {
            return 0;
        }
        geschrieben = datei_schreiben(*erstes.p);
    } catch (const Laufzeitfehler&) {
        return 0;
    } catch (const FatalError&) {
        return 0;
    }
    // A file the program wrote must open again and save unchanged.
    bool gelesen = false;
    try {
        gelesen = oeffnen(zweites, dialogs, geschrieben);
    } catch (const Laufzeitfehler&) {
    } catch (const FatalError&) {
    }
    if (!gelesen || datei_schreiben(*zweites.p) != geschrieben) {
        __builtin_trap();
    }
    return 0;
}
