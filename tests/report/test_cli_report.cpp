// SPDX-License-Identifier: GPL-3.0-or-later
// velmaris-cli report and temperaturen: the files of the generators, the exit status of wrong
// arguments, of a project that cannot be read and of a target that cannot be written.
#include "report/Temperaturverlauf.h"
#include "tests/report/Reporthilfe.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <sys/wait.h>

namespace {

struct Lauf {
    int status;
    std::string fehler;
};

class CliReport : public ::testing::Test {
protected:
    void SetUp() override {
        ordner.schreiben("trier.met", station_text(Stationskopf{}, synthetisches_wetter));
        ASSERT_EQ(cli("save neu.vel").status, 0);
    }
    Lauf cli(const std::string& argumente) {
        const std::string befehl = "cd '" + ordner.pfad().string() + "' && " + VELMARIS_CLI + " " +
                                   argumente + " --klima '" + ordner.pfad().string() +
                                   "' >aus.txt 2>fehler.txt";
        const int roh = std::system(befehl.c_str());
        return {WIFEXITED(roh) ? WEXITSTATUS(roh) : -1,
                datei_lesen((ordner.pfad() / "fehler.txt").string())};
    }
    std::string lesen(const std::string& name) {
        return datei_lesen((ordner.pfad() / name).string());
    }
    TempOrdner ordner;
};

} // namespace

TEST_F(CliReport, WritesTheReportOfTheDesktopsGenerators) {
    ASSERT_EQ(cli("report neu.vel alle.rtf").status, 0);
    ASSERT_EQ(cli("report neu.vel s3.rtf --seite 3 --sprache e").status, 0);
    Reportprogramm d("d");
    const std::string pfad = (d.ordner.pfad() / "x.rtf").string();
    ASSERT_TRUE(report_speichern(d.report(0), pfad));
    EXPECT_EQ(lesen("alle.rtf"), datei_lesen(pfad));
    Reportprogramm e("e");
    ASSERT_TRUE(report_speichern(e.report(3), pfad));
    EXPECT_EQ(lesen("s3.rtf"), datei_lesen(pfad));
}

TEST_F(CliReport, WritesTheYearFile) {
    ASSERT_EQ(cli("temperaturen neu.vel t.txt --sprache e").status, 0);
    Reportprogramm e("e");
    const std::string pfad = (e.ordner.pfad() / "t.txt").string();
    ASSERT_TRUE(temperaturverlauf_exportieren(e.programm->p, '.', pfad));
    EXPECT_EQ(lesen("t.txt"), datei_lesen(pfad));
    ASSERT_EQ(cli("temperaturen neu.vel td.txt").status, 0);
    EXPECT_NE(lesen("td.txt").find("Jahres-Temperaturverl\xe4ufe"), std::string::npos);
}

TEST_F(CliReport, WrongArgumentsUnreadableProjectUnwritableTarget) {
    EXPECT_EQ(cli("report neu.vel").status, 1);
    EXPECT_EQ(cli("report neu.vel a.rtf --seite 8").status, 1);
    EXPECT_EQ(cli("report neu.vel a.rtf --sprache x").status, 1);
    EXPECT_EQ(cli("temperaturen neu.vel a.txt b.txt").status, 1);
    EXPECT_EQ(cli("temperaturen").status, 1);

    ordner.schreiben("kaputt.vel", "Velmaris Version 3.2\r\n 10\r\n");
    Lauf l = cli("report kaputt.vel a.rtf");
    EXPECT_EQ(l.status, 2);
    EXPECT_FALSE(l.fehler.empty());
    EXPECT_EQ(cli("temperaturen fehlt.vel a.txt").status, 2);

    l = cli("report neu.vel fehlt/a.rtf");
    EXPECT_EQ(l.status, 2);
    EXPECT_NE(l.fehler.find("cannot write \"fehlt/a.rtf\""), std::string::npos) << l.fehler;
    l = cli("temperaturen neu.vel fehlt/a.txt");
    EXPECT_EQ(l.status, 2);
    EXPECT_NE(l.fehler.find("cannot write"), std::string::npos) << l.fehler;
}
