// SPDX-License-Identifier: GPL-3.0-or-later
// The delivered station files of klima/: each one reads, has a plausible climate, says where its
// data come from, and is exactly what the writer makes of its own values.
#include "climate/import/stationsschreiber.h"
#include "climate/klimadatei.h"
#include "climate/numerisch.h"
#include "tests/import/Importhilfe.h"
#include "tests/support/Testprojekt.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

const fs::path KLIMA = fs::path(VELMARIS_SOURCE_DIR) / "klima";

std::vector<std::string> stationsdateien() {
    std::vector<std::string> namen;
    for (const auto& eintrag : fs::directory_iterator(KLIMA)) {
        if (eintrag.path().extension() == ".met") {
            namen.push_back(eintrag.path().filename().string());
        }
    }
    std::sort(namen.begin(), namen.end());
    return namen;
}

} // namespace

TEST(Stationsdateien, ReadWithAPlausibleClimate) {
    for (const std::string& name : stationsdateien()) {
        SCOPED_TRACE(name);
        auto p = leeres_projekt();
        p->KlimaOrdner = KLIMA.string();
        p->Klimadatei = name;
        ASSERT_NO_THROW(klimadatei_lesen(*p));
        double jahr = 0, diffus = 0;
        for (int m = 1; m <= 12; ++m) {
            EXPECT_GT(p->Monat[m].Tmittel, -30);
            EXPECT_LT(p->Monat[m].Tmittel, 40);
            EXPECT_GE(p->Monat[m].Strahlung_S, 0);
            EXPECT_GE(p->Monat[m].Strahlung_N, 0);
            EXPECT_LT(p->Monat[m].Strahlung_S, 1000) << "MJ/m² in a month";
            jahr += p->Monat[m].Tmittel;
            for (int d = 1; d <= p->Monat[m].Tage; ++d) {
                for (int h = 1; h <= 24; ++h) {
                    diffus += p->Wetter(m, d, h).Diffus;
                }
            }
        }
        EXPECT_GT(jahr / 12, -15);
        EXPECT_LT(jahr / 12, 30);
        // Diffuse radiation of a year, kWh/m²: every climate has a few hundred.
        EXPECT_GT(diffus / 1000, 250);
        EXPECT_LT(diffus / 1000, 1200);
        // Facades facing the sun get more than the north facade over the year.
        int sued = 0, nord = 0;
        for (int m = 1; m <= 12; ++m) {
            sued += p->Monat[m].Strahlung_S;
            nord += p->Monat[m].Strahlung_N;
        }
        const bool suedhalbkugel = p->Breite < 0;
        EXPECT_GT(suedhalbkugel ? nord : sued, suedhalbkugel ? sued : nord);
    }
}

TEST(Stationsdateien, WrittenExactlyAsTheWriterWritesTheirValues) {
    for (const std::string& name : stationsdateien()) {
        SCOPED_TRACE(name);
        const std::string text = datei_lesen(KLIMA / name);
        const std::vector<std::string> z = crlf_zeilen(text);
        ASSERT_EQ(z.size(), 8766u);
        // Line 1 "place (country)" without a comma, so that the station lists take it whole.
        EXPECT_EQ(z[0].find(','), std::string::npos);
        ASSERT_GE(z[0].size(), 4u);
        EXPECT_EQ(z[0].back(), ')');
        const std::size_t klammer = z[0].rfind(" (");
        ASSERT_NE(klammer, std::string::npos);

        Klimaimport f;
        f.Standortname = z[0].substr(0, klammer);
        f.Land = z[0].substr(klammer + 2, z[0].size() - klammer - 3);
        const double breite = numerisch_lesen(spalten(z[1], 15, 24));
        const double laenge = numerisch_lesen(spalten(z[2], 15, 24));
        const double zone = numerisch_lesen(spalten(z[3], 15, 24));
        f.Breitengrad = std::to_string(std::fabs(breite));
        f.Breitezusatz = breite < 0 ? 1 : 0;
        f.Laengengrad = std::to_string(std::fabs(laenge));
        f.Laengezusatz = laenge > 0 ? 1 : 0;
        f.Zeitzone = std::to_string(std::fabs(zone));
        f.GMT = zone > 0 ? 1 : 0;
        const std::vector<std::string> kopf = crlf_zeilen(stationskopf(f));
        EXPECT_EQ(kopf[0], z[0]);
        for (std::size_t i = 1; i <= 5; ++i) {
            EXPECT_EQ(kopf[i], z[i]) << "line " << i + 1;
        }
        EXPECT_EQ(z[5], "   dy   Ta G_Gh G_Dh");

        // Every row from its own values, the diffuse field read to its end.
        for (int i = 0; i < 8760; ++i) {
            const std::string& zeile = z[static_cast<std::size_t>(6 + i)];
            const Quellstunde s{
                numerisch_lesen(spalten(zeile, 6, 10)), numerisch_lesen(spalten(zeile, 11, 15)),
                numerisch_lesen(zeile.substr(std::min<std::size_t>(15, zeile.size())))};
            ASSERT_EQ(stationszeile(i, s, false), zeile + "\r\n") << "row " << i;
        }
    }
}

TEST(Stationsdateien, RegionFilesSayWhoseDataTheyCarry) {
    const std::string passau = crlf_zeilen(datei_lesen(KLIMA / "passau.met"))[0];
    EXPECT_EQ(passau.find("Braunlage"), 0u);
    EXPECT_NE(passau.find("Klimaregion 11"), std::string::npos);
    // münchen.met and konstanz.met carry the same data; line 1 names the region each stands for,
    // so that the station lists show two different names.
    const std::vector<std::string> muenchen = crlf_zeilen(datei_lesen(KLIMA / "m\xC3\xBC"
                                                                              "nchen.met"));
    const std::vector<std::string> konstanz = crlf_zeilen(datei_lesen(KLIMA / "konstanz.met"));
    ASSERT_EQ(muenchen.size(), konstanz.size());
    EXPECT_TRUE(std::equal(muenchen.begin() + 1, muenchen.end(), konstanz.begin() + 1));
    // Station files are Windows-1252: the label of line 3 has the byte 0xE4.
    EXPECT_EQ(konstanz[2].substr(0, 14), "L\xE4ngengrad:   ");
    EXPECT_EQ(muenchen[0], "M\xFCnchen (TRY 2015 f\xFCr Klimaregion 9) (Deutschland)");
    EXPECT_EQ(konstanz[0], "M\xFCnchen (TRY 2015 f\xFCr Klimaregion 12) (Deutschland)");
}
