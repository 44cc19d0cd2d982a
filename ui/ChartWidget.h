// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/QtImageSurface.h"

#include <QWidget>

#include <functional>

// A chart on the screen: shows its QImage surface at the surface's own pixel size, or larger at
// the scale of its window, drawn at that resolution. The surface keeps its drawing while the
// widget is hidden; when the widget comes up, `zeichnen` draws it anew from the record. A chart
// of results that are not valid shows grey.
class ChartWidget : public QWidget {
public:
    ChartWidget(int breite, int hoehe, QWidget* eltern, Rgb hintergrund = WHITE);

    QtImageSurface& flaeche() { return flaeche_; }
    // Draws the surface anew when the widget is shown; may be empty.
    std::function<void()> zeichnen;
    // A click of the left button on the chart; may be empty.
    std::function<void()> klick;
    // Whether the drawing stands for valid results; a chart that is not valid is greyed out.
    void gueltig_setzen(bool gueltig);
    bool gueltig() const { return gueltig_; }
    // Widget pixels per chart pixel; the surface is drawn at that times the screen's pixel ratio.
    void massstab_setzen(double massstab);

protected:
    void paintEvent(QPaintEvent*) override;
    void showEvent(QShowEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;

private:
    QtImageSurface flaeche_;
    bool gueltig_ = true;
    double massstab_ = 1.0;
};
