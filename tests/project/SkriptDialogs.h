// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planes/Eingabeflaechen.h"
#include "project/Dialogs.h"
#include "project/lebenszyklus/FILEIO.h"
#include "tests/support/Testprojekt.h"

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// A Dialogs port that answers from a script and records what it was asked.
class SkriptDialogs : public Dialogs {
public:
    struct Nachricht {
        std::string text, titel;
        Symbol symbol;
        Knoepfe knoepfe;
        bool standard_nein;
    };

    std::deque<Antwort> antworten;                  // answers to Yes/No(/Cancel) boxes
    std::deque<std::optional<std::string>> dateien; // answers of the file dialogs
    std::vector<Nachricht> nachrichten;
    std::vector<std::string> dialoge; // "oeffnen" or "speichern", with filter and index
    std::vector<std::string> ordner;  // the first folder of each file dialog
    std::string titel;
    int erste_ebenen = 0;
    // Runs while a message is shown, as a modal box runs the event loop.
    std::function<void()> beim_melden;

    Antwort nachricht(const std::string& text, const std::string& t, Symbol symbol, Knoepfe knoepfe,
                      bool standard_nein) override {
        nachrichten.push_back({text, t, symbol, knoepfe, standard_nein});
        if (beim_melden) {
            beim_melden();
        }
        if (knoepfe == Knoepfe::OK) {
            return Antwort::OK;
        }
        const Antwort a = antworten.empty() ? Antwort::Abbrechen : antworten.front();
        if (!antworten.empty()) {
            antworten.pop_front();
        }
        return a;
    }
    std::optional<std::string> oeffnen_dialog(const std::string& filter, int index,
                                              const std::string& erster) override {
        dialoge.push_back("oeffnen " + filter + " " + std::to_string(index));
        ordner.push_back(erster);
        return naechste_datei();
    }
    std::optional<std::string> speichern_dialog(const std::string& filter, int index,
                                                const std::string& erster) override {
        dialoge.push_back("speichern " + filter + " " + std::to_string(index));
        ordner.push_back(erster);
        return naechste_datei();
    }
    void titel_setzen(const std::string& t) override { titel = t; }
    void erste_ebenen_zeigen() override { ++erste_ebenen; }

    // The texts of the message boxes shown so far.
    std::vector<std::string> texte() const {
        std::vector<std::string> t;
        for (const Nachricht& n : nachrichten) {
            t.push_back(n.text);
        }
        return t;
    }

private:
    std::optional<std::string> naechste_datei() {
        if (dateien.empty()) {
            return std::nullopt;
        }
        auto d = dateien.front();
        dateien.pop_front();
        return d;
    }
};

// A started program on a synthetic station: record, planes, life cycle, scripted dialogs.
struct Programm {
    explicit Programm(const std::string& sprache = "d");

    TempOrdner ordner;
    std::unique_ptr<Projekt> p;
    SkriptDialogs dialogs;
    std::unique_ptr<Eingabeflaechen> e;
    std::unique_ptr<FILEIO> io;

    // The path of a file in the test folder.
    std::string pfad(const std::string& name) const { return (ordner.pfad() / name).string(); }
    // The lines of a file, without their CR LF.
    std::vector<std::string> zeilen(const std::string& pfad) const;
};
