// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "charts/Surface.h"

#include <string>

// The printer as the printed pages use it: one page at a time, in millimetres from the top left
// corner of the printable area, x to the right and y downward. Every page is written straight
// to it; there is no page model. A backend maps the millimetres to its device units.
//
// Print writes the text with its top left corner at (CurrentX, CurrentY) in the current font.
// Afterwards the position goes to the start of the next line (CurrentX 0, CurrentY one text
// height lower), or, when the text is printed `weiter`, to the end of the text on the same line,
// so that the next text continues it in another font.
class Drucker {
public:
    virtual ~Drucker() = default;

    // Width of the printable area, mm.
    virtual double ScaleWidth() const = 0;
    // Name of the printer, or of the file that is written.
    virtual std::string DeviceName() const = 0;

    // A thin straight line from (x1,y1) to (x2,y2), mm.
    virtual void Line(double x1, double y1, double x2, double y2, Rgb farbe) = 0;
    // The outline of the rectangle with these corners, mm.
    virtual void Box(double x1, double y1, double x2, double y2, Rgb farbe) = 0;
    // The filled rectangle with these corners, mm; the corners may come in any order.
    virtual void FilledBox(double x1, double y1, double x2, double y2, Rgb farbe) = 0;

    // The text at the drawing position, then the position moved as told above.
    void Print(const std::string& text, bool weiter = false);
    // Width and height of `text` in the current font, mm (UTF-8).
    virtual double TextWidth(const std::string& text) const = 0;
    virtual double TextHeight(const std::string& text) const = 0;

    // Ends the page; the next drawing goes to a new one. The position goes to (0,0).
    void NewPage();
    // Ends the document; nothing is drawn after it.
    virtual void EndDoc() = 0;

    // Drawing position of the next Print, mm.
    double CurrentX = 0;
    double CurrentY = 0;
    // The current font: name, size in points, style.
    std::string FontName = "Arial";
    double FontSize = 10;
    bool FontBold = false;
    bool FontItalic = false;
    bool FontUnderline = false;

protected:
    // Writes `text` with its top left corner at (x,y) mm in the current font.
    virtual void draw_text(double x, double y, const std::string& text) = 0;
    // Starts a new page of the device.
    virtual void new_page() = 0;
};
