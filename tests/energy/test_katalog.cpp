// SPDX-License-Identifier: GPL-3.0-or-later
// The heating system catalogue: values at and between sample points, offered combinations.
#include "energy/katalog.h"
#include "project/FatalError.h"

#include <cmath>
#include <gtest/gtest.h>

TEST(Katalog, InterpolationOverHalfOpenIntervals) {
    EXPECT_FLOAT_EQ(interpolieren(125, 100, 150, 2.9, 2.5), 2.7f);
    struct Fall {
        float f_nutz;
        float q_d; // system 1, radiators
    };
    const Fall faelle[] = {
        {50, 2.9f},   {99.99f, 2.9f}, {100, 2.9f},   {125, 2.7f},   {150, 2.5f},
        {400, 2.05f}, {9999, 1.7f},   {10000, 1.7f}, {50000, 1.7f},
    };
    for (const Fall& f : faelle) {
        EXPECT_NEAR(katalog_werte(1, 1, 1, f.f_nutz).q_d, f.q_d, 1e-6) << f.f_nutz;
    }
    // Floor heating and the heat pump's radiators have rows of their own.
    EXPECT_FLOAT_EQ(katalog_werte(1, 2, 1, 100).q_d, 0.7f);
    EXPECT_FLOAT_EQ(katalog_werte(7, 1, 1, 100).q_d, 2.1f);
    EXPECT_FLOAT_EQ(katalog_werte(7, 1, 1, 100).q_d_he, 1.98f);
    EXPECT_FLOAT_EQ(katalog_werte(7, 2, 1, 100).q_d_he, 3.52f);
    EXPECT_FLOAT_EQ(katalog_werte(8, 1, 1, 100).q_d, 0);
}

TEST(Katalog, HeatPumpStorageEndsAtItsLastPoint) {
    EXPECT_FLOAT_EQ(katalog_werte(7, 1, 1, 100).q_s, 0.3f);
    EXPECT_NEAR(katalog_werte(7, 1, 1, 999).q_s, 0.1 * 1 / 250, 1e-6);
    EXPECT_FLOAT_EQ(katalog_werte(7, 1, 1, 1000).q_s, 0);
    EXPECT_FLOAT_EQ(katalog_werte(7, 2, 1, 299).q_s, static_cast<float>(0.1 / 100));
    EXPECT_FLOAT_EQ(katalog_werte(7, 2, 1, 300).q_s, 0);
    EXPECT_FLOAT_EQ(katalog_werte(7, 2, 1, 20000).q_s_he, 0.05f);
    EXPECT_FLOAT_EQ(katalog_werte(1, 1, 1, 100).q_s, 0);
}

TEST(Katalog, GenerationByCase) {
    EXPECT_FLOAT_EQ(katalog_werte(1, 1, 1, 160).e_g, 1.08f);
    EXPECT_FLOAT_EQ(katalog_werte(1, 2, 1, 140).e_g, 1.10f);
    EXPECT_NEAR(katalog_werte(1, 2, 1, 175).e_g, 1.095, 1e-6);
    EXPECT_FLOAT_EQ(katalog_werte(1, 2, 1, 200).e_g, 1.09f);
    EXPECT_NEAR(katalog_werte(2, 2, 2, 400).e_g, 0.985, 1e-6);
    EXPECT_FLOAT_EQ(katalog_werte(3, 2, 1, 160).e_g, 0.94f);
    EXPECT_NEAR(katalog_werte(3, 1, 1, 175).q_g_he, 0.62, 1e-6); // table G between 150 and 200
    EXPECT_FLOAT_EQ(katalog_werte(4, 1, 2, 100).e_g, 1.75f);
    EXPECT_FLOAT_EQ(katalog_werte(4, 1, 2, 600).q_g_he, 0.04f);
    EXPECT_FLOAT_EQ(katalog_werte(5, 2, 1, 150).q_g_he, 1.92f);
    EXPECT_FLOAT_EQ(katalog_werte(6, 1, 3, 150).e_g, 1.01f);
    EXPECT_FLOAT_EQ(katalog_werte(7, 1, 1, 1).q_g_he, 1.9f);
    EXPECT_NEAR(katalog_werte(7, 2, 1, 10000).q_g_he, 0.7564, 1e-4);
    EXPECT_FLOAT_EQ(katalog_werte(9, 1, 1, 100).q_ce, 4.4f);
    EXPECT_FLOAT_EQ(katalog_werte(8, 2, 1, 100).q_ce, 0.7f);
    EXPECT_FLOAT_EQ(katalog_werte(8, 1, 1, 100).e_g, 1);
}

TEST(Katalog, CarriersAndTheirShortNames) {
    struct Fall {
        int16_t system, traeger;
        float f_p;
        const char* name;
        const char* name_e;
    };
    const Fall faelle[] = {
        {1, 1, 1.1f, "Heizöl", "fuel oil"},
        {3, 2, 1.1f, "Erdgas", "natural gas"},
        {4, 2, 0.2f, "Holz", "wood"},
        {5, 1, 0.2f, "Holz", "wood"},
        {6, 1, 0.7f, "Nah-/Fernwärme", "district heat"},
        {6, 2, 0.0f, "Nah-/Fernwärme", "district heat"},
        {6, 3, 1.3f, "Nah-/Fernwärme", "district heat"},
        {6, 4, 0.1f, "Nah-/Fernwärme", "district heat"},
        {7, 1, 3.0f, "Strom", "electricity"},
        {9, 1, 3.0f, "Strom", "electricity"},
    };
    for (const Fall& f : faelle) {
        const Energiekennwerte k = katalog_werte(f.system, 1, f.traeger, 150);
        EXPECT_FLOAT_EQ(k.f_p, f.f_p) << f.system << "/" << f.traeger;
        EXPECT_EQ(k.Traegername, f.name);
        EXPECT_EQ(k.Traegername_e, f.name_e);
    }
}

TEST(Katalog, CombinationsNotOfferedAreRefused) {
    EXPECT_THROW(katalog_werte(5, 1, 2, 150), FatalError); // no firewood in row 5
    EXPECT_THROW(katalog_werte(1, 1, 3, 150), FatalError);
    EXPECT_THROW(katalog_werte(7, 1, 2, 150), FatalError);
    EXPECT_THROW(katalog_werte(10, 1, 1, 150), FatalError);
    EXPECT_THROW(katalog_werte(1, 3, 1, 150), FatalError);
    EXPECT_THROW(katalog_werte(0, 1, 1, 150), FatalError);
}

TEST(Katalog, TextsInBothLanguages) {
    const auto d = katalog_laden("d");
    const auto e = katalog_laden("e");
    EXPECT_EQ(d[7].Bezeichnung, "Elektro-Direktheizung");
    EXPECT_EQ(e[3].Energietraeger[0], "wool pellets");
    EXPECT_EQ(d[4].Energietraeger[1], "");
    EXPECT_NE(d[6].Uebergabe[0].find("55/45°C"), std::string::npos);
    EXPECT_NE(d[5].Uebergabe[0].find("70/55°C"), std::string::npos);
    EXPECT_EQ(e[8].Uebergabe[1], "");
    EXPECT_EQ(d[0].Uebergabe[0], "Heizflächen (Außenwand), Thermostatventile, Auslegungs- "
                                 "proportionalbereich: 1K, Systemtemperatur: 70/55°C");
}
