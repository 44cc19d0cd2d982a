// SPDX-License-Identifier: GPL-3.0-or-later
// The layout check of every chart of the planes and every printed page, both languages, on the
// layout cases: no two texts of one drawing overlap, and no text leaves its surface or its page
// frame, nor out of a diagram's frame, and every page holds its own diagram frames. Text boxes
// come from the recording surfaces' fixed font model.

#include "calc/c_mod.h"
#include "charts/Auffrischtabelle.h"
#include "language/c_Sprache.h"
#include "planes/Eingabeflaechen.h"
#include "print/Ausdrucken.h"
#include "print/RecordingPrinter.h"
#include "tests/charts/Diagrammhilfe.h"
#include "tests/layout/Layoutfaelle.h"
#include "tests/regression/fallbibliothek.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <sstream>

namespace {

// Texts that may stand together or outside: on the drawing `flaeche` (a surface's name or
// "Seite n"), a text beginning or ending with `a`, and one with `b` (null: `a` leaving its
// drawing).
struct Ausnahme {
    const char* flaeche;
    const char* a;
    const char* b;
    const char* grund;
};

// On purpose.
const std::vector<Ausnahme> AUSNAHMEN = {
    {"Seite 1", " m", nullptr,
     "the house sketch writes the wall height right of the house, beside the rule's end"},
};

bool passt(const std::string& t, const char* v) {
    const std::string w(v);
    return t.rfind(w, 0) == 0 ||
           (t.size() >= w.size() && t.compare(t.size() - w.size(), w.size(), w) == 0);
}

bool ausgenommen(const std::string& flaeche, const std::string& a, const char* b_text,
                 const std::string& b) {
    for (const Ausnahme& x : AUSNAHMEN) {
        if (flaeche != x.flaeche) {
            continue;
        }
        if (b_text == nullptr ? x.b == nullptr && passt(a, x.a)
                              : x.b != nullptr && ((passt(a, x.a) && passt(b, x.b)) ||
                                                   (passt(a, x.b) && passt(b, x.a)))) {
            return true;
        }
    }
    return false;
}

std::string box(const Textfeld& t) {
    std::ostringstream s;
    s << "\"" << t.text << "\" [" << t.x1 << "," << t.y1 << " - " << t.x2 << "," << t.y2 << "]";
    return s.str();
}

// The faults of one drawing: overlapping texts and texts outside (x0, y0)..(x1, y1).
std::vector<std::string> pruefen(const std::string& flaeche, const std::vector<Textfeld>& texte,
                                 double x0, double y0, double x1, double y1, double toleranz) {
    std::vector<std::string> fehler;
    for (std::size_t i = 0; i < texte.size(); ++i) {
        const Textfeld& a = texte[i];
        if (a.x1 != a.x2 &&
            (a.x1 < x0 - toleranz || a.y1 < y0 - toleranz || a.x2 > x1 + toleranz ||
             a.y2 > y1 + toleranz) &&
            !ausgenommen(flaeche, a.text, nullptr, "")) {
            fehler.push_back(flaeche + ": " + box(a) + " leaves its drawing");
        }
        for (std::size_t j = i + 1; j < texte.size(); ++j) {
            if (ueberlappen(a, texte[j], toleranz) &&
                !ausgenommen(flaeche, a.text, "", texte[j].text)) {
                fehler.push_back(flaeche + ": " + box(a) + " overlaps " + box(texte[j]));
            }
        }
    }
    return fehler;
}

// The texts of a surface as placed by its last drawing.
std::vector<Textfeld> texte(const RecordingSurface& s, double massstab) {
    std::vector<Textfeld> r;
    for (const auto& p : s.of_kind(RecordingSurface::Primitive::Kind::Print)) {
        const double zeichen = std::nearbyint(0.75 * p.font_size);
        const double zeile = std::nearbyint(4.0 / 3.0 * p.font_size);
        Textfeld t = textfeld(p.x1, p.y1, p.text, zeichen, zeile);
        t.x1 *= massstab, t.x2 *= massstab, t.y1 *= massstab, t.y2 *= massstab;
        r.push_back(t);
    }
    return r;
}

struct Lauf {
    const Layoutfall* fall;
    const char* sprache;
    double massstab;
};

// The layout cases and the buildings of the case library, whose names take a prefix.
const std::vector<Layoutfall>& alle_faelle() {
    static const std::vector<Layoutfall> faelle = [] {
        std::vector<Layoutfall> r = layoutfaelle();
        static std::vector<std::string> namen;
        namen.reserve(std::size(FAELLE));
        for (const Fall& f : FAELLE) {
            namen.push_back(std::string("bibliothek_") + f.name);
            r.push_back({namen.back().c_str(), f.aendern});
        }
        return r;
    }();
    return faelle;
}

std::vector<Lauf> laeufe() {
    std::vector<Lauf> r;
    for (const Layoutfall& f : alle_faelle()) {
        for (const char* s : {"d", "e"}) {
            r.push_back({&f, s, 1.0});
        }
    }
    return r;
}

std::string laufname(const testing::TestParamInfo<Lauf>& info) {
    return std::string(info.param.fall->name) + "_" + info.param.sprache + "_" +
           std::to_string(static_cast<int>(info.param.massstab * 100));
}

class Layout : public testing::TestWithParam<Lauf> {
protected:
    std::unique_ptr<Projekt> projekt(const TempOrdner& o) {
        auto p = neues_testprojekt(o);
        p->Sprache = GetParam().sprache;
        sprachtexte_setzen(*p);
        GetParam().fall->aendern(*p);
        alles_berechnen(*p);
        return p;
    }
};

TEST_P(Layout, ChartTextsStayApartAndInsideTheirSurfaces) {
    TempOrdner o;
    auto p = projekt(o);
    const double m = GetParam().massstab;
    Uebersicht ue;
    // The temperature course as large as on the overview plane.
    RecordingSurface temperaturen(426, 134);
    UebersichtFlaechen uebersicht{temperaturen, ue.Monatsbilanz, ue.JahrBilanz, ue.UeberGrafik,
                                  ue.UeberJahr};
    Heizen hz;
    Kuehlen kh;
    // The energy flow diagrams as large as on their plane.
    RecordingSurface sankey(436, 228), sankey_kuehlen(436, 228);
    SankeyFlaechen sk{sankey, sankey_kuehlen};
    RecordingSurface av(60, 130), lage(60, 60), monat(330, 115), bild2(80, 52), bild3(80, 52);
    GeometrieFlaechen geo{av, lage};
    EnergieFlaechen en{monat, bild2, bild3};
    Ergebnisebenen ebenen{&en, &geo, &uebersicht, &sk, &hz.f, &kh.f, {}};
    Diagrammeinstellung e;
    e.Sprache = GetParam().sprache;
    e.dezimal = e.Sprache == "e" ? '.' : ',';
    auffrischen(
        *p, ebenen, [](Ebene) { return true; }, e);

    const std::pair<const char*, const RecordingSurface*> flaechen[] = {
        {"AV_Picture", &av},
        {"Picture1", &lage},
        {"Monatsuebersicht", &monat},
        {"Picture2", &bild2},
        {"Picture3", &bild3},
        {"Temperaturen", &temperaturen},
        {"Monatsbilanz", &ue.Monatsbilanz},
        {"JahrBilanz_Uebersicht", &ue.JahrBilanz},
        {"UeberGrafik", &ue.UeberGrafik},
        {"UeberJahr", &ue.UeberJahr},
        {"Heizbilanz", &hz.Heizbilanz},
        {"JahrBilanz_Heizen", &hz.JahrBilanz},
        {"NutzungsgradMonat", &hz.NutzungsgradMonat},
        {"NutzungsgradJahr", &hz.NutzungsgradJahr},
        {"StundenProTagMonat", &kh.StundenProTagMonat},
        {"StundenProTagJahr", &kh.StundenProTagJahr},
        {"KuehlbedarfMonat", &kh.KuehlbedarfMonat},
        {"KuehlbedarfJahr", &kh.KuehlbedarfJahr},
        {"KuehlGradStundenMonat", &kh.KuehlGradStundenMonat},
        {"KuehlGradStundenJahr", &kh.KuehlGradStundenJahr},
        {"Sankey", &sankey},
        {"Sankey_Kuehlen", &sankey_kuehlen},
    };
    for (const auto& [name, s] : flaechen) {
        for (const std::string& f : pruefen(name, texte(*s, m), 0, 0, s->ScaleWidth() * m,
                                            s->ScaleHeight() * m, 1.0 * m)) {
            ADD_FAILURE() << f;
        }
    }
}

// The page frame: the rules run from x 25 to 175 mm, the logo stands at y 20 and the foot line
// at y 261.
constexpr double RAHMEN_X0 = 25, RAHMEN_X1 = 175, RAHMEN_Y0 = 15, RAHMEN_Y1 = 270;

TEST_P(Layout, PrintedTextsStayApartAndInsideThePageFrame) {
    TempOrdner o;
    auto p = projekt(o);
    const double m = GetParam().massstab;
    Eingabeflaechen planes(*p, GetParam().sprache[0] == 'e' ? '.' : ',');
    alles_berechnen(*p);
    RecordingPrinter d;
    Ausdrucken(d, *p, planes, Druckauswahl{true, true, true, true, true, true, true},
               planes.dezimal, "24.11.2026");
    std::vector<std::vector<Textfeld>> seiten(1);
    std::vector<std::vector<Textfeld>> rahmen(8);
    for (const auto& x : d.log()) {
        // Diagram frames: boxes wider than a legend's colour swatch.
        if (x.art == RecordingPrinter::Eintrag::Art::Box && std::fabs(x.x2 - x.x1) > 20 &&
            x.seite >= 1 && x.seite <= 8) {
            rahmen[static_cast<std::size_t>(x.seite) - 1].push_back(
                {std::min(x.x1, x.x2), std::min(x.y1, x.y2), std::max(x.x1, x.x2),
                 std::max(x.y1, x.y2), ""});
        }
        if (x.art == RecordingPrinter::Eintrag::Art::Print) {
            if (static_cast<int>(seiten.size()) < x.seite) {
                seiten.resize(static_cast<std::size_t>(x.seite));
            }
            Textfeld t = textfeld(x.x1, x.y1, x.text, 0.2 * x.size, 0.4 * x.size);
            t.x1 *= m, t.x2 *= m, t.y1 *= m, t.y2 *= m;
            seiten[static_cast<std::size_t>(x.seite) - 1].push_back(t);
        }
    }
    ASSERT_EQ(seiten.size(), 8u); // all seven options
    // The diagram frames each page holds: hours and heat balance a month and a year diagram,
    // the window balance its diagram and the legend under it, every other page one or none.
    const std::size_t DIAGRAMMRAHMEN[8] = {0, 0, 2, 2, 1, 2, 1, 1};
    for (std::size_t i = 0; i < seiten.size(); ++i) {
        const std::string seite = "Seite " + std::to_string(i + 1);
        for (const std::string& f : pruefen(seite, seiten[i], RAHMEN_X0 * m, RAHMEN_Y0 * m,
                                            RAHMEN_X1 * m, RAHMEN_Y1 * m, 0.5 * m)) {
            ADD_FAILURE() << f;
        }
        EXPECT_EQ(rahmen[i].size(), DIAGRAMMRAHMEN[i]) << seite;
        // A text that begins inside a diagram frame ends inside it.
        for (const Textfeld& r : rahmen[i]) {
            for (const Textfeld& t : seiten[i]) {
                const bool beginnt_innen =
                    t.x1 > r.x1 * m && t.x1 < r.x2 * m && t.y1 > r.y1 * m && t.y1 < r.y2 * m;
                if (t.x1 != t.x2 && beginnt_innen &&
                    (t.x2 > r.x2 * m + 0.5 * m || t.y2 > r.y2 * m + 0.5 * m)) {
                    ADD_FAILURE() << seite << ": " << box(t) << " runs out of its diagram frame";
                }
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Faelle, Layout, testing::ValuesIn(laeufe()), laufname);

} // namespace
