// SPDX-License-Identifier: GPL-3.0-or-later
// Line breaking with the printer's widths and the right-aligned values and texts of the tables.
#include "print/Drucktext.h"
#include "print/RecordingPrinter.h"

#include <gtest/gtest.h>

using Liste = std::vector<std::string>;

TEST(ZeilenUmbruch, BreaksAfterBlanksAndHyphensAndJoinsWhatFitsBelowTheColumn) {
    // At size 10 every character of the recording printer is 2 mm wide, at size 5 1 mm.
    const struct {
        double groesse;
        const char* text;
        double breite;
        Liste zeilen;
        const char* rest; // what the caller's text holds afterwards
    } faelle[] = {
        // 20 characters, 40 mm: below 41 mm it is not broken, not even healed at its hyphen,
        // and stays with the caller.
        {10, "Wärme- rückgewinnung", 41, {"Wärme- rückgewinnung"}, "Wärme- rückgewinnung"},
        // Exactly as wide as the column is not below it. "Gas-" and "Brennwert " join, as the
        // hyphen has no blank after it; with "Speicher" the first line would be 52 mm.
        {10, "Gas-Brennwert mit Speicher", 52, {"Gas-Brennwert mit ", "Speicher"}, ""},
        // "Wärme- " + "rückgewinnung " is 42 mm: below 45 mm the word is whole again, below
        // 42 mm the hyphen with its blank stays at the line end.
        {10, "Wärme- rückgewinnung und Lüftung", 45, {"Wärmerückgewinnung ", "und Lüftung"}, ""},
        {10,
         "Wärme- rückgewinnung und Lüftung",
         42,
         {"Wärme- ", "rückgewinnung und ", "Lüftung"},
         ""},
        // Only an entry that begins with "sowie" or "und" keeps "- " when it takes in the next
        // piece.
        {10,
         "mit Heiz- kessel xxxxxxxxxxxxxxxxxxxx",
         40,
         {"mit Heizkessel ", "xxxxxxxxxxxxxxxxxxxx"},
         ""},
        {10,
         "und Heiz- kessel xxxxxxxxxxxxxxxxxxxx",
         40,
         {"und Heiz- kessel ", "xxxxxxxxxxxxxxxxxxxx"},
         ""},
        {10,
         "sowie Heiz- kessel xxxxxxxxxxxxxxxxxxxx",
         44,
         {"sowie Heiz- kessel ", "xxxxxxxxxxxxxxxxxxxx"},
         ""},
        // A word without blank stays whole and runs past the column, on a line of its own.
        {10, "Donaudampfschifffahrtsgesellschaft", 20, {"Donaudampfschifffahrtsgesellschaft"}, ""},
        {10,
         "ab Donaudampfschifffahrtsgesellschaft an",
         20,
         {"ab ", "Donaudampfschifffahrtsgesellschaft ", "an"},
         ""},
        // The widths follow the printer's font: 14 mm stay below 15 at size 5.
        {5, "eins zwei drei", 15, {"eins zwei drei"}, "eins zwei drei"},
        {10, "eins zwei drei", 15, {"eins ", "zwei ", "drei"}, ""},
    };
    for (const auto& f : faelle) {
        RecordingPrinter d;
        d.FontSize = f.groesse;
        std::string text = f.text;
        Liste liste{"stale entry"};
        ZeilenUmbruch(d, text, f.breite, liste);
        EXPECT_EQ(liste, f.zeilen) << f.text << " at " << f.breite << " mm, size " << f.groesse;
        EXPECT_EQ(text, f.rest) << f.text << " at " << f.breite << " mm";
    }
}

TEST(DruckeWert, RightAlignedOnTheAnchorByItsPatternOnTheSameRow) {
    RecordingPrinter d;
    d.FontSize = 10;
    d.CurrentY = 77;
    DruckeWert(d, 1234.56, 100, 2, ',');
    DruckeWert(d, 1234.56, 120, 1, ',');
    DruckeWert(d, 1234.5, 140, 0, ',');
    DruckeWert(d, 0.05, 160, 1, '.');
    DruckeWert(d, -7.25, 180, 1, '.');
    const auto p = d.von_art(RecordingPrinter::Eintrag::Art::Print);
    ASSERT_EQ(p.size(), 5u);
    EXPECT_EQ(p[0].text, "1234,56");
    EXPECT_DOUBLE_EQ(p[0].x1, 100 - 7 * 2);
    EXPECT_EQ(p[1].text, "1234,6");
    EXPECT_DOUBLE_EQ(p[1].x1, 120 - 6 * 2);
    // Half away from zero.
    EXPECT_EQ(p[2].text, "1235");
    EXPECT_DOUBLE_EQ(p[2].x1, 140 - 4 * 2);
    EXPECT_EQ(p[3].text, "0.1");
    EXPECT_EQ(p[4].text, "-7.3");
    EXPECT_DOUBLE_EQ(p[4].x1, 180 - 4 * 2);
    for (const auto& e : p) {
        EXPECT_DOUBLE_EQ(e.y1, 77);
    }
    EXPECT_DOUBLE_EQ(d.CurrentY, 77);
}

TEST(DruckeText, WhatFollowsTheMarkIsRaisedInASmallerFont) {
    RecordingPrinter d;
    d.FontSize = 10;
    d.CurrentY = 50;
    DruckeText(d, "in kWh/m^2", 100);
    const auto p = d.von_art(RecordingPrinter::Eintrag::Art::Print);
    ASSERT_EQ(p.size(), 2u);
    // "in kWh/m" is 16 mm, the "2" at size 7 is 1.4 mm: together they end on the anchor.
    EXPECT_EQ(p[0].text, "in kWh/m");
    EXPECT_DOUBLE_EQ(p[0].x1, 100 - 17.4);
    EXPECT_DOUBLE_EQ(p[0].size, 10);
    EXPECT_EQ(p[1].text, "2");
    EXPECT_DOUBLE_EQ(p[1].x1, 100 - 1.4);
    EXPECT_DOUBLE_EQ(p[1].size, 7);
    EXPECT_LT(p[1].y1, 50);
    EXPECT_DOUBLE_EQ(d.FontSize, 10);
    EXPECT_DOUBLE_EQ(d.CurrentY, 50);

    d.CurrentY = 60;
    DruckeText(d, "Nord", 95);
    EXPECT_EQ(d.prints("Nord").at(0).x1, 95 - 8);
}
