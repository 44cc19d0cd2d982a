// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/numerisch.h"

#include "project/zahlwandlung.h"

#include <string>

double numerisch_lesen(std::string_view text) {
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

std::string_view spalten(std::string_view zeile, std::size_t von, std::size_t bis) {
    if (zeile.size() < von) {
        return {};
    }
    return zeile.substr(von - 1, bis - von + 1);
}
