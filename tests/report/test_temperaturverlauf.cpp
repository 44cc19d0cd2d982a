// SPDX-License-Identifier: GPL-3.0-or-later
// The temperature course: the heads of the month screen and of the year file in both languages
// with their deliberate differences, the rows, the field width and the decimal mark.
#include "report/Temperaturverlauf.h"
#include "tests/report/Reporthilfe.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

std::vector<std::string> zeilen(const std::string& text) {
    std::vector<std::string> z;
    std::size_t anfang = 0;
    for (std::size_t k = text.find("\r\n"); k != std::string::npos; k = text.find("\r\n", anfang)) {
        z.push_back(text.substr(anfang, k - anfang));
        anfang = k + 2;
    }
    EXPECT_EQ(anfang, text.size()) << "every line ends with CR LF";
    return z;
}

const std::vector<std::string> KOPF_JAHR_D = {
    "                          Velmaris",
    "____________________________________________________________",
    "",
    "             Jahres-Temperaturverläufe",
    "",
    "Legende:",
    "",
    "     T außen:       Außenlufttemperatur",
    "     T frei:        Raumlufttemperatur",
    "                    ohne Heizung und Kühlung",
    "     T HK:          Raumlufttemperatur",
    "                    mit Heizung und Kühlung",
    "",
    "",
    "Temperaturdaten:",
    "",
    "       Tag     Monat    Stunde   T außen    T frei      T HK",
    "                                   in °C     in °C     in kW",
    "____________________________________________________________",
    ""};

const std::vector<std::string> KOPF_MONAT_E = {
    "      ",
    "                          Velmaris",
    "____________________________________________________________",
    "",
    "                      Temperature courses",
    "",
    "Month:      January",
    "",
    "Legend:",
    "",
    "     T out:         Outside air temperature",
    "     T free:        Room air temperature",
    "                    without heating and cooling",
    "     T HC:          Room air temperature",
    "                    with heating and cooling",
    "",
    "",
    "Temperaturdaten:",
    "",
    "       day     month      hour     T out    T fret      T HC",
    "                                   in °C     in °C     in °C",
    "____________________________________________________________",
    ""};

} // namespace

TEST(Temperaturverlauf, YearFileGermanHeadRowsAndDecimalComma) {
    Reportprogramm r("d");
    Projekt& p = r.programm->p;
    p.Wetter(1, 1, 1).Ta = -10.5f;
    p.T_frei(12, 31, 24) = 1234567.0f;
    const std::string pfad = (r.ordner.pfad() / "t.txt").string();
    ASSERT_TRUE(temperaturverlauf_exportieren(p, ',', pfad));
    const std::string datei = datei_lesen(pfad);
    // The file is ANSI: "ä" is one byte.
    EXPECT_NE(datei.find("Jahres-Temperaturverl\xe4ufe\r\n"), std::string::npos);

    const std::vector<std::string> z = zeilen(temperaturverlauf_jahrestext(p, ','));
    ASSERT_EQ(z.size(), KOPF_JAHR_D.size() + 8760);
    for (std::size_t i = 0; i < KOPF_JAHR_D.size(); ++i) {
        EXPECT_EQ(z[i], KOPF_JAHR_D[i]) << "head line " << i;
    }
    const std::string& erste = z[KOPF_JAHR_D.size()];
    EXPECT_EQ(erste.substr(0, 40), "         1         1         1     -10,5");
    EXPECT_EQ(erste.size(), 60u);
    // A value longer than ten characters is not cut.
    EXPECT_EQ(z.back().substr(0, 30), "        31        12        24");
    EXPECT_EQ(z.back().substr(40, 10), " 1234567,0");
    EXPECT_EQ(z[KOPF_JAHR_D.size() + 31 * 24].substr(0, 30), "         1         2         1");
    EXPECT_FALSE(temperaturverlauf_exportieren(p, ',', (r.ordner.pfad() / "x" / "t.txt").string()));
}

TEST(Temperaturverlauf, YearFileEnglishHeadKeepsItsSpelling) {
    Reportprogramm r("e");
    const std::vector<std::string> z = zeilen(temperaturverlauf_jahrestext(r.programm->p, '.'));
    EXPECT_EQ(z[3], "             Yearly temperature courses");
    EXPECT_EQ(z[5], "Legend:");
    EXPECT_EQ(z[14], "Temperaturdaten:");
    EXPECT_EQ(z[16], "       day     Month      hour     T out    T free      T HC");
    EXPECT_EQ(z[17], "                                   in °C     in °C     in kW");
    EXPECT_EQ(z.size(), 20u + 8760);
    EXPECT_NE(z[20].find('.'), std::string::npos);
    EXPECT_EQ(z[20].find(','), std::string::npos);
}

TEST(Temperaturverlauf, MonthScreenEnglishAndAllMonthsGerman) {
    Reportprogramm e("e");
    const std::vector<std::string> z = zeilen(temperaturverlauf_schreiben(e.programm->p, 1, '.'));
    ASSERT_EQ(z.size(), KOPF_MONAT_E.size() + 31 * 24);
    for (std::size_t i = 0; i < KOPF_MONAT_E.size(); ++i) {
        EXPECT_EQ(z[i], KOPF_MONAT_E[i]) << "head line " << i;
    }
    const std::vector<std::string> feb = zeilen(temperaturverlauf_schreiben(e.programm->p, 2, '.'));
    EXPECT_EQ(feb.size(), KOPF_MONAT_E.size() + 28 * 24);
    EXPECT_EQ(feb[6], "Month:      February");
    EXPECT_EQ(feb.back().substr(0, 30), "        28         2        24");

    Reportprogramm d("d");
    const std::vector<std::string> alle =
        zeilen(temperaturverlauf_schreiben(d.programm->p, 0, ','));
    // Without a month: an empty first line, no "Monat:" line, all 8760 rows.
    EXPECT_EQ(alle[0], "");
    EXPECT_EQ(alle[4], "                      Temperaturverläufe");
    EXPECT_EQ(alle[6], "Legende:");
    EXPECT_EQ(alle[17], "       Tag     Monat    Stunde   T außen    T frei      T HK");
    EXPECT_EQ(alle[18], "                                   in °C     in °C     in °C");
    EXPECT_EQ(alle.size(), 21u + 8760);
}
