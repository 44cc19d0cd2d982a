// SPDX-License-Identifier: GPL-3.0-or-later
// Fields of column texts: tab-separated and blank-separated with left- or right-aligned columns.
#include "climate/import/meteonorm.h"
#include "climate/import/spalten.h"

#include <gtest/gtest.h>

namespace {

struct Feld {
    int nr;
    bool ok;
    std::string wert;
};

} // namespace

TEST(StelleTab, CountsFieldsFromOneAndNeedsNoTabBehindTheLast) {
    const std::pair<const char*, Feld> faelle[] = {
        {"a\tbb\t\tccc", {2, true, "bb"}},
        {"a\tbb\t\tccc", {3, true, ""}},
        {"a\tbb\t\tccc", {4, true, "ccc"}},
        {"ohne tab", {1, true, "ohne tab"}},
        {"a\tb", {4, false, ""}},
        {"a\tb\t", {3, true, ""}}, // the field after the last tab exists, though empty
    };
    for (const auto& [zeile, feld] : faelle) {
        std::string wert = "alt";
        bool ok = !feld.ok;
        StelleTab(zeile, feld.nr, wert, ok);
        EXPECT_EQ(ok, feld.ok) << zeile << " #" << feld.nr;
        EXPECT_EQ(wert, feld.wert) << zeile << " #" << feld.nr;
    }
}

TEST(StelleLeer, ColumnsFromTheSampleLine) {
    struct Fall {
        int16_t trennung; // 1 left-aligned, 2 right-aligned
        const char* beispiel;
        std::vector<int16_t> anfaenge;
        const char* zeile;
        std::vector<Feld> felder;
    };
    const Fall faelle[] = {
        // Right-aligned columns end behind each field; another row has wider values.
        {2,
         "    1  -2.5  123",
         {6, 12, 17, 0},
         "   12 -12.5 1000",
         {{1, true, "   12"}, {2, true, " -12.5"}, {3, true, " 1000"}, {4, false, ""}}},
        // Left-aligned columns start at each field.
        {1,
         "  1   -2.5  123",
         {3, 7, 13},
         "  1   -2.5  123",
         {{2, true, "-2.5  "}, {3, true, "123"}}},
        // The line must be longer than the start: a last field of one character at the very end
        // is not found.
        {1, "  1   -2.5  123", {3, 7, 13}, "  1   -2.5  7", {{3, false, ""}}},
    };
    for (const Fall& fall : faelle) {
        Klimaimport f;
        f.Datentrennung = fall.trennung;
        Spalten_Festlegen(f, fall.beispiel);
        EXPECT_EQ(f.Spaltenzahl, 3) << fall.beispiel;
        EXPECT_EQ(std::vector<int16_t>(f.Spaltenanfang.begin() + 1,
                                       f.Spaltenanfang.begin() + 1 +
                                           static_cast<std::ptrdiff_t>(fall.anfaenge.size())),
                  fall.anfaenge)
            << fall.beispiel;
        for (const Feld& feld : fall.felder) {
            std::string wert = "alt";
            bool ok = !feld.ok;
            StelleLeer(f, fall.zeile, feld.nr, wert, ok);
            EXPECT_EQ(ok, feld.ok) << fall.zeile << " #" << feld.nr;
            EXPECT_EQ(wert, feld.wert) << fall.zeile << " #" << feld.nr;
        }
    }
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
    EXPECT_TRUE(ist_meteonorm({"Ort", "1,2,3,4", "", "m\tdy\th\tTa\tG_Gh"}));
    EXPECT_FALSE(ist_meteonorm({"Ort", "1,2,3,4", "", "m\tdy\th\tTa"}));
    EXPECT_FALSE(ist_meteonorm({"Ort", "1,2,3,4", "Ta G_Gh"}));
}

TEST(Meteonorm, FillsPlaceCoordinatesAndTheFirstSixColumns) {
    Klimaimport f;
    f.Land = "alt";
    Meteonorm_Lesen(f, {"\"Bern-Liebefeld\"", "46.93,-7.42,565,-1", "dritte Zeile",
                        "m\tdy\th\tG_Gh\tG_Bh\tTa\tG_Dh"});
    EXPECT_EQ(
        std::tie(f.Standortname, f.Kopfzeilen, f.Breitengrad, f.Laengengrad, f.Zeitzone, f.Land),
        std::make_tuple("Bern-Liebefeld", "4", "46.93", "7.42", "1", ""));
    EXPECT_EQ(std::tie(f.Breitezusatz, f.Laengezusatz, f.GMT, f.Dezimalzeichen, f.Datentrennung),
              std::make_tuple(0, 1, 0, 0, 0));
    EXPECT_FALSE(f.Laden_aktiv);
    // The diffuse column is the seventh: beyond the six that take part.
    EXPECT_EQ(
        std::vector<int16_t>(f.Spaltenbelegung.begin() + 1, f.Spaltenbelegung.begin() + 8),
        (std::vector<int16_t>{SPALTE_UNBENUTZT, SPALTE_UNBENUTZT, SPALTE_UNBENUTZT, SPALTE_GESAMT,
                              SPALTE_DIREKT, SPALTE_TEMPERATUR, SPALTE_UNBENUTZT}));
}
