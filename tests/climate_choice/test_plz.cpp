// SPDX-License-Identifier: GPL-3.0-or-later
// The post code table and the post code search of the climate plane.
#include "climate/ebene/E_Klima.h"
#include "climate/plz_suche.h"
#include "project/FatalError.h"
#include "project/c_glob.h"
#include "tests/climate_choice/Klimahilfe.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>
#include <vector>

namespace {

const std::string TABELLE = datei_lesen(std::string(VELMARIS_SOURCE_DIR) + "/klima/plz.txt");

// A project on test stations for the regions 1 (bremen.met) and 4 (trier.met), a post code
// table, and the climate plane built on that folder.
struct PlzFixture : ::testing::Test {
    TempOrdner ordner;
    std::unique_ptr<Projekt> p;
    E_Klima e;
    Meldungen d;

    void SetUp() override {
        station_schreiben(ordner, "bremen.met", "Bremen (Deutschland)", 53.05, -8.8);
        ordner.schreiben("plz.txt", "281 1\r\n282 1\r\n542 4\r\n430 0\r\n");
        p = neues_testprojekt(ordner);
        p->Sprache = "d";
        E_Klima_erstellen(e, *p);
        Option1_Click(e, *p, d, true);
        p->Geaendert = 0;
    }
    void tippen(const std::string& tasten) {
        for (const char c : tasten) {
            plz_KeyPress(e, *p, d, static_cast<unsigned char>(c));
        }
    }
};

} // namespace

TEST(PlzTabelle, TausendVorsaetzeInFolgeMitRegion0Bis12) {
    std::istringstream zeilen(TABELLE);
    std::string zeile;
    int n = 0;
    std::set<int> regionen;
    while (std::getline(zeilen, zeile)) {
        ASSERT_FALSE(zeile.empty());
        ASSERT_EQ(zeile.back(), '\r') << "CR LF line ends";
        char vorsatz[4];
        std::snprintf(vorsatz, sizeof vorsatz, "%03d", n++);
        ASSERT_EQ(zeile.substr(0, 3), vorsatz);
        ASSERT_EQ(zeile[3], ' ') << "a comma would end the item before its region";
        const int r = std::stoi(zeile.substr(4));
        ASSERT_TRUE(r >= 0 && r <= 12) << zeile;
        regionen.insert(r);
    }
    EXPECT_EQ(n, 1000);
    EXPECT_EQ(regionen.size(), 13u) << "every region and the unused mark occur";
    for (const char* frei : {"00100", "05000", "43500", "62900"}) {
        EXPECT_EQ(plz_region(TABELLE, frei), 0) << frei;
    }
}

// Post codes of known places and the region whose description fits the landscape there.
TEST(PlzTabelle, BekannteOrteLiegenInDerRegionIhrerLandschaft) {
    const std::vector<std::pair<int, std::vector<const char*>>> regionen = {
        // Bremerhaven, Emden, Sylt, Kiel, Rostock, Stralsund: North Sea and Baltic coasts.
        {1, {"27568", "26721", "25980", "24103", "18055", "18439", "24937"}},
        // Münster, Celle, Magdeburg, Cottbus, Schwerin, Euskirchen: lowlands.
        {2, {"48143", "29221", "39104", "03046", "19053", "53879"}},
        // Hamburg, Berlin, Dortmund, Essen, Düsseldorf, Köln, Bonn, Siegburg, Leipzig, Dresden:
        // conurbations of the lowland.
        {3,
         {"20095", "10117", "44135", "45127", "40213", "50667", "53111", "53721", "04109",
          "01067"}},
        // Kassel, Göttingen, Trier, Koblenz, Siegen, Ahrweiler, Wuppertal, Chemnitz: uplands
        // without their heights.
        {4, {"34117", "37073", "54290", "56068", "57072", "53474", "42103", "09111"}},
        // Würzburg, Nürnberg, Bamberg, Stuttgart, Heilbronn: Franconia and the Neckar basin.
        {5, {"97070", "90402", "96047", "70173", "74072"}},
        // Frankfurt, Mannheim, Darmstadt, Mainz, Heidelberg: northern Upper Rhine graben.
        {6, {"60311", "68159", "64283", "55116", "69117"}},
        // Freiburg, Offenburg, Lörrach: southern Upper Rhine graben.
        {7, {"79098", "77652", "79539"}},
        // München, Augsburg, Regensburg, Passau, Ulm: Alpine foreland and Danube below 550 m.
        {8, {"80331", "86150", "93047", "94032", "89073"}},
        // Kempten, Garmisch, Berchtesgaden, Freudenstadt, Calw: Alpine valleys, north-western
        // Black Forest.
        {9, {"87435", "82467", "83471", "72250", "75365"}},
        // Villingen, Titisee, Tuttlingen, Albstadt, Heidenheim: Baar, high Black Forest, Alb.
        {10, {"78050", "79822", "78532", "72458", "89518"}},
        // Winterberg, Braunlage, Oberwiesenthal, Oberhof, Zwiesel: heights of the uplands.
        {11, {"59955", "38700", "09484", "98559", "94227"}},
        // Konstanz, Friedrichshafen, Lindau, Ravensburg: Lake Constance.
        {12, {"78462", "88045", "88131", "88212"}},
    };
    for (const auto& [region, plzs] : regionen) {
        for (const char* plz : plzs) {
            EXPECT_EQ(plz_region(TABELLE, plz), region) << plz;
        }
    }
}

// Each region file carries the data of a place its line 1 names; that place lies in a region whose
// description fits it, which is not always the region the file stands for (the data notes in
// klima/QUELLEN.txt say why).
TEST(PlzTabelle, DieZwoelfRegionsstationenLiegenInEinerPassendenRegion) {
    struct Station {
        const char* ort; // line 1 begins with it (Windows-1252)
        const char* plz;
        int region;
    };
    const Station stationen[12] = {
        {"Bremerhaven", "27568", 1}, {"Potsdam", "14467", 2},
        {"Hamburg", "20095", 3},     {"Saar-Mosel bei Trier", "54439", 4},
        {"Kassel", "34117", 4},      {"Frankfurt am Main", "60311", 6},
        {"Mannheim", "68159", 6},    {"M\xFChldorf am Inn", "84453", 8},
        {"M\xFCnchen", "80331", 8},  {"St\xF6tten", "73312", 10},
        {"Braunlage", "38700", 11},  {"M\xFCnchen", "80331", 8},
    };
    Projekt p;
    neues_projekt(p);
    for (int i = 1; i <= 12; ++i) {
        const Station& s = stationen[i - 1];
        SCOPED_TRACE(p.Regionsdatei[i]);
        const std::string zeile1 =
            datei_lesen(std::string(VELMARIS_SOURCE_DIR) + "/klima/" + p.Regionsdatei[i]);
        EXPECT_EQ(zeile1.rfind(s.ort, 0), 0u) << zeile1.substr(0, 60);
        EXPECT_EQ(plz_region(TABELLE, s.plz), s.region);
    }
}

TEST(PlzTabelle, SucheNachDemErstenPassendenEintrag) {
    EXPECT_EQ(plz_region("010 4\r\n011 12\r\n011 3\r\n", "01109"), 12);
    EXPECT_EQ(plz_region("010 4,011 7,012 9", "01277"), 9) << "comma-delimited items";
    EXPECT_EQ(plz_region("010 4\n011 10", "01100"), 10) << "two-digit region in columns 5-6";
    EXPECT_THROW(plz_region("", "01000"), FatalError);
    EXPECT_THROW(plz_region("010 13\r\n", "01000"), FatalError);
    try {
        plz_region("010 4\r\n", "02345");
        FAIL();
    } catch (const FatalError& f) {
        EXPECT_NE(std::string(f.what()).find("023"), std::string::npos) << f.what();
    }
}

TEST_F(PlzFixture, FuenfstelligeLeitzahlWaehltDieRegionIhresVorsatzes) {
    tippen("28195\r");
    EXPECT_TRUE(d.meldungen.empty());
    EXPECT_EQ(p->Klimadatei, "bremen.met");
    EXPECT_EQ(e.Klimaregionwahl.ListIndex, 0);
    EXPECT_EQ(e.Picture1, "Grafiken/klima1.bmp");
    EXPECT_EQ(p->Geaendert, 1);
    EXPECT_NEAR(p->Breite, 53.05 * 0.01745, 1e-6) << "the station was read";
}

TEST_F(PlzFixture, VorsatzMitRegion0GibtDieMeldungUndLeertDasFeld) {
    tippen("43000");
    PLZsuchen_Click(e, *p, d);
    ASSERT_EQ(d.meldungen.size(), 1u);
    EXPECT_EQ(d.meldungen[0].text, "  Keine gültige Postleitzahl!  ");
    EXPECT_EQ(e.plz, "");
    EXPECT_EQ(p->Klimadatei, "trier.met");
    EXPECT_EQ(p->Geaendert, 0);
}

TEST_F(PlzFixture, ZuKurzeLeitzahlMahntMitAusrufezeichen) {
    p->Sprache = "e";
    tippen("2819\r");
    ASSERT_EQ(d.meldungen.size(), 1u);
    EXPECT_EQ(d.meldungen[0].text, "Please insert 5 figures!");
    EXPECT_EQ(d.meldungen[0].symbol, Dialogs::Symbol::Ausrufezeichen);
    EXPECT_EQ(e.plz, "2819");
    tippen("5");
    PLZsuchen_Click(e, *p, d);
    tippen("3");
    PLZsuchen_Click(e, *p, d);
    EXPECT_EQ(d.meldungen.size(), 1u);
    EXPECT_EQ(p->Klimadatei, "bremen.met");
}

TEST_F(PlzFixture, FeldNimmtNurZiffernBisFuenfUndRuecktaste) {
    for (const auto& [tasten, feld] :
         {std::pair{"2a8-1 9", "2819"}, {"56", "28195"}, {"\b\b", "281"}, {"\b\b\b\b", ""}}) {
        tippen(tasten);
        EXPECT_EQ(e.plz, feld) << "after " << tasten;
    }
}

TEST_F(PlzFixture, FehlenderVorsatzEndetMitKlarerMeldung) {
    tippen("99999");
    EXPECT_THROW(PLZsuchen_Click(e, *p, d), FatalError);
    EXPECT_EQ(p->Klimadatei, "trier.met");
}
