// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

// A colour as red, green, blue, 0..255 each.
struct Rgb {
    uint8_t r = 0, g = 0, b = 0;
    friend bool operator==(Rgb a, Rgb b) { return a.r == b.r && a.g == b.g && a.b == b.b; }
    friend bool operator!=(Rgb a, Rgb b) { return !(a == b); }
};

constexpr Rgb WHITE{255, 255, 255};
constexpr Rgb BLACK{0, 0, 0};

// How a closed circle or pie is filled: not at all, or solidly with FillColor.
enum class FillMode { Transparent, Solid };

// The drawing target of every chart: a rectangle of pixels with its origin at the top left
// corner, x growing to the right and y growing downward. Coordinates are doubles in pixel units;
// a backend rounds them to the nearest pixel (half away from zero) when it draws, so a tick at
// y = 97.2 lands on row 97. A surface keeps a drawing position (CurrentX, CurrentY), a font, a
// fill state and a line width, as the charts set them.
//
// Conventions of the primitives:
// - Line leaves out its end pixel, as the platform's line call does; a line of length zero
//   draws nothing.
// - Box and FilledBox cover both corner pixels; the corners may come in any order.
// - Circle angles are radians, counter-clockwise on the screen with 0 to the right and pi/2
//   upward. A negative angle stands for its magnitude and draws the radius line to that end of
//   the arc; with both angles negative the sector is a closed pie, filled with FillColor when
//   FillStyle is Solid. The arc runs counter-clockwise from start to end. A full circle is
//   filled the same way. A radius below half a pixel draws nothing.
// - Print writes the text with its top left corner at (CurrentX, CurrentY) and then moves the
//   drawing position to the start of the next line: CurrentX 0, CurrentY one TextHeight lower.
// - Nothing is clipped by the routines: whatever lies outside the surface is simply not seen.
class Surface {
public:
    virtual ~Surface() = default;

    // Inner size in pixels.
    virtual int ScaleWidth() const = 0;
    virtual int ScaleHeight() const = 0;
    // The colour that Cls paints.
    virtual Rgb BackColor() const = 0;

    // Clears to BackColor and puts the drawing position at (0,0); font and fill stay.
    void Cls();
    // Straight line from (x1,y1) towards (x2,y2) in `colour`, without its end pixel.
    virtual void Line(double x1, double y1, double x2, double y2, Rgb colour) = 0;
    // Outline of the rectangle with these corners.
    virtual void Box(double x1, double y1, double x2, double y2, Rgb colour) = 0;
    // The filled rectangle with these corners.
    virtual void FilledBox(double x1, double y1, double x2, double y2, Rgb colour) = 0;
    // Full circle of `radius` pixels around (cx,cy), outline in `colour`.
    virtual void Circle(double cx, double cy, double radius, Rgb colour) = 0;
    // Arc or pie from angle `start` to `end` (radians, see above).
    virtual void Circle(double cx, double cy, double radius, Rgb colour, double start,
                        double end) = 0;
    // One pixel in `colour`.
    virtual void PSet(double x, double y, Rgb colour) = 0;
    // The colour of the pixel at (x,y); BackColor outside the surface.
    virtual Rgb Point(double x, double y) const = 0;

    // The text at the drawing position in the current font, then the position to the next line.
    void Print(const std::string& text);
    // Width and height of `text` in pixels in the current font (UTF-8).
    virtual double TextWidth(const std::string& text) const = 0;
    virtual double TextHeight(const std::string& text) const = 0;

    // Drawing position of the next Print, pixels.
    double CurrentX = 0;
    double CurrentY = 0;
    // The current font: name, size in points, weight.
    std::string FontName = "MS Sans Serif";
    double FontSize = 8.25;
    bool FontBold = false;
    // Fill of closed circles and pies.
    FillMode FillStyle = FillMode::Transparent;
    Rgb FillColor = BLACK;
    // Width of lines, circles and points in pixels, at least 1.
    int DrawWidth = 1;

protected:
    // Paints the whole surface in BackColor.
    virtual void clear_pixels() = 0;
    // Writes `text` with its top left corner at (x,y) in the current font.
    virtual void draw_text(double x, double y, const std::string& text) = 0;
};
