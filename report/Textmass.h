// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>

// Measures a text (UTF-8) in the report font, Times New Roman 10 pt, in pixels of a 96 dpi
// surface. The desktop measures with the toolkit's font metrics, the command line with the
// face's own width table; both give the same widths to within rounding.
using Textmass = std::function<double(const std::string& text)>;

// The wrap width of the report's value column, in the measurer's pixels: the room from the tab
// stop at 4300 twips to the right margin.
constexpr double REPORT_BREITE = 280;

// The width of `text` (UTF-8) in Times New Roman at `punkte` points on a 96 dpi surface, from
// the face's advance widths without kerning. A code point beyond U+00FF counts as wide as "n".
double times_breite(const std::string& text, double punkte = 10);
