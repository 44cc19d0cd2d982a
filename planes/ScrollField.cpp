// SPDX-License-Identifier: GPL-3.0-or-later
#include "planes/ScrollField.h"

#include "project/Laufzeitfehler.h"

#include <algorithm>
#include <cmath>
#include <string>

ScrollField::ScrollField(int16_t min, int16_t max, int16_t klein, int16_t gross)
    : Min(min), Max(max), SmallChange(klein), LargeChange(gross), wert_(min) {}

void ScrollField::setze(double position) {
    // An integer property takes a value by rounding half to even.
    const double gerundet = std::nearbyint(position);
    if (!(gerundet >= -32768.0 && gerundet <= 32767.0)) {
        throw Laufzeitfehler(Laufzeitfehler::Ueberlauf,
                             "Overflow: scroll position " + std::to_string(position));
    }
    if (gerundet < Min || gerundet > Max) {
        throw Laufzeitfehler(Laufzeitfehler::UngueltigerWert,
                             "Invalid property value: scroll position " +
                                 std::to_string(static_cast<int>(gerundet)) + " outside " +
                                 std::to_string(Min) + ".." + std::to_string(Max));
    }
    const auto neu = static_cast<int16_t>(gerundet);
    if (neu == wert_) {
        return;
    }
    wert_ = neu;
    if (Change) {
        Change();
    }
}

void ScrollField::pfeil(int richtung) {
    schieben(richtung * SmallChange);
}

void ScrollField::seite(int richtung) {
    schieben(richtung * LargeChange);
}

void ScrollField::schieben(int schritt) {
    const int lo = std::min<int>(Min, Max), hi = std::max<int>(Min, Max);
    setze(std::clamp(wert_ + schritt, lo, hi));
}
