// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>

// The whole of a text file, at most `grenze` bytes. Throws Laufzeitfehler when the file cannot be
// opened for input.
std::string datei_text(const std::string& pfad, std::size_t grenze);

// Whether a file can be opened for input.
bool datei_vorhanden(const std::string& pfad);

// Puts `inhalt` in the place of `pfad` so that the target is at every moment either the old file
// or the complete new one, also across a kill or a power cut: the text goes to a file of a unique
// name in the target's folder, is synced and then renamed over the target. A symbolic link is
// written through (the link stays), and the new file takes the permissions of the old one.
// Temporary files that killed writers left beside the target are removed. Throws Laufzeitfehler
// (DateiZugriff) with the system's reason on a fault; the target is then untouched.
void datei_ersetzen(const std::string& pfad, const std::string& inhalt);
