// SPDX-License-Identifier: GPL-3.0-or-later
// velmaris-cli drucken: the printed pages of a project file as a PDF, and its exit statuses.
#include "tests/print/Druckhilfe.h"
#include "tests/support/Befehlszeile.h"
#include "tests/support/Testprojekt.h"

#include <gtest/gtest.h>

namespace {

// A project file of the new project on the synthetic station of its own klima folder.
struct Druckordner {
    TempOrdner ordner;
    std::string klima;
    std::string projekt;
    Druckordner() {
        std::filesystem::create_directory(ordner.pfad() / "klima");
        klima = (ordner.pfad() / "klima").string();
        TempOrdner station;
        neues_testprojekt(station);
        std::filesystem::copy_file(station.pfad() / "trier.met", ordner.pfad() / "klima/trier.met");
        projekt = (ordner.pfad() / "haus.vel").string();
        const Befehlslauf l = befehl_ausfuehren(std::string(VELMARIS_CLI) + " save '" + projekt +
                                                "' --klima '" + klima + "'");
        EXPECT_EQ(l.status, 0);
    }
    Befehlslauf drucken(const std::string& weiter) const {
        return befehl_ausfuehren(std::string(VELMARIS_CLI) + " drucken '" + projekt + "' " +
                                 weiter + " --klima '" + klima + "' 2>&1");
    }
};

} // namespace

TEST(CliDrucken, AllOptionsWriteEightPagesAndASelectionItsOwn) {
    Druckordner o;
    const auto alle = o.ordner.pfad() / "alle.pdf";
    Befehlslauf l = o.drucken("'" + alle.string() + "'");
    EXPECT_EQ(l.status, 0) << l.aus;
    EXPECT_EQ(pdf_seiten(alle), 8);

    const auto blatt = o.ordner.pfad() / "blatt.pdf";
    l = o.drucken("'" + blatt.string() + "' --seiten 1");
    EXPECT_EQ(l.status, 0) << l.aus;
    EXPECT_EQ(pdf_seiten(blatt), 2);
}

TEST(CliDrucken, WrongArgumentsUnreadableProjectsAndUnwritableTargets) {
    Druckordner o;
    const std::string ziel = "'" + (o.ordner.pfad() / "x.pdf").string() + "'";
    // The refusals themselves are the argument reader's; here only that they end the command.
    EXPECT_EQ(o.drucken(ziel + " --seiten 8").status, 1);
    EXPECT_EQ(o.drucken("").status, 1);
    EXPECT_FALSE(std::filesystem::exists(o.ordner.pfad() / "x.pdf"));

    Befehlslauf l = befehl_ausfuehren(std::string(VELMARIS_CLI) + " drucken '" +
                                      (o.ordner.pfad() / "fehlt.vel").string() + "' " + ziel +
                                      " --klima '" + o.klima + "' 2>&1");
    EXPECT_EQ(l.status, 2) << l.aus;
    EXPECT_NE(l.aus.find("cannot read the project"), std::string::npos) << l.aus;

    l = o.drucken("'" + (o.ordner.pfad() / "kein/ordner/x.pdf").string() + "'");
    EXPECT_EQ(l.status, 2) << l.aus;
    EXPECT_NE(l.aus.find("Cannot write"), std::string::npos) << l.aus;
}

TEST(CliDrucken, FullDiskKeepsTheFormerFileAndASaveGoesThroughTheLink) {
    Druckordner o;
    namespace fs = std::filesystem;
    fs::create_directory(o.ordner.pfad() / "echt");
    const fs::path echt = o.ordner.pfad() / "echt/bericht.pdf";
    o.ordner.schreiben("echt/bericht.pdf", "alt");
    const fs::path link = o.ordner.pfad() / "bericht.pdf";
    fs::create_symlink(echt, link);

    // A disk that takes 8 kB: the document does not fit.
    const Befehlslauf voll = befehl_ausfuehren(
        "trap '' XFSZ; ulimit -f 16; " + std::string(VELMARIS_CLI) + " drucken '" + o.projekt +
        "' '" + link.string() + "' --seiten 1 --klima '" + o.klima + "' 2>&1");
    EXPECT_EQ(voll.status, 2) << voll.aus;
    EXPECT_NE(voll.aus.find("File too large"), std::string::npos) << voll.aus;
    EXPECT_EQ(datei_lesen(echt), "alt");

    const Befehlslauf l = o.drucken("'" + link.string() + "' --seiten 1");
    EXPECT_EQ(l.status, 0) << l.aus;
    // The file is replaced through the link, as every saved file is.
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(pdf_seiten(echt), 2);
}
