// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The climate import without its window: opening a source, the test of the inputs, and the
// import itself with its checks, the name question, the overwrite question and the writer.

#include "climate/import/Klimaimport.h"
#include "climate/import/quelle.h"

#include <string>
#include <string_view>
#include <vector>

// What the import needs of the user: one-button messages, the input box and the yes/no question.
class ImportDialoge {
public:
    virtual ~ImportDialoge() = default;
    // A message with one button.
    virtual void meldung(const std::string& titel, const std::string& text) = 0;
    // The input box; the answer, or "" for cancel.
    virtual std::string eingabe(const std::string& titel, const std::string& text,
                                const std::string& vorgabe) = 0;
    // A yes/no question; true for yes.
    virtual bool frage_ja_nein(const std::string& text) = 0;
};

// Largest source file the import reads, bytes: 8760 rows of 100 columns of 16 characters and a
// head, with room to spare. More is refused before it is split into lines.
constexpr std::size_t IMPORT_HOECHSTGROESSE = 16u << 20;

enum class Quelltext { gelesen, nicht_lesbar, zu_gross };

// The whole text of a source, reading no more than one byte past IMPORT_HOECHSTGROESSE.
Quelltext quelltext_lesen(const std::string& pfad, std::string& text);

// Preview lines read when a source is opened.
constexpr int VORSCHAU_ZEILEN = 250;

// Opens a source the user chose: `pfad` goes to DateinameBox and to `Datei` (the project's
// remembered file name, which the import sets as well), the first 250 lines to Dateiansicht,
// every column choice is cleared. A Meteonorm source is filled in by Meteonorm_Lesen; an EPW,
// test reference year, Modelica, NSRDB or PVGIS source by its own head (place, coordinates, zone
// where the file gives them); any other source leaves the fields empty for the user. Anything but
// `gelesen` leaves everything as it was.
Quelltext quelle_oeffnen(Klimaimport& f, const std::string& pfad, std::string& Datei);

// quelle_oeffnen on the text of the source `pfad` read already.
void quelle_annehmen(Klimaimport& f, const std::string& pfad, std::string_view text,
                     std::string& Datei);

// Fills place, country, coordinates and zone from the head of a source that f.Format reads by
// its own rules (the fields keep what the source does not give). False when the file cannot be
// read or f.Format is `spalten`.
bool quelle_kopf_lesen(Klimaimport& f);

// Whether the import may start: a source, place and country are given and head lines, latitude,
// longitude and zone are numbers.
bool AlleEingabenTesten(const Klimaimport& f);

// The inputs that keep the import from starting, in the order of the window.
enum class Importeingabe { Quelle, Ort, Land, Kopfzeilen, Breite, Laenge, Zone };
std::vector<Importeingabe> fehlende_eingaben(const Klimaimport& f);

// The proposed file name: the source's name without drive, folders and the last extension.
std::string standardname(const std::string& DateinameBox);

enum class Importausgang {
    geschrieben, // the station file was written
    abgebrochen, // the user gave no name or kept an existing file
    fehler,      // a check failed; its message was shown
};

struct Importergebnis {
    Importausgang ausgang = Importausgang::fehler;
    std::string pfad;  // the written station file
    Quellfehler grund; // for the sources read by their own format: what was wrong
};

// Runs the import of the window's source into `klimaordner` with the messages of `Sprache`
// ("d" or "e"). Column sources are checked by the column choice and by a test pass over up to
// 8760 rows; the formats read by their own rules are read whole and moved into the zone of the
// Zeitzone field. Then the name, the overwrite question, the writer and the closing message.
Importergebnis klimadaten_importieren(const Klimaimport& f, const std::string& klimaordner,
                                      const std::string& Sprache, ImportDialoge& dialoge);
