// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointF>
#include <QRect>
#include <QSize>

class QWidget;
class SkalierterStil;

// The scale of a window's client area: every widget under the root keeps its place, size and
// font of the design (the pixels the planes' builders give) and is shown at that times the
// scale, proportions kept, the whole centred in the root. The design of each widget is noted
// the first time a scale is applied; code that places a widget later gives design pixels
// through the functions below. Charts and maps are drawn anew at the scale, pictures scale
// smoothly from their source. Dialogs, being windows of their own, keep their size.
class Massstab : public QObject {
public:
    // `entwurf` is the client area of the design. With `folgen` the scale follows the root's
    // size, as large as fits.
    Massstab(QWidget& wurzel, QSize entwurf, bool folgen = true);

    double faktor() const { return faktor_; }
    // Shows everything at scale s.
    void setzen(double s);
    // The largest scale at which the design fits into `flaeche`.
    double passend(QSize flaeche) const;

protected:
    bool eventFilter(QObject* o, QEvent* e) override;

private:
    // Notes the design of every widget not noted yet: it stands where its builder put it.
    void aufnehmen(QWidget& w, const QPoint& versatz);
    void anwenden(QWidget& w);

    QWidget& wurzel_;
    QSize entwurf_;
    SkalierterStil* stil_;
    double faktor_ = 1.0;
    int schrift_pixel_ = 0;
    double schrift_punkte_ = 0;
};

namespace massstab {

// The scale the widget is shown at: its client area's, 1 outside one.
double von(const QWidget& w);
// The widget's place and size in design pixels.
QRect entwurf(const QWidget& w);
// Places the widget at `entwurf` design pixels, shown at its scale.
void setzen(QWidget& w, const QRect& entwurf);
void verschieben(QWidget& w, const QPoint& entwurf);
// The widget takes the size its content needs at its scale, its design size following.
void anpassen(QWidget& w);
// A point in the widget's pixels in its design pixels, for the hit tests of charts and maps.
QPoint entwurfspunkt(const QWidget& w, const QPointF& punkt);
// Design pixels at scale s: edges rounded, so that neighbours stay neighbours.
QRect skaliert(const QRect& r, double s);
// A widget whose place its own code sets in the widget pixels of its scale (a tooltip, a hover
// label): the scale leaves its place alone.
void eigene_lage(QWidget& w);

} // namespace massstab
