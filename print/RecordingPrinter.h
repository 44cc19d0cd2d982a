// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "print/Drucker.h"

#include <string>
#include <vector>

// A test double of the printer: it logs every line, box, text and page end with the page it
// belongs to and the font at the time, and draws nothing.
//
// Text metrics follow a fixed model instead of a real font: every character (UTF-8 code point)
// is 0.2 mm per point of FontSize wide, whatever the font and style, and a line is 0.4 mm per
// point high. At size 10 that is 2 mm by 4 mm.
class RecordingPrinter : public Drucker {
public:
    struct Eintrag {
        enum class Art { Line, Box, FilledBox, Print, NewPage, EndDoc };
        Art art = Art::Line;
        int seite = 1;                         // page, from 1
        double x1 = 0, y1 = 0, x2 = 0, y2 = 0; // ends or corners; for Print the place
        Rgb farbe;
        std::string text; // Print only, with the font at the time
        std::string font;
        double size = 0;
        bool bold = false, italic = false, underline = false;
    };

    explicit RecordingPrinter(double breite = 200) : breite_(breite) {}

    double ScaleWidth() const override { return breite_; }
    std::string DeviceName() const override { return "Recording"; }
    void Line(double x1, double y1, double x2, double y2, Rgb farbe) override;
    void Box(double x1, double y1, double x2, double y2, Rgb farbe) override;
    void FilledBox(double x1, double y1, double x2, double y2, Rgb farbe) override;
    double TextWidth(const std::string& text) const override;
    double TextHeight(const std::string& text) const override;
    void EndDoc() override;

    // Every call so far, in order.
    const std::vector<Eintrag>& log() const { return log_; }
    // The logged calls of one kind.
    std::vector<Eintrag> von_art(Eintrag::Art art) const;
    // The Print calls whose text is exactly `text`.
    std::vector<Eintrag> prints(const std::string& text) const;
    // All printed texts of page `seite` in order (0: of every page).
    std::vector<std::string> texte(int seite = 0) const;
    // The page being written, from 1.
    int seite() const { return seite_; }

protected:
    void draw_text(double x, double y, const std::string& text) override;
    void new_page() override;

private:
    void eintragen(Eintrag::Art art, double x1, double y1, double x2, double y2, Rgb farbe);

    double breite_;
    int seite_ = 1;
    std::vector<Eintrag> log_;
};
