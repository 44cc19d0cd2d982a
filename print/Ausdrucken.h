// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The printed data sheet of a project: the seven print options of the plane Drucken, the
// common frame of a page and the printing of every ticked option in the order 1 to 7.

#include <array>
#include <string>

class Drucker;
class Eingabeflaechen;
struct Projekt;

// Number of print options.
constexpr int DRUCKOPTIONEN = 7;

// One option: its captions, its number of pages and the headings of its pages.
struct Druckoption {
    const char* deutsch;          // caption of the check field
    const char* englisch;         // its English caption
    int seiten;                   // pages, 1 or 2
    const char* titel_deutsch[2]; // heading of each page
    const char* titel_englisch[2];
};

// The options 1..7 at index 0..6.
const std::array<Druckoption, DRUCKOPTIONEN>& druckoptionen();

// Which options are ticked, option i at index i - 1.
using Druckauswahl = std::array<bool, DRUCKOPTIONEN>;

// The page count m: the pages of all ticked options added up; 8 with all ticked.
int seitenzahl(const Druckauswahl& auswahl);

// Today as day, month and year joined by "." without leading zeros ("5.3.2026").
std::string druckdatum();

// The file name of the project without its folder.
std::string dateiname_ohne_pfad(const std::string& pfad);

// The frame of page n of m with its title: the logo at y 20, the rules at y 35 and 260, the
// foot at y 261 with the file name, "- Seite n / m -" and `datum`, and the title at y 40.
void Seitenkopf(Drucker& d, const Projekt& p, const std::string& titel, int n, int m,
                const std::string& datum);

// Prints the ticked options on `d`, each page with its frame, pages separated by NewPage, then
// EndDoc. The texts of lists come from the planes `e`; `dezimal` is the decimal mark of the
// values and `datum` the date of the foot. Nothing ticked prints nothing and ends the document.
void Ausdrucken(Drucker& d, const Projekt& p, const Eingabeflaechen& e,
                const Druckauswahl& Druckausgabe, char dezimal, const std::string& datum);
