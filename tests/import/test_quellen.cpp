// SPDX-License-Identifier: GPL-3.0-or-later
// The readers of the common climate exports on small generated files: which hour a record
// becomes, leap days, time zones, averaging of quarter-hours and the faults they report.
#include "climate/import/quelle.h"
#include "climate/klimadatei.h"

#include <cstdio>
#include <functional>
#include <gtest/gtest.h>

namespace {

constexpr int TAGE[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

// A temperature that tells the hour k (0..8759) of the year.
double kennung(int k) {
    return (k % 1000) / 10.0 - 40;
}

// Calls `zeile(monat, tag, stunde 1..24, k)` for every hour of the year, with February 29 when
// `schalttag` (k is -1 there).
void jahr(bool schalttag, const std::function<void(int, int, int, int)>& zeile) {
    int k = 0;
    for (int m = 1; m <= 12; ++m) {
        const int tage = TAGE[m - 1] + (schalttag && m == 2 ? 1 : 0);
        for (int d = 1; d <= tage; ++d) {
            for (int h = 1; h <= 24; ++h) {
                const bool frei = m == 2 && d == 29;
                zeile(m, d, h, frei ? -1 : k);
                if (!frei) {
                    ++k;
                }
            }
        }
    }
}

std::string epw(const std::string& quelle, bool schalttag, int weglassen = -1) {
    std::string text = "LOCATION,Teststadt,ST,Testland," + quelle + ",123,47.5,-122.25,-8.0,10\r\n";
    for (int i = 0; i < 7; ++i) {
        text += "HEAD " + std::to_string(i) + "\r\n";
    }
    jahr(schalttag, [&](int m, int d, int h, int k) {
        if (k == weglassen) {
            return;
        }
        char z[200];
        std::snprintf(z, sizeof z, "1999,%d,%d,%d,0,A7A7,%.1f,1,80,100000,0,0,300,%d,0,%d,9\r\n", m,
                      d, h, k < 0 ? 66.6 : kennung(k), k < 0 ? 999 : k % 24 * 10,
                      k < 0 ? 999 : k % 24 * 5);
        text += z;
    });
    return text;
}

Quelldaten lesen_ok(Quellformat format, const std::string& text) {
    Quelldaten d;
    Quellfehler f;
    EXPECT_TRUE(quelle_lesen(format, text, d, f)) << "line " << f.zeile << ": " << f.grund;
    return d;
}

Quellfehler lesen_fehler(Quellformat format, const std::string& text) {
    Quelldaten d;
    Quellfehler f;
    EXPECT_FALSE(quelle_lesen(format, text, d, f));
    return f;
}

// Rows of the station order at `zone`, each with the hour of the year its temperature tells.
void reihenfolge_pruefen(const Quelldaten& d, int zone, std::vector<std::pair<int, int>> zeilen) {
    const std::vector<Quellstunde> z = stationsreihenfolge(d, zone);
    for (const auto& [zeile, stunde] : zeilen) {
        EXPECT_NEAR(z[static_cast<std::size_t>(zeile)].Ta, kennung(stunde), 1e-9)
            << "row " << zeile << " at zone " << zone;
    }
}

} // namespace

TEST(QuelleEpw, RecordsByDateWithoutLeapDay) {
    const std::string text = epw("TMY3", true);
    EXPECT_EQ(format_erkennen(zeilen_teilen(text)), Quellformat::epw);
    const Quelldaten d = lesen_ok(Quellformat::epw, text);
    ASSERT_EQ(d.stunden.size(), 8760u);
    EXPECT_EQ(std::tie(d.ort, d.land, d.koordinaten, d.breite, d.laenge, d.ortszone, d.stempelzone),
              std::make_tuple("Teststadt", "Testland", true, 47.5, -122.25, -8, -8));
    for (const int k : {0, 1415, 1416, 8759}) {
        EXPECT_NEAR(d.stunden[static_cast<std::size_t>(k)].Ta, kennung(k), 1e-9) << k;
        EXPECT_DOUBLE_EQ(d.stunden[static_cast<std::size_t>(k)].G_Gh, k % 24 * 10) << k;
        EXPECT_DOUBLE_EQ(d.stunden[static_cast<std::size_t>(k)].G_Dh, k % 24 * 5) << k;
    }
}

TEST(QuelleEpw, StationOrderStartsWithTheLastHour) {
    reihenfolge_pruefen(lesen_ok(Quellformat::epw, epw("TMY3", false)), -8,
                        {{0, 8759}, {1, 0}, {8759, 8758}});
}

TEST(QuelleEpw, PvgisExportIsUniversalTime) {
    std::string text = epw("ECMWF/ERA", false);
    text.replace(text.find(",-8.0,"), 6, ",1,");
    const Quelldaten d = lesen_ok(Quellformat::epw, text);
    EXPECT_EQ(d.stempelzone, 0);
    EXPECT_EQ(d.ortszone, 1);
    // Central European rows: the UTC hour ending at 1:00 is the CET hour ending at 2:00.
    reihenfolge_pruefen(d, 1, {{2, 0}, {1, 8759}, {0, 8758}});
}

TEST(QuelleEpw, FaultsNameTheirLine) {
    const Quellfehler fehlt = lesen_fehler(Quellformat::epw, epw("TMY3", false, 100));
    EXPECT_TRUE(fehlt.zu_wenig);
    EXPECT_NE(fehlt.grund.find("hour 101"), std::string::npos) << fehlt.grund;

    std::string doppelt = epw("TMY3", false);
    const std::size_t erste = doppelt.find("1999,1,1,1,");
    doppelt += doppelt.substr(erste, doppelt.find("\r\n", erste) - erste) + "\r\n";
    EXPECT_EQ(lesen_fehler(Quellformat::epw, doppelt).zeile, 8769);

    std::string fehlwert = epw("TMY3", false);
    const std::size_t zeile3 = fehlwert.find("1999,1,1,3,");
    fehlwert.replace(fehlwert.find(",-39.8,", zeile3), 7, ",99.9,");
    const Quellfehler f = lesen_fehler(Quellformat::epw, fehlwert);
    EXPECT_EQ(f.zeile, 11);
    EXPECT_FALSE(f.zu_wenig);

    EXPECT_EQ(lesen_fehler(Quellformat::epw, "LOCATION,kurz\r\n").zeile, 1);
}

TEST(QuelleTry, TotalIsDirectPlusDiffuseAndTheCellGivesTheCoordinates) {
    std::string text =
        "Koordinatensystem : Lambert konform konisch\r\n"
        "Rechtswert        : 3909500 Meter\r\n"
        "Hochwert          : 2968500 Meter\r\n"
        "     RW      HW MM DD HH     t    p  WR   WG N    x  RF    B    D   A    E IL\r\n"
        "*** \r\n";
    jahr(false, [&](int m, int d, int h, int k) {
        char z[200];
        std::snprintf(
            z, sizeof z,
            "3909500 2968500 %2d %2d %2d %5.1f 1026 145  2.0 5  4.1  92 %4d %4d 226 -295  1\r\n", m,
            d, h, kennung(k), k % 24 * 10, k % 24);
        text += z;
    });
    EXPECT_EQ(format_erkennen(zeilen_teilen(text)), Quellformat::try_dat);
    const Quelldaten d = lesen_ok(Quellformat::try_dat, text);
    EXPECT_NEAR(d.breite, 53.5591, 1e-4);
    EXPECT_NEAR(d.laenge, 8.5872, 1e-4);
    EXPECT_EQ(std::tie(d.stempelzone, d.land), std::make_tuple(1, "Deutschland"));
    EXPECT_NEAR(d.stunden[13].Ta, kennung(13), 1e-9);
    EXPECT_DOUBLE_EQ(d.stunden[13].G_Gh, 130 + 13);
    EXPECT_DOUBLE_EQ(d.stunden[13].G_Dh, 13);

    std::string kurz = text.substr(0, text.rfind("3909500"));
    EXPECT_TRUE(lesen_fehler(Quellformat::try_dat, kurz).zu_wenig);
}

TEST(QuelleMos, StartRowDroppedAndLastHourRepeated) {
    std::string text = "#1\ndouble tab1(8760,30)\n"
                       "#LOCATION,Frankfurt,State,Country,TMY3,Something,50.126,8.6749,1.0,x\n";
    for (int k = 0; k < 8760; ++k) {
        // Row at k * 3600 s: the hour ending then, the first a copy of the second.
        const int stunde = k == 0 ? 0 : k - 1;
        char z[200];
        std::snprintf(z, sizeof z, "%d\t%.1f\t0\t0\t0\t0\t0\t0\t%d\t0\t%d\t0\n", k * 3600,
                      kennung(stunde), stunde % 24 * 10, stunde % 24 * 4);
        text += z;
    }
    EXPECT_EQ(format_erkennen(zeilen_teilen(text)), Quellformat::mos);
    const Quelldaten d = lesen_ok(Quellformat::mos, text);
    EXPECT_EQ(std::tie(d.ort, d.breite, d.stempelzone), std::make_tuple("Frankfurt", 50.126, 1));
    EXPECT_NEAR(d.stunden[0].Ta, kennung(0), 1e-9);
    EXPECT_NEAR(d.stunden[8758].Ta, kennung(8758), 1e-9);
    EXPECT_NEAR(d.stunden[8759].Ta, kennung(8758), 1e-9) << "the missing last hour repeats";
    EXPECT_DOUBLE_EQ(d.stunden[8758].G_Dh, 8758 % 24 * 4);

    std::string halb = text;
    halb.replace(halb.find("\n7200\t"), 6, "\n7300\t");
    EXPECT_EQ(lesen_fehler(Quellformat::mos, halb).zeile, 6);
}

namespace {

// A 15-minute NSRDB file of 2019 with the columns in an odd order; every stamp's temperature is
// its quarter of the hour (1 for :15 .. 4 for :00) and its GHI the number of the quarter-hour
// in the year modulo 1600.
std::string nsrdb(int zone) {
    std::string text =
        "Source,Location ID,City,Latitude,Longitude,Time Zone,Elevation,Local Time Zone\n"
        "NSRDB,1,-,48.21,16.38," +
        std::to_string(zone) +
        ",169,1\n"
        "Year,Month,Day,Hour,Minute,DHI,GHI,DNI,Temperature,Pressure\n";
    int viertel = 0;
    for (int m = 1; m <= 12; ++m) {
        for (int d = 1; d <= TAGE[m - 1]; ++d) {
            for (int h = 0; h < 24; ++h) {
                for (int min = 0; min < 60; min += 15) {
                    char z[200];
                    std::snprintf(z, sizeof z, "2019,%d,%d,%d,%d,%d,%d,0,%d,1000\n", m, d, h, min,
                                  viertel % 1600 / 2, viertel % 1600, min == 0 ? 4 : min / 15);
                    text += z;
                    ++viertel;
                }
            }
        }
    }
    return text;
}

} // namespace

TEST(QuelleNsrdb, FourQuarterHoursMakeTheHourEndingAtTheLast) {
    const std::string text = nsrdb(0);
    EXPECT_EQ(format_erkennen(zeilen_teilen(text)), Quellformat::nsrdb);
    const Quelldaten d = lesen_ok(Quellformat::nsrdb, text);
    EXPECT_EQ(std::tie(d.breite, d.stempelzone, d.ortszone), std::make_tuple(48.21, 0, 1));
    // Hour ending 1:00: stamps 0:15, 0:30, 0:45, 1:00 are quarter-hours 1..4 of the year.
    EXPECT_DOUBLE_EQ(d.stunden[0].Ta, 2.5);
    EXPECT_DOUBLE_EQ(d.stunden[0].G_Gh, 2.5);
    EXPECT_DOUBLE_EQ(d.stunden[0].G_Dh, (0 + 1 + 1 + 2) / 4.0);
    EXPECT_DOUBLE_EQ(d.stunden[100].G_Gh, 402.5);
    // The last hour: 23:15, 23:30, 23:45 of December 31 and 0:00 of January 1.
    const double q = 35036 % 1600;
    EXPECT_DOUBLE_EQ(d.stunden[8759].G_Gh, (q + 1 + q + 2 + q + 3 + 0) / 4);
    EXPECT_DOUBLE_EQ(d.stunden[8759].Ta, 2.5);

    // Into Central European time: the UTC hour ending at 1:00 ends at 2:00.
    const std::vector<Quellstunde> zeilen = stationsreihenfolge(d, 1);
    EXPECT_DOUBLE_EQ(zeilen[2].G_Gh, 2.5);
}

TEST(QuelleNsrdb, ColumnsByName) {
    std::string text = nsrdb(0);
    text.replace(text.find("Temperature"), 11, "Temp");
    const Quellfehler f = lesen_fehler(Quellformat::nsrdb, text);
    EXPECT_EQ(f.zeile, 3);
    EXPECT_NE(f.grund.find("Temperature"), std::string::npos);
}

TEST(QuellePvgis, StampIsTheHourEndingOneHourLater) {
    std::string text = "Latitude (decimal degrees):\t54.605\nLongitude (decimal degrees):\t-5.929\n"
                       "Elevation (m):\t20\n"
                       ",time(UTC),T2m,RH,G(h),Gb(n),Gd(h),IR(h),WS10m,WD10m,SP\n";
    jahr(false, [&](int m, int d, int h, int k) {
        char z[200];
        std::snprintf(z, sizeof z, "%d,2009%02d%02d:%02d00,%.2f,87,%d.0,0,%d.0,300,5,100,1000\n", k,
                      m, d, h - 1, kennung(k), k % 24 * 10, k % 24);
        text += z;
    });
    text += "\nT2m: 2-m air temperature (degree Celsius)\nPVGIS (c) European Union, 2001-2024\n";
    EXPECT_EQ(format_erkennen(zeilen_teilen(text)), Quellformat::pvgis);
    const Quelldaten d = lesen_ok(Quellformat::pvgis, text);
    EXPECT_EQ(std::tie(d.koordinaten, d.laenge, d.ortszone), std::make_tuple(true, -5.929, 0));
    EXPECT_NEAR(d.stunden[0].Ta, kennung(0), 1e-9) << "stamp 00:00 is the hour ending 1:00";
    EXPECT_DOUBLE_EQ(d.stunden[8759].G_Gh, 230);
}

TEST(QuelleFormat, ColumnTextsAreNotTakenForAFormat) {
    const std::string spalten = "Ta\tG_Gh\n1\t2\n";
    EXPECT_EQ(format_erkennen(zeilen_teilen(spalten)), Quellformat::spalten);
    EXPECT_EQ(format_erkennen({}), Quellformat::spalten);
    Quelldaten d;
    Quellfehler f;
    EXPECT_FALSE(quelle_lesen(Quellformat::spalten, spalten, d, f));
}

TEST(QuelleZone, WestwardZonesMoveHoursBack) {
    Quelldaten d;
    d.stempelzone = 0;
    d.stunden.resize(8760);
    for (int k = 0; k < 8760; ++k) {
        d.stunden[static_cast<std::size_t>(k)].Ta = kennung(k);
    }
    // At zone -5 the UTC hour ending 6:00 is the local hour ending 1:00 (row 1).
    reihenfolge_pruefen(d, -5, {{1, 5}, {0, 4}, {8759, 3}});
}
