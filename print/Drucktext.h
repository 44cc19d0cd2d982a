// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

class Drucker;

// Breaks `text` into lines for a column `breite` mm wide, measured with the printer's
// TextWidth in its current font, into `ZeilenListe` (cleared first). A text narrower than the
// column is the one entry and stays in `text`. A wider one is cut after every "-" and every
// blank and the pieces are joined again while a pair stays narrower than the column; a piece
// ending in "- " loses those two characters when it takes in the next one, unless it begins
// with "sowie" or "und". The wider text is consumed: `text` is empty afterwards. A word without
// a blank stays whole and may run past the column.
void ZeilenUmbruch(const Drucker& d, std::string& text, double breite,
                   std::vector<std::string>& ZeilenListe);

// The value by the pattern "0", "0.0" or "0.00" (`stellen` 0, 1 or 2) with the decimal mark
// `dezimal`, its right end at x `anker` mm, on the row CurrentY; the position stays on the row.
void DruckeWert(Drucker& d, double wert, double anker, int stellen, char dezimal);

// The text with its right end at x `anker` mm, on the row CurrentY; the position stays on the
// row. What follows a "^" in the text is printed raised in a smaller font (7/10 of the size),
// as the "2" of "m^2".
void DruckeText(Drucker& d, const std::string& text, double anker);

// The text centred on the page laid out 200 mm wide, on the row CurrentY, then the next row.
void zentriert_drucken(Drucker& d, const std::string& text);

// The text with its left end at x mm, top at y mm; the position goes to the next row.
void drucken_bei(Drucker& d, double x, double y, const std::string& text);
