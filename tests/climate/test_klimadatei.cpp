// SPDX-License-Identifier: GPL-3.0-or-later
// Reading station files: the numeric read of their fields, layout, row rotation, derived direct
// radiation and the fatal paths.
#include "climate/Sonne.h"
#include "climate/klimadatei.h"
#include "climate/monatsstrahlung.h"
#include "climate/numerisch.h"
#include "project/FatalError.h"
#include "tests/support/Testprojekt.h"

#include <gtest/gtest.h>

#include <fstream>

#include <sys/resource.h>

namespace {

std::unique_ptr<Projekt> lesen(const TempOrdner& ordner, const std::string& text) {
    ordner.schreiben("station.met", text);
    auto p = leeres_projekt();
    p->KlimaOrdner = ordner.pfad().string();
    p->Klimadatei = "station.met";
    klimadatei_lesen(*p);
    return p;
}

// The message of the fault that reading `datei` into `p` ends with; empty when it reads.
std::string lesefehler(Projekt& p, const std::string& datei) {
    p.Klimadatei = datei;
    try {
        klimadatei_lesen(p);
    } catch (const FatalError& e) {
        return e.what();
    }
    return "";
}

// The text without its last line (each line ends in CR LF).
std::string ohne_letzte_zeile(std::string text) {
    text.erase(text.rfind("\r\n", text.size() - 3) + 2);
    return text;
}

} // namespace

TEST(Klimadatei, FirstRowIsTheLastHourOfTheYear) {
    TempOrdner ordner;
    // Each hour carries its hour and the last digit of its day in the temperature.
    auto p = lesen(ordner, station_text({}, [](int tag, int stunde) {
                       return Stationsstunde{stunde + (tag % 10) / 10.0, 0, 0};
                   }));
    EXPECT_FLOAT_EQ(p->Wetter(12, 31, 24).Ta, 24.5f); // day 365
    EXPECT_FLOAT_EQ(p->Wetter(1, 1, 1).Ta, 1.1f);
    EXPECT_FLOAT_EQ(p->Wetter(1, 1, 24).Ta, 24.1f);
    EXPECT_FLOAT_EQ(p->Wetter(3, 1, 1).Ta, 1.0f); // day 60
    EXPECT_FLOAT_EQ(p->Wetter(12, 31, 23).Ta, 23.5f);
    EXPECT_EQ(p->Monat[2].Tage, 28);
    EXPECT_EQ(p->Monat[12].Tage, 31);
    // Every read brings the station's year figures along.
    EXPECT_FLOAT_EQ(p->Klimainfo.MaxJahrTemp, 24.9f);
    EXPECT_FLOAT_EQ(p->Klimainfo.MinJahrTemp, 1.0f);
    EXPECT_GE(p->Klimainfo.MaxMonat, 1);
}

TEST(Klimadatei, HeaderGivesLatitudeAndLongitudeCorrection) {
    TempOrdner ordner;
    Stationskopf kopf;
    kopf.breite = 49.75;
    kopf.laenge = -6.64; // 6.64° east
    kopf.zone = -1;      // central European time
    auto p = lesen(ordner, station_text(kopf, synthetisches_wetter));
    EXPECT_FLOAT_EQ(p->Breite, static_cast<float>(49.75 * 0.01745));
    EXPECT_FLOAT_EQ(p->Laengenkorrektur, 8.36f);
    kopf.breite = 0;
    kopf.laenge = 15;
    kopf.zone = 1;
    p = lesen(ordner, station_text(kopf, synthetisches_wetter));
    EXPECT_FLOAT_EQ(p->Laengenkorrektur, 0);
}

TEST(Klimadatei, DirectRadiationIsDerivedAndImplausibleValuesDrop) {
    TempOrdner ordner;
    auto p = lesen(ordner, station_text({}, [](int, int) { return Stationsstunde{5, 900, 100}; }));
    int verworfen = 0, behalten = 0;
    for (int d = 1; d <= 30; ++d) {
        for (int h = 1; h <= 24; ++h) {
            const Wetterwert& w = p->Wetter(6, d, h);
            EXPECT_FLOAT_EQ(w.Diffus, 100);
            const int n = 151 + d;
            const float f = direktfaktor_horizontal(
                n, p->Laengenkorrektur,
                stichzeit(h, sonnenaufgang(n, p->Breite, p->Laengenkorrektur)), p->Breite);
            const float direkt = f * 800.0f;
            if (direkt > 1370) {
                EXPECT_FLOAT_EQ(w.Direkt, 0) << "day " << d << " hour " << h;
                ++verworfen;
            } else {
                EXPECT_FLOAT_EQ(w.Direkt, direkt) << "day " << d << " hour " << h;
                ++behalten;
            }
        }
    }
    // A low sun blows 1 / cos z up: those hours are dropped, not capped.
    EXPECT_GT(verworfen, 0);
    EXPECT_GT(behalten, 0);
    // At night the sun is down whatever the file says.
    EXPECT_FLOAT_EQ(p->Wetter(6, 15, 1).Direkt, 0);
}

TEST(Klimadatei, DiffuseAboveTotalGivesNoDirectRadiation) {
    TempOrdner ordner;
    auto p = lesen(ordner, station_text({}, [](int, int) { return Stationsstunde{5, 100, 300}; }));
    EXPECT_FLOAT_EQ(p->Wetter(6, 15, 13).Direkt, 0);
    EXPECT_FLOAT_EQ(p->Wetter(6, 15, 13).Diffus, 300);
}

TEST(Klimadatei, ExactLengthReadsAndExtraLinesAreIgnored) {
    TempOrdner ordner;
    const std::string text = station_text({}, synthetisches_wetter);
    auto genau = lesen(ordner, text);
    auto laenger = lesen(ordner, text + "  999 99.9 9999 9999\r\ngarbage\r\n");
    EXPECT_FLOAT_EQ(laenger->Wetter(12, 31, 23).Ta, genau->Wetter(12, 31, 23).Ta);
    EXPECT_EQ(laenger->Monat[7].Strahlung_S, genau->Monat[7].Strahlung_S);
}

TEST(Klimadatei, ShortOrMissingFileIsAClearFaultAndKeepsTheFormerClimate) {
    TempOrdner ordner;
    auto p = lesen(ordner, station_text({}, [](int, int) { return Stationsstunde{7.5, 0, 0}; }));
    ordner.schreiben("kurz.met", ohne_letzte_zeile(station_text({}, synthetisches_wetter)));
    const std::string kurz = lesefehler(*p, "kurz.met");
    EXPECT_NE(kurz.find("kurz.met"), std::string::npos) << kurz;
    EXPECT_NE(kurz.find("line 8766"), std::string::npos) << kurz;
    EXPECT_FLOAT_EQ(p->Wetter(4, 4, 4).Ta, 7.5f);
    EXPECT_NEAR(p->Monat[4].Tmittel, 7.5, 1e-4); // summed in float hour by hour
    const std::string fehlt = lesefehler(*p, "fehlt.met");
    EXPECT_NE(fehlt.find("fehlt.met"), std::string::npos) << fehlt;
}

TEST(Klimadatei, ReaderStopsAtItsBoundAndReadsNoMore) {
    TempOrdner ordner;
    const std::string text = station_text({}, synthetisches_wetter);
    auto genau = lesen(ordner, text);
    // A valid file followed by more than the bound of anything reads as the valid file.
    auto lang = lesen(ordner, text + std::string(KLIMADATEI_HOECHSTGROESSE, 'x'));
    EXPECT_FLOAT_EQ(lang->Wetter(12, 31, 24).Ta, genau->Wetter(12, 31, 24).Ta);
    // 100 MB of empty lines read as 8766 empty lines, and no more of them is taken in.
    {
        std::ofstream leer(ordner.pfad() / "leer.met", std::ios::binary);
        const std::string block(1 << 20, '\n');
        for (int i = 0; i < 100; ++i) {
            leer << block;
        }
    }
    rusage vorher{};
    getrusage(RUSAGE_SELF, &vorher);
    auto p = leeres_projekt();
    p->KlimaOrdner = ordner.pfad().string();
    EXPECT_EQ(lesefehler(*p, "leer.met"), "");
    rusage nachher{};
    getrusage(RUSAGE_SELF, &nachher);
    EXPECT_LT(nachher.ru_maxrss - vorher.ru_maxrss, 50 << 10) << "kB";
    EXPECT_FLOAT_EQ(p->Wetter(7, 1, 12).Ta, 0.0f);
    // A file whose line 8766 does not end within the bound is refused with the reason.
    ordner.schreiben("eine_zeile.met", std::string(2 << 20, ' '));
    EXPECT_NE(
        lesefehler(*p, "eine_zeile.met").find("does not end its line 8766 within its first 1 MB"),
        std::string::npos);
    EXPECT_EQ(zeilen_teilen("a\nb\r\nc\rd", 2), (std::vector<std::string_view>{"a", "b"}));
}

TEST(Klimadatei, LinesEndAtEachKindOfLineEnd) {
    using Zeilen = std::vector<std::string_view>;
    const std::pair<std::string_view, Zeilen> faelle[] = {
        {"a\nb\r\nc\rd", {"a", "b", "c", "d"}},
        {"a\r\rb\n", {"a", "", "b"}},
        {"\r\n\r\n", {"", ""}},
        {"a\r", {"a"}},
        {"a\n", {"a"}},
        {"x", {"x"}},
        {"", {}},
        {"\n\rz", {"", "", "z"}},
    };
    for (const auto& [text, zeilen] : faelle) {
        EXPECT_EQ(zeilen_teilen(text), zeilen) << text;
    }
}

TEST(Klimadatei, ShortRowsAndLfLineEndsRead) {
    std::string text = station_text({}, [](int, int) { return Stationsstunde{3, 0, 0}; });
    // Cut the temperature off one row and switch the whole file to LF line ends.
    const std::size_t zeile = text.find("\r\n    1  3.0") + 2;
    text.replace(zeile, 20, "    1");
    std::string lf;
    for (char c : text) {
        if (c != '\r') {
            lf += c;
        }
    }
    TempOrdner ordner;
    auto p = lesen(ordner, lf);
    EXPECT_FLOAT_EQ(p->Wetter(1, 1, 1).Ta, 0);
    EXPECT_FLOAT_EQ(p->Wetter(1, 1, 2).Ta, 3);
}

TEST(Klimadatei, RoofSpaceRowsAreFixedToTwentyFiveCharacters) {
    TempOrdner ordner;
    auto p = lesen(ordner, station_text({}, synthetisches_wetter));
    EXPECT_EQ(p->Dachraum[0].Bezeichnung, "Außen oder nicht gedämmte");
    EXPECT_EQ(p->Dachraum[1].Bezeichnung, "Teilgedämmtes Dach       ");
    EXPECT_FLOAT_EQ(p->Dachraum[0].Faktor, 1.0f);
    EXPECT_FLOAT_EQ(p->Dachraum[1].Faktor, 0.8f);
    EXPECT_FLOAT_EQ(p->Dachraum[2].Faktor, 0.5f);
    EXPECT_FLOAT_EQ(p->Dachraum[3].Faktor, 0);
}

TEST(Monatsstrahlung, DiffuseSkyWorkedByHandAndCutToWholeNumbers) {
    TempOrdner ordner;
    // 100 W/m² diffuse and nothing direct: a vertical plane gets 50 from the sky and 12.5 from
    // the ground, 62.5 W/m² x 744 h = 46.5 kWh/m² = 167.4 MJ/m² in January, cut to 167.
    auto p = lesen(ordner, station_text({}, [](int, int) { return Stationsstunde{-2, 100, 100}; }));
    EXPECT_EQ(p->Monat[1].Strahlung_N, 167);
    EXPECT_EQ(p->Monat[1].Strahlung_S, 167);
    EXPECT_EQ(p->Monat[2].Strahlung_O, 151); // 62.5 x 672 h x 3.6 / 1000 = 151.2
    EXPECT_NEAR(p->Monat[1].Tmittel, -2, 1e-5);
    // 2200 W/m² diffuse gives 1375 W/m² on each plane: not plausible, left out.
    p = lesen(ordner, station_text({}, [](int, int) { return Stationsstunde{0, 2200, 2200}; }));
    EXPECT_EQ(p->Monat[1].Strahlung_W, 0);
}

TEST(Monatsstrahlung, TurningTheBuildingHalfRoundSwapsNorthAndSouth) {
    TempOrdner ordner;
    auto p = lesen(ordner, station_text({}, synthetisches_wetter));
    const int sued = p->Monat[6].Strahlung_S, nord = p->Monat[6].Strahlung_N;
    const int ost = p->Monat[6].Strahlung_O;
    EXPECT_GT(sued, nord);
    p->orient = 180;
    monatsstrahlung_berechnen(*p);
    EXPECT_NEAR(p->Monat[6].Strahlung_N, sued, 1);
    EXPECT_NEAR(p->Monat[6].Strahlung_S, nord, 1);
    p->orient = -90; // the south facade now faces east
    monatsstrahlung_berechnen(*p);
    EXPECT_NEAR(p->Monat[6].Strahlung_S, ost, 1);
}

TEST(NumerischLesen, ReadsWhatAFiveColumnFieldHolds) {
    struct Fall {
        const char* text;
        double wert;
    };
    const Fall faelle[] = {
        {" 12.5", 12.5}, {" -3.2", -3.2}, {"  -.5", -0.5}, {"  123", 123}, {"   0", 0},
        {"", 0},         {"     ", 0},    {"abc", 0},      {"-", 0},       {"1.2.3", 1.2},
        {" 123.", 123},  {"12a45", 12},   {"+7", 7},       {" 4 2", 42},   {"\t8", 8},
        {" 5 -3", 5},    {"5. 3", 5.3},   {"- 5", -5},     {" 12 ", 12},   {". 5", 0.5},
        {"+-5", 0},      {"7 .", 7},      {"7. .", 7},     {"1 2 x3", 12},
    };
    for (const Fall& f : faelle) {
        EXPECT_DOUBLE_EQ(numerisch_lesen(f.text), f.wert) << "\"" << f.text << "\"";
    }
}

TEST(NumerischLesen, ColumnsOfAShortRowAreMissing) {
    for (const auto& [zeile, von, feld] : {std::tuple{"    1 -2.5  100   50", 6, " -2.5"},
                                           {"    1 -2.5  100   50", 16, "   50"},
                                           {"    1 -2.5", 11, ""},
                                           {"    1 -2.5  10", 11, "  10"}}) {
        EXPECT_EQ(spalten(zeile, von, von + 4), feld) << zeile << " @" << von;
    }
    // A six-character diffuse value is cut at column 20.
    EXPECT_DOUBLE_EQ(numerisch_lesen(spalten("    1  2.0  300 123.4", 16, 20)), 123);
}
