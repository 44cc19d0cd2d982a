// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/Dateizugriff.h"

#include "project/Laufzeitfehler.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace fs = std::filesystem;

std::string datei_text(const std::string& pfad, std::size_t grenze) {
    std::error_code fehler;
    std::ifstream ein;
    if (!fs::is_directory(pfad, fehler)) {
        ein.open(pfad, std::ios::binary);
    }
    if (!ein) {
        throw Laufzeitfehler(Laufzeitfehler::DateiNichtGefunden, "File not found: " + pfad);
    }
    std::string text(grenze, '\0');
    ein.read(text.data(), static_cast<std::streamsize>(grenze));
    text.resize(static_cast<std::size_t>(ein.gcount()));
    if (ein.bad()) {
        throw Laufzeitfehler(Laufzeitfehler::DateiZugriff, "Read fault: " + pfad);
    }
    return text;
}

bool datei_vorhanden(const std::string& pfad) {
    std::error_code fehler;
    return !fs::is_directory(pfad, fehler) && std::ifstream(pfad, std::ios::binary).good();
}

void datei_ersetzen(const std::string& pfad, const std::string& inhalt) {
    const fs::path ziel(pfad);
    fs::path neu = ziel;
    neu += ".velmaris-neu";
    {
        std::ofstream aus(neu, std::ios::binary | std::ios::trunc);
        if (!aus.is_open()) {
            throw Laufzeitfehler(Laufzeitfehler::DateiZugriff, "Cannot create " + neu.string());
        }
        aus.write(inhalt.data(), static_cast<std::streamsize>(inhalt.size()));
        aus.close();
        if (!aus) {
            std::error_code egal;
            fs::remove(neu, egal);
            throw Laufzeitfehler(Laufzeitfehler::DateiZugriff, "Cannot write " + neu.string());
        }
    }
    std::error_code fehler;
    fs::rename(neu, ziel, fehler);
    if (fehler) {
        std::error_code egal;
        fs::remove(neu, egal);
        throw Laufzeitfehler(Laufzeitfehler::DateiZugriff,
                             "Cannot replace " + pfad + ": " + fehler.message());
    }
}
