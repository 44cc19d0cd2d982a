// SPDX-License-Identifier: GPL-3.0-or-later
// The energy flow diagrams: the primitives' pixels, the band widths and how they add up, the
// door kept at two pixels, the S-bend's fallback, the texts of both languages, and the cooling
// diagram with and without demand.

#include "charts/A_Sankey.h"
#include "charts/c_sankey.h"
#include "tests/charts/Diagrammhilfe.h"

#include "project/c_glob.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

namespace {

using Kind = RecordingSurface::Primitive::Kind;

const ChartTheme T;
constexpr Rgb BAND{255, 180, 180};
constexpr Rgb KUEHLBAND{180, 180, 255};

// The first row from the top where column x has the colour.
int oberste_zeile(const RecordingSurface& s, int x, Rgb farbe) {
    for (int y = 0; y < s.ScaleHeight(); ++y) {
        if (s.pixel(x, y) == farbe) {
            return y;
        }
    }
    return -1;
}

TEST(SankeyPrimitive, LinieKeepsItsLastPixelWhicheverWayItRuns) {
    RecordingSurface s(30, 30);
    double x1 = 10, y1 = 5, x2 = 3, y2 = 5;
    Sankey_Linie(s, x1, y1, x2, y2, BAND);
    EXPECT_EQ(x1, 3); // the end points have changed places
    EXPECT_EQ(s.pixel(3, 5), BAND);
    EXPECT_EQ(s.pixel(10, 5), BAND);
    EXPECT_EQ(s.pixel(11, 5), WHITE);
    double a = 20, b = 20, c = 20, d = 12;
    Sankey_Linie(s, a, b, c, d, BAND);
    EXPECT_EQ(s.pixel(20, 12), BAND);
    EXPECT_EQ(s.pixel(20, 11), WHITE);
    // A point is one pixel.
    double p = 25, q = 25, r = 25, t = 25;
    Sankey_Linie(s, p, q, r, t, BAND);
    EXPECT_EQ(s.pixel(25, 25), BAND);
    EXPECT_EQ(s.pixel(26, 25), WHITE);
}

TEST(SankeyPrimitive, SpitzeTheOrderOfTheEndPointsChoosesTheDirection) {
    RecordingSurface s(60, 60);
    // Vertical, lower point first: apex K = 5 pixels to the right at the middle.
    Sankey_Spitze(s, 5, 20, 5, 10, BAND);
    EXPECT_EQ(s.pixel(10, 15), BAND);
    EXPECT_EQ(s.pixel(11, 15), WHITE);
    EXPECT_EQ(s.pixel(5, 10), BAND);
    // Horizontal left to right: apex below; right to left: apex above.
    Sankey_Spitze(s, 30, 30, 40, 30, BAND);
    EXPECT_EQ(s.pixel(35, 35), BAND);
    EXPECT_EQ(s.pixel(35, 36), WHITE);
    Sankey_Spitze(s, 50, 50, 40, 50, BAND);
    EXPECT_EQ(s.pixel(45, 45), BAND);
    EXPECT_EQ(s.pixel(45, 44), WHITE);
    // A segment of length 1 has K = 0: one line of a pixel each end.
    RecordingSurface k(10, 10);
    Sankey_Spitze(k, 2, 3, 2, 2, BAND);
    EXPECT_EQ(k.of_kind(Kind::Line).size(), 2u);
}

TEST(SankeyPrimitive, BogenIsARingSectorWhoseWhiteDiskErasesItsInside) {
    RecordingSurface s(80, 80);
    s.FillStyle = FillMode::Solid;
    s.FillColor = BAND;
    s.FilledBox(35, 35, 45, 45, Rgb{0, 0, 255}); // something under the bend's inside
    Sankey_Bogen(s, 40, 40, 270, 360, 8, 10, BAND);
    // Lower right quarter between radius 10 and 18.
    EXPECT_EQ(s.pixel(40 + 10, 40 + 10), BAND); // radius 14
    EXPECT_EQ(s.pixel(40, 40 + 15), BAND);
    EXPECT_EQ(s.pixel(40 + 3, 40 + 3), WHITE); // erased, though blue was there
    EXPECT_EQ(s.pixel(40 - 10, 40 - 10), WHITE);
    EXPECT_EQ(s.FillColor, BAND);
    const auto pie = s.of_kind(Kind::Pie);
    ASSERT_EQ(pie.size(), 1u);
    EXPECT_EQ(pie[0].radius, 18);
    EXPECT_FLOAT_EQ(static_cast<float>(pie[0].start), static_cast<float>(-3.14159265 * 270 / 180));
    EXPECT_EQ(s.of_kind(Kind::Circle)[0].radius, 9);
}

TEST(SankeyPrimitive, SBendRadiusFollowsTheWidthAndGivesWayAtFortyNine) {
    EXPECT_EQ(s_bogen(10).r, 20);
    EXPECT_EQ(s_bogen(30).r, 10);
    EXPECT_EQ(s_bogen(47).r, 2); // 1.5 rounds to the even 2
    EXPECT_EQ(s_bogen(48).r, 1);
    EXPECT_EQ(s_bogen(49).r, 0); // 0.5 rounds to 0: no curve
    // The two arcs are tangent: dx² + (2r + b - dy)² = (2r + b)².
    const SBogen b = s_bogen(30);
    EXPECT_NEAR(30.0 * 30 + b.versatz * b.versatz, std::pow(2 * b.r + 30, 2), 1e-9);
    EXPECT_NEAR(b.theta, 90 - std::atan(b.versatz / 30) * 180 / 3.1416, 1e-12);
}

// The German new project and its heating diagram on the 420 x 300 surface.
class SankeyHeizenFall : public ::testing::Test {
protected:
    SankeyHeizenMasse zeichnen() {
        SankeyHeizen(*p, sk.f, einstellung("d"));
        return sankey_heizen_masse(*p, 300);
    }
    TempOrdner o;
    std::unique_ptr<Projekt> p = diagrammprojekt(o, "d");
    Sankey sk;
    const RecordingSurface& s = sk.Sankey_;
};

TEST_F(SankeyHeizenFall, BandWidthsSumAsTheBalanceDoes) {
    const auto m = zeichnen();
    // Each width is the floor of its value over S, so sums agree to the pixel.
    EXPECT_LE(std::abs(m.bPE - (m.bEE + m.bTV)), 1);
    EXPECT_LE(std::abs(m.bEE - (m.bQH + m.bSV)), 1);
    EXPECT_LE(std::abs((m.bQH + m.bQI + m.bQS) - (m.bQL + m.bQT)), 2);
    ASSERT_GT(m.bSV, 0);
    ASSERT_GT(m.bTV, 0);
    // The tallest stack fits: S is the largest candidate over 300 - 50 - 20 pixels.
    EXPECT_NEAR(m.S, (static_cast<double>(p->qsols) + p->qhs_sum + 2 * m.SV) / (300 - 50 - 20),
                1e-9);

    // The primary band: bPE rows from yP up at its right end, where the tail notch (half the
    // band deep) cuts only its middle.
    EXPECT_EQ(s.pixel(79, m.yP), BAND);
    EXPECT_EQ(s.pixel(79, m.yP + 1), WHITE);
    EXPECT_EQ(s.pixel(79, m.yP - m.bPE + 1), BAND);
    EXPECT_EQ(s.pixel(79, m.yP - m.bPE), WHITE);
    EXPECT_EQ(s.pixel(79, m.yP - m.bPE / 2), WHITE);
    // The end energy band at x 100, and the heat band at x 150 holds the heat demand plus the
    // gains that join it further right but not yet the internal gains below.
    EXPECT_EQ(pixel_in_spalte(s, 100, m.yE - 5, m.yP + 5, BAND), m.bEE);
    // The collected band between 230 and 280 is the whole balance: heat, internal and solar.
    EXPECT_EQ(pixel_in_spalte(s, 255, m.yD - m.bQS - 5, m.yC + 5, BAND), m.yC - (m.yD - m.bQS) + 1);
    EXPECT_EQ(m.yC - (m.yD - m.bQS), m.bQI + m.bQH + m.bQS);
    // The system loss arrow ends in a tip downward; the loss band has bSV + 1 columns.
    EXPECT_EQ(s.pixel(130 + m.bSV / 2, static_cast<int>(300 - 25 - m.bSV / 2.0) + 2), BAND);
    // The TV band's tip ends at y 25 for every width (to the pixel: an odd width puts its
    // edge on a half row).
    EXPECT_NEAR(oberste_zeile(s, 90 + m.bTV / 2, BAND), 25, 1);
    // The ventilation arrow's head ends at x 350.
    const int y_lueft = m.yF - 10 - m.bQL / 2;
    EXPECT_EQ(s.pixel(349, y_lueft), BAND);
    EXPECT_EQ(s.pixel(352, y_lueft), WHITE);
    // All bends come before the straight pieces.
    bool gerade = false;
    for (const auto& x : s.log()) {
        gerade = gerade || x.kind == Kind::FilledBox;
        EXPECT_FALSE(gerade && (x.kind == Kind::Pie || x.kind == Kind::Circle));
    }
}

TEST_F(SankeyHeizenFall, TransmissionSplitsByPartAndTheListGivesTheShares) {
    const auto t = transmissionsteilung(*p, zeichnen());
    // No door loss: B2 = B1, and no door line in the list.
    EXPECT_EQ(t.B2, t.B1);
    EXPECT_TRUE(s.prints("Tür (0 %)").empty());
    // White dividing lines at the boundaries.
    EXPECT_EQ(s.pixel(330, t.B1), WHITE);
    EXPECT_EQ(s.pixel(330, t.B3), WHITE);
    EXPECT_EQ(s.pixel(330, t.B1 + 3), BAND);
    const int dach = static_cast<int>(std::lround(p->qtr_Dach / p->qtr * 100));
    const auto zeile = s.prints("Dach (" + std::to_string(dach) + " %)");
    ASSERT_EQ(zeile.size(), 1u);
    // At 356 its longest line "Fenster (29 %)" would pass the right edge: the list moves left,
    // but not onto the arrow heads that end at 350.
    EXPECT_EQ(zeile[0].x1, 351);
    // On the plane's wider surface, without the window line, the list stands at 356.
    p->qtr_Fenster = 0;
    RecordingSurface ebene(436, 228), kuehlen(436, 228);
    SankeyFlaechen f{ebene, kuehlen};
    SankeyHeizen(*p, f, einstellung("d"));
    int zeilen = 0;
    for (const auto& t : ebene.of_kind(Kind::Print)) {
        if (t.text.find(" %)") != std::string::npos) {
            EXPECT_EQ(t.x1, 356) << t.text;
            ++zeilen;
        }
    }
    EXPECT_EQ(zeilen, 3);
}

TEST(SankeyHeizen, ASmallDoorLossKeepsABandOfTwoPixels) {
    TempOrdner o;
    auto p = diagrammprojekt(o, "e");
    p->qtr_Tuer = p->qtr * 0.001f;
    Sankey sk;
    SankeyHeizen(*p, sk.f, einstellung("e"));
    const auto m = sankey_heizen_masse(*p, 300);
    const auto t = transmissionsteilung(*p, m);
    EXPECT_EQ(t.B2, t.B1 - 2);
    // Its rectangle spans B1 - 1 .. B2 + 1 and its share shows as 0.
    bool tuer = false;
    for (const auto& b : sk.Sankey_.of_kind(Kind::FilledBox)) {
        tuer = tuer || (b.x1 == 310 && b.y1 == t.B1 - 1 && b.y2 == t.B2 + 1);
    }
    EXPECT_TRUE(tuer);
    EXPECT_EQ(sk.Sankey_.prints("door (0 %)").size(), 1u);
    EXPECT_EQ(sk.Sankey_.prints("transmission losses").size(), 1u);
}

TEST_F(SankeyHeizenFall, GainsFromTheEnvironmentAndRenewableEnergy) {
    // A heat pump: less end energy than heat demand, and primary energy equal to end energy.
    p->q_HE_Energietraeger = p->qhs_sum * 0.3f;
    p->q_HE_Strom = 0;
    p->q_PE_Energietraeger = p->q_HE_Energietraeger;
    p->q_PE_Strom = 0;
    const auto m = zeichnen();
    ASSERT_LT(m.bSV, 0);
    const int a = -m.bSV;
    // The main band's lower edge moves down by |bSV| at x 120.
    EXPECT_EQ(m.yB, m.yP + a);
    bool pfeil = false;
    for (const auto& b : s.of_kind(Kind::FilledBox)) {
        pfeil = pfeil || (b.x1 == 110 && b.x2 == 110 - a && b.y2 == 300 - 25);
    }
    EXPECT_TRUE(pfeil);
    // TV of exactly zero: the loss branch is drawn, the renewable text shows 0.0.
    EXPECT_EQ(m.TV, 0);
    einmal_gedruckt(s, {"Gewinne aus der Umwelt", "Erneuerbare Energien", "0.0 kWh/(m² a)"});
}

TEST_F(SankeyHeizenFall, AGainBandOfFortyNinePixelsOrMoreLosesItsSCurve) {
    const auto m = zeichnen();
    // Internal gains below 49 pixels bend in two arcs; solar gains and ventilation at 49 and
    // more run as slanted bands.
    ASSERT_LT(m.bQI, 49);
    ASSERT_GE(m.bQS, 49);
    ASSERT_GE(m.bQL, 49);
    EXPECT_EQ(s.of_kind(Kind::Pie).size(), 2u + 2u);
    // The solar slanted band: bQS + 1 lines from x 200 to 230 and one pixel beyond.
    int schraeg = 0;
    for (const auto& l : s.of_kind(Kind::Line)) {
        schraeg += l.x1 == 200 && l.x2 == 231 ? 1 : 0;
    }
    EXPECT_EQ(schraeg, m.bQS + 1);

    p->qsols = p->qsols / 2;
    ASSERT_LT(sankey_heizen_masse(*p, 300).bQS, 49);
    Sankey schmal;
    SankeyHeizen(*p, schmal.f, einstellung("d"));
    EXPECT_EQ(schmal.Sankey_.of_kind(Kind::Pie).size(), 2u + 4u);
}

TEST(SankeyHeizen, TextsOfBothLanguagesAtTheirAnchors) {
    TempOrdner o;
    for (const char* sprache : {"d", "e"}) {
        auto p = diagrammprojekt(o, sprache);
        Sankey sk;
        SankeyHeizen(*p, sk.f, einstellung(sprache));
        const RecordingSurface& s = sk.Sankey_;
        const bool de = std::string(sprache) == "d";
        const std::string lueftung = de ? "Lüftungsverluste" : "ventilation losses";
        const auto l = s.prints(lueftung);
        ASSERT_EQ(l.size(), 1u);
        EXPECT_EQ(l[0].x1, 415 - s.TextWidth(lueftung));
        EXPECT_EQ(l[0].y1, 0);
        EXPECT_EQ(l[0].font, "Arial");
        const std::string solar = de ? "nutzbare solare Gewinne" : "usable solar gains";
        ASSERT_EQ(s.prints(solar).size(), 1u);
        // Right of the band's middle, clear of the transformation losses' label.
        EXPECT_EQ(s.prints(solar)[0].x1, 240 - s.TextWidth(solar) / 2);
        const auto verluste = s.prints(de ? "Verluste Heizungssystem" : "losses of the heating");
        ASSERT_EQ(verluste.size(), 1u);
        EXPECT_GE(verluste[0].x1, 0); // begins inside the surface
        einmal_gedruckt(s, {de ? "Umwandlungs- und Transport-" : "losses for transformation",
                            de ? "Heizwärmebedarf" : "heat energy demand"});
    }
}

TEST(SankeyHeizen, AllZeroValuesGiveScaleOneAndZeroTexts) {
    auto p = leeres_projekt();
    Sankey sk;
    SankeyHeizen(*p, sk.f, einstellung("d"));
    const auto m = sankey_heizen_masse(*p, 300);
    EXPECT_EQ(m.S, 1);
    EXPECT_EQ(m.bPE, 0);
    EXPECT_FALSE(sk.Sankey_.prints("0.0 kWh/(m² a)").empty());
}

TEST(SankeyKuehlen, WithoutDemandOnlyTheCentredText) {
    TempOrdner o;
    for (const char* sprache : {"d", "e"}) {
        auto p = diagrammprojekt(o, sprache);
        Sankey sk;
        SankeyKuehlen(*p, sk.f, einstellung(sprache));
        const RecordingSurface& s = sk.Sankey_Kuehlen;
        const std::string text = std::string(sprache) == "d"
                                     ? "Kein Kühlbedarf vorhanden."
                                     : "The building has no cooling demand.";
        ASSERT_EQ(s.log().size(), 2u); // Cls and the text
        const auto t = s.prints(text);
        ASSERT_EQ(t.size(), 1u);
        EXPECT_EQ(t[0].x1, (420 - s.TextWidth(text)) / 2);
        EXPECT_EQ(t[0].y1, 300 / 2.0 - 6);
    }
}

TEST(SankeyKuehlen, FlowsOfACoolingBuilding) {
    TempOrdner o;
    auto p = kuehlprojekt(o, "d");
    Sankey sk;
    SankeyKuehlen(*p, sk.f, einstellung("d"));
    const auto m = sankey_kuehlen_masse(*p, 300, 11);
    ASSERT_GT(m.bC, 0);
    // Under the stack of cooling demand over end energy stands a block of seven text lines.
    EXPECT_EQ(m.y0, 300 - m.bC - m.bE - (4 + 7 * 11 + 1));
    const RecordingSurface& s = sk.Sankey_Kuehlen;
    // At x 250 the collected band and the end energy band lie one over the other.
    EXPECT_EQ(pixel_in_spalte(s, 250, 0, 299, KUEHLBAND), m.bC + m.bE);
    // Both outlet heads end at x 410.
    EXPECT_EQ(s.pixel(409, m.y0 + m.bC / 2), KUEHLBAND);
    EXPECT_EQ(s.pixel(412, m.y0 + m.bC / 2), WHITE);
    const int yP = m.y0 + m.bC + m.bE - 1;
    EXPECT_EQ(s.pixel(409, yP - m.bE / 2), KUEHLBAND);
    // The single bend is drawn among the pieces, after the inlets.
    EXPECT_EQ(s.of_kind(Kind::Pie).size(), 1u);
    bool transmission = false;
    for (const auto& t : s.printed_texts()) {
        transmission = transmission || t.rfind(" - Transmissionsgewinne: ", 0) == 0;
    }
    EXPECT_TRUE(transmission);
}

// The texts of a diagram whose box, as the surface measures it, holds a pixel of a band.
std::vector<std::string> texte_auf_baendern(const RecordingSurface& s, Rgb band) {
    std::vector<std::string> r;
    for (const auto& t : s.of_kind(Kind::Print)) {
        const int x0 = static_cast<int>(std::lround(t.x1));
        const int y0 = static_cast<int>(std::lround(t.y1));
        const int x1 = x0 + static_cast<int>(s.TextWidth(t.text));
        const int y1 = y0 + static_cast<int>(s.TextHeight(t.text));
        bool auf = false;
        for (int y = y0; y < y1 && !auf; ++y) {
            for (int x = x0; x < x1 && !auf; ++x) {
                auf = s.pixel(x, y) == band;
            }
        }
        if (auf) {
            r.push_back(t.text);
        }
    }
    return r;
}

// The cooling diagram read as a reader of flow diagrams reads it, on the plane's surface and
// on a taller one, for a weak, the usual and a strong cooling device: the loss rises from its
// bend before its head begins, every band shows its whole width behind its tail notch, the
// inlets add up to the collected band where they join it, the primary band is the loss and the
// end energy together, and no text stands on a band.
TEST(SankeyKuehlen, BandsJoinAndLeaveWithTheirWidthsAndTextsStandBesideThem) {
    TempOrdner o;
    struct Fall {
        float effizienz;
        int breite, hoehe;
    };
    const Fall faelle[] = {{2.5f, 436, 228}, {2.5f, 420, 300}, {1.0f, 436, 228},
                           {5.0f, 436, 228}, {1.0f, 420, 300}, {8.0f, 420, 300}};
    for (const char* sprache : {"d", "e"}) {
        auto p = kuehlprojekt(o, sprache);
        for (const Fall& f : faelle) {
            SCOPED_TRACE(std::string(sprache) + " efficiency " + std::to_string(f.effizienz) +
                         " on " + std::to_string(f.breite) + "x" + std::to_string(f.hoehe));
            p->Klimaeffizienz = f.effizienz;
            RecordingSurface heizen(f.breite, f.hoehe), kuehlen(f.breite, f.hoehe);
            SankeyFlaechen sf{heizen, kuehlen};
            SankeyKuehlen(*p, sf, einstellung(sprache));
            const auto m = sankey_kuehlen_masse(*p, f.hoehe, kuehlen.TextHeight("X"));
            ASSERT_GT(m.bC, 0);
            ASSERT_GT(m.bL, 0);
            // The end energy is the demand over the efficiency; the loss is held at 80 pixels
            // (reached on the taller surface), and a weak device shrinks the whole diagram.
            EXPECT_EQ(m.bE, static_cast<int>(m.bC / f.effizienz));
            EXPECT_LE(m.bL, 80);
            if (f.effizienz == 1.0f) {
                EXPECT_GE(m.bL, f.hoehe == 300 ? 78 : 1);
                p->Klimaeffizienz = 2.5f;
                EXPECT_LT(m.bC, sankey_kuehlen_masse(*p, f.hoehe, kuehlen.TextHeight("X")).bC);
            }
            if (std::string(sprache) == "d") {
                einmal_gedruckt(kuehlen,
                                {"Überschüssige", "Abwärme Kühlgerät", "End-Kühlenergiebedarf"});
            } else {
                einmal_gedruckt(kuehlen, {"Surplus", "Waste heat from cooling system"});
            }
            const int yP = m.y0 + m.bC + m.bE - 1;
            // The loss: its straight run between the bend and the head is not negative.
            const double bogen = yP - m.bE - m.bL - 10;
            EXPECT_GE(bogen - (m.bL / 2.0 + 25), 0);
            EXPECT_NEAR(
                oberste_zeile(kuehlen, static_cast<int>(m.xBogen) + 10 + m.bL / 2, KUEHLBAND), 25,
                1);
            // The primary band holds its whole width just before the bend, and it is the loss
            // and the end energy together.
            const int vor_bogen = static_cast<int>(m.xBogen) - 1;
            EXPECT_EQ(pixel_in_spalte(kuehlen, vor_bogen, 0, f.hoehe, KUEHLBAND), m.bP);
            EXPECT_NEAR(m.bP, m.bL + m.bE, 1);
            // The inlets show their whole widths before their slanted pieces, and where they
            // join the collected band it is exactly as wide as they are together; the end
            // energy runs below it.
            int einlaesse = 0;
            for (int w : m.bTeil) {
                einlaesse += w;
            }
            EXPECT_EQ(einlaesse, m.bC);
            const int vor_schraege = static_cast<int>(m.xEinlassEnde) - 1;
            EXPECT_EQ(pixel_in_spalte(kuehlen, vor_schraege, 0, f.hoehe, KUEHLBAND), m.bC + m.bE);
            const int am_stoss = static_cast<int>(m.xSammel);
            EXPECT_EQ(pixel_in_spalte(kuehlen, am_stoss, 0, f.hoehe, KUEHLBAND), m.bC + m.bE);
            EXPECT_EQ(pixel_in_spalte(kuehlen, am_stoss, m.y0, m.y0 + m.bC - 1, KUEHLBAND), m.bC);
            // Every text beside its band, inside the surface.
            EXPECT_EQ(texte_auf_baendern(kuehlen, KUEHLBAND), std::vector<std::string>{});
            for (const auto& t : kuehlen.of_kind(Kind::Print)) {
                EXPECT_GE(t.y1, 0) << t.text;
                EXPECT_LE(t.y1 + kuehlen.TextHeight(t.text), f.hoehe) << t.text;
            }
        }
    }
}

} // namespace

// A surface whose font is taller than the recording surface's, as a screen font may be.
class HoheSchrift : public RecordingSurface {
public:
    using RecordingSurface::RecordingSurface;
    double TextHeight(const std::string&) const override { return 14; }
};

TEST(SankeyKuehlen, TheListOfSurplusGainsStaysOnTheSurfaceWithATallFont) {
    TempOrdner o;
    auto p = kuehlprojekt(o, "d");
    for (int hoehe : {228, 300}) {
        RecordingSurface heizen(436, hoehe);
        HoheSchrift kuehlen(436, hoehe);
        SankeyFlaechen f{heizen, kuehlen};
        SankeyKuehlen(*p, f, einstellung("d"));
        std::vector<double> zeilen;
        for (const auto& t : kuehlen.of_kind(Kind::Print)) {
            if (t.text == "Überschüssige" || t.text.rfind(" - ", 0) == 0) {
                zeilen.push_back(t.y1);
            }
        }
        ASSERT_EQ(zeilen.size(), 5u);
        const double abstand = zeilen[1] - zeilen[0];
        EXPECT_GT(abstand, 10);
        EXPECT_LE(abstand, 14);
        for (std::size_t i = 1; i < zeilen.size(); ++i) {
            EXPECT_NEAR(zeilen[i] - zeilen[i - 1], abstand, 1e-9);
        }
        // The last line ends on the surface.
        EXPECT_LE(zeilen.back() + abstand, hoehe);
    }
}
