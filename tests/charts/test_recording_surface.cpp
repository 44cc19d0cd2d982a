// SPDX-License-Identifier: GPL-3.0-or-later
// The raster and the log of the test surface: every chart test reads pixels through it, so its
// conventions (end pixel, inclusive boxes, pie quadrants) must hold first.

#include "charts/RecordingSurface.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr Rgb ROT{255, 0, 0};
constexpr Rgb BLAU{0, 0, 255};

TEST(RecordingSurface, LineLeavesOutItsEndPixelAndBoxesCoverBothCorners) {
    RecordingSurface s(40, 40);
    s.Line(5, 5, 10, 5, ROT);
    EXPECT_EQ(s.pixel(5, 5), ROT);
    EXPECT_EQ(s.pixel(9, 5), ROT);
    EXPECT_EQ(s.pixel(10, 5), WHITE);

    s.FilledBox(20, 30, 22, 25, BLAU); // corners in any order
    EXPECT_EQ(s.pixel(20, 25), BLAU);
    EXPECT_EQ(s.pixel(22, 30), BLAU);
    EXPECT_EQ(s.pixel(23, 30), WHITE);
    EXPECT_EQ(s.pixel(21, 24), WHITE);

    s.Box(1, 1, 4, 4, BLAU);
    EXPECT_EQ(s.pixel(4, 4), BLAU);
    EXPECT_EQ(s.pixel(2, 2), WHITE);
}

TEST(RecordingSurface, FractionalCoordinatesRoundToTheNearestPixel) {
    RecordingSurface s(40, 40);
    s.FilledBox(10, 97.2 - 80, 12, 97.6 - 80, ROT);
    EXPECT_EQ(s.pixel(10, 17), ROT);
    EXPECT_EQ(s.pixel(10, 18), ROT);
    EXPECT_EQ(s.pixel(10, 19), WHITE);
}

TEST(RecordingSurface, PieWithNegativeAnglesIsAFilledSectorCounterClockwise) {
    RecordingSurface s(60, 60);
    s.FillStyle = FillMode::Solid;
    s.FillColor = ROT;
    // From 270 to 360 degrees: the quarter below and right of the centre (y grows downward).
    s.Circle(30, 30, 20, ROT, -4.712389f, -6.283185f);
    EXPECT_EQ(s.pixel(40, 40), ROT);
    EXPECT_EQ(s.pixel(20, 20), WHITE);
    EXPECT_EQ(s.pixel(40, 20), WHITE);
    EXPECT_EQ(s.pixel(20, 40), WHITE);
    // A white full circle with a white fill erases the inside.
    s.FillColor = WHITE;
    s.Circle(30, 30, 9, WHITE);
    EXPECT_EQ(s.pixel(35, 35), WHITE);
    EXPECT_EQ(s.pixel(40, 40), ROT);
    // A radius below half a pixel draws nothing.
    s.Circle(40, 40, 0, BLAU);
    EXPECT_EQ(s.pixel(40, 40), ROT);
}

TEST(RecordingSurface, ClsAndPrintMoveTheDrawingPositionAndTheModelMeasuresText) {
    RecordingSurface s(100, 50, Rgb{1, 2, 3});
    s.FilledBox(0, 0, 99, 49, ROT);
    s.CurrentX = 7;
    s.CurrentY = 9;
    s.Cls();
    EXPECT_EQ(s.pixel(50, 25), (Rgb{1, 2, 3}));
    EXPECT_EQ(s.CurrentX, 0);
    EXPECT_EQ(s.CurrentY, 0);

    s.FontSize = 8.25;
    EXPECT_EQ(s.TextWidth(" 10"), 18);
    EXPECT_EQ(s.TextWidth("Mär."), 24); // characters, not bytes
    EXPECT_EQ(s.TextHeight("T"), 11);
    s.CurrentX = 12;
    s.CurrentY = 3;
    s.Print("abc");
    EXPECT_EQ(s.CurrentX, 0);
    EXPECT_EQ(s.CurrentY, 14);
    ASSERT_EQ(s.prints("abc").size(), 1u);
    EXPECT_EQ(s.prints("abc")[0].x1, 12);
    EXPECT_EQ(s.prints("abc")[0].font, "MS Sans Serif");
}

TEST(RecordingSurface, RunawayCoordinatesNeitherCrashNorPaintBeyondTheSurface) {
    RecordingSurface s(20, 20);
    s.FilledBox(-1e300, 5, 1e300, 6, ROT);
    s.Line(0, 0, 1e12, 1e12, ROT);
    s.Line(0, 0, std::nan(""), 3, ROT);
    s.Circle(10, 10, 1e9, ROT);
    EXPECT_EQ(s.pixel(0, 5), ROT);
    EXPECT_EQ(s.pixel(19, 6), ROT);
    EXPECT_EQ(s.Point(-5, 3), WHITE);
}

} // namespace
