// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/FatalError.h"

#include <cmath>
#include <cstdint>
#include <string>

// Stores that trap instead of wrapping or carrying garbage on: the record holds 16-bit integers
// and 32-bit floats, and a value that does not fit is a fatal fault of the run.

// A whole number into a 16-bit field; throws when it lies outside -32768..32767.
inline int16_t to_i16(double value, const char* what) {
    if (!(value >= -32768.0 && value <= 32767.0)) {
        throw FatalError(std::string("Overflow: ") + what + " = " + std::to_string(value) +
                         " does not fit a 16-bit integer.");
    }
    return static_cast<int16_t>(value);
}

// A value into a 32-bit float field; throws on NaN, infinity or a value beyond the float range.
inline float to_f32(double value, const char* what) {
    const float stored = static_cast<float>(value);
    if (!std::isfinite(stored)) {
        throw FatalError(std::string("Arithmetic fault: ") + what + " is " +
                         (std::isnan(value) ? "not a number" : "infinite or too large") + ".");
    }
    return stored;
}
