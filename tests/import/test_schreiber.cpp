// SPDX-License-Identifier: GPL-3.0-or-later
// The station writer: the head with its signs and labels, the four fields of a row, and what the
// station reader makes of the written file.
#include "climate/import/cp1252.h"
#include "climate/import/stationsschreiber.h"
#include "climate/klimadatei.h"
#include "tests/import/Importhilfe.h"
#include "tests/support/Testprojekt.h"

#include <gtest/gtest.h>

namespace {

Klimaimport felder_trier() {
    Klimaimport f;
    f.Standortname = "Würzburg";
    f.Land = "Deutschland";
    f.Breitengrad = "49.75";
    f.Laengengrad = "6.64";
    f.Zeitzone = "1";
    return f;
}

} // namespace

TEST(Stationskopf, SignsAndLabelsOfTheStationFile) {
    Klimaimport f = felder_trier();
    const std::vector<std::string> zeilen = crlf_zeilen(stationskopf(f));
    ASSERT_EQ(zeilen.size(), 6u);
    EXPECT_EQ(zeilen[0], "W\xFCrzburg (Deutschland)") << "line 1 in Windows-1252";
    EXPECT_EQ(zeilen[1], "Breitengrad:   49.75");
    // East longitude and a zone east of Greenwich are written negative.
    EXPECT_EQ(zeilen[2], "L\xE4ngengrad:   -6.64");
    EXPECT_EQ(zeilen[3], "Zeitzone:     -1");
    EXPECT_EQ(zeilen[4], "");
    EXPECT_EQ(zeilen[5], "   dy   Ta G_Gh G_Dh");
    // The label is 14 bytes, so the number field starts at column 15.
    EXPECT_EQ(zeilen[2].find("-6.64"), 14u);

    f.Breitengrad = "0.5";
    f.Laengengrad = "7";
    f.Laengezusatz = 0;
    f.Zeitzone = "5";
    f.GMT = 1;
    const std::vector<std::string> z = crlf_zeilen(stationskopf(f));
    EXPECT_EQ(z[1], "Breitengrad:   0.5") << "a blank, then 0.5 with its zero";
    EXPECT_EQ(z[2], "L\xE4ngengrad:   -7") << "7 East is written as -7";
    EXPECT_EQ(z[3], "Zeitzone:      5") << "GMT - 5 is written positive";

    f.Breitezusatz = 1;
    f.Laengezusatz = 1;
    f.Zeitzone = "0";
    f.GMT = 0;
    const std::vector<std::string> s = crlf_zeilen(stationskopf(f));
    EXPECT_EQ(s[1], "Breitengrad:  -0.5");
    EXPECT_EQ(s[2], "L\xE4ngengrad:    7");
    EXPECT_EQ(s[3], "Zeitzone:      0") << "no negative zero";
}

TEST(Stationskopf, CommaAsDecimalMark) {
    Klimaimport f = felder_trier();
    f.Dezimalzeichen = 1;
    f.Breitengrad = "49,5";
    EXPECT_EQ(crlf_zeilen(stationskopf(f))[1], "Breitengrad:   49.5");
}

TEST(Stationszeile, FourRightAlignedFields) {
    EXPECT_EQ(stationszeile(0, {-0.4, 12.4, 3.25}, false), "    1 -0.4   12  3.2\r\n");
    EXPECT_EQ(stationszeile(23, {5, 0, 0}, false), "    1  5.0    0    0\r\n");
    EXPECT_EQ(stationszeile(24, {0.3, 2.5, 0.5}, false), "    2  0.3    2   .5\r\n");
    EXPECT_EQ(stationszeile(8759, {-19.45, 3.5, 0}, false), "  365-19.4    4    0\r\n");
    EXPECT_EQ(stationszeile(100, {20.06, 812.5, 123.4}, false), "    5 20.1  812 123.4\r\n")
        << "the diffuse field keeps its decimal and runs past column 20";
    // Without a total column the total is the sum of direct and diffuse.
    EXPECT_EQ(stationszeile(1, {1, 300.4, 100.3}, true), "    1  1.0  401 100.3\r\n");
}

TEST(Stationszeile, DiffuseValueOfSixCharactersIsReadAsItsWholePart) {
    TempOrdner ordner;
    Klimaimport f = felder_trier();
    std::vector<Quellstunde> zeilen(8760, Quellstunde{10, 0, 0});
    // Row 13 is January 1, hour 12, at noon at 49.75 N: 400 W/m² total, 123.4 diffuse.
    zeilen[12] = {2.0, 400, 123.4};
    ordner.schreiben("neu.met", stationsdatei(f, zeilen, false));
    auto p = leeres_projekt();
    p->KlimaOrdner = ordner.pfad().string();
    p->Klimadatei = "neu.met";
    klimadatei_lesen(*p);
    EXPECT_FLOAT_EQ(p->Wetter(1, 1, 12).Diffus, 123) << "columns 16-20 hold \" 123.\"";
    EXPECT_FLOAT_EQ(p->Wetter(1, 1, 12).Ta, 2);
    EXPECT_GT(p->Wetter(1, 1, 12).Direkt, 0);
}

TEST(Stationsdatei, FirstRowIsTheLastHourOfTheYear) {
    TempOrdner ordner;
    Klimaimport f = felder_trier();
    std::vector<Quellstunde> zeilen(8761);
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        zeilen[i].Ta = static_cast<double>(i % 100) / 10;
    }
    const std::string text = stationsdatei(f, zeilen, false);
    const std::vector<std::string> z = crlf_zeilen(text);
    ASSERT_EQ(z.size(), 8766u) << "only 8760 rows are written";
    ordner.schreiben("neu.met", text);
    auto p = leeres_projekt();
    p->KlimaOrdner = ordner.pfad().string();
    p->Klimadatei = "neu.met";
    klimadatei_lesen(*p);
    EXPECT_FLOAT_EQ(p->Wetter(12, 31, 24).Ta, 0.0f) << "row 0";
    EXPECT_FLOAT_EQ(p->Wetter(1, 1, 1).Ta, 0.1f) << "row 1";
    EXPECT_FLOAT_EQ(p->Wetter(12, 31, 23).Ta, 5.9f) << "row 8759";
    EXPECT_NEAR(p->Breite, 49.75 * 0.01745, 1e-6);
    EXPECT_NEAR(p->Laengenkorrektur, -6.64 + 15, 1e-5);
}

TEST(Cp1252, ConvertsUtf8AndKeepsSingleBytes) {
    EXPECT_EQ(utf8_nach_cp1252("Málaga Österreich €"), "M\xE1laga \xD6sterreich \x80");
    EXPECT_EQ(utf8_nach_cp1252("Łódź"), "?\xF3"
                                        "d?");
    EXPECT_EQ(utf8_nach_cp1252("M\xFCnchen"), "M\xFCnchen") << "already Windows-1252";
    EXPECT_EQ(utf8_nach_cp1252("\xE2\x82"), "\xE2\x82") << "a cut sequence stays as bytes";
}
