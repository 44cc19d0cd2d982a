// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "charts/Surface.h"

#include <QFont>
#include <QImage>

// The chart surface of the screen: a QImage of the chart's pixel size. Lines, boxes and points
// are set pixel by pixel, so that the end pixel rule and the corner rule of the charts hold
// exactly; circles, pies and texts go through QPainter without antialiasing.
class QtImageSurface : public Surface {
public:
    QtImageSurface(int width, int height, Rgb background = WHITE);

    int ScaleWidth() const override { return bild_.width(); }
    int ScaleHeight() const override { return bild_.height(); }
    Rgb BackColor() const override { return hintergrund_; }

    void Line(double x1, double y1, double x2, double y2, Rgb colour) override;
    void Box(double x1, double y1, double x2, double y2, Rgb colour) override;
    void FilledBox(double x1, double y1, double x2, double y2, Rgb colour) override;
    void Circle(double cx, double cy, double radius, Rgb colour) override;
    void Circle(double cx, double cy, double radius, Rgb colour, double start, double end) override;
    void PSet(double x, double y, Rgb colour) override;
    Rgb Point(double x, double y) const override;
    double TextWidth(const std::string& text) const override;
    double TextHeight(const std::string& text) const override;

    // The pixels as drawn so far.
    const QImage& bild() const { return bild_; }
    // A new pixel size; the content is cleared to BackColor.
    void groesse_setzen(int width, int height);

    // The free font that stands for a font name of the charts ("Arial", "Times New Roman",
    // "MS Sans Serif"), at `punkte` points on a 96 dpi raster and the weight `fett`.
    static QFont schrift(const std::string& name, double punkte, bool fett);

protected:
    void clear_pixels() override;
    void draw_text(double x, double y, const std::string& text) override;

private:
    void punkt(int x, int y, QRgb farbe);
    QFont aktuelle_schrift() const { return schrift(FontName, FontSize, FontBold); }

    QImage bild_;
    Rgb hintergrund_;
};
