// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/Geometriebilder.h"

#include "charts/Surface.h"
#include "planes/E_Geometrie.h"
#include "project/c_glob.h"

#include <algorithm>
#include <cmath>

void AV_diagramm(const Projekt& p, Surface& s, const ChartTheme& t) {
    const int y = av_balken_y(p);
    s.FilledBox(44, 123, 50, y, t.heizen);
    if (y > 7) {
        s.FilledBox(44, 7, 50, y - 1, WHITE);
    }
}

void Lageplan_zeichnen(const Projekt& p, Surface& s, const ChartTheme& t) {
    // The plane's own factor from degrees to radians.
    const double d = 0.01745;
    const double o = p.orient;
    const double cx = s.ScaleWidth() / 2.0, cy = s.ScaleHeight() / 2.0;
    struct Pkt {
        double x, y;
    };
    const Pkt A{-std::cos((o + 45) * d) * 28, -std::sin((o + 45) * d) * 28};
    const Pkt B{std::cos((o - 45) * d) * 28, std::sin((o - 45) * d) * 28};
    const Pkt C{(A.x - B.x) / 3, (A.y - B.y) / 3};
    const auto neg = [](Pkt q) { return Pkt{-q.x, -q.y}; };
    const auto linie = [&](Pkt a, Pkt b, Rgb farbe) {
        s.Line(cx + a.x, cy + a.y, cx + b.x, cy + b.y, farbe);
    };

    s.Cls();
    linie(A, B, t.gitter);
    linie(B, neg(A), t.gitter);
    linie(neg(A), neg(B), t.gitter);
    linie(neg(B), A, t.gitter);
    linie(neg(C), C, t.gitter);
    linie(C, A, t.gitter);
    linie(C, neg(B), t.gitter);
    linie(neg(C), B, t.gitter);
    linie(neg(C), neg(A), t.gitter);

    const Pkt H{-std::sin(o * d) * 14, std::cos(o * d) * 14};
    linie(H, neg(H), t.heizen);
    linie(H, Pkt{H.x - std::sin((45 - o) * d) * 14, H.y - std::cos((45 - o) * d) * 14}, t.heizen);
    linie(H, Pkt{H.x + std::sin((o + 45) * d) * 14, H.y - std::cos((o + 45) * d) * 14}, t.heizen);
}
