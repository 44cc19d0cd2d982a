// SPDX-License-Identifier: GPL-3.0-or-later
// The geometry plane: scales, the roof and ridge logic, orientation and the A/V chart.
#include "tests/project/SkriptDialogs.h"

#include <gtest/gtest.h>

TEST(E_Geometrie, ScalesAndDisplays) {
    Programm prog;
    E_Geometrie& g = prog.e->geometrie;
    EXPECT_EQ(g.l_sb.Value(), 100);
    EXPECT_EQ(g.h_sb.Value(), -52);
    EXPECT_EQ(g.ag_sb.Value(), -2);
    g.h_sb.pfeil(-1); // the upper arrow: the small step of 0.2 m upwards
    EXPECT_FLOAT_EQ(prog.p->h, 5.4f);
    EXPECT_EQ(prog.p->Geaendert, 1);
    EXPECT_EQ(g.h_anz.Caption, "5.4 m");
    EXPECT_EQ(g.l_anz.Caption, "Länge: 10.0 m");
    EXPECT_EQ(g.f_nfa_anz.Caption, " 54.0");
    g.ag_sb.seite(+1); // the large step of -2 moves against the click
    EXPECT_FLOAT_EQ(prog.p->ag, 4);
    // No bound between height and floors.
    g.h_sb.setze(-20);
    g.ag_sb.setze(-20);
    EXPECT_FLOAT_EQ(prog.p->h, 2.0f);
    EXPECT_FLOAT_EQ(prog.p->ag, 20);
}

TEST(E_Geometrie, RoofLogicForcesTheRoofHeight) {
    Programm prog;
    E_Geometrie& g = prog.e->geometrie;
    EXPECT_FALSE(g.hd_sb.Visible);
    EXPECT_FLOAT_EQ(prog.p->hd, 2.0f); // a new project keeps its roof height unused
    g.Check_Dachgeschoss.klicken();
    EXPECT_TRUE(prog.p->Dachgeschoss);
    EXPECT_FLOAT_EQ(prog.p->hd, 1.0f); // not the earlier value
    EXPECT_TRUE(g.hd_sb.Visible);
    EXPECT_TRUE(g.Option_Dachfirst.Enabled(2));
    EXPECT_EQ(g.Picture3, "Grafiken/haus1.bmp");
    EXPECT_EQ(prog.e->daemmung.liste2.Caption, "Dach");
    EXPECT_FALSE(prog.e->daemmung.ogd.Visible);
    EXPECT_TRUE(prog.e->daemmung.ogd_Dach.Visible);
    EXPECT_EQ(g.h_sb_Top, 1920);

    g.hd_sb.setze(-35);
    g.Check_Dachgeschoss.klicken();
    EXPECT_EQ(prog.p->hd, 0.0f);
    EXPECT_FALSE(prog.p->Dachgeschoss);
    EXPECT_EQ(prog.e->daemmung.liste2.Caption, "Obere Geschoßdecke");
    EXPECT_EQ(g.Picture3, "Grafiken/haus0.bmp");
}

TEST(E_Geometrie, RoofClickItselfDoesNotMarkTheProjectChanged) {
    Programm prog;
    E_Geometrie& g = prog.e->geometrie;
    g.hd_sb.setze(-10);
    prog.p->Geaendert = 0;
    g.Check_Dachgeschoss.klicken(); // hd_sb already at -10: no position change
    EXPECT_EQ(prog.p->Geaendert, 0);
}

TEST(E_Geometrie, RidgeLogic) {
    Programm prog("e");
    E_Geometrie& g = prog.e->geometrie;
    // Without a heated attic a ridge change changes nothing but the state, not the picture.
    g.Option_Dachfirst.setzen(2);
    EXPECT_EQ(prog.p->Dachfirst, 2);
    EXPECT_EQ(g.Picture3, "Grafiken/haus0.bmp");
    g.Check_Dachgeschoss.klicken();
    EXPECT_EQ(g.Picture3, "Grafiken/haus2.bmp");
    // The first tick places the labels over the picture for the ridge already set.
    EXPECT_EQ(g.Label9.Caption, "gable:");
    EXPECT_EQ(g.Label6.Left, 68);
    EXPECT_EQ(g.Label6.Top, 48);
    EXPECT_EQ(g.dachflaeche_anz.Left, 80);
    g.Option_Dachfirst.setzen(1);
    EXPECT_EQ(g.Picture3, "Grafiken/haus1.bmp");
    EXPECT_EQ(g.Label9.Caption, "roof area (west):");
    EXPECT_EQ(g.Label6.Caption, "gable:");
    // The gable value stands under its caption, not on it.
    EXPECT_EQ(g.Giebel_anz.Left, g.Label6.Left);
    EXPECT_GT(g.Giebel_anz.Top, g.Label6.Top);
    g.Option_Dachfirst.setzen(2);
    EXPECT_EQ(g.Label6.Caption, "roof area (south):");
    // Under "gable:" and inside the picture.
    EXPECT_EQ(g.Giebel_anz.Left, g.Label9.Left);
    EXPECT_GT(g.Giebel_anz.Top, g.Label9.Top);
    EXPECT_EQ(prog.p->Dachfirst, 2);
}

TEST(E_Geometrie, OrientationAndAVChart) {
    Programm prog;
    E_Geometrie& g = prog.e->geometrie;
    g.orient_sb.setze(-45);
    EXPECT_EQ(prog.p->orient, 45);
    EXPECT_EQ(g.orient_anz.Caption, "45°");
    g.AV_diagramm();
    EXPECT_GT(g.av_balken_y, 7);
    EXPECT_LE(g.av_balken_y, 123);
    EXPECT_EQ(g.av_anz.Top, std::max(g.av_balken_y - 8, 5));
    // A very elongated building: the bar stops at 7.
    g.l_sb.setze(500);
    g.b_sb.setze(20);
    g.h_sb.setze(-20);
    g.AV_diagramm();
    EXPECT_EQ(g.av_balken_y, 7);
    EXPECT_EQ(g.av_anz.Top, 5);
    EXPECT_EQ(g.av_anz.Caption.back(), ' ');
}

TEST(Eingabeflaechen, EachRegistrationRemovesExactlyItsOwnObserverWhateverTheOrder) {
    struct Zaehler : Rechenbeobachter {
        Zaehler(std::vector<char>& f, char n) : folge(f), name(n) {}
        std::vector<char>& folge;
        char name;
        void geometrie_berechnet(Projekt&) override { folge.push_back(name); }
        void alles_berechnet(Projekt&) override {}
    };
    auto p = leeres_projekt();
    std::vector<char> folge;
    Zaehler a(folge, 'a'), b(folge, 'b');
    auto ebenen = std::make_unique<Eingabeflaechen>(*p);
    auto erste = std::make_unique<Beobachtung>(p->beobachter, a);
    {
        const Beobachtung zweite(p->beobachter, b);
        EXPECT_EQ(p->beobachter.alle(), (std::vector<Rechenbeobachter*>{ebenen.get(), &a, &b}));
        // The planes, registered first, leave before the others and take no one with them.
        ebenen.reset();
        p->beobachter.geometrie_berechnet(*p);
        EXPECT_EQ(folge, (std::vector<char>{'a', 'b'}));
        erste.reset();
    }
    EXPECT_TRUE(p->beobachter.alle().empty());
    // A copy of a record is told of nothing.
    const Beobachtung wieder(p->beobachter, a);
    EXPECT_TRUE(std::make_unique<Projekt>(*p)->beobachter.alle().empty());
}
