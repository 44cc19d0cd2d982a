// SPDX-License-Identifier: GPL-3.0-or-later
// The browser page's program, run natively: a wrong control name or option index from the page
// is refused without a fault, after an action the page is sent only the pieces of the state that
// changed, a project opened in the world scope scrolls the world map to its station, and every
// chart of a plane that comes up is drawn into its command list, starting with the clearing of the
// surface. On the Europe and the world map a station dot names its station and a release on it
// picks it; the land beside a dot does neither. The enlarged temperature window draws the
// overview's month while it is open; the enlarged world map chooses for itself and hands its choice
// to the plane only on OK.
#include "web/Webprogramm.h"

#include "charts/A_Uebersicht.h"
#include "climate/ebene/E_Klima.h"
#include "project/c_glob.h"
#include "tests/support/Testprojekt.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace {

struct Lauf {
    Seitendialoge dialoge;
    std::unique_ptr<Projekt> p = leeres_projekt();
    Webprogramm w{*p,
                  "d",
                  VELMARIS_SOURCE_DIR "/klima",
                  [](const std::string&, const std::string& t) { return 6.0 * t.size(); },
                  [](const std::string&, const std::string&) { return 13.0; },
                  dialoge};
    Lauf() {
        for (const char* n : Webprogramm::DIAGRAMME) {
            w.flaeche_anlegen(n, 330, 140, WHITE);
        }
        EXPECT_TRUE(w.starten()) << w.fehler();
    }
};

TEST(Webprogramm, RefusesWhatThePlanesDoNotHave) {
    Lauf l;
    const std::string vorher = l.w.ergebnis();
    struct Fall {
        const char* name;
        int wert;
    };
    // The ridge options are 1 and 2, the thermal bridge options 1 to 3, the windows' 0 and 1.
    for (const Fall& f :
         {Fall{"E_Geometrie.Option_Dachfirst", 0}, Fall{"E_Geometrie.Option_Dachfirst", 3},
          Fall{"E_Daemmung.Waermebruecken_opt", 4}, Fall{"E_Fenster.Option1", -1},
          Fall{"E_Gebaeude.keiner", 1}, Fall{"E_Gebaeude.troom_anz", 1}}) {
        EXPECT_FALSE(l.w.setzen(f.name, f.wert)) << f.name << " " << f.wert;
    }
    EXPECT_FALSE(l.w.pfeil("E_Gebaeude.Aussenwandart", 1));
    EXPECT_FALSE(l.w.klicken("Command_HR(4)"));
    EXPECT_TRUE(l.w.gueltig());
    EXPECT_EQ(l.w.ergebnis(), vorher);
}

// A control's piece of the state, {"name":{...}}, as it stands in a state's JSON; empty if none.
std::string teil(const std::string& json, const std::string& name) {
    const auto a = json.find("\"" + name + "\":{");
    return a == std::string::npos ? std::string() : json.substr(a, json.find('}', a) - a + 1);
}

TEST(Webprogramm, SendsThePageOnlyWhatChangedSinceItsLastCall) {
    Lauf l;
    const std::string leer = R"({"steuer":{},"felder":{},"diagramme":{}})";
    EXPECT_EQ(l.w.aenderungen(), l.w.zustand());
    EXPECT_EQ(l.w.aenderungen(), leer);

    ASSERT_TRUE(l.w.pfeil("E_Geometrie.l_sb", 1));
    const std::string schritt = l.w.aenderungen();
    const std::string ganz = l.w.zustand();
    struct Fall {
        const char* name;
        bool geschickt;
    };
    for (const Fall& f : {Fall{"E_Geometrie.l_sb", true}, Fall{"E_Geometrie.l_anz", true},
                          Fall{"E_Geometrie.f_nfa_anz", true}, Fall{"E_Geometrie.b_sb", false},
                          Fall{"E_Gebaeude.troom_anz", false}}) {
        SCOPED_TRACE(f.name);
        ASSERT_FALSE(teil(ganz, f.name).empty());
        EXPECT_EQ(teil(schritt, f.name), f.geschickt ? teil(ganz, f.name) : std::string());
    }
    EXPECT_NE(schritt.find("\"Monatsbilanz\":"), std::string::npos);
    EXPECT_EQ(schritt.find("\"gueltig\":"), std::string::npos);
    EXPECT_EQ(l.w.aenderungen(), leer);

    // A step there and back between two calls leaves the controls as the page has them.
    ASSERT_TRUE(l.w.pfeil("E_Geometrie.l_sb", 1));
    ASSERT_TRUE(l.w.pfeil("E_Geometrie.l_sb", -1));
    EXPECT_EQ(teil(l.w.aenderungen(), "E_Geometrie.l_sb"), "");
}

TEST(Webprogramm, DrawsEveryChartOfThePlaneShown) {
    Lauf l;
    // The charts each output plane shows, by its button's order.
    const std::vector<std::vector<std::string>> ebenen{
        {"Monatsbilanz", "JahrBilanz_Uebersicht", "UeberGrafik", "UeberJahr", "Temperaturen"},
        {},
        {"Heizbilanz", "JahrBilanz_Heizen", "NutzungsgradMonat", "Gewinne_S", "Verluste_W"},
        {"StundenProTagMonat", "KuehlbedarfJahr", "KuehlGradStundenJahr"},
        {"Sankey", "Sankey_Kuehlen"}};
    for (std::size_t e = 0; e < ebenen.size(); ++e) {
        l.w.ausgabe_zeigen(static_cast<int>(e));
        for (const std::string& n : ebenen[e]) {
            const CanvasFlaeche* f = l.w.flaeche(n);
            ASSERT_NE(f, nullptr) << n;
            ASSERT_GT(f->befehle().size(), 2u) << n;
            EXPECT_EQ(f->befehle()[0], static_cast<double>(CanvasFlaeche::Befehl::Leeren)) << n;
            EXPECT_GT(f->fassung(), 1) << n;
        }
    }
}

// A station whose dot stands apart: no other station within 6 pixels in both axes.
int einzelne_station(const Stationsliste& liste) {
    for (int i = 0; i < liste.anzahl(); ++i) {
        bool allein = true;
        for (int j = 0; j < liste.anzahl() && allein; ++j) {
            allein = j == i || std::fabs(liste.punkt(i).first - liste.punkt(j).first) >= 6 ||
                     std::fabs(liste.punkt(i).second - liste.punkt(j).second) >= 6;
        }
        if (allein) {
            return i;
        }
    }
    return -1;
}

// The hover draws stations at random, so a name may take a few moves to show.
std::string benannt(Webprogramm& w, int x, int y) {
    for (int versuch = 0; versuch < 40; ++versuch) {
        const std::string name = w.stationskarte_hover(x, y);
        if (!name.empty()) {
            return name;
        }
    }
    return std::string();
}

TEST(Webprogramm, StationMapsNameAndPickTheDotUnderThePointer) {
    Lauf l;
    ASSERT_TRUE(l.w.eingabe_zeigen(Webprogramm::Klima));
    for (int bereich : {2, 3}) {
        SCOPED_TRACE(bereich);
        ASSERT_TRUE(l.w.klima("Option", bereich, "")) << l.w.fehler();
        const E_Klima& k = l.w.ebenen().klima;
        const Stationsliste& liste = bereich == 2 ? k.listen.Europa : k.listen.Welt;
        const int i = einzelne_station(liste);
        ASSERT_GE(i, 0);
        const std::string& name = liste.Stationsname[static_cast<std::size_t>(i)];
        const int x = static_cast<int>(std::lround(liste.punkt(i).first));
        const int y = static_cast<int>(std::lround(liste.punkt(i).second));

        // The disc of radius 2 is the dot: its inner rim names the station, the corner of its
        // square does not, although it lies within the Europe map's tolerance.
        EXPECT_EQ(benannt(l.w, x + 1, y + 1), name);
        EXPECT_EQ(benannt(l.w, x + 2, y + 2), "");
        EXPECT_EQ(benannt(l.w, -5, y), "");

        // A release off the dot keeps the station, on the dot (after the hover named it) picks it.
        const std::string vorher = l.w.p.Klimadatei;
        ASSERT_TRUE(l.w.stationskarte_klick(x + 2, y + 2));
        EXPECT_EQ(l.w.p.Klimadatei, vorher);
        ASSERT_EQ(benannt(l.w, x, y), name);
        ASSERT_TRUE(l.w.stationskarte_klick(x, y)) << l.w.fehler();
        EXPECT_EQ(k.Klimaregionwahl2.ListIndex, i);
        EXPECT_EQ(l.w.p.Klimadatei, liste.Dateiname[static_cast<std::size_t>(i)]);
        // The red dot of the choice is painted last, over its yellow one.
        const std::string rot = "[" + std::to_string(x) + "," + std::to_string(y) + ",255]]";
        EXPECT_NE(l.w.zustand().find(rot), std::string::npos) << rot;
    }
    // The world map scrolls by the width it has beyond its frame, 650 - 336 pixels in twips.
    ASSERT_TRUE(l.w.klima("HScroll1", 100000, ""));
    EXPECT_EQ(l.w.ebenen().klima.HScroll1, (650 - 336) * 15);
    ASSERT_TRUE(l.w.klima("HScroll1", -3, ""));
    EXPECT_EQ(l.w.ebenen().klima.HScroll1, 0);
}

TEST(Webprogramm, OpeningAProjectOfTheWorldScopeBringsItsStationIntoView) {
    Lauf l;
    TempOrdner ordner;
    ASSERT_TRUE(l.w.klima("Option", 3, "")) << l.w.fehler();
    const E_Klima& k = l.w.ebenen().klima;
    const Stationsliste& welt = k.listen.Welt;
    int west = 0;
    int ost = 0;
    for (int i = 1; i < welt.anzahl(); ++i) {
        west = welt.punkt(i).first < welt.punkt(west).first ? i : west;
        ost = welt.punkt(i).first > welt.punkt(ost).first ? i : ost;
    }
    // Each station saved, the map scrolled away from it, the project opened again.
    struct Fall {
        int station;
        int vorher;
        int nachher;
        const char* datei;
    };
    for (const Fall& f :
         {Fall{ost, 0, k.HScroll1_max, "ost.vel"}, Fall{west, k.HScroll1_max, 0, "west.vel"}}) {
        SCOPED_TRACE(f.datei);
        ASSERT_TRUE(l.w.klima("Klimaregionwahl2", f.station, "")) << l.w.fehler();
        const std::string pfad = (ordner.pfad() / f.datei).string();
        ASSERT_EQ(l.w.speichern(true, pfad), pfad);
        ASSERT_TRUE(l.w.klima("HScroll1", f.vorher, ""));
        ASSERT_EQ(k.HScroll1, f.vorher);
        ASSERT_TRUE(l.w.oeffnen(pfad)) << l.w.fehler();
        EXPECT_EQ(k.Klimaregionwahl2.ListIndex, f.station);
        EXPECT_EQ(k.HScroll1, f.nachher);
    }
}

TEST(Webprogramm, EnergyListEntriesStandUnderEachOtherByTheirWrappedLines) {
    Lauf l;
    ASSERT_TRUE(l.w.klicken("Command1"));
    // Six pixels a character over 314: the first system's 84 characters take two lines of 13
    // pixels, the electric direct heating one.
    const auto& liste = l.w.ebenen().energie.Label_Auswahl;
    EXPECT_EQ(liste[0].Height, 2 * 13 * 15);
    EXPECT_EQ(liste[1].Top, liste[0].Top + liste[0].Height + 120);
    EXPECT_EQ(liste[7].Caption, "Elektro-Direktheizung");
    EXPECT_EQ(liste[7].Height, 13 * 15);
}

TEST(Webprogramm, EnlargedTemperatureWindowFollowsTheMonthWhileOpen) {
    Lauf l;
    l.w.flaeche_anlegen(Webprogramm::ZOOM_FLAECHE, 784, 444, WHITE);
    const CanvasFlaeche& zoom = *l.w.flaeche(Webprogramm::ZOOM_FLAECHE);
    l.w.ausgabe_zeigen(Webprogramm::Uebersicht);
    l.w.monat(4);
    EXPECT_EQ(zoom.fassung(), 0) << "drawn while closed";

    l.w.zoom_zeigen(true);
    l.w.monat(7);
    EXPECT_EQ(l.w.p.Monat_Uebersicht, 7);
    CanvasFlaeche juli(
        784, 444, WHITE, [](const std::string&, const std::string& t) { return 6.0 * t.size(); },
        [](const std::string&, const std::string&) { return 13.0; });
    juli.Cls();
    TemperaturDiagrammZeichnen(l.w.p, juli, Diagrammeinstellung{});
    EXPECT_EQ(zoom.befehle(), juli.befehle());
    EXPECT_EQ(zoom.texte(), juli.texte());

    l.w.zoom_zeigen(false);
    const int fassung = zoom.fassung();
    l.w.monat(2);
    EXPECT_EQ(zoom.fassung(), fassung);
}

TEST(Webprogramm, EnlargedWorldMapHandsItsChoiceOverOnlyOnOk) {
    Lauf l;
    ASSERT_TRUE(l.w.klima("Option", 3, "")) << l.w.fehler();
    const Stationsliste& welt = l.w.ebenen().klima.listen.Welt;
    const int i = einzelne_station(welt);
    ASSERT_GE(i, 0);
    // The dots stand 1.5 times as far apart as on the plane's map.
    const int x = static_cast<int>(std::lround(welt.punkt(i).first * 1.5));
    const int y = static_cast<int>(std::lround(welt.punkt(i).second * 1.5));
    const std::string datei = welt.Dateiname[static_cast<std::size_t>(i)];
    for (bool ok : {false, true}) {
        SCOPED_TRACE(ok);
        const std::string vorher = l.w.p.Klimadatei;
        l.w.zoom_klima_oeffnen();
        std::string name;
        for (int versuch = 0; versuch < 40 && name.empty(); ++versuch) {
            name = l.w.zoom_klima_hover(x, y);
        }
        ASSERT_EQ(name, welt.Stationsname[static_cast<std::size_t>(i)]);
        l.w.zoom_klima_klick(x, y);
        EXPECT_NE(l.w.zustand().find("\"zoom\":{\"index\":" + std::to_string(i) + ","),
                  std::string::npos);
        EXPECT_EQ(l.w.p.Klimadatei, vorher) << "chosen before the window closed";
        ASSERT_TRUE(l.w.zoom_klima_schliessen(ok)) << l.w.fehler();
        EXPECT_EQ(l.w.p.Klimadatei, ok ? datei : vorher);
        EXPECT_EQ(l.w.zustand().find("\"zoom\""), std::string::npos);
    }
}

} // namespace
