// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "charts/Surface.h"

#include <QFont>
#include <QImage>

#include <string>
#include <vector>

// The chart surface of the screen: a QImage of the chart's pixel size. Lines, boxes and points
// are set pixel by pixel, so that the end pixel rule and the corner rule of the charts hold
// exactly; circles, pies and texts go through QPainter without antialiasing.
//
// A window shown larger draws its charts at its own resolution: with `pixel_je_punkt` above 1
// every chart pixel becomes a square of that many pixels: boxes, fills, points and straight lines
// cover exactly their chart pixels, slanted lines are drawn in the image's own pixels about one
// chart pixel wide, and texts are set in the enlarged font, smoothed. The charts keep drawing in
// their own pixel units. The drawing since the last Cls is kept, so that a new scale draws it anew.
class QtImageSurface : public Surface {
public:
    QtImageSurface(int width, int height, Rgb background = WHITE);

    int ScaleWidth() const override { return breite_; }
    int ScaleHeight() const override { return hoehe_; }
    Rgb BackColor() const override { return hintergrund_; }

    void Line(double x1, double y1, double x2, double y2, Rgb colour) override;
    void Box(double x1, double y1, double x2, double y2, Rgb colour) override;
    void FilledBox(double x1, double y1, double x2, double y2, Rgb colour) override;
    void Circle(double cx, double cy, double radius, Rgb colour) override;
    void Circle(double cx, double cy, double radius, Rgb colour, double start, double end) override;
    void PSet(double x, double y, Rgb colour) override;
    // The colour in the middle of the chart pixel (x, y), at any scale.
    Rgb Point(double x, double y) const override;
    double TextWidth(const std::string& text) const override;
    double TextHeight(const std::string& text) const override;

    // The pixels as drawn so far: the chart's size times pixel_je_punkt().
    const QImage& bild() const { return bild_; }
    // A new size in chart pixels; the content is cleared to BackColor.
    void groesse_setzen(int width, int height);
    // Image pixels per chart pixel; the drawing since the last Cls is drawn anew at it.
    void massstab_setzen(double pixel_je_punkt);
    double pixel_je_punkt() const { return massstab_; }

    // The free font that stands for a font name of the charts ("Arial", "Times New Roman",
    // "MS Sans Serif"), at `punkte` points on a 96 dpi raster and the weight `fett`.
    static QFont schrift(const std::string& name, double punkte, bool fett);

protected:
    void clear_pixels() override;
    void draw_text(double x, double y, const std::string& text) override;

private:
    // One drawing call with the state it was drawn in.
    struct Schritt {
        enum class Art { Linie, Kasten, Flaeche, Kreis, Bogen, Punkt, Text };
        Art art;
        double a = 0, b = 0, c = 0, d = 0, e = 0, f = 0;
        Rgb farbe;
        int breite = 1;
        FillMode fuellung = FillMode::Transparent;
        Rgb fuellfarbe;
        std::string text, schriftname;
        double punkte = 0;
        bool fett = false;
    };

    Schritt schritt(Schritt::Art art, double a, double b, double c, double d, Rgb farbe) const;
    void ausfuehren(const Schritt& s);
    void linie(const Schritt& s);
    // The pixels of the image from (xa, ya) towards (xe, ye), without the end, each a square of
    // `stift` pixels.
    void bresenham(int xa, int ya, int xe, int ye, int stift, QRgb farbe);
    void kreis(const Schritt& s);
    void text(const Schritt& s);
    void bild_anlegen();
    // The first image pixel of chart pixel v along one axis.
    int bildpunkt(int v) const;
    // Fills the chart pixels from (l, o) to (r, u), both corners included.
    void fuellen(int l, int o, int r, int u, QRgb farbe);
    QFont aktuelle_schrift() const { return schrift(FontName, FontSize, FontBold); }

    int breite_, hoehe_;
    double massstab_ = 1.0;
    QImage bild_;
    Rgb hintergrund_;
    std::vector<Schritt> schritte_;
};
