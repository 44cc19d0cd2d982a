// SPDX-License-Identifier: GPL-3.0-or-later
// The saved report opens in a common word processor: LibreOffice converts the file of all pages
// to PDF headless. Skipped where soffice is not installed.
#include "tests/report/Reporthilfe.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

bool auf_dem_pfad(const std::string& programm) {
    return std::system(("command -v " + programm + " >/dev/null 2>&1").c_str()) == 0;
}

} // namespace

TEST(LibreOffice, ConvertsTheWholeReportToPdf) {
    if (!auf_dem_pfad("soffice")) {
        GTEST_SKIP() << "soffice is not on PATH";
    }
    for (const char* sprache : {"d", "e"}) {
        Reportprogramm r(sprache);
        const std::filesystem::path ordner = r.ordner.pfad();
        const std::filesystem::path rtf = ordner / (std::string("report_") + sprache + ".rtf");
        ASSERT_TRUE(report_speichern(r.report(0), rtf.string()));
        // A private profile, so that the test neither needs nor touches a user's one.
        const std::string befehl = "cd '" + ordner.string() + "' && HOME='" + ordner.string() +
                                   "' soffice -env:UserInstallation=file://" + ordner.string() +
                                   "/profil --headless --convert-to pdf --outdir '" +
                                   ordner.string() + "' '" + rtf.string() + "' >soffice.txt 2>&1";
        ASSERT_EQ(std::system(befehl.c_str()), 0) << datei_lesen((ordner / "soffice.txt").string());
        const std::filesystem::path pdf = ordner / (std::string("report_") + sprache + ".pdf");
        ASSERT_TRUE(std::filesystem::exists(pdf)) << datei_lesen((ordner / "soffice.txt").string());
        EXPECT_GT(std::filesystem::file_size(pdf), 20000u);
        if (!auf_dem_pfad("pdftotext")) {
            continue;
        }
        ASSERT_EQ(std::system(("pdftotext -layout '" + pdf.string() + "' '" +
                               (ordner / "text.txt").string() + "'")
                                  .c_str()),
                  0);
        const std::string text = datei_lesen((ordner / "text.txt").string());
        // The title of every page and the umlauts of the ANSI file come through.
        const bool d = sprache[0] == 'd';
        for (const char* titel :
             {d ? "Datenblatt" : "Data sheet", d ? "Ausgabe: Übersicht" : "Output: Overview",
              d ? "Tramsmis-" : "Transm.", d ? "Ausgabe: Kühlbilanz" : "Output: Cooling balance",
              d ? "Primär- und Endenergiebedarf Kühlung"
                : "Primary and end energy demand for cooling",
              "VELMaris"}) {
            EXPECT_NE(text.find(titel), std::string::npos) << titel;
        }
        // Seven pages at least: a page break stands between the seven, and the data sheet may
        // run over.
        int seiten = 1;
        for (const char c : text) {
            seiten += c == '\f' ? 1 : 0;
        }
        EXPECT_GE(seiten, 7) << sprache;
    }
}
