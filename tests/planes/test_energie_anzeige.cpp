// SPDX-License-Identifier: GPL-3.0-or-later
// The year's supply figures and the carrier captions of the energy plane: the language, the
// decimal mark, and electricity's single primary energy line.
#include "climate/klimainfo_texte.h"
#include "planes/Eingabeflaechen.h"
#include "project/Zahlformat.h"
#include "project/c_glob.h"
#include "tests/support/Testprojekt.h"

#include <gtest/gtest.h>

namespace {

struct Fall {
    const char* sprache;
    int16_t heizsystem; // 7 heats with electricity
    char dezimal;
    const char* label8;
    const char* label21;
    const char* label27;
};

// The planes on the new project in `sprache`, after a run with the heating system `system`.
struct Lauf {
    TempOrdner ordner;
    std::unique_ptr<Projekt> p;
    std::unique_ptr<Eingabeflaechen> e;

    Lauf(const char* sprache, int16_t system, char dezimal) : p(neues_testprojekt(ordner)) {
        p->Sprache = sprache;
        e = std::make_unique<Eingabeflaechen>(*p, dezimal);
        p->Heizsystem = system;
        p->Uebergabe = 1;
        p->Energietraeger = 1;
        alles_berechnen(*p);
    }
};

} // namespace

TEST(Energieanzeige, CaptionsFiguresAndElectricityLines) {
    const Fall faelle[] = {
        {"d", 1, ',', "Heizenergiebedarf (Heizöl):", "Primärenergiebedarf (Heizöl):", "Heizöl:"},
        {"e", 1, '.',
         "heating energy demand (fuel oil):", "primary energy demand (fuel oil):", "fuel oil:"},
        {"d", 7, ',', "Heizenergiebedarf (Strom):", "Primärenergiebedarf (Strom):", "Strom:"},
        {"e", 7, '.', "heating energy demand (electricity):",
         "primary energy demand (electricity):", "electricity:"},
    };
    for (const Fall& f : faelle) {
        SCOPED_TRACE(std::string(f.sprache) + " system " + std::to_string(f.heizsystem));
        Lauf l(f.sprache, f.heizsystem, f.dezimal);
        const Projekt& p = *l.p;
        const E_Energie& g = l.e->energie;
        EXPECT_EQ(g.Label8.Caption, f.label8);
        EXPECT_EQ(g.Label21.Caption, f.label21);
        EXPECT_EQ(g.Label27.Caption, f.label27);

        const bool strom = f.heizsystem == 7;
        for (const Label* zeile : {&g.Label14, &g.Label6, &g.anz_q_PE_Strom, &g.Label34,
                                   &g.anz_Primaerenergiefaktor_Strom}) {
            EXPECT_EQ(zeile->Visible, !strom);
            // The electricity lines' captions keep the design's text.
            EXPECT_EQ(zeile == &g.anz_q_PE_Strom || zeile == &g.anz_Primaerenergiefaktor_Strom,
                      !zeile->Caption.empty());
        }
        // Electricity's primary energy line carries the auxiliary energy too.
        ASSERT_GT(p.q_PE_Strom, 0.05f);
        const float pe = strom ? p.q_PE_Strom + p.q_PE_Energietraeger : p.q_PE_Energietraeger;
        EXPECT_EQ(g.anz_q_PE_Energietraeger.Caption, format_muster(pe, "0.0", f.dezimal));
        EXPECT_EQ(g.anz_q_PE_Strom.Caption, format_muster(p.q_PE_Strom, "0.0", f.dezimal));

        const Energiekennwerte& k = p.Energie;
        EXPECT_EQ(g.anz_q_verlust.Caption, format_muster(k.q_s + k.q_ce + k.q_d, "0.0", f.dezimal));
        EXPECT_EQ(g.anz_e_g.Caption, format_muster(k.e_g, "0.00", f.dezimal));
        EXPECT_EQ(g.anz_qhs_sum.Caption, format_muster(p.qhs_sum, "0.0", f.dezimal));
        EXPECT_EQ(g.anz_Primaerenergiefaktor_Strom.Caption, f.dezimal == ',' ? "3,0" : "3.0");
        EXPECT_EQ(g.anz_Primaerenergiefaktor_Energietraeger.Caption,
                  format_muster(k.f_p, "0.0", f.dezimal));
        EXPECT_EQ(g.anz_q_HE_Energietraeger.Caption,
                  format_muster(p.q_HE_Energietraeger, "0.0", f.dezimal));
        EXPECT_EQ(g.anz_q_HE_Strom.Caption, format_muster(p.q_HE_Strom, "0.0", f.dezimal));

        // The supply's parts are there for the report, never on the plane.
        const std::pair<const Label*, float> teile[] = {
            {&g.anz_q_ce, k.q_ce},     {&g.anz_q_d, k.q_d},       {&g.anz_q_s, k.q_s},
            {&g.anz_q_d_he, k.q_d_he}, {&g.anz_q_s_he, k.q_s_he}, {&g.anz_q_g_he, k.q_g_he}};
        for (const auto& [l, wert] : teile) {
            EXPECT_FALSE(l->Visible);
            EXPECT_EQ(l->Caption, format_muster(wert, "0.0", f.dezimal));
        }
    }
}

TEST(Energieanzeige, ChoosingElectricityAndBackShowsTheLinesAgain) {
    Lauf l("d", 1, ',');
    E_Energie& g = l.e->energie;
    g.Command1_Click();
    g.Label_Auswahl_Click(7);
    EXPECT_FALSE(g.Label14.Visible);
    EXPECT_EQ(g.Label27.Caption, "Strom:");
    g.Command1_Click();
    g.Label_Auswahl_Click(1);
    EXPECT_TRUE(g.Label14.Visible);
    EXPECT_EQ(g.Label27.Caption, "Heizöl:");
}

TEST(Energieanzeige, ClimatePlaneShowsTheStationsYearValuesAfterEachRun) {
    for (const char dezimal : {',', '.'}) {
        Lauf l("d", 1, dezimal);
        const KlimainfoTexte t = klimainfo_texte(*l.p, dezimal);
        const E_Klima& k = l.e->klima;
        ASSERT_FALSE(t.anz_MittelJahrTemp.empty());
        EXPECT_NE(k.anz_MittelJahrTemp.Caption.find(dezimal), std::string::npos);
        EXPECT_EQ(k.anz_MittelJahrTemp.Caption, t.anz_MittelJahrTemp);
        EXPECT_EQ(k.anz_MinMonatTemp.Caption, t.anz_MinMonatTemp);
        EXPECT_EQ(k.anz_MaxMonatTemp.Caption, t.anz_MaxMonatTemp);
    }
}
