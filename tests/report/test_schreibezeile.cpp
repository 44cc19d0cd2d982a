// SPDX-License-Identifier: GPL-3.0-or-later
// schreibeZeile: wrapping at hyphens and blanks, healing of split words, "sowie" and "und", and
// an over-long word; with a fake measurer of ten units per byte and with the report font.
#include "report/Textmass.h"
#include "report/schreibeZeile.h"

#include <gtest/gtest.h>

namespace {

const Textmass ZEHN_JE_ZEICHEN = [](const std::string& t) {
    return 10.0 * static_cast<double>(t.size());
};

std::vector<std::string> wrap(const std::string& text, double breite) {
    return schreibeZeile(text, breite, ZEHN_JE_ZEICHEN);
}

using Liste = std::vector<std::string>;

} // namespace

TEST(SchreibeZeile, ShortTextIsOneItemAndFullWidthIsNotNarrower) {
    EXPECT_EQ(wrap("kurz", 100), Liste{"kurz"});
    EXPECT_EQ(wrap("abcd efgh", 100), Liste{"abcd efgh"});
    // Exactly as wide as the width is not narrower: cut, and not joined again.
    EXPECT_EQ(wrap("abcd efghi", 100), (Liste{"abcd ", "efghi"}));
}

TEST(SchreibeZeile, CutsAfterBlanksAndHyphensAndJoinsWhatFits) {
    EXPECT_EQ(wrap("eins zwei drei vier", 110), (Liste{"eins zwei ", "drei vier"}));
    EXPECT_EQ(wrap("eins zwei drei vier", 100), (Liste{"eins ", "zwei ", "drei vier"}));
    EXPECT_EQ(wrap("Nord-Sued-Ost-West", 110), (Liste{"Nord-Sued-", "Ost-West"}));
}

TEST(SchreibeZeile, HealsAWordSplitAtHyphenAndBlank) {
    EXPECT_EQ(wrap("Heiz- waerme Kuehlung", 150), (Liste{"Heizwaerme ", "Kuehlung"}));
    EXPECT_EQ(wrap("Wa- me xxxxxxxxxx", 100), (Liste{"Wame ", "xxxxxxxxxx"}));
    // Halves that do not meet on one line keep their hyphen.
    EXPECT_EQ(wrap("Auslegungs- proportionalbereich", 150),
              (Liste{"Auslegungs- ", "proportionalbereich"}));
}

TEST(SchreibeZeile, SowieAndUndKeepTheHyphen) {
    EXPECT_EQ(wrap("Heiz- sowie Kuehlung", 150), (Liste{"Heiz- sowie ", "Kuehlung"}));
    EXPECT_EQ(wrap("Nord- und Sued xxxxxxxx", 120), (Liste{"Nord- und ", "Sued ", "xxxxxxxx"}));
    // Only the beginning of the next piece counts.
    EXPECT_EQ(wrap("Heiz- Pundit xxxxxxxxx", 150), (Liste{"HeizPundit ", "xxxxxxxxx"}));
}

TEST(SchreibeZeile, OverLongWordStaysWholeOnItsOwnLine) {
    const Liste l = wrap("ab Donaudampfschifffahrt cd", 100);
    EXPECT_EQ(l, (Liste{"ab ", "Donaudampfschifffahrt ", "cd"}));
    EXPECT_GT(ZEHN_JE_ZEICHEN(l[1]), 100);
    EXPECT_EQ(wrap("Donaudampfschifffahrt", 100), Liste{"Donaudampfschifffahrt"});
}

TEST(SchreibeZeile, ReportFontWrapsTheHeatBridgeTextUnderTheWidth) {
    EXPECT_NEAR(times_breite("n"), 1024.0 / 2048 * 10 * 96 / 72, 1e-9);
    EXPECT_NEAR(times_breite("ä"), times_breite("a"), 1e-9);
    const std::string text = "U-Werte aller Umfassungsflächen um 0,10 W/(m² K) erhöhen";
    const Liste l =
        schreibeZeile(text, REPORT_BREITE, [](const std::string& t) { return times_breite(t); });
    ASSERT_GE(l.size(), 2u);
    std::string ganz;
    for (const std::string& z : l) {
        EXPECT_LT(times_breite(z), REPORT_BREITE) << z;
        ganz += z;
    }
    EXPECT_EQ(ganz, text);
}
