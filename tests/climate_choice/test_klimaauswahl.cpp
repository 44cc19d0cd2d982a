// SPDX-License-Identifier: GPL-3.0-or-later
// The three scopes of the climate plane with their fallbacks, and the region, station and map
// picks.
#include "climate/Bitmap.h"
#include "climate/ebene/E_Klima.h"
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
        p->Geaendert = 0;
    }
    // The station file is gone; the project still names it.
    void station_fehlt() { p->Klimadatei = "fehlt.met"; }
    int europa(const std::string& datei) const { return e.listen.Europa.suchen(datei); }
    int welt(const std::string& datei) const { return e.listen.Welt.suchen(datei); }
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

TEST_F(Auswahl, EuropaOhneStationZiehtEineZufaelligeEuropastation) {
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
    EXPECT_EQ(p->Klimadatei, e.listen.Europa.Dateiname[0]);
    EXPECT_EQ(p->Klimadatei, "bremen.met") << "Bremen sorts first";
    EXPECT_NEAR(p->Breite, 53.05 * 0.01745, 1e-6) << "the drawn station was read";
}

TEST_F(Auswahl, WeltOhneStationZiehtAusDerWeltliste) {
    station_fehlt();
    e.zufall = zahlenfolge({0.9});
    Option3_Click(e, *p, d, true);
    ASSERT_EQ(d.meldungen.size(), 1u);
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
    e.Klimaregionwahl2.waehlen(welt("tokio.met")); // x = 559.4 px = 8391 twips
    Klimaregionwahl2_Click(e, *p);
    EXPECT_EQ(e.HScroll1, 6000);
    EXPECT_EQ(p->Klimadatei, "tokio.met");
    e.Klimaregionwahl2.waehlen(welt("paris.met")); // x = 328.9 px = 4934 twips
    Klimaregionwahl2_Click(e, *p);
    EXPECT_EQ(e.HScroll1, 6000) << "left of the strip, and still right of it after the jump to 0";
    e.picture3f_breite = 5500;
    Klimaregionwahl2_Click(e, *p);
    EXPECT_EQ(e.HScroll1, 0) << "left of the visible strip";
    e.HScroll1 = 2000;
    e.Klimaregionwahl2.waehlen(welt("rom.met")); // x = 346 px = 5190 twips, in view
    Klimaregionwahl2_Click(e, *p);
    EXPECT_EQ(e.HScroll1, 2000);
    EXPECT_EQ(p->Klimadatei, "rom.met");
    EXPECT_EQ(e.karte_gezeichnet, 4);
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
