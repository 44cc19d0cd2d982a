// SPDX-License-Identifier: GPL-3.0-or-later
// The column text of the import on arbitrary bytes: Meteonorm recognition, the column positions
// of both blank modes, the fields of every line, the preview grid and the typed-number test.
#include "climate/import/importieren.h"
#include "climate/import/meteonorm.h"
#include "climate/import/spalten.h"
#include "climate/import/vorschau.h"
#include "climate/import/zahltext.h"
#include "climate/klimadatei.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t laenge) {
    const std::string_view text(reinterpret_cast<const char*>(daten), laenge);
    const std::vector<std::string_view> zeilen = zeilen_teilen(text);
    Klimaimport f;
    if (ist_meteonorm(zeilen)) {
        Meteonorm_Lesen(f, zeilen);
    }
    AlleEingabenTesten(f);
    standardname(std::string(text.substr(0, 200)));
    for (int16_t modus = 0; modus <= 2; ++modus) {
        f.Datentrennung = modus;
        f.Dezimalzeichen = modus == 1 ? 1 : 0;
        // Head lines, scroll positions and a column choice from the input's size.
        f.Kopfzeilen = std::to_string(laenge % 7);
        const int spalte = static_cast<int>(laenge % 120) - 5;
        vorschau_fuellen(f, zeilen, spalte, static_cast<int>(laenge / 3 % 40000) - 3);
        Datenreihe_Click(f, spalte, static_cast<int>(laenge % 8) - 1, static_cast<int16_t>(modus));
        for (std::size_t i = 0; i < zeilen.size() && i < 64; ++i) {
            if (modus != 0) {
                Spalten_Festlegen(f, zeilen[i]);
            }
            for (int n = 0; n <= 8; ++n) {
                std::string wert;
                bool ok = false;
                Stelle(f, zeilen[i], n, wert, ok);
                double zahl = 0;
                StringToReal(wert, zahl, ok, f.Dezimalzeichen);
                if (ok) {
                    RealToString(runden_gerade(zahl, 1));
                }
            }
        }
    }
    return 0;
}
