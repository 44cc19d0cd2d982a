// SPDX-License-Identifier: GPL-3.0-or-later
// The insulation and building planes: ranges, options, inverted checks, the temperature bound
// and the neighbour walls.
#include "tests/project/SkriptDialogs.h"

#include <gtest/gtest.h>

TEST(E_Daemmung, RangesOptionsAndChecks) {
    Programm prog;
    E_Daemmung& d = prog.e->daemmung;
    EXPECT_THROW(d.kwn_sb.setze(0), Laufzeitfehler); // a wall keeps some transmission
    d.kd_sb.setze(0);
    EXPECT_EQ(prog.p->kd, 0.0f);
    EXPECT_EQ(d.kd_anz.Caption, "0.00");
    d.ft_sb.setze(25);
    EXPECT_FLOAT_EQ(prog.p->ft, 2.5f);
    EXPECT_EQ(d.ft_anz.Caption, "2.5");

    d.Waermebruecken_opt.setzen(3);
    EXPECT_EQ(prog.p->Waermebruecken, 0.05f);
    d.Waermebruecken_opt.setzen(1);
    EXPECT_EQ(prog.p->Waermebruecken, 0.0f);

    // The stored value is the inverse of the check: 0 for a ventilated roof.
    EXPECT_EQ(d.cbk_hDach.Value(), 0);
    d.cbk_hDach.klicken();
    EXPECT_EQ(prog.p->cbk_hDach, 0);
}

TEST(E_Daemmung, ListSelectionsDoNotMarkTheProjectChanged) {
    Programm prog;
    E_Daemmung& d = prog.e->daemmung;
    prog.p->Geaendert = 0;
    d.ugd.setze_index(3);
    d.ogd.setze_index(2);
    EXPECT_EQ(prog.p->ugd_typ, 3);
    EXPECT_EQ(prog.p->Dachraum_typ, 2);
    EXPECT_EQ(prog.p->Geaendert, 0);
    d.ugd.text_eingeben();
    EXPECT_EQ(prog.p->Geaendert, 1);
}

TEST(E_Gebaeude, SetTemperatureGivesWayBelowTheOverheatingLimit) {
    Programm prog;
    E_Gebaeude& g = prog.e->gebaeude;
    g.Troom_sb.setze(270);
    EXPECT_FLOAT_EQ(prog.p->Troom, 26.9f);
    EXPECT_EQ(g.Troom_sb.Value(), 269);
    EXPECT_EQ(g.troom_anz.Caption, "26.9");
    g.Troom_sb.setze(100);
    g.Troom_sb.seite(+1); // the large step to 30.0
    EXPECT_FLOAT_EQ(prog.p->Troom, 26.9f);

    g.Troom_sb.setze(200);
    g.Tueber_sb.setze(200);
    EXPECT_FLOAT_EQ(prog.p->Tueber, 20.1f);
    EXPECT_EQ(g.Tueber_anz.Caption, "20.1");
}

TEST(E_Gebaeude, DisplaysAndSteps) {
    Programm prog;
    E_Gebaeude& g = prog.e->gebaeude;
    g.intg_sb.setze(51);
    g.intg_sb.setze(50);
    EXPECT_EQ(g.intg_anz.Caption, "25.0");
    EXPECT_EQ(g.intg_anz2.Caption, "2.9");
    g.WRG_Sb.setze(50);
    g.WRG_Sb.seite(+1);
    EXPECT_FLOAT_EQ(prog.p->WRG, 0.51f);
    g.WRG_Sb.pfeil(+1);
    EXPECT_FLOAT_EQ(prog.p->WRG, 0.56f);
    EXPECT_EQ(g.WRG_anz.Caption, "56");
    EXPECT_FALSE(g.Cwirk_anz.Caption.empty());
    EXPECT_GT(g.Gewicht1_Height, 0);
    EXPECT_EQ(g.Gewicht2_Top, 1500 - g.Gewicht1_Height - g.Gewicht2_Height + 10);
}

TEST(E_Gebaeude, NeighbourWallHidesItsWindowShare) {
    Programm prog;
    E_Gebaeude& g = prog.e->gebaeude;
    E_Fenster& f = prog.e->fenster;
    f.Option1.setzen(0);
    g.aws_cb.klicken();
    EXPECT_EQ(prog.p->aws, 0);
    EXPECT_FALSE(f[Sued].f_sb.Enabled);
    EXPECT_EQ(f[Sued].f_anz.ForeColor, Label::Farbe::Hintergrund);
    EXPECT_EQ(prog.p->fs, 40); // the share is kept
    EXPECT_EQ(prog.p->f_sf, 0.0f);
    // The south properties still drive the other facades.
    f[Sued].gf_sb.setze(60);
    EXPECT_FLOAT_EQ(prog.p->gfn, 0.6f);
    g.aws_cb.klicken();
    EXPECT_TRUE(f[Sued].f_sb.Enabled);
    EXPECT_EQ(f[Sued].f_anz.ForeColor, Label::Farbe::Schaltflaechentext);
}

TEST(E_Gebaeude, ConstructionListsMarkTheChange) {
    Programm prog;
    prog.p->Geaendert = 0;
    prog.e->gebaeude.Aussenwandart.setze_index(0);
    EXPECT_EQ(prog.p->Aussenwandart, 0);
    EXPECT_EQ(prog.p->Geaendert, 1);
}
