// SPDX-License-Identifier: GPL-3.0-or-later
// The three scopes of the climate plane with their fallbacks, the region, station and map picks,
// the scrolled and the enlarged world map, and the station name the plane hands on.
#include "climate/Bitmap.h"
#include "climate/ebene/E_Klima.h"
#include "climate/ebene/E_Zoom_Klima.h"
#include "climate/ebene/stationskarten.h"
#include "project/FatalError.h"
#include "project/c_glob.h"
#include "tests/climate_choice/Klimahilfe.h"

#include <gtest/gtest.h>

namespace {

// A klima folder with the default station (trier.met, region 4), one more region station
// (bremen.met, region 1), two European and one far station, and the plane built on it.
struct Auswahl : ::testing::Test {
    TempOrdner ordner;
    std::unique_ptr<Projekt> p;
    E_Klima e;
    Meldungen d;

    void SetUp() override {
        station_schreiben(ordner, "bremen.met", "Bremen (Deutschland)", 53.05, -8.8);
        station_schreiben(ordner, "paris.met", "Paris (Frankreich)", 48.86, -2.35);
        station_schreiben(ordner, "rom.met", "Rom (Italien)", 41.9, -12.5);
        station_schreiben(ordner, "tokio.met", "Tokio (Japan)", 35.7, -139.7);
        p = neues_testprojekt(ordner);
        p->txt_Klima_fehlt =
            "   Klimadatensatz nicht gefunden!\rDefault-Klimadatensatz wird geladen!";
        p->txt_Klima_Titel = "Klimadatensatz nicht vorhanden";
        E_Klima_erstellen(e, *p);
        // Every station in turn, so that a hover finds any station within one round.
        e.zufall = [n = 0, anzahl = e.listen.Welt.anzahl()]() mutable {
            return (n++ % anzahl + 0.5) / anzahl;
        };
        p->Geaendert = 0;
    }
    // The station file is gone; the project still names it.
    void station_fehlt() { p->Klimadatei = "fehlt.met"; }
    int europa(const std::string& datei) const { return e.listen.Europa.suchen(datei); }
    int welt(const std::string& datei) const { return e.listen.Welt.suchen(datei); }
    void welt_waehlen(const std::string& datei) {
        e.Klimaregionwahl2.waehlen(welt(datei));
        Klimaregionwahl2_Click(e, *p);
    }
};

} // namespace

TEST_F(Auswahl, ListenDerEbene) {
    EXPECT_EQ(e.Klimaregionwahl.Eintraege.size(), 12u);
    EXPECT_EQ(e.Klimaregionwahl.Eintraege[0],
              "  1: Nord- / Ostseeküste, nördliches Schleswig-Holstein");
    EXPECT_EQ(e.Klimaregionwahl.Eintraege[11], "12: Bodensee mit Umgebung");
    EXPECT_EQ(e.listen.Welt.anzahl(), 5);
    EXPECT_EQ(e.listen.Europa.anzahl(), 4);
    EXPECT_EQ(e.Picture1, "Grafiken/klima0.bmp");
}

TEST_F(Auswahl, DeutschlandMitRegionsstationLaedtNichts) {
    Option1_Click(e, *p, d, true);
    EXPECT_EQ(p->Klimaauswahl, 1);
    EXPECT_EQ(e.sichtbar, 1);
    EXPECT_EQ(e.Klimaregionwahl.ListIndex, 3);
    EXPECT_EQ(p->Geaendert, 0);
    EXPECT_TRUE(d.meldungen.empty());
}

TEST_F(Auswahl, DeutschlandMitFremderStationZeigtDenNamenOhneRegion) {
    p->Klimadatei = "tokio.met";
    e.Picture1 = "Grafiken/klima4.bmp";
    Option1_Click(e, *p, d, true);
    EXPECT_EQ(e.Klimaregionwahl.ListIndex, -1);
    EXPECT_EQ(e.Klimaregionwahl.Text, "Tokio (Japan)");
    EXPECT_EQ(e.Picture1, "Grafiken/klima0.bmp");
    EXPECT_EQ(p->Klimadatei, "tokio.met");
    EXPECT_TRUE(d.meldungen.empty());
}

TEST_F(Auswahl, DeutschlandOhneStationFaelltAufRegion4Zurueck) {
    p->Klimadatei = "bremen.met";
    p->Klimaauswahl = 1;
    // Leave a trace of the former climate to see that the fallback reads trier.met again.
    p->Breite = 0;
    station_fehlt();
    Option1_Click(e, *p, d, true);
    ASSERT_EQ(d.meldungen.size(), 1u);
    EXPECT_EQ(d.meldungen[0].titel, "Klimadatensatz nicht vorhanden");
    EXPECT_EQ(d.meldungen[0].text, p->txt_Klima_fehlt);
    EXPECT_EQ(d.meldungen[0].symbol, Dialogs::Symbol::Information);
    EXPECT_EQ(p->Klimadatei, "trier.met");
    EXPECT_EQ(e.Klimaregionwahl.ListIndex, 3);
    EXPECT_EQ(e.Picture1, "Grafiken/klima4.bmp");
    EXPECT_NEAR(p->Breite, 49.75 * 0.01745, 1e-6);
}

TEST_F(Auswahl, AusgeschalteteOptionTutNichts) {
    station_fehlt();
    const int16_t vorher = p->Klimaauswahl;
    Option1_Click(e, *p, d, false);
    Option2_Click(e, *p, d, false);
    Option3_Click(e, *p, d, false);
    EXPECT_TRUE(d.meldungen.empty());
    EXPECT_EQ(p->Klimaauswahl, vorher);
    EXPECT_EQ(p->Klimadatei, "fehlt.met");
}

TEST_F(Auswahl, EuropaZeigtDieStationOderIhrenWeltnamen) {
    p->Klimadatei = "rom.met";
    Option2_Click(e, *p, d, true);
    EXPECT_EQ(p->Klimaauswahl, 2);
    EXPECT_EQ(e.Klimaregionwahl2.Eintraege, e.listen.Europa.Stationsname);
    EXPECT_EQ(e.Klimaregionwahl2.ListIndex, europa("rom.met"));
    EXPECT_EQ(e.Klimaregionwahl2.Text, "Rom (Italien)");
    EXPECT_EQ(e.karte_gezeichnet, 1);

    p->Klimadatei = "tokio.met";
    Option2_Click(e, *p, d, true);
    EXPECT_EQ(e.Klimaregionwahl2.ListIndex, -1);
    EXPECT_EQ(e.Klimaregionwahl2.Text, "Tokio (Japan)");
    EXPECT_TRUE(d.meldungen.empty());
    EXPECT_EQ(p->Geaendert, 0);
}

TEST_F(Auswahl, OhneStationZiehtEuropaOderWeltEineZufaelligeStation) {
    station_fehlt();
    e.zufall = zahlenfolge({0.999});
    Option2_Click(e, *p, d, true);
    ASSERT_EQ(d.meldungen.size(), 1u);
    const int letzte = e.listen.Europa.anzahl() - 1;
    EXPECT_EQ(p->Klimadatei, e.listen.Europa.Dateiname[static_cast<std::size_t>(letzte)]);
    EXPECT_EQ(e.Klimaregionwahl2.ListIndex, letzte);
    EXPECT_EQ(p->Geaendert, 1);

    station_fehlt();
    e.zufall = zahlenfolge({0.0});
    Option2_Click(e, *p, d, true);
    EXPECT_EQ(p->Klimadatei, "bremen.met") << "Bremen sorts first";
    EXPECT_NEAR(p->Breite, 53.05 * 0.01745, 1e-6) << "the drawn station was read";

    station_fehlt();
    e.zufall = zahlenfolge({0.9});
    Option3_Click(e, *p, d, true);
    EXPECT_EQ(d.meldungen.size(), 3u);
    EXPECT_EQ(p->Klimaauswahl, 3);
    EXPECT_EQ(e.Klimaregionwahl2.Eintraege, e.listen.Welt.Stationsname);
    EXPECT_EQ(e.Klimaregionwahl2.ListIndex, 4) << "Int(0.9 * 5)";
    EXPECT_EQ(p->Klimadatei, "tokio.met");
}

TEST_F(Auswahl, LeererOrdnerMachtDenZufallszugUnmoeglich) {
    TempOrdner leer;
    p->KlimaOrdner = leer.pfad().string();
    E_Klima_erstellen(e, *p);
    station_fehlt();
    EXPECT_THROW(Option2_Click(e, *p, d, true), FatalError);
    EXPECT_EQ(d.meldungen.size(), 1u) << "the message comes first";
    EXPECT_THROW(Option3_Click(e, *p, d, true), FatalError);
}

TEST_F(Auswahl, RegionswahlUndKartenklick) {
    e.Klimaregionwahl.waehlen(0);
    Klimaregionwahl_Click(e, *p);
    EXPECT_EQ(p->Klimadatei, "bremen.met");
    EXPECT_EQ(p->Geaendert, 1);
    EXPECT_EQ(e.Picture1, "Grafiken/klima1.bmp");

    const Bitmap karte = bitmap_lesen(std::string(VELMARIS_SOURCE_DIR) + "/Grafiken/klima1.bmp");
    e.plz = "281";
    Picture1_MouseDown(e, *p, karte, 0, 0);
    EXPECT_EQ(e.plz, "") << "a click clears the post code";
    EXPECT_EQ(p->Klimadatei, "bremen.met") << "a click outside the regions picks nothing";
    Picture1_MouseDown(e, *p, karte, 92, 142);
    EXPECT_EQ(p->Klimadatei, "trier.met");
    EXPECT_EQ(e.Klimaregionwahl.ListIndex, 3);
    EXPECT_EQ(e.Picture1, "Grafiken/klima4.bmp");
}

TEST_F(Auswahl, WeltwahlRolltDieKarteZurStation) {
    p->Klimaauswahl = 3;
    e.Klimaregionwahl2.Eintraege = e.listen.Welt.Stationsname;
    e.HScroll1_max = 6000;
    e.picture3f_breite = 3000;
    e.HScroll1 = 5000;
    welt_waehlen("tokio.met"); // x = 559.4 px = 8391 twips
    EXPECT_EQ(e.HScroll1, 6000);
    EXPECT_EQ(p->Klimadatei, "tokio.met");
    welt_waehlen("paris.met"); // x = 328.9 px = 4934 twips
    EXPECT_EQ(e.HScroll1, 6000) << "left of the strip, and still right of it after the jump to 0";
    e.picture3f_breite = 5500;
    Klimaregionwahl2_Click(e, *p);
    EXPECT_EQ(e.HScroll1, 0) << "left of the visible strip";
    e.HScroll1 = 2000;
    welt_waehlen("rom.met"); // x = 346 px = 5190 twips, in view
    EXPECT_EQ(e.HScroll1, 2000);
    EXPECT_EQ(p->Klimadatei, "rom.met");
    EXPECT_EQ(e.karte_gezeichnet, 4);
}

TEST_F(Auswahl, RahmenUndRollbalkenDerWeltkarte) {
    weltkarte_einrichten(e, 650, 336);
    EXPECT_EQ(e.picture3f_breite, 336 * 15);
    EXPECT_EQ(e.HScroll1_max, (650 - 336) * 15);
    for (const auto& [wert, gehalten] :
         {std::pair{-15, 0}, {99999, e.HScroll1_max}, {1500, 1500}}) {
        HScroll1_Change(e, wert);
        EXPECT_EQ(e.HScroll1, gehalten) << wert;
    }
    // The map's left edge and the strip hold every picked station.
    Option3_Click(e, *p, d, true);
    for (const char* datei : {"tokio.met", "paris.met", "bremen.met", "rom.met"}) {
        welt_waehlen(datei);
        const double x = e.listen.Welt.punkt(welt(datei)).first * 15;
        EXPECT_LE(e.HScroll1, x) << datei;
        EXPECT_GE(e.HScroll1 + e.picture3f_breite, x) << datei;
    }
    // A frame wider than the map leaves nothing to scroll.
    weltkarte_einrichten(e, 650, 700);
    EXPECT_EQ(e.HScroll1_max, 0);
    EXPECT_EQ(e.HScroll1, 0);
}

TEST_F(Auswahl, StationskartePunkteHoverUndKlick) {
    const Stationsliste& l = e.listen.Europa;
    const int paris = europa("paris.met");
    auto punkte = kartenpunkte(l, paris);
    ASSERT_EQ(punkte.size(), 5u);
    EXPECT_EQ(punkte.back().farbe, FARBE_GEWAEHLT);
    EXPECT_EQ(punkte.back().x, l.punkt(paris).first);
    EXPECT_EQ(punkte.front().farbe, FARBE_STATION);
    punkte = kartenpunkte(l, -1, 1.5);
    EXPECT_EQ(punkte.back().x, -10);
    EXPECT_EQ(punkte.front().x, l.punkt(0).first * 1.5);

    const auto [x, y] = l.punkt(paris);
    // The hover tries random stations: here two misses, then Paris.
    const double zug = (paris + 0.5) / l.anzahl();
    const double daneben = ((paris + 1) % l.anzahl() + 0.5) / l.anzahl();
    EXPECT_EQ(station_unter_maus(l, FARBE_STATION, x + 2, y - 2, 3.0,
                                 zahlenfolge({daneben, daneben, zug})),
              "Paris (Frankreich)");
    EXPECT_EQ(station_unter_maus(l, 123456, x, y, 3.0, zahlenfolge({zug})), "");
    EXPECT_EQ(station_unter_maus(l, FARBE_STATION, x, y, 3.0, zahlenfolge({daneben})), "")
        << "250 misses show nothing";

    EXPECT_EQ(station_beim_klick(l, FARBE_STATION, x + 2.9, y, "Paris (Frankreich)"), paris);
    EXPECT_EQ(station_beim_klick(l, FARBE_STATION, x + 3.0, y, "Paris (Frankreich)"), -1);
    EXPECT_EQ(station_beim_klick(l, FARBE_GEWAEHLT, x, y, "Paris (Frankreich)"), -1)
        << "a click on the red dot does nothing";
    EXPECT_EQ(station_beim_klick(l, FARBE_STATION, x, y, "Bremen (Deutschland)"), -1)
        << "Paris sorts after the hover text";

    Option2_Click(e, *p, d, true);
    station_karte_klick(e, *p, FARBE_STATION, x, y, "Paris (Frankreich)");
    EXPECT_EQ(p->Klimadatei, "paris.met");
    EXPECT_EQ(e.Klimaregionwahl2.ListIndex, paris);
    EXPECT_EQ(p->Geaendert, 1);
}

TEST_F(Auswahl, HoverMitDerToleranzDesBereichs) {
    Option2_Click(e, *p, d, true);
    const auto [xe, ye] = e.listen.Europa.punkt(europa("paris.met"));
    const auto [xw, yw] = e.listen.Welt.punkt(welt("paris.met"));
    struct Fall {
        bool welt;
        int32_t farbe;
        double x, y;
        const char* text;
    };
    for (const Fall& f : {
             Fall{false, FARBE_STATION, xe + 2.5, ye - 2.5, "Paris (Frankreich)"}, // 3 pixels
             Fall{false, 0x123456, xe, ye, ""}, // the colour of the land clears the text
             Fall{false, FARBE_GEWAEHLT, xe, ye, "Paris (Frankreich)"}, // the red dot as well
             Fall{true, FARBE_STATION, xw + 1.9, yw, "Paris (Frankreich)"},
             Fall{true, FARBE_STATION, xw + 2.5, yw, ""}, // the world map takes only 2 pixels
             Fall{true, FARBE_STATION, xe, ye, ""},       // Paris on the Europe map
         }) {
        if (f.welt) {
            Option3_Click(e, *p, d, true);
        }
        station_karte_hover(e, *p, f.farbe, f.x, f.y);
        EXPECT_EQ(e.MausRegion, f.text) << (f.welt ? "world " : "Europe ") << f.x << " " << f.y;
    }
}

TEST_F(Auswahl, VergroesserteKarteWaehltErstMitCommand1) {
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

TEST_F(Auswahl, KlimanameNachDerListeDesBereichs) {
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
    station_fehlt();
    Option1_Click(e, *p, d, true);
    EXPECT_EQ(p->Klimainfo.Klimaname, "Region   4: Nördl. und westl. Mittelgebirge ohne Hochlagen");
    station_fehlt();
    Option3_Click(e, *p, d, true);
    EXPECT_EQ(p->Klimainfo.Klimaname, e.Klimaregionwahl2.Text);
    EXPECT_EQ(e.listen.Welt.Stationsname[static_cast<std::size_t>(welt(p->Klimadatei))],
              p->Klimainfo.Klimaname);
}
