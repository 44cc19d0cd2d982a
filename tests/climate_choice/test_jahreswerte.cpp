// SPDX-License-Identifier: GPL-3.0-or-later
// The station's year values on the climate plane: shown only once a station's year values were
// read, with the decimal mark of the run.
#include "climate/ebene/E_Klima.h"
#include "project/c_glob.h"
#include "tests/support/Testprojekt.h"

#include <gtest/gtest.h>

TEST(Klimajahreswerte, ShownOnlyWithAWarmestMonthOfTheYear) {
    struct Fall {
        int max_monat;
        char dezimal;
        const char *mittel, *min, *max;
    };
    const Fall faelle[] = {
        {0, ',', "", "", ""},             // no station read yet
        {13, '.', "", "", ""},            // no month of the year
        {1, ',', "9,5", "-2,0", "18,4"},  // the first month
        {12, '.', "9.5", "-2.0", "18.4"}, // the last month
        {7, ',', "9,5", "-2,0", "18,4"},
    };
    for (const Fall& f : faelle) {
        SCOPED_TRACE(f.max_monat);
        auto p = leeres_projekt();
        p->Klimainfo.MaxMonat = f.max_monat;
        p->Klimainfo.MittelJahrTemp = 9.46f;
        p->Klimainfo.MinMonatTemp = -2.04f;
        p->Klimainfo.MaxMonatTemp = 18.35f;
        E_Klima e;
        e.anz_MittelJahrTemp.Caption = "alt";
        klima_jahreswerte_zeigen(e, *p, f.dezimal);
        EXPECT_EQ(e.anz_MittelJahrTemp.Caption, f.mittel);
        EXPECT_EQ(e.anz_MinMonatTemp.Caption, f.min);
        EXPECT_EQ(e.anz_MaxMonatTemp.Caption, f.max);
    }
}
