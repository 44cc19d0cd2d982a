// SPDX-License-Identifier: GPL-3.0-or-later
// Number forms of the import: rounding, number-to-text, and the typed-number test.
#include "climate/import/zahltext.h"

#include <cmath>
#include <gtest/gtest.h>

TEST(Zahltext, HalvesRoundToEven) {
    EXPECT_EQ(runden_gerade(2.5, 0), 2);
    EXPECT_EQ(runden_gerade(3.5, 0), 4);
    EXPECT_EQ(runden_gerade(-2.5, 0), -2);
    EXPECT_EQ(runden_gerade(0.25, 1), 0.2);
    EXPECT_EQ(runden_gerade(0.75, 1), 0.8);
    EXPECT_EQ(runden_gerade(2.51, 0), 3);
    EXPECT_EQ(runden_gerade(-0.04, 1), 0);
    EXPECT_FALSE(std::signbit(runden_gerade(-0.04, 1))) << "a negative zero would print as -0";
}

TEST(Zahltext, StandardFormHasBlankAndNoLeadingZero) {
    EXPECT_EQ(zahl_als_text(5), " 5");
    EXPECT_EQ(zahl_als_text(0), " 0");
    EXPECT_EQ(zahl_als_text(0.5), " .5");
    EXPECT_EQ(zahl_als_text(-0.4), "-.4");
    EXPECT_EQ(zahl_als_text(123.4), " 123.4");
    EXPECT_EQ(zahl_als_text(-19.4), "-19.4");
    EXPECT_EQ(zahl_als_text(0.00001), " 1E-05");
    EXPECT_EQ(zahl_als_text(49.4414), " 49.4414");
}

TEST(Zahltext, RealToStringPutsTheZeroBack) {
    EXPECT_EQ(RealToString(0.5), " 0.5");
    EXPECT_EQ(RealToString(-0.4), "-0.4");
    EXPECT_EQ(RealToString(-7), "-7");
    EXPECT_EQ(RealToString(12.25), " 12.25");
}

TEST(Zahltext, StringToRealAcceptsTypedNumbers) {
    struct Fall {
        const char* text;
        int dezimal;
        bool ok;
        double wert;
    };
    const Fall faelle[] = {
        {"12.5", 0, true, 12.5}, {"  -3", 0, true, -3},  {"\t7 ", 0, true, 7},
        {"+4.", 0, true, 4},     {".5", 0, true, 0.5},   {"1e3", 0, true, 1000},
        {"1,5", 1, true, 1.5},   {"1,5", 0, false, 0},   {"12abc", 0, false, 0},
        {"", 0, false, 0},       {"-", 0, false, 0},     {"1.2.3", 0, false, 0},
        {"7\t", 0, false, 0},    {"1e999", 0, false, 0}, {"1e", 0, false, 0},
    };
    for (const Fall& f : faelle) {
        double wert = -99;
        bool ok = !f.ok;
        StringToReal(f.text, wert, ok, f.dezimal);
        EXPECT_EQ(ok, f.ok) << '"' << f.text << '"';
        EXPECT_EQ(wert, f.wert) << '"' << f.text << '"';
    }
}

TEST(Zahltext, StrictSourceNumbers) {
    double wert = 0;
    EXPECT_TRUE(zahl_streng(" -3.4000000000000004 ", wert));
    EXPECT_DOUBLE_EQ(wert, -3.4);
    EXPECT_FALSE(zahl_streng("3,4", wert));
    EXPECT_FALSE(zahl_streng("nan", wert));
    EXPECT_FALSE(zahl_streng("", wert));
}
