// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The caption tables that lay English over a window: for each window the English text of every
// control whose German caption is the window's design, in the order of the design. A row names
// its control and its German caption where they are fixed; a row with an empty control name is
// found by its German caption, and a row with an empty German caption too is left to the
// window, which knows which of its controls it is.

#include <string_view>
#include <vector>

struct Beschriftung {
    std::string_view Steuerelement; // control name, "Name(i)" for an array member; may be empty
    std::string_view Deutsch;       // the design's German caption; may be empty
    std::string_view Englisch;      // the English caption, as it stands
};

// The table of the window `fenster` ("Haupt", "E_Geometrie", ...); empty for a window without
// one.
const std::vector<Beschriftung>& beschriftungen(std::string_view fenster);

// The windows that have a table.
const std::vector<std::string_view>& uebersetzte_fenster();
