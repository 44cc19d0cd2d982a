// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "charts/Surface.h"

#include <string>
#include <vector>

// A test double of the chart surface: it logs every primitive with its arguments and paints
// lines, boxes, circles, pies and points into an RGB buffer, so that a test can read back what
// a reader of the chart would see. Texts are logged with their place and font but not painted.
//
// Text metrics follow a fixed model instead of a real font: every character (UTF-8 code point)
// is round(0.75 * FontSize) pixels wide, whatever the font and weight, and a line is
// round(4/3 * FontSize) pixels high. At the charts' 8.25 points that is 6 by 11 pixels.
class RecordingSurface : public Surface {
public:
    // One logged call. Unused fields stay 0 or empty.
    struct Primitive {
        enum class Kind { Cls, Line, Box, FilledBox, Circle, Pie, PSet, Print };
        Kind kind = Kind::Cls;
        double x1 = 0, y1 = 0, x2 = 0, y2 = 0; // corners or end points; for Print the place
        double radius = 0, start = 0, end = 0; // circles and pies, radians as given
        Rgb colour;                            // line or outline colour
        bool filled = false;                   // circle or pie painted with `fill`
        Rgb fill;
        std::string text; // Print only, with the font at the time
        std::string font;
        double font_size = 0;
        bool bold = false;
    };

    RecordingSurface(int width, int height, Rgb background = WHITE);

    int ScaleWidth() const override { return width_; }
    int ScaleHeight() const override { return height_; }
    Rgb BackColor() const override { return background_; }

    void Line(double x1, double y1, double x2, double y2, Rgb colour) override;
    void Box(double x1, double y1, double x2, double y2, Rgb colour) override;
    void FilledBox(double x1, double y1, double x2, double y2, Rgb colour) override;
    void Circle(double cx, double cy, double radius, Rgb colour) override;
    void Circle(double cx, double cy, double radius, Rgb colour, double start, double end) override;
    void PSet(double x, double y, Rgb colour) override;
    Rgb Point(double x, double y) const override;
    double TextWidth(const std::string& text) const override;
    double TextHeight(const std::string& text) const override;

    // Every call since construction or the last forget(), in order.
    const std::vector<Primitive>& log() const { return log_; }
    // Empties the log; the pixels stay.
    void forget() { log_.clear(); }
    // The logged calls of one kind.
    std::vector<Primitive> of_kind(Primitive::Kind kind) const;
    // The logged Print calls whose text is exactly `text`.
    std::vector<Primitive> prints(const std::string& text) const;
    // All printed texts in order.
    std::vector<std::string> printed_texts() const;
    // The pixel at column x, row y (BackColor outside).
    Rgb pixel(int x, int y) const;
    // Writes the buffer as a binary PPM image, for looking at a chart by eye.
    void save_ppm(const std::string& path) const;

protected:
    void clear_pixels() override;
    void draw_text(double x, double y, const std::string& text) override;

private:
    void set(long x, long y, Rgb colour);
    void brush(long x, long y, Rgb colour);
    void raster_line(long x1, long y1, long x2, long y2, Rgb colour, bool with_end);
    void raster_circle(double cx, double cy, double radius, Rgb colour, bool pie, double start,
                       double end);

    int width_, height_;
    Rgb background_;
    std::vector<Rgb> pixels_;
    std::vector<Primitive> log_;
};
