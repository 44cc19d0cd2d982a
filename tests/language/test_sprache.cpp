// SPDX-License-Identifier: GPL-3.0-or-later
// The language of the run: the letter, the language file, the shared texts, month names, the
// menu's choice and the caption tables.
#include "language/Beschriftungen.h"
#include "language/c_Sprache.h"
#include "tests/project/SkriptDialogs.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

struct Sprachumgebung {
    Sprachumgebung() : p(leeres_projekt()) { p->KlimaOrdner = ordner.pfad().string(); }
    TempOrdner ordner;
    std::unique_ptr<Projekt> p;
};

} // namespace

TEST(Sprache, SharedTextsAndMonthNames) {
    Sprachumgebung u;
    u.p->Sprache = "d";
    sprachtexte_setzen(*u.p);
    EXPECT_EQ(u.p->Monat[3].Name, "März");
    EXPECT_EQ(u.p->Monat[3].Kurz, "Mär.");
    EXPECT_EQ(u.p->Monat[5].Kurz, "Mai");
    EXPECT_EQ(u.p->Monat[10].Kurz, "Okt.");
    EXPECT_EQ(u.p->txt_Klima_fehlt,
              "   Klimadatensatz nicht gefunden!\rDefault-Klimadatensatz wird geladen!");
    u.p->Sprache = "e";
    sprachtexte_setzen(*u.p);
    EXPECT_EQ(u.p->Monat[5].Name, "May");
    EXPECT_EQ(u.p->Monat[5].Kurz, "May");
    EXPECT_EQ(u.p->Monat[12].Kurz, "Dec.");
    EXPECT_EQ(u.p->txt_Ersetzen, "This file already exists.\n\n      Overwrite it?");
    EXPECT_EQ(u.p->txt_Aenderung_Titel, "Save changes ?");
    EXPECT_EQ(u.p->txt_Aussenluft, "outdoor air temperature");
    // The one text for both languages.
    EXPECT_EQ(u.p->txt_Sprache, "Sprache wird beim nächsten Start des Programms geändert!\r\r"
                                "Language will be changed after the next start of the program!");

    // A third letter sets neither language's texts.
    Sprachumgebung andere;
    andere.p->Sprache = "f";
    sprachtexte_setzen(*andere.p);
    EXPECT_EQ(andere.p->Monat[1].Name, "");
    EXPECT_EQ(andere.p->txt_Monat, "");
}

TEST(Sprache, LanguageFileAndTheChoiceAtStart) {
    Sprachumgebung u;
    int gefragt = 0;
    // No file: the choice is asked and written.
    EXPECT_FALSE(sprache_beim_start(*u.p, "", [&] {
        ++gefragt;
        return std::string("e");
    }));
    EXPECT_EQ(gefragt, 1);
    EXPECT_EQ(u.p->Sprache, "e");
    EXPECT_EQ(datei_lesen(sprachdatei(*u.p)), "e\r\n");
    EXPECT_EQ(u.p->Monat[1].Name, "January");

    // The file is read with list input.
    u.ordner.schreiben("typ.dat", "  d,x\r\n");
    sprache_beim_start(*u.p, "", [&] {
        ++gefragt;
        return std::string("e");
    });
    EXPECT_EQ(u.p->Sprache, "d");
    EXPECT_EQ(gefragt, 1);

    // A command line of "e" speaks English for this run and leaves the file.
    EXPECT_TRUE(sprache_beim_start(*u.p, "e", nullptr));
    EXPECT_EQ(u.p->Sprache, "e");
    EXPECT_EQ(datei_lesen(sprachdatei(*u.p)), "  d,x\r\n");

    // The choice closed without a letter: no language and no file.
    Sprachumgebung leer;
    sprache_lesen(*leer.p, [] { return std::string(); });
    EXPECT_EQ(leer.p->Sprache, "");
    EXPECT_FALSE(datei_da(sprachdatei(*leer.p)));
}

TEST(Sprache, MenuChoiceTakesEffectAtTheNextStart) {
    Sprachumgebung u;
    u.p->Sprache = "d";
    sprachtexte_setzen(*u.p);
    SkriptDialogs d;
    Sprachmenue menue(*u.p);
    EXPECT_TRUE(menue.mnuSpracheDeutsch);
    menue.klick(*u.p, d, "d"); // the checked entry: nothing
    EXPECT_TRUE(d.nachrichten.empty());
    EXPECT_FALSE(datei_da(sprachdatei(*u.p)));
    menue.klick(*u.p, d, "e");
    ASSERT_EQ(d.nachrichten.size(), 1u);
    EXPECT_EQ(d.nachrichten[0].titel, "Velmaris");
    EXPECT_EQ(d.nachrichten[0].symbol, Dialogs::Symbol::Information);
    EXPECT_TRUE(menue.mnuSpracheEnglisch);
    EXPECT_FALSE(menue.mnuSpracheDeutsch);
    EXPECT_EQ(u.p->Sprache, "d");
    EXPECT_EQ(u.p->Monat[1].Name, "Januar");
    EXPECT_EQ(datei_lesen(sprachdatei(*u.p)), "e\r\n");
    u.p->Sprache = "e";
    EXPECT_TRUE(Sprachmenue(*u.p).mnuSpracheEnglisch);
}

TEST(Sprache, CaptionTablesHoldEveryTextOfTheirWindow) {
    const std::pair<const char*, std::size_t> umfang[] = {
        {"Haupt", 22},         {"E_Menue", 6},      {"E_Geometrie", 28}, {"E_Fenster", 40},
        {"E_Daemmung", 22},    {"E_Gebaeude", 19},  {"E_Klima", 12},     {"E_Energie", 14},
        {"A_Menue", 5},        {"A_Uebersicht", 5}, {"A_Klima", 23},     {"A_Heizen", 23},
        {"A_Kuehlen", 3},      {"A_Sankey", 2},     {"A_Report", 2},     {"A_Zoom", 1},
        {"E_Klimaimport", 19}, {"Drucken", 12}};
    for (const auto& [fenster, anzahl] : umfang) {
        EXPECT_EQ(beschriftungen(fenster).size(), anzahl) << fenster;
        for (const Beschriftung& b : beschriftungen(fenster)) {
            EXPECT_FALSE(b.Englisch.empty()) << fenster;
        }
    }
    EXPECT_EQ(uebersetzte_fenster().size(), std::size(umfang));
    EXPECT_TRUE(beschriftungen("Start").empty());
    bool tetraeder = false;
    for (const Beschriftung& b : beschriftungen("E_Geometrie")) {
        tetraeder = tetraeder || (b.Steuerelement == "Label11" && b.Englisch == "tethrahed.");
    }
    EXPECT_TRUE(tetraeder);
    EXPECT_EQ(beschriftungen("A_Heizen")[21].Englisch, "E"); // the east bar pair
}

TEST(Sprache, PlanesFillTheirListsInTheLanguageOfTheRun) {
    Programm englisch("e");
    EXPECT_EQ(englisch.e->fenster[West].typ.Eintraege[7], "others");
    EXPECT_EQ(englisch.e->daemmung.ugd.Eintraege[4], "outside air");
    EXPECT_EQ(englisch.e->gebaeude.Innenwandart.Text(), "medium construction");
    EXPECT_EQ(englisch.e->geometrie.l_anz.Caption, "length: 10.0 m");
    Programm deutsch("d");
    EXPECT_EQ(deutsch.e->fenster[Nord].typ.Text(),
              "Wärmeschutz-Doppelverglasung (U = 1,4 W/(m² K))");
    EXPECT_EQ(deutsch.e->daemmung.ogd.Text(), "Außen oder nicht gedämmtes Dach");
}

TEST(Sprache, InstalledProgramReadsTheUsersFileFirstAndWritesOnlyThere) {
    Sprachumgebung u;
    TempOrdner heim;
    u.p->Einstellungen = (heim.pfad() / ".config" / "velmaris").string();
    // A language file delivered with the stations answers until the user has chosen.
    u.ordner.schreiben("typ.dat", "e\r\n");
    int gefragt = 0;
    const Sprachwahl wahl = [&gefragt] {
        ++gefragt;
        return std::string("d");
    };
    sprache_lesen(*u.p, wahl);
    EXPECT_EQ(u.p->Sprache, "e");
    EXPECT_EQ(gefragt, 0);
    // The menu's choice goes to the user's folder, made on the way; the delivered file stays.
    SkriptDialogs d;
    sprache_merken(*u.p, d, "d");
    EXPECT_EQ(datei_lesen(heim.pfad() / ".config" / "velmaris" / "typ.dat"), "d\r\n");
    EXPECT_EQ(datei_lesen(u.ordner.pfad() / "typ.dat"), "e\r\n");
    sprache_lesen(*u.p, wahl);
    EXPECT_EQ(u.p->Sprache, "d");
    EXPECT_EQ(gefragt, 0);
}
