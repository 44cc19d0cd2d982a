// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Shared parts of the source readers.

#include "climate/import/quelle.h"

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace quellen {

// A reader's fault, turned into Quellfehler at the boundary of quelle_lesen.
struct Lesefehler : std::runtime_error {
    Lesefehler(int zeile_, const std::string& grund, bool zu_wenig_ = false)
        : std::runtime_error(grund), zeile(zeile_), zu_wenig(zu_wenig_) {}
    int zeile;
    bool zu_wenig;
};

// Fields of a line split at `trenner`; a line of n separators has n + 1 fields.
std::vector<std::string_view> felder(std::string_view zeile, char trenner);

// Fields of a line split at runs of blanks and tabs, without empty fields.
std::vector<std::string_view> woerter(std::string_view zeile);

// A field as a number, or a Lesefehler naming the line and the quantity.
double zahl(std::string_view feld, int zeile, const char* groesse);

// A field as a whole number of at most six digits, or a Lesefehler.
int ganz(std::string_view feld, int zeile, const char* groesse);

// The 0-based hour of the year without leap day for month 1..12, day 1..31 and the hour ending
// 1..24; -1 for February 29; a Lesefehler for an impossible date.
int stundenindex(int monat, int tag, int stunde, int zeile);

// Collects hours by index, checks that every hour came exactly once, or averages several values
// that fall into one hour when `mitteln` is set.
class Stundensammler {
public:
    explicit Stundensammler(bool mitteln);
    void hinzu(int index, const Quellstunde& wert, int zeile);
    // Whether hour `index` (0..8759) has a value.
    bool belegt(int index) const;
    // Gives hour `nach` the value of hour `von`.
    void kopieren(int von, int nach);
    // The 8760 hours; a Lesefehler (zu_wenig) when an hour has no value.
    std::vector<Quellstunde> fertig() const;

private:
    bool mitteln_;
    std::vector<Quellstunde> summe_;
    std::vector<int> anzahl_;
};

// Plausibility of one hour's values (°C, W/m²): a Lesefehler for values outside what any climate
// has (including the missing-value marks of the formats); a slightly negative radiation becomes 0.
Quellstunde pruefen(Quellstunde s, int zeile);

void epw_lesen(const std::vector<std::string_view>& zeilen, Quelldaten& d);
void try_lesen(const std::vector<std::string_view>& zeilen, Quelldaten& d);
void mos_lesen(const std::vector<std::string_view>& zeilen, Quelldaten& d);
void nsrdb_lesen(const std::vector<std::string_view>& zeilen, Quelldaten& d);
void pvgis_lesen(const std::vector<std::string_view>& zeilen, Quelldaten& d);

// Grid coordinates of the DWD test reference years (Lambert conformal conic, ETRS89, EPSG:3034)
// to latitude and longitude in degrees (north and east positive).
void lcc_geografisch(double rechtswert, double hochwert, double& breite, double& laenge);

} // namespace quellen
