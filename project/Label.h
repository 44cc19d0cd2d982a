// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

// A text field of a plane: its text, visibility, place (twips or pixels as the plane uses them)
// and text colour.
struct Label {
    // The text colour: the system's button text, or the label's own background, which hides the
    // text while it keeps its value.
    enum class Farbe { Schaltflaechentext, Hintergrund };

    std::string Caption;                         // the text shown
    bool Visible = true;                         // whether it is shown
    int Left = 0, Top = 0;                       // place on its plane
    int Height = 0;                              // height in the plane's units
    Farbe ForeColor = Farbe::Schaltflaechentext; // text colour
};
