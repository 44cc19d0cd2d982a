// SPDX-License-Identifier: GPL-3.0-or-later
// velmaris-cli calc --new, run as a user would run it.
#include "tests/support/Befehlszeile.h"
#include "tests/support/Testprojekt.h"

#include <gtest/gtest.h>

namespace {

using Lauf = Befehlslauf;

// Runs velmaris-cli with the arguments (which may redirect standard error).
Lauf ausfuehren(const std::string& argumente) {
    return befehl_ausfuehren(std::string(VELMARIS_CLI) + " " + argumente);
}

std::size_t zaehlen(const std::string& text, const std::string& teil) {
    std::size_t anzahl = 0;
    for (std::size_t i = text.find(teil); i != std::string::npos; i = text.find(teil, i + 1)) {
        ++anzahl;
    }
    return anzahl;
}

} // namespace

TEST(CliCalc, NewProjectPrintsOneJsonObject) {
    TempOrdner ordner;
    ordner.schreiben("trier.met", station_text({}, synthetisches_wetter));
    const Lauf lauf = ausfuehren("calc --new --klima " + ordner.pfad().string());
    ASSERT_EQ(lauf.status, 0) << lauf.aus;
    EXPECT_EQ(lauf.aus.rfind("{\"schema\":\"velmaris-calc/1\",\"input\":{\"l\":10,", 0), 0u);
    EXPECT_NE(lauf.aus.find("\"Klimadatei\":\"trier.met\""), std::string::npos);
    EXPECT_NE(lauf.aus.find("\"f_nutz\":160,"), std::string::npos);
    EXPECT_NE(lauf.aus.find("\"Dachfirst\":1,"), std::string::npos);
    EXPECT_NE(lauf.aus.find("\"kfn\":1.42,"), std::string::npos);
    EXPECT_NE(lauf.aus.find("\"Traegername\":\"Heizöl\""), std::string::npos);
    EXPECT_NE(lauf.aus.find("\"Tage\":[31,28,31,30,31,30,31,31,30,31,30,31]"), std::string::npos);
    EXPECT_EQ(lauf.aus.find("\"stunden\""), std::string::npos);
}

TEST(CliCalc, HourlyTablesHold8760Values) {
    TempOrdner ordner;
    ordner.schreiben("trier.met", station_text({}, synthetisches_wetter));
    const Lauf lauf = ausfuehren("calc --new --hourly --klima " + ordner.pfad().string());
    ASSERT_EQ(lauf.status, 0);
    const std::size_t anfang = lauf.aus.find("\"T_frei\":[");
    ASSERT_NE(anfang, std::string::npos);
    const std::size_t ende = lauf.aus.find(']', anfang);
    EXPECT_EQ(zaehlen(lauf.aus.substr(anfang, ende - anfang), ","), 8759u);
    for (const char* name : {"T_regel", "Q_heiz", "Q_kuehl", "Ta", "Direkt", "Diffus"}) {
        EXPECT_NE(lauf.aus.find(std::string("\"") + name + "\":["), std::string::npos) << name;
    }
}

TEST(CliCalc, MissingOrShortStationEndsWithStatusTwoAndAMessage) {
    TempOrdner ordner;
    Lauf lauf = ausfuehren("calc --new --klima " + ordner.pfad().string() + " 2>&1");
    EXPECT_EQ(lauf.status, 2);
    EXPECT_NE(lauf.aus.find("trier.met"), std::string::npos) << lauf.aus;

    ordner.schreiben("trier.met", "Kurz (Land)\r\nBreitengrad:  50\r\n");
    lauf = ausfuehren("calc --new --klima " + ordner.pfad().string() + " 2>&1");
    EXPECT_EQ(lauf.status, 2);
    EXPECT_NE(lauf.aus.find("line 3"), std::string::npos) << lauf.aus;
}

TEST(CliCalc, WrongArgumentsAreRefused) {
    EXPECT_EQ(ausfuehren("calc 2>/dev/null").status, 1);
    EXPECT_EQ(ausfuehren("calc --new --bogus 2>/dev/null").status, 1);
    EXPECT_EQ(ausfuehren("frobnicate 2>/dev/null").status, 1);
}
