// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ostream>
#include <string>
#include <vector>

struct Projekt;

// The commands of velmaris-cli. Each takes the arguments after its name and returns the exit
// status: 0 done, 1 wrong arguments; a FatalError reaches the caller (status 2). Those that
// build a project work on the record `p`.

// calc --new [--klima DIR] [--hourly]: the new project on the default station, recalculated
// once, printed as one JSON object.
// calc PROJECT.vel [--klima DIR] [--sprache d|e] [--hourly]: a fresh start, then the project
// opened as the desktop opens it, printed the same way. Status 3 for a wrong version line, 2 for
// any other fault of the file ("Dateifehler!", and below it the cause of a calculation fault).
// A project whose station file is missing is calculated on the default station, as the desktop
// does: the climate message on `fehler`, the results on `aus`, status 4.
int befehl_calc(Projekt& p, const std::vector<std::string>& args, std::ostream& aus,
                std::ostream& fehler);

// save OUT.vel [--from PROJECT.vel] [--klima DIR]: the new project, or the one opened, written
// by the desktop's save as (a 3.0 file comes out as 3.2). Status 2 for a fault, 3 for a wrong
// version line of the source.
int befehl_save(Projekt& p, const std::vector<std::string>& args, std::ostream& aus,
                std::ostream& fehler);

// import SOURCE --name NAME [--ort ..] [--land ..] [--format ..] ...: a climate source converted
// into the station file NAME.met of the klima folder; the messages of the import on the terminal.
// Status 2 when the import refused the source.
int befehl_import(const std::vector<std::string>& args, std::ostream& aus, std::ostream& fehler);

// klima stationen [--klima DIR]: the station lists as the climate plane builds them, one line per
// station (file, name, world map X and Y, Europe map X and Y for the stations on that map).
// klima plz CODE [--klima DIR]: the region, station file and region text of a post code; status 3
// with the message for a prefix not in use. klima region X Y [--programm DIR]: the region under a
// pixel of the German map, 0 for none.
int befehl_klima(Projekt& p, const std::vector<std::string>& args, std::ostream& aus,
                 std::ostream& fehler);

// report PROJECT.vel OUT.rtf [--sprache d|e] [--seite 0..7] [--klima DIR]: the project opened as
// the desktop opens it and its report written as Rich Text, all pages (0) or one. Status 2 for a
// project that cannot be read or a file that cannot be written.
int befehl_report(Projekt& p, const std::vector<std::string>& args, std::ostream& aus,
                  std::ostream& fehler);

// temperaturen PROJECT.vel OUT.txt [--sprache d|e] [--klima DIR]: the project opened and the
// year's hourly temperatures written as the window's export writes them. Status 2 as for report.
int befehl_temperaturen(Projekt& p, const std::vector<std::string>& args, std::ostream& aus,
                        std::ostream& fehler);

// drucken PROJECT.vel OUT.pdf [--seiten 1,3,5] [--sprache d|e] [--klima DIR]: the printed pages
// of the project (the options of the print dialog, all without --seiten) as a PDF file. Status 2
// for a project that cannot be read or a file that cannot be written. Without the desktop build
// it only says that it needs it (status 1).
int befehl_drucken(const std::vector<std::string>& args, std::ostream& aus, std::ostream& fehler);
