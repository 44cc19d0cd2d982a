// SPDX-License-Identifier: GPL-3.0-or-later
// The number texts of the browser build's portable path against the standard library's.
#include "project/zahlwandlung.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>

namespace {

std::string kurz(float wert) {
    char puffer[64];
    const auto erg = zahlwandlung::schreiben(puffer, puffer + sizeof puffer, wert);
    return std::string(puffer, erg.ptr);
}

std::string kurz_portabel(float wert) {
    char puffer[64];
    const auto erg = zahlwandlung::portabel::schreiben(puffer, puffer + sizeof puffer, wert);
    return std::string(puffer, erg.ptr);
}

std::string mit_genauigkeit(bool portabel, double wert, std::chars_format form, int stellen) {
    char puffer[128];
    const auto erg =
        portabel
            ? zahlwandlung::portabel::schreiben(puffer, puffer + sizeof puffer, wert, form, stellen)
            : zahlwandlung::schreiben(puffer, puffer + sizeof puffer, wert, form, stellen);
    return std::string(puffer, erg.ptr);
}

float als_float(std::uint32_t bits) {
    float f;
    std::memcpy(&f, &bits, sizeof f);
    return f;
}

} // namespace

TEST(Zahlwandlung, ShortestFloatTextsAsTheJsonShowsThem) {
    struct Fall {
        float wert;
        const char* text;
    };
    const Fall faelle[] = {
        {0.1f, "0.1"},
        {-2.85f, "-2.85"},
        {0.001f, "0.001"},
        {0.0001f, "1e-04"},
        {1e10f, "1e+10"},
        {1.5e9f, "1.5e+09"},
        {16777216.f, "16777216"},
        {123456790000.f, "123456790528"},
        {0.f, "0"},
        {-0.f, "-0"},
        {1e-45f, "1e-45"},
        {3.4028235e38f, "3.4028235e+38"},
        {20.f, "20"},
        {1234.5f, "1234.5"},
    };
    for (const Fall& f : faelle) {
        EXPECT_EQ(kurz(f.wert), f.text);
        EXPECT_EQ(kurz_portabel(f.wert), f.text);
    }
}

TEST(Zahlwandlung, PortableFloatTextsEqualTheLibrarysOverTheWholeRange) {
    // Every power of two (where the lower neighbour lies closer) and a spread of all patterns.
    for (int e = -149; e <= 127; ++e) {
        const float f = std::ldexp(1.0f, e);
        ASSERT_EQ(kurz_portabel(f), kurz(f)) << e;
        ASSERT_EQ(kurz_portabel(std::nextafter(f, 0.f)), kurz(std::nextafter(f, 0.f))) << e;
    }
    for (std::uint64_t bits = 1; bits < 0x7f800000u; bits += 131071) {
        const float f = als_float(static_cast<std::uint32_t>(bits));
        ASSERT_EQ(kurz_portabel(f), kurz(f)) << bits;
        ASSERT_EQ(kurz_portabel(-f), kurz(-f)) << bits;
    }
}

TEST(Zahlwandlung, PortablePrecisionTextsEqualTheLibrarys) {
    const double werte[] = {0,      2.85f,          2.85, -1234.56789, 1e-5, 9.9999995e-5,
                            1e7,    9999999.5,      0.5,  1.5,         2.5,  1e300,
                            5e-324, 123456789012.0, -0.0, 0.125,       1e-4, 99.95};
    const std::chars_format formen[] = {std::chars_format::general, std::chars_format::scientific,
                                        std::chars_format::fixed};
    for (const double w : werte) {
        for (const std::chars_format form : formen) {
            for (const int stellen : {0, 1, 2, 6, 7, 14}) {
                EXPECT_EQ(mit_genauigkeit(true, w, form, stellen),
                          mit_genauigkeit(false, w, form, stellen))
                    << w << " " << static_cast<int>(form) << " " << stellen;
            }
        }
    }
    EXPECT_EQ(mit_genauigkeit(true, 1e-5, std::chars_format::general, 7), "1e-05");
    EXPECT_EQ(mit_genauigkeit(true, 2.85f, std::chars_format::scientific, 14),
              "2.84999990463257e+00");
}

TEST(Zahlwandlung, ReadsTheSameNumbersInBothPaths) {
    struct Fall {
        const char* text;
        std::errc fehler;
        int gelesen; // characters taken
        double wert; // when read
    };
    const double alt = 42;
    const Fall faelle[] = {
        {"12.5", std::errc(), 4, 12.5},
        {"-.5", std::errc(), 3, -0.5},
        {"12.", std::errc(), 3, 12},
        {"1e3", std::errc(), 3, 1000},
        {"1E-2x", std::errc(), 4, 0.01},
        {"1e", std::errc(), 1, 1},
        {"1e+", std::errc(), 1, 1},
        {"0.1", std::errc(), 3, 0.1},
        {"4e-320", std::errc(), 6, 4e-320},
        {"0e999", std::errc(), 5, 0},
        {"1e400", std::errc::result_out_of_range, 5, alt},
        {"2e-324", std::errc::result_out_of_range, 6, alt},
        {"+1", std::errc::invalid_argument, 0, alt},
        {" 1", std::errc::invalid_argument, 0, alt},
        {"inf", std::errc::invalid_argument, 0, alt},
        {"nan", std::errc::invalid_argument, 0, alt},
        {".", std::errc::invalid_argument, 0, alt},
        {"-", std::errc::invalid_argument, 0, alt},
        {"", std::errc::invalid_argument, 0, alt},
    };
    for (const Fall& f : faelle) {
        const char* ende = f.text + std::strlen(f.text);
        for (const bool portabel : {false, true}) {
            double wert = alt;
            const auto erg = portabel ? zahlwandlung::portabel::lesen(f.text, ende, wert)
                                      : zahlwandlung::lesen(f.text, ende, wert);
            EXPECT_EQ(erg.ec, f.fehler) << f.text << " " << portabel;
            if (erg.ec != std::errc::invalid_argument) {
                EXPECT_EQ(erg.ptr - f.text, f.gelesen) << f.text << " " << portabel;
            }
            EXPECT_EQ(wert, f.wert) << f.text << " " << portabel;
        }
    }
}
