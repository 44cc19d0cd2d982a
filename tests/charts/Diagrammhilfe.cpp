// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/charts/Diagrammhilfe.h"

#include "calc/c_mod.h"
#include "language/c_Sprache.h"
#include "project/c_glob.h"

#include <gtest/gtest.h>

std::unique_ptr<Projekt> diagrammprojekt(const TempOrdner& ordner, const std::string& sprache) {
    auto p = neues_testprojekt(ordner);
    p->Sprache = sprache;
    sprachtexte_setzen(*p);
    return p;
}

Diagrammeinstellung einstellung(const std::string& sprache) {
    Diagrammeinstellung e;
    e.Sprache = sprache;
    e.dezimal = '.';
    return e;
}

std::vector<RecordingSurface::Primitive> boxen(const RecordingSurface& s, Rgb farbe) {
    std::vector<RecordingSurface::Primitive> r;
    for (const auto& p : s.of_kind(RecordingSurface::Primitive::Kind::FilledBox)) {
        if (p.colour == farbe) {
            r.push_back(p);
        }
    }
    return r;
}

std::unique_ptr<Projekt> kuehlprojekt(const TempOrdner& ordner, const std::string& sprache) {
    auto p = diagrammprojekt(ordner, sprache);
    p->Tueber = 22;
    p->fs = 80;
    alles_berechnen(*p);
    return p;
}

int pixel_in_spalte(const RecordingSurface& s, int x, int y_von, int y_bis, Rgb farbe) {
    int n = 0;
    for (int y = y_von; y <= y_bis; ++y) {
        n += s.pixel(x, y) == farbe ? 1 : 0;
    }
    return n;
}

void einmal_gedruckt(const RecordingSurface& s, std::initializer_list<std::string> texte) {
    for (const std::string& t : texte) {
        EXPECT_EQ(s.prints(t).size(), 1u) << '"' << t << '"';
    }
}
