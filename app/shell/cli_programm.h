// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planes/Eingabeflaechen.h"
#include "project/Dialogs.h"
#include "project/lebenszyklus/FILEIO.h"

#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

struct Projekt;

// The dialogs of a run without a display: every message is kept, the save dialog names the one
// file given, a replace prompt is answered Yes, and no other dialog is ever answered.
class KonsolenDialogs : public Dialogs {
public:
    std::optional<std::string> speichern_als; // the name the save dialog gives, once
    std::vector<std::string> texte;           // texts of the messages shown
    std::vector<std::string> titel;           // their titles

    Antwort nachricht(const std::string& text, const std::string& t, Symbol, Knoepfe knoepfe,
                      bool) override;
    std::optional<std::string> oeffnen_dialog(const std::string&, int,
                                              const std::string&) override {
        return std::nullopt;
    }
    std::optional<std::string> speichern_dialog(const std::string&, int,
                                                const std::string&) override;
};

// The program started as the desktop starts it, on the record `p`: language, planes, the new
// project on the default station. The station folder is `klima`; `sprache` "d" or "e", or empty
// for the language file.
struct KonsolenProgramm {
    KonsolenProgramm(Projekt& p, const std::string& klima, const std::string& sprache);
    Projekt& p;
    KonsolenDialogs dialogs;
    std::unique_ptr<Eingabeflaechen> ebenen;
    std::unique_ptr<FILEIO> io;

    // Opens a project as the menu does. Returns the exit status: 0 read, 3 a wrong version line
    // (its message on `fehler`), 2 any other fault ("Dateifehler!" on `fehler`, with the cause
    // of a calculation fault below it), STATION_ERSETZT read but calculated on the default
    // station because its own station file is missing (the climate message on `fehler`).
    int oeffnen(const std::string& pfad, std::ostream& fehler);

    static constexpr int STATION_ERSETZT = 4;
};
