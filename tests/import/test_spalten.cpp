// SPDX-License-Identifier: GPL-3.0-or-later
// Fields of column texts: tab-separated and blank-separated with left- or right-aligned columns.
#include "climate/import/meteonorm.h"
#include "climate/import/spalten.h"

#include <gtest/gtest.h>

TEST(StelleTab, CountsFieldsFromOneAndNeedsNoTabBehindTheLast) {
    std::string wert;
    bool ok = false;
    StelleTab("a\tbb\t\tccc", 2, wert, ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(wert, "bb");
    StelleTab("a\tbb\t\tccc", 3, wert, ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(wert, "");
    StelleTab("a\tbb\t\tccc", 4, wert, ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(wert, "ccc");
    StelleTab("ohne tab", 1, wert, ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(wert, "ohne tab");
}

TEST(StelleTab, MissingFieldFails) {
    std::string wert = "alt";
    bool ok = true;
    StelleTab("a\tb", 4, wert, ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(wert, "");
    // The field after the last tab exists, though empty.
    StelleTab("a\tb\t", 3, wert, ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(wert, "");
}

TEST(StelleLeer, RightAlignedColumnsEndBehindEachField) {
    Klimaimport f;
    f.Datentrennung = 2;
    Spalten_Festlegen(f, "    1  -2.5  123");
    ASSERT_EQ(f.Spaltenzahl, 3);
    EXPECT_EQ(f.Spaltenanfang[1], 6);
    EXPECT_EQ(f.Spaltenanfang[2], 12);
    EXPECT_EQ(f.Spaltenanfang[3], 17);
    EXPECT_EQ(f.Spaltenanfang[4], 0);
    std::string wert;
    bool ok = false;
    // Another row with wider values in the same columns.
    StelleLeer(f, "   12 -12.5 1000", 1, wert, ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(wert, "   12");
    StelleLeer(f, "   12 -12.5 1000", 2, wert, ok);
    EXPECT_EQ(wert, " -12.5");
    StelleLeer(f, "   12 -12.5 1000", 3, wert, ok);
    EXPECT_EQ(wert, " 1000");
    StelleLeer(f, "   12 -12.5 1000", 4, wert, ok);
    EXPECT_FALSE(ok);
}

TEST(StelleLeer, LeftAlignedColumnsStartAtEachField) {
    Klimaimport f;
    f.Datentrennung = 1;
    Spalten_Festlegen(f, "  1   -2.5  123");
    ASSERT_EQ(f.Spaltenzahl, 3);
    EXPECT_EQ(f.Spaltenanfang[1], 3);
    EXPECT_EQ(f.Spaltenanfang[2], 7);
    EXPECT_EQ(f.Spaltenanfang[3], 13);
    std::string wert;
    bool ok = false;
    StelleLeer(f, "  1   -2.5  123", 2, wert, ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(wert, "-2.5  ");
    StelleLeer(f, "  1   -2.5  123", 3, wert, ok);
    EXPECT_EQ(wert, "123");
    // The line must be longer than the start: a last field of one character at the very end
    // is not found.
    StelleLeer(f, "  1   -2.5  7", 3, wert, ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(wert, "");
}

TEST(StelleLeer, AtMostHundredColumns) {
    Klimaimport f;
    f.Datentrennung = 1;
    std::string viele;
    for (int i = 0; i < 150; ++i) {
        viele += " 1";
    }
    Spalten_Festlegen(f, viele);
    EXPECT_EQ(f.Spaltenzahl, 100);
    std::string wert;
    bool ok = false;
    StelleLeer(f, viele, 100, wert, ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(wert, viele.substr(199)) << "the last column runs to the end of the line";
    StelleLeer(f, viele, 101, wert, ok);
    EXPECT_FALSE(ok);
}

TEST(Meteonorm, RecognisedByTheNamesOfLineFour) {
    const std::vector<std::string_view> ja = {"Ort", "1,2,3,4", "", "m\tdy\th\tTa\tG_Gh"};
    const std::vector<std::string_view> nur_ta = {"Ort", "1,2,3,4", "", "m\tdy\th\tTa"};
    const std::vector<std::string_view> kurz = {"Ort", "1,2,3,4", "Ta G_Gh"};
    EXPECT_TRUE(ist_meteonorm(ja));
    EXPECT_FALSE(ist_meteonorm(nur_ta));
    EXPECT_FALSE(ist_meteonorm(kurz));
}

TEST(Meteonorm, FillsPlaceCoordinatesAndTheFirstSixColumns) {
    const std::vector<std::string_view> zeilen = {"\"Bern-Liebefeld\"", "46.93,-7.42,565,-1",
                                                  "dritte Zeile", "m\tdy\th\tG_Gh\tG_Bh\tTa\tG_Dh"};
    Klimaimport f;
    f.Land = "alt";
    Meteonorm_Lesen(f, zeilen);
    EXPECT_EQ(f.Standortname, "Bern-Liebefeld");
    EXPECT_EQ(f.Kopfzeilen, "4");
    EXPECT_EQ(f.Breitengrad, "46.93");
    EXPECT_EQ(f.Breitezusatz, 0);
    EXPECT_EQ(f.Laengengrad, "7.42");
    EXPECT_EQ(f.Laengezusatz, 1);
    EXPECT_EQ(f.Zeitzone, "1");
    EXPECT_EQ(f.GMT, 0);
    EXPECT_EQ(f.Land, "");
    EXPECT_EQ(f.Dezimalzeichen, 0);
    EXPECT_EQ(f.Datentrennung, 0);
    EXPECT_FALSE(f.Laden_aktiv);
    EXPECT_EQ(f.Spaltenbelegung[4], SPALTE_GESAMT);
    EXPECT_EQ(f.Spaltenbelegung[5], SPALTE_DIREKT);
    EXPECT_EQ(f.Spaltenbelegung[6], SPALTE_TEMPERATUR);
    // The diffuse column is the seventh: beyond the six that take part.
    EXPECT_EQ(f.Spaltenbelegung[7], SPALTE_UNBENUTZT);
    EXPECT_EQ(f.Spaltenbelegung[1], SPALTE_UNBENUTZT);
}
