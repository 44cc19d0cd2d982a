// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/import/quelle.h"

#include "climate/import/quelle_intern.h"
#include "climate/import/zahltext.h"
#include "climate/klimadatei.h"

#include <cmath>

using namespace quellen;

namespace {

constexpr int TAGE_VOR[12] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
constexpr int TAGE[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

bool beginnt_mit(std::string_view text, std::string_view anfang) {
    return text.substr(0, anfang.size()) == anfang;
}

bool enthaelt(std::string_view text, std::string_view teil) {
    return text.find(teil) != std::string_view::npos;
}

// A test reference year: a line "***" closes the head, and the line before names the columns.
bool ist_try(const std::vector<std::string_view>& zeilen) {
    for (std::size_t i = 1; i < zeilen.size() && i < 80; ++i) {
        if (beginnt_mit(zeilen[i], "***")) {
            const std::vector<std::string_view> namen = woerter(zeilen[i - 1]);
            bool mm = false, hh = false, b = false, d = false;
            for (const std::string_view n : namen) {
                mm = mm || n == "MM";
                hh = hh || n == "HH";
                b = b || n == "B";
                d = d || n == "D";
            }
            return mm && hh && b && d;
        }
    }
    return false;
}

} // namespace

namespace quellen {

std::vector<std::string_view> felder(std::string_view zeile, char trenner) {
    std::vector<std::string_view> aus;
    std::size_t pos = 0;
    for (;;) {
        const std::size_t t = zeile.find(trenner, pos);
        if (t == std::string_view::npos) {
            aus.push_back(zeile.substr(pos));
            return aus;
        }
        aus.push_back(zeile.substr(pos, t - pos));
        pos = t + 1;
    }
}

std::vector<std::string_view> woerter(std::string_view zeile) {
    std::vector<std::string_view> aus;
    std::size_t i = 0;
    while (i < zeile.size()) {
        while (i < zeile.size() && (zeile[i] == ' ' || zeile[i] == '\t')) {
            ++i;
        }
        const std::size_t anfang = i;
        while (i < zeile.size() && zeile[i] != ' ' && zeile[i] != '\t') {
            ++i;
        }
        if (i > anfang) {
            aus.push_back(zeile.substr(anfang, i - anfang));
        }
    }
    return aus;
}

double zahl(std::string_view feld, int zeile, const char* groesse) {
    double wert = 0;
    if (!zahl_streng(feld, wert)) {
        throw Lesefehler(zeile, std::string("no number for ") + groesse + ": \"" +
                                    std::string(feld.substr(0, 40)) + "\"");
    }
    return wert;
}

int ganz(std::string_view feld, int zeile, const char* groesse) {
    const double wert = zahl(feld, zeile, groesse);
    if (wert != std::floor(wert) || std::fabs(wert) > 999999) {
        throw Lesefehler(zeile, std::string("no whole number for ") + groesse);
    }
    return static_cast<int>(wert);
}

int stundenindex(int monat, int tag, int stunde, int zeile) {
    if (monat == 2 && tag == 29 && stunde >= 1 && stunde <= 24) {
        return -1;
    }
    if (monat < 1 || monat > 12 || tag < 1 || tag > TAGE[monat - 1] || stunde < 1 || stunde > 24) {
        throw Lesefehler(zeile, "impossible date: month " + std::to_string(monat) + ", day " +
                                    std::to_string(tag) + ", hour " + std::to_string(stunde));
    }
    return (TAGE_VOR[monat - 1] + tag - 1) * 24 + stunde - 1;
}

Stundensammler::Stundensammler(bool mitteln)
    : mitteln_(mitteln), summe_(JAHRESSTUNDEN), anzahl_(JAHRESSTUNDEN, 0) {}

void Stundensammler::hinzu(int index, const Quellstunde& wert, int zeile) {
    if (index < 0 || index >= JAHRESSTUNDEN) {
        throw Lesefehler(zeile, "hour outside the year");
    }
    const auto k = static_cast<std::size_t>(index);
    if (anzahl_[k] > 0 && !mitteln_) {
        throw Lesefehler(zeile, "hour " + std::to_string(index + 1) + " of the year given twice");
    }
    summe_[k].Ta += wert.Ta;
    summe_[k].G_Gh += wert.G_Gh;
    summe_[k].G_Dh += wert.G_Dh;
    ++anzahl_[k];
}

bool Stundensammler::belegt(int index) const {
    return index >= 0 && index < JAHRESSTUNDEN && anzahl_[static_cast<std::size_t>(index)] > 0;
}

void Stundensammler::kopieren(int von, int nach) {
    if (belegt(von) && nach >= 0 && nach < JAHRESSTUNDEN) {
        summe_[static_cast<std::size_t>(nach)] = summe_[static_cast<std::size_t>(von)];
        anzahl_[static_cast<std::size_t>(nach)] = anzahl_[static_cast<std::size_t>(von)];
    }
}

std::vector<Quellstunde> Stundensammler::fertig() const {
    std::vector<Quellstunde> aus(JAHRESSTUNDEN);
    for (std::size_t k = 0; k < aus.size(); ++k) {
        if (anzahl_[k] == 0) {
            throw Lesefehler(0, "hour " + std::to_string(k + 1) + " of the year has no value",
                             true);
        }
        const double n = anzahl_[k];
        aus[k] = {summe_[k].Ta / n, summe_[k].G_Gh / n, summe_[k].G_Dh / n};
    }
    return aus;
}

Quellstunde pruefen(Quellstunde s, int zeile) {
    if (!(s.Ta >= -90 && s.Ta <= 70)) {
        throw Lesefehler(zeile, "air temperature out of range (missing value?)");
    }
    for (double* g : {&s.G_Gh, &s.G_Dh}) {
        if (!(*g >= -20 && *g <= 2000)) {
            throw Lesefehler(zeile, "radiation out of range (missing value?)");
        }
        if (*g < 0) {
            *g = 0;
        }
    }
    return s;
}

} // namespace quellen

Quellformat format_erkennen(const std::vector<std::string_view>& zeilen) {
    if (zeilen.empty()) {
        return Quellformat::spalten;
    }
    const std::string_view erste = zeilen[0];
    if (beginnt_mit(erste, "LOCATION,")) {
        return Quellformat::epw;
    }
    if (beginnt_mit(erste, "#1") && zeilen.size() > 1 && beginnt_mit(zeilen[1], "double ")) {
        return Quellformat::mos;
    }
    if (beginnt_mit(erste, "Source,") && enthaelt(erste, "Latitude") && zeilen.size() > 2 &&
        beginnt_mit(zeilen[2], "Year,Month,Day,Hour,Minute")) {
        return Quellformat::nsrdb;
    }
    for (std::size_t i = 0; i < zeilen.size() && i < 30; ++i) {
        if (enthaelt(zeilen[i], "time(UTC)") && enthaelt(zeilen[i], "G(h)") &&
            enthaelt(zeilen[i], "Gd(h)") && enthaelt(zeilen[i], "T2m")) {
            return Quellformat::pvgis;
        }
    }
    if (ist_try(zeilen)) {
        return Quellformat::try_dat;
    }
    return Quellformat::spalten;
}

bool quelle_lesen(Quellformat format, std::string_view text, Quelldaten& daten,
                  Quellfehler& fehler) {
    const std::vector<std::string_view> zeilen = zeilen_teilen(text);
    Quelldaten d;
    d.format = format;
    try {
        switch (format) {
        case Quellformat::epw:
            epw_lesen(zeilen, d);
            break;
        case Quellformat::try_dat:
            try_lesen(zeilen, d);
            break;
        case Quellformat::mos:
            mos_lesen(zeilen, d);
            break;
        case Quellformat::nsrdb:
            nsrdb_lesen(zeilen, d);
            break;
        case Quellformat::pvgis:
            pvgis_lesen(zeilen, d);
            break;
        case Quellformat::spalten:
            throw Lesefehler(0, "a column text is read through its column choice");
        }
    } catch (const Lesefehler& f) {
        fehler = {f.zeile, f.what(), f.zu_wenig};
        d.stunden.clear();
        daten = std::move(d);
        return false;
    }
    daten = std::move(d);
    return true;
}

std::vector<Quellstunde> stationsreihenfolge(const Quelldaten& daten, double zone) {
    const double verschiebung = std::round(zone - daten.stempelzone);
    const int n = JAHRESSTUNDEN;
    const int v = std::isfinite(verschiebung) ? static_cast<int>(std::fmod(verschiebung, n)) : 0;
    std::vector<Quellstunde> aus(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i) {
        // Row i holds the local hour i - 1, so row 0 is the last hour of the year; the local
        // hour j is the source hour j - v.
        const int quelle = ((i - 1 - v) % n + 2 * n) % n;
        aus[static_cast<std::size_t>(i)] = daten.stunden[static_cast<std::size_t>(quelle)];
    }
    return aus;
}

std::string formatname(Quellformat format) {
    switch (format) {
    case Quellformat::epw:
        return "epw";
    case Quellformat::try_dat:
        return "try";
    case Quellformat::mos:
        return "mos";
    case Quellformat::nsrdb:
        return "nsrdb";
    case Quellformat::pvgis:
        return "pvgis";
    case Quellformat::spalten:
        break;
    }
    return "spalten";
}
