// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/lebenszyklus/FILEIO.h"

#include "calc/c_mod.h"
#include "climate/ebene/wetter_laden.h"
#include "climate/klimadatei.h"
#include "planes/Eingabeflaechen.h"
#include "project/Dateiendung.h"
#include "project/Dateizugriff.h"
#include "project/Dialogs.h"
#include "project/FatalError.h"
#include "project/Laufzeitfehler.h"
#include "project/c_glob.h"
#include "project/lebenszyklus/eingaben_anzeigen.h"
#include "project/lebenszyklus/projektdatei.h"

#include <cctype>
#include <stdexcept>

namespace {

constexpr const char* UNBENANNT = "default.vel";

// Upper case of ASCII and of the Latin-1 letters in UTF-8.
std::string gross(const std::string& text) {
    std::string aus = text;
    for (std::size_t i = 0; i < aus.size(); ++i) {
        const auto c = static_cast<unsigned char>(aus[i]);
        if (c < 0x80) {
            aus[i] = static_cast<char>(std::toupper(c));
        } else if (c == 0xC3 && i + 1 < aus.size()) {
            const auto d = static_cast<unsigned char>(aus[i + 1]);
            if (d >= 0xA0 && d <= 0xBE && d != 0xB7) {
                aus[i + 1] = static_cast<char>(d - 0x20);
            }
            ++i;
        }
    }
    return aus;
}

std::string klein(const std::string& text) {
    std::string aus = text;
    for (char& c : aus) {
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    return aus;
}

// The file name behind the last folder separator.
std::string dateiname(const std::string& pfad) {
    const std::size_t trenner = pfad.find_last_of("\\/");
    return trenner == std::string::npos ? pfad : pfad.substr(trenner + 1);
}

bool endet_mit(const std::string& text, const std::string& ende) {
    return text.size() >= ende.size() &&
           text.compare(text.size() - ende.size(), ende.size(), ende) == 0;
}

// A cancel of the prompt or of a dialog goes the way of every other fault of opening.
struct Abbruch {};

} // namespace

FILEIO::FILEIO(Projekt& p, Eingabeflaechen& e, Dialogs& d) : p_(p), e_(e), d_(d) {}

void FILEIO::titel_setzen(const std::string& titel) {
    titel_ = titel;
    d_.titel_setzen(titel_);
}

void FILEIO::titel_unbenannt() {
    titel_setzen(p_.Sprache == "e" ? "Velmaris - [no name]" : "Velmaris - [unbenannt]");
}

void FILEIO::titel_mit_namen() {
    titel_setzen("Velmaris - " + gross(dateiname(p_.Datei)));
}

void FILEIO::datei_schliessen() {
    p_.Datei_offen = 0;
    offene_datei_.clear();
}

void FILEIO::fehler_melden(const std::string& ursache) {
    const std::string text = ursache.empty() ? "Dateifehler!" : "Dateifehler!\n\n" + ursache;
    d_.nachricht(text, "Velmaris", Dialogs::Symbol::Keins, Dialogs::Knoepfe::OK);
}

int FILEIO::frage_aenderung() {
    switch (d_.nachricht(p_.txt_Aenderung, p_.txt_Aenderung_Titel, Dialogs::Symbol::Ausrufezeichen,
                         Dialogs::Knoepfe::JaNeinAbbrechen)) {
    case Dialogs::Antwort::Ja:
        return 1;
    case Dialogs::Antwort::Nein:
        return 0;
    default:
        return -1;
    }
}

void FILEIO::neues_projekt() {
    ::neues_projekt(p_);
    e_.geometrie.Check_Dachgeschoss.setze(0);
    e_.gebaeude.Aussenwandart.setze_index(1);
    e_.gebaeude.Innenwandart.setze_index(1);
    titel_unbenannt();
}

void FILEIO::aufbauen() {
    d_.wartecursor(true);
    p_.FormLoadGuard = -1;
    neues_projekt();
    klimadatei_lesen(p_);
    eingaben_anzeigen(p_, e_, d_);
    klima_zeigen(e_.klima, p_);
    p_.FormLoadGuard = 0;
    alles_berechnen(p_);
    d_.wartecursor(false);
}

void FILEIO::datei_neu() {
    if (p_.Geaendert == 1) {
        const int antwort = frage_aenderung();
        if (antwort < 0) {
            return;
        }
        if (antwort == 1 && !datei_speichern()) {
            return;
        }
    }
    if (p_.Datei_offen == 1) {
        datei_schliessen();
    }
    aufbauen();
}

void FILEIO::datei_oeffnen(const std::string& pfad) {
    try {
        if (p_.Geaendert == 1) {
            const int antwort = frage_aenderung();
            if (antwort < 0) {
                throw Abbruch{};
            }
            if (antwort == 1 && !datei_speichern()) {
                return;
            }
        }
        if (!pfad.empty()) {
            p_.Datei = pfad;
        } else {
            const auto gewaehlt = d_.oeffnen_dialog(FILTER_OEFFNEN, 2, dialogordner(p_));
            if (!gewaehlt) {
                throw Abbruch{};
            }
            p_.Datei = *gewaehlt;
        }
        d_.wartecursor(true);
        if (p_.Datei_offen == 1) {
            datei_schliessen();
        }
        const std::string text = datei_text(p_.Datei, PROJEKTDATEI_MAX);
        p_.Datei_offen = 1;
        offene_datei_ = p_.Datei;
        p_.Geaendert = 0;
        p_.FormLoadGuard = -1;
        datei_lesen(p_, e_, d_, text);
        // A station that is in no list is not read here: the climate option's handler in
        // eingaben_anzeigen tells the user and loads its default instead.
        if (e_.klima.listen.Welt.suchen(p_.Klimadatei) >= 0) {
            wetter_laden(p_);
        }
        eingaben_anzeigen(p_, e_, d_);
        // The station read above is shown once its plane holds it.
        klima_zeigen(e_.klima, p_);
        p_.FormLoadGuard = 0;
        alles_berechnen(p_);
        if (p_.Datei != UNBENANNT) {
            titel_mit_namen();
            d_.erste_ebenen_zeigen();
        } else {
            // The reader refused the file: the former project stays, without a name and without
            // a file, so that a plain save asks for a name.
            datei_schliessen();
            titel_unbenannt();
        }
        d_.wartecursor(false);
    } catch (const Abbruch&) {
        d_.wartecursor(false);
        fehler_melden();
    } catch (const FatalError& f) {
        // The recalculation of the new project or its station file failed: the message of the
        // open, and below it what failed and why.
        nach_fehlgeschlagenem_oeffnen();
        fehler_melden(f.text(p_.Sprache));
    } catch (const std::runtime_error&) {
        // A fault of the file or of a value.
        nach_fehlgeschlagenem_oeffnen();
        fehler_melden();
    }
}

void FILEIO::nach_fehlgeschlagenem_oeffnen() {
    // The record may hold part of the file now: it belongs to no file, so that a plain save
    // asks for a name instead of overwriting the damaged file.
    datei_schliessen();
    p_.Datei = UNBENANNT;
    titel_unbenannt();
    d_.wartecursor(false);
}

void FILEIO::schreiben() {
    datei_ersetzen(p_.Datei, datei_schreiben(p_));
}

bool FILEIO::datei_speichern() {
    if (p_.Datei_offen == 0) {
        return datei_speichern_unter();
    }
    d_.wartecursor(true);
    try {
        schreiben();
    } catch (const Laufzeitfehler&) {
        d_.wartecursor(false);
        fehler_melden();
        return false;
    }
    offene_datei_ = p_.Datei;
    p_.Geaendert = 0;
    d_.wartecursor(false);
    return true;
}

bool FILEIO::datei_speichern_unter() {
    for (;;) {
        const auto gewaehlt = d_.speichern_dialog(FILTER_SPEICHERN, 1, dialogordner(p_));
        if (!gewaehlt) {
            return true;
        }
        p_.Datei = *gewaehlt;
        if (p_.Datei_offen == 1) {
            datei_schliessen();
        }
        if (!datei_vorhanden(p_.Datei)) {
            break;
        }
        const auto antwort =
            d_.nachricht(p_.Datei + "\n" + p_.txt_Ersetzen, "Velmaris",
                         Dialogs::Symbol::Ausrufezeichen, Dialogs::Knoepfe::JaNein, true);
        if (antwort == Dialogs::Antwort::Ja) {
            break;
        }
    }
    // A name without any point gets the extension.
    if (!endet_mit(gross(p_.Datei), ".VEL") && p_.Datei.find('.') == std::string::npos) {
        p_.Datei += ".vel";
    }
    d_.wartecursor(true);
    try {
        schreiben();
        p_.Datei_offen = 1;
        offene_datei_ = p_.Datei;
        eingaben_anzeigen(p_, e_, d_);
    } catch (const std::runtime_error&) {
        // A write fault, or a fault of the recalculation after the write.
        d_.wartecursor(false);
        fehler_melden();
        return false;
    }
    titel_mit_namen();
    d_.wartecursor(false);
    return true;
}

bool FILEIO::programm_beenden() {
    if (p_.Geaendert == 1) {
        const int antwort = frage_aenderung();
        if (antwort < 0) {
            return false;
        }
        // Leaving saves under a name asked for, also for a named project.
        if (antwort == 1 && !datei_speichern_unter()) {
            return false;
        }
    }
    datei_schliessen();
    return true;
}

int16_t FILEIO::aenderung_abfragen() {
    if (p_.Geaendert != 1) {
        return 0;
    }
    const int antwort = frage_aenderung();
    if (antwort < 0) {
        return 1;
    }
    if (antwort == 1 && !datei_speichern_unter()) {
        return 1;
    }
    return 0;
}

void FILEIO::start(const std::string& befehlszeile, const std::string& programmordner,
                   const std::string& dokumente) {
    p_.AppPfad = programmordner;
    p_.InitDir = initdir_aus_befehlszeile(befehlszeile, dokumente);
    aufbauen();
    p_.Gestartet = 1;
    const std::string projekt = projekt_aus_befehlszeile(befehlszeile);
    if (!projekt.empty()) {
        datei_oeffnen(projektpfad_finden(projekt));
    }
}

std::string FILEIO::hilfe_datei() const {
    return p_.AppPfad + "/Velmaris_" + p_.Sprache + ".chm";
}

std::string projekt_aus_befehlszeile(const std::string& befehlszeile) {
    // The extension is found in any case; the path reaches the file system as given.
    const std::string zeile = klein(befehlszeile);
    if (zeile.size() <= 4) {
        return std::string();
    }
    if (endet_mit(zeile, ".vel")) {
        return befehlszeile;
    }
    if (endet_mit(zeile, ".vel\"")) {
        return befehlszeile.substr(1, befehlszeile.size() - 2);
    }
    return std::string();
}

std::string projektpfad_finden(const std::string& pfad) {
    const std::string gesenkt = klein(pfad);
    return !datei_vorhanden(pfad) && datei_vorhanden(gesenkt) ? gesenkt : pfad;
}

std::string initdir_aus_befehlszeile(const std::string& befehlszeile, const std::string& initdir) {
    const std::size_t strich = befehlszeile.rfind('|');
    return strich == std::string::npos ? initdir : befehlszeile.substr(strich + 1);
}

std::string dialogordner(const Projekt& p) {
    if (p.Datei_offen == 1 && p.Datei != UNBENANNT) {
        return ordner_von(p.Datei, p.InitDir);
    }
    return p.InitDir;
}
