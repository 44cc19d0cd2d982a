// SPDX-License-Identifier: GPL-3.0-or-later
// The hourly one-node simulation over the warmed-up year.
#include "calc/c_mod.h"
#include "project/FatalError.h"
#include "tests/support/Testprojekt.h"
#include "tests/support/woertlich.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

std::function<Stationsstunde(int, int)> konstant(double Ta) {
    return [Ta](int, int) { return Stationsstunde{Ta, 0, 0}; };
}

double julimittel_frei(const Projekt& p) {
    double summe = 0;
    for (int d = 1; d <= 31; ++d) {
        for (int h = 1; h <= 24; ++h) {
            summe += p.T_frei(7, d, h);
        }
    }
    return summe / (31 * 24);
}

// The new project on the synthetic station, recalculated.
class Testjahr : public ::testing::Test {
protected:
    TempOrdner ordner;
    std::unique_ptr<Projekt> p = neues_testprojekt(ordner);
};
using Stundensimulation = Testjahr;

} // namespace

TEST_F(Stundensimulation, ConstantColdReachesTheEquilibriumAndHeatsEveryHour) {
    p = neues_testprojekt(ordner, konstant(0));
    // At 0 °C without sun only the internal gains drive the free-running temperature:
    // T = tau · Gi / Cwirk = Gi / (Ht + Hv) with the conductances of the time constant.
    const double Gi = 160 * 25 * 1000 / 8760.0;
    const double H = 0.3 * 179.4 + 0.3 * 100 * 2 + 1.42 * 28.6 + 0.6 / 3600 * 1000 * 1.29 * 416;
    EXPECT_NEAR(p->T_frei(12, 31, 24), Gi / H, 1e-3);
    // The controlled temperature starts each hour at 20 °C and falls by (20 - T) (1 - e).
    const double e = std::exp(-3600 / static_cast<double>(p->tau));
    const double T = Gi / H * (1 - e) + e * 20;
    EXPECT_NEAR(p->Q_heiz(6, 15, 12), (20 - T) * p->Cwirk / 3600000, 1e-5);
    EXPECT_FLOAT_EQ(p->T_regel(6, 15, 12), 20);
    EXPECT_FLOAT_EQ(p->Heizlast_max, p->Q_heiz(6, 15, 12));
    for (int m = 1; m <= 12; ++m) {
        EXPECT_EQ(p->Monat[m].Stunden_kalt, p->Monat[m].Tage * 24);
        EXPECT_FLOAT_EQ(p->Monat[m].Kuehlbedarf, 0);
    }
    EXPECT_FLOAT_EQ(p->Kuehllast_max, 0);
}

TEST_F(Stundensimulation, BandsAddUpToTheHoursOfEachMonth) {
    p->fs = 80;
    p->Tueber = 24;
    alles_berechnen(*p);
    int heiss = 0;
    for (int m = 1; m <= 12; ++m) {
        const Monatswerte& M = p->Monat[m];
        EXPECT_EQ(M.Stunden_kalt + M.Stunden_heiss + M.Stunden_komfort, M.Tage * 24) << m;
        heiss += M.Stunden_heiss;
    }
    EXPECT_GT(heiss, 0) << "the test building should overheat in summer";
}

TEST_F(Stundensimulation, AllHoursComfortableWhenTheBandIsWide) {
    p->Troom = -50;
    p->Tueber = 100;
    alles_berechnen(*p);
    for (int m = 1; m <= 12; ++m) {
        EXPECT_EQ(p->Monat[m].Stunden_komfort, p->Monat[m].Tage * 24);
        EXPECT_EQ(p->Monat[m].Stunden_kalt, 0);
        EXPECT_EQ(p->Monat[m].Stunden_heiss, 0);
    }
}

TEST_F(Stundensimulation, CoolingCausesAddUpToTheCoolingDemand) {
    p->fs = 80;
    p->fo = p->fw = 40;
    p->Tueber = 23;
    alles_berechnen(*p);
    double jahr = 0;
    for (int m = 1; m <= 12; ++m) {
        const Monatswerte& M = p->Monat[m];
        const double teile = M.Kuehl_solar + M.Kuehl_intern + M.Kuehl_trans + M.Kuehl_lueft;
        EXPECT_NEAR(teile, M.Kuehlbedarf, 1e-4 + M.Kuehlbedarf * 1e-5) << "month " << m;
        jahr += M.Kuehlbedarf;
        double stunden = 0;
        for (int d = 1; d <= M.Tage; ++d) {
            for (int h = 1; h <= 24; ++h) {
                stunden += p->Q_kuehl(m, d, h);
                EXPECT_LE(p->Q_kuehl(m, d, h), p->Kuehllast_max);
                EXPECT_LE(p->T_regel(m, d, h), p->Tueber);
            }
        }
        EXPECT_NEAR(stunden, M.Kuehlbedarf, 1e-3 + M.Kuehlbedarf * 1e-5) << "month " << m;
    }
    EXPECT_GT(jahr, 0);
    EXPECT_GT(p->Monat[7].Kuehlgradstunden, 0);
}

TEST_F(Stundensimulation, VentilatedRoofOnlyMattersWithAbsorption) {
    p->Dachgeschoss = true;
    p->hd = 3;
    p->cbk_hDach = 1;
    alles_berechnen(*p);
    const double mit = julimittel_frei(*p);
    p->cbk_hDach = 0;
    alles_berechnen(*p);
    const double ohne = julimittel_frei(*p);
    EXPECT_GT(mit, ohne + 0.01);

    p->absfaktor = 0;
    alles_berechnen(*p);
    const double a0_ohne = julimittel_frei(*p);
    p->cbk_hDach = 1;
    alles_berechnen(*p);
    EXPECT_DOUBLE_EQ(julimittel_frei(*p), a0_ohne);
}

TEST_F(Stundensimulation, WestWallLosesWithSunWhereTheEastWallGains) {
    p->cbk_hDach = 0; // keep the roof out
    p->fn = p->fs = p->fo = p->fw = 0;
    auto nur = [&](char wand, float absorption) {
        p->awn = p->aws = p->awo = p->aww = 0;
        (wand == 'w' ? p->aww : p->awo) = 1;
        p->absfaktor = absorption;
        alles_berechnen(*p);
        return julimittel_frei(*p);
    };
    EXPECT_LT(nur('w', 1), nur('w', 0));
    EXPECT_GT(nur('o', 1), nur('o', 0));
}

TEST_F(Stundensimulation, JanuaryStartsFromTheWarmUpDecember) {
    // Two stations that differ only in December: the first January hour differs too.
    auto mild_dezember = [](int tag, int) { return Stationsstunde{tag > 334 ? 10.0 : 0.0, 0, 0}; };
    auto kalt = neues_testprojekt(ordner, konstant(0));
    TempOrdner anderer;
    auto mild = neues_testprojekt(anderer, mild_dezember);
    EXPECT_GT(mild->T_frei(1, 1, 1), kalt->T_frei(1, 1, 1) + 1);
    EXPECT_NEAR(mild->T_frei(3, 1, 1), kalt->T_frei(3, 1, 1), 1e-4);
}

TEST_F(Stundensimulation, OverheatingLimitBelowSetTemperatureHeatsAndCoolsInOneHour) {
    p = neues_testprojekt(ordner, konstant(0));
    p->Troom = 20;
    p->Tueber = 18;
    alles_berechnen(*p);
    EXPECT_GT(p->Q_heiz(1, 10, 5), 0);
    EXPECT_NEAR(p->Q_kuehl(1, 10, 5), 2 * p->Cwirk / 3600000.0, 1e-4);
    EXPECT_FLOAT_EQ(p->T_regel(1, 10, 5), 18);
}

TEST_F(Stundensimulation, MatchesThePlainEvaluationBitForBit) {
    struct Fall {
        bool Dachgeschoss;
        int16_t Dachfirst, orient, cbk_hDach;
        float Tueber;
    };
    const Fall faelle[] = {
        {false, 1, 0, 1, 27},
        {true, 1, 30, 1, 24},
        {true, 2, -45, 0, 23},
        {true, 2, 15, 1, 22},
    };
    auto& schnell = p;
    for (const Fall& f : faelle) {
        schnell->Dachgeschoss = f.Dachgeschoss;
        schnell->Dachfirst = f.Dachfirst;
        schnell->orient = f.orient;
        schnell->cbk_hDach = f.cbk_hDach;
        schnell->Tueber = f.Tueber;
        schnell->hd = 2.6f;
        schnell->fs = 60;
        alles_berechnen(*schnell);
        auto langsam = std::make_unique<Projekt>(*schnell);
        stundensimulation_woertlich(*langsam);
        for (int m = 1; m <= 12; ++m) {
            const Monatswerte &a = schnell->Monat[m], &b = langsam->Monat[m];
            ASSERT_EQ(a.Kuehlbedarf, b.Kuehlbedarf) << m;
            ASSERT_EQ(a.Kuehl_solar, b.Kuehl_solar) << m;
            ASSERT_EQ(a.Kuehl_trans, b.Kuehl_trans) << m;
            ASSERT_EQ(a.Kuehlgradstunden, b.Kuehlgradstunden) << m;
            ASSERT_EQ(a.Stunden_heiss, b.Stunden_heiss) << m;
            for (int d = 1; d <= a.Tage; ++d) {
                for (int h = 1; h <= 24; ++h) {
                    ASSERT_EQ(schnell->T_frei(m, d, h), langsam->T_frei(m, d, h));
                    ASSERT_EQ(schnell->T_regel(m, d, h), langsam->T_regel(m, d, h));
                    ASSERT_EQ(schnell->Q_heiz(m, d, h), langsam->Q_heiz(m, d, h));
                    ASSERT_EQ(schnell->Q_kuehl(m, d, h), langsam->Q_kuehl(m, d, h));
                }
            }
        }
        ASSERT_EQ(schnell->Heizlast_max, langsam->Heizlast_max);
        ASSERT_EQ(schnell->Kuehllast_max, langsam->Kuehllast_max);
    }
}
