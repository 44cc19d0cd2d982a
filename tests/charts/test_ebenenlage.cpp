// SPDX-License-Identifier: GPL-3.0-or-later
// Where tooltip frames come up and how the enlarged temperature window is laid out.

#include "charts/Ebenenlage.h"

#include <gtest/gtest.h>

namespace {

TEST(Ebenenlage, TooltipStandsAboveLeftOfThePointerAndStaysInsideThePlane) {
    struct Fall {
        Lagepunkt zeiger;
        int x, y;
    };
    // A frame of 120 x 60 on a plane of 450 x 400.
    const Fall faelle[] = {
        {{100, 80}, 95, 60},   // ordinary place
        {{3, 80}, 0, 60},      // held at the left edge
        {{100, 10}, 95, 0},    // held at the top
        {{440, 80}, 330, 60},  // a year chart at the right edge: held inside
        {{300, 395}, 295, 340} // held at the bottom
    };
    for (const Fall& f : faelle) {
        const Lagepunkt l = tooltip_lage(f.zeiger, 120, 60, 450, 400);
        EXPECT_EQ(l.x, f.x) << f.zeiger.x;
        EXPECT_EQ(l.y, f.y) << f.zeiger.y;
    }
    // Wider than the plane: its beginning shows.
    EXPECT_EQ(tooltip_lage({200, 80}, 500, 60, 450, 400).x, 0);
}

TEST(Ebenenlage, EnergyTooltipStandsLeftOfThePointerAndMovesUpAtTheBottom) {
    const Lagepunkt l = tooltip_lage_energie({300, 100}, 180, 72, 400);
    EXPECT_EQ(l.x, 115);
    EXPECT_EQ(l.y, 80);
    EXPECT_EQ(tooltip_lage_energie({100, 100}, 180, 72, 400).x, 0);
    // Ending below the plane: 50 plus its height above the pointer.
    EXPECT_EQ(tooltip_lage_energie({300, 380}, 180, 72, 400).y, 380 - 50 - 72);
}

TEST(Ebenenlage, ZoomWindowButtonsCoverTheWidthAndOverlapByOnePixel) {
    const ZoomLage z = zoom_lage(800, 600);
    EXPECT_EQ(z.Temperaturen_Width, 784);
    EXPECT_EQ(z.Temperaturen_Height, 544);
    EXPECT_EQ(z.Schliessen_Left, 656);
    EXPECT_EQ(z.Schliessen_Top, 567);
    EXPECT_EQ(z.Monatsbutton_Left[0], 0);
    EXPECT_EQ(z.Monatsbutton_Left[1], 67); // 66.67
    EXPECT_EQ(z.Monatsbutton_Width[0], 68);
    EXPECT_EQ(z.Monatsbutton_Left[11] + z.Monatsbutton_Width[11], 801);
    // 2.5 rounds to the even 2 at a width of 30.
    EXPECT_EQ(zoom_lage(30, 100).Monatsbutton_Left[1], 2);
}

} // namespace
