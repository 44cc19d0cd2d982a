// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>

// A scroll field of the platform: a 16-bit position between Min and Max. Setting the position
// from code fires the change handler only when the position differs; a position outside the
// range is an invalid property value and changes nothing.
class ScrollField {
public:
    // The range and the two steps; a negative step moves against the direction of the click.
    ScrollField(int16_t min, int16_t max, int16_t klein, int16_t gross);

    // The current position, Min..Max.
    int16_t Value() const { return wert_; }
    // Sets the position: `position` is rounded to the nearest integer with ties to the even one.
    // Throws Laufzeitfehler (overflow beyond 16 bits, invalid value outside Min..Max).
    void setze(double position);
    // The user's arrow (richtung +1 towards Max, -1 towards Min) moves by SmallChange, a click
    // in the empty part by LargeChange; the position stops at the range's ends.
    void pfeil(int richtung);
    void seite(int richtung);

    int16_t Min, Max;                 // the range of the position
    int16_t SmallChange, LargeChange; // arrow and page steps, negative against the click
    bool Enabled = true;              // whether the user may move it
    bool Visible = true;              // whether it is shown
    std::function<void()> Change;     // the change handler

private:
    void schieben(int schritt);
    int16_t wert_;
};
