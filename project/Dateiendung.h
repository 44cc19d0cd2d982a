// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

// The extension of a dialog filter such as "VELM Dateien (*.vel)": ".vel"; empty for "*.*" or a
// filter without a pattern.
std::string filterendung(const std::string& filtername);

// A path whose file name has no point gets the extension of the chosen filter; any other path
// stays as it is.
std::string endung_ergaenzen(const std::string& pfad, const std::string& filtername);

// The folder of the path's file, or `sonst` when the path names no folder.
std::string ordner_von(const std::string& pfad, const std::string& sonst);
