// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The project file ".vel": a version line and one value per line in a fixed order, CR LF line
// ends, 8-bit text. Version 3.2 (69 lines) is written; 3.2 and 3.0 (67 lines, without
// infiltration and heat bridges) are read.

#include <string>
#include <string_view>

struct Projekt;
class Eingabeflaechen;
class Dialogs;

// The version lines.
inline constexpr const char* VERSION_32 = "Velmaris Version 3.2";
inline constexpr const char* VERSION_30 = "Velmaris Version 3.0";

// The largest project file the reader looks at, bytes; anything behind is never read.
constexpr std::size_t PROJEKTDATEI_MAX = 1 << 20;

// The 69 lines of the project in the current version, each ending in CR LF. The roof, window
// mode and construction lines come from the planes' state in the record.
std::string datei_schreiben(const Projekt& p);

// Reads a project from `text` into the record and, where the state is the planes', into the
// planes, whose handlers fire (the caller has set the load guard). A wrong version line shows
// the program's message through `dialogs`, sets Datei to "default.vel", changes nothing else and
// returns false. A short file or a value that does not fit throws Laufzeitfehler; the lines read
// until then stay stored.
bool datei_lesen(Projekt& p, Eingabeflaechen& e, Dialogs& dialogs, std::string_view text);

// The message of a wrong version line in the language `sprache`.
std::string versionsfehler_text(const std::string& sprache);
