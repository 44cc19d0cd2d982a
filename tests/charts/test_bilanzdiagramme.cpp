// SPDX-License-Identifier: GPL-3.0-or-later
// The balance and hour charts of the overview and heating planes, read as a reader would:
// where a bar ends, which step the axis takes, which colour stands where, and the labels of
// both languages.

#include "charts/A_Heizen.h"
#include "charts/A_Uebersicht.h"
#include "tests/charts/Diagrammhilfe.h"

#include "project/c_glob.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

using Kind = RecordingSurface::Primitive::Kind;

const ChartTheme T;

int zeile(double y) {
    return static_cast<int>(std::lround(y));
}

// The top of a bar of value v on a five-step balance chart.
double oben(double v, double stufe) {
    return 116 - v / stufe * 99 / 5;
}

TEST(Monatsbilanz, HeatBarsEndAtTheirValueOnTheChosenStep) {
    TempOrdner o;
    auto p = diagrammprojekt(o, "d");
    Uebersicht u;
    MonatsbilanzZeichnen(*p, u.f, einstellung("d"));

    // January has the largest demand per m², between 10 and 25: the step is 5.
    const double M = p->Monat[1].Qh / p->f_nutz;
    ASSERT_GT(M, 10);
    ASSERT_LT(M, 25);
    const auto rot = boxen(u.Monatsbilanz, T.heizen);
    ASSERT_EQ(rot.size(), 12u); // every month has some heat demand in this climate
    for (int m = 1; m <= 12; ++m) {
        const auto& b = rot[static_cast<std::size_t>(m - 1)];
        const double x0 = 35 + 24 * (m - 1);
        EXPECT_EQ(b.x1, x0);
        EXPECT_EQ(b.x2, x0 + 8);
        EXPECT_EQ(b.y1, 116);
        EXPECT_NEAR(b.y2, oben(p->Monat[m].Qh / p->f_nutz, 5), 1e-9) << "month " << m;
    }
    // January's bar: red from the row above the axis up to its top, white above.
    const int top = zeile(oben(M, 5));
    EXPECT_EQ(u.Monatsbilanz.pixel(39, 116), T.heizen);
    EXPECT_EQ(u.Monatsbilanz.pixel(39, top), T.heizen);
    EXPECT_EQ(u.Monatsbilanz.pixel(39, top - 1), WHITE);
    EXPECT_EQ(u.Monatsbilanz.pixel(39, 117), T.achsen); // the axis
    // No cooling demand: no blue bar.
    EXPECT_TRUE(boxen(u.Monatsbilanz, T.kuehlen).empty());
    // The axis ends at 5 steps of 5, numbers right-aligned at x 25 with their blank.
    const auto oben_zahl = u.Monatsbilanz.prints(" 25");
    ASSERT_EQ(oben_zahl.size(), 1u);
    EXPECT_EQ(oben_zahl[0].x1, 25 - u.Monatsbilanz.TextWidth(" 25"));
    EXPECT_NEAR(oben_zahl[0].y1, 117 - 99 - 5, 1e-9);
    // The ticks stand at fractional rows, one below the bars' scale.
    std::vector<double> ticks;
    for (const auto& l : u.Monatsbilanz.of_kind(Kind::Line)) {
        if (l.x1 == 27 && l.x2 == 30) {
            ticks.push_back(l.y1);
        }
    }
    ASSERT_EQ(ticks.size(), 6u);
    for (int i = 0; i <= 5; ++i) {
        EXPECT_NEAR(ticks[static_cast<std::size_t>(i)], 117 - i * 99.0 / 5, 1e-9);
    }
}

TEST(Monatsbilanz, YearChartShowsHeatAndAnEmptyCoolingBarWithItsLabels) {
    TempOrdner o;
    auto p = diagrammprojekt(o, "d");
    Uebersicht u;
    MonatsbilanzZeichnen(*p, u.f, einstellung("d"));
    // qhs_sum lies between 75 and 100: step 20.
    ASSERT_GT(p->qhs_sum, 75);
    ASSERT_LT(p->qhs_sum, 100);
    const auto rot = boxen(u.JahrBilanz, T.heizen);
    ASSERT_EQ(rot.size(), 1u);
    EXPECT_EQ(rot[0].x1, 35);
    EXPECT_EQ(rot[0].x2, 55);
    EXPECT_NEAR(rot[0].y2, oben(p->qhs_sum, 20), 1e-9);
    const auto blau = boxen(u.JahrBilanz, T.kuehlen);
    ASSERT_EQ(blau.size(), 1u);
    EXPECT_EQ(blau[0].y2, 116); // no cooling: a bar of no height
    const auto label = u.JahrBilanz.prints("Jahresbilanz");
    ASSERT_EQ(label.size(), 1u);
    EXPECT_EQ(label[0].x1, 88 - u.JahrBilanz.TextWidth("Jahresbilanz") - 5);
    EXPECT_EQ(label[0].y1, 124);
    EXPECT_EQ(u.JahrBilanz.prints("kWh/(m²a)").size(), 1u);
}

TEST(Monatsbilanz, LabelsInBothLanguagesAndNoneForAnotherLetter) {
    TempOrdner o;
    for (const char* sprache : {"d", "e"}) {
        auto p = diagrammprojekt(o, sprache);
        Uebersicht u;
        MonatsbilanzZeichnen(*p, u.f, einstellung(sprache));
        const bool de = std::string(sprache) == "d";
        const auto einheit = u.Monatsbilanz.prints(de ? "kWh/(m² Monat)" : "kWh/(m² month)");
        ASSERT_EQ(einheit.size(), 1u) << sprache;
        EXPECT_EQ(einheit[0].x1, 3);
        EXPECT_EQ(einheit[0].y1, 0);
        // October is "Okt." in German and "Oct." in English, centred under its column.
        const auto okt = u.Monatsbilanz.prints(de ? "Okt." : "Oct.");
        ASSERT_EQ(okt.size(), 1u);
        EXPECT_EQ(okt[0].x1, 47 + 24 * 9 - u.Monatsbilanz.TextWidth("Okt.") / 2);
        EXPECT_EQ(okt[0].y1, 124);
        EXPECT_EQ(u.JahrBilanz.prints(de ? "Jahresbilanz" : "yearly balance").size(), 1u);
    }
    auto p = diagrammprojekt(o, "d");
    Uebersicht u;
    MonatsbilanzZeichnen(*p, u.f, einstellung("x"));
    EXPECT_TRUE(u.Monatsbilanz.prints("kWh/(m² Monat)").empty());
    EXPECT_TRUE(u.Monatsbilanz.prints("kWh/(m² month)").empty());
    EXPECT_EQ(boxen(u.Monatsbilanz, T.heizen).size(), 12u); // otherwise complete
}

TEST(Monatsbilanz, CoolingBarsStandBesideTheHeatBars) {
    TempOrdner o;
    auto p = kuehlprojekt(o, "d");
    Uebersicht u;
    MonatsbilanzZeichnen(*p, u.f, einstellung("d"));
    const auto blau = boxen(u.Monatsbilanz, T.kuehlen);
    int kuehlmonate = 0;
    double kuehlen = 0;
    for (int m = 1; m <= 12; ++m) {
        kuehlmonate += p->Monat[m].Kuehlbedarf > 0 ? 1 : 0;
        kuehlen += p->Monat[m].Kuehlbedarf;
    }
    ASSERT_GT(kuehlmonate, 0);
    EXPECT_EQ(static_cast<int>(blau.size()), kuehlmonate);
    // July: the blue bar from x0 + 10 to x0 + 18.
    const double x0 = 35 + 24 * 6;
    EXPECT_TRUE(std::any_of(blau.begin(), blau.end(),
                            [&](const auto& b) { return b.x1 == x0 + 10 && b.x2 == x0 + 18; }));
    const auto jahr = boxen(u.JahrBilanz, T.kuehlen);
    ASSERT_EQ(jahr.size(), 1u);
    // The larger of the year's heat and cooling demand lies between 75 and 100: step 20.
    einmal_gedruckt(u.JahrBilanz, {" 100"});
    EXPECT_NEAR(jahr[0].y2, oben(kuehlen / p->f_nutz, 20), 1e-6);
}

TEST(UeberGrafik, TheHourBarIsStackedRedYellowBlueFromTheBottom) {
    TempOrdner o;
    auto p = kuehlprojekt(o, "d");
    Uebersicht u;
    UeberGrafikZeichnen(*p, u.f, einstellung("d"));
    // May has hours of all three classes.
    const Monatswerte& Mai = p->Monat[5];
    ASSERT_GT(Mai.Stunden_kalt, 0);
    ASSERT_GT(Mai.Stunden_komfort, 0);
    ASSERT_GT(Mai.Stunden_heiss, 0);
    const int x = 35 + 24 * 4 + 9;
    const auto y = [](double stunden) { return zeile(116 - stunden / 200 * 99 / 4); };
    const int kalt = Mai.Stunden_kalt, komfort = Mai.Stunden_komfort, heiss = Mai.Stunden_heiss;
    EXPECT_EQ(u.UeberGrafik.pixel(x, 115), T.heizen);
    EXPECT_EQ(u.UeberGrafik.pixel(x, y(kalt) + 1), T.heizen);
    EXPECT_EQ(u.UeberGrafik.pixel(x, y(kalt) - 2), T.solar);
    EXPECT_EQ(u.UeberGrafik.pixel(x, y(kalt + komfort) + 1), T.solar);
    EXPECT_EQ(u.UeberGrafik.pixel(x, y(kalt + komfort + heiss)), T.kuehlen);
    EXPECT_EQ(u.UeberGrafik.pixel(x, y(kalt + komfort + heiss) - 1), WHITE);
    // July is all cooling hours: one blue bar of the month's 744 hours, no other class drawn.
    const double x0 = 35 + 24 * 6;
    int juli_boxen = 0;
    for (const auto& b : u.UeberGrafik.of_kind(Kind::FilledBox)) {
        if (b.x1 == x0) {
            ++juli_boxen;
            EXPECT_EQ(b.colour, T.kuehlen);
            EXPECT_NEAR(b.y2, 116 - 744.0 / 200 * 99 / 4, 1e-9);
        }
    }
    EXPECT_EQ(juli_boxen, 1);
    einmal_gedruckt(u.UeberGrafik, {"Std./Monat", " 800"});
    einmal_gedruckt(u.UeberJahr, {" 8800", "Jahressumme"});
    // The year bar adds all 8760 hours up: its top is the whole year.
    const auto jahr = u.UeberJahr.of_kind(Kind::FilledBox);
    ASSERT_EQ(jahr.size(), 3u);
    EXPECT_EQ(jahr[0].colour, T.kuehlen);
    EXPECT_NEAR(jahr[0].y2, 116 - 8760.0 / 2200 * 99 / 4, 1e-9);
}

TEST(UeberGrafik, AMonthWithOnlyZeroEnergyHoursIsAllYellowAndEnglishLabels) {
    TempOrdner o;
    auto p = diagrammprojekt(o, "e");
    ASSERT_EQ(p->Monat[7].Stunden_komfort, 744);
    Uebersicht u;
    UeberGrafikZeichnen(*p, u.f, einstellung("e"));
    const int x = 35 + 24 * 6 + 9;
    EXPECT_EQ(u.UeberGrafik.pixel(x, 115), T.solar);
    EXPECT_EQ(u.UeberGrafik.pixel(x, zeile(116 - 744.0 / 200 * 99 / 4)), T.solar);
    einmal_gedruckt(u.UeberGrafik, {"h/month"});
    einmal_gedruckt(u.UeberJahr, {"annual sum", "h"});
    EXPECT_EQ(u.UeberGrafik.prints("Jul.")[0].y1, 123);
}

TEST(Fassadenbalken, AllEightBarsShareOneLargestValue) {
    TempOrdner o;
    auto p = diagrammprojekt(o, "d");
    Heizen h;
    FassadenbalkenZeichnen(*p, h.f, einstellung("d"));
    const double M = p->Fenstergewinn_S; // the south window gains are the largest of the eight
    ASSERT_GT(M, p->Fensterverlust_S);
    const auto pruefe = [&](const RecordingSurface& s, double wert, Rgb farbe) {
        const auto b = boxen(s, farbe);
        ASSERT_EQ(b.size(), 1u);
        EXPECT_EQ(b[0].x1, 1);
        EXPECT_EQ(b[0].y1, 49);
        EXPECT_EQ(b[0].x2, 8);
        EXPECT_NEAR(b[0].y2, 50 - 50 * wert / M, 1e-3);
        ASSERT_EQ(s.of_kind(Kind::Box).size(), 1u);
        EXPECT_EQ(s.of_kind(Kind::Box)[0].colour, T.achsen);
    };
    pruefe(h.Gewinne_S, p->Fenstergewinn_S, T.solar);
    pruefe(h.Verluste_S, p->Fensterverlust_S, T.transmission);
    pruefe(h.Gewinne_N, p->Fenstergewinn_N, T.solar);
    pruefe(h.Verluste_W, p->Fensterverlust_W, T.transmission);
    pruefe(h.Gewinne_O, p->Fenstergewinn_O, T.solar);
    // The largest bar reaches the top of its surface; the outline is black at its edge.
    EXPECT_EQ(h.Gewinne_S.pixel(4, 1), T.solar);
    EXPECT_EQ(h.Gewinne_S.pixel(1, 20), T.achsen);
}

TEST(Fassadenbalken, WithoutGainsAndLossesEveryBarIsAThinLine) {
    auto p = leeres_projekt();
    Heizen h;
    FassadenbalkenZeichnen(*p, h.f, einstellung("d"));
    for (const RecordingSurface* s : {&h.Gewinne_N, &h.Verluste_N, &h.Gewinne_W, &h.Verluste_O}) {
        const auto b = s->of_kind(Kind::FilledBox);
        ASSERT_EQ(b.size(), 1u);
        EXPECT_EQ(b[0].y1, 49);
        EXPECT_EQ(b[0].y2, 50);
    }
}

TEST(JahrBilanzHeizen, LossesBesideSupplyStackedOnTheQverlStep) {
    TempOrdner o;
    auto p = diagrammprojekt(o, "d");
    Heizen h;
    JahrBilanzZeichnen(*p, h.f, einstellung("d"));
    ASSERT_GE(p->qverl_s, 100);
    ASSERT_LT(p->qverl_s, 250);
    const double stufe = 50;
    const auto b = h.JahrBilanz.of_kind(Kind::FilledBox);
    ASSERT_EQ(b.size(), 5u);
    EXPECT_EQ(b[0].colour, T.transmission);
    EXPECT_EQ(b[0].y1, 116);
    EXPECT_NEAR(b[0].y2, oben(p->qtrs, stufe), 1e-9);
    EXPECT_EQ(b[1].colour, T.lueftung);
    EXPECT_NEAR(b[1].y1, oben(p->qtrs, stufe), 1e-9);
    EXPECT_NEAR(b[1].y2, oben(static_cast<double>(p->qtrs) + p->qinfs, stufe), 1e-9);
    EXPECT_EQ(b[2].colour, T.heizen);
    EXPECT_EQ(b[2].x1, 60);
    EXPECT_EQ(b[3].colour, T.intern);
    EXPECT_EQ(b[4].colour, T.solar);
    EXPECT_NEAR(b[4].y2, oben(static_cast<double>(p->qhs_sum) + p->qis + p->qsols, stufe), 1e-9);
    EXPECT_EQ(h.JahrBilanz.prints(" 250").size(), 1u);
}

TEST(Heizbilanz, EverySegmentOfEveryMonthIsDrawnAlsoAtZeroHeight) {
    TempOrdner o;
    auto p = diagrammprojekt(o, "e");
    Heizen h;
    HeizbilanzZeichnen(*p, h.f, einstellung("e"));
    const auto b = h.Heizbilanz.of_kind(Kind::FilledBox);
    ASSERT_EQ(b.size(), 60u);
    // July: the heat demand is almost nothing, still a red segment is drawn.
    const auto& juli = b[6 * 5 + 2];
    EXPECT_EQ(juli.colour, T.heizen);
    EXPECT_EQ(juli.x1, 35 + 24 * 6 + 10);
    EXPECT_EQ(h.Heizbilanz.prints("kWh/(m² month)").size(), 1u);
    // The losses of January reach 20 to 25 kWh/m²: the step is 5.
    einmal_gedruckt(h.Heizbilanz, {" 25"});
    // January's supply: heat demand from the axis, internal and solar gains stacked on it.
    EXPECT_EQ(b[2].y1, 116);
    EXPECT_NEAR(b[3].y1, b[2].y2, 1e-9);
    EXPECT_NEAR(b[4].y1, b[3].y2, 1e-9);
    const Monatswerte& J = p->Monat[1];
    EXPECT_NEAR(b[4].y2, oben((J.Qh + J.Qi_genutzt + J.Qs_genutzt) / p->f_nutz, 5), 1e-4);
}

TEST(HeizFelder, SpecificValuesWithOneDecimalAbsoluteOnesWhole) {
    TempOrdner o;
    auto p = diagrammprojekt(o, "d");
    const HeizFelder f = HeizFelderAusfuellen(*p, ',');
    EXPECT_EQ(f.qh_s_anz, "81,4 ");
    EXPECT_EQ(f.qtr_anz, "12825 ");
    EXPECT_EQ(f.qi_anz, "3295 ");
}

TEST(Nutzungsgrad, UsableGainsWithTheUnusableRestOnTop) {
    TempOrdner o;
    auto p = diagrammprojekt(o, "d");
    Heizen h;
    NutzungsgradZeichnen(*p, h.f, einstellung("d"));
    // The largest month gains lie between 1 and 5 kWh/m²: step 1; the year's between 25 and
    // 50: step 10.
    einmal_gedruckt(h.NutzungsgradMonat, {" 5"});
    einmal_gedruckt(h.NutzungsgradJahr, {" 50"});
    // July's solar bar: usable part yellow from the base, the rest dark yellow up to the whole.
    const auto b = h.NutzungsgradMonat.of_kind(Kind::FilledBox);
    ASSERT_EQ(b.size(), 48u);
    const Monatswerte& J = p->Monat[7];
    EXPECT_EQ(b[24].colour, T.solar);
    EXPECT_NEAR(b[24].y2, oben(J.Qs_genutzt / p->f_nutz, 1), 1e-4);
    EXPECT_EQ(b[25].colour, T.solar_gesamt);
    EXPECT_NEAR(b[25].y1, b[24].y2, 1e-9);
    EXPECT_NEAR(b[25].y2, oben(J.Qs_brutto / p->f_nutz, 1), 1e-4);
    EXPECT_EQ(b[26].colour, T.intern);
    EXPECT_EQ(b[27].colour, T.intern_gesamt);
    // The year: sums of the months, solar and internal gains on one scale.
    double A = 0, B = 0;
    for (int m = 1; m <= 12; ++m) {
        A += p->Monat[m].Qs_brutto / p->f_nutz;
        B += p->Monat[m].Qi_brutto / p->f_nutz;
    }
    const auto j = h.NutzungsgradJahr.of_kind(Kind::FilledBox);
    ASSERT_EQ(j.size(), 4u);
    EXPECT_NEAR(j[1].y2, oben(A, 10), 1e-4);
    EXPECT_NEAR(j[3].y2, oben(B, 10), 1e-4);
    EXPECT_EQ(j[0].x1, 35);
    EXPECT_EQ(j[2].x1, 60);
}

} // namespace
