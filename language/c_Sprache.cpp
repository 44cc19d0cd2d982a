// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/c_Sprache.h"

#include "project/Dateizugriff.h"
#include "project/Dialogs.h"
#include "project/FatalError.h"
#include "project/Laufzeitfehler.h"
#include "project/Listeneingabe.h"
#include "project/c_glob.h"

#include <filesystem>
#include <system_error>

namespace {

struct Monatsname {
    const char *name_d, *kurz_d, *name_e, *kurz_e;
};

// May has no point in its short form, in both languages.
constexpr Monatsname MONATSNAMEN[12] = {
    {"Januar", "Jan.", "January", "Jan."},
    {"Februar", "Feb.", "February", "Feb."},
    {"März", "Mär.", "March", "Mar."},
    {"April", "Apr.", "April", "Apr."},
    {"Mai", "Mai", "May", "May"},
    {"Juni", "Jun.", "June", "Jun."},
    {"Juli", "Jul.", "July", "Jul."},
    {"August", "Aug.", "August", "Aug."},
    {"September", "Sep.", "September", "Sep."},
    {"Oktober", "Okt.", "October", "Oct."},
    {"November", "Nov.", "November", "Nov."},
    {"Dezember", "Dez.", "December", "Dec."},
};

void datei_schreiben_sprache(const Projekt& p, const std::string& buchstabe) {
    if (!p.Einstellungen.empty()) {
        // A fault shows when the file is written.
        std::error_code fehler;
        std::filesystem::create_directories(p.Einstellungen, fehler);
    }
    try {
        datei_ersetzen(sprachdatei(p), buchstabe + "\r\n");
    } catch (const Laufzeitfehler& f) {
        throw FatalError("Cannot write the language file " + sprachdatei(p) + ": " + f.what());
    }
}

} // namespace

std::string sprachdatei(const Projekt& p) {
    return (p.Einstellungen.empty() ? p.KlimaOrdner : p.Einstellungen) + "/typ.dat";
}

std::string gelesene_sprachdatei(const Projekt& p) {
    const std::string eigene = sprachdatei(p);
    const std::string geliefert = p.KlimaOrdner + "/typ.dat";
    return datei_da(eigene) || !datei_da(geliefert) ? eigene : geliefert;
}

bool datei_da(const std::string& pfad) {
    return datei_vorhanden(pfad);
}

void sprache_lesen(Projekt& p, const Sprachwahl& wahl) {
    const std::string datei = gelesene_sprachdatei(p);
    if (datei_da(datei)) {
        // A one-line file: what stands before a comma or the line end, blanks skipped; an empty
        // file gives an empty letter.
        const std::string text = datei_text(datei, 4096);
        Listeneingabe ein(text);
        p.Sprache = text.empty() ? std::string() : ein.text();
        return;
    }
    const std::string buchstabe = wahl ? wahl() : std::string();
    if (!buchstabe.empty()) {
        schreibe_sprache(p, buchstabe);
    }
}

bool sprache_beim_start(Projekt& p, const std::string& befehlszeile, const Sprachwahl& wahl) {
    const bool schnell = befehlszeile == "d" || befehlszeile == "e";
    if (schnell) {
        p.Sprache = befehlszeile;
    } else {
        sprache_lesen(p, wahl);
    }
    sprachtexte_setzen(p);
    return schnell;
}

void sprachtexte_setzen(Projekt& p) {
    p.txt_Sprache = "Sprache wird beim nächsten Start des Programms geändert!\r\rLanguage will "
                    "be changed after the next start of the program!";
    if (p.Sprache == "d") {
        p.txt_Aenderung =
            "          Ihr Projekt wurde geändert.\n\nMöchten Sie die Änderungen speichern?";
        p.txt_Aenderung_Titel = "Änderungen speichern ?";
        p.txt_Ersetzen = "Diese Datei ist bereits vorhanden.\n\nVorhandene Datei ersetzen?";
        p.txt_Klima_fehlt =
            "   Klimadatensatz nicht gefunden!\rDefault-Klimadatensatz wird geladen!";
        p.txt_Klima_Titel = "Klimadatensatz nicht vorhanden";
        p.txt_Ueberwaermung = "Überwärmung";
        p.txt_Monat = "Monat";
        p.txt_Jahresbilanz = "Jahresbilanz";
        p.txt_Raumluft = "Raumlufttemperatur";
        p.txt_Aussenluft = "Außenlufttemperatur";
        for (int m = 1; m <= 12; ++m) {
            p.Monat[m].Name = MONATSNAMEN[m - 1].name_d;
            p.Monat[m].Kurz = MONATSNAMEN[m - 1].kurz_d;
        }
    }
    if (p.Sprache == "e") {
        p.txt_Aenderung =
            "        The project has been changed.\n\nDo you want to save the changes?";
        p.txt_Aenderung_Titel = "Save changes ?";
        p.txt_Ersetzen = "This file already exists.\n\n      Overwrite it?";
        p.txt_Klima_fehlt = "     Climatic data not found!\rDefault climatic data will be loaded!";
        p.txt_Klima_Titel = "Climatic data not found!";
        p.txt_Ueberwaermung = "overheating";
        p.txt_Monat = "month";
        p.txt_Jahresbilanz = "yearly balance";
        p.txt_Raumluft = "room air temperature";
        p.txt_Aussenluft = "outdoor air temperature";
        for (int m = 1; m <= 12; ++m) {
            p.Monat[m].Name = MONATSNAMEN[m - 1].name_e;
            p.Monat[m].Kurz = MONATSNAMEN[m - 1].kurz_e;
        }
    }
}

void schreibe_sprache(Projekt& p, const std::string& buchstabe) {
    datei_schreiben_sprache(p, buchstabe);
    p.Sprache = buchstabe;
}

void sprache_merken(Projekt& p, Dialogs& d, const std::string& buchstabe) {
    d.nachricht(p.txt_Sprache, "Velmaris", Dialogs::Symbol::Information, Dialogs::Knoepfe::OK);
    datei_schreiben_sprache(p, buchstabe);
}

Sprachmenue::Sprachmenue(const Projekt& p)
    : mnuSpracheDeutsch(p.Sprache != "e"), mnuSpracheEnglisch(p.Sprache == "e") {}

void Sprachmenue::klick(Projekt& p, Dialogs& d, const std::string& buchstabe) {
    bool& dieser = buchstabe == "e" ? mnuSpracheEnglisch : mnuSpracheDeutsch;
    bool& anderer = buchstabe == "e" ? mnuSpracheDeutsch : mnuSpracheEnglisch;
    if (dieser) {
        return;
    }
    dieser = true;
    anderer = false;
    sprache_merken(p, d, buchstabe);
}
