// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/Drucker.h"

void Drucker::Print(const std::string& text, bool weiter) {
    draw_text(CurrentX, CurrentY, text);
    if (weiter) {
        CurrentX += TextWidth(text);
        return;
    }
    CurrentY += TextHeight(text);
    CurrentX = 0;
}

void Drucker::NewPage() {
    new_page();
    CurrentX = 0;
    CurrentY = 0;
}
