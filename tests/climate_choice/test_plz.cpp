// SPDX-License-Identifier: GPL-3.0-or-later
// The post code table and the post code search of the climate plane.
#include "climate/ebene/E_Klima.h"
#include "climate/plz_suche.h"
#include "project/FatalError.h"
#include "project/c_glob.h"
#include "tests/climate_choice/Klimahilfe.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <vector>

namespace {

std::string tabelle_lesen() {
    std::ifstream datei(std::string(VELMARIS_SOURCE_DIR) + "/klima/plz.txt", std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(datei)), std::istreambuf_iterator<char>());
}

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
    std::istringstream zeilen(tabelle_lesen());
    std::string zeile;
    int n = 0;
    std::set<int> regionen;
    while (std::getline(zeilen, zeile)) {
        ASSERT_FALSE(zeile.empty());
        ASSERT_EQ(zeile.back(), '\r') << "CR LF line ends";
        zeile.pop_back();
        char vorsatz[4];
        std::snprintf(vorsatz, sizeof vorsatz, "%03d", n);
        ASSERT_EQ(zeile.substr(0, 3), vorsatz);
        ASSERT_EQ(zeile[3], ' ') << "a comma would end the item before its region";
        const int r = std::stoi(zeile.substr(4));
        ASSERT_GE(r, 0);
        ASSERT_LE(r, 12);
        regionen.insert(r);
        ++n;
    }
    EXPECT_EQ(n, 1000);
    EXPECT_EQ(regionen.size(), 13u) << "every region and the unused mark occur";
    const std::string t = tabelle_lesen();
    for (const char* frei : {"001", "050", "435", "629"}) {
        EXPECT_EQ(plz_region(t, std::string(frei) + "00"), 0) << frei;
    }
    EXPECT_EQ(plz_region(t, "24937"), 1);  // Flensburg
    EXPECT_EQ(plz_region(t, "79098"), 7);  // Freiburg
    EXPECT_EQ(plz_region(t, "78462"), 12); // Konstanz
    EXPECT_EQ(plz_region(t, "80331"), 8);  // Munich
}

// Post codes of known places and the region whose description fits the landscape there; the
// comment names the landscape (and the height where the region is bounded by height).
TEST(PlzTabelle, BekannteOrteLiegenInDerRegionIhrerLandschaft) {
    struct Ort {
        const char* plz;
        int region;
    };
    const std::string t = tabelle_lesen();
    for (const Ort& o : std::vector<Ort>{
             {"27568", 1},  // Bremerhaven: North Sea coast
             {"26721", 1},  // Emden: North Sea coast of East Frisia
             {"25980", 1},  // Sylt: North Sea island, northern Schleswig-Holstein
             {"24103", 1},  // Kiel: Baltic coast
             {"18055", 1},  // Rostock: Baltic coast
             {"18439", 1},  // Stralsund: Baltic coast
             {"48143", 2},  // Münster: Westphalian lowland bay
             {"29221", 2},  // Celle: north German lowland
             {"39104", 2},  // Magdeburg: Magdeburg Börde, lowland
             {"03046", 2},  // Cottbus: Lusatian lowland
             {"19053", 2},  // Schwerin: Mecklenburg lowland
             {"53879", 2},  // Euskirchen: Zülpich Börde, lowland at the foot of the Eifel
             {"20095", 3},  // Hamburg: conurbation of the lowland
             {"10117", 3},  // Berlin: conurbation of the lowland
             {"44135", 3},  // Dortmund: Ruhr area
             {"45127", 3},  // Essen: Ruhr area
             {"40213", 3},  // Düsseldorf: Rhine-Ruhr conurbation on the Lower Rhine
             {"50667", 3},  // Köln: Cologne bay, Rhine-Ruhr conurbation
             {"53111", 3},  // Bonn: Cologne bay, 60 m, not an upland
             {"53721", 3},  // Siegburg: Sieg lowland of the Cologne bay
             {"04109", 3},  // Leipzig: conurbation in the Leipzig lowland bay
             {"01067", 3},  // Dresden: conurbation in the Elbe valley basin
             {"34117", 4},  // Kassel: basin of the northern uplands
             {"37073", 4},  // Göttingen: Leine valley in the northern uplands
             {"54290", 4},  // Trier: Moselle valley in the western uplands
             {"56068", 4},  // Koblenz: Middle Rhine and Moselle in the Rhenish uplands
             {"57072", 4},  // Siegen: Siegerland, 250 m
             {"53474", 4},  // Bad Neuenahr-Ahrweiler: Ahr valley in the Eifel
             {"42103", 4},  // Wuppertal: Bergisches Land
             {"09111", 4},  // Chemnitz: foreland of the Ore Mountains, 300 m
             {"97070", 5},  // Würzburg: Main valley of Lower Franconia
             {"90402", 5},  // Nürnberg: Middle Franconia
             {"96047", 5},  // Bamberg: Upper Franconia
             {"70173", 5},  // Stuttgart: Neckar basin, northern Baden-Württemberg
             {"74072", 5},  // Heilbronn: Neckar basin, northern Baden-Württemberg
             {"60311", 6},  // Frankfurt: Rhine-Main lowland of the northern Upper Rhine graben
             {"68159", 6},  // Mannheim: northern Upper Rhine graben
             {"64283", 6},  // Darmstadt: northern Upper Rhine graben
             {"55116", 6},  // Mainz: northern Upper Rhine graben
             {"69117", 6},  // Heidelberg: northern Upper Rhine graben
             {"79098", 7},  // Freiburg: southern Upper Rhine graben
             {"77652", 7},  // Offenburg: southern Upper Rhine graben
             {"79539", 7},  // Lörrach: southern Upper Rhine graben at Basel
             {"80331", 8},  // München: Munich gravel plain, 520 m
             {"86150", 8},  // Augsburg: Lech valley of the Alpine foreland, 490 m
             {"93047", 8},  // Regensburg: Danube basin
             {"94032", 8},  // Passau: Danube and Inn, 300 m
             {"89073", 8},  // Ulm: Danube at the foot of the Swabian Alb
             {"87435", 9},  // Kempten: Allgäu, Alpine foreland at 700 m
             {"82467", 9},  // Garmisch-Partenkirchen: Alpine valley at 700 m
             {"83471", 9},  // Berchtesgaden: Alpine valley above 550 m
             {"72250", 9},  // Freudenstadt: north-western Black Forest
             {"75365", 9},  // Calw: north-western Black Forest
             {"78050", 10}, // Villingen-Schwenningen: Baar at the Black Forest, 700 m
             {"79822", 10}, // Titisee-Neustadt: high Black Forest
             {"78532", 10}, // Tuttlingen: Danube valley in the Swabian Alb
             {"72458", 10}, // Albstadt: Swabian Alb, 700 m
             {"89518", 10}, // Heidenheim: Swabian Alb
             {"59955", 11}, // Winterberg: Rothaargebirge, 670 m
             {"38700", 11}, // Braunlage: Harz, 600 m
             {"09484", 11}, // Oberwiesenthal: Ore Mountains, 900 m
             {"98559", 11}, // Oberhof: Thuringian Forest, 800 m
             {"94227", 11}, // Zwiesel: Bavarian Forest, 600 m
             {"78462", 12}, // Konstanz: Lake Constance
             {"88045", 12}, // Friedrichshafen: Lake Constance
             {"88131", 12}, // Lindau: Lake Constance
             {"88212", 12}, // Ravensburg: Schussen basin by Lake Constance
         }) {
        EXPECT_EQ(plz_region(t, o.plz), o.region) << o.plz;
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
        {"Bremerhaven", "27568", 1},          // North Sea coast
        {"Potsdam", "14467", 2},              // lowland by Berlin
        {"Hamburg", "20095", 3},              // conurbation of the lowland
        {"Saar-Mosel bei Trier", "54439", 4}, // Saar valley by Saarburg, western uplands
        {"Kassel", "34117", 4},               // basin of the northern uplands
        {"Frankfurt am Main", "60311", 6},    // Rhine-Main lowland
        {"Mannheim", "68159", 6},             // northern Upper Rhine graben
        {"M\xFChldorf am Inn", "84453", 8},   // Inn valley of the Alpine foreland, 400 m
        {"M\xFCnchen", "80331", 8},           // Munich gravel plain, 520 m
        {"St\xF6tten", "73312", 10},          // Swabian Alb above Geislingen, 730 m
        {"Braunlage", "38700", 11},           // Harz, 600 m
        {"M\xFCnchen", "80331", 8},           // the same data as region 9
    };
    Projekt p;
    neues_projekt(p);
    const std::string t = tabelle_lesen();
    for (int i = 1; i <= 12; ++i) {
        const Station& s = stationen[i - 1];
        SCOPED_TRACE(p.Regionsdatei[i]);
        std::ifstream datei(std::string(VELMARIS_SOURCE_DIR) + "/klima/" + p.Regionsdatei[i],
                            std::ios::binary);
        std::string zeile1;
        std::getline(datei, zeile1);
        EXPECT_EQ(zeile1.rfind(s.ort, 0), 0u) << zeile1;
        EXPECT_EQ(plz_region(t, s.plz), s.region);
    }
}

TEST(PlzTabelle, SucheNachDemErstenPassendenEintrag) {
    EXPECT_EQ(plz_region("010 4\r\n011 12\r\n011 3\r\n", "01109"), 12);
    EXPECT_EQ(plz_region("010 4,011 7,012 9", "01277"), 9) << "comma-delimited items";
    EXPECT_EQ(plz_region("010 4\n011 10", "01100"), 10) << "two-digit region in columns 5-6";
    EXPECT_THROW(plz_region("010 4\r\n", "99999"), FatalError);
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
    tippen("2a8-1 9");
    EXPECT_EQ(e.plz, "2819");
    tippen("56");
    EXPECT_EQ(e.plz, "28195") << "a sixth digit is dropped";
    tippen("\b\b");
    EXPECT_EQ(e.plz, "281");
    tippen("\b\b\b\b");
    EXPECT_EQ(e.plz, "");
}

TEST_F(PlzFixture, FehlenderVorsatzEndetMitKlarerMeldung) {
    tippen("99999");
    EXPECT_THROW(PLZsuchen_Click(e, *p, d), FatalError);
    EXPECT_EQ(p->Klimadatei, "trier.met");
}
