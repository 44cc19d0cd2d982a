// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/RecordingPrinter.h"

namespace {

// Code points of a UTF-8 text: every byte that does not continue a sequence.
double zeichen(const std::string& text) {
    double n = 0;
    for (unsigned char c : text) {
        n += (c & 0xC0) != 0x80 ? 1 : 0;
    }
    return n;
}

} // namespace

void RecordingPrinter::eintragen(Eintrag::Art art, double x1, double y1, double x2, double y2,
                                 Rgb farbe) {
    Eintrag e;
    e.art = art;
    e.seite = seite_;
    e.x1 = x1;
    e.y1 = y1;
    e.x2 = x2;
    e.y2 = y2;
    e.farbe = farbe;
    log_.push_back(e);
}

void RecordingPrinter::Line(double x1, double y1, double x2, double y2, Rgb farbe) {
    eintragen(Eintrag::Art::Line, x1, y1, x2, y2, farbe);
}

void RecordingPrinter::Box(double x1, double y1, double x2, double y2, Rgb farbe) {
    eintragen(Eintrag::Art::Box, x1, y1, x2, y2, farbe);
}

void RecordingPrinter::FilledBox(double x1, double y1, double x2, double y2, Rgb farbe) {
    eintragen(Eintrag::Art::FilledBox, x1, y1, x2, y2, farbe);
}

double RecordingPrinter::TextWidth(const std::string& text) const {
    return zeichen(text) * 0.2 * FontSize;
}

double RecordingPrinter::TextHeight(const std::string&) const {
    return 0.4 * FontSize;
}

void RecordingPrinter::EndDoc() {
    eintragen(Eintrag::Art::EndDoc, 0, 0, 0, 0, BLACK);
}

void RecordingPrinter::draw_text(double x, double y, const std::string& text) {
    eintragen(Eintrag::Art::Print, x, y, x, y, BLACK);
    Eintrag& e = log_.back();
    e.text = text;
    e.font = FontName;
    e.size = FontSize;
    e.bold = FontBold;
    e.italic = FontItalic;
    e.underline = FontUnderline;
}

void RecordingPrinter::new_page() {
    eintragen(Eintrag::Art::NewPage, 0, 0, 0, 0, BLACK);
    ++seite_;
}

std::vector<RecordingPrinter::Eintrag> RecordingPrinter::von_art(Eintrag::Art art) const {
    std::vector<Eintrag> r;
    for (const Eintrag& e : log_) {
        if (e.art == art) {
            r.push_back(e);
        }
    }
    return r;
}

std::vector<RecordingPrinter::Eintrag> RecordingPrinter::prints(const std::string& text) const {
    std::vector<Eintrag> r;
    for (const Eintrag& e : log_) {
        if (e.art == Eintrag::Art::Print && e.text == text) {
            r.push_back(e);
        }
    }
    return r;
}

std::vector<std::string> RecordingPrinter::texte(int seite) const {
    std::vector<std::string> r;
    for (const Eintrag& e : log_) {
        if (e.art == Eintrag::Art::Print && (seite == 0 || e.seite == seite)) {
            r.push_back(e.text);
        }
    }
    return r;
}
