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

// What the station reader makes of the station file written from `zeilen`.
std::unique_ptr<Projekt> geschrieben_und_gelesen(const std::vector<Quellstunde>& zeilen) {
    TempOrdner ordner;
    ordner.schreiben("neu.met", stationsdatei(felder_trier(), zeilen, false));
    auto p = leeres_projekt();
    p->KlimaOrdner = ordner.pfad().string();
    p->Klimadatei = "neu.met";
    klimadatei_lesen(*p);
    return p;
}

} // namespace

TEST(Stationskopf, SignsAndLabelsOfTheStationFile) {
    // Line 1 in Windows-1252; east longitude and a zone east of Greenwich are written negative;
    // the labels are 14 bytes, so the number fields start at column 15.
    Klimaimport f = felder_trier();
    using Zeilen = std::vector<std::string>;
    EXPECT_EQ(crlf_zeilen(stationskopf(f)),
              (Zeilen{"W\xFCrzburg (Deutschland)", "Breitengrad:   49.75", "L\xE4ngengrad:   -6.64",
                      "Zeitzone:     -1", "", "   dy   Ta G_Gh G_Dh"}));
    // A blank, then 0.5 with its zero; 7 East as -7; GMT - 5 positive.
    f.Breitengrad = "0.5";
    f.Laengengrad = "7";
    f.Zeitzone = "5";
    f.GMT = 1;
    Zeilen z = crlf_zeilen(stationskopf(f));
    EXPECT_EQ(Zeilen(z.begin() + 1, z.begin() + 4),
              (Zeilen{"Breitengrad:   0.5", "L\xE4ngengrad:   -7", "Zeitzone:      5"}));
    // South and west; no negative zero.
    f.Breitezusatz = 1;
    f.Laengezusatz = 1;
    f.Zeitzone = "0";
    f.GMT = 0;
    z = crlf_zeilen(stationskopf(f));
    EXPECT_EQ(Zeilen(z.begin() + 1, z.begin() + 4),
              (Zeilen{"Breitengrad:  -0.5", "L\xE4ngengrad:    7", "Zeitzone:      0"}));
    // A comma as the decimal mark.
    f = felder_trier();
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

TEST(Stationsdatei, DiffuseValueOfSixCharactersIsReadAsItsWholePart) {
    std::vector<Quellstunde> zeilen(8760, Quellstunde{10, 0, 0});
    // Row 13 is January 1, hour 12, at noon at 49.75 N: 400 W/m² total, 123.4 diffuse.
    zeilen[12] = {2.0, 400, 123.4};
    const auto p = geschrieben_und_gelesen(zeilen);
    EXPECT_FLOAT_EQ(p->Wetter(1, 1, 12).Diffus, 123) << "columns 16-20 hold \" 123.\"";
    EXPECT_FLOAT_EQ(p->Wetter(1, 1, 12).Ta, 2);
    EXPECT_GT(p->Wetter(1, 1, 12).Direkt, 0);
}

TEST(Stationsdatei, FirstRowIsTheLastHourOfTheYear) {
    std::vector<Quellstunde> zeilen(8761);
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        zeilen[i].Ta = static_cast<double>(i % 100) / 10;
    }
    EXPECT_EQ(crlf_zeilen(stationsdatei(felder_trier(), zeilen, false)).size(), 8766u)
        << "only 8760 rows are written";
    const auto p = geschrieben_und_gelesen(zeilen);
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
