// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The buildings the layout checks draw: the new project and the variants whose texts run
// longest or whose pictures change shape.

#include "project/c_glob.h"

#include <string>
#include <vector>

struct Layoutfall {
    const char* name;
    void (*aendern)(Projekt&);
};

// The new project, a heated attic with each ridge, all walls adjoining, a heat pump, an extreme
// building, a large cooling load and the longest climate region.
const std::vector<Layoutfall>& layoutfaelle();

// A placed text: its box and the text itself, in the units of its drawing.
struct Textfeld {
    double x1, y1, x2, y2;
    std::string text;
};

// The box of `text` at (x, y) with `zeichen` per ordinary character and `zeile` high; blanks at
// either end take no room. An all-blank text gives an empty box (x1 == x2).
Textfeld textfeld(double x, double y, const std::string& text, double zeichen, double zeile);

// Whether two boxes share more than a sliver (`toleranz` each way): texts that only touch pass.
bool ueberlappen(const Textfeld& a, const Textfeld& b, double toleranz);
