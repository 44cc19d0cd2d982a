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

void ChartWidget::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    if (!gueltig_) {
        maler.fillRect(rect(), QColor(192, 192, 192));
        return;
    }
    maler.drawImage(0, 0, flaeche_.bild());
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
