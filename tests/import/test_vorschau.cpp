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
    EXPECT_EQ(std::tie(v.Spaltenzahl, v.HScroll1_Enabled, v.HScroll1_Max), std::tuple(8, true, 3));
    // The first data row is line 3 of the file.
    EXPECT_EQ(std::tie(v.Zeilenzaehler[0], v.Zeilenzaehler[5], v.Spalte[0]), std::tuple(3, 8, 1));
    EXPECT_EQ(std::tie(v.Zelle[0][0], v.Zelle[5][5]), std::tuple("r1c1", "r6c6"));

    // At the end of the column range the last column is the sixth shown.
    v = vorschau_fuellen(f, q.zeilen, 3, 4);
    EXPECT_EQ(std::tie(v.Spalte[0], v.Spalte[5], v.Zeilenzaehler[0]), std::tuple(3, 8, 7));
    EXPECT_EQ(std::tie(v.Zelle[0][0], v.Zelle[5][5]), std::tuple("r5c3", "r10c8"));

    // Positions beyond the ranges are held inside them.
    v = vorschau_fuellen(f, q.zeilen, 9, -3);
    EXPECT_EQ(std::tie(v.HScroll1, v.VScroll1), std::tuple(3, 0));
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
    EXPECT_EQ(std::tie(v.Zelle[1][1], v.Zelle[2][0], v.Zelle[2][1]),
              std::tuple("r4c2", "xxxxxxxxxx", ""));
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
    for (const auto& [kopf, erste] : {std::pair{"2.5", 3}, {"3.5", 5}}) {
        f.Kopfzeilen = kopf;
        EXPECT_EQ(vorschau_fuellen(f, q.zeilen, 1, 0).Zeilenzaehler[0], erste) << kopf;
    }
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
    EXPECT_EQ(std::tie(v.Spaltenzahl, f.Spaltenzahl), std::tuple(5, 5));
    EXPECT_EQ(std::tie(v.Zelle[0][2], v.Zelle[1][2], v.Zelle[1][4], v.Zelle[0][5]),
              std::tuple("  -2.5", " -12.5", " 1.5", ""));

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
    EXPECT_EQ(std::tie(f.Spaltenbelegung[5], f.Spaltenbelegung[3]),
              std::tuple(SPALTE_DIFFUS, SPALTE_UNBENUTZT));
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
    EXPECT_EQ(std::tie(f.Spaltenbelegung[1], f.Spaltenbelegung[2]),
              std::tuple(SPALTE_UNBENUTZT, SPALTE_UNBENUTZT));
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
    EXPECT_EQ(std::tie(f.Kopfzeilen, f.Standortname), std::tuple("4", "Bern"));
    const Vorschau v = vorschau_fuellen(f, q.zeilen, 1, 0);
    EXPECT_EQ(std::tie(v.Zeilenzaehler[0], v.Spaltenzahl, v.Zelle[0][4]), std::tuple(5, 7, "-1.2"));
    EXPECT_EQ(std::tie(v.Datenreihe[0], v.Datenreihe[3], v.Datenreihe[4], v.Datenreihe[5]),
              std::tuple(SPALTE_UNBENUTZT, SPALTE_GESAMT, SPALTE_TEMPERATUR, SPALTE_DIFFUS));
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
    for (int t : {int{'0'}, int{'9'}, int{'.'}, int{','}, int{'-'}, int{'a'}, 8, 13}) {
        EXPECT_EQ(ziffertaste(t), t >= '0' && t <= '9') << t;
    }
}
