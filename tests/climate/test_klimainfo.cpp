// SPDX-License-Identifier: GPL-3.0-or-later
// Climate figures: month and year extremes, heating limit, heating days and degree days.
#include "calc/c_mod.h"
#include "climate/klimainfo.h"
#include "tests/support/Testprojekt.h"

#include <gtest/gtest.h>

TEST(Klimainfo, ExtremesOfMonthsAndHours) {
    TempOrdner ordner;
    // Months at -3, -2, ..., 8 °C except that March repeats January's -3 (a tie keeps January),
    // and one very hot hour in June.
    auto p = neues_testprojekt(ordner, [](int tag, int stunde) {
        int m = 1;
        for (int rest = tag, laenge[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
             rest > laenge[m - 1]; ++m) {
            rest -= laenge[m - 1];
        }
        const double t = (m == 3) ? -3 : m - 4;
        return Stationsstunde{tag == 170 && stunde == 15 ? 35.5 : t, 0, 0};
    });
    klima_jahreswerte(*p);
    const Klimakennwerte& k = p->Klimainfo;
    EXPECT_EQ(k.MinMonat, 1);
    EXPECT_EQ(k.MaxMonat, 12);
    EXPECT_NEAR(k.MinMonatTemp, -3, 1e-4);
    EXPECT_NEAR(k.MaxMonatTemp, 8, 1e-4);
    EXPECT_FLOAT_EQ(k.MaxJahrTemp, 35.5f);
    EXPECT_FLOAT_EQ(k.MinJahrTemp, -3);
    // (-3 - 2 - 3 + 0 + 1 + 2 + 3 + 4 + 5 + 6 + 7 + 8) / 12, with June a bit warmer by its hour.
    EXPECT_NEAR(k.MittelJahrTemp, 28.0 / 12, 0.01);
}

TEST(Klimainfo, HeatingLimitDaysAndDegreeDays) {
    TempOrdner ordner;
    // Days alternate between 5 °C and exactly 12 °C.
    auto p = neues_testprojekt(ordner, [](int tag, int) {
        return Stationsstunde{tag % 2 ? 5.0 : 12.0, 0, 0};
    });
    heizgrenztemperatur(*p);
    // Gi / (Hv + Ht) with Ht counting the ceiling at roof factor 1 and the floor at 0.5.
    const double Gi = 160 * 25 * 1000 / 8760.0;
    const double Ht = 0.3 * 179.4 + 1.42 * 28.6 + 0.3 * 100 + 0.3 * 100 * 0.5;
    const double Hv = 0.6 / 3600 * 1000 * 1.29 * 416;
    const Klimakennwerte& k = p->Klimainfo;
    EXPECT_NEAR(k.Heizgrenztemperatur, 20 - Gi / (Hv + Ht), 1e-4);
    EXPECT_EQ(k.Heiztage, 365); // both 5 and 12 lie below the limit of about 18.1 °C
    // Only the 183 odd days at 5 °C count 20 - 5; a day mean of exactly 12 adds nothing.
    EXPECT_NEAR(k.Heizgradtage, 183 * 15, 1e-3);

    // Large internal gains push the limit below every day: no heating days, same degree days.
    p->intg = 500;
    alles_berechnen(*p);
    EXPECT_EQ(p->Klimainfo.Heiztage, 0);
    EXPECT_NEAR(p->Klimainfo.Heizgradtage, 183 * 15, 1e-3);
}

TEST(Klimainfo, FullyInsulatedRoofSpaceCountsSixTenthsHere) {
    TempOrdner ordner;
    auto p = neues_testprojekt(ordner);
    auto grenze = [&](int16_t typ) {
        p->Dachraum_typ = typ;
        heizgrenztemperatur(*p);
        return static_cast<double>(p->Klimainfo.Heizgrenztemperatur);
    };
    const double Gi = 160 * 25 * 1000 / 8760.0;
    const double ohne_dach =
        0.3 * 179.4 + 1.42 * 28.6 + 0.3 * 100 * 0.5 + 0.6 / 3600 * 1000 * 1.29 * 416;
    EXPECT_NEAR(grenze(2), 20 - Gi / (ohne_dach + 0.6 * 30), 1e-4);
    EXPECT_NEAR(grenze(1), 20 - Gi / (ohne_dach + 0.8 * 30), 1e-4);
    EXPECT_NEAR(grenze(3), 20 - Gi / ohne_dach, 1e-4);
}
