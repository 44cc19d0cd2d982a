// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/CanvasFlaeche.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

CanvasFlaeche::CanvasFlaeche(int breite, int hoehe, Rgb hintergrund, Textmass breite_von,
                             Textmass hoehe_von)
    : RecordingSurface(breite, hoehe, hintergrund), breite_von_(std::move(breite_von)),
      hoehe_von_(std::move(hoehe_von)) {}

void CanvasFlaeche::befehl(Befehl b, std::initializer_list<double> zahlen) {
    befehle_.push_back(static_cast<double>(b));
    befehle_.insert(befehle_.end(), zahlen);
}

void CanvasFlaeche::farbe(Rgb c) {
    befehle_.push_back(c.r * 65536.0 + c.g * 256.0 + c.b);
}

void CanvasFlaeche::clear_pixels() {
    RecordingSurface::clear_pixels();
    // Only what is drawn from here on shows; the log of the base is not needed.
    forget();
    befehle_.clear();
    texte_.clear();
    ++fassung_;
    befehl(Befehl::Leeren, {});
    farbe(BackColor());
}

void CanvasFlaeche::Line(double x1, double y1, double x2, double y2, Rgb colour) {
    RecordingSurface::Line(x1, y1, x2, y2, colour);
    forget();
    befehl(Befehl::Linie, {x1, y1, x2, y2});
    farbe(colour);
    befehle_.push_back(DrawWidth);
}

void CanvasFlaeche::Box(double x1, double y1, double x2, double y2, Rgb colour) {
    RecordingSurface::Box(x1, y1, x2, y2, colour);
    forget();
    befehl(Befehl::Rahmen, {x1, y1, x2, y2});
    farbe(colour);
}

void CanvasFlaeche::FilledBox(double x1, double y1, double x2, double y2, Rgb colour) {
    RecordingSurface::FilledBox(x1, y1, x2, y2, colour);
    forget();
    befehl(Befehl::Flaeche, {x1, y1, x2, y2});
    farbe(colour);
}

void CanvasFlaeche::Circle(double cx, double cy, double radius, Rgb colour) {
    RecordingSurface::Circle(cx, cy, radius, colour);
    forget();
    befehl(Befehl::Kreis, {cx, cy, radius});
    farbe(colour);
    befehle_.push_back(DrawWidth);
    if (FillStyle == FillMode::Solid) {
        farbe(FillColor);
    } else {
        befehle_.push_back(-1);
    }
    befehle_.insert(befehle_.end(), {0.0, 0.0});
}

void CanvasFlaeche::Circle(double cx, double cy, double radius, Rgb colour, double start,
                           double end) {
    RecordingSurface::Circle(cx, cy, radius, colour, start, end);
    forget();
    befehl(Befehl::Kreis, {cx, cy, radius});
    farbe(colour);
    befehle_.push_back(DrawWidth);
    // Only a closed pie is filled.
    if (FillStyle == FillMode::Solid && start < 0 && end < 0) {
        farbe(FillColor);
    } else {
        befehle_.push_back(-1);
    }
    // A full circle has both angles 0; an arc from 0 is told apart by a tiny start.
    befehle_.insert(befehle_.end(), {start == 0 && end == 0 ? 1e-12 : start, end});
}

void CanvasFlaeche::PSet(double x, double y, Rgb colour) {
    RecordingSurface::PSet(x, y, colour);
    forget();
    befehl(Befehl::Punkt, {x, y});
    farbe(colour);
    befehle_.push_back(DrawWidth);
}

std::string CanvasFlaeche::css_font() const {
    const long pixel = std::max(1L, std::lround(FontSize * 96.0 / 72.0));
    std::string familie = "'Liberation Sans', Arial, sans-serif";
    if (FontName == "Times New Roman") {
        familie = "'Liberation Serif', 'Times New Roman', serif";
    } else if (FontName == "Courier New") {
        familie = "'Liberation Mono', 'Courier New', monospace";
    }
    return std::string(FontBold ? "bold " : "") + std::to_string(pixel) + "px " + familie;
}

double CanvasFlaeche::TextWidth(const std::string& text) const {
    return breite_von_ ? breite_von_(css_font(), text) : RecordingSurface::TextWidth(text);
}

double CanvasFlaeche::TextHeight(const std::string& text) const {
    return hoehe_von_ ? hoehe_von_(css_font(), text) : RecordingSurface::TextHeight(text);
}

void CanvasFlaeche::draw_text(double x, double y, const std::string& text) {
    RecordingSurface::draw_text(x, y, text);
    forget();
    texte_.push_back(text);
    texte_.push_back(css_font());
    befehl(Befehl::Text, {x, y, double(texte_.size() - 2), double(texte_.size() - 1)});
}
