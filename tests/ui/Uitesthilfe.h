// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/Testprojekt.h"
#include "ui/Desktopprogramm.h"

#include <QPoint>
#include <QString>
#include <memory>

struct Stationsliste;
class Dialogs;
class QWidget;

// The record a test's program works on: built before the program, gone after it.
struct EigenerDatensatz {
    std::unique_ptr<Projekt> datensatz = leeres_projekt();
};

// The desktop program on a record of its own.
class Testprogramm : private EigenerDatensatz, public Desktopprogramm {
public:
    explicit Testprogramm(Dialogs* dialoge = nullptr, Sprachwahl sprachwahl = nullptr)
        : Desktopprogramm(*datensatz, dialoge, std::move(sprachwahl)) {}
};

// A copy of the delivered klima folder, so that a test may write its language file without
// touching the source tree.
std::unique_ptr<TempOrdner> klima_kopie();

// Saves a picture of the widget as NAME.png in the folder named by VELMARIS_BILDER, for a look by
// eye; does nothing when that variable is empty.
void bild_speichern(QWidget& fenster, const QString& name);

// The desktop program started in `sprache` on the station folder `klima`, its message boxes and
// file dialogs answered by `dialoge`.
std::unique_ptr<Testprogramm> programm_starten(Dialogs* dialoge, const TempOrdner& klima,
                                               const char* sprache);

// A row of the station list, not `ausser`, whose dot no other dot touches (6 pixels apart in
// some axis), left or right of `rand`, so that a click on it can only mean this station; -1 if
// there is none.
int einzelne_station(const Stationsliste& l, int ausser, bool links_vom_rand, double rand);

// The pointer moved to `p` of the widget, without a button.
void bewegen(QWidget* w, QPoint p);
