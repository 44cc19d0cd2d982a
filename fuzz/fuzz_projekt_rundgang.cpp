// SPDX-License-Identifier: GPL-3.0-or-later
// The project file round trip on arbitrary bytes: whatever the reader takes is written, the
// written text reads back through the planes as an open does, and what the program writes from
// its own file reads back to a record that writes the same text again.
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
#include <string>
#include <string_view>

namespace {

// Opens `text` as the program does right after its start, on a new project shown on fresh planes
// and the station folder empty so that no climate is read; every input starts from the same
// state.
bool oeffnen(Projekt& p, Dialogs& dialogs, std::string_view text) {
    static const auto neu = [] {
        auto n = std::make_unique<Projekt>();
        n->Sprache = "d";
        neues_projekt(*n);
        return n;
    }();
    p = *neu;
    Eingabeflaechen ebenen(p);
    p.FormLoadGuard = -1;
    p.Klimaauswahl = 0;
    // The planes show the new project before anything is opened, as at the program's start.
    eingaben_anzeigen(p, ebenen, dialogs);
    if (!datei_lesen(p, ebenen, dialogs, text)) {
        return false;
    }
    p.Klimaauswahl = 0;
    eingaben_anzeigen(p, ebenen, dialogs);
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t laenge) {
    static auto projekt = std::make_unique<Projekt>();
    static StummeDialogs dialogs;
    std::string erste;
    try {
        if (!oeffnen(*projekt, dialogs,
                     std::string_view(reinterpret_cast<const char*>(daten), laenge))) {
            return 0;
        }
        erste = datei_schreiben(*projekt);
    } catch (const Laufzeitfehler&) {
        return 0;
    } catch (const FatalError&) {
        return 0;
    }
    // A file the program wrote must open again. A foreign file may hold what the program never
    // writes (a window mode other than 0 or 1 leaves the options as they stand, and the next open
    // of the written mode then copies the south facade), so its first save may be settled once by
    // the next open; from then on every save reads back unchanged.
    std::string zweite, dritte;
    bool gelesen = false;
    try {
        gelesen = oeffnen(*projekt, dialogs, erste);
        zweite = datei_schreiben(*projekt);
        gelesen = gelesen && oeffnen(*projekt, dialogs, zweite);
        dritte = datei_schreiben(*projekt);
    } catch (const Laufzeitfehler&) {
        gelesen = false;
    } catch (const FatalError&) {
        gelesen = false;
    }
    if (!gelesen || dritte != zweite) {
        __builtin_trap();
    }
    return 0;
}
