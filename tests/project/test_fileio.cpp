// SPDX-License-Identifier: GPL-3.0-or-later
// The project life cycle: new, open, save, save as, leave, the prompts and the handled faults.
#include "project/lebenszyklus/FILEIO.h"
#include "project/lebenszyklus/projektdatei.h"
#include "tests/project/SkriptDialogs.h"

#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>

#include <sys/resource.h>

namespace fs = std::filesystem;

namespace {

using Antwort = Dialogs::Antwort;
// Lines of a project file by number, with their new text.
using Zeilen = std::vector<std::pair<int, std::string>>;

// The new project's file with some lines replaced (index = line number - 1).
std::string projektdatei(const Programm& prog, const Zeilen& zeilen) {
    const TempOrdner ordner;
    std::vector<std::string> z =
        prog.zeilen(ordner.schreiben("neu.vel", datei_schreiben(*prog.p)).string());
    for (const auto& [zeile, wert] : zeilen) {
        z[static_cast<std::size_t>(zeile - 1)] = wert;
    }
    std::string aus;
    for (const std::string& s : z) {
        aus += s + "\r\n";
    }
    return aus;
}

// The new project's file with `zeilen` replaced, written as `name` and opened.
void oeffnen(Programm& prog, const std::string& name, const Zeilen& zeilen) {
    prog.ordner.schreiben(name, projektdatei(prog, zeilen));
    prog.io->datei_oeffnen(prog.pfad(name));
}

// A tall, light building on a small floor: it reads, but its effective heat capacity comes out
// negative, so its calculation fails.
const Zeilen UNRECHENBAR = {{2, " 2"}, {3, " 2"}, {4, " 50"}, {5, " 1"}, {57, " 2"}, {58, " 2"}};

} // namespace

TEST(FILEIO, StartBuildsTheNewProjectUnnamed) {
    Programm prog;
    const Projekt& p = *prog.p;
    EXPECT_EQ(std::tie(p.Datei, p.Gestartet, p.Geaendert, p.FormLoadGuard),
              std::make_tuple(std::string("default.vel"), 1, 0, 0));
    EXPECT_EQ(prog.dialogs.titel, "Velmaris - [unbenannt]");
    EXPECT_GT(prog.p->qh, 0);
    EXPECT_EQ(Programm("e").dialogs.titel, "Velmaris - [no name]");
}

TEST(FILEIO, OffGridValueSurvivesWhereItsPositionStaysAndIsQuantisedWhereItMoves) {
    Programm prog;
    // l_sb stands at 100 (10.0 m): 10.04 m keeps its position. b moves to 123.
    oeffnen(prog, "p.vel", {{2, " 10.04"}, {3, " 12.34"}});
    ASSERT_TRUE(prog.dialogs.nachrichten.empty());
    EXPECT_EQ(prog.p->l, 10.04f);
    EXPECT_EQ(prog.p->b, 12.3f);
    EXPECT_EQ(prog.e->geometrie.b_sb.Value(), 123);
    EXPECT_EQ(prog.p->Geaendert, 0);
    EXPECT_EQ(prog.p->FormLoadGuard, 0);
    EXPECT_EQ(prog.dialogs.titel, "Velmaris - P.VEL");
    EXPECT_EQ(prog.dialogs.erste_ebenen, 1);
    EXPECT_EQ(prog.p->Datei_offen, 1);
    EXPECT_EQ(prog.io->offene_datei(), prog.pfad("p.vel"));
}

TEST(FILEIO, HeatedAtticKeepsTheRoofHeightOfTheFile) {
    for (const char* hd : {" 1.5", " 1", " 3.3", " 0"}) {
        Programm prog;
        oeffnen(prog, "d.vel", {{59, " 1"}, {60, "2"}, {61, hd}});
        ASSERT_TRUE(prog.dialogs.nachrichten.empty()) << hd;
        EXPECT_EQ(prog.p->hd, std::stof(hd)) << hd;
        EXPECT_TRUE(prog.p->Dachgeschoss);
        EXPECT_EQ(prog.p->Dachfirst, 2);
        EXPECT_GT(prog.p->Dachneigung, 0.0f - (std::stof(hd) == 0));
    }
}

TEST(FILEIO, HeatBridgeOptionFollowsTheStoredValue) {
    Programm prog;
    // .05 is an option's value; .07, the value of none, sets none and the option stays.
    for (const auto& [name, zeile, wert] :
         {std::tuple{"a.vel", " .05", 0.05f}, {"b.vel", " .07", 0.07f}}) {
        oeffnen(prog, name, {{69, zeile}});
        EXPECT_EQ(prog.e->daemmung.Waermebruecken_opt.gesetzt(), 3) << zeile;
        EXPECT_EQ(prog.p->Waermebruecken, wert) << zeile;
    }
    // The building plane's displays after a load: the set temperature by "0.00".
    EXPECT_EQ(prog.e->gebaeude.troom_anz.Caption, "20.00");
    EXPECT_EQ(prog.e->gebaeude.WRG_anz.Caption, "0");
}

TEST(FILEIO, WholeWindowUValueIsNotInTheFile) {
    Programm prog;
    prog.p->kfn = 2.5f;
    prog.dialogs.dateien = {prog.pfad("a.vel")};
    ASSERT_TRUE(prog.io->datei_speichern_unter());
    prog.io->datei_oeffnen(prog.pfad("a.vel"));
    // No position of the north panel moved: the value from before the load stays.
    EXPECT_EQ(prog.p->kfn, 2.5f);
}

TEST(FILEIO, CancelledPromptKeepsTheProject) {
    Programm prog;
    prog.e->geometrie.l_sb.setze(200);
    ASSERT_EQ(prog.p->Geaendert, 1);
    prog.dialogs.antworten = {Antwort::Abbrechen};
    prog.io->datei_neu();
    EXPECT_FLOAT_EQ(prog.p->l, 20.0f);
    EXPECT_EQ(prog.p->Geaendert, 1);
    ASSERT_EQ(prog.dialogs.nachrichten.size(), 1u);
    EXPECT_EQ(prog.dialogs.nachrichten[0].text,
              "          Ihr Projekt wurde geändert.\n\nMöchten Sie die Änderungen speichern?");
    EXPECT_EQ(prog.dialogs.nachrichten[0].titel, "Änderungen speichern ?");
    EXPECT_EQ(prog.dialogs.nachrichten[0].knoepfe, Dialogs::Knoepfe::JaNeinAbbrechen);

    prog.dialogs.antworten = {Antwort::Nein};
    prog.io->datei_neu();
    EXPECT_FLOAT_EQ(prog.p->l, 10.0f);
    EXPECT_EQ(prog.p->Geaendert, 0);
}

TEST(FILEIO, EveryOpenFaultIsDateifehler) {
    Programm prog;
    prog.io->datei_oeffnen(""); // the dialog is cancelled
    EXPECT_EQ(prog.dialogs.texte(), std::vector<std::string>{"Dateifehler!"});
    EXPECT_EQ(prog.dialogs.dialoge[0],
              "oeffnen Alle Dateien (*.*)|*.*|VELM Dateien (*.vel)|*.vel 2");

    prog.io->datei_oeffnen(prog.pfad("fehlt.vel"));
    EXPECT_EQ(prog.dialogs.texte().back(), "Dateifehler!");

    prog.e->geometrie.l_sb.setze(300);
    prog.dialogs.antworten = {Antwort::Abbrechen};
    prog.io->datei_oeffnen(prog.pfad("fehlt.vel"));
    EXPECT_EQ(prog.dialogs.texte().back(), "Dateifehler!");
    EXPECT_FLOAT_EQ(prog.p->l, 30.0f);
}

TEST(FILEIO, IndicesOutsideTheirListsAreReadFaults) {
    // Roof space row 3 is the table's empty row, which the list does not offer. The window
    // types count in the individual mode only: the same windows take the south type.
    for (const Zeilen& zeilen :
         {Zeilen{{28, " 3"}}, Zeilen{{28, "-1"}}, Zeilen{{16, " 8"}, {62, "1"}},
          Zeilen{{19, "-1"}, {62, "1"}}, Zeilen{{17, " 8"}}, Zeilen{{29, " 5"}},
          Zeilen{{65, " 10"}}, Zeilen{{67, " 5"}}}) {
        Programm prog;
        oeffnen(prog, "x.vel", zeilen);
        EXPECT_EQ(prog.dialogs.texte(), std::vector<std::string>{"Dateifehler!"})
            << zeilen[0].first << ":" << zeilen[0].second;
    }
    Programm gleich;
    oeffnen(gleich, "x.vel", {{16, " 8"}});
    EXPECT_TRUE(gleich.dialogs.nachrichten.empty());
    EXPECT_EQ(gleich.p->fenstern_typ, 3);
}

TEST(FILEIO, FaultWhileReadingLeavesTheGuardSet) {
    Programm prog;
    // 60 m is beyond the length's scroll field.
    oeffnen(prog, "gross.vel", {{2, " 60"}});
    EXPECT_EQ(prog.dialogs.texte(), std::vector<std::string>{"Dateifehler!"});
    EXPECT_EQ(prog.p->FormLoadGuard, -1);
    // No recalculation until a new project or a good open.
    prog.e->ganze_laeufe = 0;
    prog.e->gebaeude.Troom_sb.setze(190);
    EXPECT_EQ(prog.e->ganze_laeufe, 0);
    prog.dialogs.antworten = {Antwort::Nein};
    prog.io->datei_neu();
    EXPECT_EQ(prog.p->FormLoadGuard, 0);
    EXPECT_EQ(prog.e->ganze_laeufe, 1);
}

TEST(FILEIO, WrongVersionKeepsTheFormerProjectUnnamed) {
    Programm prog;
    prog.e->geometrie.l_sb.setze(150);
    prog.dialogs.antworten = {Antwort::Nein};
    prog.ordner.schreiben("alt.vel", "Velmaris Version 2.0\r\n 12\r\n");
    prog.io->datei_oeffnen(prog.pfad("alt.vel"));
    EXPECT_EQ(prog.dialogs.nachrichten.size(), 2u) << "the prompt, then the version's message";
    EXPECT_FLOAT_EQ(prog.p->l, 15.0f);
    EXPECT_EQ(prog.p->FormLoadGuard, 0);
    EXPECT_EQ(prog.dialogs.erste_ebenen, 0);
}

TEST(FILEIO, SaveAsAsksAgainAfterNoAndAddsTheExtension) {
    Programm prog;
    prog.ordner.schreiben("da.vel", "alt");
    prog.e->geometrie.l_sb.setze(120);
    prog.dialogs.dateien = {prog.pfad("da.vel"), prog.pfad("neu")};
    prog.dialogs.antworten = {Antwort::Nein};
    ASSERT_TRUE(prog.io->datei_speichern());
    ASSERT_EQ(prog.dialogs.nachrichten.size(), 1u);
    EXPECT_EQ(prog.dialogs.nachrichten[0].text,
              prog.pfad("da.vel") +
                  "\nDiese Datei ist bereits vorhanden.\n\nVorhandene Datei ersetzen?");
    EXPECT_TRUE(prog.dialogs.nachrichten[0].standard_nein);
    EXPECT_EQ(prog.zeilen(prog.pfad("da.vel")), std::vector<std::string>{"alt"});
    EXPECT_EQ(prog.p->Datei, prog.pfad("neu.vel"));
    EXPECT_EQ(prog.zeilen(prog.pfad("neu.vel")).size(), 69u);
    EXPECT_EQ(prog.p->Geaendert, 0);
    EXPECT_EQ(prog.p->Datei_offen, 1);
    EXPECT_EQ(prog.dialogs.titel, "Velmaris - NEU.VEL");

    // Now named: a plain save writes there without a dialog.
    prog.e->geometrie.l_sb.setze(130);
    ASSERT_TRUE(prog.io->datei_speichern());
    EXPECT_EQ(prog.dialogs.dialoge.size(), 2u);
    EXPECT_EQ(prog.zeilen(prog.pfad("neu.vel"))[1], " 13");

    // A name with a point in it keeps its form; Yes replaces the file.
    prog.dialogs.dateien = {prog.pfad("da.vel")};
    prog.dialogs.antworten = {Antwort::Ja};
    ASSERT_TRUE(prog.io->datei_speichern_unter());
    EXPECT_EQ(prog.zeilen(prog.pfad("da.vel")).size(), 69u);
    prog.dialogs.dateien = {prog.pfad("x.txt")};
    ASSERT_TRUE(prog.io->datei_speichern_unter());
    EXPECT_TRUE(fs::exists(prog.pfad("x.txt")));
}

TEST(FILEIO, CancelledSaveAsChangesNothing) {
    Programm prog;
    prog.e->geometrie.l_sb.setze(120);
    EXPECT_TRUE(prog.io->datei_speichern_unter());
    EXPECT_EQ(std::tie(prog.p->Datei, prog.p->Geaendert), std::make_tuple("default.vel", 1));
    EXPECT_TRUE(prog.dialogs.nachrichten.empty());
}

TEST(FILEIO, FailedSaveLeavesTheFormerFileWhole) {
    Programm prog;
    prog.dialogs.dateien = {prog.pfad("p.vel")};
    ASSERT_TRUE(prog.io->datei_speichern_unter());
    // A full disk: the file size limit stops the write.
    prog.e->geometrie.l_sb.setze(250);
    signal(SIGXFSZ, SIG_IGN);
    rlimit grenze{};
    getrlimit(RLIMIT_FSIZE, &grenze);
    const rlimit voll{64, grenze.rlim_max};
    setrlimit(RLIMIT_FSIZE, &voll);
    EXPECT_FALSE(prog.io->datei_speichern());
    EXPECT_EQ(prog.dialogs.texte().back(), "Dateifehler!");
    EXPECT_EQ(prog.p->Geaendert, 1);
    // A failed save in the prompt stops the new project.
    prog.dialogs.antworten = {Antwort::Ja};
    prog.io->datei_neu();
    EXPECT_FLOAT_EQ(prog.p->l, 25.0f);
    setrlimit(RLIMIT_FSIZE, &grenze);
    ASSERT_TRUE(prog.io->datei_speichern());
    EXPECT_EQ(prog.zeilen(prog.pfad("p.vel"))[1], " 25");
}

TEST(FILEIO, OpenWithYesSavesUnderTheCurrentName) {
    Programm prog;
    prog.dialogs.dateien = {prog.pfad("a.vel")};
    ASSERT_TRUE(prog.io->datei_speichern_unter());
    prog.ordner.schreiben("b.vel", projektdatei(prog, {{2, " 44"}}));
    prog.e->geometrie.l_sb.setze(110);
    prog.dialogs.antworten = {Antwort::Ja};
    prog.io->datei_oeffnen(prog.pfad("b.vel"));
    EXPECT_EQ(prog.zeilen(prog.pfad("a.vel"))[1], " 11");
    EXPECT_FLOAT_EQ(prog.p->l, 44.0f);
    EXPECT_EQ(prog.io->offene_datei(), prog.pfad("b.vel"));
}

TEST(FILEIO, LeavingAsksOnlyAfterAChange) {
    Programm prog;
    EXPECT_TRUE(prog.io->programm_beenden());
    EXPECT_TRUE(prog.dialogs.nachrichten.empty());
    EXPECT_EQ(prog.io->aenderung_abfragen(), 0);

    prog.dialogs.dateien = {prog.pfad("a.vel")};
    ASSERT_TRUE(prog.io->datei_speichern_unter());
    prog.e->geometrie.l_sb.setze(110);
    prog.dialogs.antworten = {Antwort::Abbrechen, Antwort::Abbrechen, Antwort::Nein};
    EXPECT_FALSE(prog.io->programm_beenden());
    EXPECT_EQ(prog.io->aenderung_abfragen(), 1);
    EXPECT_EQ(prog.io->aenderung_abfragen(), 0);
    // Yes asks for a name even for a named project.
    prog.dialogs.antworten = {Antwort::Ja};
    prog.dialogs.dateien = {prog.pfad("b.vel")};
    EXPECT_TRUE(prog.io->programm_beenden());
    EXPECT_EQ(prog.dialogs.dialoge.back(), "speichern VELM Dateien (*.vel)|*.vel 1");
    EXPECT_TRUE(fs::exists(prog.pfad("b.vel")));
    EXPECT_EQ(prog.p->Datei_offen, 0);
}

TEST(FILEIO, CommandLineKeepsThePathAsGiven) {
    struct Fall {
        const char* zeile;
        const char* projekt;
        const char* erster_ordner;
    };
    for (const Fall& f : {
             Fall{"\"/Proj/Mein Haus.VEL\"", "/Proj/Mein Haus.VEL", "/doc"},
             Fall{"/tmp/Häuser/Süd.vel", "/tmp/Häuser/Süd.vel", "/doc"},
             Fall{".vel", "", "/doc"},
             Fall{"e", "", "/doc"},
             Fall{"x|/a|/Daten", "", "/Daten"},
         }) {
        EXPECT_EQ(projekt_aus_befehlszeile(f.zeile), f.projekt) << f.zeile;
        EXPECT_EQ(initdir_aus_befehlszeile(f.zeile, "/doc"), f.erster_ordner) << f.zeile;
    }
}

TEST(FILEIO, ProjectInAFolderWithCapitalsAndSpacesOpensFromTheCommandLine) {
    Programm prog;
    fs::create_directories(prog.ordner.pfad() / "Meine Projekte" / "Klasse 7b");
    const std::string pfad = prog.pfad("Meine Projekte/Klasse 7b/Haus Süd.vel");
    prog.ordner.schreiben("Meine Projekte/Klasse 7b/Haus Süd.vel",
                          projektdatei(prog, {{3, " 14"}}));
    // A lower-case file named in capitals is found too; an existing path is never lowered.
    fs::create_directories(prog.ordner.pfad() / "klein");
    prog.ordner.schreiben("klein/haus.vel", projektdatei(prog, {{3, " 11"}}));
    struct Fall {
        std::string zeile;
        float b;
        std::string titel;
    };
    for (const Fall& f : {
             Fall{"\"" + pfad + "\"", 14.0f, "Velmaris - HAUS SÜD.VEL"},
             Fall{pfad, 14.0f, "Velmaris - HAUS SÜD.VEL"},
             Fall{prog.pfad("klein/HAUS.VEL"), 11.0f, "Velmaris - HAUS.VEL"},
         }) {
        Programm zweites;
        zweites.io->start(f.zeile, "/prog", "/doc");
        EXPECT_TRUE(zweites.dialogs.texte().empty()) << f.zeile;
        EXPECT_FLOAT_EQ(zweites.p->b, f.b) << f.zeile;
        EXPECT_EQ(zweites.dialogs.titel, f.titel);
        EXPECT_EQ(zweites.p->AppPfad, "/prog");
        EXPECT_EQ(zweites.p->InitDir, "/doc");
    }
}

TEST(FILEIO, DialogsStartInTheFolderOfTheProject) {
    Programm prog;
    fs::create_directories(prog.ordner.pfad() / "Projekte A");
    const std::string pfad = prog.pfad("Projekte A/haus.vel");
    prog.ordner.schreiben("Projekte A/haus.vel", projektdatei(prog, {{3, " 14"}}));
    Programm zweites;
    zweites.io->start("d|/Unterricht", "/prog", "/doc");
    EXPECT_EQ(dialogordner(*zweites.p), "/Unterricht");
    zweites.dialogs.dateien = {pfad, std::nullopt};
    zweites.io->datei_oeffnen("");
    zweites.io->datei_speichern_unter();
    EXPECT_EQ(zweites.dialogs.ordner,
              (std::vector<std::string>{"/Unterricht", prog.pfad("Projekte A")}));
}

TEST(FILEIO, MissingStationOfTheProjectFallsBackWithTheClimateMessage) {
    for (const char* auswahl : {" 1", " 2"}) {
        Programm prog;
        oeffnen(prog, "k.vel", {{56, "gibtsnicht.met"}, {64, auswahl}});
        ASSERT_EQ(prog.dialogs.nachrichten.size(), 1u) << auswahl;
        EXPECT_EQ(prog.dialogs.nachrichten[0].titel, prog.p->txt_Klima_Titel);
        EXPECT_EQ(prog.dialogs.nachrichten[0].text, prog.p->txt_Klima_fehlt);
        // Germany falls back to region 4; Europe draws from its only station, the same file.
        EXPECT_EQ(prog.p->Klimadatei, "trier.met") << auswahl;
        EXPECT_EQ(prog.dialogs.titel, "Velmaris - K.VEL");
        EXPECT_EQ(prog.p->FormLoadGuard, 0);
        EXPECT_GT(prog.p->qh, 0);
    }
}

TEST(FILEIO, CalculationFaultWhileOpeningTellsItsCauseBelowTheMessage) {
    const struct {
        const char* sprache;
        const char* text;
        const char* titel;
    } faelle[] = {
        {"d", "Dateifehler!\n\nDie wirksame Wärmekapazität wird negativ (Cwirk = ",
         "Velmaris - [unbenannt]"},
        {"e", "Dateifehler!\n\nThe effective heat capacity comes out negative (Cwirk = ",
         "Velmaris - [no name]"},
    };
    for (const auto& f : faelle) {
        Programm prog(f.sprache);
        oeffnen(prog, "hoch.vel", UNRECHENBAR);
        ASSERT_EQ(prog.dialogs.nachrichten.size(), 1u) << f.sprache;
        EXPECT_EQ(prog.dialogs.nachrichten[0].text.rfind(f.text, 0), 0u)
            << prog.dialogs.nachrichten[0].text;
        EXPECT_EQ(prog.dialogs.nachrichten[0].titel, "Velmaris");
        EXPECT_EQ(prog.dialogs.titel, f.titel);
    }
}

TEST(FILEIO, SaveAfterAFailedOpenAsksForANameAndLeavesTheFileAlone) {
    // A value beyond its scroll field, a calculation that fails, a file cut short, a wrong
    // version line.
    const std::vector<std::pair<std::string, Zeilen>> faelle = {
        {"gross", {{2, " 60"}}}, {"hoch", UNRECHENBAR}, {"kurz", {}}, {"version", {}}};
    for (const auto& [name, zeilen] : faelle) {
        Programm prog;
        // A named project first: the failed open must not leave it a trap either.
        prog.dialogs.dateien = {prog.pfad("alt.vel")};
        ASSERT_TRUE(prog.io->datei_speichern_unter());
        std::string inhalt = projektdatei(prog, zeilen);
        if (name == "kurz") {
            inhalt.resize(inhalt.size() / 2);
        } else if (name == "version") {
            inhalt.replace(0, inhalt.find('\r'), "Velmaris Version 9.9");
        }
        prog.ordner.schreiben(name + ".vel", inhalt);
        prog.io->datei_oeffnen(prog.pfad(name + ".vel"));
        ASSERT_FALSE(prog.dialogs.nachrichten.empty()) << name;
        EXPECT_EQ(prog.p->Datei_offen, 0) << name;
        EXPECT_EQ(prog.dialogs.titel, "Velmaris - [unbenannt]") << name;

        const std::size_t gefragt = prog.dialogs.dialoge.size();
        prog.p->Geaendert = 1;
        EXPECT_TRUE(prog.io->datei_speichern()) << name;
        ASSERT_EQ(prog.dialogs.dialoge.size(), gefragt + 1) << name;
        EXPECT_EQ(prog.dialogs.dialoge.back(), "speichern VELM Dateien (*.vel)|*.vel 1");
        EXPECT_EQ(datei_lesen(prog.pfad(name + ".vel")), inhalt) << name;
        EXPECT_EQ(datei_lesen(prog.pfad("alt.vel")).substr(0, 20), "Velmaris Version 3.2");
        EXPECT_FALSE(fs::exists(prog.pfad("default.vel"))) << name;
    }
}
