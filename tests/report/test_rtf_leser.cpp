// SPDX-License-Identifier: GPL-3.0-or-later
// The Rich Text reader: formats, paragraphs, tabs and pages of the report, the escapes, and
// clear refusals of broken text.
#include "report/RtfLeser.h"
#include "tests/report/Reporthilfe.h"

#include <gtest/gtest.h>

using A = RtfAbsatz::Ausrichtung;

TEST(RtfLeser, FormatsOfTheReportHead) {
    const RtfDokument d =
        rtf_lesen("{\\rtf1\\ansi{\\fonttbl{\\f0\\froman Times New Roman;}}"
                  "\\qc\\plain\\b\\i\\fs60 VELM\\plain\\b\\fs60 aris \\plain \\par "
                  "\\fs30\\i Titel\\plain \\par \\ql \\par "
                  "\\fs30\\ul Geometrie: \\plain\\fs20\\par }");
    ASSERT_TRUE(d.fehler.empty()) << d.fehler;
    ASSERT_EQ(d.absaetze.size(), 4u);
    const RtfAbsatz& kopf = d.absaetze[0];
    EXPECT_EQ(kopf.ausrichtung, A::Mitte);
    ASSERT_EQ(kopf.laeufe.size(), 2u);
    EXPECT_EQ(kopf.laeufe[0].text, "VELM");
    EXPECT_TRUE(kopf.laeufe[0].fett && kopf.laeufe[0].kursiv);
    EXPECT_EQ(kopf.laeufe[0].halbpunkte, 60);
    EXPECT_EQ(kopf.laeufe[1].text, "aris ");
    EXPECT_TRUE(kopf.laeufe[1].fett);
    EXPECT_FALSE(kopf.laeufe[1].kursiv);
    EXPECT_EQ(d.absaetze[1].laeufe[0].halbpunkte, 30);
    EXPECT_EQ(d.absaetze[1].ausrichtung, A::Mitte) << "alignment lasts until changed";
    EXPECT_EQ(d.absaetze[2].ausrichtung, A::Links);
    EXPECT_TRUE(d.absaetze[2].laeufe.empty());
    EXPECT_TRUE(d.absaetze[3].laeufe[0].unterstrichen);
    EXPECT_EQ(d.absaetze[3].text(), "Geometrie: ");
}

TEST(RtfLeser, TabsPagesEscapesAndSubscript) {
    const RtfDokument d = rtf_lesen("{\\rtf1\\pard\\tx1800\\tx5100 \\tab a\\tab 1\\par \\page"
                                    "\\pard\\tx4300      L\\'e4nge: \\tab 2 kWh{\\sub cool}\\par "
                                    "\\u8364?\\{\\}\\\\\\par }");
    ASSERT_TRUE(d.fehler.empty()) << d.fehler;
    ASSERT_EQ(d.absaetze.size(), 3u);
    EXPECT_EQ(d.absaetze[0].tabs, (std::vector<int>{1800, 5100}));
    EXPECT_EQ(d.absaetze[0].text(), "\ta\t1");
    EXPECT_FALSE(d.absaetze[0].neue_seite);
    EXPECT_TRUE(d.absaetze[1].neue_seite);
    EXPECT_EQ(d.absaetze[1].tabs, std::vector<int>{4300});
    EXPECT_EQ(d.absaetze[1].text(), "     Länge: \t2 kWhcool");
    EXPECT_TRUE(d.absaetze[1].laeufe.back().tiefgestellt);
    EXPECT_FALSE(d.absaetze[1].laeufe.front().tiefgestellt);
    EXPECT_EQ(d.absaetze[2].text(), "€{}\\");
}

TEST(RtfLeser, BrokenTextGivesAMessageAndKeepsWhatWasRead) {
    EXPECT_NE(rtf_lesen("{\\rtf1 a\\par ").fehler.find("not closed"), std::string::npos);
    EXPECT_NE(rtf_lesen("{\\rtf1 a}}").fehler.find("never opened"), std::string::npos);
    EXPECT_NE(rtf_lesen("{\\rtf1 \\'e").fehler.find("hex"), std::string::npos);
    EXPECT_NE(rtf_lesen("{\\rtf1 \\'zz}").fehler.find("hex"), std::string::npos);
    EXPECT_NE(rtf_lesen("{\\rtf1 a\\").fehler.find("backslash"), std::string::npos);
    EXPECT_NE(rtf_lesen(std::string(200, '{')).fehler.find("deeper"), std::string::npos);
    const RtfDokument d = rtf_lesen("{\\rtf1 eins\\par zwei}}");
    EXPECT_FALSE(d.fehler.empty());
    ASSERT_GE(d.absaetze.size(), 1u);
    EXPECT_EQ(d.absaetze[0].text(), "eins");
    // A raw byte that starts no UTF-8 sequence is Windows-1252.
    EXPECT_EQ(rtf_lesen("{\\rtf1 \xe4\xfc}").absaetze.at(0).text(), "äü");
}

TEST(RtfLeser, ReadsTheWholeReportInSevenPagesWithoutAControlWordInTheText) {
    for (const char* sprache : {"d", "e"}) {
        const RtfDokument d = rtf_lesen(Reportprogramm(sprache).report(0));
        ASSERT_TRUE(d.fehler.empty()) << d.fehler;
        int seiten = 1;
        for (const RtfAbsatz& a : d.absaetze) {
            seiten += a.neue_seite ? 1 : 0;
            EXPECT_EQ(a.text().find('\\'), std::string::npos) << a.text();
        }
        EXPECT_EQ(seiten, 7) << sprache;
    }
}
