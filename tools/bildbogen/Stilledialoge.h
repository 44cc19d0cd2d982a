// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/Dialogs.h"

#include <iostream>
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
