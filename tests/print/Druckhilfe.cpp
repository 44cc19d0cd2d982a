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
