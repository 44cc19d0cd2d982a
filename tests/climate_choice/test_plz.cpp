// SPDX-License-Identifier: GPL-3.0-or-later
// The post code table and the post code search of the climate plane.
#include "climate/E_Klima.h"
#include "climate/plz_suche.h"
#include "project/FatalError.h"
#include "project/c_glob.h"
#include "tests/climate_choice/Klimahilfe.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <set>
#include <sstream>

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
