// SPDX-License-Identifier: GPL-3.0-or-later
// The case library: buildings grouped by topic, each recalculated on the synthetic test station
// and compared with its last accepted output exactly, to catch silent drift of any stored value.
// The hourly tables enter through a checksum of their bit patterns.
//
// After an intended change of results, regenerate and review the golden files:
//   VELMARIS_GOLDEN_UPDATE=1 build/test/tests/test_regression
//   git diff tests/regression/golden/
#include "app/shell/ergebnis_json.h"
#include "calc/c_mod.h"
#include "tests/regression/fallbibliothek.h"
#include "tests/support/Testprojekt.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace {

uint64_t pruefsumme(const Projekt& p) {
    uint64_t hash = 1469598103934665603ull;
    auto mischen = [&](float wert) {
        uint32_t bits;
        std::memcpy(&bits, &wert, sizeof bits);
        for (int i = 0; i < 4; ++i) {
            hash ^= (bits >> (8 * i)) & 0xFF;
            hash *= 1099511628211ull;
        }
    };
    for (int m = 1; m <= 12; ++m) {
        for (int d = 1; d <= p.Monat[m].Tage; ++d) {
            for (int h = 1; h <= 24; ++h) {
                mischen(p.T_frei(m, d, h));
                mischen(p.T_regel(m, d, h));
                mischen(p.Q_heiz(m, d, h));
                mischen(p.Q_kuehl(m, d, h));
            }
        }
    }
    return hash;
}

std::string ergebnis(const Fall& fall) {
    TempOrdner ordner;
    auto p = neues_testprojekt(ordner);
    fall.aendern(*p);
    alles_berechnen(*p);
    char summe[32];
    std::snprintf(summe, sizeof summe, "%016llx", static_cast<unsigned long long>(pruefsumme(*p)));
    return ergebnis_json(*p, false) + "\nstunden_fnv1a " + summe + "\n";
}

class Fallbibliothek : public testing::TestWithParam<Fall> {};

} // namespace

TEST_P(Fallbibliothek, MatchesItsLastAcceptedOutput) {
    const Fall& fall = GetParam();
    const std::string pfad =
        std::string(VELMARIS_SOURCE_DIR) + "/tests/regression/golden/" + fall.name + ".txt";
    const std::string jetzt = ergebnis(fall);
    if (std::getenv("VELMARIS_GOLDEN_UPDATE")) {
        std::ofstream(pfad, std::ios::binary) << jetzt;
        GTEST_SKIP() << "rewrote " << pfad;
    }
    std::ifstream datei(pfad, std::ios::binary);
    ASSERT_TRUE(datei) << "no golden file " << pfad;
    std::stringstream gold;
    gold << datei.rdbuf();
    EXPECT_EQ(jetzt, gold.str()) << "results of case " << fall.name << " drifted";
}

INSTANTIATE_TEST_SUITE_P(Gebaeude, Fallbibliothek, testing::ValuesIn(FAELLE),
                         [](const testing::TestParamInfo<Fall>& info) {
                             return std::string(info.param.name);
                         });
