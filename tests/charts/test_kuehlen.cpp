// SPDX-License-Identifier: GPL-3.0-or-later
// The cooling plane's three chart pairs on their lower frame, and the temperature course.

#include "charts/A_Kuehlen.h"
#include "charts/A_Uebersicht.h"
#include "tests/charts/Diagrammhilfe.h"

#include "project/c_glob.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

using Kind = RecordingSurface::Primitive::Kind;

const ChartTheme T;

TEST(Kuehlen, ABuildingWithoutCoolingShowsTheAxesWithStepOneAndNoBar) {
    TempOrdner o;
    auto p = diagrammprojekt(o, "d");
    Kuehlen k;
    const auto e = einstellung("d");
    StundenProTagZeichnen(*p, k.f, e);
    KuehlBedarfZeichnen(*p, k.f, e);
    KuehlGradStundenZeichnen(*p, k.f, e);
    for (const RecordingSurface* s :
         {&k.StundenProTagMonat, &k.StundenProTagJahr, &k.KuehlbedarfMonat, &k.KuehlbedarfJahr,
          &k.KuehlGradStundenMonat, &k.KuehlGradStundenJahr}) {
        EXPECT_TRUE(s->of_kind(Kind::FilledBox).empty());
        EXPECT_EQ(s->prints(" 1").size(), 1u);
    }
    // Four steps on the hours per day, five on the others.
    EXPECT_EQ(k.StundenProTagMonat.prints(" 4").size(), 1u);
    EXPECT_EQ(k.KuehlbedarfMonat.prints(" 5").size(), 1u);
    // The lower frame: vertical axis from (30,110) to (30,20).
    const auto achse = k.KuehlbedarfMonat.of_kind(Kind::Line)[0];
    EXPECT_EQ(achse.y1, 110);
    EXPECT_EQ(achse.y2, 20);
    einmal_gedruckt(k.StundenProTagJahr, {"Jahresmittel"});
    einmal_gedruckt(k.KuehlGradStundenJahr, {"Jahressumme"});
    einmal_gedruckt(k.KuehlbedarfJahr, {"Jahresbilanz"});
}

TEST(Kuehlen, BarsOfACoolingSummerOnTheirSteps) {
    TempOrdner o;
    auto p = kuehlprojekt(o, "e");
    Kuehlen k;
    const auto e = einstellung("e");
    StundenProTagZeichnen(*p, k.f, e);
    KuehlBedarfZeichnen(*p, k.f, e);
    KuehlGradStundenZeichnen(*p, k.f, e);

    // July overheats every hour: 24 h a day takes the step 6 and fills the axis.
    ASSERT_EQ(p->Monat[7].Stunden_heiss, 744);
    const double x0 = 35 + 24 * 6;
    bool juli = false;
    for (const auto& b : boxen(k.StundenProTagMonat, T.ueberwaermung)) {
        if (b.x1 == x0) {
            juli = true;
            EXPECT_EQ(b.x2, x0 + 18);
            EXPECT_EQ(b.y1, 109);
            EXPECT_NEAR(b.y2, 109 - (24.0 / 6) * 89 / 4, 1e-9);
        }
    }
    EXPECT_TRUE(juli);
    EXPECT_EQ(k.StundenProTagMonat.pixel(static_cast<int>(x0) + 9, 21), T.ueberwaermung);
    EXPECT_EQ(k.StundenProTagMonat.prints("h / d").size(), 1u);
    // Months without cooling hours get no bar at all.
    int monate = 0;
    double heiss = 0, kgh = 0;
    for (int m = 1; m <= 12; ++m) {
        monate += p->Monat[m].Stunden_heiss > 0 ? 1 : 0;
        heiss += p->Monat[m].Stunden_heiss;
        kgh += p->Monat[m].Kuehlgradstunden;
    }
    EXPECT_EQ(static_cast<int>(boxen(k.StundenProTagMonat, T.ueberwaermung).size()), monate);

    // The year's mean over 365 days.
    const auto jahr = boxen(k.StundenProTagJahr, T.ueberwaermung);
    ASSERT_EQ(jahr.size(), 1u);
    EXPECT_EQ(jahr[0].x1, 45);
    EXPECT_EQ(jahr[0].x2, 70);
    // A mean of 5.3 hours a day takes the step 2.
    EXPECT_NEAR(jahr[0].y2, 109 - (heiss / 365 / 2) * 89 / 4, 1e-9);
    einmal_gedruckt(k.StundenProTagJahr, {" 8", "yearly mean"});

    // Degree hours of the year beyond 2500 take the step 5000 at once.
    ASSERT_GE(kgh, 2500);
    // Its five-digit numbers lose their blank and take a smaller size, so that they begin
    // inside the surface.
    const auto oben = k.KuehlGradStundenJahr.prints("25000");
    ASSERT_EQ(oben.size(), 1u);
    EXPECT_GE(oben[0].x1, 0);
    EXPECT_LT(oben[0].font_size, T.schriftgroesse);
    einmal_gedruckt(k.KuehlGradStundenJahr, {"yearly sum"});
    einmal_gedruckt(k.KuehlGradStundenMonat, {"Kh"});
    EXPECT_FALSE(boxen(k.KuehlGradStundenMonat, T.kuehlgradstunden).empty());

    // Cooling demand per m²: blue bars, the year on the overview's table.
    EXPECT_FALSE(boxen(k.KuehlbedarfMonat, T.kuehlen).empty());
    einmal_gedruckt(k.KuehlbedarfMonat, {"kWh/(m² month)"});
    einmal_gedruckt(k.KuehlbedarfJahr, {"kWh/(m²a)", "yearly balance"});
}

TEST(Temperaturdiagramm, AxisEndsFromTheMonthsRangeAndOddDayNumbers) {
    TempOrdner o;
    auto p = diagrammprojekt(o, "d");
    p->Monat_Uebersicht = 1;
    Uebersicht u;
    TemperaturDiagrammZeichnen(*p, u.Temperaturen, einstellung("d"));
    // January runs from -3 to 5 °C: the step 1 with a step's room at both ends.
    einmal_gedruckt(u.Temperaturen, {"-4", "6"});
    EXPECT_TRUE(u.Temperaturen.prints("-5").empty());
    // 560 pixels wide: only odd days are numbered, and the axis runs to day 31.
    std::vector<std::string> tage;
    for (const auto& t : u.Temperaturen.of_kind(Kind::Print)) {
        if (t.y1 == 250 - 20 + 3) {
            tage.push_back(t.text);
        }
    }
    ASSERT_EQ(tage.size(), 16u);
    EXPECT_EQ(tage[0], "1");
    EXPECT_EQ(tage[1], "3");
    EXPECT_EQ(tage[15], "31");
    einmal_gedruckt(u.Temperaturen, {"Raumlufttemperatur", "Außenlufttemperatur"});
    // The day-0 line is the black axis; the others are grey grid.
    EXPECT_EQ(u.Temperaturen.pixel(30, 100), T.achsen);
    // The outdoor curve is drawn first (blue), the room curve over it (red).
    const auto kurven = u.Temperaturen.of_kind(Kind::FilledBox);
    ASSERT_EQ(kurven.size(), 2 + 2 * (31 * 24 - 1));
    EXPECT_EQ(kurven[2].colour, T.kuehlen);
    EXPECT_EQ(kurven.back().colour, T.heizen);
    // The first point: hour 2 of day 1 at x 30.7, and -3 °C one kelvin (19.5 rows) above the
    // axis end -4 at row 230, 210.5 rounding to the even 210.
    ASSERT_DOUBLE_EQ(p->Wetter(1, 1, 2).Ta, -3);
    EXPECT_EQ(kurven[2].x1, 31);
    EXPECT_EQ(kurven[2].y2, 210);
}

TEST(Temperaturdiagramm, AWideSurfaceNumbersEveryDayAndFebruaryLeavesTheRestEmpty) {
    TempOrdner o;
    auto p = diagrammprojekt(o, "e");
    p->Monat_Uebersicht = 2;
    RecordingSurface gross(700, 400);
    TemperaturDiagrammZeichnen(*p, gross, einstellung("e"));
    int tage = 0;
    for (const auto& t : gross.of_kind(Kind::Print)) {
        tage += t.y1 == 400 - 20 + 3 ? 1 : 0;
    }
    EXPECT_EQ(tage, 31);
    EXPECT_EQ(gross.prints("room air temperature").size(), 1u);
    // 28 days of 24 hours: the curve stops at day 28 of the 31.
    const auto kurven = gross.of_kind(Kind::FilledBox);
    EXPECT_EQ(kurven.size(), 2 + 2 * (28 * 24 - 1));
    const double xf = (700 - 10 - 30) / 31.0;
    EXPECT_EQ(kurven.back().x2, std::nearbyint(30 + xf * 28));
}

TEST(Temperaturdiagramm, TemperaturesOfZeroTakeTheEndsZeroWithoutFault) {
    auto p = leeres_projekt();
    p->Monat_Uebersicht = 7;
    p->Monat[7].Tage = 31;
    RecordingSurface s(560, 250);
    TemperaturDiagrammZeichnen(*p, s, einstellung("d"));
    EXPECT_EQ(s.prints("0").size(), 1u);
    // The curves lie on the lower axis (the first two boxes are the legend).
    const auto kurven = s.of_kind(Kind::FilledBox);
    ASSERT_EQ(kurven.size(), 2 + 2 * (31 * 24 - 1));
    for (std::size_t i = 2; i < kurven.size(); ++i) {
        EXPECT_EQ(kurven[i].y1, 230);
    }
}

} // namespace
