// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The station file: a place line, latitude, longitude (west positive) and time zone (east
// negative) in columns 15-24, an empty line, the column head, and 8760 hourly rows of four
// five-column fields (day, Ta °C, total horizontal W/m², diffuse horizontal W/m²). The first row
// stands for the last hour of the year; the second row is January 1, hour 1.

#include <cstddef>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

struct Projekt;

// Lines of a station file: at least this many, further lines are never looked at.
constexpr int KLIMADATEI_ZEILEN = 8766;

// Bytes of a station file that are read: its 8766 lines are about 270 kB, the rest is margin.
constexpr std::size_t KLIMADATEI_HOECHSTGROESSE = 1u << 20;

// Splits a text into lines at CR LF, LF or CR; a final line end opens no further line. Stops
// after `hoechstens` lines.
std::vector<std::string_view>
zeilen_teilen(std::string_view text,
              std::size_t hoechstens = std::numeric_limits<std::size_t>::max());

// Reads the station file p.KlimaOrdner / p.Klimadatei: sets Monat().Tage, Breite,
// Laengenkorrektur, Wetter, Dachraum, through monatsstrahlung_berechnen Monat().Tmittel and
// Monat().Strahlung_*, and the station's year figures (klima_jahreswerte). A missing or short file,
// or one whose line 8766 does not end within KLIMADATEI_HOECHSTGROESSE bytes, throws FatalError
// and leaves the former climate in place.
void klimadatei_lesen(Projekt& p);

// The same from a text already in memory; `name` is used in messages.
void klimadatei_lesen(Projekt& p, std::string_view text, const std::string& name);

// The fixed month lengths of the year without leap day.
void monatslaengen_setzen(Projekt& p);
