// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/A_Uebersicht.h"

#include "charts/Balkenrahmen.h"
#include "charts/Surface.h"
#include "project/c_glob.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace {

double stundenwert(const Projekt& p, Temperaturreihe reihe, int m, int d, int h) {
    return reihe == Temperaturreihe::Aussenluft ? p.Wetter(m, d, h).Ta : p.T_frei(m, d, h);
}

int monat_gueltig(int m) {
    return std::clamp(m, 1, 12);
}

int tage(const Projekt& p, int m) {
    return std::clamp<int>(p.Monat[m].Tage, 0, TAGE_MAX);
}

// Tick step by decades, the 1-2-5 rule: the last test that hits wins.
double temperaturstufe(double spanne) {
    double stufe = 1;
    for (int i = 6; i >= 1; --i) {
        const double zehn_i = std::pow(10.0, i);
        const double zehn_i1 = std::pow(10.0, i - 1);
        if (spanne < 5 * zehn_i) {
            stufe = std::nearbyint(5 * zehn_i1);
        }
        if (spanne < 2 * zehn_i) {
            stufe = 2 * zehn_i1;
        }
        if (spanne < zehn_i) {
            stufe = zehn_i1;
        }
    }
    return stufe;
}

// One curve: each hour of the month joined to the one before by a filled box.
void kurve(Surface& s, const Projekt& p, Temperaturreihe reihe, int m, double links, double xf,
           double y_ursprung, double yf, Rgb farbe) {
    bool erster = true;
    double x_vor = 0, y_vor = 0;
    for (int d = 1; d <= tage(p, m); ++d) {
        for (int h = 1; h <= STUNDEN; ++h) {
            const double x = X_((d - 1) + h / 24.0, links, xf);
            const double y = Y_(stundenwert(p, reihe, m, d, h), y_ursprung, yf);
            if (!erster) {
                s.FilledBox(x_vor, y_vor, x, y, farbe);
            }
            erster = false;
            x_vor = x;
            y_vor = y;
        }
    }
}

} // namespace

double max_suchen(const Projekt& p, Temperaturreihe reihe, int m) {
    m = monat_gueltig(m);
    double groesster = -1e30;
    for (int d = 1; d <= tage(p, m); ++d) {
        for (int h = 1; h <= STUNDEN; ++h) {
            groesster = std::max(groesster, stundenwert(p, reihe, m, d, h));
        }
    }
    return groesster;
}

double min_suchen(const Projekt& p, Temperaturreihe reihe, int m) {
    m = monat_gueltig(m);
    double kleinster = 1e30;
    for (int d = 1; d <= tage(p, m); ++d) {
        for (int h = 1; h <= STUNDEN; ++h) {
            kleinster = std::min(kleinster, stundenwert(p, reihe, m, d, h));
        }
    }
    return kleinster;
}

double X_(double tag, double ursprung, double faktor) {
    return std::nearbyint(ursprung + faktor * tag);
}

double Y_(double temperatur, double ursprung, double faktor) {
    return std::nearbyint(ursprung - faktor * temperatur);
}

void TemperaturDiagrammZeichnen(const Projekt& p, Surface& s, const Diagrammeinstellung& e) {
    const ChartTheme& t = e.thema;
    const int m = monat_gueltig(p.Monat_Uebersicht);
    const double breite = s.ScaleWidth();
    const double links = 30, oben = 35, rechts = breite - 10, unten = s.ScaleHeight() - 20;

    // Both curves must fit: the range spans the outdoor and the room air.
    double T_max = std::max(max_suchen(p, Temperaturreihe::Aussenluft, m),
                            max_suchen(p, Temperaturreihe::Raumluft, m));
    double T_min = std::min(min_suchen(p, Temperaturreihe::Aussenluft, m),
                            min_suchen(p, Temperaturreihe::Raumluft, m));
    if (tage(p, m) == 0 || !std::isfinite(T_max) || !std::isfinite(T_min)) {
        T_max = T_min = 0;
    }
    const double stufe = temperaturstufe(T_max - T_min);
    const double achse_oben = T_max == 0 ? 0 : std::nearbyint(T_max / stufe + 1) * stufe;
    const double achse_unten = T_min == 0 ? 0 : std::nearbyint(T_min / stufe - 1) * stufe;
    const double xf = (rechts - links) / 31;
    // With both ends at 0 the axis has no span; the curves then lie on the lower axis.
    const double spanne = achse_oben - achse_unten;
    const double yf = spanne > 0 ? (unten - oben) / spanne : 0;
    const double y_ursprung = unten + yf * achse_unten;

    s.Cls();
    s.FontName = t.schrift;
    s.FontSize = 8;
    s.FontBold = false;

    // Legend in the top margin; each text centred on top - 8 by the height of a "T".
    const double legende_y = oben - 8;
    const double text_y = legende_y - s.TextHeight("T") / 2;
    s.FilledBox(breite - 280, legende_y - 2, breite - 270, legende_y + 2, t.heizen);
    s.CurrentX = breite - 265;
    s.CurrentY = text_y;
    s.Print(p.txt_Raumluft);
    s.FilledBox(breite - 130, legende_y - 2, breite - 120, legende_y + 2, t.kuehlen);
    s.CurrentX = breite - 115;
    s.CurrentY = text_y;
    s.Print(p.txt_Aussenluft);

    // Days 0 to 31 on every month; day 0 is the vertical axis.
    const bool alle_tage = breite > 600;
    for (int d = 0; d <= 31; ++d) {
        const double x = X_(d, links, xf);
        s.Line(x, oben, x, unten, d == 0 ? t.achsen : t.gitter);
        if (d > 0 && (alle_tage || d % 2 == 1)) {
            zentriert(s, std::to_string(d), x, unten + 3);
        }
    }
    // One grid line per step; the lowest is the horizontal axis.
    if (stufe > 0 && spanne >= 0 && spanne / stufe <= 1000) {
        const int schritte = static_cast<int>(std::nearbyint(spanne / stufe));
        // On a low chart the numbers are written on every second (third ...) line only, so
        // that they stand apart; the lowest line keeps its number.
        const double abstand = yf * stufe;
        const int jede =
            abstand > 0 ? std::max(1, static_cast<int>(std::ceil(s.TextHeight("0") / abstand))) : 1;
        for (int i = 0; i <= schritte; ++i) {
            const double T = achse_unten + i * stufe;
            const double y = Y_(T, y_ursprung, yf);
            s.Line(links, y, rechts, y, i == 0 ? t.achsen : t.gitter);
            if (i % jede == 0) {
                std::string zahl = std::to_string(static_cast<long>(std::nearbyint(T)));
                rechtsbuendig(s, zahl, links - 3, y - s.TextHeight(zahl) / 2);
            }
        }
    }
    // The unit ends above the top number.
    s.CurrentX = 5;
    s.CurrentY = oben - 6 - s.TextHeight("°C");
    s.Print("°C");

    kurve(s, p, Temperaturreihe::Aussenluft, m, links, xf, y_ursprung, yf, t.kuehlen);
    kurve(s, p, Temperaturreihe::Raumluft, m, links, xf, y_ursprung, yf, t.heizen);
}
