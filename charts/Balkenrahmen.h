// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The frame shared by the bar charts: axes, ticks, axis numbers, month labels and the mapping
// of a value to the top of its bar.

#include "charts/ChartTheme.h"

#include <initializer_list>
#include <string>

class Surface;
struct Projekt;

// Where an axis frame stands, pixels from the top: the horizontal axis, the top of the
// vertical axis and the height that the top of the scale (n steps) spans.
struct Achsenmass {
    double achse_y;
    double oben_y;
    double hoehe;
};
// The balance and hour charts: axis at 117, ticks up to 117 - 99.
constexpr Achsenmass BILANZRAHMEN{117, 17, 99};
// The lower frame of the cooling charts: axis at 110, ticks up to 110 - 89.
constexpr Achsenmass KUEHLRAHMEN{110, 20, 89};

// The top of a bar of `wert` on a scale of n steps of `stufe`: bars stand on the row one above
// the axis (116 or 109), so the tick at the same value lies one pixel lower.
double balken_y(const Achsenmass& rahmen, double wert, double stufe, int n);

// The frame: Cls, the chart font, the vertical axis at x 30, the horizontal axis to `x_ende`,
// n + 1 ticks from x 27 to 30, the unit label `einheit` at (einheit_x, 0) unless it is empty,
// and the axis numbers i * stufe right-aligned at x 25 in the plain number-to-text form.
void achsenrahmen(Surface& s, const Achsenmass& rahmen, double x_ende, int n, double stufe,
                  const std::string& einheit, double einheit_x, const ChartTheme& thema);

// The twelve short month names centred under their columns, at 47 + 24 (m - 1), top at `y`.
void monatsnamen(Surface& s, const Projekt& p, double y);

// A text whose right end stands at x, top at y; and one centred on x.
void rechtsbuendig(Surface& s, const std::string& text, double x, double y);
void zentriert(Surface& s, const std::string& text, double x, double y);

// Left edge of the column of month m, 1..12: 35 + 24 (m - 1).
inline double monatsspalte(int m) {
    return 35 + 24 * (m - 1);
}

// One row of a scale table: a largest value below `grenze` takes `stufe`.
struct Stufengrenze {
    double grenze;
    double stufe;
};
// The step of the first row whose limit M stays below, else `sonst`. The limits are strict:
// an M of exactly a limit takes the next row. A not-a-number M takes `sonst`.
double stufe_waehlen(double M, std::initializer_list<Stufengrenze> tabelle, double sonst);
