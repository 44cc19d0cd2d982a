// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/Energiebilder.h"

#include "charts/Balkenrahmen.h"
#include "charts/Stufentabellen.h"
#include "charts/Surface.h"
#include "energy/energie.h"
#include "project/Zahlformat.h"
#include "project/Zahltext.h"
#include "project/c_glob.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace {

constexpr Rgb END_TRAEGER{255, 0, 0};
constexpr Rgb END_HILFSSTROM{255, 128, 0};
constexpr Rgb PRIMAER_TRAEGER{128, 0, 0};
constexpr Rgb PRIMAER_HILFSSTROM{192, 64, 0};
constexpr Rgb GAS{255, 119, 119};
constexpr Rgb OEL{255, 255, 96};
constexpr Rgb HOLZ{232, 170, 96};
constexpr Rgb FERNWAERME{255, 153, 153};
constexpr Rgb BLITZ{255, 128, 0};
constexpr Rgb GRAU{128, 128, 128};

bool ist_strom(const Projekt& p) {
    return p.Energie.Traegername == "Strom";
}

// The size value of a pictogram, at most 100; a value that is not a number draws nothing.
double groesse(double v) {
    return std::isnan(v) ? 0 : std::clamp(v, 0.0, 100.0);
}

// The row of the value v on the chart's scale of three steps S.
double hoehe(double v, double S) {
    return 95 - v / S * 90 / 3;
}

// A lightning flash around (40, 25): its corners lie at multiples of v * 0.06 from there, its
// line grows with v.
void blitz(Surface& s, double v) {
    const double k = v * 0.06;
    s.DrawWidth = static_cast<int>(std::floor(v * 0.02)) + 1;
    s.Line(40 + k, 25 - 4 * k, 40 - k, 25, BLITZ);
    s.Line(40 - k, 25, 40 + k, 25, BLITZ);
    s.Line(40 + k, 25, 40 - k, 25 + 4 * k, BLITZ);
    s.DrawWidth = 1;
}

void gas(Surface& s, double v) {
    // A gas holder: a drum on a base with a dome, growing with r.
    const double r = std::sqrt(v) / 2;
    s.FilledBox(40 - 3 * r, 48 - r, 40 + 3 * r, 48, GAS);
    s.FilledBox(40 - 2 * r, 48 - 4 * r, 40 + 2 * r, 48 - r, GAS);
    s.FillStyle = FillMode::Solid;
    s.FillColor = GAS;
    s.Circle(40, 48 - 4 * r, 2 * r, GAS);
    s.FillStyle = FillMode::Transparent;
}

void oel(Surface& s, double v) {
    s.FilledBox(25, 45, 55, 44 - v * 0.38, OEL);
    s.Box(24, 4, 56, 46, GRAU);
}

void holz(Surface& s, double v) {
    const int n = static_cast<int>(std::floor(std::sqrt(v * 0.56 + 0.25) - 0.5));
    s.FillStyle = FillMode::Solid;
    s.FillColor = HOLZ;
    for (int r = 1; r <= n; ++r) {
        for (int c = 0; c <= n - r; ++c) {
            s.Circle(40 - (n - r) * 4 + c * 8, 45 - (r - 1) * 7, 4, GRAU);
        }
    }
    s.FillStyle = FillMode::Transparent;
}

void fernwaerme(Surface& s, double v) {
    // A heat exchanger box with grey rays of heat on all four sides.
    const double a = v / 5, strahl = v / 10;
    s.FilledBox(40 - a, 28 - a, 40 + a, 28 + a, FERNWAERME);
    s.Line(40 - a - 2 - strahl, 28, 40 - a - 2, 28, GRAU);
    s.Line(40 + a + 2, 28, 40 + a + 2 + strahl, 28, GRAU);
    s.Line(40, 28 - a - 2 - strahl, 40, 28 - a - 2, GRAU);
    s.Line(40, 28 + a + 2, 40, 28 + a + 2 + strahl, GRAU);
}

// Two lines centred over the picture; a line as wide as the picture or wider ("Nah-/Fernwärme:")
// begins at its left edge instead of left of it.
void titel(Surface& s, const std::string& zeile1, const std::string& zeile2) {
    for (const auto& [text, y] : {std::pair{zeile1, 10}, std::pair{zeile2, 30}}) {
        const double breite = s.TextWidth(text);
        s.CurrentX = std::max(0.0, std::min(40 - breite / 2, s.ScaleWidth() - breite));
        s.CurrentY = y;
        s.Print(text);
    }
}

} // namespace

Traegermenge traegermenge(const Projekt& p) {
    const std::string& t = p.Energie.Traegername;
    const double he = p.q_HE_Energietraeger;
    if (t == "Erdgas") {
        return {p.f_nutz * he / 10.4, " m³/a"};
    }
    if (t == "Heizöl") {
        return {p.f_nutz * he / 10.08, " l/a"};
    }
    if (t == "Holz") {
        return {p.f_nutz * he / 4.6, " kg/a"};
    }
    if (t == "Strom") {
        return {p.f_nutz * (static_cast<double>(p.q_HE_Strom) + he), " kWh/a"};
    }
    return {p.f_nutz * he, " kWh/a"};
}

void Monatsverbrauch_zeichnen(const Projekt& p, Surface& s, const Diagrammeinstellung& e) {
    const ChartTheme& t = e.thema;
    const Energiemonate w = energie_monatswerte(p);
    s.Cls();
    s.FontName = t.schrift;
    s.FontSize = t.schriftgroesse;
    s.FontBold = false;
    s.Line(30, 95, 30, 5, t.achsen);
    s.Line(30, 95, 325, 95, t.achsen);
    for (int m = 1; m <= 12; ++m) {
        zentriert(s, p.Monat[m].Kurz, 47 + 24 * (m - 1), 98);
    }
    double M = 0;
    for (int m = 1; m <= 12; ++m) {
        M = std::max(
            {M, static_cast<double>(w.E[m]) + w.H[m], static_cast<double>(w.P[m]) + w.Q[m]});
    }
    const double S = stufe_monatsverbrauch(M);
    // The ticks use 89 against the bars' 90: they sit slightly below the bars' scale.
    for (int i = 0; i <= 3; ++i) {
        const double y = 95 - i * 89.0 / 3;
        s.Line(27, y, 30, y, t.achsen);
    }
    if (3 * S >= 10000) {
        s.FontName = t.sankey_schrift;
        s.FontSize = 6.75;
    }
    s.FilledBox(0, 0, 25, 100, s.BackColor());
    for (int i = 0; i <= 3; ++i) {
        rechtsbuendig(s, zahl_str(i * S), 25, 95 - i * 89.0 / 3 - 5);
    }
    s.FontName = t.schrift;
    s.FontSize = 8.25;

    for (int m = 1; m <= 12; ++m) {
        const double x = 35 + 24 * (m - 1);
        const double E = w.E[m], H = w.H[m], P = w.P[m], Q = w.Q[m];
        if (E > 0) {
            s.FilledBox(x, 95, x + 8, hoehe(E, S), END_TRAEGER);
        }
        if (H > 0) {
            s.FilledBox(x, hoehe(E, S), x + 8, hoehe(E + H, S), END_HILFSSTROM);
        }
        if (P > 0) {
            s.FilledBox(x + 10, 95, x + 18, hoehe(P, S), PRIMAER_TRAEGER);
        }
        if (Q > 0) {
            s.FilledBox(x + 10, hoehe(P, S), x + 18, hoehe(P + Q, S), PRIMAER_HILFSSTROM);
        }
    }
}

void Energietraeger_zeichnen(const Projekt& p, Surface& bild2, Surface& bild3,
                             const Diagrammeinstellung& e) {
    const bool englisch = e.Sprache == "e";
    const std::string& name = p.Energie.Traegername;
    const double he = p.q_HE_Energietraeger;
    const double v = groesse(he / 2);

    for (Surface* s : {&bild2, &bild3}) {
        s->DrawWidth = 1;
        s->Cls();
        s->FontName = e.thema.schrift;
        s->FontSize = e.thema.schriftgroesse;
        s->FontBold = false;
    }

    if (name == "Erdgas") {
        gas(bild2, v);
    } else if (name == "Heizöl") {
        oel(bild2, v);
    } else if (name == "Holz") {
        holz(bild2, v);
    } else if (name == "Nah-/Fernwärme") {
        fernwaerme(bild2, v);
    } else if (name == "Strom") {
        blitz(bild2, groesse((static_cast<double>(p.q_HE_Strom) + he) / 2));
    }
    const Traegermenge menge = traegermenge(p);
    titel(bild2, (englisch ? p.Energie.Traegername_e : name) + ":",
          format_muster(menge.menge, "0", e.dezimal) + menge.einheit);

    // Electricity as the carrier has a single line: the auxiliary picture stays blank.
    if (ist_strom(p)) {
        return;
    }
    blitz(bild3, groesse(p.q_HE_Strom * 20.0));
    titel(bild3, englisch ? "electricity:" : "Strom:",
          format_muster(static_cast<double>(p.q_HE_Strom) * p.f_nutz, "0", e.dezimal) + " kWh/a");
}
