// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/A_Sankey.h"

#include "charts/Diagrammtexte.h"
#include "charts/Surface.h"
#include "charts/c_sankey.h"
#include "project/Zahlformat.h"
#include "project/c_glob.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace {

// Every stack is measured with this margin.
constexpr double RAND = 20;

struct Texter {
    Surface& s;
    const Diagrammeinstellung& e;

    std::string wert(double v) const { return format_muster(v, "0.0", e.dezimal) + " kWh/(m² a)"; }
    void links(const std::string& text, double x, double y) const {
        s.CurrentX = x;
        s.CurrentY = y;
        s.Print(text);
    }
    void rechts(const std::string& text, double x, double y) const {
        links(text, x - s.TextWidth(text), y);
    }
    // Centred; `nicht_links_raus` keeps the start at 0 or right of it.
    void mitte(const std::string& text, double x, double y, bool nicht_links_raus = false) const {
        double start = x - s.TextWidth(text) / 2;
        if (nicht_links_raus && start < 0) {
            start = 0;
        }
        links(text, start, y);
    }
    std::string t(const char* deutsch, const char* englisch) const {
        return sprachtext(e.Sprache, deutsch, englisch);
    }
};

// A filled rectangle in the band colour given by two corners.
void stueck(Surface& s, double x1, double y1, double x2, double y2, Rgb farbe) {
    s.FilledBox(x1, y1, x2, y2, farbe);
}

void transmission_zeichnen(Surface& s, const Projekt& p, const SankeyHeizenMasse& m, Rgb band,
                           const Texter& tx) {
    const Transmissionsteilung t = transmissionsteilung(p, m);
    struct Teil {
        double anteil;      // kWh
        double unten, oben; // rows of the arrow's lower and upper edge
    };
    // Each arrow overlaps its neighbours by one pixel at both sides.
    const Teil teile[5] = {
        {p.qtr_Boden, static_cast<double>(m.yC), t.B1 + 1.0},
        {p.qtr_Tuer, t.B1 - 1.0, t.B2 + 1.0},
        {p.qtr_Waende, t.B2 - 1.0, t.B3 + 1.0},
        {p.qtr_Fenster, t.B3 - 1.0, t.B4 + 1.0},
        {p.qtr_Dach, t.B4 - 1.0, static_cast<double>(m.yC - m.bQT)},
    };
    const auto ende = [&](const Teil& teil) {
        const double w = m.bQT * teil.anteil / p.qtr;
        return 350 - w / 2;
    };
    for (const Teil& teil : teile) {
        if (teil.anteil > 0) {
            stueck(s, 310, teil.unten, ende(teil), teil.oben, band);
        }
    }
    for (const Teil& teil : teile) {
        if (teil.anteil > 0) {
            Sankey_Spitze(s, ende(teil), teil.unten, ende(teil), teil.oben, band);
        }
    }
    for (const int B : {t.B1, t.B2, t.B3, t.B4}) {
        double x1 = 310, y1 = B, x2 = 350, y2 = B;
        Sankey_Linie(s, x1, y1, x2, y2, WHITE);
    }

    // The list of parts, roof first, beside the arrows.
    const double P = std::min(m.yC - m.bQT / 2.0, 166.0);
    s.CurrentY = P - 30;
    const struct {
        double anteil;
        const char *deutsch, *englisch;
    } liste[5] = {{p.qtr_Dach, "Dach (", "roof ("},
                  {p.qtr_Fenster, "Fenster (", "windows ("},
                  {p.qtr_Waende, "Wände (", "walls ("},
                  {p.qtr_Tuer, "Tür (", "door ("},
                  {p.qtr_Boden, "Boden (", "ground ("}};
    std::vector<std::string> zeilen;
    double breiteste = 0;
    for (const auto& zeile : liste) {
        if (zeile.anteil > 0) {
            zeilen.push_back(tx.t(zeile.deutsch, zeile.englisch) +
                             format_muster(zeile.anteil / p.qtr * 100, "0", tx.e.dezimal) + " %)");
            breiteste = std::max(breiteste, s.TextWidth(zeilen.back()));
        }
    }
    // At x 356 where the longest line ends inside the surface; otherwise as far left as it
    // needs, but never onto the arrow heads, which end at x 350.
    const double x = std::clamp(s.ScaleWidth() - 2 - breiteste, 351.0, 356.0);
    for (const std::string& zeile : zeilen) {
        s.CurrentX = x;
        s.Print(zeile);
    }
}

void texte(Surface& s, const Projekt& p, const SankeyHeizenMasse& m, const Texter& tx) {
    const double H = s.ScaleHeight();
    const double PE = static_cast<double>(p.q_PE_Strom) + p.q_PE_Energietraeger;
    tx.links(tx.t("Primärenergiebedarf", "primary energy demand"), 2, m.yP - m.bPE - 24);
    tx.links(tx.wert(PE), 2, m.yP - m.bPE - 12);
    if (m.bTV > 0) {
        const double x = std::min(m.bTV / 2.0 + 90, 90.0);
        tx.mitte(tx.t("Umwandlungs- und Transport-", "losses for transformation"), x, 0, true);
        tx.mitte(tx.t("verluste ", "and transport ") + tx.wert(std::fabs(m.TV)), x, 12, true);
    } else {
        const double x = m.bTV / 2.0 + 70;
        tx.mitte(tx.t("Erneuerbare Energien", "renewable energies"), x, 0, true);
        tx.mitte(tx.wert(std::fabs(m.TV)), x, 12, true);
    }
    // The solar label stands right of the band's middle, clear of the long label of the
    // transformation losses on its left.
    tx.mitte(tx.t("nutzbare solare Gewinne", "usable solar gains"), 240, 0);
    tx.mitte(tx.wert(p.qsols), 240, 12);
    tx.rechts(tx.t("Lüftungsverluste", "ventilation losses"), 415, 0);
    tx.rechts(tx.wert(p.qinfs), 415, 12);
    if (m.bSV >= 0) {
        const std::string verluste = tx.t("Verluste Heizungssystem", "losses of the heating");
        const double rechts = std::max(123.0, s.TextWidth(verluste) + 2);
        tx.rechts(verluste, rechts, m.yA + 5);
        tx.rechts(tx.wert(m.SV), rechts, m.yA + 17);
    } else {
        // Ends at 103 where it fits; a longer text moves right so that it begins inside, as
        // the losses above do at 123.
        const std::string umwelt = tx.t("Gewinne aus der Umwelt", "gains from environment");
        const double rechts = std::max(103.0, s.TextWidth(umwelt) + 2);
        tx.rechts(umwelt, rechts, m.yA + 5);
        tx.rechts(tx.wert(std::fabs(m.SV)), rechts, m.yA + 17);
    }
    tx.mitte(tx.t("nutzbare interne Gewinne", "usable internal gains"), 200, H - 25);
    tx.mitte(tx.wert(p.qis), 200, H - 13);
    tx.rechts(tx.t("Transmissionsverluste", "transmission losses"), 415, H - 25);
    tx.rechts(tx.wert(p.qtrs), 415, H - 13);
    tx.mitte(tx.t("Heizwärmebedarf", "heat energy demand"), 175, m.yB - m.bQH / 2.0 - 12);
    tx.mitte(tx.wert(p.qhs_sum), 175, m.yB - m.bQH / 2.0);
}

} // namespace

SankeyHeizenMasse sankey_heizen_masse(const Projekt& p, double H) {
    SankeyHeizenMasse m;
    m.SV = (static_cast<double>(p.q_HE_Strom) + p.q_HE_Energietraeger) - p.qhs_sum;
    m.TV = ((static_cast<double>(p.q_PE_Strom) + p.q_PE_Energietraeger) - p.q_HE_Energietraeger) -
           p.q_HE_Strom;

    // The largest of four stacks, so that every vertical stack fits the surface.
    const double qsols = p.qsols, qhs = p.qhs_sum, qis = p.qis;
    const double SVb = std::fabs(m.SV), TV2 = 2 * m.TV;
    const double stapel_neg[4] = {qsols + qhs + qis, TV2 + qhs + qis, TV2 + qhs + SVb,
                                  qsols + qhs + SVb};
    const double stapel_pos[4] = {qsols + qhs + 2 * m.SV, TV2 + qhs + 2 * m.SV, TV2 + qhs + qis,
                                  qsols + qhs + qis};
    const double* stapel = m.SV < 0 ? stapel_neg : stapel_pos;
    m.S = Sankey_Massstab(stapel[0], RAND, H);
    for (int i = 1; i < 4; ++i) {
        const double kandidat = Sankey_Massstab(stapel[i], RAND, H);
        if (kandidat > m.S) {
            m.S = kandidat;
        }
    }
    if (!(m.S > 0)) {
        m.S = 1;
    }

    m.bPE = ganzzahl((static_cast<double>(p.q_PE_Strom) + p.q_PE_Energietraeger) / m.S);
    m.bTV = ganzzahl(m.TV / m.S);
    m.bEE = ganzzahl((static_cast<double>(p.q_HE_Strom) + p.q_HE_Energietraeger) / m.S);
    m.bSV = ganzzahl(m.SV / m.S);
    m.bQH = ganzzahl(p.qhs_sum / m.S);
    m.bQI = ganzzahl(p.qis / m.S);
    m.bQS = ganzzahl(p.qsols / m.S);
    m.bQL = ganzzahl(p.qinfs / m.S);
    m.bQT = ganzzahl(p.qtrs / m.S);

    // Room below the main band for what joins it from below.
    const int a = std::abs(m.bSV), i = m.bQI;
    if (m.bSV >= 0) {
        m.Y = 2 * a + 10 >= i + 10 ? a + 10 + 25 : (i + 10 - a) + 25;
    } else {
        m.Y = a + 10 >= i + 10 ? 2 * a + 10 + 25 : (a + 10 + i) + 25;
    }
    const int h = ganzzahl(H);
    m.yP = h - m.Y;
    m.yE = h - (m.Y + m.bEE);
    m.yA = m.bSV >= 0 ? h - m.Y : h - (m.Y - a);
    m.yB = m.bSV >= 0 ? h - (m.Y + a) : h - (m.Y - a);
    m.yC = m.yB + m.bQI;
    m.yD = m.yB - m.bQH;
    m.yF = m.yC - m.bQT;
    return m;
}

Transmissionsteilung transmissionsteilung(const Projekt& p, const SankeyHeizenMasse& m) {
    Transmissionsteilung t;
    const double qtr = p.qtr;
    const double yC = m.yC, bQT = m.bQT;
    t.B1 = ganzzahl(yC - (bQT * p.qtr_Boden) / qtr);
    t.B2 = ganzzahl(yC - (bQT * (static_cast<double>(p.qtr_Tuer) + p.qtr_Boden)) / qtr);
    // A door, however small, stays visible as a band of two pixels.
    if (p.qtr_Tuer > 0 && std::abs(t.B2 - t.B1) <= 1) {
        t.B2 = t.B1 - 2;
    }
    t.B3 =
        ganzzahl(yC - (bQT * (static_cast<double>(p.qtr_Tuer) + p.qtr_Boden + p.qtr_Waende)) / qtr);
    t.B4 = ganzzahl(yC - (bQT * (static_cast<double>(p.qtr_Tuer) + p.qtr_Boden + p.qtr_Waende +
                                 p.qtr_Fenster)) /
                             qtr);
    return t;
}

void SankeyHeizen(const Projekt& p, SankeyFlaechen& f, const Diagrammeinstellung& e) {
    Surface& s = f.Sankey;
    const Rgb band = e.thema.sankey_heizen;
    const SankeyHeizenMasse m = sankey_heizen_masse(p, s.ScaleHeight());
    const double SH = s.ScaleHeight();

    s.FillStyle = FillMode::Solid;
    s.FillColor = band;
    s.Cls();
    s.FontName = e.thema.sankey_schrift;
    s.FontSize = e.thema.sankey_schriftgroesse;
    s.FontBold = false;

    // The bends first: the white disk of a bend erases whatever lies under it.
    constexpr double R_EINFACH = 10;
    if (m.bTV >= 0) {
        Sankey_Bogen(s, 80, m.yE - m.bTV - 10, 270, 360, m.bTV, R_EINFACH, band);
    } else {
        Sankey_Bogen(s, 80, m.yE - 10, 180, 270, std::abs(m.bTV), R_EINFACH, band);
    }
    if (m.bSV > 0) {
        Sankey_Bogen(s, 120, m.yP + 10, 360, 90, m.bSV, R_EINFACH, band);
    } else if (m.bSV < 0) {
        Sankey_Bogen(s, 120, m.yB + 10, 90, 180, std::abs(m.bSV), R_EINFACH, band);
    }
    if (m.bQI > 0) {
        const int b = m.bQI;
        const SBogen sb = s_bogen(b);
        if (sb.r > 0) {
            Sankey_Bogen(s, 230, m.yC + sb.r, 90, 90 + sb.theta, b, sb.r, band);
            Sankey_Bogen(s, 200, m.yC + sb.r - sb.versatz, 270, 270 + sb.theta, b, sb.r, band);
        } else {
            Sankey_Schraegband(s, 200, m.yC + 10, 230, m.yC, b, band);
        }
    }
    if (m.bQS > 0) {
        const int b = m.bQS;
        const SBogen sb = s_bogen(b);
        if (sb.r > 0) {
            Sankey_Bogen(s, 230, m.yD - b - sb.r, 270 - sb.theta, 270, b, sb.r, band);
            Sankey_Bogen(s, 200, m.yD - b - sb.r + sb.versatz, 90 - sb.theta, 90, b, sb.r, band);
        } else {
            Sankey_Schraegband(s, 200, m.yD - 10, 230, m.yD, b, band);
        }
    }
    if (m.bQL > 0) {
        const int b = m.bQL;
        const SBogen sb = s_bogen(b);
        if (sb.r > 0) {
            Sankey_Bogen(s, 280, m.yF - b - sb.r, 270, 270 + sb.theta, b, sb.r, band);
            Sankey_Bogen(s, 310, m.yF - b - sb.r + sb.versatz, 90, 90 + sb.theta, b, sb.r, band);
        } else {
            Sankey_Schraegband(s, 280, m.yF, 310, m.yF - 10, b, band);
        }
    }

    // Then the straight pieces.
    stueck(s, 5, m.yP, 80, m.yP - (m.bPE - 1), band);
    Sankey_Spitze(s, 5, m.yP, 5, m.yP - (m.bPE - 1), WHITE);
    if (m.bTV >= 0) {
        // The tip ends at y 25 for every width.
        stueck(s, 90, m.yE - m.bTV - 10, 90 + m.bTV, m.bTV / 2.0 + 25, band);
        Sankey_Spitze(s, 90 + m.bTV, m.bTV / 2.0 + 25, 90, m.bTV / 2.0 + 25, band);
    } else {
        stueck(s, 70 + m.bTV, m.yE - 10, 70, 25, band);
        Sankey_Spitze(s, 70 + m.bTV, 25, 70, 25, WHITE);
    }
    stueck(s, 80, m.yP, 120, m.yP - (m.bEE - 1), band);
    const int a = std::abs(m.bSV);
    if (m.bSV > 0) {
        stueck(s, 130, m.yA + 10, 130 + m.bSV, (SH - 25) - m.bSV / 2.0, band);
        Sankey_Spitze(s, 130, (SH - 25) - m.bSV / 2.0, 130 + m.bSV, (SH - 25) - m.bSV / 2.0, band);
    } else if (m.bSV < 0) {
        stueck(s, 110, m.yA + 10, 110 - a, SH - 25, band);
        Sankey_Spitze(s, 110, SH - 25, 110 - a, SH - 25, WHITE);
    }
    stueck(s, 120, m.yB, 230, m.yP - (m.bEE - 1), band);
    if (m.bQI > 0) {
        stueck(s, 180, m.yC + 10, 200, m.yC - m.bQI + 10, band);
        Sankey_Spitze(s, 180, m.yC + 10, 180, m.yC - m.bQI + 10, WHITE);
    }
    if (m.bQS > 0) {
        stueck(s, 150, m.yD - 10, 200, m.yD - m.bQS - 10, band);
        Sankey_Spitze(s, 150, m.yD - 10, 150, m.yD - m.bQS - 10, WHITE);
    }
    // The collected band: its width is the whole balance.
    stueck(s, 230, m.yC, 280, m.yD - m.bQS, band);
    if (m.bQL > 0) {
        // A tip half as long as the band is wide: every arrow head ends at x 350.
        const double x = 350 - m.bQL / 2.0;
        stueck(s, 310, m.yF - 10, x, m.yF - m.bQL - 10, band);
        Sankey_Spitze(s, x, m.yF - 10, x, m.yF - m.bQL - 10, band);
    }
    stueck(s, 280, m.yC, 310, m.yF, band);

    const Texter tx{s, e};
    if (p.qtr > 0) {
        transmission_zeichnen(s, p, m, band, tx);
    }
    texte(s, p, m, tx);
}
