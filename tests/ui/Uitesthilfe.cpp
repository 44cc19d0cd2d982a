// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/ui/Uitesthilfe.h"

#include "tools/bildbogen/Bildablage.h"
#include "ui/Desktopprogramm.h"

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

std::unique_ptr<Desktopprogramm> programm_starten(Dialogs* dialoge, const TempOrdner& klima,
                                                  const char* sprache) {
    auto programm = std::make_unique<Desktopprogramm>(dialoge, [] { return std::string(); });
    programm->klimaordner = klima.pfad().string();
    programm->starten(sprache);
    return programm;
}
