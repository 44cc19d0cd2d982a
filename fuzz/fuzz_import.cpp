// SPDX-License-Identifier: GPL-3.0-or-later
// The readers of the climate exports on arbitrary bytes: each reads or reports a fault, never
// more; a source that reads is written as a station file.
#include "climate/import/quelle.h"
#include "climate/import/stationsschreiber.h"
#include "climate/klimadatei.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t laenge) {
    const std::string_view text(reinterpret_cast<const char*>(daten), laenge);
    const std::vector<std::string_view> zeilen = zeilen_teilen(text);
    format_erkennen(zeilen);
    for (const Quellformat format : {Quellformat::epw, Quellformat::try_dat, Quellformat::mos,
                                     Quellformat::nsrdb, Quellformat::pvgis}) {
        Quelldaten quelle;
        Quellfehler fehler;
        if (quelle_lesen(format, text, quelle, fehler)) {
            Klimaimport f;
            f.Standortname = quelle.ort;
            f.Land = quelle.land;
            stationsdatei(f, stationsreihenfolge(quelle, quelle.ortszone), false);
        }
    }
    return 0;
}
