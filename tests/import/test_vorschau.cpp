// SPDX-License-Identifier: GPL-3.0-or-later
// The preview grid of the import window: rows behind the head lines, columns from the column
// scroll field, the column choices stored for the shown column, and the key filters of the
// number fields.
#include "climate/import/eingabefilter.h"
#include "climate/import/importieren.h"
#include "climate/import/vorschau.h"
#include "climate/klimadatei.h"
#include "tests/import/Importhilfe.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <tuple>

namespace {

// A tab-separated source of `spalten` columns: "r<row>c<column>" in each cell, after two head
// lines whose own columns differ.
std::string tabquelle(int spalten, int zeilen) {
    return spaltentext(2, zeilen, [spalten](int i) {
        std::string z;
        for (int c = 1; c <= spalten; ++c) {
            z += (c > 1 ? "\t" : "") + std::string("r") + std::to_string(i + 1) + "c" +
                 std::to_string(c);
        }
        return z;
    });
}

struct Quelle {
    std::string text;
    std::vector<std::string_view> zeilen;
    explicit Quelle(std::string t) : text(std::move(t)), zeilen(zeilen_teilen(text)) {}
};

} // namespace

TEST(Vorschau, EmptyHeadLineFieldLeavesTheGridAsItWas) {
    Quelle q(tabquelle(3, 10));
    Klimaimport f;
    const Vorschau v = vorschau_fuellen(f, q.zeilen, 1, 0);
    EXPECT_FALSE(v.gefuellt);
}

TEST(Vorschau, ShowsSixRowsBehindTheHeadLinesAndSixColumnsFromTheScrollField) {
    Quelle q(tabquelle(8, 20));
    Klimaimport f;
    f.Kopfzeilen = "2";
    Vorschau v = vorschau_fuellen(f, q.zeilen, 1, 0);
    ASSERT_TRUE(v.gefuellt);
    EXPECT_EQ(v.Spaltenzahl, 8);
    EXPECT_TRUE(v.HScroll1_Enabled);
    EXPECT_EQ(v.HScroll1_Max, 3);
    // The first data row is line 3 of the file.
    EXPECT_EQ(v.Zeilenzaehler[0], 3);
    EXPECT_EQ(v.Zeilenzaehler[5], 8);
    EXPECT_EQ(v.Spalte[0], 1);
    EXPECT_EQ(v.Zelle[0][0], "r1c1");
    EXPECT_EQ(v.Zelle[5][5], "r6c6");

    // At the end of the column range the last column is the sixth shown.
    v = vorschau_fuellen(f, q.zeilen, 3, 4);
    EXPECT_EQ(v.Spalte[0], 3);
    EXPECT_EQ(v.Spalte[5], 8);
    EXPECT_EQ(v.Zelle[0][0], "r5c3");
    EXPECT_EQ(v.Zelle[5][5], "r10c8");
    EXPECT_EQ(v.Zeilenzaehler[0], 7);

    // Positions beyond the ranges are held inside them.
    v = vorschau_fuellen(f, q.zeilen, 9, -3);
    EXPECT_EQ(v.HScroll1, 3);
    EXPECT_EQ(v.VScroll1, 0);
}

TEST(Vorschau, ColumnScrollFieldIsDisabledBelowSevenColumns) {
    Klimaimport f;
    f.Kopfzeilen = "2";
    for (const auto& [spalten, an, max] :
         {std::tuple{1, false, 1}, std::tuple{6, false, 1}, std::tuple{7, true, 2}}) {
        Quelle q(tabquelle(spalten, 3));
        const Vorschau v = vorschau_fuellen(f, q.zeilen, 2, 0);
        EXPECT_EQ(v.Spaltenzahl, spalten);
        EXPECT_EQ(v.HScroll1_Enabled, an) << spalten << " columns";
        EXPECT_EQ(v.HScroll1_Max, max) << spalten << " columns";
        EXPECT_EQ(v.Spalte[0], max);
    }
}

TEST(Vorschau, RowsPastTheEndShowTheMarkAsTheirLine) {
    Quelle q(tabquelle(3, 4));
    Klimaimport f;
    f.Kopfzeilen = "2";
    const Vorschau v = vorschau_fuellen(f, q.zeilen, 1, 2);
    EXPECT_EQ(v.Zelle[1][1], "r4c2");
    EXPECT_EQ(v.Zelle[2][0], "xxxxxxxxxx");
    EXPECT_EQ(v.Zelle[2][1], "");
    EXPECT_EQ(v.Zeilenzaehler[2], 7);
    // A short source scrolls over a year of rows, so that its end can be seen.
    EXPECT_EQ(v.VScroll1_Max, 8759);
    // A file without data rows has no columns.
    f.Kopfzeilen = "9";
    EXPECT_EQ(vorschau_fuellen(f, q.zeilen, 1, 0).Spaltenzahl, 0);
}

TEST(Vorschau, HeadLinesAreTheNumberRoundedHalfToEven) {
    Quelle q(tabquelle(2, 10));
    Klimaimport f;
    f.Kopfzeilen = "2.5";
    EXPECT_EQ(vorschau_fuellen(f, q.zeilen, 1, 0).Zeilenzaehler[0], 3);
    f.Kopfzeilen = "3.5";
    EXPECT_EQ(vorschau_fuellen(f, q.zeilen, 1, 0).Zeilenzaehler[0], 5);
}

TEST(Vorschau, BlankModesTakeTheirColumnsFromTheFirstDataRow) {
    // The head line has other gaps than the rows; the right-aligned columns end behind each
    // field of the first row.
    Quelle q("Tag Stunde Temperatur\n"
             "  1    1  -2.5   0  12\n"
             " 12   24 -12.5 100 1.5\n");
    Klimaimport f;
    f.Kopfzeilen = "1";
    f.Datentrennung = 2;
    Vorschau v = vorschau_fuellen(f, q.zeilen, 1, 0);
    EXPECT_EQ(v.Spaltenzahl, 5);
    EXPECT_EQ(f.Spaltenzahl, 5);
    EXPECT_EQ(v.Zelle[0][2], "  -2.5");
    EXPECT_EQ(v.Zelle[1][2], " -12.5");
    EXPECT_EQ(v.Zelle[1][4], " 1.5");
    EXPECT_EQ(v.Zelle[0][5], "");

    // Left-aligned, each field runs to the start of the next.
    f.Datentrennung = 1;
    v = vorschau_fuellen(f, q.zeilen, 1, 0);
    EXPECT_EQ(v.Zelle[0][0], "1    ");
    // The positions are those of the first row, whatever the later rows hold.
    EXPECT_EQ(v.Zelle[1][2], "12.5 10");
}

TEST(Vorschau, AChoiceIsStoredForTheColumnTheListShows) {
    Quelle q(tabquelle(9, 6));
    Klimaimport f;
    f.Kopfzeilen = "2";
    Datenreihe_Click(f, 3, 2, SPALTE_DIFFUS);
    EXPECT_EQ(f.Spaltenbelegung[5], SPALTE_DIFFUS);
    EXPECT_EQ(f.Spaltenbelegung[3], SPALTE_UNBENUTZT);
    // The list shows it at any scroll position that brings column 5 into view.
    EXPECT_EQ(vorschau_fuellen(f, q.zeilen, 4, 0).Datenreihe[1], SPALTE_DIFFUS);
    EXPECT_EQ(vorschau_fuellen(f, q.zeilen, 1, 0).Datenreihe[4], SPALTE_DIFFUS);

    // While a source is analysed or the grid filled, the lists' changes are not choices.
    f.Vorschau_aktiv = true;
    Datenreihe_Click(f, 1, 0, SPALTE_TEMPERATUR);
    f.Vorschau_aktiv = false;
    f.Laden_aktiv = true;
    Datenreihe_Click(f, 1, 1, SPALTE_TEMPERATUR);
    f.Laden_aktiv = false;
    EXPECT_EQ(f.Spaltenbelegung[1], SPALTE_UNBENUTZT);
    EXPECT_EQ(f.Spaltenbelegung[2], SPALTE_UNBENUTZT);
    // Column 100 is the last that can be chosen.
    Datenreihe_Click(f, 95, 5, SPALTE_GESAMT);
    EXPECT_EQ(f.Spaltenbelegung[100], SPALTE_GESAMT);
    Datenreihe_Click(f, 96, 5, SPALTE_DIREKT);
    EXPECT_EQ(std::count(f.Spaltenbelegung.begin(), f.Spaltenbelegung.end(), SPALTE_DIREKT), 0);
}

TEST(Vorschau, MeteonormSourceShowsItsAssignedColumns) {
    const std::string text = "\"Bern\"\n46.95,-7.43,553,-1\nfrei\n"
                             "m\tdm\th\tG_Gh\tTa\tG_Dh\tG_Bh\n"
                             "1\t1\t1\t0\t-1.2\t0\t0\n";
    Quelle q(text);
    Klimaimport f;
    std::string Datei;
    quelle_annehmen(f, "bern.txt", text, Datei);
    EXPECT_EQ(f.Kopfzeilen, "4");
    EXPECT_EQ(f.Standortname, "Bern");
    const Vorschau v = vorschau_fuellen(f, q.zeilen, 1, 0);
    EXPECT_EQ(v.Zeilenzaehler[0], 5);
    EXPECT_EQ(v.Spaltenzahl, 7);
    EXPECT_EQ(v.Zelle[0][4], "-1.2");
    EXPECT_EQ(v.Datenreihe[3], SPALTE_GESAMT);
    EXPECT_EQ(v.Datenreihe[4], SPALTE_TEMPERATUR);
    EXPECT_EQ(v.Datenreihe[5], SPALTE_DIFFUS);
    EXPECT_EQ(v.Datenreihe[0], SPALTE_UNBENUTZT);
}

TEST(Eingabefilter, NumberFieldsTakeDigitsADecimalMarkAndBackSpace) {
    for (int t : {int{'0'}, int{'7'}, int{'9'}, int{'.'}, int{','}, 8}) {
        EXPECT_TRUE(zahlentaste(t)) << t;
    }
    for (int t : {int{'-'}, int{'+'}, int{'e'}, int{'E'}, int{' '}, 13, 27, 22}) {
        EXPECT_FALSE(zahlentaste(t)) << t;
    }
}

TEST(Eingabefilter, HeadLineFieldTakesDigitsOnly) {
    EXPECT_TRUE(ziffertaste('0'));
    EXPECT_TRUE(ziffertaste('9'));
    for (int t : {int{'.'}, int{','}, int{'-'}, int{'a'}, 8, 13}) {
        EXPECT_FALSE(ziffertaste(t)) << t;
    }
}
