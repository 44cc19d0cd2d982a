// SPDX-License-Identifier: GPL-3.0-or-later
// Building the station lists from the files of a klima folder.
#include "climate/stationslisten.h"
#include "project/Textkanal.h"
#include "project/Zahltext.h"
#include "tests/climate_choice/Klimahilfe.h"

#include <gtest/gtest.h>

#include <set>

namespace {

// A station head without hourly rows: the list builder reads only the first lines.
std::string kopf(const std::string& ort, double breite, double laenge_west) {
    return ort + "\r\nBreitengrad:   " + std::to_string(breite) +
           "\r\nL\xe4ngengrad:   " + std::to_string(laenge_west) +
           "\r\nZeitzone:     -1\r\n\r\n   dy   Ta G_Gh G_Dh\r\n";
}

std::vector<std::string> namen(const Stationsliste& l) {
    return l.Stationsname;
}

} // namespace

TEST(Textkanal, EintragUndZeileLesenWeiterWoDerLetzteAufhoerte) {
    Textkanal k("  Komma, Stadt (Land)\r\n\"in, Quote\" rest,b\nletzte");
    EXPECT_EQ(k.eintrag(), "Komma");
    EXPECT_EQ(k.zeile(), " Stadt (Land)");
    EXPECT_EQ(k.eintrag(), "in, Quote");
    EXPECT_EQ(k.eintrag(), "b");
    EXPECT_EQ(k.zeile(), "letzte");
    EXPECT_TRUE(k.ende());
    EXPECT_EQ(k.eintrag(), "");
    EXPECT_EQ(k.zeile(), "");
}

TEST(Stationslisten, DateienFilternSortierenUndPositionen) {
    TempOrdner o;
    o.schreiben("berlin.met", kopf("Berlin (Deutschland)", 52.5, -13.4));
    o.schreiben("AACHEN.MET", kopf("Aachen (Deutschland)", 50.78, -6.08));
    o.schreiben("zuerich.met", kopf("Z\xfcrich (Schweiz)", 47.38, -8.54));
    o.schreiben("aerzte.met", kopf("\xc4rzte (Deutschland)", 51.0, -10.0));
    o.schreiben("klein.met", kopf("aachen (klein)", 50.78, -6.08));
    o.schreiben("tokio.met", kopf("Tokio (Japan)", 35.7, -139.7));
    o.schreiben("klima.met", kopf("Nie (gelistet)", 50, -8));
    o.schreiben("KLIMA.Met", kopf("Auch nie (gelistet)", 50, -8));
    o.schreiben("notiz.txt", kopf("Keine (Station)", 50, -8));
    o.schreiben("plz.txt", "010 4\r\n");

    const Stationslisten l = stationslisten_bauen(o.pfad().string());
    // Byte-wise order of the file's own text: capitals, small letters, then 8-bit letters.
    EXPECT_EQ(namen(l.Welt),
              (std::vector<std::string>{"Aachen (Deutschland)", "Berlin (Deutschland)",
                                        "Tokio (Japan)", "Z\xc3\xbcrich (Schweiz)",
                                        "aachen (klein)", "\xc3\x84rzte (Deutschland)"}));
    EXPECT_EQ(l.Welt.Dateiname[0], "AACHEN.MET") << "the file name as it stands";
    EXPECT_EQ(namen(l.Europa),
              (std::vector<std::string>{"Aachen (Deutschland)", "Berlin (Deutschland)",
                                        "Z\xc3\xbcrich (Schweiz)", "aachen (klein)",
                                        "\xc3\x84rzte (Deutschland)"}))
        << "Tokyo lies off the Europe map";
    for (int i = 0; i < l.Europa.anzahl(); ++i) {
        EXPECT_EQ(l.Europa.Dateiname[static_cast<std::size_t>(i)],
                  l.Welt.Dateiname[static_cast<std::size_t>(i < 2 ? i : i + 1)]);
    }

    const auto [x, y] = europa_punkt(52.5, 13.4);
    EXPECT_EQ(l.Europa.Breite[1], zahl_str(y));
    EXPECT_EQ(l.Europa.Laenge[1], zahl_str(x));
    EXPECT_EQ(l.Europa.Breite[1][0], ' ') << "number-to-text form with leading blank";
    const auto [xw, yw] = welt_punkt(35.7, 139.7);
    EXPECT_EQ(l.Welt.Laenge[2], zahl_str(xw));
    EXPECT_EQ(l.Welt.Breite[2], zahl_str(yw));
    EXPECT_NEAR(xw, 325 + 139.7 * 1.677777778, 1e-9) << "east of Greenwich lies right";
}

TEST(Stationslisten, EuropaKarteGrenzen) {
    TempOrdner o;
    o.schreiben("nord.met", kopf("Nordkap (Norwegen)", 71.17, -25.78)); // Y near 13
    o.schreiben("sued.met", kopf("Kreta (Griechenland)", 29.0, -25.0)); // Y 198.5, inside
    o.schreiben("tiefer.met", kopf("Kanaren (Spanien)", 28.5, 15.4));   // Y 200.7, outside
    o.schreiben("west.met", kopf("Atlantik (Meer)", 50.0, 30.0));       // X below 0
    o.schreiben("ost.met", kopf("Ural (Russland)", 60.0, -60.0));       // X above 233
    const Stationslisten l = stationslisten_bauen(o.pfad().string());
    EXPECT_EQ(l.Welt.anzahl(), 5);
    EXPECT_EQ(namen(l.Europa),
              (std::vector<std::string>{"Kreta (Griechenland)", "Nordkap (Norwegen)"}));
}

TEST(Stationslisten, KommaImOrtVerschiebtDieZeilen) {
    TempOrdner o;
    o.schreiben("komma.met", kopf("Komma, Stadt (Land)", 52.5, -13.4));
    const Stationslisten l = stationslisten_bauen(o.pfad().string());
    ASSERT_EQ(l.Welt.anzahl(), 1);
    EXPECT_EQ(l.Welt.Stationsname[0], "Komma");
    // Latitude from the rest of line 1 (nothing in columns 15-24), longitude from line 2.
    const auto [xw, yw] = welt_punkt(0, -52.5);
    EXPECT_EQ(l.Welt.Laenge[0], zahl_str(xw));
    EXPECT_EQ(l.Welt.Breite[0], zahl_str(yw));
    EXPECT_EQ(l.Europa.anzahl(), 0);
}

TEST(Stationslisten, LeererFehlenderOrdnerUndKurzeDatei) {
    TempOrdner o;
    EXPECT_EQ(stationslisten_bauen(o.pfad().string()).Welt.anzahl(), 0);
    EXPECT_EQ(stationslisten_bauen((o.pfad() / "fehlt").string()).Welt.anzahl(), 0);
    o.schreiben("kurz.met", "Nur der Ort (Land)");
    o.schreiben("leer.met", "");
    const Stationslisten l = stationslisten_bauen(o.pfad().string());
    EXPECT_EQ(namen(l.Welt), (std::vector<std::string>{"", "Nur der Ort (Land)"}));
    EXPECT_EQ(l.Welt.punkt(1), welt_punkt(0, 0));
}

TEST(Stationslisten, EchteStationsdateiWieSieDasProgrammSchreibt) {
    TempOrdner o;
    station_schreiben(o, "trier.met", "Trier (Deutschland)", 49.75, -6.64);
    const Stationslisten l = stationslisten_bauen(o.pfad().string());
    ASSERT_EQ(l.Europa.anzahl(), 1);
    const auto [x, y] = l.Europa.punkt(0);
    const auto [xe, ye] = europa_punkt(49.75, 6.64);
    EXPECT_NEAR(x, xe, 1e-4);
    EXPECT_NEAR(y, ye, 1e-4);
}

TEST(Stationslisten, GelieferteStationenTragenVerschiedeneNamenUndEuropasLiegenAufDerKarte) {
    // A name that appears twice in the lists would leave the user guessing which file it picks.
    const Stationslisten l = stationslisten_bauen(std::string(VELMARIS_SOURCE_DIR) + "/klima");
    ASSERT_GT(l.Welt.anzahl(), 60);
    std::set<std::string> gesehen;
    for (const std::string& name : l.Welt.Stationsname) {
        EXPECT_TRUE(gesehen.insert(name).second) << name;
    }
    for (const char* datei :
         {"wien_2019.met",     "bruessel_2019.met",   "sofia_2019.met",     "nikosia_2019.met",
          "prag_2019.met",     "kopenhagen_2019.met", "malaga_2019.met",    "vierzon.met",
          "paris_2019.met",    "belfast.met",         "london_2019.met",    "athen_2019.met",
          "budapest_2019.met", "dublin_2019.met",     "suedtirol.met",      "piemont.met",
          "rom_2019.met",      "sizilien.met",        "amsterdam_2019.met", "oslo_2019.met",
          "warschau_2019.met", "belgrad_2019.met",    "ljubljana_2019.met", "stockholm_2019.met",
          "trier.met",         "hamburg.met",         "passau.met"}) {
        EXPECT_GE(l.Europa.suchen(datei), 0) << datei << " lies off the Europe map";
    }
}
