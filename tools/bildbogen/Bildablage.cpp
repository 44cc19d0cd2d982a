// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/bildbogen/Bildablage.h"

#include <QPixmap>
#include <QWidget>

bool bild_ablegen(QWidget& fenster, const QString& ordner, const QString& name) {
    return fenster.grab().save(ordner + QLatin1Char('/') + name + QStringLiteral(".png"), "PNG");
}
