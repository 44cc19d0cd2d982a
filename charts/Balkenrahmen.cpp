// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/Balkenrahmen.h"

#include "charts/Surface.h"
#include "project/Zahltext.h"
#include "project/c_glob.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

// The right end of the axis numbers, left of the ticks.
constexpr double ZAHLEN_RECHTS = 25;

} // namespace

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
    // The plain conversion puts a blank before a number that is not negative, and the blank
    // counts in the width: it may stand left of the surface, the digits may not. Where the
    // digits of the widest number don't fit left of the ticks (five digits of cooling degree
    // hours), all numbers lose the blank and take the smaller size that fits, so that the axis
    // reads alike.
    std::vector<std::string> zahlen;
    double ziffern = 0;
    for (int i = 0; i <= n; ++i) {
        zahlen.push_back(zahl_str(i * stufe));
        const std::string& z = zahlen.back();
        ziffern = std::max(ziffern, s.TextWidth(z.substr(z.find_first_not_of(' '))));
    }
    const double groesse = s.FontSize;
    if (ziffern > ZAHLEN_RECHTS) {
        for (std::string& z : zahlen) {
            z.erase(0, z.find_first_not_of(' '));
        }
        s.FontSize = groesse * ZAHLEN_RECHTS / ziffern;
    }
    for (int i = 0; i <= n; ++i) {
        const double y = rahmen.achse_y - i * rahmen.hoehe / n;
        rechtsbuendig(s, zahlen[static_cast<std::size_t>(i)], ZAHLEN_RECHTS, y - 5);
    }
    s.FontSize = groesse;
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
