// SPDX-License-Identifier: GPL-3.0-or-later
// End and primary energy from the heat demand.
#include "energy/energie.h"
#include "tests/support/Testprojekt.h"

#include <gtest/gtest.h>

namespace {

std::unique_ptr<Projekt> mit_bedarf(float qhs_sum, int16_t system, int16_t traeger) {
    auto p = leeres_projekt();
    neues_projekt(*p);
    p->f_nutz = 160;
    p->qhs_sum = qhs_sum;
    p->Heizsystem = system;
    p->Energietraeger = traeger;
    for (int m = 1; m <= 12; ++m) {
        p->Monat[m].Qh = m <= 3 ? qhs_sum * 160 / 3 : 0;
    }
    return p;
}

} // namespace

TEST(EnergRefresh, NoDemandMeansNoLossesAndADefinedDemand) {
    auto p = mit_bedarf(0, 1, 1);
    EnergRefresh(*p);
    EXPECT_FLOAT_EQ(p->q_HE_Energietraeger, 0);
    EXPECT_FLOAT_EQ(p->q_HE_Strom, 0);
    EXPECT_FLOAT_EQ(p->Energie.q_d, 0);
    EXPECT_FLOAT_EQ(p->Energie.e_g, 1.08f);
    EXPECT_FLOAT_EQ(p->qhs_sum, 1E-10f);

    // 0.1 exactly is not below 0.1: the losses stay.
    p = mit_bedarf(0.1f, 1, 1);
    EnergRefresh(*p);
    EXPECT_GT(p->Energie.q_d, 0);
    EXPECT_NEAR(p->q_HE_Energietraeger, (0.1 + 1.1 + 2.5 - 0.2 * 10 / 50) * 1.08, 1e-5);
}

TEST(EnergRefresh, YearBalanceOfAGasBoiler) {
    auto p = mit_bedarf(50, 2, 2);
    EnergRefresh(*p);
    // 160 m²: q_d 2.5 (at 150) - 0.2 x 10/50, q_ce 1.1, e_g 1.03, table G 0.66 - 0.08 x 10/50.
    const double q_d = 2.5 - 0.2 * 10 / 50;
    EXPECT_NEAR(p->q_HE_Energietraeger, (50 + 1.1 + q_d) * 1.03, 1e-4);
    const double hilfe = (1.24 - 0.29 * 10 / 50) + (0.66 - 0.08 * 10 / 50);
    EXPECT_NEAR(p->q_HE_Strom, hilfe, 1e-5);
    EXPECT_NEAR(p->q_PE_Energietraeger, p->q_HE_Energietraeger * 1.1, 1e-4);
    EXPECT_NEAR(p->q_PE_Strom, p->q_HE_Strom * 3, 1e-5);
}

TEST(EnergRefresh, RenewableDistrictHeatCountsOnlyItsAuxiliaryElectricity) {
    auto p = mit_bedarf(40, 6, 2);
    EnergRefresh(*p);
    EXPECT_FLOAT_EQ(p->q_PE_Energietraeger, 0);
    EXPECT_GT(p->q_PE_Strom, 0);
}

TEST(EnergieMonate, MonthsShareTheYearByTheirHeatDemand) {
    auto p = mit_bedarf(30, 1, 1);
    EnergRefresh(*p);
    const Energiemonate e = energie_monatswerte(*p);
    double E = 0, H = 0;
    for (int m = 1; m <= 12; ++m) {
        E += e.E[m];
        H += e.H[m];
    }
    EXPECT_NEAR(E, p->q_HE_Energietraeger, 1e-4);
    EXPECT_NEAR(H, p->q_HE_Strom, 1e-5);
    EXPECT_NEAR(e.P[2], p->q_PE_Energietraeger / 3, 1e-4);
    EXPECT_FLOAT_EQ(e.E[7], 0);

    // Electricity as the carrier: both parts in the first column, nothing in the second.
    p = mit_bedarf(30, 7, 1);
    EnergRefresh(*p);
    const Energiemonate s = energie_monatswerte(*p);
    EXPECT_NEAR(s.E[1], (p->q_HE_Strom + p->q_HE_Energietraeger) / 3, 1e-4);
    EXPECT_FLOAT_EQ(s.H[1], 0);
    EXPECT_NEAR(s.P[1], (p->q_PE_Strom + p->q_PE_Energietraeger) / 3, 1e-4);
    EXPECT_FLOAT_EQ(s.Q[1], 0);
}
