// SPDX-License-Identifier: GPL-3.0-or-later
// One scroll step of the desktop program on the offscreen platform: the arrow of a scroll bar
// of the shown input plane, its handler with the whole recalculation, and the main window
// painted anew. Run with repetitions, the median is the figure that counts. Each step runs once
// with the overview plane shown, whose four charts and temperature course the refresh table
// redraws, and once with the climate/building plane, which shows labels only. The steps marked
// 2x run in a window twice the design's size, whose charts have four times the pixels.
#include "project/c_glob.h"
#include "ui/Desktopprogramm.h"

#include <QApplication>
#include <QMenuBar>
#include <QScrollBar>

#include <benchmark/benchmark.h>

namespace {

// A step on the bar `balken` of the input plane `ebene` (by the order of E_Menue), with the
// output plane `ausgabe` shown (by the order of A_Menue), the window `massstab` times the design.
void schritt(benchmark::State& state, int ebene, const char* balken, int ausgabe,
             int massstab = 1) {
    auto datensatz = std::make_unique<Projekt>();
    Desktopprogramm programm(*datensatz);
    programm.starten("d");
    Hauptfenster& haupt = *programm.haupt;
    haupt.resize(800 * massstab, 546 * massstab + haupt.menuBar()->sizeHint().height());
    QCoreApplication::processEvents();
    haupt.eingabe_zeigen(ebene);
    haupt.ausgabe_zeigen(ausgabe);
    auto* sb = haupt.eingabe[static_cast<std::size_t>(ebene)]->findChild<QScrollBar*>(balken);
    if (sb == nullptr) {
        state.SkipWithError("no such scroll bar");
        return;
    }
    int richtung = 1;
    for (auto _ : state) {
        // Back and forth, so that every step changes the position.
        sb->triggerAction(richtung > 0 ? QAbstractSlider::SliderSingleStepAdd
                                       : QAbstractSlider::SliderSingleStepSub);
        haupt.repaint();
        richtung = -richtung;
    }
    benchmark::DoNotOptimize(programm.p.qh);
}

void BM_laenge(benchmark::State& state) {
    schritt(state, Hauptfenster::Geometrie, "l_sb", Hauptfenster::Uebersicht);
}
void BM_orientierung(benchmark::State& state) {
    schritt(state, Hauptfenster::Geometrie, "orient_sb", Hauptfenster::Uebersicht);
}
void BM_fensteranteil_sued(benchmark::State& state) {
    schritt(state, Hauptfenster::Fenster, "f_sb(1)", Hauptfenster::Uebersicht);
}
void BM_laenge_ohne_diagramme(benchmark::State& state) {
    schritt(state, Hauptfenster::Geometrie, "l_sb", Hauptfenster::KlimaGebaeude);
}
void BM_fensteranteil_sued_ohne_diagramme(benchmark::State& state) {
    schritt(state, Hauptfenster::Fenster, "f_sb(1)", Hauptfenster::KlimaGebaeude);
}
void BM_fensteranteil_sued_heizen(benchmark::State& state) {
    schritt(state, Hauptfenster::Fenster, "f_sb(1)", Hauptfenster::Heizen);
}
void BM_fensteranteil_sued_sankey(benchmark::State& state) {
    schritt(state, Hauptfenster::Fenster, "f_sb(1)", Hauptfenster::Sankey);
}
void BM_laenge_2x(benchmark::State& state) {
    schritt(state, Hauptfenster::Geometrie, "l_sb", Hauptfenster::Uebersicht, 2);
}
void BM_fensteranteil_sued_2x(benchmark::State& state) {
    schritt(state, Hauptfenster::Fenster, "f_sb(1)", Hauptfenster::Uebersicht, 2);
}
void BM_fensteranteil_sued_heizen_2x(benchmark::State& state) {
    schritt(state, Hauptfenster::Fenster, "f_sb(1)", Hauptfenster::Heizen, 2);
}

} // namespace

BENCHMARK(BM_laenge)->Unit(benchmark::kMillisecond)->Repetitions(5);
BENCHMARK(BM_orientierung)->Unit(benchmark::kMillisecond)->Repetitions(5);
BENCHMARK(BM_fensteranteil_sued)->Unit(benchmark::kMillisecond)->Repetitions(5);
BENCHMARK(BM_laenge_ohne_diagramme)->Unit(benchmark::kMillisecond)->Repetitions(5);
BENCHMARK(BM_fensteranteil_sued_ohne_diagramme)->Unit(benchmark::kMillisecond)->Repetitions(5);
BENCHMARK(BM_fensteranteil_sued_heizen)->Unit(benchmark::kMillisecond)->Repetitions(5);
BENCHMARK(BM_fensteranteil_sued_sankey)->Unit(benchmark::kMillisecond)->Repetitions(5);
BENCHMARK(BM_laenge_2x)->Unit(benchmark::kMillisecond)->Repetitions(5);
BENCHMARK(BM_fensteranteil_sued_2x)->Unit(benchmark::kMillisecond)->Repetitions(5);
BENCHMARK(BM_fensteranteil_sued_heizen_2x)->Unit(benchmark::kMillisecond)->Repetitions(5);

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
