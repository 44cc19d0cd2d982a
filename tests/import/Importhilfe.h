// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Helpers of the import tests: a scripted user and small sources.

#include "climate/import/importieren.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

// Answers the import's questions from a script and keeps every message.
class Skriptnutzer : public ImportDialoge {
public:
    std::string name = "neu";   // answer of the input box
    bool ueberschreiben = true; // answer of the yes/no question

    struct Meldung {
        std::string titel, text;
    };
    std::vector<Meldung> meldungen;
    std::vector<std::string> fragen;
    std::string eingabe_titel, eingabe_text, eingabe_vorgabe;

    void meldung(const std::string& titel, const std::string& text) override {
        meldungen.push_back({titel, text});
    }
    std::string eingabe(const std::string& titel, const std::string& text,
                        const std::string& vorgabe) override {
        eingabe_titel = titel;
        eingabe_text = text;
        eingabe_vorgabe = vorgabe;
        return name;
    }
    bool frage_ja_nein(const std::string& text) override {
        fragen.push_back(text);
        return ueberschreiben;
    }
};

// A tab-separated column text: `kopf` head lines, then `zeilen` rows made by `zeile(i)`.
std::string spaltentext(int kopf, int zeilen, const std::function<std::string(int)>& zeile);

// The lines of a text split at CR LF.
std::vector<std::string> crlf_zeilen(const std::string& text);

// A tab-separated source of `zeilen` hours after two head lines: hour, Ta, total, direct,
// diffuse.
std::string stundenquelle(int zeilen);

// The bytes of a file.
std::string datei_inhalt(const std::filesystem::path& pfad);
