// SPDX-License-Identifier: GPL-3.0-or-later
// The delivered map pictures and the bounded BMP reader behind the region pick.
#include "climate/Bitmap.h"
#include "climate/ebene/E_Klima.h"
#include "climate/ebene/stationskarten.h"
#include "climate/klimaregionen.h"
#include "climate/stationslisten.h"
#include "project/FatalError.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

const std::string GRAFIKEN = std::string(VELMARIS_SOURCE_DIR) + "/Grafiken/";

int32_t farbe(int r, int g, int b) {
    return r | g << 8 | b << 16;
}

// A BMP of w x h pixels, 24 bits, with pixel (x, y) in the colour x * 40 + y.
std::string bmp(int w, int h, bool von_oben) {
    const int zeile = (w * 3 + 3) / 4 * 4;
    std::string d(static_cast<std::size_t>(54 + zeile * h), '\0');
    auto u32 = [&](std::size_t pos, uint32_t v) {
        for (int i = 0; i < 4; ++i) {
            d[pos + static_cast<std::size_t>(i)] = static_cast<char>(v >> (8 * i) & 0xff);
        }
    };
    d[0] = 'B';
    d[1] = 'M';
    u32(2, static_cast<uint32_t>(d.size()));
    u32(10, 54);
    u32(14, 40);
    u32(18, static_cast<uint32_t>(w));
    u32(22, static_cast<uint32_t>(von_oben ? -h : h));
    d[26] = 1;
    d[28] = 24;
    for (int y = 0; y < h; ++y) {
        const int reihe = von_oben ? y : h - 1 - y;
        for (int x = 0; x < w; ++x) {
            const std::size_t p = static_cast<std::size_t>(54 + reihe * zeile + x * 3);
            d[p] = 0;                                 // blue
            d[p + 1] = static_cast<char>(y);          // green
            d[p + 2] = static_cast<char>(x * 40 + 1); // red
        }
    }
    return d;
}

} // namespace

TEST(Regionenkarte, JederReferenzpixelGibtSeineRegionInAllenDreizehnBildern) {
    const int32_t erste =
        bitmap_lesen(GRAFIKEN + "klima0.bmp").farbe(klimaregion(1).x, klimaregion(1).y);
    for (int hervor = 0; hervor <= KLIMAREGIONEN; ++hervor) {
        SCOPED_TRACE("klima" + std::to_string(hervor) + ".bmp");
        const Bitmap karte = bitmap_lesen(GRAFIKEN + "klima" + std::to_string(hervor) + ".bmp");
        std::set<int32_t> farben;
        for (int i = 1; i <= KLIMAREGIONEN; ++i) {
            const Klimaregion& r = klimaregion(i);
            EXPECT_EQ(region_an_pixel(karte, r.x, r.y, true), i) << "region " << i;
            EXPECT_EQ(region_an_pixel(karte, r.x, r.y, false), i) << "region " << i;
            // The user hits a region, not a single pixel: the area round it counts.
            EXPECT_EQ(region_an_pixel(karte, r.x + 1, r.y + 1, true), i) << "region " << i;
            EXPECT_EQ(region_an_pixel(karte, r.x - 1, r.y - 1, true), i) << "region " << i;
            farben.insert(karte.farbe(r.x, r.y));
        }
        EXPECT_EQ(farben.size(), 12u) << "every region needs a colour of its own";
        if (hervor == 1) {
            EXPECT_NE(karte.farbe(klimaregion(1).x, klimaregion(1).y), erste)
                << "the highlighted region changes its colour";
        }
    }
}

TEST(Regionenkarte, AusserhalbDerRegionenKeinTreffer) {
    const Bitmap karte = bitmap_lesen(GRAFIKEN + "klima0.bmp");
    EXPECT_EQ(region_an_pixel(karte, 0, 0, true), 0); // North Sea corner
    EXPECT_EQ(region_an_pixel(karte, -1, 5, true), 0);
    EXPECT_EQ(region_an_pixel(karte, karte.breite, 5, false), 0);
    EXPECT_EQ(Picture1_Hover(karte, 0, 0), "");
    EXPECT_EQ(Picture1_Hover(karte, 25, 175),
              " Klimaregion 11 : Hochlagen der nörd- \n lichen und westlichen Mittelgebirge ");
}

TEST(Stationskarten, GroessenUndKeineFarbeDerPunkte) {
    const Bitmap europa = bitmap_lesen(GRAFIKEN + "europa.bmp");
    const Bitmap welt = bitmap_lesen(GRAFIKEN + "welt.bmp");
    EXPECT_EQ(europa.breite, 234);
    EXPECT_EQ(europa.hoehe, 201);
    EXPECT_EQ(welt.breite, 650);
    EXPECT_EQ(welt.hoehe, 250);
    for (const Bitmap* b : {&europa, &welt}) {
        for (const int32_t f : b->farben) {
            ASSERT_NE(f, FARBE_STATION) << "a map pixel would pass for a station dot";
            ASSERT_NE(f, FARBE_GEWAEHLT);
        }
    }
}

TEST(Stationskarten, PunkteFallenAufLandOderMeerWieDieOrte) {
    const Bitmap europa = bitmap_lesen(GRAFIKEN + "europa.bmp");
    const Bitmap welt = bitmap_lesen(GRAFIKEN + "welt.bmp");
    const int32_t land = farbe(205, 225, 180);
    const int32_t meer = farbe(190, 220, 245);
    auto e = [&](double b, double o) {
        const auto [x, y] = europa_punkt(b, o);
        return europa.farbe(static_cast<int>(x), static_cast<int>(y));
    };
    auto w = [&](double b, double o) {
        const auto [x, y] = welt_punkt(b, o);
        return welt.farbe(static_cast<int>(x), static_cast<int>(y));
    };
    EXPECT_EQ(e(40.4, -3.7), land);   // Madrid
    EXPECT_EQ(e(52.2, 21.0), land);   // Warsaw
    EXPECT_EQ(e(50.1, 8.7), land);    // Frankfurt
    EXPECT_EQ(e(64.8, -18.5), land);  // inner Iceland, far west and north
    EXPECT_EQ(e(55.0, 3.0), meer);    // North Sea
    EXPECT_EQ(e(38.0, 5.0), meer);    // western Mediterranean
    EXPECT_EQ(e(43.0, 34.0), meer);   // Black Sea
    EXPECT_EQ(w(39.7, -105.0), land); // Denver
    EXPECT_EQ(w(-25.0, 135.0), land); // inner Australia
    EXPECT_EQ(w(0.0, -140.0), meer);  // Pacific
    EXPECT_EQ(w(-30.0, -20.0), meer); // South Atlantic
}

TEST(BitmapLesen, ZeilenVonUntenUndVonObenGebenDasselbeBild) {
    for (const bool von_oben : {false, true}) {
        const Bitmap b = bitmap_aus_daten(bmp(3, 2, von_oben), "test");
        ASSERT_EQ(b.breite, 3);
        ASSERT_EQ(b.hoehe, 2);
        EXPECT_EQ(b.farbe(0, 0), farbe(1, 0, 0));
        EXPECT_EQ(b.farbe(2, 1), farbe(81, 1, 0));
        EXPECT_EQ(b.farbe(3, 0), -1);
        EXPECT_EQ(b.farbe(0, 2), -1);
    }
}

TEST(BitmapLesen, KaputteDateienGebenEineKlareMeldung) {
    const std::string gut = bmp(5, 4, false);
    std::string palette = gut, riesig = gut, komprimiert = gut;
    palette[28] = 8;
    riesig[21] = 0x40; // width far beyond any map
    komprimiert[30] = 1;
    for (const auto& [daten, name] : {std::pair{gut.substr(0, gut.size() - 1), "kurz.bmp"},
                                      {gut.substr(0, 20), "kopf.bmp"},
                                      {"GIF89a" + gut, "gif.bmp"},
                                      {palette, "8bit.bmp"},
                                      {riesig, "riesig.bmp"},
                                      {komprimiert, "rle.bmp"}}) {
        try {
            bitmap_aus_daten(daten, name);
            ADD_FAILURE() << name << " was read";
        } catch (const FatalError& f) {
            EXPECT_NE(std::string(f.what()).find(name), std::string::npos) << f.what();
        }
    }
    EXPECT_THROW(bitmap_lesen(GRAFIKEN + "gibt_es_nicht.bmp"), FatalError);
}
