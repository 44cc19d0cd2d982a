// SPDX-License-Identifier: GPL-3.0-or-later
// The report's Rich Text: golden texts of all pages in both languages, single pages and the
// saved ANSI file.
//
// After an intended change of the report, regenerate and review the golden files:
//   VELMARIS_GOLDEN_UPDATE=1 build/test/tests/test_report
//   git diff tests/report/golden/
#include "report/RtfLeser.h"
#include "tests/report/Reporthilfe.h"

#include <gtest/gtest.h>

namespace {

const std::string ANFANG = "{\\rtf1\\ansi{\\fonttbl{\\f0\\froman Times New Roman;}}";

// The pages of a whole report: the text between the document start and its end, cut at the
// page breaks.
std::vector<std::string> seiten(const std::string& ganz) {
    std::string rumpf = ganz.substr(ANFANG.size(), ganz.size() - ANFANG.size() - 1);
    std::vector<std::string> teile;
    for (std::size_t k = rumpf.find("\\page"); k != std::string::npos; k = rumpf.find("\\page")) {
        teile.push_back(rumpf.substr(0, k));
        rumpf.erase(0, k + 5);
    }
    teile.push_back(rumpf);
    return teile;
}

// The new project with a heated attic, the north wall towards a heated neighbour and a ground
// heat pump, whose carrier is electricity.
void variante(Reportprogramm& r) {
    Eingabeflaechen& e = *r.programm->ebenen;
    e.geometrie.Check_Dachgeschoss.setze(1);
    e.gebaeude.awn_cb.setze(1);
    e.gebaeude.awo_cb.setze(1);
    e.energie.Command1_Click();
    e.energie.Label_Auswahl_Click(7);
}

class Report : public ::testing::TestWithParam<const char*> {};

} // namespace

TEST_P(Report, AllPagesMatchTheGoldenText) {
    Reportprogramm r(GetParam());
    golden_vergleichen(std::string("neu_") + GetParam() + ".rtf", r.report(0));
    variante(r);
    if (!golden_vergleichen(std::string("variante_") + GetParam() + ".rtf", r.report(0))) {
        GTEST_SKIP() << "golden files rewritten";
    }
}

TEST_P(Report, EachSinglePageIsItsPartOfTheWholeWithoutBreak) {
    Reportprogramm r(GetParam());
    const std::vector<std::string> teile = seiten(r.report(0));
    ASSERT_EQ(teile.size(), 7u);
    for (int s = 1; s <= 7; ++s) {
        const std::string seite = r.report(s);
        EXPECT_EQ(seite, ANFANG + teile[static_cast<std::size_t>(s - 1)] + "}") << "page " << s;
        EXPECT_EQ(seite.find("\\page"), std::string::npos);
    }
}

TEST(ReportDatei, SavedFileIsAnsiAndReadsAsTheText) {
    Reportprogramm r("d");
    const std::string text = r.report(0);
    const std::string pfad = (r.ordner.pfad() / "report.rtf").string();
    ASSERT_TRUE(report_speichern(text, pfad));
    const std::string datei = datei_lesen(pfad);
    for (const char c : datei) {
        ASSERT_LT(static_cast<unsigned char>(c), 0x80) << "a byte beyond ASCII in the file";
    }
    EXPECT_NE(datei.find("L\\'e4nge der Nord- und S\\'fcdfassade"), std::string::npos);
    EXPECT_EQ(datei.find('\n'), std::string::npos) << "the file is one line";

    const RtfDokument aus_datei = rtf_lesen(datei);
    const RtfDokument aus_text = rtf_lesen(text);
    ASSERT_TRUE(aus_datei.fehler.empty()) << aus_datei.fehler;
    ASSERT_EQ(aus_datei.absaetze.size(), aus_text.absaetze.size());
    for (std::size_t i = 0; i < aus_text.absaetze.size(); ++i) {
        EXPECT_EQ(aus_datei.absaetze[i].text(), aus_text.absaetze[i].text());
    }
    EXPECT_FALSE(report_speichern(text, (r.ordner.pfad() / "fehlt" / "r.rtf").string()));
}

INSTANTIATE_TEST_SUITE_P(Sprachen, Report, testing::Values("d", "e"));

TEST(ReportKlima, GermanRegionTextInBothLanguagesWithItsSecondLine) {
    for (const char* sprache : {"d", "e"}) {
        Reportprogramm r(sprache);
        r.programm->p.Klimaauswahl = 1;
        r.programm->ebenen->klima.Klimaregionwahl.waehlen(4);
        const std::string s1 = r.report(1);
        const std::string label =
            sprache[0] == 'd' ? "     Klimaregion: \\tab " : "     Climatic region: \\tab ";
        EXPECT_NE(s1.find(label + " Franken und nördliches\\par  \\tab  Baden-Würtemberg\\par "),
                  std::string::npos)
            << sprache;
        r.programm->ebenen->klima.Klimaregionwahl.waehlen(11);
        EXPECT_NE(r.report(1).find(label + " Bodensee mit Umgebung\\par \\par "),
                  std::string::npos);
        // Without a region the climate section has no row.
        r.programm->ebenen->klima.Klimaregionwahl.waehlen(-1);
        EXPECT_EQ(r.report(1).find("Klimastation"), std::string::npos);
    }
}

TEST(ReportDeutsch, CoolingColumnsInTheirOrder) {
    Reportprogramm r("d");
    Projekt& p = r.programm->p;
    ASSERT_FLOAT_EQ(p.f_nutz, 160);
    p.Klimaeffizienz = 2.5f;
    Monatswerte& juli = p.Monat[7];
    juli.Kuehlbedarf = 1000;
    juli.Stunden_heiss = 62;
    juli.Kuehlgradstunden = 12.34f;
    // Specific, absolute, overheated hours per day, degree hours.
    EXPECT_NE(r.report(5).find("\\par      Juli\\tab 6,3 \\tab 1000 \\tab 2,0 \\tab 12,3\\par "),
              std::string::npos);
    // Demand, end energy by the efficiency, primary energy with the fixed factor 3.
    const std::string s7 = r.report(7);
    EXPECT_NE(s7.find("\\par      Juli\\tab 6,3 \\tab 2,5 \\tab 7,5\\par "), std::string::npos);
    EXPECT_NE(s7.find("\\par      Jahressumme\\tab 6,3 \\tab 2,5 \\tab 7,5\\par "),
              std::string::npos);
}
