// SPDX-License-Identifier: GPL-3.0-or-later
// The refresh table: rows in their order, each only while its plane is visible, called by the
// driver after a whole run and never under the load guard.

#include "charts/Auffrischtabelle.h"
#include "tests/charts/Diagrammhilfe.h"

#include "calc/c_mod.h"
#include "project/c_glob.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

struct Alle {
    Uebersicht u;
    Heizen h;
    Kuehlen k;
    Sankey s;
    RecordingSurface av{60, 130}, lage{80, 80};
    GeometrieFlaechen g{av, lage};
    int klima = 0;
    Ergebnisebenen ebenen() {
        Ergebnisebenen e;
        e.geometrie = &g;
        e.uebersicht = &u.f;
        e.sankey = &s.f;
        e.heizen = &h.f;
        e.kuehlen = &k.f;
        e.klima_ausfuellen = [this](const Projekt&) { ++klima; };
        return e;
    }
};

TEST(Auffrischtabelle, VisibilityIsAskedBeforeEachOfTheFifteenRows) {
    TempOrdner o;
    auto p = diagrammprojekt(o, "d");
    Alle a;
    Ergebnisebenen e = a.ebenen();
    std::vector<Ebene> gefragt;
    auffrischen(
        *p, e,
        [&](Ebene x) {
            gefragt.push_back(x);
            return true;
        },
        einstellung("d"));
    const std::vector<Ebene> reihe = {Ebene::Geometrie,  Ebene::Uebersicht, Ebene::Uebersicht,
                                      Ebene::Uebersicht, Ebene::Sankey,     Ebene::Sankey,
                                      Ebene::Heizen,     Ebene::Heizen,     Ebene::Heizen,
                                      Ebene::Heizen,     Ebene::Heizen,     Ebene::Kuehlen,
                                      Ebene::Kuehlen,    Ebene::Kuehlen,    Ebene::KlimaGebaeude};
    EXPECT_EQ(gefragt, reihe);
    EXPECT_FALSE(a.av.log().empty());
    EXPECT_FALSE(a.u.Temperaturen.log().empty());
    EXPECT_FALSE(a.h.NutzungsgradJahr.log().empty());
    EXPECT_FALSE(a.s.Sankey_Kuehlen.log().empty());
    EXPECT_FALSE(a.h.Felder.qh_anz.empty());
    EXPECT_EQ(a.klima, 1);
}

TEST(Auffrischtabelle, AHiddenPlaneKeepsItsStaleDrawing) {
    TempOrdner o;
    auto p = diagrammprojekt(o, "d");
    Alle a;
    Ergebnisebenen e = a.ebenen();
    auffrischen(
        *p, e, [](Ebene x) { return x == Ebene::Kuehlen; }, einstellung("d"));
    EXPECT_FALSE(a.k.StundenProTagMonat.log().empty());
    EXPECT_FALSE(a.k.KuehlGradStundenJahr.log().empty());
    EXPECT_TRUE(a.u.Monatsbilanz.log().empty());
    EXPECT_TRUE(a.h.Gewinne_N.log().empty());
    EXPECT_TRUE(a.s.Sankey_.log().empty());
    EXPECT_TRUE(a.av.log().empty());
    EXPECT_TRUE(a.h.Felder.qh_anz.empty());
    EXPECT_EQ(a.klima, 0);
    // A plane that is not built is skipped even when it would be visible.
    Ergebnisebenen leer;
    auffrischen(
        *p, leer, [](Ebene) { return true; }, einstellung("d"));
}

class Zaehler : public Rechenbeobachter {
public:
    int geometrie = 0, alles = 0;
    void geometrie_berechnet(Projekt&) override { ++geometrie; }
    void alles_berechnet(Projekt&) override { ++alles; }
};

TEST(Auffrischtabelle, TheDriverRunsItAfterAWholeRunAndPassesTheRunsOn) {
    TempOrdner o;
    auto p = diagrammprojekt(o, "d");
    Zaehler vorher;
    rechenbeobachter_setzen(*p, &vorher);
    Alle a;
    {
        Auffrischtabelle tabelle(
            *p, a.ebenen(), [](Ebene x) { return x == Ebene::Uebersicht; }, einstellung("d"),
            &vorher);
        alles_berechnen(*p);
        EXPECT_EQ(vorher.geometrie, 1);
        EXPECT_EQ(vorher.alles, 1);
        EXPECT_EQ(a.u.Monatsbilanz.of_kind(RecordingSurface::Primitive::Kind::Cls).size(), 1u);

        // Under the load guard the driver stops after the geometry: no chart is drawn.
        p->FormLoadGuard = -1;
        alles_berechnen(*p);
        p->FormLoadGuard = 0;
        EXPECT_EQ(vorher.geometrie, 2);
        EXPECT_EQ(vorher.alles, 1);
        EXPECT_EQ(a.u.Monatsbilanz.of_kind(RecordingSurface::Primitive::Kind::Cls).size(), 1u);
    }
    // The table gives the registration back.
    alles_berechnen(*p);
    EXPECT_EQ(vorher.alles, 2);
    EXPECT_EQ(a.u.Monatsbilanz.of_kind(RecordingSurface::Primitive::Kind::Cls).size(), 1u);
    rechenbeobachter_setzen(*p, nullptr);
}

} // namespace
