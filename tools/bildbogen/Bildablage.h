// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

// Saves a picture of the widget as it would be drawn on the screen, as ORDNER/NAME.png. False
// when the file cannot be written.
bool bild_ablegen(QWidget& fenster, const QString& ordner, const QString& name);
