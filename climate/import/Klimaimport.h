// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The fields of the climate import window as plain data, so that the import runs and is tested
// without a window.

#include <array>
#include <cstdint>
#include <string>

// The kind of source. `spalten` is the column text of the window (tab- or blank-separated,
// Meteonorm among them); the others are common exports that the import reads by their own rules.
enum class Quellformat { spalten, epw, try_dat, mos, nsrdb, pvgis };

// The choice of a preview column (`Datenreihe`, `Spaltenbelegung`).
enum Spaltenart : int16_t {
    SPALTE_UNBENUTZT = 0,
    SPALTE_TEMPERATUR = 1, // outdoor air °C
    SPALTE_GESAMT = 2,     // total horizontal W/m²
    SPALTE_DIREKT = 3,     // direct horizontal W/m²
    SPALTE_DIFFUS = 4,     // diffuse horizontal W/m²
};

// Source columns 1..100 (index 0 unused).
constexpr int IMPORT_SPALTEN = 100;

struct Klimaimport {
    std::string DateinameBox;   // source file path
    std::string Dateiansicht;   // the first lines of the source, each with CR LF, "..." when cut
    std::string Kopfzeilen;     // head lines to skip, as typed (digits)
    int16_t Datentrennung = 0;  // 0 tab, 1 blanks with left-aligned, 2 with right-aligned columns
    int16_t Dezimalzeichen = 0; // 0 point, 1 comma
    std::string Standortname;   // place
    std::string Land;           // country
    std::string Breitengrad;    // latitude in degrees, as typed, without sign
    std::string Laengengrad;    // longitude in degrees, as typed, without sign
    std::string Zeitzone;       // hours from Greenwich, as typed, without sign
    int16_t Breitezusatz = 0;   // 0 North, 1 South
    int16_t Laengezusatz = 0;   // 0 East, 1 West
    int16_t GMT = 0;            // 0 "GMT + " (east of Greenwich), 1 "GMT - "
    std::array<int16_t, IMPORT_SPALTEN + 1> Spaltenbelegung{}; // Spaltenart of column 1..100
    std::array<int16_t, IMPORT_SPALTEN + 2> Spaltenanfang{};   // column positions 1..100, 0 unset
    int16_t Spaltenzahl = 0;     // columns found in the sample line of the blank modes
    bool Laden_aktiv = false;    // set while a source is analysed
    bool Vorschau_aktiv = false; // set while the preview is filled
    Quellformat Format = Quellformat::spalten; // how the source is read at import
};
