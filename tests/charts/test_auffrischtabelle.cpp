// SPDX-License-Identifier: GPL-3.0-or-later
// The refresh table: rows in their order, each only while its plane is visible, called by the
// driver after a whole run and never under the load guard.

#include "charts/Auffrischtabelle.h"
#include "charts/Neuzeichnen.h"
#include "tests/charts/Diagrammhilfe.h"

#include "calc/c_mod.h"
#include "project/c_glob.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using Kind = RecordingSurface::Primitive::Kind;

struct Alle {
    Uebersicht u;
    Heizen h;
    Kuehlen k;
    Sankey s;
    RecordingSurface av{60, 130}, lage{80, 80};
    GeometrieFlaechen g{av, lage};
    RecordingSurface monatsverbrauch{330, 115}, bild2{80, 50}, bild3{80, 50};
    EnergieFlaechen en{monatsverbrauch, bild2, bild3};
    int klima = 0;
    Ergebnisebenen ebenen() {
        Ergebnisebenen e;
        e.energie = &en;
        e.geometrie = &g;
        e.uebersicht = &u.f;
        e.sankey = &s.f;
        e.heizen = &h.f;
        e.kuehlen = &k.f;
        e.klima_ausfuellen = [this](const Projekt&) { ++klima; };
        return e;
    }
};

TEST(Auffrischtabelle, VisibilityIsAskedBeforeTheEnergyChartsAndEachOfTheFifteenRows) {
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
    const std::vector<Ebene> reihe = {
        Ebene::Energie,    Ebene::Geometrie, Ebene::Uebersicht, Ebene::Uebersicht,
        Ebene::Uebersicht, Ebene::Sankey,    Ebene::Sankey,     Ebene::Heizen,
        Ebene::Heizen,     Ebene::Heizen,    Ebene::Heizen,     Ebene::Heizen,
        Ebene::Kuehlen,    Ebene::Kuehlen,   Ebene::Kuehlen,    Ebene::KlimaGebaeude};
    EXPECT_EQ(gefragt, reihe);
    EXPECT_FALSE(a.monatsverbrauch.log().empty());
    EXPECT_FALSE(a.bild2.log().empty());
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
    EXPECT_TRUE(a.monatsverbrauch.log().empty());
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

TEST(Auffrischtabelle, TheDriverRunsItAfterAWholeRunAfterTheObserversBeforeIt) {
    TempOrdner o;
    auto p = diagrammprojekt(o, "d");
    Zaehler vorher;
    const Beobachtung angemeldet(p->beobachter, vorher);
    Alle a;
    {
        Auffrischtabelle tabelle(
            *p, a.ebenen(), [](Ebene x) { return x == Ebene::Uebersicht; }, einstellung("d"));
        EXPECT_EQ(p->beobachter.alle(), (std::vector<Rechenbeobachter*>{&vorher, &tabelle}));
        alles_berechnen(*p);
        EXPECT_EQ(vorher.geometrie, 1);
        EXPECT_EQ(vorher.alles, 1);
        EXPECT_EQ(a.u.Monatsbilanz.of_kind(Kind::Cls).size(), 1u);

        // Under the load guard the driver stops after the geometry: no chart is drawn.
        p->FormLoadGuard = -1;
        alles_berechnen(*p);
        p->FormLoadGuard = 0;
        EXPECT_EQ(vorher.geometrie, 2);
        EXPECT_EQ(vorher.alles, 1);
        EXPECT_EQ(a.u.Monatsbilanz.of_kind(Kind::Cls).size(), 1u);
    }
    // The table leaves with its registration; the one before it stays.
    alles_berechnen(*p);
    EXPECT_EQ(vorher.alles, 2);
    EXPECT_EQ(a.u.Monatsbilanz.of_kind(Kind::Cls).size(), 1u);
    EXPECT_EQ(p->beobachter.alle(), std::vector<Rechenbeobachter*>{&vorher});
}

TEST(Neuzeichnen, ARepaintRedrawsFromTheRecordWithTheSurfacesItsRoutineDraws) {
    TempOrdner o;
    auto p = diagrammprojekt(o, "d");
    Alle a;
    Ergebnisebenen e = a.ebenen();
    const double qh = p->qh;
    // The year balance of the overview is repainted with the month balance.
    neu_zeichnen(Flaeche::JahrBilanz_Uebersicht, *p, e, einstellung("d"));
    EXPECT_EQ(a.u.Monatsbilanz.of_kind(Kind::Cls).size(), 1u);
    EXPECT_EQ(a.u.JahrBilanz.of_kind(Kind::Cls).size(), 1u);
    EXPECT_TRUE(a.u.UeberGrafik.log().empty());
    // Verluste_W repaints all eight facade bars.
    neu_zeichnen(Flaeche::Verluste_W, *p, e, einstellung("d"));
    EXPECT_FALSE(a.h.Gewinne_S.log().empty());
    EXPECT_TRUE(a.h.Heizbilanz.log().empty());
    // UeberGrafik repaints UeberJahr too; the cooling pair comes as a pair.
    neu_zeichnen(Flaeche::UeberGrafik, *p, e, einstellung("d"));
    EXPECT_FALSE(a.u.UeberJahr.log().empty());
    neu_zeichnen(Flaeche::KuehlGradStundenJahr, *p, e, einstellung("d"));
    EXPECT_FALSE(a.k.KuehlGradStundenMonat.log().empty());
    EXPECT_TRUE(a.k.KuehlbedarfMonat.log().empty());
    neu_zeichnen(Flaeche::Picture1, *p, e, einstellung("d"));
    EXPECT_FALSE(a.lage.log().empty());
    // Nothing is recalculated.
    EXPECT_EQ(p->qh, qh);
    Ergebnisebenen leer;
    neu_zeichnen(Flaeche::Sankey, *p, leer, einstellung("d"));
}

} // namespace
