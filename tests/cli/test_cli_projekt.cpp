// SPDX-License-Identifier: GPL-3.0-or-later
// velmaris-cli calc PROJECT.vel and save: the desktop's open and save without a display.
#include "tests/support/Testprojekt.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <sys/wait.h>

namespace {

struct Lauf {
    int status;
    std::string aus, fehler;
};

// Runs the command line tool in `ordner` with the synthetic station as its climate.
Lauf cli(const TempOrdner& ordner, const std::string& argumente) {
    const std::string befehl = "cd '" + ordner.pfad().string() + "' && " + VELMARIS_CLI + " " +
                               argumente + " --klima '" + ordner.pfad().string() +
                               "' >aus.txt 2>fehler.txt";
    const int roh = std::system(befehl.c_str());
    return {WIFEXITED(roh) ? WEXITSTATUS(roh) : -1, datei_lesen(ordner.pfad() / "aus.txt"),
            datei_lesen(ordner.pfad() / "fehler.txt")};
}

// The file of the new project with some lines replaced (line number, text).
std::string zeilen_ersetzen(std::string text, const std::vector<std::pair<int, std::string>>& neu) {
    std::vector<std::string> z;
    for (std::size_t a = 0, e = text.find("\r\n"); e != std::string::npos;
         a = e + 2, e = text.find("\r\n", a)) {
        z.push_back(text.substr(a, e - a));
    }
    for (const auto& [zeile, wert] : neu) {
        z[static_cast<std::size_t>(zeile - 1)] = wert;
    }
    text.clear();
    for (const std::string& s : z) {
        text += s + "\r\n";
    }
    return text;
}

class CliProjekt : public ::testing::Test {
protected:
    void SetUp() override {
        ordner.schreiben("trier.met", station_text(Stationskopf{}, synthetisches_wetter));
    }
    TempOrdner ordner;
};

} // namespace

TEST_F(CliProjekt, SavedNewProjectCalculatesAsTheNewProject) {
    ASSERT_EQ(cli(ordner, "save neu.vel").status, 0);
    const std::string datei = datei_lesen(ordner.pfad() / "neu.vel");
    EXPECT_EQ(datei.rfind("Velmaris Version 3.2\r\n 10\r\n 10\r\n 5.2\r\n", 0), 0u);
    const Lauf projekt = cli(ordner, "calc neu.vel");
    ASSERT_EQ(projekt.status, 0) << projekt.fehler;
    const Lauf neu = cli(ordner, "calc --new");
    ASSERT_EQ(neu.status, 0);
    EXPECT_EQ(projekt.aus, neu.aus);
    EXPECT_FALSE(projekt.aus.empty());
}

TEST_F(CliProjekt, WrongVersionAndReadFaults) {
    ordner.schreiben("falsch.vel", "Velmaris Version 4.0\r\n");
    Lauf l = cli(ordner, "calc falsch.vel");
    EXPECT_EQ(l.status, 3);
    EXPECT_EQ(
        l.fehler,
        "Dies ist keine gültige Velmaris-Datendatei.\n\nDaten konnten nicht geladen werden!\n");
    l = cli(ordner, "calc falsch.vel --sprache e");
    EXPECT_EQ(l.fehler, "This is not a valid Velmaris data file.\n\nData could not be read.!\n");
    EXPECT_TRUE(l.aus.empty());

    l = cli(ordner, "calc fehlt.vel");
    EXPECT_EQ(l.status, 2);
    EXPECT_EQ(l.fehler, "Dateifehler!\n");
    ordner.schreiben("kurz.vel", "Velmaris Version 3.2\r\n 10\r\n");
    EXPECT_EQ(cli(ordner, "calc kurz.vel").status, 2);

    // A value that its scroll field cannot show: 0.5 m is below the length's range.
    ASSERT_EQ(cli(ordner, "save neu.vel").status, 0);
    std::string text = datei_lesen(ordner.pfad() / "neu.vel");
    text.replace(text.find(" 10\r\n"), 5, " .5\r\n");
    ordner.schreiben("klein.vel", text);
    l = cli(ordner, "calc klein.vel");
    EXPECT_EQ(l.status, 2);
    EXPECT_EQ(l.fehler, "Dateifehler!\n");
}

TEST_F(CliProjekt, CalculationFaultWhileOpeningTellsItsCauseInTheLanguageOfTheRun) {
    ASSERT_EQ(cli(ordner, "save neu.vel").status, 0);
    // A tall, light building on a small floor: its effective heat capacity is negative.
    ordner.schreiben(
        "hoch.vel",
        zeilen_ersetzen(datei_lesen(ordner.pfad() / "neu.vel"),
                        {{2, " 2"}, {3, " 2"}, {4, " 50"}, {5, " 1"}, {57, " 2"}, {58, " 2"}}));
    const struct {
        const char* sprache;
        const char* fehler;
    } faelle[] = {
        {"d", "Dateifehler!\n\nDie wirksame Wärmekapazität wird negativ (Cwirk = -968600 J/K): "
              "das Gebäude ist für seine Grundfläche zu hoch oder zu leicht.\n"},
        {"e", "Dateifehler!\n\nThe effective heat capacity comes out negative (Cwirk = -968600 "
              "J/K): the building is too tall or too light for its floor area.\n"},
    };
    for (const auto& f : faelle) {
        const Lauf l = cli(ordner, std::string("calc hoch.vel --sprache ") + f.sprache);
        EXPECT_EQ(l.status, 2);
        EXPECT_EQ(l.fehler, f.fehler);
        EXPECT_TRUE(l.aus.empty());
    }
}

TEST_F(CliProjekt, MissingStationFallsBackToTheDefaultWithItsMessageAndStatus4) {
    ASSERT_EQ(cli(ordner, "save neu.vel").status, 0);
    const std::string neu = datei_lesen(ordner.pfad() / "neu.vel");
    ordner.schreiben("fehlt.vel", zeilen_ersetzen(neu, {{56, "gibtsnicht.met"}}));
    const Lauf gewohnt = cli(ordner, "calc neu.vel");
    ASSERT_EQ(gewohnt.status, 0);
    const struct {
        const char* sprache;
        const char* fehler;
    } faelle[] = {
        {"d", "   Klimadatensatz nicht gefunden!\nDefault-Klimadatensatz wird geladen!\n"},
        {"e", "     Climatic data not found!\nDefault climatic data will be loaded!\n"},
    };
    for (const auto& f : faelle) {
        const Lauf l = cli(ordner, std::string("calc fehlt.vel --sprache ") + f.sprache);
        EXPECT_EQ(l.status, 4);
        EXPECT_EQ(l.fehler, f.fehler);
        // The default station is the new project's own: the same results.
        EXPECT_EQ(l.aus, gewohnt.aus);
    }
}

TEST_F(CliProjekt, Version30IsWrittenAs32) {
    ASSERT_EQ(cli(ordner, "save neu.vel").status, 0);
    std::string text = datei_lesen(ordner.pfad() / "neu.vel");
    text.replace(text.find("3.2"), 3, "3.0");
    // Drop lines 68 and 69.
    for (int i = 0; i < 2; ++i) {
        text.erase(text.rfind("\r\n", text.size() - 3) + 2);
    }
    ordner.schreiben("alt.vel", text);
    ASSERT_EQ(cli(ordner, "save aus.vel --from alt.vel").status, 0);
    const std::string neu = datei_lesen(ordner.pfad() / "aus.vel");
    EXPECT_EQ(neu.rfind("Velmaris Version 3.2\r\n", 0), 0u);
    EXPECT_EQ(neu.substr(neu.size() - 11), "\r\n 0\r\n .1\r\n");
    EXPECT_EQ(std::count(neu.begin(), neu.end(), '\n'), 69);
}

TEST_F(CliProjekt, ArgumentsAreChecked) {
    EXPECT_EQ(cli(ordner, "calc").status, 1);
    EXPECT_EQ(cli(ordner, "calc a.vel --new").status, 1);
    EXPECT_EQ(cli(ordner, "calc a.vel --sprache x").status, 1);
    EXPECT_EQ(cli(ordner, "save").status, 1);
}
