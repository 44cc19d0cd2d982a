// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QSize>

#include <array>
#include <functional>

class ChartWidget;
class Massstab;
class QPushButton;
struct Diagrammeinstellung;
struct Projekt;

// A_Zoom: the temperature course of the chosen month at window size, with twelve month buttons
// along the top and Command_Schliessen at the lower right, laid out by zoom_lage. It shares the
// month Monat_Uebersicht with the overview plane. It takes the scale of the main window, as far
// as the screen holds it.
class ZoomFenster : public QDialog {
public:
    ZoomFenster(Projekt& p, const Diagrammeinstellung& e, QWidget* eltern, int breite = 800,
                int hoehe = 500);

    ChartWidget* Temperaturen = nullptr;
    std::array<QPushButton*, 12> Monatsbutton{}; // index 0 is January
    QPushButton* Command_Schliessen = nullptr;
    // After a month button chose month m (1..12); may be empty.
    std::function<void(int)> monat_gewaehlt;

    // Monatsbutton_Click: the month chosen and the chart drawn anew.
    void Monatsbutton_Click(int m);
    // The window at s times its design, or as large as fits on its screen.
    void massstab_setzen(double s);

private:
    Projekt& p_;
    const Diagrammeinstellung& e_;
    QSize entwurf_;
    Massstab* massstab_ = nullptr;
};
