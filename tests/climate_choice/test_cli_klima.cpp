// SPDX-License-Identifier: GPL-3.0-or-later
// velmaris-cli klima, run as a user would run it, on a temporary klima folder.
#include "tests/climate_choice/Klimahilfe.h"
#include "tests/support/Befehlszeile.h"

#include <gtest/gtest.h>

namespace {

using Lauf = Befehlslauf;

// Runs velmaris-cli with the arguments; standard error is dropped.
Lauf ausfuehren(const std::string& argumente) {
    return befehl_ausfuehren(std::string(VELMARIS_CLI) + " " + argumente + " 2>/dev/null");
}

} // namespace

TEST(CliKlima, PostleitzahlStationenUndKartenregion) {
    TempOrdner o;
    o.schreiben("plz.txt", "791 7\r\n430 0\r\n");
    station_schreiben(o, "freiburg.met", "Freiburg (Deutschland)", 48.0, -7.85);
    station_schreiben(o, "tokio.met", "Tokio (Japan)", 35.7, -139.7);
    const std::string ordner = " --klima " + o.pfad().string();

    Lauf l = ausfuehren("klima plz 79100" + ordner);
    EXPECT_EQ(l.status, 0);
    EXPECT_EQ(l.aus, "7\tfreiburg.met\t  7: Südlicher Oberrheingraben\n");
    EXPECT_EQ(ausfuehren("klima plz 43000" + ordner).status, 3);
    EXPECT_EQ(ausfuehren("klima plz 7910" + ordner).status, 1);
    EXPECT_EQ(ausfuehren("klima plz 12345" + ordner).status, 2) << "prefix missing from the table";

    l = ausfuehren("klima stationen" + ordner);
    EXPECT_EQ(l.status, 0);
    EXPECT_NE(l.aus.find("freiburg.met\tFreiburg (Deutschland)\t"), std::string::npos) << l.aus;
    EXPECT_NE(l.aus.find("tokio.met\tTokio (Japan)\t 559.3856\t 63.10333\n"), std::string::npos)
        << "far stations have no Europe position: " << l.aus;

    l = ausfuehren("klima region 140 90 --programm " VELMARIS_SOURCE_DIR);
    EXPECT_EQ(l.aus, "2\t  2: Nord- / Westdeutsches Tiefland\n");
    EXPECT_EQ(ausfuehren("klima region 0 0 --programm " VELMARIS_SOURCE_DIR).aus, "0\n");
    EXPECT_EQ(ausfuehren("klima").status, 1);
}
