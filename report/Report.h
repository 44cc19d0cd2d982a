// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "report/Textmass.h"

#include <cstdint>
#include <string>

struct Projekt;
class Eingabeflaechen;

// What the report reads: the record, the input planes whose list texts and labels it quotes,
// the decimal mark of the displays and the measurer of the report font (Breitenbestimmung).
struct Reportquelle {
    const Projekt& p;
    const Eingabeflaechen& ebenen;
    char dezimal;
    Textmass Breitenbestimmung;
};

// The report as Rich Text (report_text), German and English. `seite` 0 gives all seven pages
// with a "\page" between two of them, 1..7 one page. Texts are UTF-8; report_speichern turns
// them into the file's ANSI form.
std::string report_schreiben(const Reportquelle& q, int16_t seite);
std::string report_schreiben_englisch(const Reportquelle& q, int16_t seite);
// The generator of the language of the run, p.Sprache.
std::string report_der_sprache(const Reportquelle& q, int16_t seite);

// The decimal mark of the displays for a language of the run: a point for "e", else a comma.
char dezimalzeichen(const std::string& sprache);

// Writes report_text to `pfad` as one line, every character beyond ASCII as its Windows-1252
// escape "\'xx" ("?" for a character outside that code page), so that word processors read
// the file as ANSI Rich Text. False when the file cannot be written.
bool report_speichern(const std::string& report_text, const std::string& pfad);
