// SPDX-License-Identifier: GPL-3.0-or-later
// The tooltip texts: the month under the pointer and the exact values with their units.

#include "charts/A_Uebersicht.h"
#include "charts/Tooltiptexte.h"
#include "tests/charts/Diagrammhilfe.h"

#include "project/c_glob.h"

#include <gtest/gtest.h>

namespace {

TEST(Tooltip, TheMonatUnderThePointerRoundsHalvesToEven) {
    EXPECT_EQ(tooltip_monat(40), 1);
    EXPECT_EQ(tooltip_monat(33), 0); // 0.5 rounds to 0: no month
    EXPECT_EQ(tooltip_monat(57), 2); // 1.5 rounds to 2
    EXPECT_EQ(tooltip_monat(320), 12);
    EXPECT_EQ(tooltip_monat(321), 12); // 12.5 rounds to 12
    EXPECT_EQ(tooltip_monat(345), 0);  // 13.5 rounds to 14: outside
    EXPECT_EQ(tooltip_monat_energie(20), 1);
    EXPECT_EQ(tooltip_monat_energie(400), 1);
}

TEST(Tooltip, OverviewTextsGiveTheValuesPerSquareMetre) {
    TempOrdner o;
    auto p = diagrammprojekt(o, "d");
    const auto l = uebersicht_legende("d");
    EXPECT_EQ(
        tooltip_Monatsbilanz(*p, 1, l, '.'),
        "Monat: Januar\r Heizwärmebedarf: 16.4 kWh / (m² Monat)\rKühlbedarf: 0.0 kWh / (m² Monat)");
    EXPECT_EQ(tooltip_Monatsbilanz(*p, 0, l, '.'), "");
    // June: 121 heating hours of 720 are 16.8 %.
    const std::string juni = tooltip_UeberGrafik(*p, 6, l, ',');
    EXPECT_NE(juni.find("Heizstunden: 121 h  (16,8 %)"), std::string::npos) << juni;
    EXPECT_NE(juni.find("Nullenergiestunden: 599 h  (83,2 %)"), std::string::npos) << juni;
    EXPECT_NE(juni.find("Kühlstunden: 0 h  (0,0 %)"), std::string::npos) << juni;
    const std::string jahr = tooltip_UeberJahr(*p, l, "d", '.');
    EXPECT_EQ(jahr.rfind("Jahressumme\r", 0), 0u);
    EXPECT_NE(jahr.find("%)"), std::string::npos);
    EXPECT_EQ(tooltip_JahrBilanz_Uebersicht(*p, l, '.'),
              "Jahresbilanz\r Heizwärmebedarf: 81.4 kWh / (m² a)\rKühlbedarf: 0.0 kWh / (m² a)");
}

TEST(Tooltip, HeatingAndCoolingTextsInEnglish) {
    TempOrdner o;
    auto p = kuehlprojekt(o, "e");
    const auto h = heizen_legende("e");
    const std::string jan = tooltip_Heizbilanz(*p, 1, h, '.');
    EXPECT_EQ(jan.rfind("month: January\rvent. losses: ", 0), 0u) << jan;
    EXPECT_NE(jan.find(" kWh / (m² month)\rheat energy: "), std::string::npos);
    EXPECT_NE(tooltip_NutzungsgradJahr(*p, h, '.').find("non usable solar gains: "),
              std::string::npos);
    const std::string juli = tooltip_StundenProTagMonat(*p, 7, "e", '.');
    EXPECT_EQ(juli, "month: July\rAverage time of overheating: 24.0 hours per day");
    EXPECT_EQ(tooltip_StundenProTagJahr(*p, "e", '.').rfind("Yearly mean:\r", 0), 0u);
    const auto k = kuehlen_legende("e");
    EXPECT_EQ(tooltip_KuehlbedarfJahr(*p, k, '.').rfind("yearly balance\rcooling demand: ", 0), 0u);
    EXPECT_NE(tooltip_KuehlGradStundenMonat(*p, 7, k, '.').find("cooling degree hours: "),
              std::string::npos);
}

TEST(Tooltip, EnergyChartQuotesTheCaptionsWithTheirColon) {
    TempOrdner o;
    auto p = diagrammprojekt(o, "d");
    const std::string t = tooltip_Monatsverbrauch(*p, 1, "d", '.');
    EXPECT_EQ(t.rfind("Monat: Januar\rHeizenergiebedarf (Heizöl):: ", 0), 0u) << t;
    EXPECT_NE(t.find("\rHilfsenergiebedarf (Strom):: "), std::string::npos);
    EXPECT_NE(t.find("\rPrimärenergiebedarf (Strom):: "), std::string::npos);
    auto q = diagrammprojekt(o, "e");
    q->Energie.Traegername = "Strom";
    q->Energie.Traegername_e = "electricity";
    const std::string strom = tooltip_Monatsverbrauch(*q, 13, "e", '.');
    EXPECT_EQ(strom.rfind("month: January\rheating energy demand (electricity):: ", 0), 0u)
        << strom;
    EXPECT_EQ(std::count(strom.begin(), strom.end(), '\r'), 2);
}

TEST(Tooltip, APointerOnABarDiffersFromTheBackground) {
    TempOrdner o;
    auto p = diagrammprojekt(o, "d");
    Uebersicht u;
    MonatsbilanzZeichnen(*p, u.f, einstellung("d"));
    EXPECT_TRUE(auf_balken(u.Monatsbilanz, 39, 110));
    EXPECT_FALSE(auf_balken(u.Monatsbilanz, 39, 30));
    EXPECT_EQ(tooltip_monat(39), 1);
}

} // namespace
