// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/klimadatei.h"

#include "climate/Sonne.h"
#include "climate/klimainfo.h"
#include "climate/monatsstrahlung.h"
#include "climate/numerisch.h"
#include "climate/stationsordner.h"
#include "project/Dateizugriff.h"
#include "project/FatalError.h"
#include "project/Laufzeitfehler.h"
#include "project/c_glob.h"
#include "project/checked.h"

#include <algorithm>
#include <memory>

namespace {

constexpr int TAGE[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

// A text cut or filled with blanks to 25 characters, counted as characters, not bytes.
std::string fest25(const std::string& text) {
    std::string aus;
    int zeichen = 0;
    for (std::size_t i = 0; i < text.size() && zeichen < 25; ++zeichen) {
        std::size_t laenge = 1;
        const auto c = static_cast<unsigned char>(text[i]);
        if (c >= 0xF0) {
            laenge = 4;
        } else if (c >= 0xE0) {
            laenge = 3;
        } else if (c >= 0xC0) {
            laenge = 2;
        }
        aus += text.substr(i, laenge);
        i += laenge;
    }
    aus.append(static_cast<std::size_t>(25 - zeichen), ' ');
    return aus;
}

void dachraum_setzen(Projekt& p) {
    p.Dachraum[0] = {fest25("Außen oder nicht gedämmtes Dach"), 1.0f};
    p.Dachraum[1] = {fest25("Teilgedämmtes Dach"), 0.8f};
    p.Dachraum[2] = {fest25("Voll gedämmtes Dach"), 0.5f};
}

} // namespace

std::vector<std::string_view> zeilen_teilen(std::string_view text, std::size_t hoechstens) {
    std::vector<std::string_view> zeilen;
    if (hoechstens == 0) {
        return zeilen;
    }
    // A station file has 8766 lines of some 22 bytes: a guess from the size spares most of the
    // growing copies without a counting pass.
    zeilen.reserve(std::min(hoechstens, text.size() / 20 + 1));
    std::size_t anfang = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (static_cast<unsigned char>(c) > '\r' || (c != '\r' && c != '\n')) {
            continue;
        }
        zeilen.push_back(text.substr(anfang, i - anfang));
        if (zeilen.size() == hoechstens) {
            return zeilen;
        }
        if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
            ++i;
        }
        anfang = i + 1;
    }
    if (anfang < text.size()) {
        zeilen.push_back(text.substr(anfang));
    }
    return zeilen;
}

void monatslaengen_setzen(Projekt& p) {
    for (int m = 1; m <= 12; ++m) {
        p.Monat[m].Tage = static_cast<int16_t>(TAGE[m - 1]);
    }
}

void klimadatei_lesen(Projekt& p) {
    const std::string pfad = stationspfad(p, p.Klimadatei);
    std::string text;
    try {
        text = datei_text(pfad, KLIMADATEI_HOECHSTGROESSE + 1);
    } catch (const Laufzeitfehler&) {
        throw FatalError("The station file \"" + pfad + "\" cannot be opened.");
    }
    // Lines past 8766 are never used, so a longer file reads as far as a valid one can reach.
    if (text.size() > KLIMADATEI_HOECHSTGROESSE) {
        text.resize(KLIMADATEI_HOECHSTGROESSE);
        if (zeilen_teilen(text, KLIMADATEI_ZEILEN + 1).size() <=
            static_cast<std::size_t>(KLIMADATEI_ZEILEN)) {
            throw FatalError("The station file \"" + pfad + "\" does not end its line " +
                             std::to_string(KLIMADATEI_ZEILEN) + " within its first " +
                             std::to_string(KLIMADATEI_HOECHSTGROESSE >> 20) +
                             " MB; it is no station file.");
        }
    }
    klimadatei_lesen(p, text, pfad);
}

void klimadatei_lesen(Projekt& p, std::string_view text, const std::string& name) {
    monatslaengen_setzen(p);
    const std::vector<std::string_view> zeilen = zeilen_teilen(text, KLIMADATEI_ZEILEN);
    if (zeilen.size() < static_cast<std::size_t>(KLIMADATEI_ZEILEN)) {
        throw FatalError("The station file \"" + name + "\" ends after line " +
                         std::to_string(zeilen.size()) + "; line " +
                         std::to_string(zeilen.size() + 1) + " of " +
                         std::to_string(KLIMADATEI_ZEILEN) + " is missing.");
    }
    auto kopfwert = [&](int zeile) { return numerisch_lesen(spalten(zeilen[zeile - 1], 15, 24)); };
    const float Breite = to_f32(kopfwert(2) * 0.01745, "latitude of the station");
    const double laenge = kopfwert(3);
    const double zone = kopfwert(4);
    const float L = to_f32(-zone * 15 + laenge, "longitude correction of the station");

    // Read into a fresh table, so that the former climate stays until this one is complete.
    auto wetter = std::make_unique<Stundentabelle<Wetterwert>>();
    const std::string_view gespeichert = zeilen[6];
    std::size_t naechste = 7;
    int n = 0;
    for (int m = 1; m <= 12; ++m) {
        for (int d = 1; d <= TAGE[m - 1]; ++d) {
            ++n;
            const Sonnenaufgang sonne = sonnenaufgang(n, Breite, L);
            const Sonnentag tag = sonnentag(n);
            for (int h = 1; h <= 24; ++h) {
                const std::string_view zeile =
                    (n == 365 && h == 24) ? gespeichert : zeilen[naechste++];
                Wetterwert& w = (*wetter)(m, d, h);
                w.Ta = to_f32(numerisch_lesen(spalten(zeile, 6, 10)), "station temperature");
                const double diffus = numerisch_lesen(spalten(zeile, 16, 20));
                double Bh = numerisch_lesen(spalten(zeile, 11, 15)) - diffus;
                if (Bh < 0) {
                    Bh = 0;
                }
                const float faktor = direktfaktor_horizontal(tag, L, stichzeit(h, sonne), Breite);
                w.Direkt = to_f32(faktor * Bh, "direct radiation");
                // Near the horizon 1 / cos z blows up: such a value is dropped, not capped.
                if (w.Direkt > 1370) {
                    w.Direkt = 0;
                }
                w.Diffus = to_f32(diffus, "diffuse radiation");
            }
        }
    }
    p.Breite = Breite;
    p.Laengenkorrektur = L;
    p.Wetter = *wetter;
    dachraum_setzen(p);
    monatsstrahlung_berechnen(p);
    // The station's year figures depend on its data alone: every read brings them along, so a
    // new project shows them as well as a chosen station.
    klima_jahreswerte(p);
}
