// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The preview grid of the import window: six rows of the source from the row scroll field on,
// behind the head lines, and six columns from the column scroll field on, with the column choice
// of each shown column.

#include "climate/import/Klimaimport.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

// Rows and columns of the grid.
constexpr int VORSCHAU_REIHEN = 6;
constexpr int VORSCHAU_SPALTEN = 6;

// What a row past the end of the source shows as its line.
constexpr std::string_view ZEILE_HINTER_ENDE = "xxxxxxxxxx";

struct Vorschau {
    bool gefuellt = false; // false when Kopfzeilen is empty: the grid keeps what it showed
    int Spaltenzahl = 0;   // columns of the first line behind the head lines
    // HScroll1: the first shown column, 1..HScroll1_Max; disabled with maximum 1 below 7 columns.
    int HScroll1 = 1;
    int HScroll1_Max = 1;
    bool HScroll1_Enabled = false;
    // VScroll1: the first shown row behind the head lines, 0..VScroll1_Max; the range covers the
    // source's rows and at least a year of hours, so that a short source shows where it ends.
    int VScroll1 = 0;
    int VScroll1_Max = 0;
    std::array<int, VORSCHAU_REIHEN> Zeilenzaehler{};   // line number in the file, from 1
    std::array<int, VORSCHAU_SPALTEN> Spalte{};         // source column number, from 1
    std::array<int16_t, VORSCHAU_SPALTEN> Datenreihe{}; // Spaltenart of the shown column
    std::array<std::array<std::string, VORSCHAU_SPALTEN>, VORSCHAU_REIHEN> Zelle; // [row][column]
};

// vorschau_fuellen: the grid for the scroll positions asked for (each held inside its new range)
// over the lines of the source. The blank modes first take their column positions from the first
// line behind the head lines (Spalten_Festlegen, which writes f.Spaltenanfang and f.Spaltenzahl).
// A cell whose field the line lacks is empty.
Vorschau vorschau_fuellen(Klimaimport& f, const std::vector<std::string_view>& zeilen, int HScroll1,
                          int VScroll1);

// The choice `art` (Spaltenart) in the list j (0..5) of the grid whose first column is HScroll1:
// stored for source column HScroll1 + j. Ignored while a source is analysed or the grid is
// filled, and for a column beyond 100.
void Datenreihe_Click(Klimaimport& f, int HScroll1, int j, int16_t art);
