// SPDX-License-Identifier: GPL-3.0-or-later
// One scroll step of the desktop program on the offscreen platform: the arrow of a scroll bar
// of the shown input plane, its handler with the whole recalculation, and the main window
// painted anew. Run with repetitions, the median is the figure that counts.
#include "project/c_glob.h"
#include "ui/Desktopprogramm.h"

#include <QApplication>
#include <QScrollBar>

#include <benchmark/benchmark.h>

namespace {

// A step on the bar `balken` of the input plane `ebene` (by the order of E_Menue).
void schritt(benchmark::State& state, int ebene, const char* balken) {
    Desktopprogramm programm;
    programm.starten("d");
    Hauptfenster& haupt = *programm.haupt;
    haupt.eingabe_zeigen(ebene);
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
    schritt(state, Hauptfenster::Geometrie, "l_sb");
}
void BM_orientierung(benchmark::State& state) {
    schritt(state, Hauptfenster::Geometrie, "orient_sb");
}
void BM_fensteranteil_sued(benchmark::State& state) {
    schritt(state, Hauptfenster::Fenster, "f_sb(1)");
}

} // namespace

BENCHMARK(BM_laenge)->Unit(benchmark::kMillisecond)->Repetitions(5);
BENCHMARK(BM_orientierung)->Unit(benchmark::kMillisecond)->Repetitions(5);
BENCHMARK(BM_fensteranteil_sued)->Unit(benchmark::kMillisecond)->Repetitions(5);

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
