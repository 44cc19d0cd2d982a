// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

// A drop-down list of the platform. Setting the selected row from code fires the selection
// handler every time, also for the row already selected. A list starts without a selected row
// (-1); a selection can only be made, not taken back, so that every stored row is one of the
// list's.
class ListField {
public:
    // The selected row, 0..rows - 1, or -1 before the first selection.
    int ListIndex() const { return index_; }
    // Selects a row and fires Click. Throws Laufzeitfehler (invalid value) outside 0..rows - 1.
    void setze_index(int index);
    // The text of the selected row, empty without a selection.
    std::string Text() const;
    // The user typed into the list's text part: fires Change.
    void text_eingeben();

    std::vector<std::string> Eintraege; // the rows, from 0
    bool Visible = true;                // whether it is shown
    bool Enabled = true;                // whether the user may choose
    std::function<void()> Click;        // selection handler
    std::function<void()> Change;       // text change handler

private:
    int index_ = -1;
};
