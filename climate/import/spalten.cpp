// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/import/spalten.h"

#include "climate/import/zahltext.h"
#include "climate/numerisch.h"

#include <algorithm>
#include <cstdint>

namespace {

// A substring by 1-based start and length that yields what the line holds of it.
std::string mitte(std::string_view zeile, int start, int laenge) {
    if (start < 1 || laenge <= 0 || static_cast<std::size_t>(start) > zeile.size()) {
        return {};
    }
    return std::string(
        zeile.substr(static_cast<std::size_t>(start - 1), static_cast<std::size_t>(laenge)));
}

} // namespace

void StelleTab(std::string_view zeile, int n, std::string& wert, bool& ok) {
    std::size_t pos = 0;
    for (int i = 1; i < n; ++i) {
        const std::size_t tab = zeile.find('\t', pos);
        if (tab == std::string_view::npos) {
            wert.clear();
            ok = false;
            return;
        }
        pos = tab + 1;
    }
    const std::size_t tab = zeile.find('\t', pos);
    wert = std::string(zeile.substr(pos, tab == std::string_view::npos ? tab : tab - pos));
    ok = n >= 1;
    if (!ok) {
        wert.clear();
    }
}

void Spalten_Festlegen(Klimaimport& f, std::string_view beispiel) {
    f.Spaltenanfang.fill(0);
    f.Spaltenzahl = 0;
    // Positions are 16-bit: columns beyond that length are not found.
    const std::size_t laenge = std::min<std::size_t>(beispiel.size(), INT16_MAX - 1);
    std::size_t i = 0; // 0-based; positions are stored 1-based
    int k = 0;
    if (f.Datentrennung == 2) {
        while (k < IMPORT_SPALTEN) {
            while (i < laenge && beispiel[i] == ' ') {
                ++i;
            }
            if (i >= laenge) {
                break;
            }
            while (i < laenge && beispiel[i] != ' ') {
                ++i;
            }
            f.Spaltenanfang[static_cast<std::size_t>(++k)] = static_cast<int16_t>(i + 1);
        }
    } else if (f.Datentrennung == 1) {
        while (i < laenge && beispiel[i] == ' ') {
            ++i;
        }
        while (i < laenge && k < IMPORT_SPALTEN) {
            f.Spaltenanfang[static_cast<std::size_t>(++k)] = static_cast<int16_t>(i + 1);
            while (i < laenge && beispiel[i] != ' ') {
                ++i;
            }
            while (i < laenge && beispiel[i] == ' ') {
                ++i;
            }
        }
    }
    f.Spaltenzahl = static_cast<int16_t>(k);
}

void StelleLeer(const Klimaimport& f, std::string_view zeile, int n, std::string& wert, bool& ok) {
    wert.clear();
    ok = false;
    if (n < 1 || n > IMPORT_SPALTEN) {
        return;
    }
    const auto index = static_cast<std::size_t>(n);
    const int s = f.Spaltenanfang[index];
    if (f.Datentrennung == 1) {
        if (s != 0 && zeile.size() > static_cast<std::size_t>(s)) {
            const int naechste = f.Spaltenanfang[index + 1];
            wert = naechste != 0 ? mitte(zeile, s, naechste - s)
                                 : std::string(zeile.substr(static_cast<std::size_t>(s - 1)));
            ok = true;
        }
    } else if (f.Datentrennung == 2) {
        if (s != 0) {
            wert = n == 1
                       ? mitte(zeile, 1, s - 1)
                       : mitte(zeile, f.Spaltenanfang[index - 1], s - f.Spaltenanfang[index - 1]);
            ok = true;
        }
    }
}

void Stelle(const Klimaimport& f, std::string_view zeile, int n, std::string& wert, bool& ok) {
    if (f.Datentrennung == 0) {
        StelleTab(zeile, n, wert, ok);
    } else {
        StelleLeer(f, zeile, n, wert, ok);
    }
}

std::size_t kopfzeilenzahl(const std::string& Kopfzeilen) {
    const double n = runden_gerade(numerisch_lesen(Kopfzeilen), 0);
    if (!(n > 0)) {
        return 0;
    }
    return n > static_cast<double>(KOPFZEILEN_HOECHSTENS) ? KOPFZEILEN_HOECHSTENS + 1
                                                          : static_cast<std::size_t>(n);
}
