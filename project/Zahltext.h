// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

// The plain number-to-text conversion of a stored value: at most seven significant digits, no
// zero before the decimal mark, an exponent form "1E-05" for very small or large values. Str
// puts a blank before a value that is not negative (" 5.2", " .2", "-15") and always uses a
// point; the display form has no blank and takes the decimal mark given.
std::string zahl_str(double wert);
std::string zahl_text(double wert, char dezimal);
