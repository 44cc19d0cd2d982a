// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/c_sankey.h"

#include <algorithm>
#include <cmath>

namespace {

// The dx and dy of every S-bend of the diagrams.
constexpr int S_DX = 30;
constexpr int S_DY = 10;

} // namespace

double Sankey_Massstab(double wert, double rand, double hoehe) {
    return wert / ((hoehe - 50) - rand);
}

int ganzzahl(double wert) {
    if (std::isnan(wert)) {
        return 0;
    }
    return static_cast<int>(std::floor(std::clamp(wert, -1.0e6, 1.0e6)));
}

void Sankey_Linie(Surface& s, double& x1, double& y1, double& x2, double& y2, Rgb farbe) {
    if (x1 > x2) {
        std::swap(x1, x2);
        std::swap(y1, y2);
    }
    // The platform's line leaves out its end pixel; each case reaches one pixel further. The
    // tests stand each by itself, and exactly one of them holds.
    if (y1 == y2) {
        s.Line(x1, y1, x2 + 1, y2, farbe);
    }
    if (x1 == x2 && y1 < y2) {
        s.Line(x1, y1, x2, y2 + 1, farbe);
    }
    if (x1 == x2 && y1 > y2) {
        s.Line(x1, y1, x2, y2 - 1, farbe);
    }
    if (x1 < x2 && y1 < y2) {
        s.Line(x1, y1, x2 + 1, y2 + 1, farbe);
    }
    if (x1 < x2 && y1 > y2) {
        s.Line(x1, y1, x2 + 1, y2 - 1, farbe);
    }
}

void Sankey_Spitze(Surface& s, double a, double b, double c, double d, Rgb farbe) {
    const int K = ganzzahl(std::fabs(std::hypot(c - a, d - b)) / 2);
    const auto linie = [&](double xa, double ya, double xb, double yb) {
        Sankey_Linie(s, xa, ya, xb, yb, farbe);
    };
    for (int k = 0; k <= K; ++k) {
        if (a == c) {
            linie(a, b - k, a + k, b - k);
            linie(c, d + k, c + k, d + k);
        }
        if (b == d && a < c) {
            linie(a + k, b, a + k, b + k);
            linie(c - k, d, c - k, d + k);
        }
        if (b == d && a > c) {
            linie(c + k, d, c + k, d - k);
            linie(a - k, b, a - k, b - k);
        }
    }
}

void Sankey_Bogen(Surface& s, double cx, double cy, double winkel1, double winkel2, double breite,
                  double r, Rgb bandfarbe) {
    const double pi = 3.14159265;
    const float a1 = static_cast<float>(-(pi * winkel1) / 180);
    const float a2 = static_cast<float>(-(pi * winkel2) / 180);
    // Negative angles make the call a filled pie.
    s.Circle(cx, cy, breite + r, bandfarbe, a1, a2);
    s.FillColor = WHITE;
    s.Circle(cx, cy, r - 1, WHITE);
    s.FillColor = bandfarbe;
}

void Sankey_Schraegband(Surface& s, double x1, double y1, double x2, double y2, int n,
                        Rgb bandfarbe) {
    for (int k = 0; k <= n; ++k) {
        double xa = x1, ya = y1 - k, xb = x2, yb = y2 - k;
        Sankey_Linie(s, xa, ya, xb, yb, bandfarbe);
    }
}

SBogen s_bogen(int b) {
    // Two arcs whose centres lie dx apart across and 2r + b - dy apart along are tangent when
    // dx² + (2r + b - dy)² = (2r + b)².
    const double roh = static_cast<double>(S_DX * S_DX + S_DY * S_DY - 2 * S_DY * b) / (4.0 * S_DY);
    SBogen bogen;
    bogen.r = static_cast<int>(std::nearbyint(std::clamp(roh, -32768.0, 32767.0)));
    bogen.versatz = (2.0 * bogen.r + b) - S_DY;
    // The rounded 3.1416 here is deliberate; the ring sectors use the finer pi.
    bogen.theta = 90 - (std::atan(bogen.versatz / S_DX) * 180) / 3.1416;
    return bogen;
}
