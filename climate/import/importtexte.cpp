// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/import/importtexte.h"

namespace {

const std::string& wahl(const std::string& Sprache, const std::string& d, const std::string& e) {
    return Sprache == "e" ? e : d;
}

} // namespace

std::string text_fehler_titel(const std::string& Sprache) {
    return wahl(Sprache, "Fehler", "Error");
}

std::string text_keine_strahlung(const std::string& Sprache) {
    return wahl(Sprache, "Benötigt werden entweder Daten zur Gestamt- oder zur Direktstrahlung",
                "Data for total or direct radiation are necessary");
}

std::string text_keine_temperatur(const std::string& Sprache) {
    return wahl(Sprache, "Keine Temperaturdaten vorhanden!", "No temperature values found!");
}

std::string text_keine_diffusstrahlung(const std::string& Sprache) {
    return wahl(Sprache, "Keine Daten zur Diffusstrahlung vorhanden!",
                "No data for diffuse rediation!");
}

std::string text_fehler_in_zeile(const std::string& Sprache, int zeile) {
    const std::string nummer = std::to_string(zeile);
    return Sprache == "e" ? "Error in line " + nummer + "\r\nImport has been aborted!"
                          : "Fehler in Zeile " + nummer + "\r\nKlimadatenimport wurde abgebrochen!";
}

std::string text_zu_wenig_daten(const std::string& Sprache) {
    return wahl(Sprache, "Fehler! - Zu wenig Daten. Benötigt werden 8760 Stundenwerte!",
                "Error! - Not enough data. 8760 hourly data is needed!");
}

std::string text_speichern_titel(const std::string& Sprache) {
    return wahl(Sprache, "Klimadatensatz speichern unter ...", "Save climatic data as ...");
}

std::string text_speichern_frage(const std::string& Sprache, const std::string& ort,
                                 const std::string& land) {
    const std::string satz = ort + " (" + land + ")";
    return Sprache == "e"
               ? "Please input a filename for the new set '" + satz + "' of climatic data:"
               : "Bitte geben Sie einen (beliebigen) Dateinamen ein, unter dem der neue "
                 "Klimadatensatz '" +
                     satz + "' gespeichert werden soll:";
}

std::string text_ueberschreiben(const std::string& Sprache) {
    return wahl(Sprache,
                "Der angegebene Dateiname wird bereits verwendet. Soll der unter diesem Namen "
                "vorhandene Datensatz überschrieben werden?",
                "This filename already exists. Should the data set, saved under this filename, "
                "be overwritten?");
}

std::string text_beendet(const std::string& Sprache) {
    return wahl(Sprache,
                "Klimadatenimport beendet! Biite starten Sie Velmaris neu, um die gerade "
                "importierten Daten verwenden zu können.",
                "Import finished. Please re-start Velmaris to use the new imported data.");
}

std::string text_nicht_schreibbar(const std::string& Sprache, const std::string& pfad) {
    return Sprache == "e" ? "The file \"" + pfad + "\" cannot be written."
                          : "Die Datei \"" + pfad + "\" kann nicht geschrieben werden.";
}

std::string text_nicht_lesbar(const std::string& Sprache, const std::string& pfad) {
    return Sprache == "e" ? "The file \"" + pfad + "\" cannot be read."
                          : "Die Datei \"" + pfad + "\" kann nicht gelesen werden.";
}

std::string text_zu_gross(const std::string& Sprache, const std::string& pfad) {
    return Sprache == "e" ? "The file \"" + pfad +
                                "\" is larger than 16 MB, more than a year of hourly values "
                                "can fill. It is not read."
                          : "Die Datei \"" + pfad +
                                "\" ist größer als 16 MB, mehr als ein Jahr von Stundenwerten "
                                "füllen kann. Sie wird nicht gelesen.";
}

std::string text_zu_viele_kopfzeilen(const std::string& Sprache) {
    return wahl(Sprache, "Die Anzahl der Kopfzeilen ist zu groß (höchstens 32767).",
                "The number of head lines is too large (32767 at most).");
}

std::vector<std::string> text_dezimalzeichen(const std::string& Sprache) {
    if (Sprache == "e") {
        return {"Dot (.)", "Comma (,)"};
    }
    return {"Punkt (.)", "Komma (,)"};
}

std::vector<std::string> text_breitezusatz(const std::string& Sprache) {
    if (Sprache == "e") {
        return {"North", "South"};
    }
    return {"Nord", "Süd"};
}

std::vector<std::string> text_laengezusatz(const std::string& Sprache) {
    if (Sprache == "e") {
        return {"East", "West"};
    }
    return {"Ost", "West"};
}

std::vector<std::string> text_gmt() {
    return {"GMT + ", "GMT - "};
}

std::vector<std::string> text_datenreihe(const std::string& Sprache) {
    if (Sprache == "e") {
        return {"- not used -", "Outdoor air temperature", "Total radiation", "Direct radiation",
                "Diffuse radiation"};
    }
    return {"- unbenutzt -", "Außenlufttemperatur", "Gesamtstrahlung", "Direktstrahlung",
            "Diffusstrahlung"};
}
