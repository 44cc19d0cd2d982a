// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/A_Sankey.h"

#include "charts/Diagrammtexte.h"
#include "charts/Surface.h"
#include "charts/c_sankey.h"
#include "project/Zahlformat.h"
#include "project/c_glob.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>

namespace {

// The places of the cooling diagram that do not follow from the widths. It follows the heating
// diagram: the electricity runs from the primary band at the left, its transformation loss
// turns upward beside it and its end energy runs on at the bottom of the stack; the four
// surplus gains come in from the left above it, each lifted 10 pixels more than the drawn one
// below and led down into the collected band by a slanted piece; at the cooling device both
// leave to the right, the removed heat on top and the waste heat below, their arrow heads
// ending at one x. The texts of the primary, end and waste energy and the list of the surplus
// gains stand in a block under the stack.
struct KuehlLage {
    static constexpr double X_PRIMAER = 5;        // tail of the primary band
    static constexpr double R_BOGEN = 10;         // inner radius of the bend of the loss
    static constexpr double X_SPITZE = 410;       // apex of both outlet arrows
    static constexpr double X_TEXT_RECHTS = 415;  // right end of the outlet texts
    static constexpr double X_TEXT_VERLUST = 90;  // largest centre of the loss text
    static constexpr double EINLASS_VERSATZ = 10; // lift between neighbouring inlets
    static constexpr double SPITZE_OBEN = 25;     // apex row of the upward loss arrow
    // A tail notch is half as deep as its band is wide; this much of the band stays whole
    // behind it, so that a band never begins as a loose wedge.
    static constexpr double RUMPF = 10;
    // The shortest straight run of the loss between its bend and its head.
    static constexpr double MIN_LAUF = 10;
    // Lines of the text block under the stack: two for the primary energy, the heading and the
    // four surplus gains.
    static constexpr int ZEILEN_UNTEN = 7;
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

// Depth of the tail notch of a band `breite` pixels wide.
int kerbe(int breite) {
    return breite > 0 ? ganzzahl((breite - 1) / 2.0) : 0;
}

int gezeichnete_einlaesse(const SankeyKuehlenMasse& m) {
    return static_cast<int>(
        std::count_if(std::begin(m.bTeil), std::end(m.bTeil), [](int w) { return w > 0; }));
}

// The row of the lowest pixel of the stack, under which the text block begins.
double unterkante(const SankeyKuehlenMasse& m) {
    return m.y0 + m.bC + m.bE - 1.0;
}

// The row where the loss leaves its bend upward.
double bogenmitte(const SankeyKuehlenMasse& m) {
    return unterkante(m) - m.bE - m.bL - KuehlLage::R_BOGEN;
}

// The top row of the highest inlet.
double einlass_oben(const SankeyKuehlenMasse& m) {
    return m.y0 - KuehlLage::EINLASS_VERSATZ * std::max(gezeichnete_einlaesse(m) - 1, 0);
}

// Whether the loss rises from its bend before its head begins, and whether the label of the
// removed heat finds room above the highest inlet.
bool passt(const SankeyKuehlenMasse& m, double zeile) {
    using L = KuehlLage;
    const bool lauf = bogenmitte(m) - (m.bL / 2.0 + L::SPITZE_OBEN) >= L::MIN_LAUF;
    const bool oben = einlass_oben(m) - 2 * zeile - 2 >= 0;
    return lauf && oben;
}

void stapel_setzen(SankeyKuehlenMasse& m, double H, double zeile) {
    const double unten = std::max(60.0, std::ceil(4 + KuehlLage::ZEILEN_UNTEN * zeile) + 1);
    m.y0 = ganzzahl((H - m.bC - m.bE) - unten);
}

// Columns from the widths: each moves right only as far as the notch or the band to its left
// needs.
void spalten_setzen(SankeyKuehlenMasse& m) {
    using L = KuehlLage;
    m.xBogen = std::max(60.0, L::X_PRIMAER + kerbe(m.bP) + L::RUMPF);
    m.xEinlass = std::max(160.0, m.xBogen + L::R_BOGEN + m.bL + L::RUMPF);
    int tiefste = 0;
    for (int w : m.bTeil) {
        tiefste = std::max(tiefste, kerbe(w));
    }
    m.xEinlassEnde = m.xEinlass + std::max(40.0, tiefste + L::RUMPF);
    m.xSammel = m.xEinlassEnde + 30;
    m.xGeraet = std::max(300.0, m.xSammel + 20);
}

} // namespace

SankeyKuehlenMasse sankey_kuehlen_masse(const Projekt& p, double H, double zeile) {
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

    double faktor = (H - 50 - 40) / (m.C + m.E);
    breiten(m, m.teile, faktor, p.Klimaeffizienz);
    // The band of the transformation loss never exceeds 80 pixels: all widths shrink with it.
    if (m.bL > 80) {
        const double kappe = 80.0 / m.bL;
        const double pixel[4] = {static_cast<double>(m.bTeil[0]), static_cast<double>(m.bTeil[1]),
                                 static_cast<double>(m.bTeil[2]), static_cast<double>(m.bTeil[3])};
        breiten(m, pixel, kappe, p.Klimaeffizienz);
        faktor *= kappe;
    }
    stapel_setzen(m, H, zeile);
    // The primary band is wider than the end energy by the loss, which rises through the height
    // of the stack; where that leaves it no straight run, all widths shrink together until it
    // has one, so that every band keeps its share.
    while (!passt(m, zeile) && m.bC > 0) {
        faktor *= 0.95;
        breiten(m, m.teile, faktor, p.Klimaeffizienz);
        stapel_setzen(m, H, zeile);
    }
    spalten_setzen(m);
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

    const std::string kopf = t("Überschüssige", "Surplus");
    const double zeile = s.TextHeight(kopf);
    const SankeyKuehlenMasse m = sankey_kuehlen_masse(p, s.ScaleHeight(), zeile);
    if (m.C == 0) {
        const std::string text =
            t("Kein Kühlbedarf vorhanden.", "The building has no cooling demand.");
        s.CurrentX = (s.ScaleWidth() - s.TextWidth(text)) / 2;
        s.CurrentY = s.ScaleHeight() / 2.0 - 6;
        s.Print(text);
        return;
    }

    // Rows: the cooling demand from y0 down, the end energy under it; yP is the lowest row of
    // the stack.
    const double y0 = m.y0;
    const double yP = unterkante(m);

    // Four inlets, top to bottom: transmission, ventilation, solar and internal gains. Each
    // drawn inlet stands 10 pixels above the next drawn one, so that they visibly converge.
    double slot = y0;
    int darunter = gezeichnete_einlaesse(m);
    for (int k = 0; k < 4; ++k) {
        const int w = m.bTeil[k];
        if (w > 0) {
            --darunter;
            const double hub = L::EINLASS_VERSATZ * darunter;
            const double oben = slot - hub, unten = slot - hub + w - 1;
            s.FilledBox(m.xEinlass, unten, m.xEinlassEnde, oben, band);
            Sankey_Spitze(s, m.xEinlass, unten, m.xEinlass, oben, WHITE);
            Sankey_Schraegband(s, m.xEinlassEnde, unten, m.xSammel, slot + w - 1, w - 1, band);
            slot += w;
        }
    }
    if (m.bC > 0) {
        s.FilledBox(m.xSammel, y0 + m.bC - 1, m.xGeraet, y0, band);
    }
    if (m.bE > 0) {
        s.FilledBox(m.xBogen, yP, m.xGeraet, yP - (m.bE - 1), band);
    }
    if (m.bL > 0) {
        const double x_lauf = m.xBogen + L::R_BOGEN;
        const double kopf_unten = m.bL / 2.0 + L::SPITZE_OBEN;
        Sankey_Bogen(s, m.xBogen, bogenmitte(m), 270, 360, m.bL, L::R_BOGEN, band);
        s.FilledBox(x_lauf, bogenmitte(m), x_lauf + m.bL, kopf_unten, band);
        Sankey_Spitze(s, x_lauf + m.bL, kopf_unten, x_lauf, kopf_unten, band);
    }
    if (m.bP > 0) {
        s.FilledBox(L::X_PRIMAER, yP, m.xBogen, yP - (m.bP - 1), band);
        Sankey_Spitze(s, L::X_PRIMAER, yP, L::X_PRIMAER, yP - (m.bP - 1), WHITE);
    }
    // The two outlets: removed heat on top, waste heat of the device below.
    if (m.bC > 0) {
        const double x = L::X_SPITZE - m.bC / 2.0;
        s.FilledBox(m.xGeraet, y0 + m.bC - 1, x, y0, band);
        Sankey_Spitze(s, x, y0 + m.bC - 1, x, y0, band);
    }
    if (m.bE > 0) {
        const double x = L::X_SPITZE - m.bE / 2.0;
        s.FilledBox(m.xGeraet, yP, x, yP - (m.bE - 1), band);
        Sankey_Spitze(s, x, yP, x, yP - (m.bE - 1), band);
    }

    // Texts, with the unscaled year sums, each beside its band.
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
    const double x_verlust = std::min(m.bL / 2.0 + m.xBogen + L::R_BOGEN, L::X_TEXT_VERLUST);
    mitte(t("Umwandlungs- und Transport-", "losses for transformation"), x_verlust, 0);
    mitte(t("verluste ", "and transport ") + wert(m.L), x_verlust, 12);
    const double y_abgefuehrt = einlass_oben(m) - 2 * zeile - 2;
    rechts(t("Aus dem Gebäude abgeführte Wärme", "Heat removed from the building"),
           L::X_TEXT_RECHTS, y_abgefuehrt);
    rechts(t("(= Kühlbedarf) ", "(= cooling demand) ") + wert(m.C), L::X_TEXT_RECHTS,
           y_abgefuehrt + zeile);

    // Under the stack: the primary energy under its band at the left, the waste heat and the
    // end energy under their arrow at the right, and the surplus gains under their heading.
    const auto reihe = [&](int i) { return yP + 4 + i * zeile; };
    links(t("Primärenergiebedarf", "primary energy demand"), 2, reihe(0));
    links(wert(m.P), 2, reihe(1));
    rechts(t("Abwärme Kühlgerät", "Waste heat from cooling system"), L::X_TEXT_RECHTS, reihe(0));
    rechts(wert(m.E), L::X_TEXT_RECHTS, reihe(1));
    rechts(t("End-Kühlenergiebedarf", "end energy demand for cooling"), L::X_TEXT_RECHTS, reihe(2));
    rechts(wert(m.E), L::X_TEXT_RECHTS, reihe(3));
    links(kopf, 2, reihe(2));
    const char* const namen[4][2] = {{" - Transmissionsgewinne: ", " - transmission gains: "},
                                     {" - Lüftungsgewinne: ", " - ventilation gains: "},
                                     {" - solare Gewinne: ", " - solar gains: "},
                                     {" - interne Gewinne: ", " - internal gains: "}};
    for (int k = 0; k < 4; ++k) {
        links(t(namen[k][0], namen[k][1]) + wert(m.teile[k]), 2, reihe(3 + k));
    }
}
