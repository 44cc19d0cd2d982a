// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Hilfefenster.h"

#include <QFileInfo>

Hilfefenster::Hilfefenster(const std::string& datei)
    : adresse_(QUrl::fromLocalFile(QFileInfo(QString::fromStdString(datei)).absoluteFilePath())) {
    setObjectName(QStringLiteral("Hilfe"));
    setWindowTitle(QStringLiteral("Velmaris"));
    setOpenExternalLinks(true);
    // An open help window does not keep the program alive after the main window closed.
    setAttribute(Qt::WA_QuitOnClose, false);
    resize(640, 560);
    setSource(adresse_);
}

void Hilfefenster::zeigen(const std::string& anker) {
    QUrl ziel = adresse_;
    if (!anker.empty()) {
        ziel.setFragment(QString::fromStdString(anker));
    }
    setSource(ziel);
    if (!anker.empty()) {
        scrollToAnchor(QString::fromStdString(anker));
    }
    show();
    raise();
    activateWindow();
}
