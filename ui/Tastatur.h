// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

class QMenuBar;
class QWidget;

// The Tab order through `bereiche` in the given order; inside each, the controls as they stand
// on the screen: row by row from the top, each row from the left, a frame's controls together
// where the frame stands.
void tab_reihenfolge(const std::vector<QWidget*>& bereiche);

// Every menu title and entry of the bar that has no access key gets one: the first of its
// letters that no neighbour in the same menu uses. The visible text stays as it is.
void zugriffstasten_setzen(QMenuBar& leiste);

// A frame around the focused control of `fenster` for the controls whose style shows no focus
// of its own (the scroll fields).
void fokus_sichtbar_machen(QWidget& fenster);
