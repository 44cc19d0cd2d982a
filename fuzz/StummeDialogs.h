// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/Dialogs.h"

// The dialogs of a fuzz run: every message is answered OK, every file dialog cancelled.
class StummeDialogs : public Dialogs {
public:
    Antwort nachricht(const std::string&, const std::string&, Symbol, Knoepfe, bool) override {
        return Antwort::OK;
    }
    std::optional<std::string> oeffnen_dialog(const std::string&, int,
                                              const std::string&) override {
        return std::nullopt;
    }
    std::optional<std::string> speichern_dialog(const std::string&, int,
                                                const std::string&) override {
        return std::nullopt;
    }
};
