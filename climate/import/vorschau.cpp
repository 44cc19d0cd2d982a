// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/import/vorschau.h"

#include "climate/import/quelle.h"
#include "climate/import/spalten.h"

#include <algorithm>

namespace {

// Fields of a tab-separated line: one more than its tabs.
int tabfelder(std::string_view zeile) {
    return static_cast<int>(std::count(zeile.begin(), zeile.end(), '\t')) + 1;
}

} // namespace

Vorschau vorschau_fuellen(Klimaimport& f, const std::vector<std::string_view>& zeilen, int HScroll1,
                          int VScroll1) {
    Vorschau v;
    if (f.Kopfzeilen.empty()) {
        return v;
    }
    v.gefuellt = true;
    const std::size_t kopf = kopfzeilenzahl(f.Kopfzeilen);
    const std::string_view erste = kopf < zeilen.size() ? zeilen[kopf] : std::string_view();
    if (f.Datentrennung == 0) {
        v.Spaltenzahl = kopf < zeilen.size() ? tabfelder(erste) : 0;
    } else {
        Spalten_Festlegen(f, erste);
        v.Spaltenzahl = f.Spaltenzahl;
    }
    v.HScroll1_Enabled = v.Spaltenzahl >= 7;
    v.HScroll1_Max = v.HScroll1_Enabled ? v.Spaltenzahl - 5 : 1;
    v.HScroll1 = std::clamp(HScroll1, 1, v.HScroll1_Max);

    const std::size_t daten = zeilen.size() > kopf ? zeilen.size() - kopf : 0;
    const std::size_t reihen = std::max<std::size_t>(daten, JAHRESSTUNDEN);
    // A scroll field's range is 16-bit.
    v.VScroll1_Max = static_cast<int>(std::min<std::size_t>(reihen - 1, INT16_MAX));
    v.VScroll1 = std::clamp(VScroll1, 0, v.VScroll1_Max);

    for (int j = 0; j < VORSCHAU_SPALTEN; ++j) {
        const int spalte = v.HScroll1 + j;
        v.Spalte[static_cast<std::size_t>(j)] = spalte;
        v.Datenreihe[static_cast<std::size_t>(j)] =
            spalte <= IMPORT_SPALTEN ? f.Spaltenbelegung[static_cast<std::size_t>(spalte)]
                                     : int16_t{SPALTE_UNBENUTZT};
    }
    for (int i = 0; i < VORSCHAU_REIHEN; ++i) {
        const std::size_t nr = kopf + static_cast<std::size_t>(v.VScroll1 + i);
        const auto r = static_cast<std::size_t>(i);
        v.Zeilenzaehler[r] = static_cast<int>(std::min<std::size_t>(nr + 1, INT32_MAX));
        const std::string_view zeile = nr < zeilen.size() ? zeilen[nr] : ZEILE_HINTER_ENDE;
        for (int j = 0; j < VORSCHAU_SPALTEN; ++j) {
            bool ok = false;
            Stelle(f, zeile, v.Spalte[static_cast<std::size_t>(j)],
                   v.Zelle[r][static_cast<std::size_t>(j)], ok);
        }
    }
    return v;
}

void Datenreihe_Click(Klimaimport& f, int HScroll1, int j, int16_t art) {
    const int spalte = HScroll1 + j;
    if (f.Laden_aktiv || f.Vorschau_aktiv || j < 0 || j >= VORSCHAU_SPALTEN || spalte < 1 ||
        spalte > IMPORT_SPALTEN || art < SPALTE_UNBENUTZT || art > SPALTE_DIFFUS) {
        return;
    }
    f.Spaltenbelegung[static_cast<std::size_t>(spalte)] = art;
}
