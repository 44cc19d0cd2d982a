// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/import/Importhilfe.h"

#include <fstream>
#include <sstream>

std::string spaltentext(int kopf, int zeilen, const std::function<std::string(int)>& zeile) {
    std::string text;
    for (int i = 0; i < kopf; ++i) {
        text += "Kopf " + std::to_string(i + 1) + "\r\n";
    }
    for (int i = 0; i < zeilen; ++i) {
        text += zeile(i) + "\r\n";
    }
    return text;
}

std::vector<std::string> crlf_zeilen(const std::string& text) {
    std::vector<std::string> aus;
    std::size_t anfang = 0;
    for (std::size_t i = text.find("\r\n"); i != std::string::npos; i = text.find("\r\n", anfang)) {
        aus.push_back(text.substr(anfang, i - anfang));
        anfang = i + 2;
    }
    if (anfang < text.size()) {
        aus.push_back(text.substr(anfang));
    }
    return aus;
}

std::string stundenquelle(int zeilen) {
    return spaltentext(2, zeilen, [](int i) {
        return std::to_string(i) + "\t" + std::to_string(i % 30 - 10) + ".25\t" +
               std::to_string(i % 7 * 100) + "\t" + std::to_string(i % 7 * 10) + "\t" +
               std::to_string(i % 7 * 20) + ".5";
    });
}

std::string datei_inhalt(const std::filesystem::path& pfad) {
    std::ifstream datei(pfad, std::ios::binary);
    std::ostringstream inhalt;
    inhalt << datei.rdbuf();
    return inhalt.str();
}
