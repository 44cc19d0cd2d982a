// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/numerisch.h"

#include "project/zahlwandlung.h"

#include <string>

namespace {

// The number with blanks inside it ("1 2.5" reads 12.5): gathered without them.
double mit_blanks_lesen(std::string_view text) {
    std::string zahl;
    bool ziffern = false;
    bool punkt = false;
    for (const char c : text) {
        if (c == ' ' || c == '\t') {
            continue;
        }
        if ((c == '-' || c == '+') && zahl.empty()) {
            zahl += c;
        } else if (c >= '0' && c <= '9') {
            zahl += c;
            ziffern = true;
        } else if (c == '.' && !punkt) {
            zahl += c;
            punkt = true;
        } else {
            break;
        }
    }
    if (!ziffern) {
        return 0;
    }
    const char* anfang = zahl.data();
    if (*anfang == '+') {
        ++anfang;
    }
    double wert = 0;
    zahlwandlung::lesen(anfang, zahl.data() + zahl.size(), wert);
    return wert;
}

// The first place from `ab` on that holds no blank or tab, or the end. (A loop: the library's
// find_first_not_of asks memchr once per character.)
std::size_t nach_blanks(std::string_view text, std::size_t ab) {
    while (ab < text.size() && (text[ab] == ' ' || text[ab] == '\t')) {
        ++ab;
    }
    return ab;
}

} // namespace

double numerisch_lesen(std::string_view text) {
    // A station file's fields are blanks and then one unbroken number: read in place. Anything
    // else takes the general path.
    std::size_t i = nach_blanks(text, 0);
    if (i == text.size()) {
        return 0;
    }
    const std::size_t anfang = text[i] == '+' ? i + 1 : i;
    if (text[i] == '-' || text[i] == '+') {
        ++i;
    }
    bool ziffern = false;
    bool punkt = false;
    for (; i < text.size(); ++i) {
        const char c = text[i];
        if (c >= '0' && c <= '9') {
            ziffern = true;
        } else if (c == '.' && !punkt) {
            punkt = true;
        } else if (c == ' ' || c == '\t') {
            // Blanks end the number unless more of it follows them.
            const std::size_t j = nach_blanks(text, i);
            if (j < text.size() &&
                ((text[j] >= '0' && text[j] <= '9') || (text[j] == '.' && !punkt))) {
                return mit_blanks_lesen(text);
            }
            break;
        } else {
            break;
        }
    }
    if (!ziffern) {
        return mit_blanks_lesen(text);
    }
    double wert = 0;
    zahlwandlung::lesen(text.data() + anfang, text.data() + i, wert);
    return wert;
}

std::string_view spalten(std::string_view zeile, std::size_t von, std::size_t bis) {
    if (zeile.size() < von) {
        return {};
    }
    return zeile.substr(von - 1, bis - von + 1);
}
