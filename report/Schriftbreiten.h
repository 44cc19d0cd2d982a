// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

// The advance widths of the report's face (Times New Roman, by the metric-compatible Liberation
// Serif) for the code points U+0020..U+00FF at index code point - 0x20, in font units.
extern const std::array<uint16_t, 224> SCHRIFT_BREITEN;
// Font units per em of those widths.
extern const int SCHRIFT_EINHEITEN;
