// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/Testprojekt.h"

#include <QPoint>
#include <QString>
#include <memory>

class Desktopprogramm;
struct Stationsliste;
class Dialogs;
class QWidget;

// A copy of the delivered klima folder, so that a test may write its language file without
// touching the source tree.
std::unique_ptr<TempOrdner> klima_kopie();

// Saves a picture of the widget as NAME.png in the folder named by VELMARIS_BILDER, for a look by
// eye; does nothing when that variable is empty.
void bild_speichern(QWidget& fenster, const QString& name);

// The desktop program started in `sprache` on the station folder `klima`, its message boxes and
// file dialogs answered by `dialoge`.
std::unique_ptr<Desktopprogramm> programm_starten(Dialogs* dialoge, const TempOrdner& klima,
                                                  const char* sprache);

// A row of the station list, not `ausser`, whose dot no other dot touches (6 pixels apart in
// some axis), left or right of `rand`, so that a click on it can only mean this station; -1 if
// there is none.
int einzelne_station(const Stationsliste& l, int ausser, bool links_vom_rand, double rand);

// The pointer moved to `p` of the widget, without a button.
void bewegen(QWidget* w, QPoint p);
