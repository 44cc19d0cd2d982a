// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/print/Druckhilfe.h"

#include "calc/c_mod.h"
#include "language/c_Sprache.h"

Druckprojekt::Druckprojekt(const TempOrdner& ordner, const std::string& sprache)
    : p(neues_testprojekt(ordner)) {
    p->Sprache = sprache;
    sprachtexte_setzen(*p);
    e = std::make_unique<Eingabeflaechen>(*p, sprache == "e" ? '.' : ',');
    alles_berechnen(*p);
}

int pdf_seiten(const std::filesystem::path& pfad) {
    const std::string inhalt = datei_lesen(pfad);
    if (inhalt.rfind("%PDF-", 0) != 0) {
        return -1;
    }
    int n = 0;
    const std::string marke = "/Type /Page";
    for (std::size_t i = inhalt.find(marke); i != std::string::npos;
         i = inhalt.find(marke, i + 1)) {
        n += inhalt.compare(i, marke.size() + 1, marke + "s") != 0 ? 1 : 0;
    }
    return n;
}
