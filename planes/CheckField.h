// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/Laufzeitfehler.h"

#include <functional>
#include <string>

// A check field of the platform: value 0 or 1. Setting a different value fires the click
// handler; setting the same value fires nothing.
class CheckField {
public:
    // 0 cleared, 1 set.
    int Value() const { return wert_; }
    // Sets the value; a value other than 0 or 1 is an invalid property value (Laufzeitfehler).
    void setze(int wert) {
        if (wert != 0 && wert != 1) {
            throw Laufzeitfehler(Laufzeitfehler::UngueltigerWert,
                                 "Invalid property value: check value " + std::to_string(wert));
        }
        const int neu = wert;
        if (neu == wert_) {
            return;
        }
        wert_ = neu;
        if (Click) {
            Click();
        }
    }
    // The user's click toggles the value.
    void klicken() { setze(1 - wert_); }

    bool Enabled = true;         // whether the user may click it
    bool Visible = true;         // whether it is shown
    std::function<void()> Click; // the click handler

private:
    int wert_ = 0;
};
