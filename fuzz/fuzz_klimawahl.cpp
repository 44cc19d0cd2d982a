// SPDX-License-Identifier: GPL-3.0-or-later
// The readers of the climate choice on arbitrary bytes: the map picture reader with the region
// pick, the post code table search and the item reads of the station list builder. Each reads or
// refuses with FatalError, never more.
#include "climate/Bitmap.h"
#include "climate/ebene/E_Klima.h"
#include "climate/plz_suche.h"
#include "project/FatalError.h"
#include "project/Textkanal.h"

#include <cstddef>
#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t laenge) {
    const std::string text(reinterpret_cast<const char*>(daten), laenge);
    try {
        const Bitmap karte = bitmap_aus_daten(text, "fuzz");
        for (int y = -1; y <= karte.hoehe; y += 7) {
            region_an_pixel(karte, y % (karte.breite + 2) - 1, y, true);
        }
        Picture1_Hover(karte, 110, 20);
    } catch (const FatalError&) {
    }
    try {
        plz_region(text, laenge > 4 ? text.substr(0, 5) : "54290");
    } catch (const FatalError&) {
    }
    Textkanal kanal(text);
    while (!kanal.ende()) {
        kanal.eintrag();
        kanal.zeile();
    }
    return 0;
}
