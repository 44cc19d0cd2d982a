// SPDX-License-Identifier: GPL-3.0-or-later
// The station maps of the climate plane without widgets: the hover by scope, the scrolled world
// map, the enlarged world map and the station name the climate information plane shows.
#include "climate/ebene/E_Klima.h"
#include "climate/ebene/E_Zoom_Klima.h"
#include "climate/ebene/stationskarten.h"
#include "project/c_glob.h"
#include "tests/climate_choice/Klimahilfe.h"

#include <gtest/gtest.h>

namespace {

// The default station trier.met (region 4), bremen.met (region 1), two European stations and
// two far ones, west and east of Europe on the world map.
struct Kartenwahl : ::testing::Test {
    TempOrdner ordner;
    std::unique_ptr<Projekt> p;
    E_Klima e;
    Meldungen d;

    void SetUp() override {
        station_schreiben(ordner, "bremen.met", "Bremen (Deutschland)", 53.05, -8.8);
        station_schreiben(ordner, "paris.met", "Paris (Frankreich)", 48.86, -2.35);
        station_schreiben(ordner, "rom.met", "Rom (Italien)", 41.9, -12.5);
        station_schreiben(ordner, "chicago.met", "Chicago (USA)", 41.9, 87.6);
        station_schreiben(ordner, "tokio.met", "Tokio (Japan)", 35.7, -139.7);
        p = neues_testprojekt(ordner);
        E_Klima_erstellen(e, *p);
        // Every station in turn, so that a hover finds any station within one round.
        e.zufall = [n = 0, anzahl = e.listen.Welt.anzahl()]() mutable {
            return (n++ % anzahl + 0.5) / anzahl;
        };
        p->Geaendert = 0;
    }
    int welt(const std::string& datei) const { return e.listen.Welt.suchen(datei); }
    int europa(const std::string& datei) const { return e.listen.Europa.suchen(datei); }
    void welt_waehlen(const std::string& datei) {
        e.Klimaregionwahl2.waehlen(welt(datei));
        Klimaregionwahl2_Click(e, *p);
    }
};

} // namespace

TEST_F(Kartenwahl, HoverMitDerToleranzDesBereichs) {
    Option2_Click(e, *p, d, true);
    const auto [xe, ye] = e.listen.Europa.punkt(europa("paris.met"));
    station_karte_hover(e, *p, FARBE_STATION, xe + 2.5, ye - 2.5);
    EXPECT_EQ(e.MausRegion, "Paris (Frankreich)") << "the Europe map takes 3 pixels";
    station_karte_hover(e, *p, 0x123456, xe, ye);
    EXPECT_EQ(e.MausRegion, "") << "the colour of the land clears the text";
    station_karte_hover(e, *p, FARBE_GEWAEHLT, xe, ye);
    EXPECT_EQ(e.MausRegion, "Paris (Frankreich)") << "the red dot is named as well";

    Option3_Click(e, *p, d, true);
    const auto [xw, yw] = e.listen.Welt.punkt(welt("paris.met"));
    station_karte_hover(e, *p, FARBE_STATION, xw + 1.9, yw);
    EXPECT_EQ(e.MausRegion, "Paris (Frankreich)");
    station_karte_hover(e, *p, FARBE_STATION, xw + 2.5, yw);
    EXPECT_EQ(e.MausRegion, "") << "the world map takes only 2 pixels";
    // The same spot on the Europe map's position of Paris means nothing on the world map.
    station_karte_hover(e, *p, FARBE_STATION, xe, ye);
    EXPECT_EQ(e.MausRegion, "");
}

TEST_F(Kartenwahl, RahmenUndRollbalkenDerWeltkarte) {
    weltkarte_einrichten(e, 650, 336);
    EXPECT_EQ(e.picture3f_breite, 336 * 15);
    EXPECT_EQ(e.HScroll1_max, (650 - 336) * 15);
    HScroll1_Change(e, -15);
    EXPECT_EQ(e.HScroll1, 0);
    HScroll1_Change(e, 99999);
    EXPECT_EQ(e.HScroll1, e.HScroll1_max);
    HScroll1_Change(e, 1500);
    EXPECT_EQ(e.HScroll1, 1500);
    // A frame wider than the map leaves nothing to scroll.
    weltkarte_einrichten(e, 650, 700);
    EXPECT_EQ(e.HScroll1_max, 0);
    EXPECT_EQ(e.HScroll1, 0);
}

TEST_F(Kartenwahl, WeltwahlBringtDieStationInDenSichtbarenStreifen) {
    weltkarte_einrichten(e, 650, 336);
    Option3_Click(e, *p, d, true);
    const int max = e.HScroll1_max;
    welt_waehlen("tokio.met"); // 559 px, right of the strip 0..336
    EXPECT_EQ(e.HScroll1, max);
    welt_waehlen("paris.met"); // 329 px, inside the strip 314..650
    EXPECT_EQ(e.HScroll1, max);
    welt_waehlen("chicago.met"); // 178 px, left of it
    EXPECT_EQ(e.HScroll1, 0);
    welt_waehlen("rom.met"); // 346 px, right of the strip 0..336 again
    EXPECT_EQ(e.HScroll1, max);
    EXPECT_EQ(p->Klimadatei, "rom.met");
    // The map's left edge and the strip hold every picked station.
    for (const char* datei : {"tokio.met", "chicago.met", "paris.met", "bremen.met"}) {
        welt_waehlen(datei);
        const double x = e.listen.Welt.punkt(welt(datei)).first * 15;
        EXPECT_LE(e.HScroll1, x) << datei;
        EXPECT_GE(e.HScroll1 + e.picture3f_breite, x) << datei;
    }
}

TEST_F(Kartenwahl, VergroesserteKarteWaehltErstMitCommand1) {
    Option3_Click(e, *p, d, true);
    const int trier = welt("trier.met");
    ASSERT_EQ(e.Klimaregionwahl2.ListIndex, trier);
    E_Zoom_Klima z = E_Zoom_Klima_oeffnen(e);
    EXPECT_EQ(z.Klimaregionwahl2.Eintraege, e.listen.Welt.Stationsname);
    EXPECT_EQ(z.Klimaregionwahl2.ListIndex, trier);

    // Positions and the hover tolerance of 2 are those of the world map times 1.5.
    const auto [x, y] = e.listen.Welt.punkt(welt("tokio.met"));
    E_Zoom_Klima_hover(z, e, FARBE_STATION, x * 1.5 + 1.9, y * 1.5);
    EXPECT_EQ(z.MausRegion, "Tokio (Japan)");
    E_Zoom_Klima_hover(z, e, FARBE_STATION, x + 1, y);
    EXPECT_EQ(z.MausRegion, "") << "the unscaled position lies elsewhere on the large map";
    E_Zoom_Klima_hover(z, e, FARBE_STATION, x * 1.5 + 2.5, y * 1.5);
    EXPECT_EQ(z.MausRegion, "");
    EXPECT_TRUE(e.MausRegion.empty()) << "the plane's hover text is its own";

    // The click takes 3 pixels and selects in the window only.
    E_Zoom_Klima_hover(z, e, FARBE_STATION, x * 1.5, y * 1.5);
    E_Zoom_Klima_klick(z, e, FARBE_STATION, x * 1.5 + 2.9, y * 1.5);
    EXPECT_EQ(z.Klimaregionwahl2.ListIndex, welt("tokio.met"));
    EXPECT_EQ(z.Klimaregionwahl2.Text, "Tokio (Japan)");
    EXPECT_EQ(e.Klimaregionwahl2.ListIndex, trier);
    EXPECT_EQ(p->Klimadatei, "trier.met");
    EXPECT_EQ(p->Geaendert, 0);
    E_Zoom_Klima_klick(z, e, FARBE_GEWAEHLT, x * 1.5, y * 1.5);
    EXPECT_EQ(z.Klimaregionwahl2.ListIndex, welt("tokio.met")) << "the red dot picks nothing";

    E_Zoom_Klima_Command1(z, e, *p);
    EXPECT_EQ(e.Klimaregionwahl2.ListIndex, welt("tokio.met"));
    EXPECT_EQ(p->Klimadatei, "tokio.met");
    EXPECT_EQ(p->Geaendert, 1);
    EXPECT_EQ(p->Klimainfo.Klimaname, "Tokio (Japan)");
}

TEST_F(Kartenwahl, KlimanameNachDerListeDesBereichs) {
    EXPECT_EQ(p->Klimainfo.Klimaname, "") << "no station loaded through the plane yet";
    Option1_Click(e, *p, d, true);
    EXPECT_EQ(p->Klimainfo.Klimaname, "") << "the region of the station is shown, nothing read";
    e.Klimaregionwahl.waehlen(0);
    Klimaregionwahl_Click(e, *p);
    EXPECT_EQ(p->Klimainfo.Klimaname,
              "Region   1: Nord- / Ostseeküste, nördliches Schleswig-Holstein");

    Option2_Click(e, *p, d, true);
    e.Klimaregionwahl2.waehlen(europa("rom.met"));
    Klimaregionwahl2_Click(e, *p);
    EXPECT_EQ(p->Klimainfo.Klimaname, "Rom (Italien)") << "the station's row, not its file";

    // Germany with a foreign station keeps the name: nothing is read again.
    Option1_Click(e, *p, d, true);
    EXPECT_EQ(e.Klimaregionwahl.Text, "Rom (Italien)");
    EXPECT_EQ(p->Klimainfo.Klimaname, "Rom (Italien)");

    // The fallbacks load and name their station.
    p->Klimadatei = "fehlt.met";
    Option1_Click(e, *p, d, true);
    EXPECT_EQ(p->Klimainfo.Klimaname, "Region   4: Nördl. und westl. Mittelgebirge ohne Hochlagen");
    p->Klimadatei = "fehlt.met";
    Option3_Click(e, *p, d, true);
    EXPECT_EQ(p->Klimainfo.Klimaname, e.Klimaregionwahl2.Text);
    EXPECT_EQ(e.listen.Welt.Stationsname[static_cast<std::size_t>(welt(p->Klimadatei))],
              p->Klimainfo.Klimaname);
}
