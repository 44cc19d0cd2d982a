// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The station lists of the climate plane, built once from the files of the klima folder. Each set
// is four parallel lists kept in step by index: the station name (line 1 of the file up to the
// first comma), the file name, and the map position of the station as text (ordinate and
// abscissa in pixels of the Europe or the world map, in the number-to-text form with a leading
// blank).

#include <string>
#include <utility>
#include <vector>

struct Stationsliste {
    std::vector<std::string> Stationsname; // station name, UTF-8
    std::vector<std::string> Dateiname;    // file name in the klima folder, no folder
    std::vector<std::string> Breite;       // map ordinate Y, pixels from the top, as text
    std::vector<std::string> Laenge;       // map abscissa X, pixels from the left, as text

    // Number of stations.
    int anzahl() const { return static_cast<int>(Dateiname.size()); }
    // The row of a file name, exact comparison; -1 if the file is not listed.
    int suchen(const std::string& datei) const;
    // The map position (X, Y) of row i, read back from its texts.
    std::pair<double, double> punkt(int i) const;
    // Appends a station.
    void anhaengen(const std::string& name, const std::string& datei, const std::string& y,
                   const std::string& x);
    // Swaps rows i and j in all four lists.
    void tauschen(int i, int j);
    // Removes row i from all four lists.
    void entfernen(int i);
};

struct Stationslisten {
    Stationsliste Welt;   // every station, sorted by name
    Stationsliste Europa; // the same order, only the stations on the Europe map
};

// Position (X, Y) on the Europe map, 0..233 and 0..200 inside the picture, of a station at
// latitude `breite` (degrees, north positive) and longitude `laenge_ost` (degrees, east
// positive). The map picture leans its meridians the further south it goes.
std::pair<double, double> europa_punkt(double breite, double laenge_ost);

// Position (X, Y) on the world map of a station, the same arguments.
std::pair<double, double> welt_punkt(double breite, double laenge_ost);

// Builds the lists from the folder: every file whose lower-case name ends in ".met" and is not
// "klima.met". Line 1 gives the name by a comma-delimited read; the next two line reads give
// latitude and longitude (west positive in the file) from columns 15-24, so a name with a comma
// shifts them by one line, as the file reads do. The lists are sorted by name byte by byte
// (selection sort, all lists swapped together), and the Europe set keeps only the stations inside
// the Europe map. An unreadable file is left out; a missing folder gives empty lists.
Stationslisten stationslisten_bauen(const std::string& klimaordner);
// The same over several folders; a file name found in an earlier folder hides the later ones.
Stationslisten stationslisten_bauen(const std::vector<std::string>& ordner);
