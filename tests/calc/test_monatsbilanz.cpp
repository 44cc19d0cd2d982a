// SPDX-License-Identifier: GPL-3.0-or-later
// The monthly heat balance and its utilisation factor.
#include "calc/c_mod.h"
#include "calc/monatsbilanz.h"
#include "tests/support/Testprojekt.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

// A station at a constant temperature without any sun.
std::function<Stationsstunde(int, int)> konstant(double Ta) {
    return [Ta](int, int) { return Stationsstunde{Ta, 0, 0}; };
}

// The new project on the synthetic station, recalculated.
class Testjahr : public ::testing::Test {
protected:
    TempOrdner ordner;
    std::unique_ptr<Projekt> p = neues_testprojekt(ordner);
};
using Nutzungsgrad = Testjahr;
using Monatsbilanz = Testjahr;

} // namespace

TEST_F(Nutzungsgrad, LimitAndGeneralForm) {
    const double a = static_cast<float>(p->tau / 3600.0 / 16 + 1);
    // Exactly 1: the limit a / (a + 1), no division by zero.
    EXPECT_FLOAT_EQ(nutzungsgrad(*p, 1.0f), static_cast<float>(a / (a + 1)));
    // No gains: every gain is usable.
    EXPECT_FLOAT_EQ(nutzungsgrad(*p, 0.0f), 1.0f);
    // The next float above 1 goes through the general form and lands next to the limit.
    const float knapp = std::nextafter(1.0f, 2.0f);
    EXPECT_NEAR(nutzungsgrad(*p, knapp), a / (a + 1), 1e-5);
    // Large gains: the factor tends to 1 / gamma.
    EXPECT_NEAR(nutzungsgrad(*p, 50.0f), 1.0 / 50, 1e-6);
    const double g = 0.5;
    EXPECT_NEAR(nutzungsgrad(*p, 0.5f), (1 - std::pow(g, a)) / (1 - std::pow(g, a + 1)), 1e-6);
}

TEST_F(Nutzungsgrad, HugeTimeConstantWithLargeGainsStaysFinite) {
    // Almost no losses: a time constant of years, and gamma^a overflows a double.
    p->kwn = p->kws = p->kwo = p->kww = p->kd = p->kk = 0.01f;
    p->Waermebruecken = 0;
    p->kfn = p->kfs = p->kfo = p->kfw = 0.01f;
    p->infiltration = 0;
    p->Aussenwandart = p->Innenwandart = 0;
    const float f = nutzungsgrad(*p, 1000.0f);
    EXPECT_NEAR(f, 1.0 / 1000, 1e-9);
}

TEST_F(Monatsbilanz, JanuaryAtZeroDegreesWorkedByHand) {
    p = neues_testprojekt(ordner, konstant(0));
    const Monatswerte& jan = p->Monat[1];
    const double D = 20 * 31; // Kd
    // Conductance, W/K: flat ceiling 0.3 x 100 (roof space factor 1), floor 0.3 x 100 x 0.5,
    // windows 1.42 x 28.6, walls 0.3 x 179.4.
    const double H = 30 + 15 + 1.42 * 28.6 + 0.3 * 179.4;
    EXPECT_NEAR(jan.Qt, H * D * 0.024, 0.01);
    EXPECT_NEAR(jan.Qv, 0.6 * 416 * D * 0.0086, 0.01);
    EXPECT_NEAR(jan.Qi_brutto, 25.0 * 160 * 31 / 365, 1e-3);
    EXPECT_FLOAT_EQ(jan.Qs_brutto, 0);
    EXPECT_FLOAT_EQ(jan.Qs_genutzt, 0);
    // Gains of a tenth of the losses are almost fully usable.
    EXPECT_GT(jan.Nutzgrad, 0.999f);
    EXPECT_NEAR(jan.Qh, jan.Qt + jan.Qv - jan.Qi_genutzt, 1e-3);
    EXPECT_NEAR(p->qtr_Boden, 15 * 20 * 365 * 0.024, 0.05);
    EXPECT_NEAR(p->qtr_Dach, 30 * 20 * 365 * 0.024, 0.05);
}

TEST_F(Monatsbilanz, TheLossIsHeldAsAFloatBeforeItDividesTheGains) {
    // gamma = gains / L with L = Qv + Qt rounded to a float first. In the months where the
    // rounding of L moves gamma, a double L would give another utilisation factor.
    int entschieden = 0;
    for (int variante = 0; variante < 3; ++variante) {
        p->l = 50 - 7.3f * variante;
        p->b = 30;
        p->h = 30;
        p->ag = 10;
        p->ugd_typ = 4;
        alles_berechnen(*p);
        for (int m = 1; m <= 12; ++m) {
            const Monatswerte& M = p->Monat[m];
            const double gewinne = static_cast<double>(M.Qs_brutto) + M.Qi_brutto;
            const float L = static_cast<float>(static_cast<double>(M.Qv) + M.Qt);
            if (L <= 0) {
                continue;
            }
            const float mit_float = nutzungsgrad(*p, static_cast<float>(gewinne / L));
            const float mit_double =
                nutzungsgrad(*p, static_cast<float>(gewinne / (static_cast<double>(M.Qv) + M.Qt)));
            EXPECT_EQ(M.Nutzgrad, mit_float) << "month " << m << ", variant " << variante;
            entschieden += mit_float != mit_double;
        }
    }
    EXPECT_GT(entschieden, 0);
}

TEST_F(Monatsbilanz, WarmMonthHasNoUsableGainsAndNoDemand) {
    p->Troom = 5; // every summer month of the synthetic climate is warmer
    alles_berechnen(*p);
    const Monatswerte& juli = p->Monat[7];
    for (float Monatswerte::*f :
         {&Monatswerte::Qt, &Monatswerte::Qv, &Monatswerte::Nutzgrad, &Monatswerte::Qs_genutzt,
          &Monatswerte::Qi_genutzt, &Monatswerte::Qh}) {
        EXPECT_FLOAT_EQ(juli.*f, 0);
    }
    EXPECT_GT(juli.Qs_brutto, 0);
    EXPECT_GT(juli.Qi_brutto, 0);
}

TEST_F(Monatsbilanz, YearSumsCloseOverMonthsPartsAndFacades) {
    p->Dachgeschoss = true;
    p->hd = 3;
    p->ft = 2;
    alles_berechnen(*p);
    double qh = 0, qtr = 0, qsol = 0;
    for (int m = 1; m <= 12; ++m) {
        const Monatswerte& M = p->Monat[m];
        EXPECT_NEAR(M.Qh, M.Qt + M.Qv - M.Qs_genutzt - M.Qi_genutzt, 1e-3) << "month " << m;
        qh += M.Qh;
        qtr += M.Qt;
        qsol += M.Qs_genutzt;
    }
    EXPECT_NEAR(p->qh, qh, qh * 1e-6);
    EXPECT_NEAR(p->qtr, qtr, qtr * 1e-6);
    // Transmission by building part adds up to the whole.
    const double teile = p->qtr_Waende + p->qtr_Dach + p->qtr_Boden + p->qtr_Fenster + p->qtr_Tuer;
    EXPECT_NEAR(teile, p->qtr, p->qtr * 1e-5);
    const double fenster =
        p->Fensterverlust_N + p->Fensterverlust_W + p->Fensterverlust_S + p->Fensterverlust_O;
    EXPECT_NEAR(fenster, p->qtr_Fenster, p->qtr_Fenster * 1e-5);
    const double gewinn =
        p->Fenstergewinn_N + p->Fenstergewinn_W + p->Fenstergewinn_S + p->Fenstergewinn_O;
    EXPECT_NEAR(gewinn, qsol, qsol * 1e-5);
    EXPECT_NEAR(p->qhs_sum, p->qh / p->f_nutz, 1e-4);
    EXPECT_NEAR(p->qverl_s, p->qinfs + p->qtrs, 1e-4);
}

TEST_F(Monatsbilanz, HeatedAtticIgnoresTheRoofSpaceKind) {
    p->Dachgeschoss = true;
    alles_berechnen(*p);
    const float qt = p->qtr;
    p->Dachraum_typ = 2;
    alles_berechnen(*p);
    EXPECT_FLOAT_EQ(p->qtr, qt);

    // Without the attic the kind reduces the ceiling loss; the empty row 3 removes it.
    p->Dachgeschoss = false;
    p->Dachraum_typ = 0;
    alles_berechnen(*p);
    const float voll = p->qtr_Dach;
    p->Dachraum_typ = 2;
    alles_berechnen(*p);
    EXPECT_NEAR(p->qtr_Dach, voll * 0.5, voll * 1e-6);
    p->Dachraum_typ = 3;
    alles_berechnen(*p);
    EXPECT_FLOAT_EQ(p->qtr_Dach, 0);
}

TEST_F(Monatsbilanz, SouthWindowsGainMoreThanNorthWindows) {
    p->fn = p->fs = p->fo = p->fw = 20;
    alles_berechnen(*p);
    EXPECT_GT(p->Fenstergewinn_S, p->Fenstergewinn_O);
    EXPECT_GT(p->Fenstergewinn_S, p->Fenstergewinn_W);
    EXPECT_GT(p->Fenstergewinn_O, p->Fenstergewinn_N);
    EXPECT_GT(p->Fenstergewinn_W, p->Fenstergewinn_N);
}
