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
