// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/Zahltext.h"

#include "project/zahlwandlung.h"

#include <cmath>

namespace {

// Seven significant digits, point as the mark, no leading zero, exponent as "E+07" / "E-05".
std::string sieben_stellen(double wert) {
    if (wert == 0 || !std::isfinite(wert)) {
        return "0";
    }
    char puffer[64];
    // The general form switches to the exponent below 1E-4 and from 1E7 on, as the text
    // conversion of a 32-bit float does.
    const auto ergebnis = zahlwandlung::schreiben(puffer, puffer + sizeof puffer, wert,
                                                  std::chars_format::general, 7);
    std::string text(puffer, ergebnis.ptr);
    const std::size_t e = text.find('e');
    if (e != std::string::npos) {
        text[e] = 'E';
    }
    const bool negativ = text[0] == '-';
    const std::size_t ziffer = negativ ? 1 : 0;
    if (text.compare(ziffer, 2, "0.") == 0) {
        text.erase(ziffer, 1);
    }
    return text;
}

} // namespace

std::string zahl_str(double wert) {
    std::string text = sieben_stellen(wert);
    return text[0] == '-' ? text : " " + text;
}

std::string zahl_text(double wert, char dezimal) {
    std::string text = sieben_stellen(wert);
    for (char& c : text) {
        if (c == '.') {
            c = dezimal;
        }
    }
    return text;
}
