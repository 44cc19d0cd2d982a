// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The messages of the climate import in both languages; `Sprache` is "d" or "e".

#include <string>
#include <vector>

std::string text_fehler_titel(const std::string& Sprache);
std::string text_keine_strahlung(const std::string& Sprache);
std::string text_keine_temperatur(const std::string& Sprache);
std::string text_keine_diffusstrahlung(const std::string& Sprache);
// "Fehler in Zeile " + line + CR LF + "Klimadatenimport wurde abgebrochen!"
std::string text_fehler_in_zeile(const std::string& Sprache, int zeile);
std::string text_zu_wenig_daten(const std::string& Sprache);
std::string text_speichern_titel(const std::string& Sprache);
// The prompt for the file name of the new station "place (country)".
std::string text_speichern_frage(const std::string& Sprache, const std::string& ort,
                                 const std::string& land);
std::string text_ueberschreiben(const std::string& Sprache);
std::string text_beendet(const std::string& Sprache);
// The target file could not be written.
std::string text_nicht_schreibbar(const std::string& Sprache, const std::string& pfad);
// The source file could not be read.
std::string text_nicht_lesbar(const std::string& Sprache, const std::string& pfad);
// The source file is larger than any source of one year of hours.
std::string text_zu_gross(const std::string& Sprache, const std::string& pfad);
// The head-line count is larger than the import takes.
std::string text_zu_viele_kopfzeilen(const std::string& Sprache);

// The entries of the window's lists, from index 0.
// Dezimalzeichen: point, comma.
std::vector<std::string> text_dezimalzeichen(const std::string& Sprache);
// Breitezusatz: north, south.
std::vector<std::string> text_breitezusatz(const std::string& Sprache);
// Laengezusatz: east, west.
std::vector<std::string> text_laengezusatz(const std::string& Sprache);
// GMT: east of Greenwich ("GMT + "), west ("GMT - "); the same in both languages.
std::vector<std::string> text_gmt();
// Datenreihe: the five Spaltenart entries, unused to diffuse.
std::vector<std::string> text_datenreihe(const std::string& Sprache);
