// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/Dialogs.h"
#include "tests/support/Testprojekt.h"

#include <deque>
#include <string>
#include <vector>

// A Dialogs port that records the message boxes of the climate plane.
class Meldungen : public Dialogs {
public:
    struct Meldung {
        std::string text, titel;
        Symbol symbol;
    };
    std::vector<Meldung> meldungen;

    Antwort nachricht(const std::string& text, const std::string& titel, Symbol symbol, Knoepfe,
                      bool) override {
        meldungen.push_back({text, titel, symbol});
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

// Writes a station file of the synthetic climate with the given place line and position
// (latitude north positive, longitude west positive).
void station_schreiben(const TempOrdner& ordner, const std::string& datei, const std::string& ort,
                       double breite, double laenge_west);

// A random source that returns the given numbers in turn, the last one again and again.
std::function<double()> zahlenfolge(std::deque<double> zahlen);
