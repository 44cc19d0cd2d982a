// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/import/zahltext.h"

#include "project/zahlwandlung.h"

#include <cmath>
#include <cstdio>

namespace {

// A plain decimal: [sign] digits [. digits] or [sign] . digits, then [e|E [sign] digits].
bool ist_dezimalzahl(std::string_view s) {
    std::size_t i = 0;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) {
        ++i;
    }
    std::size_t ziffern = 0;
    while (i < s.size() && s[i] >= '0' && s[i] <= '9') {
        ++i;
        ++ziffern;
    }
    if (i < s.size() && s[i] == '.') {
        ++i;
        while (i < s.size() && s[i] >= '0' && s[i] <= '9') {
            ++i;
            ++ziffern;
        }
    }
    if (ziffern == 0) {
        return false;
    }
    if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
        ++i;
        if (i < s.size() && (s[i] == '+' || s[i] == '-')) {
            ++i;
        }
        std::size_t exponent = 0;
        while (i < s.size() && s[i] >= '0' && s[i] <= '9') {
            ++i;
            ++exponent;
        }
        if (exponent == 0) {
            return false;
        }
    }
    return i == s.size();
}

// The value of a text that passed ist_dezimalzahl; false when it does not fit a double.
bool dezimal_wert(std::string_view s, double& wert) {
    const char* anfang = s.data();
    const char* ende = s.data() + s.size();
    if (anfang != ende && *anfang == '+') {
        ++anfang;
    }
    double w = 0;
    const auto [zeiger, fehler] = zahlwandlung::lesen(anfang, ende, w);
    if (fehler != std::errc() || zeiger != ende || !std::isfinite(w)) {
        return false;
    }
    wert = w;
    return true;
}

} // namespace

double runden_gerade(double wert, int stellen) {
    double faktor = 1;
    for (int i = 0; i < stellen; ++i) {
        faktor *= 10;
    }
    const double skaliert = wert * faktor;
    // nearbyint rounds halves to even in the default rounding mode.
    const double r = std::nearbyint(skaliert) / faktor;
    return r == 0 ? 0.0 : r;
}

std::string zahl_als_text(double wert) {
    if (wert == 0 || !std::isfinite(wert)) {
        return " 0";
    }
    char puffer[40];
    std::snprintf(puffer, sizeof puffer, "%.15G", wert);
    std::string text = puffer;
    std::string aus = wert < 0 ? "-" : " ";
    std::size_t i = wert < 0 ? 1 : 0;
    if (text.compare(i, 2, "0.") == 0) {
        ++i;
    }
    aus += text.substr(i);
    return aus;
}

std::string RealToString(double wert) {
    std::string text = zahl_als_text(wert);
    if (text.compare(0, 2, " .") == 0) {
        text.insert(1, "0");
    } else if (text.compare(0, 2, "-.") == 0) {
        text.insert(1, "0");
    }
    return text;
}

void StringToReal(std::string_view text, double& wert, bool& ok, int Dezimalzeichen) {
    std::size_t anfang = 0;
    while (anfang < text.size() && static_cast<unsigned char>(text[anfang]) <= ' ') {
        ++anfang;
    }
    std::size_t ende = text.size();
    while (ende > anfang && text[ende - 1] == ' ') {
        --ende;
    }
    std::string s(text.substr(anfang, ende - anfang));
    if (Dezimalzeichen == 1) {
        for (char& c : s) {
            if (c == ',') {
                c = '.';
            }
        }
    }
    wert = 0;
    ok = ist_dezimalzahl(s) && dezimal_wert(s, wert);
    if (!ok) {
        wert = 0;
    }
}

bool zahl_streng(std::string_view text, double& wert) {
    std::size_t anfang = 0;
    while (anfang < text.size() && (text[anfang] == ' ' || text[anfang] == '\t')) {
        ++anfang;
    }
    std::size_t ende = text.size();
    while (ende > anfang && (text[ende - 1] == ' ' || text[ende - 1] == '\t')) {
        --ende;
    }
    const std::string_view s = text.substr(anfang, ende - anfang);
    return ist_dezimalzahl(s) && dezimal_wert(s, wert);
}
