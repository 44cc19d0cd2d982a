// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/Diagrammtexte.h"
#include "print/Druckdiagramme.h"
#include "print/Drucker.h"
#include "print/Drucktext.h"
#include "project/Zahlformat.h"
#include "project/c_glob.h"

#include <cmath>

namespace {

// Degrees to radians, the factor of the plan on the geometry plane.
constexpr double GRAD = 0.01745;

struct Punkt {
    double x, y;
};

Punkt operator-(Punkt a) {
    return {-a.x, -a.y};
}

} // namespace

void Diagramm_Orientierung(Drucker& d, const Projekt& p) {
    const double cx = d.ScaleWidth() / 2 + 15, cy = 75;
    const double o = p.orient;
    const Punkt A{-std::cos((o + 45) * GRAD) * 9, -std::sin((o + 45) * GRAD) * 9};
    const Punkt B{std::cos((o - 45) * GRAD) * 9, std::sin((o - 45) * GRAD) * 9};
    const Punkt C{(A.x - B.x) / 3, (A.y - B.y) / 3};
    auto linie = [&](Punkt a, Punkt b, Rgb farbe) {
        d.Line(cx + a.x, cy + a.y, cx + b.x, cy + b.y, farbe);
    };
    // Outline, then the ridge and the hips a third of a side inside.
    linie(A, B, BLACK);
    linie(B, -A, BLACK);
    linie(-A, -B, BLACK);
    linie(-B, A, BLACK);
    linie(-C, C, BLACK);
    linie(C, A, BLACK);
    linie(C, -B, BLACK);
    linie(-C, B, BLACK);
    linie(-C, -A, BLACK);
    // The south arrow in red, its head at H.
    const Punkt H{-std::sin(o * GRAD) * 4.5, std::cos(o * GRAD) * 4.5};
    linie(H, -H, DRUCK_HEIZEN);
    linie(H, {H.x - std::sin((45 - o) * GRAD) * 4.5, H.y - std::cos((45 - o) * GRAD) * 4.5},
          DRUCK_HEIZEN);
    linie(H, {H.x + std::sin((o + 45) * GRAD) * 4.5, H.y - std::cos((o + 45) * GRAD) * 4.5},
          DRUCK_HEIZEN);

    // The letters of the facades, 14 mm out from the centre in their turned directions.
    d.FontSize = 10;
    const Punkt sued{-std::sin(o * GRAD), std::cos(o * GRAD)};
    const Punkt west{-std::cos(o * GRAD), -std::sin(o * GRAD)};
    const struct {
        const char* text;
        Punkt richtung;
    } buchstaben[] = {
        {"N", -sued}, {"S", sued}, {"W", west}, {p.Sprache == "e" ? "E" : "O", -west}};
    for (const auto& b : buchstaben) {
        const double x = cx + b.richtung.x * 14, y = cy + b.richtung.y * 14;
        drucken_bei(d, x - d.TextWidth(b.text) / 2, y - d.TextHeight(b.text) / 2, b.text);
    }
}

namespace {

// The letter of the west side stands this far left of the reference point.
constexpr double W_LINKS = 3;

double bezugspunkt_x(const Drucker& d) {
    return d.ScaleWidth() - 25 - 31.2;
}

} // namespace

double skizze_links(const Drucker& d) {
    return bezugspunkt_x(d) - W_LINKS;
}

void Zeichnung_Haus(Drucker& d, const Projekt& p, char dezimal) {
    const double X = bezugspunkt_x(d), Y = 57;
    auto linie = [&](double x1, double y1, double x2, double y2) {
        d.Line(X + x1, Y + y1, X + x2, Y + y2, BLACK);
    };
    auto text = [&](double x, double y, const std::string& t) { drucken_bei(d, X + x, Y + y, t); };

    d.FontSize = 12;
    d.FontUnderline = true;
    drucken_bei(d, X, 50, sprachtext(p.Sprache, "Skizze:", "Sketch:"));
    d.FontUnderline = false;

    // Body: the south front, the west side seen at an angle.
    d.Box(X + 12, Y + 23.8, X + 31.2, Y + 35, BLACK);
    linie(0.8, 17.4, 0.8, 28.6);
    linie(0.8, 28.6, 12, 35);
    linie(0.8, 17.4, 12, 23.8);
    // Roof.
    linie(10.4, 7.8, 21.6, 14.2);
    linie(0.8, 17.4, 10.4, 7.8);
    linie(12, 23.8, 21.6, 14.2);
    linie(0.8, 17.4, 6.6, 11.4);
    linie(12, 23.8, 6.6, 11.4);
    linie(6.6, 11.4, 25.8, 11.4);
    linie(31.2, 23.8, 25.8, 11.4);

    d.FontSize = 7;
    const auto flaeche = [&](double wert) { return format_muster(wert, "0.0", dezimal) + " m²"; };
    text(14.4, 26.4, sprachtext(p.Sprache, "Süd-Fassade", "south facade"));
    text(20, 29.1, flaeche(p.f_sfa));
    text(1.6, 21.3, sprachtext(p.Sprache, "West-", "west"));
    text(1.6, 24, sprachtext(p.Sprache, "Fassade", "facade"));
    text(1.6, 26.7, flaeche(p.f_wfa));
    // Lengths: l along the front, b along the side, h up the front's right edge.
    const auto laenge = [&](double wert) { return format_muster(wert, "0.0", dezimal) + " m"; };
    text(18, 35.5, laenge(p.l));
    text(-4, 32, laenge(p.b));
    text(31.8, 28.4, laenge(p.h));
    text(21, 38.5, "S");
    text(-W_LINKS, 20, "W");
}
