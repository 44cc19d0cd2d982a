// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/Balkenrahmen.h"

#include "charts/Surface.h"
#include "project/Zahltext.h"
#include "project/c_glob.h"

double balken_y(const Achsenmass& rahmen, double wert, double stufe, int n) {
    return (rahmen.achse_y - 1) - (wert / stufe) * rahmen.hoehe / n;
}

void achsenrahmen(Surface& s, const Achsenmass& rahmen, double x_ende, int n, double stufe,
                  const std::string& einheit, double einheit_x, const ChartTheme& thema) {
    s.Cls();
    s.FontName = thema.schrift;
    s.FontSize = thema.schriftgroesse;
    s.FontBold = false;
    s.Line(30, rahmen.achse_y, 30, rahmen.oben_y, thema.achsen);
    s.Line(30, rahmen.achse_y, x_ende, rahmen.achse_y, thema.achsen);
    // Ticks are computed in floating point and stand at fractional rows.
    for (int i = 0; i <= n; ++i) {
        const double y = rahmen.achse_y - i * rahmen.hoehe / n;
        s.Line(27, y, 30, y, thema.achsen);
    }
    if (!einheit.empty()) {
        s.CurrentX = einheit_x;
        s.CurrentY = 0;
        s.Print(einheit);
    }
    for (int i = 0; i <= n; ++i) {
        const double y = rahmen.achse_y - i * rahmen.hoehe / n;
        // The plain conversion puts a blank before a number that is not negative, and the blank
        // counts in the width.
        rechtsbuendig(s, zahl_str(i * stufe), 25, y - 5);
    }
}

void monatsnamen(Surface& s, const Projekt& p, double y) {
    for (int m = 1; m <= 12; ++m) {
        zentriert(s, p.Monat[m].Kurz, 47 + 24 * (m - 1), y);
    }
}

void rechtsbuendig(Surface& s, const std::string& text, double x, double y) {
    s.CurrentX = x - s.TextWidth(text);
    s.CurrentY = y;
    s.Print(text);
}

void zentriert(Surface& s, const std::string& text, double x, double y) {
    s.CurrentX = x - s.TextWidth(text) / 2;
    s.CurrentY = y;
    s.Print(text);
}

double stufe_waehlen(double M, std::initializer_list<Stufengrenze> tabelle, double sonst) {
    for (const Stufengrenze& zeile : tabelle) {
        if (M < zeile.grenze) {
            return zeile.stufe;
        }
    }
    return sonst;
}
