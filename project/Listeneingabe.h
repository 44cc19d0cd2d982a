// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/Textkanal.h"

#include <cstdint>
#include <string>
#include <string_view>

// The tolerant list input of a project file: each value is what stands after the leading blanks up
// to a comma or the end of the line, and the value after a comma is read from the same line.
class Listeneingabe {
public:
    explicit Listeneingabe(std::string_view text);

    // The next value as text; a quoted text loses its quotes. Throws Laufzeitfehler (input past
    // end of file) when nothing is left.
    std::string text();
    // The next value as a number: sign, digits, point, exponent; an empty value is
    // 0. Throws Laufzeitfehler for a value that is not a number.
    double zahl();
    // The same, stored in a 32-bit float or a 16-bit integer (rounded half to even); a value
    // that does not fit throws Laufzeitfehler (overflow).
    float f32();
    int16_t i16();

private:
    std::string feld();

    Textkanal kanal_;
};

// A text of the file's 8-bit code page as UTF-8 (a text that is valid UTF-8 stays as it is),
// and back: characters up to U+00FF become single bytes, others stay UTF-8.
std::string text_aus_datei(std::string_view roh);
std::string text_in_datei(std::string_view utf8);
