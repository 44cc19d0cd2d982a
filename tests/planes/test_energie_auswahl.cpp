// SPDX-License-Identifier: GPL-3.0-or-later
// The heat supply selection of the energy plane.
#include "tests/project/SkriptDialogs.h"

#include <gtest/gtest.h>

TEST(E_Energie, NewSystemResetsTransferAndCarrier) {
    Programm prog;
    E_Energie& en = prog.e->energie;
    en.Command1_Click();
    EXPECT_TRUE(en.Frame_Auswahl_Visible);
    EXPECT_EQ(en.Auswahlfeld, "Label_System");
    en.Label_Auswahl_Click(6);
    en.Command3_Click();
    for (int i = 1; i <= 4; ++i) {
        EXPECT_TRUE(en.Label_Auswahl[static_cast<std::size_t>(i - 1)].Visible) << i;
    }
    EXPECT_FALSE(en.Label_Auswahl[4].Visible);
    en.Label_Auswahl_Click(4);
    EXPECT_EQ(prog.p->Energietraeger, 4);
    EXPECT_EQ(en.Label_Energietraeger.Caption,
              "Wärme aus Heizkraftwerken, erneuerbarer Brennstoff");
    prog.p->Geaendert = 0;
    en.Command1_Click();
    en.Label_Auswahl_Click(1);
    EXPECT_EQ(prog.p->Heizsystem, 1);
    EXPECT_EQ(prog.p->Energietraeger, 1);
    EXPECT_EQ(prog.p->Uebergabe, 1);
    EXPECT_EQ(en.Label_Energietraeger.Caption, "Heizöl EL");
    EXPECT_FALSE(en.Frame_Auswahl_Visible);
    EXPECT_EQ(prog.p->Geaendert, 0); // a new heat supply is not a change of the project
}

TEST(E_Energie, OfferedEntries) {
    Programm prog("e");
    E_Energie& en = prog.e->energie;
    en.Command1_Click();
    en.Label_Auswahl_Click(5);
    en.Command3_Click();
    int sichtbar = 0;
    for (const Label& l : en.Label_Auswahl) {
        sichtbar += l.Visible ? 1 : 0;
    }
    EXPECT_EQ(sichtbar, 1);
    en.Frame_Auswahl_Click();
    EXPECT_FALSE(en.Frame_Auswahl_Visible);
    en.Command1_Click();
    en.Label_Auswahl_Click(8);
    EXPECT_EQ(en.Label_Uebergabe.Caption, "");
    en.Command2_Click();
    EXPECT_FALSE(en.Label_Auswahl[0].Visible);
    EXPECT_FALSE(en.Label_Auswahl[2].Visible);
}

TEST(E_Energie, StoredChoiceOutsideTheCatalogueTraps) {
    Programm prog;
    prog.p->Heizsystem = 10;
    EXPECT_THROW(prog.e->energie.felder_zeigen(), Laufzeitfehler);
    prog.p->Heizsystem = 5;
    prog.p->Energietraeger = 5;
    EXPECT_THROW(prog.e->energie.felder_zeigen(), Laufzeitfehler);
}

TEST(E_Energie, ListStacksItsEntriesUnderTheField) {
    Programm prog;
    E_Energie& en = prog.e->energie;
    en.Label_Uebergabe.Left = 300;
    en.Label_Uebergabe.Top = 2000;
    en.Label_Uebergabe.Height = 400;
    // Texts longer than 60 characters take two lines.
    en.Texthoehe = [](const std::string& t) { return t.size() > 60 ? 390 : 195; };
    en.Command2_Click();
    EXPECT_EQ(en.Auswahlfeld, "Label_Übergabe");
    EXPECT_EQ(en.Label_Auswahl[0].Top, 120);
    EXPECT_EQ(en.Label_Auswahl[1].Top, 120 + 390 + 120);
    EXPECT_EQ(en.Frame_Auswahl_Height, 120 + 390 + 120 + 390 + 120);
    EXPECT_EQ(en.Frame_Auswahl_Left, 300);
    EXPECT_EQ(en.Frame_Auswahl_Top, 2400);
    en.Command2_Click(); // the same button closes the list again
    EXPECT_FALSE(en.Frame_Auswahl_Visible);
}
