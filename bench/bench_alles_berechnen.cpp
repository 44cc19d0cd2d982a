// SPDX-License-Identifier: GPL-3.0-or-later
// The whole recalculation chain on the new project, as every scroll step runs it; and the plain
// evaluation of the hourly simulation for comparison.
#include "calc/c_mod.h"
#include "calc/geometrie.h"
#include "calc/monatsbilanz.h"
#include "climate/monatsstrahlung.h"
#include "tests/support/Testprojekt.h"
#include "tests/support/woertlich.h"

#include <benchmark/benchmark.h>

namespace {

std::unique_ptr<Projekt> projekt_fuer(TempOrdner& ordner, bool dachgeschoss) {
    auto p = neues_testprojekt(ordner);
    p->Dachgeschoss = dachgeschoss;
    alles_berechnen(*p);
    return p;
}

void BM_alles_berechnen(benchmark::State& state) {
    TempOrdner ordner;
    auto p = projekt_fuer(ordner, state.range(0) != 0);
    for (auto _ : state) {
        alles_berechnen(*p);
        benchmark::DoNotOptimize(p->qh);
    }
}
BENCHMARK(BM_alles_berechnen)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// A dragged roof height: every step has a new pitch, so the roof factors are made anew.
void BM_alles_berechnen_neue_dachneigung(benchmark::State& state) {
    TempOrdner ordner;
    auto p = projekt_fuer(ordner, true);
    int schritt = 0;
    for (auto _ : state) {
        p->hd = 1.0f + 0.2f * static_cast<float>(schritt++ % 20);
        alles_berechnen(*p);
        benchmark::DoNotOptimize(p->qh);
    }
}
BENCHMARK(BM_alles_berechnen_neue_dachneigung)->Unit(benchmark::kMillisecond);

// A dragged orientation: the monthly radiation and the wall factors are made anew.
void BM_orientierung(benchmark::State& state) {
    TempOrdner ordner;
    auto p = projekt_fuer(ordner, false);
    int schritt = 0;
    for (auto _ : state) {
        p->orient = static_cast<int16_t>(-45 + 5 * (schritt++ % 19));
        monatsstrahlung_berechnen(*p);
        alles_berechnen(*p);
        benchmark::DoNotOptimize(p->qh);
    }
}
BENCHMARK(BM_orientierung)->Unit(benchmark::kMillisecond);

// The whole chain with the plain hourly simulation in place of the fast one.
void BM_woertlich(benchmark::State& state) {
    TempOrdner ordner;
    auto p = projekt_fuer(ordner, state.range(0) != 0);
    for (auto _ : state) {
        geometrie_berechnen(*p);
        fensterflaechen_berechnen(*p);
        monatsbilanz(*p);
        stundensimulation_woertlich(*p);
        benchmark::DoNotOptimize(p->T_frei(7, 1, 1));
    }
}
BENCHMARK(BM_woertlich)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
