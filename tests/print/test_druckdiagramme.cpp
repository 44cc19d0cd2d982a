// SPDX-License-Identifier: GPL-3.0-or-later
// The printed diagrams: bar heights on the millimetre scale, colours, the stack order of the
// supply, the hour classes, and the fixed lines of the two drawings of the building.
#include "print/Druckdiagramme.h"
#include "print/RecordingPrinter.h"
#include "tests/support/Testprojekt.h"

#include <gtest/gtest.h>

#include <algorithm>

#include <cmath>

namespace {

using Art = RecordingPrinter::Eintrag::Art;

struct Balken {
    Rgb farbe;
    double x1, y1, x2, y2;
};

std::vector<Balken> balken(const RecordingPrinter& d) {
    std::vector<Balken> r;
    for (const auto& e : d.von_art(Art::FilledBox)) {
        r.push_back({e.farbe, e.x1, e.y1, e.x2, e.y2});
    }
    return r;
}

void erwarte(const Balken& b, Rgb farbe, double x1, double y1, double x2, double y2) {
    EXPECT_EQ(b.farbe, farbe);
    EXPECT_NEAR(b.x1, x1, 1e-9);
    EXPECT_NEAR(b.y1, y1, 1e-9);
    EXPECT_NEAR(b.x2, x2, 1e-9);
    EXPECT_NEAR(b.y2, y2, 1e-9);
}

bool hat_linie(const RecordingPrinter& d, double x1, double y1, double x2, double y2) {
    for (const auto& e : d.von_art(Art::Line)) {
        if (std::abs(e.x1 - x1) < 1e-9 && std::abs(e.y1 - y1) < 1e-9 &&
            std::abs(e.x2 - x2) < 1e-9 && std::abs(e.y2 - y2) < 1e-9) {
            return true;
        }
    }
    return false;
}

std::unique_ptr<Projekt> projekt_mit_monaten() {
    auto p = leeres_projekt();
    p->Sprache = "d";
    p->txt_Monat = "Monat";
    p->txt_Jahresbilanz = "Jahresbilanz";
    p->f_nutz = 100;
    for (int m = 1; m <= MONATE; ++m) {
        p->Monat[m].Tage = 30;
    }
    return p;
}

// All heat demand in January: the whole year's energy falls on it.
std::unique_ptr<Projekt> heizung_im_januar() {
    auto p = projekt_mit_monaten();
    for (int m = 1; m <= MONATE; ++m) {
        p->Monat[m].Qh = 0;
    }
    p->Monat[1].Qh = 1000;
    p->qhs_sum = 10;
    p->q_HE_Energietraeger = 12;
    p->q_HE_Strom = 3;
    p->q_PE_Energietraeger = 13;
    p->q_PE_Strom = 9;
    return p;
}

} // namespace

TEST(Diagramm_Jahresbilanz, BarsOnTheScaleWithTheSupplyStackedFromInternalGainsUp) {
    auto p = projekt_mit_monaten();
    // M = 60 takes the step 15: 75 at the top of 60 mm, 0.8 mm per kWh/(m² a).
    p->qverl_s = 60;
    p->qtrs = 45;
    p->qinfs = 15;
    p->qis = 10;
    p->qsols = 20;
    p->qhs_sum = 30;
    RecordingPrinter d;
    Diagramm_Jahresbilanz(d, *p);

    const auto b = balken(d);
    ASSERT_EQ(b.size(), 5u);
    erwarte(b[0], DRUCK_TRANSMISSION, 151, 205, 160, 169);
    erwarte(b[1], DRUCK_LUEFTUNG, 151, 169, 160, 157);
    erwarte(b[2], DRUCK_INTERN, 162, 205, 171, 197);
    erwarte(b[3], DRUCK_SOLAR, 162, 197, 171, 181);
    erwarte(b[4], DRUCK_HEIZEN, 162, 181, 171, 157);

    // The box first, then the axes at x 150 from 205 to 145 and to 172; the top number "75"
    // right-aligned 1.5 mm left of the axis at 145 - 1.5.
    const auto box = d.log().front();
    EXPECT_EQ(box.art, Art::Box);
    EXPECT_EQ((std::array<double, 4>{box.x1, box.y1, box.x2, box.y2}),
              (std::array<double, 4>{140, 139, 175, 211}));
    EXPECT_TRUE(hat_linie(d, 150, 205, 150, 145));
    EXPECT_TRUE(hat_linie(d, 150, 205, 172, 205));
    EXPECT_TRUE(hat_linie(d, 149, 145, 150, 145));
    const auto oben = d.prints(" 75").at(0);
    EXPECT_NEAR(oben.x1 + d.TextWidth(" 75"), 148.5, 1e-9);
    EXPECT_NEAR(oben.y1, 143.5, 1e-9);
    const auto einheit = d.prints("kWh/(m² a)").at(0);
    EXPECT_DOUBLE_EQ(einheit.x1, 143);
    for (const auto& e : d.von_art(Art::Print)) {
        EXPECT_DOUBLE_EQ(e.size, 8) << e.text;
    }
}

TEST(Diagramm_Jahresbilanz, ABarBeyondTheScalePassesTheBox) {
    auto p = projekt_mit_monaten();
    p->qverl_s = 60;
    p->qhs_sum = 200;
    RecordingPrinter d;
    Diagramm_Jahresbilanz(d, *p);
    const auto b = balken(d);
    erwarte(b[4], DRUCK_HEIZEN, 162, 205, 171, 205 - 200 * 0.8);
    EXPECT_LT(b[4].y2, 139);
}

TEST(Diagramm_Kuehlenergie, TheLegendHasItsTwoEntriesAndNoMore) {
    auto p = projekt_mit_monaten();
    p->Klimaeffizienz = 2.5f;
    p->Monat[7].Kuehlbedarf = 500;
    RecordingPrinter d;
    Diagramm_Kuehlenergie(d, *p);
    const auto texte = d.texte();
    EXPECT_EQ(std::count(texte.begin(), texte.end(), "Primärenergiebedarf"), 1);
    EXPECT_EQ(std::count(texte.begin(), texte.end(), "(Strom)"), 0);
}

TEST(Diagramm_Monatbilanz, MonthBarsSideBySideEightMillimetresApart) {
    auto p = projekt_mit_monaten();
    Monatswerte& maerz = p->Monat[3];
    maerz.Qt = 1000;
    maerz.Qv = 500;
    maerz.Qi_genutzt = 200;
    maerz.Qs_genutzt = 300;
    maerz.Qh = 1000;
    RecordingPrinter d;
    Diagramm_Monatbilanz(d, *p);
    // M = 15 kWh/m² takes the step 5: 2.4 mm per kWh/m².
    const auto b = balken(d);
    ASSERT_EQ(b.size(), 60u);
    const Balken* m3 = &b[2 * 5];
    erwarte(m3[0], DRUCK_TRANSMISSION, 51.5, 205, 54.9, 205 - 24);
    erwarte(m3[1], DRUCK_LUEFTUNG, 51.5, 181, 54.9, 181 - 12);
    erwarte(m3[2], DRUCK_INTERN, 55.1, 205, 58.5, 205 - 4.8);
    erwarte(m3[3], DRUCK_SOLAR, 55.1, 200.2, 58.5, 200.2 - 7.2);
    erwarte(m3[4], DRUCK_HEIZEN, 55.1, 193, 58.5, 193 - 24);
    EXPECT_EQ(d.prints("kWh/(m² Monat)").size(), 1u);
    EXPECT_EQ(d.prints(" 25").size(), 1u);
}

TEST(Diagramm_Stunden, ThreeClassesByOverdrawingAndTheYearInASecondBox) {
    auto p = projekt_mit_monaten();
    p->Monat[1].Stunden_kalt = 400;
    p->Monat[1].Stunden_komfort = 200;
    p->Monat[1].Stunden_heiss = 100;
    p->Monat[2].Stunden_komfort = 720;
    RecordingPrinter d;
    Diagramm_Stunden(d, *p);
    const auto b = balken(d);
    // Steps of 200 h, 800 h over 60 mm.
    erwarte(b[0], DRUCK_INTERN, 35.5, 205, 42.5, 205 - 700 * 0.075);
    erwarte(b[1], DRUCK_SOLAR, 35.5, 205, 42.5, 205 - 600 * 0.075);
    erwarte(b[2], DRUCK_HEIZEN, 35.5, 205, 42.5, 205 - 400 * 0.075);
    // A month of zero-energy hours alone is one yellow bar.
    erwarte(b[3], DRUCK_SOLAR, 43.5, 205, 50.5, 205 - 720 * 0.075);
    // The year: steps of 2200 h.
    const double je_stunde = 60.0 / 8800;
    erwarte(b[4], DRUCK_INTERN, 155, 205, 169, 205 - 1420 * je_stunde);
    erwarte(b[5], DRUCK_SOLAR, 155, 205, 169, 205 - 1320 * je_stunde);
    erwarte(b[6], DRUCK_HEIZEN, 155, 205, 169, 205 - 400 * je_stunde);
    EXPECT_EQ(d.prints(" 8800").size(), 1u);
    EXPECT_EQ(d.prints(" 800").size(), 1u);
    EXPECT_EQ(d.prints("Stunden").size(), 2u);
    EXPECT_EQ(d.prints("Nullenergiestunden").size(), 1u);
}

TEST(Diagramm_Fenster, GainAndLossBarsOfEachFacadeInYellowAndCyan) {
    auto p = projekt_mit_monaten();
    p->Fenstergewinn_S = 2000;
    p->Fensterverlust_S = 1000;
    p->Fenstergewinn_O = 500;
    RecordingPrinter d;
    Diagramm_Fenster(d, *p);
    // M = 2000 takes the step 500: 2500 over 60 mm.
    const auto b = balken(d);
    const double je_kwh = 60.0 / 2500;
    ASSERT_GE(b.size(), 8u);
    erwarte(b[2], DRUCK_SOLAR, 84, 201, 94, 201 - 2000 * je_kwh);
    erwarte(b[3], DRUCK_TRANSMISSION, 96, 201, 106, 201 - 1000 * je_kwh);
    erwarte(b[4], DRUCK_SOLAR, 114, 201, 124, 201 - 500 * je_kwh);
    EXPECT_EQ(d.prints("Legende:").size(), 1u);
    EXPECT_EQ(d.prints("Solare Gewinne durch Fenster").size(), 1u);
    EXPECT_EQ(d.prints("Transmissionsverluste durch Fenster").size(), 1u);
}

TEST(Diagramm_Heizenergie, EndAndPrimaryEnergyWithElectricityOnTop) {
    auto p = heizung_im_januar();
    p->Energie.Traegername = "Heizöl";
    RecordingPrinter d;
    Diagramm_Heizenergie(d, *p);
    // M = 22 takes the energy plane's step 10: 30 over 20 mm.
    const double je = 20.0 / 30;
    const auto b = balken(d);
    erwarte(b[0], DRUCK_HEIZEN, 36, 235, 39, 235 - 12 * je);
    erwarte(b[1], DRUCK_STROM, 36, 235 - 12 * je, 39, 235 - 15 * je);
    erwarte(b[2], DRUCK_PRIMAER, 39, 235, 42, 235 - 13 * je);
    erwarte(b[3], DRUCK_PRIMAER_STROM, 39, 235 - 13 * je, 42, 235 - 22 * je);
}

// A month whose balance ends a rounding below or above 0, and the empty auxiliary part of
// electricity as the carrier, leave no bar: nothing is drawn at the axis or as a flat box on a
// bar's top.
TEST(Diagramm_Heizenergie, OnlyValuesAboveZeroGiveABar) {
    auto p = heizung_im_januar();
    p->Monat[6].Qh = -0.01f;
    p->Monat[7].Qh = 0.01f;
    p->q_PE_Energietraeger = 24;
    for (const char* traeger : {"Heizöl", "Strom"}) {
        p->Energie.Traegername = traeger;
        RecordingPrinter d;
        Diagramm_Heizenergie(d, *p);
        const auto b = balken(d);
        // January only; with electricity as the carrier its auxiliary part is in the carrier's.
        const std::size_t segmente = std::string(traeger) == "Strom" ? 2 : 4;
        EXPECT_EQ(std::count_if(b.begin(), b.end(), [](const Balken& x) { return x.x1 < 133; }),
                  static_cast<long>(segmente))
            << traeger;
        for (const Balken& x : b) {
            if (x.x1 < 133) {
                EXPECT_LT(std::min(x.y1, x.y2), std::max(x.y1, x.y2)) << traeger;
                EXPECT_LE(std::max(x.y1, x.y2), 235) << traeger;
            }
        }
    }
    // The cooling page likewise: no cooling, no bar.
    p->Klimaeffizienz = 2.5f;
    p->Monat[7].Kuehlbedarf = 500;
    p->Monat[8].Kuehlbedarf = -0.01f;
    p->Monat[9].Kuehlbedarf = 0.01f;
    RecordingPrinter k;
    Diagramm_Kuehlenergie(k, *p);
    const auto kb = balken(k);
    EXPECT_EQ(std::count_if(kb.begin(), kb.end(), [](const Balken& x) { return x.x1 < 133; }), 2);
}

TEST(Zeichnung_Haus, FixedLinesFromItsReferencePoint) {
    auto p = projekt_mit_monaten();
    p->f_sfa = 52;
    for (double breite : {200.0, 210.0}) {
        RecordingPrinter d(breite);
        Zeichnung_Haus(d, *p, ',');
        const double X = breite - 25 - 31.2, Y = 57;
        const auto box = d.von_art(Art::Box).at(0);
        EXPECT_NEAR(box.x1, X + 12, 1e-9);
        EXPECT_NEAR(box.y1, Y + 23.8, 1e-9);
        EXPECT_NEAR(box.x2, X + 31.2, 1e-9);
        EXPECT_NEAR(box.y2, Y + 35, 1e-9);
        EXPECT_TRUE(hat_linie(d, X + 0.8, Y + 17.4, X + 0.8, Y + 28.6));
        EXPECT_TRUE(hat_linie(d, X + 0.8, Y + 28.6, X + 12, Y + 35));
        EXPECT_TRUE(hat_linie(d, X + 10.4, Y + 7.8, X + 21.6, Y + 14.2));
        EXPECT_TRUE(hat_linie(d, X + 6.6, Y + 11.4, X + 25.8, Y + 11.4));
        EXPECT_TRUE(hat_linie(d, X + 31.2, Y + 23.8, X + 25.8, Y + 11.4));
        EXPECT_EQ(d.von_art(Art::Line).size(), 10u);

        const auto skizze = d.prints("Skizze:").at(0);
        EXPECT_NEAR(skizze.x1, X, 1e-9);
        EXPECT_DOUBLE_EQ(skizze.y1, 50);
        EXPECT_TRUE(skizze.underline);
        EXPECT_DOUBLE_EQ(skizze.size, 12);
        const auto sued = d.prints("Süd-Fassade").at(0);
        EXPECT_NEAR(sued.x1, X + 14.4, 1e-9);
        EXPECT_NEAR(sued.y1, Y + 26.4, 1e-9);
        EXPECT_DOUBLE_EQ(sued.size, 7);
        const auto flaeche = d.prints("52,0 m²").at(0);
        EXPECT_NEAR(flaeche.x1, X + 20, 1e-9);
        EXPECT_NEAR(flaeche.y1, Y + 29.1, 1e-9);
        EXPECT_EQ(d.prints("West-").size(), 1u);
        EXPECT_EQ(d.prints("Fassade").size(), 1u);
    }
    p->Sprache = "e";
    RecordingPrinter d;
    Zeichnung_Haus(d, *p, '.');
    EXPECT_EQ(d.prints("Sketch:").size(), 1u);
    EXPECT_EQ(d.prints("south facade").size(), 1u);
    EXPECT_EQ(d.prints("52.0 m²").size(), 1u);
}

TEST(Diagramm_Orientierung, ThePlanAndItsLettersTurnWithTheDeviation) {
    auto p = projekt_mit_monaten();
    RecordingPrinter d;
    Diagramm_Orientierung(d, *p);
    // Centred at ScaleWidth / 2 + 15 and y 75; the letters 14 mm out, centred on their place.
    const auto s = d.prints("S").at(0);
    EXPECT_NEAR(s.x1 + d.TextWidth("S") / 2, 115, 1e-6);
    EXPECT_NEAR(s.y1 + 2, 89, 1e-6);
    const auto n = d.prints("N").at(0);
    EXPECT_NEAR(n.y1 + 2, 61, 1e-6);
    EXPECT_EQ(d.prints("O").size(), 1u);
    std::size_t rot = 0;
    for (const auto& e : d.von_art(Art::Line)) {
        rot += e.farbe == DRUCK_HEIZEN ? 1 : 0;
        // The plan's corners lie 9 mm from the centre.
        EXPECT_LE(std::hypot(e.x1 - 115, e.y1 - 75), 9 + 1e-9);
    }
    EXPECT_EQ(rot, 3u);

    // Turned by 90 degrees to the west, the south facade faces left.
    p->orient = 90;
    p->Sprache = "e";
    RecordingPrinter w;
    Diagramm_Orientierung(w, *p);
    const auto s90 = w.prints("S").at(0);
    EXPECT_NEAR(s90.x1 + w.TextWidth("S") / 2, 101, 0.01);
    EXPECT_NEAR(s90.y1 + 2, 75, 0.01);
    EXPECT_EQ(w.prints("E").size(), 1u);
    EXPECT_TRUE(w.prints("O").empty());
}
