// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/Surface.h"

void Surface::Cls() {
    clear_pixels();
    CurrentX = 0;
    CurrentY = 0;
}

void Surface::Print(const std::string& text) {
    draw_text(CurrentX, CurrentY, text);
    CurrentY += TextHeight(text);
    CurrentX = 0;
}
