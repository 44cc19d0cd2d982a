// SPDX-License-Identifier: GPL-3.0-or-later
// The windows plane: types, the two modes, south panel copying and the combined U value.
#include "tests/project/SkriptDialogs.h"

#include <gtest/gtest.h>

namespace {

// The new project in the given window mode, with the run counters at zero.
E_Fenster& fenster_im_modus(Programm& prog, int modus) {
    E_Fenster& f = prog.e->fenster;
    f.Option1.setzen(modus);
    prog.e->laeufe = prog.e->ganze_laeufe = 0;
    prog.p->Geaendert = 0;
    return f;
}

} // namespace

TEST(E_Fenster, SouthPanelInSameModeMovesAllFourAndRunsTheDriverOnce) {
    Programm prog;
    E_Fenster& f = fenster_im_modus(prog, 0);
    f[Sued].gf_sb.setze(70);
    EXPECT_EQ(prog.e->laeufe, 1);
    EXPECT_EQ(prog.e->ganze_laeufe, 1);
    for (Fassade x : {Nord, Sued, Ost, West}) {
        EXPECT_FLOAT_EQ(f[x].gf, 0.7f) << x;
        EXPECT_EQ(f[x].gf_sb.Value(), 70);
    }
    EXPECT_FLOAT_EQ(prog.p->gfw, 0.7f);
    EXPECT_EQ(prog.p->Geaendert, 1);

    prog.e->laeufe = 0;
    f[Sued].ra_sb.setze(30);
    EXPECT_EQ(prog.e->laeufe, 1);
    EXPECT_FLOAT_EQ(prog.p->rao, 0.3f);
    // The combined U value follows the new frame share on every facade.
    EXPECT_FLOAT_EQ(prog.p->kfw, static_cast<float>(0.7 * 1.4 + 1.5 * 0.3f));
}

TEST(E_Fenster, SouthPanelInIndividualModeCopiesNothing) {
    Programm prog;
    E_Fenster& f = fenster_im_modus(prog, 1);
    f[Sued].kfg_sb.setze(100);
    EXPECT_EQ(prog.e->ganze_laeufe, 1);
    EXPECT_FLOAT_EQ(prog.p->kfgs, 1.0f);
    EXPECT_FLOAT_EQ(prog.p->kfgn, 1.4f);
    // A north change runs the driver in this mode, and not in the mode "same windows".
    f[Nord].versch_sb.setze(50);
    EXPECT_EQ(prog.e->ganze_laeufe, 2);
    EXPECT_EQ(f[Nord].versch_anz.Caption, "50");
    f.Option1.setzen(0);
    prog.e->ganze_laeufe = 0;
    f[Nord].versch_sb.setze(40);
    EXPECT_EQ(prog.e->ganze_laeufe, 0);
}

TEST(E_Fenster, ModeChangeCopiesTheSouthPanel) {
    Programm prog;
    E_Fenster& f = fenster_im_modus(prog, 1);
    EXPECT_TRUE(f.Command_HR[Nord].Visible);
    EXPECT_FALSE(f.Command_HR[Sued].Enabled);
    f[Sued].typ.setze_index(5);
    f[Sued].ra_sb.setze(35);
    prog.p->Geaendert = 0;
    f.Option1.setzen(0);
    EXPECT_EQ(prog.p->Fenstermodus, 0);
    for (Fassade x : {Nord, Ost, West}) {
        EXPECT_EQ(f[x].typ.ListIndex(), 5);
        EXPECT_FLOAT_EQ(f[x].kfg, 0.7f);
        EXPECT_FLOAT_EQ(f[x].ra, 0.35f);
        EXPECT_FALSE(f.Command_HR[x].Visible);
    }
    // The copies' handlers mark the change, the mode itself does not.
    EXPECT_EQ(prog.p->Geaendert, 1);
    prog.p->Geaendert = 0;
    f.Option1.setzen(1);
    EXPECT_EQ(prog.p->Geaendert, 0);
}

TEST(E_Fenster, WindowTypesAndSonstiges) {
    Programm prog;
    E_Fenster& f = fenster_im_modus(prog, 0);
    f.Visible = true;
    f[Sued].typ.setze_index(0);
    EXPECT_FLOAT_EQ(prog.p->kfgs, 5.8f);
    EXPECT_FLOAT_EQ(prog.p->gfs, 0.92f);
    EXPECT_FLOAT_EQ(prog.p->kfrs, 3.5f);
    EXPECT_EQ(f[Nord].typ.ListIndex(), 0);
    EXPECT_EQ(f[Sued].kfg_anz.Caption, "5.80");
    EXPECT_EQ(prog.p->FormLoadGuard, 0);

    // The user moves the glazing U value: the south type and its copies become "Sonstiges".
    f.Fokus = &f[Sued].kfg_sb;
    f[Sued].kfg_sb.setze(300);
    EXPECT_EQ(prog.p->fensters_typ, FENSTERTYP_SONSTIGES);
    EXPECT_EQ(prog.p->fenstern_typ, FENSTERTYP_SONSTIGES);
    EXPECT_FLOAT_EQ(prog.p->kfgo, 3.0f);
    // Selecting row 7 changes no value but still marks the change.
    f.Fokus = nullptr;
    prog.p->Geaendert = 0;
    f[West].typ.setze_index(FENSTERTYP_SONSTIGES);
    EXPECT_EQ(prog.p->Geaendert, 1);
    EXPECT_FLOAT_EQ(prog.p->kfgw, 3.0f);
    EXPECT_EQ(f[West].kfg_sb.Value(), 300);

    // Set from code without the user's focus, the type stays.
    f[Sued].typ.setze_index(2);
    f[Sued].kfg_sb.setze(250);
    EXPECT_EQ(prog.p->fensters_typ, 2);
}

TEST(E_Fenster, CombinedUValueAndMeans) {
    Programm prog;
    E_Fenster& f = fenster_im_modus(prog, 1);
    f[Ost].ra_sb.setze(0);
    EXPECT_FLOAT_EQ(prog.p->kfo, 1.4f); // frame share 0: the glazing
    f[Ost].ra_sb.setze(100);
    EXPECT_FLOAT_EQ(prog.p->kfo, 1.5f); // frame share 1: the frame
    EXPECT_EQ(f[Ost].ra_anz.Caption, "100");
    EXPECT_FALSE(f.kf_anz.Caption.empty());
    for (Fassade x : {Nord, Sued, Ost, West}) {
        f[x].f_sb.setze(0);
    }
    EXPECT_EQ(f.kf_anz.Caption, "");
    EXPECT_EQ(f.gfm_anz.Caption, "");
    EXPECT_EQ(f.f_gf_anz.Caption, "0.0");
}

TEST(E_Fenster, AreaDisplaysOfTheNewProject) {
    Programm prog;
    E_Fenster& f = prog.e->fenster;
    // South: 40 % of 10 m x 5.2 m; east, west, north 5 %.
    EXPECT_EQ(f[Sued].f_flaeche_anz.Caption, " 20.8");
    EXPECT_EQ(f[Nord].f_flaeche_anz.Caption, " 2.6");
    EXPECT_EQ(f.f_gf_anz.Caption, "28.6");
    EXPECT_EQ(f.f_vf_anz.Caption, "22.9");
    EXPECT_EQ(f.kf_anz.Caption, " 1.42");
    EXPECT_EQ(f.gfm_anz.Caption, " 0.58");
}

TEST(E_Fenster, PlaneOpensInTheModeOfTheRecordWithoutCalculating) {
    Programm prog;
    // The started program's planes: the same windows at all facades.
    EXPECT_TRUE(prog.e->fenster.Option1.Value(0));
    EXPECT_FALSE(prog.e->fenster.Option1.Value(1));
    // A south change in that mode reaches the north facade without choosing a mode first.
    prog.e->fenster[Sued].versch_sb.setze(40);
    EXPECT_FLOAT_EQ(prog.p->verschn, 0.4f);
}
