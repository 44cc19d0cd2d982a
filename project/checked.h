// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/FatalError.h"

#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

// Stores that trap instead of wrapping or carrying garbage on: the record holds 16-bit integers
// and 32-bit floats, and a value that does not fit is a fatal fault of the run.

// The German name of a quantity that the stores below are given in English; a name without
// one (a field's own name) stays as it is.
inline std::string groesse_deutsch(const char* what) {
    static const std::pair<const char*, const char*> NAMEN[] = {
        {"effective heat capacity Cwirk", "wirksame Wärmekapazität Cwirk"},
        {"time constant tau", "Zeitkonstante tau"},
        {"utilisation factor", "Ausnutzungsgrad"},
        {"free-running temperature", "freie Raumtemperatur"},
        {"controlled temperature", "geregelte Raumtemperatur"},
        {"latitude of the station", "geographische Breite der Station"},
        {"longitude correction of the station", "Längenkorrektur der Station"},
        {"station temperature", "Außentemperatur der Station"},
        {"direct radiation", "Direktstrahlung"},
        {"diffuse radiation", "Diffusstrahlung"},
        {"heating limit temperature", "Heizgrenztemperatur"},
    };
    for (const auto& [englisch, deutsch] : NAMEN) {
        if (std::string_view(what) == englisch) {
            return deutsch;
        }
    }
    return what;
}

// A whole number into a 16-bit field; throws when it lies outside -32768..32767.
inline int16_t to_i16(double value, const char* what) {
    if (!(value >= -32768.0 && value <= 32767.0)) {
        throw FatalError(std::string("Overflow: ") + what + " = " + std::to_string(value) +
                             " does not fit a 16-bit integer.",
                         "Überlauf: " + groesse_deutsch(what) + " = " + std::to_string(value) +
                             " passt in keine 16-Bit-Ganzzahl.");
    }
    return static_cast<int16_t>(value);
}

// A value into a 32-bit float field; throws on NaN, infinity or a value beyond the float range.
inline float to_f32(double value, const char* what) {
    const float stored = static_cast<float>(value);
    if (!std::isfinite(stored)) {
        throw FatalError(std::string("Arithmetic fault: ") + what + " is " +
                             (std::isnan(value) ? "not a number" : "infinite or too large") + ".",
                         "Rechenfehler: " + groesse_deutsch(what) + " ist " +
                             (std::isnan(value) ? "keine Zahl" : "unendlich oder zu groß") + ".");
    }
    return stored;
}
