// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/QtImageSurface.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

// Half away from zero, as the charts expect of every coordinate. A coordinate far outside any
// surface (or not a number) is held at a million pixels, where nothing is seen.
int runden(double v) {
    constexpr double GRENZE = 1.0e6;
    if (!(v > -GRENZE)) {
        return static_cast<int>(-GRENZE);
    }
    if (!(v < GRENZE)) {
        return static_cast<int>(GRENZE);
    }
    return static_cast<int>(std::lround(v));
}

QColor farbe(Rgb c) {
    return QColor(c.r, c.g, c.b);
}

constexpr double GRAD_JE_RADIANT = 57.29577951308232;

} // namespace

QtImageSurface::QtImageSurface(int width, int height, Rgb background)
    : bild_(std::max(width, 1), std::max(height, 1), QImage::Format_RGB32),
      hintergrund_(background) {
    bild_.fill(farbe(hintergrund_));
}

void QtImageSurface::groesse_setzen(int width, int height) {
    bild_ = QImage(std::max(width, 1), std::max(height, 1), QImage::Format_RGB32);
    bild_.fill(farbe(hintergrund_));
}

QFont QtImageSurface::schrift(const std::string& name, double punkte, bool fett) {
    // Metric-compatible free faces; "MS Sans Serif" was a small bitmap sans, which the narrow
    // Liberation Sans at the same pixel height matches closely enough for the charts' places.
    QString familie = QStringLiteral("Liberation Sans");
    if (name == "Times New Roman") {
        familie = QStringLiteral("Liberation Serif");
    } else if (name == "Courier New") {
        familie = QStringLiteral("Liberation Mono");
    }
    QFont f(familie);
    f.setPixelSize(std::max(1, runden(punkte * 96.0 / 72.0)));
    f.setBold(fett);
    f.setStyleStrategy(QFont::NoAntialias);
    return f;
}

void QtImageSurface::punkt(int x, int y, QRgb c) {
    if (x >= 0 && y >= 0 && x < bild_.width() && y < bild_.height()) {
        reinterpret_cast<QRgb*>(bild_.scanLine(y))[x] = c;
    }
}

void QtImageSurface::Line(double x1, double y1, double x2, double y2, Rgb colour) {
    int xa = runden(x1), ya = runden(y1);
    const int xe = runden(x2), ye = runden(y2);
    if (DrawWidth > 1) {
        QPainter maler(&bild_);
        maler.setPen(QPen(farbe(colour), DrawWidth));
        maler.drawLine(xa, ya, xe, ye);
        return;
    }
    const QRgb c = qRgb(colour.r, colour.g, colour.b);
    const int dx = std::abs(xe - xa), dy = -std::abs(ye - ya);
    const int sx = xa < xe ? 1 : -1, sy = ya < ye ? 1 : -1;
    int fehler = dx + dy;
    // The end pixel is left out, as the platform's line does. A walk that has left the surface
    // in its own direction sees nothing more.
    while (xa != xe || ya != ye) {
        if ((sx > 0 && xa >= bild_.width()) || (sx < 0 && xa < 0) ||
            (sy > 0 && ya >= bild_.height()) || (sy < 0 && ya < 0)) {
            return;
        }
        punkt(xa, ya, c);
        const int f2 = 2 * fehler;
        if (f2 >= dy) {
            fehler += dy;
            xa += sx;
        }
        if (f2 <= dx) {
            fehler += dx;
            ya += sy;
        }
    }
}

void QtImageSurface::Box(double x1, double y1, double x2, double y2, Rgb colour) {
    const int l = std::min(runden(x1), runden(x2)), r = std::max(runden(x1), runden(x2));
    const int o = std::min(runden(y1), runden(y2)), u = std::max(runden(y1), runden(y2));
    const QRgb c = qRgb(colour.r, colour.g, colour.b);
    for (int x = l; x <= r; ++x) {
        punkt(x, o, c);
        punkt(x, u, c);
    }
    for (int y = o; y <= u; ++y) {
        punkt(l, y, c);
        punkt(r, y, c);
    }
}

void QtImageSurface::FilledBox(double x1, double y1, double x2, double y2, Rgb colour) {
    const int l = std::max(0, std::min(runden(x1), runden(x2)));
    const int r = std::min(bild_.width() - 1, std::max(runden(x1), runden(x2)));
    const int o = std::max(0, std::min(runden(y1), runden(y2)));
    const int u = std::min(bild_.height() - 1, std::max(runden(y1), runden(y2)));
    const QRgb c = qRgb(colour.r, colour.g, colour.b);
    for (int y = o; y <= u; ++y) {
        QRgb* zeile = reinterpret_cast<QRgb*>(bild_.scanLine(y));
        std::fill(zeile + std::max(l, 0), zeile + std::max(r + 1, 0), c);
    }
}

void QtImageSurface::Circle(double cx, double cy, double radius, Rgb colour) {
    if (!(radius >= 0.5)) {
        return;
    }
    radius = std::min(radius, 1.0e6);
    QPainter maler(&bild_);
    maler.setPen(QPen(farbe(colour), DrawWidth));
    if (FillStyle == FillMode::Solid) {
        maler.setBrush(farbe(FillColor));
    }
    maler.drawEllipse(QPointF(runden(cx), runden(cy)), radius, radius);
}

void QtImageSurface::Circle(double cx, double cy, double radius, Rgb colour, double start,
                            double end) {
    if (!(radius >= 0.5)) {
        return;
    }
    radius = std::min(radius, 1.0e6);
    const double a = std::fabs(start), e = std::fabs(end);
    double spanne = e - a;
    if (spanne <= 0) {
        spanne += 2 * 3.141592653589793;
    }
    const QRectF rahmen(runden(cx) - radius, runden(cy) - radius, 2 * radius, 2 * radius);
    const int a16 = runden(a * GRAD_JE_RADIANT * 16), s16 = runden(spanne * GRAD_JE_RADIANT * 16);
    QPainter maler(&bild_);
    maler.setPen(QPen(farbe(colour), DrawWidth));
    if (start < 0 && end < 0) {
        if (FillStyle == FillMode::Solid) {
            maler.setBrush(farbe(FillColor));
        }
        maler.drawPie(rahmen, a16, s16);
        return;
    }
    maler.drawArc(rahmen, a16, s16);
    const QPointF mitte(runden(cx), runden(cy));
    for (double w : {start, end}) {
        if (w < 0) {
            const double b = std::fabs(w);
            maler.drawLine(mitte, mitte + QPointF(std::cos(b) * radius, -std::sin(b) * radius));
        }
    }
}

void QtImageSurface::PSet(double x, double y, Rgb colour) {
    punkt(runden(x), runden(y), qRgb(colour.r, colour.g, colour.b));
}

Rgb QtImageSurface::Point(double x, double y) const {
    const int px = runden(x), py = runden(y);
    if (px < 0 || py < 0 || px >= bild_.width() || py >= bild_.height()) {
        return hintergrund_;
    }
    const QRgb c = bild_.pixel(px, py);
    return Rgb{static_cast<uint8_t>(qRed(c)), static_cast<uint8_t>(qGreen(c)),
               static_cast<uint8_t>(qBlue(c))};
}

double QtImageSurface::TextWidth(const std::string& text) const {
    return QFontMetricsF(aktuelle_schrift()).horizontalAdvance(QString::fromStdString(text));
}

double QtImageSurface::TextHeight(const std::string&) const {
    return QFontMetricsF(aktuelle_schrift()).height();
}

void QtImageSurface::clear_pixels() {
    bild_.fill(farbe(hintergrund_));
}

void QtImageSurface::draw_text(double x, double y, const std::string& text) {
    QPainter maler(&bild_);
    maler.setFont(aktuelle_schrift());
    maler.setPen(Qt::black);
    const QFontMetricsF m(maler.font());
    maler.drawText(QPointF(runden(x), runden(y) + m.ascent()), QString::fromStdString(text));
}
