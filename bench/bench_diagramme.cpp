// SPDX-License-Identifier: GPL-3.0-or-later
// A scroll step with the charts of a visible plane redrawn by the refresh table, on recording
// raster surfaces of the original sizes, against the same step with no plane visible.
#include "calc/c_mod.h"
#include "charts/Auffrischtabelle.h"
#include "charts/RecordingSurface.h"
#include "language/c_Sprache.h"
#include "project/c_glob.h"
#include "tests/support/Testprojekt.h"

#include <benchmark/benchmark.h>

namespace {

struct Flaechen {
    RecordingSurface Temperaturen{560, 250}, Monatsbilanz{330, 140}, JahrBilanz{90, 140},
        UeberGrafik{330, 140}, UeberJahr{90, 140}, Sankey{420, 300}, Sankey_Kuehlen{420, 300};
    UebersichtFlaechen uebersicht{Temperaturen, Monatsbilanz, JahrBilanz, UeberGrafik, UeberJahr};
    SankeyFlaechen sankey{Sankey, Sankey_Kuehlen};
};

// The log of a recording surface grows with every drawing; a real surface keeps nothing.
void vergessen(Flaechen& f) {
    for (RecordingSurface* s : {&f.Temperaturen, &f.Monatsbilanz, &f.JahrBilanz, &f.UeberGrafik,
                                &f.UeberJahr, &f.Sankey, &f.Sankey_Kuehlen}) {
        s->forget();
    }
}

// range(0): 0 no plane visible, 1 the overview (four charts), 2 the energy flow plane.
void BM_scrollschritt(benchmark::State& state) {
    TempOrdner ordner;
    auto p = neues_testprojekt(ordner);
    p->Sprache = "d";
    sprachtexte_setzen(*p);
    Flaechen f;
    Ergebnisebenen ebenen;
    ebenen.uebersicht = &f.uebersicht;
    ebenen.sankey = &f.sankey;
    const int sichtbar = static_cast<int>(state.range(0));
    Diagrammeinstellung e;
    e.Sprache = "d";
    Auffrischtabelle tabelle(
        *p, ebenen,
        [sichtbar](Ebene x) {
            return (sichtbar == 1 && x == Ebene::Uebersicht) ||
                   (sichtbar == 2 && x == Ebene::Sankey);
        },
        e);
    int schritt = 0;
    for (auto _ : state) {
        p->l = 8.0f + 0.1f * static_cast<float>(schritt++ % 40);
        alles_berechnen(*p);
        state.PauseTiming();
        vergessen(f);
        state.ResumeTiming();
        benchmark::DoNotOptimize(p->qh);
    }
}
BENCHMARK(BM_scrollschritt)->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
