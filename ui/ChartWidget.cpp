// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/ChartWidget.h"

#include <QMouseEvent>
#include <QPainter>

ChartWidget::ChartWidget(int breite, int hoehe, QWidget* eltern, Rgb hintergrund)
    : QWidget(eltern), flaeche_(breite, hoehe, hintergrund) {
    setFixedSize(breite, hoehe);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void ChartWidget::gueltig_setzen(bool gueltig) {
    if (gueltig_ != gueltig) {
        gueltig_ = gueltig;
        update();
    }
}

void ChartWidget::massstab_setzen(double massstab) {
    massstab_ = massstab;
    flaeche_.massstab_setzen(massstab * devicePixelRatioF());
    update();
}

void ChartWidget::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    if (!gueltig_) {
        maler.fillRect(rect(), QColor(192, 192, 192));
        return;
    }
    const QImage& bild = flaeche_.bild();
    if (massstab_ == 1.0 && bild.size() == size()) {
        maler.drawImage(0, 0, bild);
        return;
    }
    // The image has the widget's device pixels; a rounded widget edge shows the background.
    const Rgb h = flaeche_.BackColor();
    maler.fillRect(rect(), QColor(h.r, h.g, h.b));
    const double verhaeltnis = flaeche_.pixel_je_punkt() / massstab_;
    maler.drawImage(QRectF(0, 0, bild.width() / verhaeltnis, bild.height() / verhaeltnis), bild);
}

void ChartWidget::showEvent(QShowEvent*) {
    if (zeichnen && gueltig_) {
        zeichnen();
        update();
    }
}

void ChartWidget::mousePressEvent(QMouseEvent* e) {
    if (klick && e->button() == Qt::LeftButton) {
        klick();
        return;
    }
    QWidget::mousePressEvent(e);
}
