// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/project/SkriptDialogs.h"

#include "language/c_Sprache.h"

#include <fstream>
#include <sstream>

Programm::Programm(const std::string& sprache) : p(leeres_projekt()) {
    ordner.schreiben("trier.met", station_text(Stationskopf{}, synthetisches_wetter));
    p->KlimaOrdner = ordner.pfad().string();
    p->Sprache = sprache;
    sprachtexte_setzen(*p);
    e = std::make_unique<Eingabeflaechen>(*p);
    io = std::make_unique<FILEIO>(*p, *e, dialogs);
    io->start("", ordner.pfad().string(), ordner.pfad().string());
}

std::vector<std::string> Programm::zeilen(const std::string& pfad) const {
    std::ifstream ein(pfad, std::ios::binary);
    std::stringstream puffer;
    puffer << ein.rdbuf();
    const std::string text = puffer.str();
    std::vector<std::string> z;
    std::size_t anfang = 0;
    for (std::size_t i = text.find("\r\n"); i != std::string::npos; i = text.find("\r\n", anfang)) {
        z.push_back(text.substr(anfang, i - anfang));
        anfang = i + 2;
    }
    if (anfang < text.size()) {
        z.push_back(text.substr(anfang));
    }
    return z;
}
