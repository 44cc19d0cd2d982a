// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "climate/ebene/stationskarten.h"

#include <QComboBox>
#include <QLabel>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <string>
#include <vector>

// A map picture with its station dots: the picture of the Europe or the world map, scaled by a
// factor, with each dot a filled disc of radius 2 in its exact colour, so that the colour under
// the pointer tells a dot from the land. Moves and releases of the mouse are handed on with the
// colour under the pointer, in the map's own pixels. Shown larger at its window's scale, the map
// is drawn smoothly from its source picture, the dots as round discs of that scale.
class Stationskarte : public QWidget {
public:
    // `bild` is the path of the BMP; an unreadable picture leaves a white map of `breite` x
    // `hoehe` pixels before scaling.
    Stationskarte(QWidget* eltern, const std::string& bild, int breite, int hoehe,
                  double faktor = 1.0);

    // Paints the picture anew with these dots, the last one on top.
    void punkte_setzen(const std::vector<Kartenpunkt>& punkte);
    // The colour at (x, y) in the encoding with red in the low byte; -1 outside.
    int32_t farbe(int x, int y) const;
    const QImage& bild() const { return bild_; }
    // Widget pixels per map pixel.
    void massstab_setzen(double massstab);
    // What is shown: the map at the widget's size.
    const QImage& anzeige() const { return anzeige_; }

    std::function<void(int32_t farbe, int x, int y)> bewegung, loslassen;

protected:
    void paintEvent(QPaintEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;

private:
    void anzeige_zeichnen();

    QImage roh_, grund_, bild_, anzeige_;
    std::vector<Kartenpunkt> punkte_;
    double faktor_ = 1.0, massstab_ = 1.0;
};

// The hover label of a map with its two timers: Timer1 shows the label a second after the
// pointer came to rest on a named place, Timer2 hides it three seconds later.
struct Schwebetext {
    QLabel* label = nullptr;
    QTimer *Timer1 = nullptr, *Timer2 = nullptr;

    // The label and its timers on `karte`, the label named `name`.
    static Schwebetext bauen(QWidget* karte, const char* name);
    // The pointer at (x, y) of the map's pixels: the label goes 20 pixels below it, hidden, and
    // Timer1 restarts; with an empty text Timer1 stops and nothing will show. A label that would
    // stand out of its map moves in: left of the right edge, and above the pointer at the foot.
    void bewegt(int x, int y, const std::string& text) const;
};

// A drop-down list of station names: a name longer than the field is shown cut with "…", and
// the field's tooltip holds it whole; the open list is as wide as its longest name.
class Namensliste : public QComboBox {
public:
    using QComboBox::QComboBox;

    // The name of the field: the chosen row, or the placeholder when none is chosen.
    QString ganzer_text() const;
    // That name as the field shows it, cut to its width.
    QString gezeigter_text() const;
    // The tooltip and the open list's width after the rows or the name changed.
    void anpassen();

protected:
    void paintEvent(QPaintEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;

private:
    int textbreite() const;
};

// A name in a label of fixed width: cut with "…" where it is longer, the whole name then in the
// label's tooltip.
void name_setzen(QLabel& label, const QString& name);
