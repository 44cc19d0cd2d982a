// SPDX-License-Identifier: GPL-3.0-or-later
// schreibeZeile: wrapping at hyphens and blanks, healing of split words, "sowie" and "und", and
// an over-long word; with a fake measurer of ten units per byte and with the report font.
#include "report/Textmass.h"
#include "report/schreibeZeile.h"

#include <gtest/gtest.h>

namespace {

using Liste = std::vector<std::string>;

TEST(SchreibeZeile, WrapsAtBlanksAndHyphensAndHealsWhatFits) {
    const Textmass zehn_je_zeichen = [](const std::string& t) {
        return 10.0 * static_cast<double>(t.size());
    };
    const struct {
        const char* text;
        double breite;
        Liste zeilen;
    } faelle[] = {
        {"kurz", 100, {"kurz"}},
        {"abcd efgh", 100, {"abcd efgh"}},
        // Exactly as wide as the width is not narrower: cut, and not joined again.
        {"abcd efghi", 100, {"abcd ", "efghi"}},
        {"eins zwei drei vier", 110, {"eins zwei ", "drei vier"}},
        {"eins zwei drei vier", 100, {"eins ", "zwei ", "drei vier"}},
        {"Nord-Sued-Ost-West", 110, {"Nord-Sued-", "Ost-West"}},
        {"Heiz- waerme Kuehlung", 150, {"Heizwaerme ", "Kuehlung"}},
        {"Wa- me xxxxxxxxxx", 100, {"Wame ", "xxxxxxxxxx"}},
        // Halves that do not meet on one line keep their hyphen.
        {"Auslegungs- proportionalbereich", 150, {"Auslegungs- ", "proportionalbereich"}},
        // "sowie" and "und" at the beginning of the next piece keep the hyphen, nothing else.
        {"Heiz- sowie Kuehlung", 150, {"Heiz- sowie ", "Kuehlung"}},
        {"Nord- und Sued xxxxxxxx", 120, {"Nord- und ", "Sued ", "xxxxxxxx"}},
        {"Heiz- Pundit xxxxxxxxx", 150, {"HeizPundit ", "xxxxxxxxx"}},
        // An over-long word stays whole on its own line.
        {"ab Donaudampfschifffahrt cd", 100, {"ab ", "Donaudampfschifffahrt ", "cd"}},
        {"Donaudampfschifffahrt", 100, {"Donaudampfschifffahrt"}},
    };
    for (const auto& f : faelle) {
        EXPECT_EQ(schreibeZeile(f.text, f.breite, zehn_je_zeichen), f.zeilen)
            << f.text << " at " << f.breite;
    }
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

} // namespace
