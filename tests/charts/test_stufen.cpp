// SPDX-License-Identifier: GPL-3.0-or-later
// The scale tables: every limit is strict (an M of exactly the limit takes the next row), and
// the irregularities between the charts are kept.

#include "charts/Stufentabellen.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

struct Fall {
    double M;
    double stufe;
};

void pruefen(double (*stufe)(double), std::initializer_list<Fall> faelle, const char* name) {
    for (const Fall& f : faelle) {
        EXPECT_EQ(stufe(f.M), f.stufe) << name << " at M = " << f.M;
    }
}

TEST(Stufentabellen, LimitsAreStrictAndTheNextStepTakesOver) {
    pruefen(stufe_monatsbilanz,
            {{0, 1},
             {4.999, 1},
             {5, 2},
             {10, 5},
             {25, 10},
             {50, 15},
             {75, 20},
             {100, 50},
             {250, 100},
             {499.9, 100},
             {500, 500},
             {1e9, 500}},
            "Monatsbilanz");
    pruefen(stufe_jahrbilanz_uebersicht,
            {{4.9, 1}, {5, 2}, {500, 150}, {750, 200}, {1000, 500}, {2500, 2500}, {99999, 2500}},
            "JahrBilanz overview");
}

TEST(Stufentabellen, TheHeatingPlaneTablesKeepTheirIrregularities) {
    // No step 1 on the heating year chart, and 10000 from M 10000 on.
    pruefen(stufe_jahrbilanz_heizen,
            {{0, 2},
             {4.9, 2},
             {5, 2},
             {10, 5},
             {5000, 1500},
             {7500, 2000},
             {9999, 2000},
             {10000, 10000}},
            "JahrBilanz heating");
    // The month balance jumps from 100 straight to 1000.
    pruefen(stufe_heizbilanz, {{499, 100}, {500, 1000}, {750, 1000}, {20000, 1000}}, "Heizbilanz");
}

TEST(Stufentabellen, CoolingAndEnergyTables) {
    pruefen(stufe_stunden_pro_tag, {{1, 1}, {4, 2}, {8, 3}, {12, 4}, {16, 5}, {20, 6}, {24, 6}},
            "StundenProTag");
    pruefen(stufe_kuehlgradstunden_monat, {{50, 20}, {99, 20}, {100, 50}, {5000, 2000}},
            "KuehlGradStundenMonat");
    // From 2500 the year jumps from 500 to 5000 at once.
    pruefen(stufe_kuehlgradstunden_jahr, {{2499, 500}, {2500, 5000}, {10000, 5000}},
            "KuehlGradStundenJahr");
    pruefen(stufe_monatsverbrauch, {{0, 10}, {29.9, 10}, {30, 20}, {150, 100}, {30000, 50000}},
            "Monatsverbrauch");
}

TEST(Stufentabellen, NotANumberTakesTheLastStep) {
    EXPECT_EQ(stufe_monatsbilanz(std::nan("")), 500);
    EXPECT_EQ(stufe_jahrbilanz_heizen(std::nan("")), 10000);
}

} // namespace
