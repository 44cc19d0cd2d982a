// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

// A text field of a plane: its text, visibility, place (twips or pixels as the plane uses them)
// and text colour.
struct Label {
    // The text colour: the system's button text, or the label's own background, which hides the
    // text while it keeps its value.
    enum class Farbe { Schaltflaechentext, Hintergrund };

    std::string Caption;
    bool Visible = true;
    int Left = 0, Top = 0;
    Farbe ForeColor = Farbe::Schaltflaechentext;
};
