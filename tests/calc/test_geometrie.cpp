// SPDX-License-Identifier: GPL-3.0-or-later
// Building geometry: values a reader can work out by hand from the building's dimensions.
#include "calc/c_mod.h"
#include "calc/geometrie.h"
#include "tests/support/Testprojekt.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

void rechnen(Projekt& p) {
    geometrie_berechnen(p);
    fensterflaechen_berechnen(p);
}

} // namespace

TEST(Geometrie, NewProjectIsATenByTenBoxWithFlatCeiling) {
    auto p = neues_projekt_ohne_klima();
    rechnen(*p);
    EXPECT_FLOAT_EQ(p->f_gd, 100);
    EXPECT_FLOAT_EQ(p->f_nfa, 52); // 10 m x 5.2 m
    EXPECT_FLOAT_EQ(p->f_sfa, 52);
    EXPECT_FLOAT_EQ(p->f_wfa, 52);
    EXPECT_FLOAT_EQ(p->f_ofa, 52);
    EXPECT_FLOAT_EQ(p->f_dach_flach, 100);
    EXPECT_FLOAT_EQ(p->Dachneigung, 0);
    EXPECT_FLOAT_EQ(p->v_geb, 520);
    EXPECT_FLOAT_EQ(p->v_luft, 416);
    EXPECT_FLOAT_EQ(p->f_nutz, 160); // 100 m² x 0.8 x 2 floors
    // Envelope: four facades, floor and ceiling = 408 m² over 520 m³.
    EXPECT_FLOAT_EQ(p->AV, 408.0f / 520.0f);
    EXPECT_FLOAT_EQ(p->Fx_ugd, 0.5f); // B = 100 / 20 = 5 takes the middle column
    EXPECT_FLOAT_EQ(p->f_sf, 20.8f);  // 40 % of the south facade
    EXPECT_FLOAT_EQ(p->f_nf, 2.6f);
    EXPECT_FLOAT_EQ(p->f_of, 2.6f);
    EXPECT_FLOAT_EQ(p->f_wf, 2.6f);
    EXPECT_FLOAT_EQ(p->f_sw, 31.2f);
    EXPECT_FLOAT_EQ(p->f_nw, 49.4f);
    EXPECT_NEAR(p->f_wand, 179.4f, 1e-4);
    EXPECT_NEAR(p->f_gf, 28.6f, 1e-4);
}

TEST(Geometrie, HeatedAtticAddsUsableFloorByRoofHeight) {
    struct Fall {
        float hd;
        double f_nutz; // 160 plus the additions under the roof
        double v_geb;  // 520 plus the half prism
    };
    const Fall faelle[] = {
        {0.5f, 160, 520 + 25},
        {1.0f, 160, 520 + 50},                         // hd exactly 1: no addition
        {1.5f, 160 + 0.5 * 100 * 0.4 / 1.5, 520 + 75}, // 1 < hd <= 2
        {2.0f, 160 + 1.0 * 100 * 0.4 / 2, 520 + 100},  // hd exactly 2: only the lower rule
        {3.0f, 160 + 1.0 * 100 * 0.8 / 3 + 100 * 0.4 / 3, 520 + 150}, // both rules above 2
    };
    for (const Fall& f : faelle) {
        auto p = neues_projekt_ohne_klima();
        p->Dachgeschoss = true;
        p->hd = f.hd;
        rechnen(*p);
        EXPECT_NEAR(p->f_nutz, f.f_nutz, 1e-4) << "hd = " << f.hd;
        EXPECT_NEAR(p->v_geb, f.v_geb, 1e-4) << "hd = " << f.hd;
        EXPECT_FLOAT_EQ(p->f_dach_flach, 0);
    }
}

TEST(Geometrie, RidgeDirectionDecidesWhichPlanesAndGablesExist) {
    auto p = neues_projekt_ohne_klima();
    p->Dachgeschoss = true;
    p->l = 10;
    p->b = 8;
    p->hd = 2;
    p->Dachfirst = 1; // north-south ridge: the roof spans l and faces east and west
    rechnen(*p);
    EXPECT_NEAR(p->f_dach_o, 8 * std::sqrt(25.0 + 4.0), 1e-4);
    EXPECT_FLOAT_EQ(p->f_dach_w, p->f_dach_o);
    EXPECT_FLOAT_EQ(p->f_dach_n, 0);
    EXPECT_FLOAT_EQ(p->f_dach_s, 0);
    EXPECT_FLOAT_EQ(p->f_giebel_n, 10); // 2 x 10 / 2
    EXPECT_FLOAT_EQ(p->f_giebel_s, 10);
    EXPECT_FLOAT_EQ(p->f_giebel_o, 0);
    EXPECT_NEAR(p->Dachneigung, std::atan(0.4) * 180 / 3.14159, 1e-5);

    p->Dachfirst = 2; // east-west ridge: spans b, faces north and south
    rechnen(*p);
    EXPECT_NEAR(p->f_dach_n, 10 * std::sqrt(16.0 + 4.0), 1e-4);
    EXPECT_FLOAT_EQ(p->f_dach_s, p->f_dach_n);
    EXPECT_FLOAT_EQ(p->f_dach_o, 0);
    EXPECT_FLOAT_EQ(p->f_giebel_w, 8);
    EXPECT_FLOAT_EQ(p->f_giebel_o, 8);
    EXPECT_FLOAT_EQ(p->f_giebel_n, 0);
    EXPECT_NEAR(p->Dachneigung, std::atan(0.5) * 180 / 3.14159, 1e-5);

    // Neither option set is treated as east-west.
    p->Dachfirst = 0;
    rechnen(*p);
    EXPECT_GT(p->f_dach_n, 0);
}

TEST(Geometrie, WithoutHeatedAtticTheRoofHeightCountsNowhere) {
    auto p = neues_projekt_ohne_klima();
    p->hd = 4.5f;
    rechnen(*p);
    EXPECT_FLOAT_EQ(p->Dachneigung, 0);
    EXPECT_FLOAT_EQ(p->v_geb, 520);
    EXPECT_FLOAT_EQ(p->f_nutz, 160);
}

TEST(Geometrie, FloorDimensionFiveAndTenTakeTheMiddleColumn) {
    struct Fall {
        float seite; // square building: B = seite / 2
        int16_t ugd_typ;
        float Fx;
    };
    const Fall faelle[] = {
        {9.8f, 0, 0.55f}, {10, 0, 0.5f}, {20, 0, 0.5f},     {20.2f, 0, 0.45f}, {9.8f, 1, 0.7f},
        {10, 2, 0.25f},   {20, 3, 0.4f}, {20.2f, 3, 0.25f}, {9.8f, 4, 0.9f},   {20.2f, 4, 0.9f},
    };
    for (const Fall& f : faelle) {
        auto p = neues_projekt_ohne_klima();
        p->l = p->b = f.seite;
        p->ugd_typ = f.ugd_typ;
        rechnen(*p);
        EXPECT_FLOAT_EQ(p->Fx_ugd, f.Fx) << "side " << f.seite << ", kind " << f.ugd_typ;
    }
}

TEST(Geometrie, FloorDimensionMeetsTheBoundariesAsAFloat) {
    // f_gd / (b + l) lies a hair off 5 or 10 in double but is 5 or 10 as a float, and the float
    // decides the column: the middle one.
    struct Fall {
        float l, b;
        double B_double;
    };
    const Fall faelle[] = {{5.8f, 36.25f, 4.99999998}, {13.2f, 41.25f, 10.00000004}};
    for (const Fall& f : faelle) {
        auto p = neues_projekt_ohne_klima();
        p->l = f.l;
        p->b = f.b;
        p->ugd_typ = 0;
        rechnen(*p);
        const double B = static_cast<double>(p->f_gd) / (static_cast<double>(f.b) + f.l);
        EXPECT_NEAR(B, f.B_double, 1e-8);
        EXPECT_NE(B, static_cast<float>(B));
        EXPECT_FLOAT_EQ(p->Fx_ugd, 0.5f) << f.l << " x " << f.b;
    }
}

TEST(Geometrie, LowerFloorKindOutsideTheTableKeepsTheFactor) {
    auto p = neues_projekt_ohne_klima();
    rechnen(*p);
    p->ugd_typ = 5;
    p->Fx_ugd = 0.123f;
    rechnen(*p);
    EXPECT_FLOAT_EQ(p->Fx_ugd, 0.123f);
}

TEST(Geometrie, WallToHeatedNeighbourHasNoAreaButKeepsItsShare) {
    auto p = neues_projekt_ohne_klima();
    p->awn = 0;
    p->ft = 2;
    rechnen(*p);
    EXPECT_EQ(p->fn, 5);
    EXPECT_FLOAT_EQ(p->f_nfa, 0);
    EXPECT_FLOAT_EQ(p->f_nf, 0);
    // The door comes off the north wall whatever its flag: a negative net wall is kept.
    EXPECT_FLOAT_EQ(p->f_nw, -2);
}

TEST(Geometrie, AllWallsAdjoiningLeaveNoWindowsAndTheYearStillRuns) {
    TempOrdner ordner;
    auto p = neues_testprojekt(ordner);
    p->awn = p->aws = p->awo = p->aww = 0;
    alles_berechnen(*p);
    EXPECT_FLOAT_EQ(p->f_gf, 0);
    EXPECT_FLOAT_EQ(p->f_wand, 0);
    EXPECT_GT(p->qh, 0);
}

TEST(Geometrie, ZeroVolumeBecomesOne) {
    auto p = neues_projekt_ohne_klima();
    p->h = 0;
    rechnen(*p);
    EXPECT_FLOAT_EQ(p->v_geb, 1);
    EXPECT_FLOAT_EQ(p->v_luft, 0.8f);
    EXPECT_FLOAT_EQ(p->AV, 200); // floor and ceiling over one cubic metre
}
