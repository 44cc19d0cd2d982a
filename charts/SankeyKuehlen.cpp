// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/A_Sankey.h"

#include "charts/Diagrammtexte.h"
#include "charts/Surface.h"
#include "charts/c_sankey.h"
#include "planes/Zahlformat.h"
#include "project/c_glob.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace {

// The layout of the cooling diagram, all in one place. It follows the heating diagram: the
// electricity runs from the primary band at the left, its transformation loss turns upward
// beside it and its end energy runs on at the bottom of the stack; the four surplus gains come
// in from the left above it, each lifted 10 pixels more than the one below and led down into
// the collected band by a slanted piece; at the cooling device both leave to the right, the
// removed heat on top and the waste heat below, their arrow heads ending at one x.
struct KuehlLage {
    static constexpr double X_PRIMAER = 5;           // tail of the primary band
    static constexpr double X_BOGEN = 60;            // centre of the bend of the loss
    static constexpr double R_BOGEN = 10;            // its inner radius
    static constexpr double X_EINLASS = 160;         // tails of the four inlets
    static constexpr double X_EINLASS_ENDE = 200;    // start of their slanted pieces
    static constexpr double X_SAMMEL = 230;          // start of the collected band
    static constexpr double X_GERAET = 300;          // the cooling device: outlets begin
    static constexpr double X_SPITZE = 410;          // apex of both outlet arrows
    static constexpr double X_TEXT_RECHTS = 415;     // right end of the outlet texts
    static constexpr double X_TEXT_ENDENERGIE = 150; // centre of the end energy text
    static constexpr double X_TEXT_VERLUST = 90;     // largest centre of the loss text
    static constexpr double EINLASS_VERSATZ = 10;    // lift between neighbouring inlets
    static constexpr double SPITZE_OBEN = 25;        // apex row of the upward loss arrow
};

// Widths from the four parts by `faktor`: rounding down, then the sums as pixel widths.
void breiten(SankeyKuehlenMasse& m, const double (&werte)[4], double faktor, double effizienz) {
    m.bC = 0;
    for (int k = 0; k < 4; ++k) {
        m.bTeil[k] = ganzzahl(werte[k] * faktor);
        m.bC += m.bTeil[k];
    }
    m.bE = ganzzahl(m.bC / effizienz);
    m.bP = ganzzahl(3 * m.bC / effizienz);
    m.bL = ganzzahl(static_cast<double>(m.bP) - m.bE);
}

} // namespace

SankeyKuehlenMasse sankey_kuehlen_masse(const Projekt& p, double H) {
    SankeyKuehlenMasse m;
    for (int mo = 1; mo <= 12; ++mo) {
        const Monatswerte& W = p.Monat[mo];
        m.teile[0] += W.Kuehl_trans / p.f_nutz;
        m.teile[1] += W.Kuehl_lueft / p.f_nutz;
        m.teile[2] += W.Kuehl_solar / p.f_nutz;
        m.teile[3] += W.Kuehl_intern / p.f_nutz;
    }
    m.C = m.teile[0] + m.teile[1] + m.teile[2] + m.teile[3];
    m.E = m.C / p.Klimaeffizienz;
    // The primary energy factor of electricity is 3 here.
    m.P = 3 * m.E;
    m.L = m.P - m.E;

    breiten(m, m.teile, (H - 50 - 40) / (m.C + m.E), p.Klimaeffizienz);
    // The band of the transformation loss never exceeds 80 pixels: all widths shrink with it.
    if (m.bL > 80) {
        const double faktor = 80.0 / m.bL;
        const double pixel[4] = {static_cast<double>(m.bTeil[0]), static_cast<double>(m.bTeil[1]),
                                 static_cast<double>(m.bTeil[2]), static_cast<double>(m.bTeil[3])};
        breiten(m, pixel, faktor, p.Klimaeffizienz);
    }
    m.y0 = ganzzahl((H - m.bC - m.bE) - 60);
    return m;
}

void SankeyKuehlen(const Projekt& p, SankeyFlaechen& f, const Diagrammeinstellung& e) {
    using L = KuehlLage;
    Surface& s = f.Sankey_Kuehlen;
    const Rgb band = e.thema.sankey_kuehlen;
    s.FillStyle = FillMode::Solid;
    s.FillColor = band;
    s.Cls();
    s.FontName = e.thema.sankey_schrift;
    s.FontSize = e.thema.sankey_schriftgroesse;
    s.FontBold = false;
    const auto t = [&e](const char* deutsch, const char* englisch) {
        return sprachtext(e.Sprache, deutsch, englisch);
    };

    const SankeyKuehlenMasse m = sankey_kuehlen_masse(p, s.ScaleHeight());
    if (m.C == 0) {
        const std::string text =
            t("Kein Kühlbedarf vorhanden.", "The building has no cooling demand.");
        s.CurrentX = (s.ScaleWidth() - s.TextWidth(text)) / 2;
        s.CurrentY = s.ScaleHeight() / 2.0 - 6;
        s.Print(text);
        return;
    }

    // Rows: the cooling demand from y0 down, the end energy under it; yP is the lowest row of
    // the stack and yE the row above the end energy.
    const double y0 = m.y0;
    const double yP = y0 + m.bC + m.bE - 1;
    const double yE = yP - m.bE;

    // Four inlets, top to bottom: transmission, ventilation, solar and internal gains.
    double slot = y0;
    for (int k = 0; k < 4; ++k) {
        const int w = m.bTeil[k];
        if (w > 0) {
            const double hub = L::EINLASS_VERSATZ * (3 - k);
            const double oben = slot - hub, unten = slot - hub + w - 1;
            s.FilledBox(L::X_EINLASS, unten, L::X_EINLASS_ENDE, oben, band);
            Sankey_Spitze(s, L::X_EINLASS, unten, L::X_EINLASS, oben, WHITE);
            Sankey_Schraegband(s, L::X_EINLASS_ENDE, unten, L::X_SAMMEL, slot + w - 1, w - 1, band);
            slot += w;
        }
    }
    if (m.bC > 0) {
        s.FilledBox(L::X_SAMMEL, y0 + m.bC - 1, L::X_GERAET, y0, band);
    }
    if (m.bE > 0) {
        s.FilledBox(L::X_BOGEN, yP, L::X_GERAET, yP - (m.bE - 1), band);
    }
    if (m.bL > 0) {
        const double x_lauf = L::X_BOGEN + L::R_BOGEN;
        Sankey_Bogen(s, L::X_BOGEN, yE - m.bL - 10, 270, 360, m.bL, L::R_BOGEN, band);
        s.FilledBox(x_lauf, yE - m.bL - 10, x_lauf + m.bL, m.bL / 2.0 + L::SPITZE_OBEN, band);
        Sankey_Spitze(s, x_lauf + m.bL, m.bL / 2.0 + L::SPITZE_OBEN, x_lauf,
                      m.bL / 2.0 + L::SPITZE_OBEN, band);
    }
    if (m.bP > 0) {
        s.FilledBox(L::X_PRIMAER, yP, L::X_BOGEN, yP - (m.bP - 1), band);
        Sankey_Spitze(s, L::X_PRIMAER, yP, L::X_PRIMAER, yP - (m.bP - 1), WHITE);
    }
    // The two outlets: removed heat on top, waste heat of the device below.
    if (m.bC > 0) {
        const double x = L::X_SPITZE - m.bC / 2.0;
        s.FilledBox(L::X_GERAET, y0 + m.bC - 1, x, y0, band);
        Sankey_Spitze(s, x, y0 + m.bC - 1, x, y0, band);
    }
    if (m.bE > 0) {
        const double x = L::X_SPITZE - m.bE / 2.0;
        s.FilledBox(L::X_GERAET, yP, x, yP - (m.bE - 1), band);
        Sankey_Spitze(s, x, yP, x, yP - (m.bE - 1), band);
    }

    // Texts, with the unscaled year sums.
    const auto wert = [&e](double v) { return format_muster(v, "0.0", e.dezimal) + " kWh/(m² a)"; };
    const auto links = [&s](const std::string& text, double x, double y) {
        s.CurrentX = x;
        s.CurrentY = y;
        s.Print(text);
    };
    const auto rechts = [&](const std::string& text, double x, double y) {
        links(text, x - s.TextWidth(text), y);
    };
    const auto mitte = [&](const std::string& text, double x, double y) {
        links(text, std::max(x - s.TextWidth(text) / 2, 0.0), y);
    };
    links(t("Primärenergiebedarf", "primary energy demand"), 2, yP - m.bP - 24);
    links(wert(m.P), 2, yP - m.bP - 12);
    const double x_verlust = std::min(m.bL / 2.0 + L::X_BOGEN + L::R_BOGEN, L::X_TEXT_VERLUST);
    mitte(t("Umwandlungs- und Transport-", "losses for transformation"), x_verlust, 0);
    mitte(t("verluste ", "and transport ") + wert(m.L), x_verlust, 12);
    mitte(t("End-Kühlenergiebedarf", "end energy demand for cooling"), L::X_TEXT_ENDENERGIE,
          yP - m.bE / 2.0 - 12);
    mitte(wert(m.E), L::X_TEXT_ENDENERGIE, yP - m.bE / 2.0);
    rechts(t("Aus dem Gebäude abgeführte Wärme", "Heat removed from the building"),
           L::X_TEXT_RECHTS, y0 - 26);
    rechts(t("(= Kühlbedarf) ", "(= cooling demand) ") + wert(m.C), L::X_TEXT_RECHTS, y0 - 14);
    rechts(t("Abwärme Kühlgerät", "Waste heat from cooling system"), L::X_TEXT_RECHTS, yP + 4);
    rechts(wert(m.E), L::X_TEXT_RECHTS, yP + 16);

    // The surplus gains under their heading, at the left below the stack. The five lines share
    // the margin under the stack, closer than the font's line height where that is taller than
    // a fifth of it, so that the last one stays on the surface.
    const std::string kopf = t("Überschüssige", "Surplus");
    const double zeile = std::min(s.TextHeight(kopf), (s.ScaleHeight() - (yP + 4)) / 5.0);
    links(kopf, 2, yP + 4);
    const char* const namen[4][2] = {{" - Transmissionsgewinne: ", " - transmission gains: "},
                                     {" - Lüftungsgewinne: ", " - ventilation gains: "},
                                     {" - solare Gewinne: ", " - solar gains: "},
                                     {" - interne Gewinne: ", " - internal gains: "}};
    for (int k = 0; k < 4; ++k) {
        links(t(namen[k][0], namen[k][1]) + wert(m.teile[k]), 2, yP + 4 + (k + 1) * zeile);
    }
}
