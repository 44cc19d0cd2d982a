// SPDX-License-Identifier: GPL-3.0-or-later
// Every delivered station file is what "velmaris-cli import" makes of its staged source, byte for
// byte, with the arguments of tools/klima_quellen.txt. Needs the staged sources beside the
// checkout (../shared/climate-sources); skipped without them.
#include "tests/import/Importhilfe.h"
#include "tests/support/Testprojekt.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace fs = std::filesystem;

namespace {

const fs::path QUELLEN = fs::path(VELMARIS_SOURCE_DIR) / ".." / "shared" / "climate-sources";

// A text in single quotes for the shell.
std::string zitiert(const std::string& text) {
    std::string aus = "'";
    for (const char c : text) {
        aus += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return aus + "'";
}

} // namespace

TEST(Konvertierung, StagedSourcesGiveTheDeliveredFiles) {
    if (!fs::is_directory(QUELLEN)) {
        GTEST_SKIP() << "no staged climate sources at " << QUELLEN;
    }
    std::ifstream tabelle(fs::path(VELMARIS_SOURCE_DIR) / "tools" / "klima_quellen.txt");
    ASSERT_TRUE(tabelle);
    TempOrdner ordner;
    int anzahl = 0;
    std::string zeile;
    while (std::getline(tabelle, zeile)) {
        if (zeile.empty() || zeile[0] == '#') {
            continue;
        }
        std::vector<std::string> f;
        std::stringstream teile(zeile);
        for (std::string teil; std::getline(teile, teil, '|');) {
            f.push_back(teil);
        }
        ASSERT_GE(f.size(), 4u) << zeile;
        SCOPED_TRACE(f[0]);
        const std::string befehl = std::string(VELMARIS_CLI) + " import " +
                                   zitiert((QUELLEN / f[1]).string()) + " --name " + zitiert(f[0]) +
                                   " --ort " + zitiert(f[2]) + " --land " + zitiert(f[3]) +
                                   " --klima " + zitiert(ordner.pfad().string()) + " " +
                                   (f.size() > 4 ? f[4] : "") + " >/dev/null";
        ASSERT_EQ(std::system(befehl.c_str()), 0) << befehl;
        const std::string neu = datei_lesen(ordner.pfad() / (f[0] + ".met"));
        const std::string geliefert =
            datei_lesen(fs::path(VELMARIS_SOURCE_DIR) / "klima" / (f[0] + ".met"));
        ASSERT_FALSE(neu.empty());
        EXPECT_TRUE(neu == geliefert) << "klima/" << f[0] << ".met differs from its conversion";
        ++anzahl;
    }
    EXPECT_EQ(anzahl, 62);
}
