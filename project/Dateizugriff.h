// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>

// The whole of a text file, at most `grenze` bytes. Throws Laufzeitfehler when the file cannot be
// opened for input.
std::string datei_text(const std::string& pfad, std::size_t grenze);

// Whether a file can be opened for input.
bool datei_vorhanden(const std::string& pfad);

// Writes `inhalt` to a new file beside `pfad` and then puts it in the place of `pfad`, so that
// the target is either the old file or the complete new one. Throws Laufzeitfehler on a fault.
void datei_ersetzen(const std::string& pfad, const std::string& inhalt);
