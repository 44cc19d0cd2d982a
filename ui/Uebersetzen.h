// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

class QWidget;

// Lays English over the window `fenster` by the caption table of `name`: a row with a control
// name goes to the child of that object name (a menu entry, button, label, frame), a row with
// only a German caption to the first child still showing that caption, and a row with neither
// to the child whose property "zeile" holds the row's number. Returns how many rows found no
// control.
int fenster_uebersetzen(QWidget& fenster, std::string_view name);
