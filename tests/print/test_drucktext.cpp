// SPDX-License-Identifier: GPL-3.0-or-later
// Line breaking with the printer's widths and the right-aligned values and texts of the tables.
#include "print/Drucktext.h"
#include "print/RecordingPrinter.h"

#include <gtest/gtest.h>

namespace {

using Liste = std::vector<std::string>;

// At size 10 every character of the recording printer is 2 mm wide.
Liste umbrechen(std::string text, double breite, std::string* rest = nullptr) {
    RecordingPrinter d;
    d.FontSize = 10;
    Liste liste{"stale entry"};
    ZeilenUmbruch(d, text, breite, liste);
    if (rest != nullptr) {
        *rest = text;
    }
    return liste;
}

} // namespace

TEST(ZeilenUmbruch, ANarrowTextIsTheOneEntryAndStaysWithTheCaller) {
    std::string rest;
    // 20 characters, 40 mm: below 41 mm it is not broken, not even healed at its hyphen.
    EXPECT_EQ(umbrechen("Wärme- rückgewinnung", 41, &rest), Liste{"Wärme- rückgewinnung"});
    EXPECT_EQ(rest, "Wärme- rückgewinnung");
}

TEST(ZeilenUmbruch, AWideTextIsConsumedAndBrokenAfterBlanksAndHyphens) {
    std::string rest;
    // Exactly as wide as the column is not below it: the text is broken.
    const Liste l = umbrechen("Gas-Brennwert mit Speicher", 52, &rest);
    EXPECT_EQ(rest, "");
    // "Gas-" and "Brennwert " join, as the hyphen has no blank after it; with "Speicher" the
    // first line would be 52 mm, not below the column.
    EXPECT_EQ(l, (Liste{"Gas-Brennwert mit ", "Speicher"}));
}

TEST(ZeilenUmbruch, HyphenAndBlankAreDroppedOnlyWhenTheJoinFits) {
    // The pair "Wärme- " + "rückgewinnung " is 21 characters, 42 mm: it fits below 45 mm and the
    // word is whole again.
    EXPECT_EQ(umbrechen("Wärme- rückgewinnung und Lüftung", 45),
              (Liste{"Wärmerückgewinnung ", "und Lüftung"}));
    // Below 42 mm the join does not happen and the hyphen with its blank stays at the line end.
    EXPECT_EQ(umbrechen("Wärme- rückgewinnung und Lüftung", 42),
              (Liste{"Wärme- ", "rückgewinnung und ", "Lüftung"}));
}

TEST(ZeilenUmbruch, AnEntryBeginningWithSowieOrUndKeepsItsHyphen) {
    // The same words behind "mit", "und" and "sowie": only the entry that begins with one of the
    // two joining words keeps "- " when it takes in the next piece.
    EXPECT_EQ(umbrechen("mit Heiz- kessel xxxxxxxxxxxxxxxxxxxx", 40),
              (Liste{"mit Heizkessel ", "xxxxxxxxxxxxxxxxxxxx"}));
    EXPECT_EQ(umbrechen("und Heiz- kessel xxxxxxxxxxxxxxxxxxxx", 40),
              (Liste{"und Heiz- kessel ", "xxxxxxxxxxxxxxxxxxxx"}));
    EXPECT_EQ(umbrechen("sowie Heiz- kessel xxxxxxxxxxxxxxxxxxxx", 44),
              (Liste{"sowie Heiz- kessel ", "xxxxxxxxxxxxxxxxxxxx"}));
}

TEST(ZeilenUmbruch, AWordWithoutBlankStaysWholeAndRunsPastTheColumn) {
    std::string rest;
    EXPECT_EQ(umbrechen("Donaudampfschifffahrtsgesellschaft", 20, &rest),
              Liste{"Donaudampfschifffahrtsgesellschaft"});
    EXPECT_EQ(rest, "");
    // Between two short words it has a line of its own.
    EXPECT_EQ(umbrechen("ab Donaudampfschifffahrtsgesellschaft an", 20),
              (Liste{"ab ", "Donaudampfschifffahrtsgesellschaft ", "an"}));
}

TEST(ZeilenUmbruch, WidthsFollowThePrintersFont) {
    RecordingPrinter d;
    Liste liste;
    std::string text = "eins zwei drei";
    // At size 5 a character is 1 mm: 14 mm stay below 15.
    d.FontSize = 5;
    ZeilenUmbruch(d, text, 15, liste);
    EXPECT_EQ(liste, Liste{"eins zwei drei"});
    d.FontSize = 10;
    ZeilenUmbruch(d, text, 15, liste);
    EXPECT_EQ(liste, (Liste{"eins ", "zwei ", "drei"}));
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
