// SPDX-License-Identifier: GPL-3.0-or-later
// The import of a column text as the user runs it: the column checks and their order, the test
// pass, the default name, the name and overwrite questions and the written file.
#include "climate/import/importieren.h"
#include "climate/import/spalten.h"
#include "climate/klimadatei.h"
#include "tests/import/Importhilfe.h"
#include "tests/support/Testprojekt.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

// The window after opening `pfad` and choosing the columns.
Klimaimport fenster(const fs::path& pfad) {
    Klimaimport f;
    std::string Datei;
    EXPECT_EQ(quelle_oeffnen(f, pfad.string(), Datei), Quelltext::gelesen);
    EXPECT_EQ(Datei, pfad.string()) << "the project's file name becomes the source's";
    f.Kopfzeilen = "2";
    f.Standortname = "Teststadt";
    f.Land = "Testland";
    f.Breitengrad = "50";
    f.Laengengrad = "8";
    f.Zeitzone = "1";
    f.Spaltenbelegung[2] = SPALTE_TEMPERATUR;
    f.Spaltenbelegung[3] = SPALTE_GESAMT;
    f.Spaltenbelegung[5] = SPALTE_DIFFUS;
    return f;
}

// The windows import into a temporary folder; `nutzer` answers the questions.
class Import : public ::testing::Test {
protected:
    TempOrdner ordner;
    Skriptnutzer nutzer;

    Importergebnis importieren(const Klimaimport& f, const char* sprache, Skriptnutzer& n) {
        return klimadaten_importieren(f, ordner.pfad().string(), sprache, n);
    }
    Importergebnis importieren(const Klimaimport& f, const char* sprache = "d") {
        return importieren(f, sprache, nutzer);
    }
    // The column window over a source of `stunden` rows.
    Klimaimport quelle(int stunden, const char* name = "q.txt") {
        return fenster(ordner.schreiben(name, stundenquelle(stunden)));
    }
};

} // namespace

TEST_F(Import, TooFewRowsAreRefusedInBothLanguages) {
    const Klimaimport f = quelle(8759, "kurz.txt");
    EXPECT_EQ(importieren(f).ausgang, Importausgang::fehler);
    ASSERT_EQ(nutzer.meldungen.size(), 1u);
    EXPECT_EQ(nutzer.meldungen[0].titel, "Fehler");
    EXPECT_EQ(nutzer.meldungen[0].text,
              "Fehler! - Zu wenig Daten. Benötigt werden 8760 Stundenwerte!");
    Skriptnutzer user;
    importieren(f, "e", user);
    ASSERT_EQ(user.meldungen.size(), 1u);
    EXPECT_EQ(user.meldungen[0].text, "Error! - Not enough data. 8760 hourly data is needed!");
    EXPECT_FALSE(fs::exists(ordner.pfad() / "neu.met"));
}

TEST_F(Import, MoreRowsThanAYearUseTheFirst8760) {
    const Klimaimport f = quelle(8761, "lang.txt");
    const Importergebnis e = importieren(f);
    ASSERT_EQ(e.ausgang, Importausgang::geschrieben);
    ASSERT_EQ(nutzer.meldungen.size(), 1u);
    EXPECT_EQ(nutzer.meldungen[0].text,
              "Klimadatenimport beendet! Biite starten Sie Velmaris neu, um die gerade "
              "importierten Daten verwenden zu können.");
    const std::vector<std::string> z = crlf_zeilen(datei_inhalt(e.pfad));
    ASSERT_EQ(z.size(), 8766u);
    // Source row 1: Ta -9.25, total 100, diffuse 20.5.
    EXPECT_EQ(z[7], "    1 -9.2  100 20.5");
    // Source row 8759 is the last written; row 8760 is not.
    EXPECT_EQ(z[8765], "  365 19.2  200 40.5");
}

TEST_F(Import, TotalColumnBeatsDirectColumn) {
    Klimaimport f = quelle(8760);
    f.Spaltenbelegung[4] = SPALTE_DIREKT;
    const Importergebnis mit_gesamt = importieren(f);
    ASSERT_EQ(mit_gesamt.ausgang, Importausgang::geschrieben);
    EXPECT_EQ(crlf_zeilen(datei_inhalt(mit_gesamt.pfad))[8], "    1 -8.2  200 40.5");

    // Without the total, direct + diffuse: 20 + 40.5 rounds to 60 (halves to even).
    f.Spaltenbelegung[3] = SPALTE_UNBENUTZT;
    nutzer.name = "direkt";
    const Importergebnis ohne = importieren(f);
    ASSERT_EQ(ohne.ausgang, Importausgang::geschrieben);
    EXPECT_EQ(crlf_zeilen(datei_inhalt(ohne.pfad))[8], "    1 -8.2   60 40.5");
}

TEST_F(Import, MissingColumnsAreNamedInTheirOrder) {
    Klimaimport f = quelle(8760);
    f.Spaltenbelegung.fill(SPALTE_UNBENUTZT);
    f.Spaltenbelegung[5] = SPALTE_DIFFUS;
    importieren(f);
    f.Spaltenbelegung[4] = SPALTE_DIREKT;
    importieren(f, "e");
    f.Spaltenbelegung[2] = SPALTE_TEMPERATUR;
    f.Spaltenbelegung[5] = SPALTE_UNBENUTZT;
    importieren(f, "e");
    ASSERT_EQ(nutzer.meldungen.size(), 3u);
    EXPECT_EQ(nutzer.meldungen[0].text,
              "Benötigt werden entweder Daten zur Gestamt- oder zur Direktstrahlung");
    EXPECT_EQ(nutzer.meldungen[1].text, "No temperature values found!");
    EXPECT_EQ(nutzer.meldungen[2].text, "No data for diffuse rediation!");
    EXPECT_EQ(nutzer.meldungen[2].titel, "Error");
}

TEST_F(Import, BadValueNamesTheFileLine) {
    std::string text = stundenquelle(8760);
    // Data row 5 (file line 7) gets a text in the total column; row 9 one as well.
    const std::vector<std::string> z = crlf_zeilen(text);
    text.clear();
    for (std::size_t i = 0; i < z.size(); ++i) {
        text += (i == 6 || i == 10 ? "4\t1.0\tn/a\t0\t0" : z[i]) + "\r\n";
    }
    const Klimaimport f = fenster(ordner.schreiben("q.txt", text));
    importieren(f);
    Skriptnutzer user;
    importieren(f, "e", user);
    ASSERT_EQ(nutzer.meldungen.size(), 1u);
    EXPECT_EQ(nutzer.meldungen[0].text, "Fehler in Zeile 7\r\nKlimadatenimport wurde abgebrochen!");
    EXPECT_EQ(user.meldungen[0].text, "Error in line 7\r\nImport has been aborted!");
}

TEST_F(Import, NameQuestionAndOverwrite) {
    const Klimaimport f = quelle(8760, "Messung.2019.txt");
    nutzer.name = "";
    EXPECT_EQ(importieren(f).ausgang, Importausgang::abgebrochen);
    EXPECT_TRUE(nutzer.meldungen.empty()) << "an empty name ends silently";
    EXPECT_EQ(nutzer.eingabe_vorgabe, "Messung.2019");
    EXPECT_EQ(nutzer.eingabe_titel, "Klimadatensatz speichern unter ...");
    EXPECT_EQ(nutzer.eingabe_text,
              "Bitte geben Sie einen (beliebigen) Dateinamen ein, unter dem der neue "
              "Klimadatensatz 'Teststadt (Testland)' gespeichert werden soll:");

    const fs::path vorhanden = ordner.schreiben("alt.met", "alt");
    nutzer.name = "alt";
    nutzer.ueberschreiben = false;
    EXPECT_EQ(importieren(f, "e").ausgang, Importausgang::abgebrochen);
    ASSERT_EQ(nutzer.fragen.size(), 1u);
    EXPECT_EQ(nutzer.fragen[0], "This filename already exists. Should the data set, saved under "
                                "this filename, be overwritten?");
    EXPECT_EQ(datei_inhalt(vorhanden), "alt");

    nutzer.ueberschreiben = true;
    EXPECT_EQ(importieren(f, "e").ausgang, Importausgang::geschrieben);
    EXPECT_EQ(crlf_zeilen(datei_inhalt(vorhanden)).size(), 8766u);
    EXPECT_EQ(nutzer.meldungen.back().text,
              "Import finished. Please re-start Velmaris to use the new imported data.");
}

TEST_F(Import, DefaultName) {
    EXPECT_EQ(standardname("C:\\Daten\\Klima\\bern.dat"), "bern");
    EXPECT_EQ(standardname("/home/a/trier.2019.csv"), "trier.2019");
    EXPECT_EQ(standardname("ohne_endung"), "ohne_endung");
    EXPECT_EQ(standardname("D:x.y.z"), "x.y");
}

TEST_F(Import, AllInputsMustBeGiven) {
    const Klimaimport f = quelle(10);
    using E = std::vector<Importeingabe>;
    // What is missing is named one by one, in the window's order, and nothing else.
    const std::pair<std::function<void(Klimaimport&)>, E> faelle[] = {
        {[](Klimaimport&) {}, {}},
        {[](Klimaimport& k) { k.Land.clear(); }, {Importeingabe::Land}},
        {[](Klimaimport& k) { k.Zeitzone = "eins"; }, {Importeingabe::Zone}},
        {[](Klimaimport& k) { k.Breitengrad = "49,5"; }, {Importeingabe::Breite}},
        {[](Klimaimport& k) { k.Breitengrad = "49,5", k.Dezimalzeichen = 1; }, {}},
        {[](Klimaimport& k) { k.Standortname.clear(), k.Kopfzeilen = "", k.Zeitzone = "x"; },
         {Importeingabe::Ort, Importeingabe::Kopfzeilen, Importeingabe::Zone}},
    };
    for (std::size_t i = 0; i < std::size(faelle); ++i) {
        Klimaimport k = f;
        faelle[i].first(k);
        EXPECT_EQ(AlleEingabenTesten(k), faelle[i].second.empty()) << "case " << i;
        EXPECT_EQ(fehlende_eingaben(k), faelle[i].second) << "case " << i;
    }
}

TEST_F(Import, BlankSeparatedRightAlignedSource) {
    const std::string text = spaltentext(1, 8760, [](int i) {
        char zeile[64];
        std::snprintf(zeile, sizeof zeile, "%6d%7.1f%6d%7.1f", i, -0.4, i % 5 * 100, 12.0);
        return std::string(zeile);
    });
    Klimaimport f = fenster(ordner.schreiben("rechts.txt", text));
    f.Kopfzeilen = "1";
    f.Datentrennung = 2;
    f.Spaltenbelegung.fill(SPALTE_UNBENUTZT);
    f.Spaltenbelegung[2] = SPALTE_TEMPERATUR;
    f.Spaltenbelegung[3] = SPALTE_GESAMT;
    f.Spaltenbelegung[4] = SPALTE_DIFFUS;
    const Importergebnis e = importieren(f);
    ASSERT_EQ(e.ausgang, Importausgang::geschrieben);
    const std::vector<std::string> z = crlf_zeilen(datei_inhalt(e.pfad));
    EXPECT_EQ(z[7], "    1 -0.4  100   12") << "-0.4 keeps its zero, five wide";
}

TEST_F(Import, MeteonormSourceIsFilledInOnOpening) {
    std::string text =
        "\"Davos\"\r\n46.8,-9.83,1594,-1\r\nMeteonorm\r\nm\tdy\th\tTa\tG_Gh\tG_Dh\r\n";
    for (int i = 0; i < 8760; ++i) {
        text += "1\t1\t1\t-3.5\t0\t0\r\n";
    }
    const fs::path pfad = ordner.schreiben("davos.dat", text);
    Klimaimport f;
    std::string Datei;
    ASSERT_EQ(quelle_oeffnen(f, pfad.string(), Datei), Quelltext::gelesen);
    EXPECT_NE(f.Dateiansicht.find("\"Davos\"\r\n46.8"), std::string::npos);
    EXPECT_EQ(f.Dateiansicht.substr(f.Dateiansicht.size() - 3), "...") << "250 lines shown";
    f.Land = "Schweiz";
    const Importergebnis e = importieren(f);
    ASSERT_EQ(e.ausgang, Importausgang::geschrieben);
    EXPECT_EQ(crlf_zeilen(datei_inhalt(e.pfad))[6], "    1 -3.5    0    0");
}

TEST_F(Import, UnreadableSourceIsAMessage) {
    Klimaimport f;
    std::string Datei = "projekt.vel";
    EXPECT_EQ(quelle_oeffnen(f, "/nicht/vorhanden.txt", Datei), Quelltext::nicht_lesbar);
    EXPECT_EQ(Datei, "projekt.vel");
    f.DateinameBox = "/nicht/vorhanden.txt";
    EXPECT_EQ(klimadaten_importieren(f, "/tmp", "e", nutzer).ausgang, Importausgang::fehler);
    ASSERT_EQ(nutzer.meldungen.size(), 1u);
    EXPECT_EQ(nutzer.meldungen[0].text, "The file \"/nicht/vorhanden.txt\" cannot be read.");
}

TEST_F(Import, OversizedSourceAndHeadCountAreRefusedWithTheirReason) {
    // One byte more than the import reads, all of it empty lines.
    const auto gross = ordner.schreiben("gross.txt", std::string(IMPORT_HOECHSTGROESSE + 1, '\n'));
    Klimaimport f;
    std::string Datei = "projekt.vel";
    EXPECT_EQ(quelle_oeffnen(f, gross.string(), Datei), Quelltext::zu_gross);
    EXPECT_EQ(Datei, "projekt.vel");
    f = quelle(8760, "quelle.txt");
    f.DateinameBox = gross.string();
    EXPECT_EQ(importieren(f).ausgang, Importausgang::fehler);
    ASSERT_EQ(nutzer.meldungen.size(), 1u);
    EXPECT_EQ(nutzer.meldungen[0].text,
              "Die Datei \"" + gross.string() +
                  "\" ist größer als 16 MB, mehr als ein Jahr von Stundenwerten füllen kann. "
                  "Sie wird nicht gelesen.");

    // A head count past the 16-bit field is refused, not read as no head at all.
    struct Fall {
        const char* Kopfzeilen;
        std::size_t zahl;
    };
    for (const Fall fall : {Fall{"2", 2}, Fall{"32767", 32767}, Fall{"32768", 32768},
                            Fall{"99999999999999999999", 32768}, Fall{"", 0}}) {
        EXPECT_EQ(kopfzeilenzahl(fall.Kopfzeilen), fall.zahl) << fall.Kopfzeilen;
    }
    f = fenster(ordner.pfad() / "quelle.txt");
    f.Kopfzeilen = "99999999999";
    for (const char* sprache : {"d", "e"}) {
        Skriptnutzer n;
        EXPECT_EQ(importieren(f, sprache, n).ausgang, Importausgang::fehler);
        ASSERT_EQ(n.meldungen.size(), 1u);
        EXPECT_EQ(n.meldungen[0].text,
                  std::string(sprache) == "d"
                      ? "Die Anzahl der Kopfzeilen ist zu groß (höchstens 32767)."
                      : "The number of head lines is too large (32767 at most).");
    }
    EXPECT_FALSE(fs::exists(ordner.pfad() / "neu.met"));
}
