// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/Dialogs.h"
#include "project/c_glob.h"
#include "ui/Desktopprogramm.h"

#include <QTemporaryDir>

#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <utility>

// Answers the program's questions without a window, for the tools that run the desktop program
// headless: the open dialog gives `datei` once, changes are not kept, and every message goes to
// the error output, so that a project that calculates badly is told.
class Stilledialoge : public Dialogs {
public:
    std::optional<std::string> datei;

    Antwort nachricht(const std::string& text, const std::string& titel, Symbol, Knoepfe knoepfe,
                      bool) override {
        std::cerr << titel << ": " << text << '\n';
        return knoepfe == Knoepfe::OK ? Antwort::OK : Antwort::Nein;
    }
    std::optional<std::string> oeffnen_dialog(const std::string&, int,
                                              const std::string&) override {
        return std::exchange(datei, std::nullopt);
    }
    std::optional<std::string> speichern_dialog(const std::string&, int,
                                                const std::string&) override {
        return std::nullopt;
    }
};

// The desktop program on a record of its own and on a copy of the station folder (it may write
// its language file there; the delivered folder stays as it is), not yet started.
struct StillesProgramm {
    QTemporaryDir klima;
    Stilledialoge dialoge;
    std::unique_ptr<Projekt> datensatz = std::make_unique<Projekt>();
    Desktopprogramm programm{*datensatz, &dialoge, [] { return std::string(); }};

    StillesProgramm() {
        std::filesystem::copy(programm.klimaordner, klima.path().toStdString(),
                              std::filesystem::copy_options::recursive);
        programm.klimaordner = klima.path().toStdString();
    }
};
