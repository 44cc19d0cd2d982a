// SPDX-License-Identifier: GPL-3.0-or-later
// The controls' firing rules and the number patterns of the displays.
#include "planes/CheckField.h"
#include "planes/ListField.h"
#include "planes/OptionGroup.h"
#include "planes/ScrollField.h"
#include "project/Laufzeitfehler.h"
#include "project/Zahlformat.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(ScrollField, FiresOnlyWhenThePositionDiffers) {
    ScrollField sb(0, 100, 5, 20);
    int feuer = 0;
    sb.Change = [&] { ++feuer; };
    sb.setze(40);
    sb.setze(40);
    EXPECT_EQ(feuer, 1);
    // Rounding half to even: 40.5 stays at 40, 41.5 goes to 42.
    sb.setze(40.5);
    EXPECT_EQ(feuer, 1);
    sb.setze(41.5);
    EXPECT_EQ(sb.Value(), 42);
    EXPECT_EQ(feuer, 2);
}

TEST(ScrollField, OutOfRangeIsAnInvalidValueAndChangesNothing) {
    ScrollField sb(1, 150, 10, 20);
    sb.setze(20);
    int feuer = 0;
    sb.Change = [&] { ++feuer; };
    try {
        sb.setze(0);
        FAIL();
    } catch (const Laufzeitfehler& f) {
        EXPECT_EQ(f.nummer(), Laufzeitfehler::UngueltigerWert);
    }
    EXPECT_THROW(sb.setze(1e9), Laufzeitfehler);
    EXPECT_THROW(sb.setze(std::nan("")), Laufzeitfehler);
    EXPECT_EQ(sb.Value(), 20);
    EXPECT_EQ(feuer, 0);
}

TEST(ScrollField, StepsStopAtTheEndsAndNegativeStepsRunBackwards) {
    ScrollField hd(-50, 0, 2, -10);
    hd.setze(-20);
    hd.seite(+1); // a click towards the maximum moves against it
    EXPECT_EQ(hd.Value(), -30);
    hd.pfeil(+1);
    EXPECT_EQ(hd.Value(), -28);
    ScrollField l(20, 500, 10, 20);
    l.setze(495);
    l.pfeil(+1);
    EXPECT_EQ(l.Value(), 500);
}

TEST(ListCheckOption, FiringRules) {
    ListField liste;
    liste.Eintraege = {"a", "b"};
    int klick = 0;
    liste.Click = [&] { ++klick; };
    liste.setze_index(1);
    liste.setze_index(1); // the same row fires again
    EXPECT_EQ(klick, 2);
    EXPECT_THROW(liste.setze_index(2), Laufzeitfehler);
    EXPECT_EQ(liste.Text(), "b");

    CheckField check;
    int geklickt = 0;
    check.Click = [&] { ++geklickt; };
    check.setze(0);
    EXPECT_EQ(geklickt, 0);
    check.setze(1);
    check.setze(1);
    EXPECT_EQ(geklickt, 1);
    EXPECT_THROW(check.setze(2), Laufzeitfehler);

    OptionGroup opt(1, 3);
    std::vector<int> indizes;
    opt.Click = [&](int i) { indizes.push_back(i); };
    opt.setzen(2);
    opt.setzen(2); // already set: nothing
    opt.setzen(3);
    EXPECT_EQ(indizes, (std::vector<int>{2, 3}));
    EXPECT_FALSE(opt.Value(2));
    opt.loeschen(3);
    EXPECT_EQ(opt.gesetzt(), -1);
    EXPECT_EQ(indizes.size(), 2u);
}

TEST(Zahlformat, Patterns) {
    EXPECT_EQ(format_muster(5.2f, "#0.0", '.'), "5.2");
    EXPECT_EQ(format_muster(0.04, "#0.0", '.'), "0.0");
    EXPECT_EQ(format_muster(123.45, "#0.0", ','), "123,5");
    EXPECT_EQ(format_muster(0.58f, "0.00", ','), "0,58");
    EXPECT_EQ(format_muster(2.854, "#0.0", '.'), "2.9");
    EXPECT_EQ(format_muster(2.85f, "#0.0", '.'), "2.9"); // the decimal 2.85, half away from zero
    EXPECT_EQ(format_muster(0.25, "0.0", '.'), "0.3");
    EXPECT_EQ(format_muster(-0.25, "0.0", '.'), "-0.3");
    EXPECT_EQ(format_muster(-0.04, "0.0", '.'), "0.0");
    EXPECT_EQ(format_muster(45.0, "##0", '.'), "45");
    EXPECT_EQ(format_muster(0.0, "##0", '.'), "0");
    EXPECT_EQ(format_muster(99.96, "#0.0", '.'), "100.0");
    EXPECT_EQ(format_muster(0.2f * 100, "##0", '.'), "20");
    EXPECT_EQ(format_muster(1234.5, "0", '.'), "1235");
    EXPECT_EQ(format_muster(0.005, "0.00", '.'), "0.01");
}
