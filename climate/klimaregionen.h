// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The twelve German climate regions as the climate plane shows them: the list text, the two lines
// of the hover label, and the reference pixel of the German map whose colour stands for the
// region. The texts are German in both languages of the program.

#include <string>

// Number of climate regions.
constexpr int KLIMAREGIONEN = 12;

struct Klimaregion {
    const char* text;   // row of the region list, two leading blanks for 1 to 9
    const char* zeile1; // hover label, first line
    const char* zeile2; // hover label, second line
    int x, y;           // reference pixel on the German map, pixels from the top left
};

// Region i = 1..12; throws std::out_of_range for any other number.
const Klimaregion& klimaregion(int i);

// The map picture of the German map, relative to the program folder: region 1..12 highlighted,
// 0 for none.
std::string klimakarte(int region);
