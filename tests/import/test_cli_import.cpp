// SPDX-License-Identifier: GPL-3.0-or-later
// velmaris-cli import as a user runs it: a written station, a refused source, wrong arguments.
#include "tests/import/Importhilfe.h"
#include "tests/support/Testprojekt.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <sys/wait.h>

namespace {

int ausfuehren(const std::string& argumente) {
    const std::string befehl = std::string(VELMARIS_CLI) + " " + argumente + " >/dev/null 2>&1";
    const int roh = std::system(befehl.c_str());
    return WIFEXITED(roh) ? WEXITSTATUS(roh) : -1;
}

std::string epw_quelle(int zeilen) {
    std::string text = "LOCATION,Ort,-,Land,TMY3,1,10.5,20.25,2.0,5\n";
    for (int i = 0; i < 7; ++i) {
        text += "HEAD\n";
    }
    static const int tage[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    int n = 0;
    for (int m = 1; m <= 12; ++m) {
        for (int d = 1; d <= tage[m - 1]; ++d) {
            for (int h = 1; h <= 24 && n < zeilen; ++h, ++n) {
                text += "1999," + std::to_string(m) + "," + std::to_string(d) + "," +
                        std::to_string(h) + ",60,x,25.0,0,0,0,0,0,0,500,0,100.25,0\n";
            }
        }
    }
    return text;
}

} // namespace

TEST(CliImport, WritesTheStation) {
    TempOrdner ordner;
    const auto quelle = ordner.schreiben("q.epw", epw_quelle(8760));
    EXPECT_EQ(ausfuehren("import " + quelle.string() + " --name neu --land Testland --klima " +
                         ordner.pfad().string()),
              0);
    const std::vector<std::string> z = crlf_zeilen(datei_lesen(ordner.pfad() / "neu.met"));
    ASSERT_EQ(z.size(), 8766u);
    EXPECT_EQ(z[0], "Ort (Testland)");
    EXPECT_EQ(z[1], "Breitengrad:   10.5");
    EXPECT_EQ(z[2], "L\xE4ngengrad:   -20.25");
    EXPECT_EQ(z[3], "Zeitzone:     -2");
    EXPECT_EQ(z[7], "    1 25.0  500 100.2");
    // A second run keeps the file unless told to overwrite.
    EXPECT_EQ(
        ausfuehren("import " + quelle.string() + " --name neu --klima " + ordner.pfad().string()),
        1);
    EXPECT_EQ(ausfuehren("import " + quelle.string() + " --name neu --ueberschreiben --klima " +
                         ordner.pfad().string()),
              0);
}

TEST(CliImport, RefusedSourcesAndWrongArguments) {
    TempOrdner ordner;
    const auto kurz = ordner.schreiben("kurz.epw", epw_quelle(8759));
    EXPECT_EQ(ausfuehren("import " + kurz.string() + " --name k --klima " + ordner.pfad().string()),
              2);
    EXPECT_FALSE(std::filesystem::exists(ordner.pfad() / "k.met"));
    EXPECT_EQ(ausfuehren("import " + ordner.pfad().string() + "/fehlt.epw --name k"), 2);
    EXPECT_EQ(ausfuehren("import " + kurz.string()), 1) << "no --name";
    EXPECT_EQ(ausfuehren("import " + kurz.string() + " --name k --format xyz"), 1);
    EXPECT_EQ(ausfuehren("import " + kurz.string() + " --name k --spalte 101=ta"), 1);
    // A column text without place and coordinates cannot start.
    const auto text = ordner.schreiben("spalten.txt", "1\t2\t3\n");
    EXPECT_EQ(ausfuehren("import " + text.string() + " --name s --klima " + ordner.pfad().string()),
              1);
}
