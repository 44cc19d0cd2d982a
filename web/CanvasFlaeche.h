// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "charts/RecordingSurface.h"

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

// A chart surface for the browser: every primitive goes into a command list that the page
// replays on a canvas in one go, in the chart's own pixel coordinates. The pixels are painted
// here as well, because the tooltips ask the chart which colour lies under the pointer. Text
// sizes come from the page's fonts, so that the charts place their texts by what is shown.
class CanvasFlaeche : public RecordingSurface {
public:
    // The width and the height of a text in a font ("bold 11px Liberation Sans"), in pixels.
    using Textmass = std::function<double(const std::string& font, const std::string& text)>;

    // The command codes of the list, each followed by the numbers of its kind:
    // Leeren: colour; Linie: x1 y1 x2 y2 colour width; Rahmen, Flaeche: x1 y1 x2 y2 colour;
    // Kreis: cx cy r colour width fill start end (fill -1 for none, start = end = 0 for a full
    // circle); Punkt: x y colour width; Text: x y text-index (in `texte`) font-index.
    enum class Befehl { Leeren = 0, Linie, Rahmen, Flaeche, Kreis, Punkt, Text };

    CanvasFlaeche(int breite, int hoehe, Rgb hintergrund, Textmass breite_von, Textmass hoehe_von);

    void Line(double x1, double y1, double x2, double y2, Rgb colour) override;
    void Box(double x1, double y1, double x2, double y2, Rgb colour) override;
    void FilledBox(double x1, double y1, double x2, double y2, Rgb colour) override;
    void Circle(double cx, double cy, double radius, Rgb colour) override;
    void Circle(double cx, double cy, double radius, Rgb colour, double start, double end) override;
    void PSet(double x, double y, Rgb colour) override;
    double TextWidth(const std::string& text) const override;
    double TextHeight(const std::string& text) const override;

    // The CSS font of the current font: pixel size from points at 96 dpi, as the desktop.
    std::string css_font() const;

    // What was drawn since the last Cls, and how often the surface was drawn at all.
    const std::vector<double>& befehle() const { return befehle_; }
    const std::vector<std::string>& texte() const { return texte_; }
    int fassung() const { return fassung_; }

protected:
    void clear_pixels() override;
    void draw_text(double x, double y, const std::string& text) override;

private:
    void farbe(Rgb c);
    void befehl(Befehl b, std::initializer_list<double> zahlen);
    Textmass breite_von_, hoehe_von_;
    std::vector<double> befehle_;
    std::vector<std::string> texte_;
    int fassung_ = 0;
};
