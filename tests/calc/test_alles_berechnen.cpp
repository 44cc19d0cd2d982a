// SPDX-License-Identifier: GPL-3.0-or-later
// The recalculation driver: its guard, its order and invariants over the whole year.
#include "calc/c_mod.h"
#include "project/FatalError.h"
#include "tests/support/Testprojekt.h"

#include <gtest/gtest.h>

TEST(AllesBerechnen, GuardUpdatesGeometryButKeepsResults) {
    TempOrdner ordner;
    auto p = neues_testprojekt(ordner);
    const float qh = p->qh;
    const float T = p->T_frei(7, 1, 14);
    p->FormLoadGuard = -1;
    p->l = 20;
    alles_berechnen(*p);
    EXPECT_FLOAT_EQ(p->f_gd, 200);
    EXPECT_FLOAT_EQ(p->qh, qh);
    EXPECT_FLOAT_EQ(p->T_frei(7, 1, 14), T);
    p->FormLoadGuard = 0;
    alles_berechnen(*p);
    EXPECT_GT(p->qh, qh);
}

TEST(AllesBerechnen, TurningOneFacadeChangesOnlyThatFacadesTerms) {
    TempOrdner ordner;
    auto p = neues_testprojekt(ordner);
    const float verlust_N = p->Fensterverlust_N, verlust_S = p->Fensterverlust_S;
    const float verlust_W = p->Fensterverlust_W, verlust_O = p->Fensterverlust_O;
    p->fo = 30;
    alles_berechnen(*p);
    EXPECT_GT(p->Fensterverlust_O, verlust_O);
    EXPECT_FLOAT_EQ(p->Fensterverlust_N, verlust_N);
    EXPECT_FLOAT_EQ(p->Fensterverlust_S, verlust_S);
    EXPECT_FLOAT_EQ(p->Fensterverlust_W, verlust_W);
    EXPECT_FLOAT_EQ(p->f_of, 15.6f);
    EXPECT_FLOAT_EQ(p->f_wf, 2.6f);
}

TEST(AllesBerechnen, RepeatedRunsGiveIdenticalResults) {
    TempOrdner ordner;
    auto p = neues_testprojekt(ordner);
    p->Dachgeschoss = true;
    p->hd = 2.5f;
    alles_berechnen(*p);
    const auto erster = std::make_unique<Projekt>(*p);
    // Other roofs and orientations in between must not leave anything behind.
    p->orient = 30;
    p->Dachfirst = 2;
    alles_berechnen(*p);
    p->orient = 0;
    p->Dachfirst = 1;
    alles_berechnen(*p);
    for (int m = 1; m <= 12; ++m) {
        EXPECT_FLOAT_EQ(p->Monat[m].Qh, erster->Monat[m].Qh);
        EXPECT_FLOAT_EQ(p->Monat[m].Kuehlgradstunden, erster->Monat[m].Kuehlgradstunden);
        for (int d = 1; d <= p->Monat[m].Tage; ++d) {
            for (int h = 1; h <= 24; ++h) {
                ASSERT_EQ(p->T_frei(m, d, h), erster->T_frei(m, d, h));
                ASSERT_EQ(p->Q_heiz(m, d, h), erster->Q_heiz(m, d, h));
            }
        }
    }
}

TEST(AllesBerechnen, EnergyResultsFollowTheHeatDemand) {
    TempOrdner ordner;
    auto p = neues_testprojekt(ordner);
    EXPECT_GT(p->qhs_sum, 0.1f);
    // Low-temperature boiler on oil with radiators at 160 m².
    EXPECT_NEAR(p->q_HE_Energietraeger,
                (p->qhs_sum + p->Energie.q_ce + p->Energie.q_s + p->Energie.q_d) * 1.08, 1e-3);
    EXPECT_NEAR(p->q_PE_Energietraeger, p->q_HE_Energietraeger * 1.1, 1e-3);
    EXPECT_EQ(p->Energie.Traegername, "Heizöl");
    EXPECT_GT(p->Klimainfo.Heiztage, 0);
}
