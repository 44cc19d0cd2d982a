// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/ui/Uitesthilfe.h"

#include "climate/stationslisten.h"
#include "tools/bildbogen/Bildablage.h"
#include "ui/Desktopprogramm.h"

#include <QApplication>
#include <QMouseEvent>

#include <cmath>
#include <filesystem>

std::unique_ptr<TempOrdner> klima_kopie() {
    auto klima = std::make_unique<TempOrdner>();
    std::filesystem::copy(VELMARIS_SOURCE_DIR "/klima", klima->pfad(),
                          std::filesystem::copy_options::recursive);
    return klima;
}

void bild_speichern(QWidget& fenster, const QString& name) {
    const QString ordner = qEnvironmentVariable("VELMARIS_BILDER");
    if (!ordner.isEmpty()) {
        bild_ablegen(fenster, ordner, name);
    }
}

std::unique_ptr<Testprogramm> programm_starten(Dialogs* dialoge, const TempOrdner& klima,
                                               const char* sprache) {
    auto programm = std::make_unique<Testprogramm>(dialoge, [] { return std::string(); });
    programm->klimaordner = klima.pfad().string();
    programm->starten(sprache);
    return programm;
}

int einzelne_station(const Stationsliste& l, int ausser, bool links_vom_rand, double rand) {
    for (int i = 0; i < l.anzahl(); ++i) {
        const auto [x, y] = l.punkt(i);
        if (i == ausser || (links_vom_rand ? x >= rand : x <= rand) || x < 3 || y < 3) {
            continue;
        }
        bool allein = true;
        for (int j = 0; j < l.anzahl() && allein; ++j) {
            const auto [xj, yj] = l.punkt(j);
            allein = j == i || std::fabs(x - xj) >= 6 || std::fabs(y - yj) >= 6;
        }
        if (allein) {
            return i;
        }
    }
    return -1;
}

void bewegen(QWidget* w, QPoint p) {
    QMouseEvent e(QEvent::MouseMove, QPointF(p), QPointF(w->mapToGlobal(p)), Qt::NoButton,
                  Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(w, &e);
}
