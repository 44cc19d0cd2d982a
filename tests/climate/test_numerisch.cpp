// SPDX-License-Identifier: GPL-3.0-or-later
// The numeric read of the station and project files.
#include "climate/numerisch.h"

#include <gtest/gtest.h>

TEST(NumerischLesen, ReadsWhatAFiveColumnFieldHolds) {
    struct Fall {
        const char* text;
        double wert;
    };
    const Fall faelle[] = {
        {" 12.5", 12.5}, {" -3.2", -3.2}, {"  -.5", -0.5}, {"  123", 123}, {"   0", 0},
        {"", 0},         {"     ", 0},    {"abc", 0},      {"-", 0},       {"1.2.3", 1.2},
        {" 123.", 123},  {"12a45", 12},   {"+7", 7},       {" 4 2", 42},   {"\t8", 8},
        {" 5 -3", 5},    {"5. 3", 5.3},   {"- 5", -5},     {" 12 ", 12},   {". 5", 0.5},
        {"+-5", 0},      {"7 .", 7},      {"7. .", 7},     {"1 2 x3", 12},
    };
    for (const Fall& f : faelle) {
        EXPECT_DOUBLE_EQ(numerisch_lesen(f.text), f.wert) << "\"" << f.text << "\"";
    }
}

TEST(NumerischLesen, ColumnsOfAShortRowAreMissing) {
    EXPECT_EQ(spalten("    1 -2.5  100   50", 6, 10), " -2.5");
    EXPECT_EQ(spalten("    1 -2.5  100   50", 16, 20), "   50");
    EXPECT_EQ(spalten("    1 -2.5", 11, 15), "");
    EXPECT_EQ(spalten("    1 -2.5  10", 11, 15), "  10");
    // A six-character diffuse value is cut at column 20.
    EXPECT_DOUBLE_EQ(numerisch_lesen(spalten("    1  2.0  300 123.4", 16, 20)), 123);
}
