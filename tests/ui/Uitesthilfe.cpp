// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/ui/Uitesthilfe.h"

#include <QPixmap>
#include <QWidget>
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
        fenster.grab().save(ordner + QLatin1Char('/') + name + QStringLiteral(".png"));
    }
}
