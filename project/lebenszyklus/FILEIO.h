// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

struct Projekt;
class Eingabeflaechen;
class Dialogs;

// The project commands of the menu: new, open, save, save as, leave; the prompt about unsaved
// changes, the title texts and the build-up at start. Every command that replaces the project
// builds it up with the load guard set, shows it on the planes and recalculates once.
//
// The project file counts as held open from an open or a save until it is replaced or the
// program ends (Datei_offen and the path below); no file handle is kept, and a save writes the
// complete new file beside the old one before it replaces it.
class FILEIO {
public:
    FILEIO(Projekt& p, Eingabeflaechen& e, Dialogs& d);

    // The new project's inputs, the planes' roof check and construction lists, the unnamed
    // file and title.
    void neues_projekt();
    // The build-up of the start and of a new project: guard, new project, station, planes,
    // guard cleared, one recalculation.
    void aufbauen();
    // The menu's new project, after the prompt about unsaved changes.
    void datei_neu();
    // Opens the project `pfad`, or asks for one when it is empty. Every fault (a cancelled
    // prompt or dialog, a missing or short file, a value out of range) ends in the message
    // "Dateifehler!" and leaves the load guard as it stood; a fault of the calculation adds its
    // own text in the language of the run. After a fault past the dialog the project is
    // unnamed: no file is held open and a plain save asks for a name.
    void datei_oeffnen(const std::string& pfad);
    // Saves under the current name, or asks for one when no file is open. False after a write
    // fault, which leaves the former file whole.
    bool datei_speichern();
    // Asks for a name (again after a No to the replace prompt) and saves.
    bool datei_speichern_unter();
    // The menu's leave: true when the program ends, false when the prompt was cancelled.
    bool programm_beenden();
    // The prompt on closing the window: 1 cancels the closing, 0 lets it close.
    int16_t aenderung_abfragen();
    // The start after the language is settled: folders, first folder of the dialogs from the
    // command line (else `dokumente`), the build-up, and a project named on the command line
    // opened.
    void start(const std::string& befehlszeile, const std::string& programmordner,
               const std::string& dokumente);

    // The compiled help file of the language of the run, which the help viewer opens at its
    // start page.
    std::string hilfe_datei() const;

    // The path the project file is held open under, while Datei_offen is 1.
    const std::string& offene_datei() const { return offene_datei_; }
    // The title of the main window.
    const std::string& titel() const { return titel_; }

    // Filters of the file dialogs, German in both languages.
    static constexpr const char* FILTER_OEFFNEN =
        "Alle Dateien (*.*)|*.*|VELM Dateien (*.vel)|*.vel";
    static constexpr const char* FILTER_SPEICHERN = "VELM Dateien (*.vel)|*.vel";

private:
    // The prompt about unsaved changes: Ja, Nein or Abbrechen.
    int frage_aenderung();
    void datei_schliessen();
    void titel_unbenannt();
    void titel_mit_namen();
    void titel_setzen(const std::string& titel);
    // "Dateifehler!", with the cause below it when one is given.
    void fehler_melden(const std::string& ursache = std::string());
    void nach_fehlgeschlagenem_oeffnen();
    void schreiben();

    Projekt& p_;
    Eingabeflaechen& e_;
    Dialogs& d_;
    std::string offene_datei_;
    std::string titel_;
};

// A command line that names a project: ending in ".vel" in any case, or in that and a closing
// quote, the quotes dropped. The path keeps its case. Empty if it names none.
std::string projekt_aus_befehlszeile(const std::string& befehlszeile);
// The project path as the file system has it: as given, or lowered where only the lowered
// path exists (a project named in capitals that was saved in lower case).
std::string projektpfad_finden(const std::string& pfad);
// The first folder of the file dialogs after the command line: the part behind its last "|" if
// it holds one, else `initdir`.
std::string initdir_aus_befehlszeile(const std::string& befehlszeile, const std::string& initdir);
// Where the save and open dialogs start: the folder of the named project, else InitDir.
std::string dialogordner(const Projekt& p);
