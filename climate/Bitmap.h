// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// A small reader of the map pictures: uncompressed BMP files of 24 or 32 bits per pixel, rows
// bottom-up or top-down. It only serves to read back the colour of a pixel, as the region pick
// of the German map does, without a user interface library.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

struct Bitmap {
    int breite = 0; // pixels
    int hoehe = 0;  // pixels
    // Colour of each pixel, row by row from the top, in the encoding with red in the low byte:
    // red + 256 * green + 65536 * blue.
    std::vector<int32_t> farben;

    // The colour at (x, y), pixels from the top left; -1 outside the picture.
    int32_t farbe(int x, int y) const;
};

// Reads a BMP from memory. A text that is not such a BMP (another format, compressed, a palette,
// a size beyond 16384 pixels a side, data shorter than the header says) throws FatalError with
// `name` and the reason.
Bitmap bitmap_aus_daten(std::string_view daten, const std::string& name);

// Reads a BMP file; a missing file throws FatalError as well.
Bitmap bitmap_lesen(const std::string& pfad);
