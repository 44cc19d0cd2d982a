// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <charconv>

// Numbers to text and back, free of the locale, the same in every build. The standard library's
// floating-point to_chars / from_chars are used where the library has them; the browser build's
// library lacks them and takes the portable path, which writes and reads the same texts.
namespace zahlwandlung {

// The shortest text that reads back as the same float, in the fixed or the exponent form,
// whichever is shorter ("0.001", "1e-04", "1.5e+09").
std::to_chars_result schreiben(char* erster, char* letzter, float wert);
// The fixed, exponent or general form with the given precision, as printf's %f, %e and %g.
std::to_chars_result schreiben(char* erster, char* letzter, double wert, std::chars_format form,
                               int genauigkeit);
// A decimal number "[-]ziffern[.ziffern][e[+|-]ziffern]" from the start of the range; no blank,
// no plus sign. A value beyond the double range (or a nonzero one below it) is out of range and
// leaves `wert` as it was.
std::from_chars_result lesen(const char* erster, const char* letzter, double& wert);

// The same without the standard library's conversions; chosen by the browser build, compared
// with the standard library by the tests.
namespace portabel {
std::to_chars_result schreiben(char* erster, char* letzter, float wert);
std::to_chars_result schreiben(char* erster, char* letzter, double wert, std::chars_format form,
                               int genauigkeit);
std::from_chars_result lesen(const char* erster, const char* letzter, double& wert);
} // namespace portabel

} // namespace zahlwandlung
