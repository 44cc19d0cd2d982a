// SPDX-License-Identifier: GPL-3.0-or-later
// Sun position and incidence factors against values worked out from the geometry of the sky.
#include "climate/Einfallsfaktoren.h"
#include "climate/Sonne.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {
constexpr float BREITE_50 = static_cast<float>(50 * 0.01745);
}

TEST(Sonne, ArccosAgreesWithTheLibraryToSinglePrecision) {
    for (double x = -0.99; x < 1; x += 0.03) {
        EXPECT_NEAR(arccos(x), std::acos(x), 1e-4) << x;
    }
}

TEST(Sonne, PolarDayAndPolarNight) {
    // At 80° north the sun never sets at midsummer and never rises at midwinter.
    const float polar = static_cast<float>(80 * 0.01745);
    const Sonnenaufgang sommer = sonnenaufgang(172, polar, 0);
    EXPECT_NEAR(sommer.SA, 12 - 3.14159 / 0.01745 / 15, 1e-9);
    const Sonnenaufgang winter = sonnenaufgang(355, polar, 7);
    EXPECT_NEAR(winter.SA, 12 - 7.0 / 15, 1e-9);
    EXPECT_NEAR(winter.SU, 12 - 7.0 / 15, 1e-6);
}

TEST(Sonne, SampleTimeMovesIntoTheSunlitPartOfTheFirstAndLastHour) {
    Sonnenaufgang s;
    s.SA = 6.4;
    s.SU = 17.25f;
    EXPECT_DOUBLE_EQ(stichzeit(5, s), 4.5);
    EXPECT_DOUBLE_EQ(stichzeit(7, s), (7 + 6.4) / 2);
    EXPECT_DOUBLE_EQ(stichzeit(12, s), 11.5);
    EXPECT_DOUBLE_EQ(stichzeit(18, s), (18 + 17.25 - 1) / 2);
    // When both fall into one hour, sunset wins.
    s.SA = 11.2;
    s.SU = 11.8f;
    EXPECT_NEAR(stichzeit(12, s), (12 + 11.8 - 1) / 2, 1e-6);
}

TEST(Sonne, DirectFactorIsOneOverCosZenithAndZeroAtNight) {
    // Equinox noon at 50° N: zenith about 50°, so the factor is about 1 / cos 50° = 1.556.
    // Solar noon at L = 0 falls at 12 h minus the equation of time (about -7.5 min on day 80).
    const float mittag = direktfaktor_horizontal(80, 0, 12.1, BREITE_50);
    EXPECT_NEAR(mittag, 1 / std::cos(50 * 3.14159265 / 180), 0.03);
    EXPECT_FLOAT_EQ(direktfaktor_horizontal(80, 0, 0.5, BREITE_50), 0);
    EXPECT_FLOAT_EQ(direktfaktor_horizontal(355, 0, 23.5, BREITE_50), 0);
}

// The horizontal factor worked through with the declination and the hour angle either in full
// precision or rounded to float; only the plane factor rounds them.
float direktfaktor_von_hand(int n, double t, float Breite, bool gerundet) {
    double delta = std::sin((n + 284) / 365.0 * 6.2832) * 23.45 * 0.01745;
    const double B = (n - 81) * 360.0 / 364 * 0.01745;
    const double E = 9.87 * std::sin(2 * B) - 7.53 * std::cos(B) - 1.5 * std::sin(B);
    double w = ((t + E / 60) * 15 - 180) * 0.01745;
    if (gerundet) {
        delta = static_cast<float>(delta);
        w = static_cast<float>(w);
    }
    const double phi = Breite;
    const double cosz =
        std::cos(delta) * std::cos(w) * std::cos(phi) + std::sin(phi) * std::sin(delta);
    return cosz > 0.00001 ? static_cast<float>(1 / cosz) : 0.0f;
}

TEST(Sonne, DirectFactorKeepsDeclinationAndHourAngleInFullPrecision) {
    // Morning hours of every day, where 1 / cos z is steep: the factor is the full-precision
    // one bit for bit, and on many of them the rounded angles would give another float.
    int anders_gerundet = 0;
    for (int n = 1; n <= 365; ++n) {
        for (double t : {4.75, 5.5, 6.25, 7.5}) {
            const float f = direktfaktor_horizontal(n, 0, t, BREITE_50);
            ASSERT_EQ(f, direktfaktor_von_hand(n, t, BREITE_50, false)) << n << " " << t;
            anders_gerundet += f != direktfaktor_von_hand(n, t, BREITE_50, true);
        }
    }
    EXPECT_GT(anders_gerundet, 100);
}

TEST(Sonne, IncidenceFactorOfPlanes) {
    // A plane turned to face the sun gets factor 1; at cos θ = 0.5 the flat-angle loss leaves
    // (1 - 0.5^2.5) · 0.5 = 0.4116.
    Sonnenstunde s{0, 1, 0, 1}; // declination 0, hour angle 0: the sun in the south, on the
                                // equator
    const Ebenenlage horizontal = ebenenlage(0, 0, 0);
    EXPECT_FLOAT_EQ(einfallsfaktor(s, horizontal, 0, 1), 1.0f); // at the equator, noon
    const double phi = 60 * 3.14159265 / 180;                   // zenith 60° -> cos θ = 0.5
    EXPECT_NEAR(einfallsfaktor(s, horizontal, std::sin(phi), std::cos(phi)), 0.4116, 1e-4);
    // The north wall at a winter noon sees no direct sun.
    EXPECT_FLOAT_EQ(einfallsfaktor_ebene(355, 0, 12, 180, 90, BREITE_50, 0), 0);
    EXPECT_GT(einfallsfaktor_ebene(355, 0, 12, 0, 90, BREITE_50, 0), 0.5f);
    // Morning sun falls on the east wall, evening sun on the west wall.
    EXPECT_GT(einfallsfaktor_ebene(172, 0, 8, -90, 90, BREITE_50, 0), 0.3f);
    EXPECT_FLOAT_EQ(einfallsfaktor_ebene(172, 0, 8, 90, 90, BREITE_50, 0), 0);
    EXPECT_GT(einfallsfaktor_ebene(172, 0, 18, 90, 90, BREITE_50, 0), 0.3f);
}

TEST(Sonne, MemoGivesTheFactorsBitForBit) {
    Einfallsfaktoren memo;
    const float L = 8.36f;
    const float* sued = memo.tabelle(BREITE_50, L, 15, 0, 90);
    const float* dach = memo.tabelle(BREITE_50, L, 15, -90, 21.8f);
    for (int n = 1; n <= 365; n += 7) {
        for (int h = 1; h <= 24; ++h) {
            const int i = (n - 1) * 24 + h - 1;
            ASSERT_EQ(sued[i], einfallsfaktor_ebene(n, L, h, 0, 90, BREITE_50, 15));
            ASSERT_EQ(dach[i], einfallsfaktor_ebene(n, L, h, -90, 21.8f, BREITE_50, 15));
        }
    }
    // Asked again, the same table comes back without recomputing.
    EXPECT_EQ(memo.tabelle(BREITE_50, L, 15, 0, 90), sued);
}
