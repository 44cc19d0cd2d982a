// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Numbers as the import writes and reads them: the standard number-to-text form, rounding to even
// on exact halves, and the tolerant test of a typed number.

#include <string>
#include <string_view>

// `wert` rounded to `stellen` decimals (0..6); an exact half (after scaling by ten to the power
// of `stellen`) goes to the even neighbour. A negative zero comes back as zero.
double runden_gerade(double wert, int stellen);

// The standard number-to-text form of a double-precision value: up to 15 significant digits, a
// leading blank for values not negative, no leading zero before the point (" .5", "-.4"),
// exponent form "1E+15" / "1E-05" beyond that range. (zahl_str of project/Zahltext.h is the form
// of a stored 32-bit value, with seven digits; the import computes in double precision.)
std::string zahl_als_text(double wert);

// zahl_als_text with the zero put back before a leading point: " 0.5", "-0.4".
std::string RealToString(double wert);

// Tests a typed number. Leading characters up to and including the blank (all that compare not
// greater than a blank) and trailing blanks are dropped; with `Dezimalzeichen` 1 every comma
// becomes a point. A sign, digits with at most one point and an exponent make a number: `ok`
// true and `wert` its value. Anything else: `ok` false and `wert` 0.
void StringToReal(std::string_view text, double& wert, bool& ok, int Dezimalzeichen = 0);

// A number of a source file: optional blanks around a plain decimal with sign, point and
// exponent, nothing else. False for empty, partial or non-finite text.
bool zahl_streng(std::string_view text, double& wert);
