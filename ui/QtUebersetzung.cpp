// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/QtUebersetzung.h"

#include <QCoreApplication>
#include <QLibraryInfo>

std::unique_ptr<QTranslator> qt_texte_laden(const std::string& sprache) {
    if (sprache != "d") {
        return nullptr;
    }
    auto uebersetzer = std::make_unique<QTranslator>();
    if (!uebersetzer->load(QStringLiteral("qtbase_de"),
                           QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        return nullptr;
    }
    QCoreApplication::installTranslator(uebersetzer.get());
    return uebersetzer;
}
