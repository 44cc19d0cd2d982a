// SPDX-License-Identifier: GPL-3.0-or-later
// The small charts of the geometry and energy planes: the A/V bar, the orientation sketch, the
// monthly energy chart and the pictograms.

#include "charts/Energiebilder.h"
#include "charts/Geometriebilder.h"
#include "planes/E_Geometrie.h"
#include "tests/charts/Diagrammhilfe.h"

#include "calc/c_mod.h"
#include "energy/energie.h"
#include "project/c_glob.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

using Kind = RecordingSurface::Primitive::Kind;

const ChartTheme T;

// The recalculated German project of the chart tests.
class Diagrammfall : public ::testing::Test {
protected:
    TempOrdner o;
    std::unique_ptr<Projekt> p = diagrammprojekt(o, "d");
};
using AVDiagramm = Diagrammfall;
using Lageplan = Diagrammfall;
using Monatsverbrauch = Diagrammfall;
using Energietraeger = Diagrammfall;

TEST_F(AVDiagramm, TheBarStandsAtTheCompactnessOfTheBuilding) {
    // A/V 408/520 at 520 m³: the compactness 6.31 puts the bar top at row 66.
    const int y = av_balken_y(*p);
    EXPECT_EQ(y, 66);
    RecordingSurface s(60, 130, Rgb{200, 200, 200});
    AV_diagramm(*p, s, T);
    EXPECT_EQ(s.pixel(47, 123), T.heizen);
    EXPECT_EQ(s.pixel(47, y), T.heizen);
    EXPECT_EQ(s.pixel(47, y - 1), WHITE);
    EXPECT_EQ(s.pixel(47, 7), WHITE);
    EXPECT_EQ(s.pixel(47, 6), (Rgb{200, 200, 200})); // nothing cleared beyond the bar
}

TEST_F(AVDiagramm, AnElongatedBuildingStopsAtSevenWithoutWhitePart) {
    p->l = 50;
    p->b = 2;
    p->h = 2;
    alles_berechnen(*p);
    EXPECT_EQ(av_balken_y(*p), 7);
    RecordingSurface s(60, 130);
    AV_diagramm(*p, s, T);
    ASSERT_EQ(s.of_kind(Kind::FilledBox).size(), 1u);
    EXPECT_EQ(s.of_kind(Kind::FilledBox)[0].y2, 7);
}

TEST_F(Lageplan, TheSouthArrowTurnsWithTheOrientation) {
    RecordingSurface s(80, 80);
    Lageplan_zeichnen(*p, s, T);
    // orient 0: the shaft runs straight down through the centre, the barbs point up from its
    // lower end.
    EXPECT_EQ(s.pixel(40, 40), T.heizen);
    EXPECT_EQ(s.pixel(40, 50), T.heizen);
    const auto linien = s.of_kind(Kind::Line);
    ASSERT_EQ(linien.size(), 12u);
    EXPECT_EQ(linien[0].colour, T.gitter);
    EXPECT_NEAR(linien[9].x1, 40, 1e-9);
    EXPECT_NEAR(linien[9].y1, 54, 1e-9);
    EXPECT_NEAR(linien[9].y2, 26, 1e-9);

    p->orient = 45;
    RecordingSurface t(80, 80);
    Lageplan_zeichnen(*p, t, T);
    const auto schaft = t.of_kind(Kind::Line)[9];
    EXPECT_NEAR(schaft.x1, 40 - std::sin(45 * 0.01745) * 14, 1e-9);
    EXPECT_NEAR(schaft.y1, 40 + std::cos(45 * 0.01745) * 14, 1e-9);
}

TEST_F(Monatsverbrauch, ColumnsOfEndAndPrimaryEnergyOnTheirStep) {
    RecordingSurface s(330, 115);
    Monatsverbrauch_zeichnen(*p, s, einstellung("d"));
    const Energiemonate w = energie_monatswerte(*p);
    double M = 0;
    for (int m = 1; m <= 12; ++m) {
        M = std::max(
            {M, static_cast<double>(w.E[m]) + w.H[m], static_cast<double>(w.P[m]) + w.Q[m]});
    }
    ASSERT_GE(M, 15);
    ASSERT_LT(M, 30);
    const double S = 10;
    EXPECT_EQ(s.prints(" 30").size(), 1u);
    const auto rot = boxen(s, Rgb{255, 0, 0});
    ASSERT_EQ(rot.size(), 12u);
    EXPECT_EQ(rot[0].x1, 35);
    EXPECT_EQ(rot[0].y1, 95);
    EXPECT_NEAR(rot[0].y2, 95 - w.E[1] / S * 90 / 3, 1e-9);
    const auto hilfe = boxen(s, Rgb{255, 128, 0});
    ASSERT_FALSE(hilfe.empty());
    EXPECT_NEAR(hilfe[0].y1, rot[0].y2, 1e-9);
    EXPECT_EQ(boxen(s, Rgb{128, 0, 0}).size(), 12u);
    // Ticks at 95 - i 89 / 3, a little below the columns' scale.
    std::vector<double> ticks;
    for (const auto& l : s.of_kind(Kind::Line)) {
        if (l.x1 == 27) {
            ticks.push_back(l.y1);
        }
    }
    ASSERT_EQ(ticks.size(), 4u);
    EXPECT_NEAR(ticks[3], 95 - 89.0, 1e-9);
    EXPECT_EQ(s.prints("Jan.")[0].y1, 98);
    EXPECT_EQ(s.prints(" 30")[0].font, "MS Sans Serif");
}

TEST_F(Monatsverbrauch, LargeNumbersGoToTheSmallFontAndBackForTheColumns) {
    p->q_HE_Energietraeger = 40000;
    p->q_PE_Energietraeger = 40000;
    RecordingSurface s(330, 115);
    Monatsverbrauch_zeichnen(*p, s, einstellung("d"));
    bool klein = false;
    for (const auto& t : s.of_kind(Kind::Print)) {
        if (t.x1 < 25 && t.text != " 0") {
            klein = true;
            EXPECT_EQ(t.font, "Arial");
            EXPECT_EQ(t.font_size, 6.75);
        }
    }
    EXPECT_TRUE(klein);
    EXPECT_EQ(s.FontName, "MS Sans Serif");
    EXPECT_EQ(s.FontSize, 8.25);
}

TEST_F(Energietraeger, OilTankFillsByTheEndEnergyAndTheAuxiliaryFlash) {
    ASSERT_EQ(p->Energie.Traegername, "Heizöl");
    RecordingSurface bild2(80, 50), bild3(80, 50);
    Energietraeger_zeichnen(*p, bild2, bild3, einstellung("d"));
    const double v = std::min(p->q_HE_Energietraeger / 2.0, 100.0);
    const Rgb oel{255, 255, 96};
    EXPECT_EQ(bild2.pixel(40, 44), oel);
    EXPECT_EQ(bild2.pixel(40, static_cast<int>(std::lround(44 - v * 0.38)) + 1), oel);
    EXPECT_NE(bild2.pixel(40, static_cast<int>(std::lround(44 - v * 0.38)) - 2), oel);
    EXPECT_EQ(bild2.prints("Heizöl:")[0].x1, 40 - bild2.TextWidth("Heizöl:") / 2);
    EXPECT_EQ(bild2.prints("Heizöl:")[0].y1, 10);
    const std::string menge =
        std::to_string(std::lround(p->f_nutz * p->q_HE_Energietraeger / 10.08)) + " l/a";
    EXPECT_EQ(bild2.prints(menge).size(), 1u);
    einmal_gedruckt(bild3, {"Strom:"});
    EXPECT_FALSE(bild3.of_kind(Kind::Line).empty());

    RecordingSurface e2(80, 50), e3(80, 50);
    Energietraeger_zeichnen(*p, e2, e3, einstellung("e"));
    einmal_gedruckt(e2, {"fuel oil:"});
    einmal_gedruckt(e3, {"electricity:"});
}

TEST_F(Energietraeger, TheOilLevelIsCappedAndElectricityLeavesTheSecondPictureBlank) {
    p->q_HE_Energietraeger = 300;
    RecordingSurface a(80, 50), a3(80, 50);
    Energietraeger_zeichnen(*p, a, a3, einstellung("d"));
    p->q_HE_Energietraeger = 200;
    RecordingSurface b(80, 50), b3(80, 50);
    Energietraeger_zeichnen(*p, b, b3, einstellung("d"));
    EXPECT_EQ(boxen(a, Rgb{255, 255, 96})[0].y2, boxen(b, Rgb{255, 255, 96})[0].y2);

    p->Energie.Traegername = "Strom";
    p->Energie.Traegername_e = "electricity";
    RecordingSurface s2(80, 50), s3(80, 50);
    Energietraeger_zeichnen(*p, s2, s3, einstellung("d"));
    ASSERT_EQ(s3.log().size(), 1u);
    EXPECT_EQ(s3.log()[0].kind, Kind::Cls);
    EXPECT_EQ(s2.prints("Strom:").size(), 1u);
    EXPECT_EQ(boxen(s2, Rgb{255, 255, 96}).size(), 0u);
}

TEST_F(Energietraeger, ACarrierNameWiderThanThePictureBeginsAtItsLeftEdge) {
    p->Energie.Traegername = "Nah-/Fernwärme";
    p->Energie.Traegername_e = "district heat";
    for (const auto& [sprache, titel] :
         {std::pair{"d", "Nah-/Fernwärme:"}, std::pair{"e", "district heat:"}}) {
        RecordingSurface s2(80, 52), s3(80, 52);
        Energietraeger_zeichnen(*p, s2, s3, einstellung(sprache));
        const auto t = s2.prints(titel);
        ASSERT_EQ(t.size(), 1u);
        EXPECT_EQ(t[0].x1, std::max(0.0, 80 - s2.TextWidth(titel))) << titel;
    }
}

TEST_F(Energietraeger, WoodPileHasRowsByTheSizeValue) {
    p->Energie.Traegername = "Holz";
    p->q_HE_Energietraeger = 200; // v = 100: n = Int(sqrt(56.25) - 0.5) = 7 rows
    RecordingSurface s2(80, 50), s3(80, 50);
    Energietraeger_zeichnen(*p, s2, s3, einstellung("d"));
    EXPECT_EQ(s2.of_kind(Kind::Circle).size(), 7u * 8u / 2u);
    EXPECT_EQ(s2.prints(std::to_string(std::lround(p->f_nutz * 200 / 4.6)) + " kg/a").size(), 1u);
}

TEST_F(Energietraeger, AnEndEnergyThatIsNotANumberDrawsNoPictogramAndNoFault) {
    p->q_HE_Energietraeger = std::nanf("");
    for (const char* traeger : {"Holz", "Strom", "Erdgas"}) {
        p->Energie.Traegername = traeger;
        RecordingSurface s2(80, 50), s3(80, 50);
        Energietraeger_zeichnen(*p, s2, s3, einstellung("d"));
        EXPECT_EQ(s2.prints(std::string(traeger) + ":").size(), 1u);
        EXPECT_EQ(s2.pixel(40, 44), WHITE) << traeger;
    }
}

} // namespace
