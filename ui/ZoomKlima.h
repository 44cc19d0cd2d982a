// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "climate/ebene/E_Zoom_Klima.h"
#include "ui/Stationskarte.h"

#include <QDialog>

#include <functional>
#include <string>

class QComboBox;
class QPushButton;
struct E_Klima;

// E_Zoom_Klima: the world map 1.5 times larger with the station list beside it, modal. A click
// on a dot or a row of the list only selects here; Command1 hands the row to the plane and
// closes, Command2 closes without a change.
class ZoomKlimaFenster : public QDialog {
public:
    // `welt` is the path of the world map picture.
    ZoomKlimaFenster(E_Klima& e, const std::string& welt, QWidget* eltern);

    // Fills the list from the plane's, with its selection, and shows the window modally.
    void oeffnen();

    Stationskarte* Picture1 = nullptr;
    Namensliste* Klimaregionwahl2 = nullptr;
    QLabel* ueberschrift = nullptr; // caption of the list, also the window's title
    QPushButton *Command1 = nullptr, *Command2 = nullptr;
    Schwebetext schwebe; // MausRegion with its timers
    E_Zoom_Klima modell;
    // Command1's handing over to the plane, run inside the plane's binding; may be empty.
    std::function<void(const E_Zoom_Klima&)> bestaetigt;

private:
    // The map's dots and the list's row from the model.
    void zeigen();

    E_Klima& e_;
};
