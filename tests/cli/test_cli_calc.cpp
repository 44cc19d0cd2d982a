// SPDX-License-Identifier: GPL-3.0-or-later
// velmaris-cli calc --new, run as a user would run it.
#include "tests/support/Testprojekt.h"

#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <sys/wait.h>

namespace {

struct Lauf {
    int status = -1;
    std::string aus;
};

// Runs the command line; standard error goes to `fehler_datei` when given.
Lauf ausfuehren(const std::string& argumente) {
    Lauf lauf;
    const std::string befehl = std::string(VELMARIS_CLI) + " " + argumente;
    FILE* rohr = popen(befehl.c_str(), "r");
    if (!rohr) {
        return lauf;
    }
    std::array<char, 65536> puffer;
    std::size_t n;
    while ((n = std::fread(puffer.data(), 1, puffer.size(), rohr)) > 0) {
        lauf.aus.append(puffer.data(), n);
    }
    const int roh = pclose(rohr);
    lauf.status = WIFEXITED(roh) ? WEXITSTATUS(roh) : -1;
    return lauf;
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
