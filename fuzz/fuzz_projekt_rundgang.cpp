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

// Opens `text` as the program does right after its start, on a new project with fresh planes and
// the station folder empty so that no climate is read; every input starts from the same state.
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
    if (!datei_lesen(p, ebenen, dialogs, text)) {
        return false;
    }
    p.Klimaauswahl = 0;
    eingaben_anzeigen(p, ebenen, dialogs);
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t laenge) {
    static auto erstes = std::make_unique<Projekt>();
    static auto zweites = std::make_unique<Projekt>();
    static StummeDialogs dialogs;
    std::string geschrieben;
    try {
        if (!oeffnen(*erstes, dialogs,
                     std::string_view(reinterpret_cast<const char*>(daten), laenge))) {
            return 0;
        }
        geschrieben = datei_schreiben(*erstes);
    } catch (const Laufzeitfehler&) {
        return 0;
    } catch (const FatalError&) {
        return 0;
    }
    // A file the program wrote must open again and save unchanged.
    bool gelesen = false;
    try {
        gelesen = oeffnen(*zweites, dialogs, geschrieben);
    } catch (const Laufzeitfehler&) {
    } catch (const FatalError&) {
    }
    if (!gelesen || datei_schreiben(*zweites) != geschrieben) {
        __builtin_trap();
    }
    return 0;
}
