// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The language of the run: the letter "d" or "e" in Sprache, kept for the next start in the
// one-line file typ.dat. Each bilingual text is chosen by comparing the
// letter with "d" and with "e", each test by itself: a third letter sets neither language.

#include <functional>
#include <string>

struct Projekt;
class Dialogs;

// The language file the choice is written to: in the user's settings folder, or
// p.KlimaOrdner + "/typ.dat" when the program runs from its build.
std::string sprachdatei(const Projekt& p);
// The language file read at start: the user's, else one delivered in the station folder.
std::string gelesene_sprachdatei(const Projekt& p);

// Whether a file exists (can be opened for input).
bool datei_da(const std::string& pfad);

// The language choice at start when the file is missing: returns "d", "e", or "" when the
// window was closed without a choice.
using Sprachwahl = std::function<std::string()>;

// Sets Sprache from the first value of the language file; without the file the choice is asked
// and, if made, written by schreibe_sprache.
void sprache_lesen(Projekt& p, const Sprachwahl& wahl);

// The start's language: a command line of exactly "d" or "e" sets it for this run and writes
// nothing (a fast start, returns true); any other runs sprache_lesen. Then sprachtexte_setzen.
bool sprache_beim_start(Projekt& p, const std::string& befehlszeile, const Sprachwahl& wahl);

// Sets the shared texts and the month names of the Monat table by Sprache.
void sprachtexte_setzen(Projekt& p);

// The language window's choice: writes the letter to the language file and sets Sprache.
// A write fault throws FatalError.
void schreibe_sprache(Projekt& p, const std::string& buchstabe);

// The menu's choice: the message that the change comes with the next start, then the letter is
// written to the file. Sprache and all texts stay as they are.
void sprache_merken(Projekt& p, Dialogs& d, const std::string& buchstabe);

// The two menu entries with their check marks.
struct Sprachmenue {
    // The check marks after the main window is translated to the language of the run.
    explicit Sprachmenue(const Projekt& p);
    bool mnuSpracheDeutsch = true;
    bool mnuSpracheEnglisch = false;
    // A click on the entry of `buchstabe`: nothing if it is checked, else the check moves and
    // sprache_merken runs.
    void klick(Projekt& p, Dialogs& d, const std::string& buchstabe);
};
