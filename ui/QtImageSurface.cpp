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

QRgb qrgb(Rgb c) {
    return qRgb(c.r, c.g, c.b);
}

constexpr double GRAD_JE_RADIANT = 57.29577951308232;

} // namespace

QtImageSurface::QtImageSurface(int width, int height, Rgb background)
    : breite_(std::max(width, 1)), hoehe_(std::max(height, 1)), hintergrund_(background) {
    bild_anlegen();
}

void QtImageSurface::bild_anlegen() {
    bild_ = QImage(std::max(bildpunkt(breite_), 1), std::max(bildpunkt(hoehe_), 1),
                   QImage::Format_RGB32);
    bild_.fill(farbe(hintergrund_));
}

void QtImageSurface::groesse_setzen(int width, int height) {
    breite_ = std::max(width, 1);
    hoehe_ = std::max(height, 1);
    schritte_.clear();
    bild_anlegen();
}

void QtImageSurface::massstab_setzen(double pixel_je_punkt) {
    if (!(pixel_je_punkt >= 0.25 && pixel_je_punkt <= 16) || pixel_je_punkt == massstab_) {
        return;
    }
    massstab_ = pixel_je_punkt;
    bild_anlegen();
    for (const Schritt& s : schritte_) {
        ausfuehren(s);
    }
}

int QtImageSurface::bildpunkt(int v) const {
    return massstab_ == 1.0 ? v : static_cast<int>(std::lround(v * massstab_));
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

QtImageSurface::Schritt QtImageSurface::schritt(Schritt::Art art, double a, double b, double c,
                                                double d, Rgb f) const {
    Schritt s;
    s.art = art;
    s.a = a;
    s.b = b;
    s.c = c;
    s.d = d;
    s.farbe = f;
    s.breite = DrawWidth;
    s.fuellung = FillStyle;
    s.fuellfarbe = FillColor;
    return s;
}

void QtImageSurface::fuellen(int l, int o, int r, int u, QRgb c) {
    const int x0 = std::max(0, bildpunkt(l)), x1 = std::min(bild_.width(), bildpunkt(r + 1));
    const int y0 = std::max(0, bildpunkt(o)), y1 = std::min(bild_.height(), bildpunkt(u + 1));
    for (int y = y0; y < y1; ++y) {
        QRgb* zeile = reinterpret_cast<QRgb*>(bild_.scanLine(y));
        if (x0 < x1) {
            std::fill(zeile + x0, zeile + x1, c);
        }
    }
}

void QtImageSurface::ausfuehren(const Schritt& s) {
    using Art = Schritt::Art;
    switch (s.art) {
    case Art::Linie:
        linie(s);
        break;
    case Art::Kasten: {
        const int l = std::min(runden(s.a), runden(s.c)), r = std::max(runden(s.a), runden(s.c));
        const int o = std::min(runden(s.b), runden(s.d)), u = std::max(runden(s.b), runden(s.d));
        const QRgb c = qrgb(s.farbe);
        fuellen(l, o, r, o, c);
        fuellen(l, u, r, u, c);
        fuellen(l, o, l, u, c);
        fuellen(r, o, r, u, c);
        break;
    }
    case Art::Flaeche:
        fuellen(std::min(runden(s.a), runden(s.c)), std::min(runden(s.b), runden(s.d)),
                std::max(runden(s.a), runden(s.c)), std::max(runden(s.b), runden(s.d)),
                qrgb(s.farbe));
        break;
    case Art::Kreis:
    case Art::Bogen:
        kreis(s);
        break;
    case Art::Punkt:
        fuellen(runden(s.a), runden(s.b), runden(s.a), runden(s.b), qrgb(s.farbe));
        break;
    case Art::Text:
        text(s);
        break;
    }
}

void QtImageSurface::linie(const Schritt& s) {
    const int xa = runden(s.a), ya = runden(s.b);
    const int xe = runden(s.c), ye = runden(s.d);
    const QRgb c = qrgb(s.farbe);
    if (s.breite > 1) {
        QPainter maler(&bild_);
        maler.setPen(QPen(farbe(s.farbe), s.breite));
        if (massstab_ == 1.0) {
            maler.drawLine(xa, ya, xe, ye);
            return;
        }
        maler.setRenderHint(QPainter::Antialiasing);
        maler.scale(massstab_, massstab_);
        maler.drawLine(QPointF(xa + 0.5, ya + 0.5), QPointF(xe + 0.5, ye + 0.5));
        return;
    }
    if (massstab_ == 1.0) {
        bresenham(xa, ya, xe, ye, 1, c);
    } else if (ya == ye) {
        // Along an axis: whole chart pixels, without the end pixel.
        if (xa != xe) {
            fuellen(xe > xa ? xa : xe + 1, ya, xe > xa ? xe - 1 : xa, ya, c);
        }
    } else if (xa == xe) {
        fuellen(xa, ye > ya ? ya : ye + 1, xa, ye > ya ? ye - 1 : ya, c);
    } else {
        // Slanted: a square pen of the scale walks from the start pixel's middle towards the
        // end pixel's in the image's own pixels, as sharp as the line at 1. The pen is rounded
        // up, so that neighbouring lines that fill an area at 1 leave no gaps.
        const int stift = std::max(1, static_cast<int>(std::ceil(massstab_ - 1e-9)));
        auto ecke = [this, stift](int v) {
            return static_cast<int>(std::lround((v + 0.5) * massstab_ - stift / 2.0));
        };
        bresenham(ecke(xa), ecke(ya), ecke(xe), ecke(ye), stift, c);
    }
}

void QtImageSurface::bresenham(int xa, int ya, int xe, int ye, int stift, QRgb c) {
    const int dx = std::abs(xe - xa), dy = -std::abs(ye - ya);
    const int sx = xa < xe ? 1 : -1, sy = ya < ye ? 1 : -1;
    int fehler = dx + dy;
    // The end pixel is left out, as the platform's line does. A walk that has left the surface
    // in its own direction sees nothing more.
    while (xa != xe || ya != ye) {
        if ((sx > 0 && xa >= bild_.width()) || (sx < 0 && xa + stift <= 0) ||
            (sy > 0 && ya >= bild_.height()) || (sy < 0 && ya + stift <= 0)) {
            return;
        }
        for (int y = std::max(ya, 0); y < std::min(ya + stift, bild_.height()); ++y) {
            QRgb* zeile = reinterpret_cast<QRgb*>(bild_.scanLine(y));
            for (int x = std::max(xa, 0); x < std::min(xa + stift, bild_.width()); ++x) {
                zeile[x] = c;
            }
        }
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

void QtImageSurface::kreis(const Schritt& s) {
    if (!(s.c >= 0.5)) {
        return;
    }
    const double radius = std::min(s.c, 1.0e6);
    QPainter maler(&bild_);
    // At 1 the pixel centres are the integer points; larger, a chart pixel's centre is its
    // middle.
    const double mitte = massstab_ == 1.0 ? 0.0 : 0.5;
    if (massstab_ != 1.0) {
        maler.setRenderHint(QPainter::Antialiasing);
        maler.scale(massstab_, massstab_);
    }
    maler.setPen(QPen(farbe(s.farbe), s.breite));
    const QPointF m(runden(s.a) + mitte, runden(s.b) + mitte);
    if (s.art == Schritt::Art::Kreis) {
        if (s.fuellung == FillMode::Solid) {
            maler.setBrush(farbe(s.fuellfarbe));
        }
        maler.drawEllipse(m, radius, radius);
        return;
    }
    const double start = s.d, end = s.e;
    const double a = std::fabs(start), e = std::fabs(end);
    double spanne = e - a;
    if (spanne <= 0) {
        spanne += 2 * 3.141592653589793;
    }
    const QRectF rahmen(m.x() - radius, m.y() - radius, 2 * radius, 2 * radius);
    const int a16 = runden(a * GRAD_JE_RADIANT * 16), s16 = runden(spanne * GRAD_JE_RADIANT * 16);
    if (start < 0 && end < 0) {
        if (s.fuellung == FillMode::Solid) {
            maler.setBrush(farbe(s.fuellfarbe));
        }
        maler.drawPie(rahmen, a16, s16);
        return;
    }
    maler.drawArc(rahmen, a16, s16);
    for (double w : {start, end}) {
        if (w < 0) {
            const double b = std::fabs(w);
            maler.drawLine(m, m + QPointF(std::cos(b) * radius, -std::sin(b) * radius));
        }
    }
}

void QtImageSurface::text(const Schritt& s) {
    QPainter maler(&bild_);
    QFont f = schrift(s.schriftname, s.punkte, s.fett);
    if (massstab_ != 1.0) {
        // Rounded down, so that a text needs no more room than at 1, where the charts placed it.
        f.setPixelSize(std::max(1, static_cast<int>(std::floor(f.pixelSize() * massstab_ + 1e-9))));
        f.setStyleStrategy(QFont::PreferAntialias);
        maler.setRenderHint(QPainter::TextAntialiasing);
    }
    maler.setFont(f);
    maler.setPen(Qt::black);
    const QFontMetricsF m(f);
    maler.drawText(QPointF(bildpunkt(runden(s.a)), bildpunkt(runden(s.b)) + m.ascent()),
                   QString::fromStdString(s.text));
}

void QtImageSurface::Line(double x1, double y1, double x2, double y2, Rgb colour) {
    schritte_.push_back(schritt(Schritt::Art::Linie, x1, y1, x2, y2, colour));
    linie(schritte_.back());
}

void QtImageSurface::Box(double x1, double y1, double x2, double y2, Rgb colour) {
    schritte_.push_back(schritt(Schritt::Art::Kasten, x1, y1, x2, y2, colour));
    ausfuehren(schritte_.back());
}

void QtImageSurface::FilledBox(double x1, double y1, double x2, double y2, Rgb colour) {
    // A fill of the whole surface hides all drawn before it; the kept drawing starts anew.
    if (std::min(x1, x2) <= 0 && std::min(y1, y2) <= 0 && std::max(x1, x2) >= breite_ - 1 &&
        std::max(y1, y2) >= hoehe_ - 1) {
        schritte_.clear();
    }
    schritte_.push_back(schritt(Schritt::Art::Flaeche, x1, y1, x2, y2, colour));
    ausfuehren(schritte_.back());
}

void QtImageSurface::Circle(double cx, double cy, double radius, Rgb colour) {
    schritte_.push_back(schritt(Schritt::Art::Kreis, cx, cy, radius, 0, colour));
    kreis(schritte_.back());
}

void QtImageSurface::Circle(double cx, double cy, double radius, Rgb colour, double start,
                            double end) {
    Schritt s = schritt(Schritt::Art::Bogen, cx, cy, radius, start, colour);
    s.e = end;
    schritte_.push_back(s);
    kreis(schritte_.back());
}

void QtImageSurface::PSet(double x, double y, Rgb colour) {
    schritte_.push_back(schritt(Schritt::Art::Punkt, x, y, 0, 0, colour));
    ausfuehren(schritte_.back());
}

Rgb QtImageSurface::Point(double x, double y) const {
    const int px = runden(x), py = runden(y);
    if (px < 0 || py < 0 || px >= breite_ || py >= hoehe_) {
        return hintergrund_;
    }
    const int bx = std::min((bildpunkt(px) + bildpunkt(px + 1)) / 2, bild_.width() - 1);
    const int by = std::min((bildpunkt(py) + bildpunkt(py + 1)) / 2, bild_.height() - 1);
    const QRgb c = bild_.pixel(bx, by);
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
    schritte_.clear();
    bild_.fill(farbe(hintergrund_));
}

void QtImageSurface::draw_text(double x, double y, const std::string& t) {
    Schritt s = schritt(Schritt::Art::Text, x, y, 0, 0, BLACK);
    s.text = t;
    s.schriftname = FontName;
    s.punkte = FontSize;
    s.fett = FontBold;
    schritte_.push_back(std::move(s));
    text(schritte_.back());
}
