// SPDX-License-Identifier: GPL-3.0-or-later
// The project file: its lines, its number forms, its two versions and its faults.
#include "project/Laufzeitfehler.h"
#include "project/Zahltext.h"
#include "project/lebenszyklus/projektdatei.h"
#include "tests/project/SkriptDialogs.h"

#include <gtest/gtest.h>

namespace {

// The lines 2..69 of a new project, as they stand in the file.
const std::vector<std::string> NEU = {
    " 10",  " 10",  " 5.2", " 2",   " 0",        " 0",   " 0",   " 25",  " 20", " 27", // 2-11
    " 1",   " 1",   " 1",   " 1",   " 3",        " 3",   " 3",   " 3",                 // 12-19
    " .2",  " .2",  " .2",  " .2",  " .2",       " .2",  " 0",   " 1.5", " 0",  " 0",  " .5",
    " 1", // 20-31
    " 5",   " 40",  " 5",   " 5",   " .2",       " .2",  " .2",  " .2",  " .2", " .2", " .2",
    " .2",                                                                                  // 32-43
    " 1.4", " 1.4", " 1.4", " 1.4", " 1.5",      " 1.5", " 1.5", " 1.5",                    // 44-51
    " .58", " .58", " .58", " .58", "trier.met", " 1",   " 1",   " 0",   "1",   " 2",  "0", // 52-62
    " 2.5", " 2",   " 1",   " 1",   " 1",        " .6",  " .1"};                            // 63-69

std::string datei(const std::vector<std::string>& zeilen) {
    std::string text;
    for (const std::string& z : zeilen) {
        text += z + "\r\n";
    }
    return text;
}

std::vector<std::string> version32(std::vector<std::string> werte = NEU) {
    werte.insert(werte.begin(), "Velmaris Version 3.2");
    return werte;
}

// Reads `zeilen` as a project file into `prog`.
bool lesen(Programm& prog, const std::vector<std::string>& zeilen) {
    return datei_lesen(*prog.p, *prog.e, prog.dialogs, datei(zeilen));
}

} // namespace

TEST(Zahltext, PlainNumberLines) {
    const std::pair<float, const char*> faelle[] = {
        {5.2f, " 5.2"},      {0.2f, " .2"},         {10, " 10"},
        {-15, "-15"},        {-0.5f, "-.5"},        {0, " 0"},
        {0.58f, " .58"},     {1234567, " 1234567"}, {12345678, " 1.234568E+07"},
        {0.0001f, " .0001"}, {0.00001f, " 1E-05"},  {1.0f / 3, " .3333333"}};
    for (const auto& [wert, text] : faelle) {
        EXPECT_EQ(zahl_str(wert), text) << wert;
    }
    EXPECT_EQ(zahl_text(2.5f, ','), "2,5");
}

TEST(Projektdatei, NewProjectWritesTheDefaultLines) {
    Programm prog;
    const std::string text = datei_schreiben(*prog.p);
    EXPECT_EQ(text, datei(version32()));
}

TEST(Projektdatei, SavedAndReadAgainGivesTheSameLines) {
    Programm prog;
    prog.dialogs.dateien.push_back(prog.pfad("neu.vel"));
    ASSERT_TRUE(prog.io->datei_speichern_unter());
    Programm zweites;
    zweites.io->datei_oeffnen(prog.pfad("neu.vel"));
    EXPECT_TRUE(zweites.dialogs.nachrichten.empty());
    EXPECT_EQ(datei_schreiben(*zweites.p), datei(version32()));
}

TEST(Projektdatei, OffGridValuesSurviveWriteAndRead) {
    Programm prog;
    prog.p->l = 12.34567f;
    prog.p->kwn = 0.1234567f;
    prog.p->Troom = -7.25f;
    prog.p->Klimadatei = "würzburg.met";
    const std::string text = datei_schreiben(*prog.p);
    EXPECT_NE(text.find("\r\nw\xFCrzburg.met\r\n"), std::string::npos);
    Programm zweites;
    ASSERT_TRUE(datei_lesen(*zweites.p, *zweites.e, zweites.dialogs, text));
    EXPECT_EQ(zweites.p->l, 12.34567f);
    EXPECT_EQ(zweites.p->kwn, 0.1234567f);
    EXPECT_EQ(zweites.p->Troom, -7.25f);
    EXPECT_EQ(zweites.p->Klimadatei, "würzburg.met");
}

TEST(Projektdatei, Version30LoadsWithoutInfiltrationAndWithHeatBridges) {
    std::vector<std::string> alt = NEU;
    alt.resize(66);
    alt.insert(alt.begin(), "Velmaris Version 3.0");
    Programm prog;
    prog.ordner.schreiben("alt.vel", datei(alt));
    prog.io->datei_oeffnen(prog.pfad("alt.vel"));
    EXPECT_TRUE(prog.dialogs.nachrichten.empty());
    EXPECT_EQ(prog.p->infiltration, 0.0f);
    EXPECT_EQ(prog.p->Waermebruecken, 0.1f);
    EXPECT_EQ(prog.dialogs.titel, "Velmaris - ALT.VEL");
    // Written back as the current version with both values added.
    const std::string neu = datei_schreiben(*prog.p);
    std::vector<std::string> erwartet = version32();
    erwartet[67] = " 0"; // line 68, infiltration
    EXPECT_EQ(neu, datei(erwartet));
}

TEST(Projektdatei, TolerantListInput) {
    std::vector<std::string> z = version32();
    z[1] = "   12.5  ";     // blanks around a number
    z[2] = "8,99";          // a comma ends the value; 99 is the next one, the height
    z.erase(z.begin() + 3); // so the height line goes
    z[18] = ".35";          // no blank, no zero (kwn, line 20 before the erase)
    z.push_back("further lines are ignored");
    Programm prog;
    ASSERT_TRUE(lesen(prog, z));
    EXPECT_EQ(prog.p->l, 12.5f);
    EXPECT_EQ(prog.p->b, 8.0f);
    EXPECT_EQ(prog.p->h, 99.0f);
    EXPECT_EQ(prog.p->ag, 2.0f);
    EXPECT_EQ(prog.p->kwn, 0.35f);
    EXPECT_EQ(prog.p->Waermebruecken, 0.1f);

    // LF alone ends a line as well.
    std::string lf = datei(version32());
    for (std::size_t i = lf.find('\r'); i != std::string::npos; i = lf.find('\r')) {
        lf.erase(i, 1);
    }
    Programm zweites;
    EXPECT_TRUE(datei_lesen(*zweites.p, *zweites.e, zweites.dialogs, lf));
}

TEST(Projektdatei, ItemsAfterACommaAreReadFromTheSameLine) {
    // The version line and the length on one line, the station and the inner wall kind on
    // another: every value lands in its own field.
    std::vector<std::string> z = version32();
    z[0] = "  Velmaris Version 3.2, 12.5";
    z.erase(z.begin() + 1);
    z[54] = "trier.met, 2"; // the station, then the inner wall kind of the next line
    z.erase(z.begin() + 55);
    Programm prog;
    ASSERT_TRUE(lesen(prog, z));
    EXPECT_EQ(prog.p->l, 12.5f);
    EXPECT_EQ(prog.p->b, 10.0f);
    EXPECT_EQ(prog.p->Klimadatei, "trier.met");
    EXPECT_EQ(prog.e->gebaeude.Innenwandart.ListIndex(), 2);
    EXPECT_EQ(prog.e->gebaeude.Aussenwandart.ListIndex(), 1);
    EXPECT_EQ(prog.p->Waermebruecken, 0.1f);

    // A text after the comma of the version line becomes the length: a read fault, not a
    // silently shifted project.
    z = version32();
    z[0] = "Velmaris Version 3.2,cut";
    Programm drittes;
    try {
        lesen(drittes, z);
        FAIL() << "the text after the comma is read as the length";
    } catch (const Laufzeitfehler& f) {
        EXPECT_EQ(f.nummer(), Laufzeitfehler::Typfehler);
    }
    // A station name with a comma is cut there, and what follows is the next value.
    z = version32();
    z[55] = "  trier.met,x";
    EXPECT_THROW(lesen(drittes, z), Laufzeitfehler);
    EXPECT_EQ(drittes.p->Klimadatei, "trier.met");
}

TEST(Projektdatei, WindowModeLineWithAnotherValueKeepsTheOption) {
    for (const auto& [zeile, modus] : {std::pair{"5", 1}, {"-1", 1}, {"0", 0}}) {
        Programm prog;
        prog.e->fenster.Option1.setzen(1);
        std::vector<std::string> z = version32();
        z[61] = zeile;
        ASSERT_TRUE(lesen(prog, z));
        EXPECT_EQ(prog.e->fenster.Option1.gesetzt(), modus) << zeile;
        EXPECT_EQ(prog.p->Fenstermodus, modus) << zeile;
    }
}

TEST(Projektdatei, ShortOrBrokenFilesThrowAndKeepWhatWasRead) {
    Programm prog;
    std::vector<std::string> kurz = version32();
    kurz.resize(30);
    kurz[1] = " 17";
    try {
        lesen(prog, kurz);
        FAIL() << "a short file must throw";
    } catch (const Laufzeitfehler& f) {
        EXPECT_EQ(f.nummer(), Laufzeitfehler::EingabeNachDateiende);
    }
    EXPECT_EQ(prog.p->l, 17.0f);

    // Not a number; an orientation beyond 16 bits; no such construction row, either way; a
    // check holding neither 0 nor 1; a value beyond a 32-bit float.
    const std::pair<std::size_t, const char*> brueche[] = {{3, "abc"}, {7, "40000"}, {57, " 3"},
                                                           {57, "-1"}, {58, " 2"},   {1, "1E39"}};
    for (const auto& [zeile, wert] : brueche) {
        std::vector<std::string> falsch = version32();
        falsch[zeile] = wert;
        EXPECT_THROW(lesen(prog, falsch), Laufzeitfehler) << zeile << ": " << wert;
    }
}

TEST(Projektdatei, RidgeLineWithAnotherValueClearsBothOptions) {
    std::vector<std::string> z = version32();
    z[58] = " 1"; // heated attic
    z[59] = "7";
    Programm prog;
    ASSERT_TRUE(lesen(prog, z));
    EXPECT_EQ(prog.e->geometrie.Option_Dachfirst.gesetzt(), -1);
    EXPECT_EQ(prog.p->Dachfirst, 0);
    // Written back as east-west, which is what the driver made of it.
    EXPECT_NE(datei_schreiben(*prog.p).find("\r\n 1\r\n2\r\n"), std::string::npos);
}

TEST(Projektdatei, WrongVersionChangesNothingButTheName) {
    Programm prog;
    prog.p->l = 33;
    const std::string vorher = datei_schreiben(*prog.p);
    std::vector<std::string> z = version32();
    z[0] = "Velmaris Version 3.1";
    EXPECT_FALSE(lesen(prog, z));
    EXPECT_EQ(datei_schreiben(*prog.p), vorher);
    EXPECT_EQ(prog.p->Datei, "default.vel");
    ASSERT_EQ(prog.dialogs.nachrichten.size(), 1u);
    EXPECT_EQ(prog.dialogs.nachrichten[0].titel, "Fehler");
    EXPECT_EQ(prog.dialogs.nachrichten[0].text,
              "Dies ist keine gültige Velmaris-Datendatei.\r\n\r\nDaten konnten nicht geladen "
              "werden!");
    EXPECT_EQ(versionsfehler_text("e"),
              "This is not a valid Velmaris data file.\r\n\r\nData could not be read.!");
    // The comparison is exact, case included.
    z[0] = "velmaris version 3.2";
    EXPECT_FALSE(lesen(prog, z));
}
